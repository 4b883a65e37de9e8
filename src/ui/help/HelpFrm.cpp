// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help/HelpFrm.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QWindow>

#include <algorithm>

#include "ui/forms/Dialogs.h"
#include "ui/help/HelpBook.h"
#include "ui/help/HelpPages.h"
#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/words/QtText.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr QSize kWidestHelp{760, 600};
constexpr QSize kLeastHelp{600, 400};
constexpr int kScreenEdge = 20;
constexpr int kHelpMargin = 14;
constexpr int kPagesWidth = 224; ///< fits every English title beside a scroll bar
constexpr int kMostPagesWidth = 300;
constexpr int kBesideThePages = 40; ///< frame, padding and a scroll bar
constexpr int kPageIconSide = 32;
constexpr int kButtonRowHeight = 44;
constexpr int kSearchHeight = 30;
constexpr int kBelowSearch = 8;

/// The page's picture; a selected line shows it unchanged.
QIcon PageIcon(const HelpPage& page)
{
    const QPixmap picture =
        Artwork(QLatin1String(page.picture), QSize(kPageIconSide, kPageIconSide), qApp->devicePixelRatio());
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected);
    return icon;
}

QPointer<HelpFrm>& OpenHelp()
{
    static QPointer<HelpFrm> help;
    return help;
}

/// The window that remains when all forms in front of it have closed.
QWidget* BaseOf(QWidget* window)
{
    while (window && window->isModal())
        window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    return window;
}

/// The page about what the user looks at.
int PageInFront()
{
    const QWidget* const window = QApplication::activeWindow() ? QApplication::activeWindow() : WindowInFront();
    return PageAbout(window && window->focusWidget() ? window->focusWidget() : window);
}

} // namespace

void ShowHelp()
{
    QPointer<HelpFrm>& help = OpenHelp();
    const int page = PageInFront();
    if (!help || help->isHidden()) { // a closed one deletes itself
        help = new HelpFrm;
        help->OpenPage(page);
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, help, [] { delete OpenHelp(); });
        help->show();
    } else {
        help->OpenPage(page);
    }
    help->raise();
    help->activateWindow();
}

HelpFrm::HelpFrm()
    : BandedForm(nullptr),
      opener(BaseOf(WindowInFront())),
      PagesLst(new QListWidget(this)),
      BookTxt(new HelpBook(this)),
      SearchTxt(new QLineEdit(this))
{
    setObjectName(QStringLiteral("HelpFrm"));
    setProperty(kStandsBeside, true);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    SetCaption(Words::Text(" Help"));
    MakePages();
    MakeBook();
    MakeSearch();
    MakeButtons();
    PlaceControls();
    SetTabOrders();
    ShowPage(0);
    BookTxt->setFocus();
    qApp->installEventFilter(this);
    // The desktop learns about it when the window is shown.
    winId();
    StandBelowItsWindow();
}

void HelpFrm::MakePages()
{
    PagesLst->setObjectName(QStringLiteral("PagesLst"));
    PagesLst->setAccessibleName(QtText(Words::Text("Pages")));
    PagesLst->setFont(LabelFont());
    PagesLst->setIconSize({kPageIconSide, kPageIconSide});
    PagesLst->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const HelpPage& page : HelpPages())
        new QListWidgetItem(PageIcon(page), QtText(Words(page.title)), PagesLst);
    connect(PagesLst, &QListWidget::currentRowChanged, this, &HelpFrm::ShowPage);
}

void HelpFrm::MakeBook()
{
    BookTxt->setObjectName(QStringLiteral("BookTxt"));
    BookTxt->setAccessibleName(QtText(Words::Text("Help page")));
    connect(BookTxt, &QTextBrowser::sourceChanged, this, &HelpFrm::MarkPage);
}

void HelpFrm::MakeSearch()
{
    SearchTxt->setObjectName(QStringLiteral("SearchTxt"));
    SearchTxt->setFont(LabelFont());
    SearchTxt->setPlaceholderText(QtText(Words::Text("Search for a word")));
    SetSpokenName(*SearchTxt, Words::Text("Search for a word"));
    FoundLbl = &AddLabel("FoundLbl");
    connect(SearchTxt, &QLineEdit::textChanged, this, &HelpFrm::LookForWord);
    connect(SearchTxt, &QLineEdit::returnPressed, this, &HelpFrm::FindNext);
    connect(new QShortcut(Qt::CTRL | Qt::Key_F, this), &QShortcut::activated, SearchTxt, [this] {
        SearchTxt->setFocus(Qt::ShortcutFocusReason);
        SearchTxt->selectAll();
    });
}

void HelpFrm::MakeButtons()
{
    AddWordButton({"FindBtn", Words::Later("Find next"), LaterWords(), Plate::Word, kLink}, [this] { FindNext(); });
    BackBtn = &AddWordButton({"BackBtn", Words::Later("Back"), LaterWords(), Plate::Word, kDeepLeaf, "WordBack"},
                             [this] { BookTxt->backward(); });
    AddWordButton({"CloseBtn", Words::Later("Close"), LaterWords(), Plate::Word, kStone}, [this] { reject(); });
    BackBtn->setEnabled(false);
    connect(BookTxt, &QTextBrowser::backwardAvailable, BackBtn, &QWidget::setEnabled);
}

void HelpFrm::PlaceControls()
{
    const QRect screenRect = screen()->availableGeometry();
    const QSize room = screenRect.size() - QSize(2 * kScreenEdge, 2 * kScreenEdge);
    const QSize size = kWidestHelp.boundedTo(room).expandedTo(kLeastHelp);
    const int bookTop = kHelpMargin + kSearchHeight + kBelowSearch;
    const int bookHeight = size.height() - kBandHeight - bookTop - kButtonRowHeight - 2 * kHelpMargin;
    const int pagesWidth = std::clamp(PagesLst->sizeHintForColumn(0) + kBesideThePages, kPagesWidth, kMostPagesWidth);
    const int bookLeft = 2 * kHelpMargin + pagesWidth;
    const int bookWidth = size.width() - bookLeft - kHelpMargin;
    SearchTxt->setGeometry({BodyPoint(kHelpMargin, kHelpMargin), QSize(pagesWidth, kSearchHeight)});
    FoundLbl->setGeometry({BodyPoint(bookLeft, kHelpMargin), QSize(bookWidth, kSearchHeight)});
    PagesLst->setGeometry({BodyPoint(kHelpMargin, bookTop), QSize(pagesWidth, bookHeight)});
    BookTxt->setGeometry({BodyPoint(bookLeft, bookTop), QSize(bookWidth, bookHeight)});
    PlaceButtons(size.width(), bookTop + bookHeight + kHelpMargin);
    // At the screen's edge, to cover little of what the user asks about.
    move(std::max(screenRect.right() - width() - kScreenEdge, screenRect.left()), screenRect.top() + kScreenEdge);
}

void HelpFrm::SetTabOrders()
{
    setTabOrder(SearchTxt, PagesLst);
    setTabOrder(PagesLst, BookTxt);
}

void HelpFrm::OpenPage(int page)
{
    if (page < 0)
        return;
    ShowPage(page);
    if (!isVisible()) // back would lead to a page that nobody has seen
        BookTxt->clearHistory();
}

/// Follows the word while it is typed. It stays on the page as long as the word is there, and returns to it if half the
/// word was found elsewhere but the whole is not.
void HelpFrm::LookForWord()
{
    const int shown = std::max(PagesLst->currentRow(), 0);
    const bool searchLedHere = search.Count() > 0 && search.Hit().page == shown;
    if (!searchLedHere)
        searchedFrom = shown;
    search.Look(SearchTxt->text(), searchedFrom);
    if (search.Count() == 0 && !search.Word().isEmpty())
        ShowPage(searchedFrom);
    ShowFound();
}

void HelpFrm::FindNext()
{
    search.Next();
    ShowFound();
    if (search.Word().isEmpty())
        SearchTxt->setFocus();
}

void HelpFrm::ShowFound()
{
    Words found;
    if (search.Count() > 0) {
        const HelpHit& hit = search.Hit();
        ShowPage(hit.page);
        BookTxt->MarkWord(hit.position, hit.length);
        found = Words::Text("Place %1 of %2", search.Number() + 1, search.Count());
    } else {
        BookTxt->RemoveMark();
        if (!search.Word().isEmpty())
            found = Words::Text("I found nothing about \"%1\". Try another word.", search.Word().toStdString());
    }
    SetFittingText(*FoundLbl, found);
    SetSpokenDescription(*SearchTxt, found);
}

void HelpFrm::ShowPage(int row)
{
    const HelpPage& page = HelpPages()[static_cast<std::size_t>(std::max(row, 0))];
    if (BookTxt->source().adjusted(QUrl::RemoveFragment) != PageUrl(page))
        BookTxt->setSource(PageUrl(page));
}

/// Marks the page that the book shows, however it was reached.
void HelpFrm::MarkPage(const QUrl& source)
{
    const QUrl shown = source.adjusted(QUrl::RemoveFragment);
    const std::span<const HelpPage> pages = HelpPages();
    const auto page = std::find_if(pages.begin(), pages.end(),
                                   [&shown](const HelpPage& candidate) { return PageUrl(candidate) == shown; });
    const QSignalBlocker quiet(PagesLst);
    PagesLst->setCurrentRow(page == pages.end() ? -1 : static_cast<int>(page - pages.begin()));
}

bool HelpFrm::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::Show)
        StandBelowItsWindow();
    return BandedForm::event(event);
}

bool HelpFrm::eventFilter(QObject* watched, QEvent* event)
{
    const bool comesOrGoes = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    if (comesOrGoes && watched != this && watched->isWidgetType() && static_cast<QWidget*>(watched)->isModal())
        QMetaObject::invokeMethod(this, &HelpFrm::StandBelowItsWindow, Qt::QueuedConnection);
    return BandedForm::eventFilter(watched, event);
}

/// Keeps the help in front of its transient parent. A modal window blocks all others, so the help belongs to it while
/// it is open and can be read and closed; afterwards it goes back to the window that opened it.
void HelpFrm::StandBelowItsWindow()
{
    QWidget* const modal = QApplication::activeModalWidget();
    if (!windowHandle() || (modal && isAncestorOf(modal)))
        return;
    const QWidget* const above = modal ? modal : opener.data();
    QWindow* const aboveWindow = above ? above->windowHandle() : nullptr;
    if (windowHandle()->transientParent() != aboveWindow)
        windowHandle()->setTransientParent(aboveWindow);
}

void HelpFrm::keyPressEvent(QKeyEvent* event)
{
    const bool wouldPressAButton = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool wouldMoveFocus = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down ||
                                event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    const bool onButton = qobject_cast<ImageButton*>(focusWidget()) != nullptr;
    if (wouldPressAButton || (wouldMoveFocus && !onButton))
        event->accept();
    else if (event->key() == Qt::Key_Backspace)
        BackBtn->click();
    else
        BandedForm::keyPressEvent(event);
}

} // namespace sprout
