// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <functional>
#include <string>
#include <vector>

#include "sound/PlayMod.h"
#include "support/FakeServices.h"
#include "tune_window/OpenTuneWindow.h"
#include "tune_window/TuneFrm2.h"
#include "tune_window/TunePicture.h"
#include "tune_window/Tunes.h"
#include "ui/ModalSteps.h"
#include "ui/widgets/Hints.h"
#include "ui/widgets/PictureGridPic.h"
#include "ui/words/QtText.h"

namespace sprout {

/// The frames of silence before a chosen tune.
inline constexpr std::int32_t kLeadInFrames = 33075;

/// A part of the tune window, by name.
template <class Widget = QWidget>
Widget& PartOf(const QWidget& window, const char* name)
{
    return *window.findChild<Widget*>(QString::fromLatin1(name));
}

inline std::string TextOf(const QWidget& window, const char* label)
{
    return PartOf<QLabel>(window, label).text().toStdString();
}

inline PictureGridPic& GridOf(const QWidget& window)
{
    return PartOf<PictureGridPic>(window, "ShowAllPic");
}

/// Presses a mouse button on a tune in the grid, or on the selection frame if it is around that tune.
inline void PressTune(const QWidget& window, std::int32_t index, Qt::MouseButton button = Qt::LeftButton)
{
    PictureGridPic& grid = GridOf(window);
    const GridPlace place = PlaceInGrid(grid.Grid(), index);
    const QPoint at(place.x + 16, place.y + 16);
    QWidget* frame = grid.childAt(at);
    QTest::mouseClick(frame ? frame : &grid, button, {}, frame ? frame->mapFrom(&grid, at) : at);
}

inline QAction& MenuItem(const QWidget& window, int index)
{
    return *PartOf<QMenu>(window, "PopPosiMnu").actions().at(index < 4 ? index : index + 1);
}

/// Fresh services, a player without a device, and a status line. The tune window is closed after each test.
class TuneWindowTest : public testing::Test {
protected:
    /// Makes the window show the tune being edited, as the main window does.
    class Display : public FakePlayDisplay {
    public:
        void UpdateThisTune() override
        {
            FakePlayDisplay::UpdateThisTune();
            sprout::UpdateThisTune();
        }
    };

    TuneWindowTest()
    {
        TheServices().playDisplay = &display;
        PlayShared() = PlayModState();
        SetSoundDriver(true);
        SetStatusLbl(&statusLbl);
        Shared().Song.Tempo = kReferenceTempo;
    }

    ~TuneWindowTest() override
    {
        delete TheWindow();
        ReleasePlayer();
        PlayShared() = PlayModState();
    }

    /// The tune window, if it was opened; its child windows are deleted with it.
    static QWidget* TheWindow()
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (qobject_cast<TuneFrm2*>(window))
                return window;
        return nullptr;
    }

    /// Opens the window for `tune`, runs `steps`, and cancels it if they left it open.
    bool Open(const std::function<void(TuneFrm2&)>& steps)
    {
        bool ran = false;
        WithNextForm([&steps, &ran](BandedForm& form) {
            ran = true;
            steps(static_cast<TuneFrm2&>(form));
            if (form.isVisible())
                form.reject();
        });
        const bool changed = OpenTuneWindow(tune, newFlag);
        EXPECT_TRUE(ran);
        return changed;
    }

    /// Keeps the first and second note of the next message and answers it with a button.
    void AnswerNext(const char* button)
    {
        WithNextForm([this, button](BandedForm& form) {
            noted.clear();
            for (const char* name : {"CaptionLbl", "NoteLbl", "NoteLbl1", "NoteLbl2"})
                if (const auto* label = form.findChild<QLabel*>(QString::fromLatin1(name)))
                    noted.push_back(label->text().toStdString());
            hintOfMessage = statusLbl.text().toStdString();
            Click(form, button);
        });
    }

    /// The frames of the last sound played, including the silence before it; 0 if there was none.
    [[nodiscard]] static std::int32_t Played() { return PlayShared().PlayLength; }
    static void ForgetPlay() { PlayShared().PlayLength = 0; }

    FakeServices services;
    Display display;
    QLabel statusLbl;
    Tune tune;
    bool newFlag = false;
    std::vector<std::string> noted;
    std::string hintOfMessage;
};

} // namespace sprout
