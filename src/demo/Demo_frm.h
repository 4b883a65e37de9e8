// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Picture.h"
#include "core/IniFile.h"
#include "demo/rules/DemoFile.h"
#include "demo/rules/DemoShow.h"
#include "ui/forms/BandedForm.h"

namespace sprout {

class DemoPic;
class DemoPulse;
class LinkButton;
class NamesMenu;

/// The tutorial: shows the slides of a demo, each of which waits for a click or a drag in its active rectangle or for
/// its time. Behind the last slide a link opens the other demos. The caller stops the player after it has closed.
///
/// Space and Enter do what the slide waits for, the arrows step back and forth, and screen readers get each slide's
/// instruction.
class Demo_frm : public BandedForm {
    Q_OBJECT

public:
    /// name: the demo to show; one that is not there is over at once.
    Demo_frm(QWidget* parent, std::string_view name);

    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// What is shown of a slide, in both sizes.
    struct SlidePictures {
        std::string name;
        Picture plain;
        Picture sharp; ///< nothing where the screen has large pixels
    };

    void MakePicture();
    void MakeLink();
    void MakeTimer();

    void StartDemo(std::string_view name);
    void ShowDemoSlide(std::int32_t index);
    void ShowNext(bool isWanted);
    [[nodiscard]] std::optional<BoxSize> LoadSlide(const DemoSlide& slide);
    [[nodiscard]] SlidePictures LoadPictures(const std::string& name) const;
    void LoadNextSlide();
    void CarryOut(const DemoOrders& orders);
    void PlaySlideSound() const;

    void PlaceParts();
    void KeepOnScreen(const QPoint& middle);
    void ShowState();
    [[nodiscard]] Words Instruction() const;

    void TickDemo();
    void PressKey();
    void ChooseOtherDemo();

    IniFile demoFile;
    IniFile demoTexts;
    std::vector<DemoName> demoNames;
    DemoShow demoShow;
    DemoPic* demoPic = nullptr;
    DemoPulse* pulse = nullptr;
    LinkButton* DemoPopUpLinkLbl = nullptr;
    NamesMenu* MenuPop2 = nullptr;
    QTimer* DemoTimer = nullptr;
    QTimer* aheadTimer = nullptr;
    SlidePictures ahead; // of the next slide, loaded while the child looks at the present one
};

} // namespace sprout
