// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>
#include <QPointer>
#include <QUrl>

#include "ui/forms/BandedForm.h"

namespace sprout {

class HelpBook;

/// Opens the help book at its first page, in a window of its own that stays open beside the others. If it is already
/// open, it comes to the front.
void ShowHelp();

/// The help book's window, in front of the window that opened it: a list of pages, the current page, and a back button.
/// It is not modal and stays usable while a modal window is open.
class HelpFrm : public BandedForm {
    Q_OBJECT

public:
    HelpFrm();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void MakePages();
    void MakeBook();
    void MakeButtons();
    void PlaceControls();
    void ShowPage(int row);
    void MarkPage(const QUrl& source);
    void StandBelowItsWindow();

    QPointer<QWidget> opener; ///< never modal: the window that opened it, or whose form did
    QListWidget* PagesLst;
    HelpBook* BookTxt;
    ImageButton* BackBtn = nullptr;
};

} // namespace sprout
