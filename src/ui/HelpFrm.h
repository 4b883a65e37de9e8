// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>
#include <QPointer>
#include <QUrl>

#include "ui/BandedForm.h"

namespace sprout {

class HelpBook;

/// Opens the help book at its first page, in a window of its own that stays open beside the others. Called again, it
/// brings that window to the front.
void ShowHelp();

/// The window of the help book, in front of the window that it was called from: a list of its pages, the page that is
/// read, and the way back. It is not modal and can be used while a modal window waits.
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

    QPointer<QWidget> opener; ///< not modal: the window that it was called from, or whose forms
    QListWidget* PagesLst;
    HelpBook* BookTxt;
    ImageButton* BackBtn = nullptr;
};

} // namespace sprout
