// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QUrl>

#include "ui/forms/BandedForm.h"
#include "ui/help/HelpSearch.h"

namespace sprout {

class HelpBook;

/// Opens the help book at the page about the active window, or at its first page, in a window of its own that stays
/// open beside the others. If it is already open, it comes to the front and turns to the page about the active window.
void ShowHelp();

/// The help book's window, in front of the window that opened it: a box to search for a word, a list of pages, the
/// current page, and a back button. It is not modal and stays usable while a modal window is open.
class HelpFrm : public BandedForm {
    Q_OBJECT

public:
    HelpFrm();

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Shows the page with this number; -1 leaves the book as it is.
    void OpenPage(int page);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void MakePages();
    void MakeBook();
    void MakeSearch();
    void MakeButtons();
    void PlaceControls();
    void SetTabOrders();
    void LookForWord();
    void FindNext();
    void ShowFound();
    void ShowPage(int row);
    void MarkPage(const QUrl& source);
    void StandBelowItsWindow();

    QPointer<QWidget> opener; ///< never modal: the window that opened it, or whose form did
    QListWidget* PagesLst;
    HelpBook* BookTxt;
    QLineEdit* SearchTxt;
    QLabel* FoundLbl = nullptr;
    HelpSearch search;
    int searchedFrom = 0; ///< the page that was read before the search led away
    ImageButton* BackBtn = nullptr;
};

} // namespace sprout
