// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help/HelpFrm.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QSignalBlocker>
#include <QWindow>

#include <algorithm>
#include <array>

#include "ui/forms/Dialogs.h"
#include "ui/help/HelpBook.h"
#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/words/QtText.h"

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

struct HelpPage {
    const char* file;
    LaterWords title;
    const char* picture;
};

constexpr std::array kHelpPages{
    HelpPage{"welcome", Words::Later("Welcome"), "pictures/Sprout"},
    HelpPage{"painting", Words::Later("Painting"), "buttons/BrushBtn"},
    HelpPage{"playing", Words::Later("Playing"), "buttons/PlayAllBtn"},
    HelpPage{"tracks", Words::Later("Tracks and tunes"), "buttons/TrackAddBtn"},
    HelpPage{"recording", Words::Later("Recording"), "buttons/TrackAddRecBtn"},
    HelpPage{"editor", Words::Later("Changing a sound"), "buttons/TrackAudioBtn"},
    HelpPage{"songs", Words::Later("Your songs"), "buttons/SaveBtn"},
    HelpPage{"sharing", Words::Later("Taking songs home"), "buttons/EmailBtn"},
    HelpPage{"keys", Words::Later("Keys"), "pictures/HelpKeys"},
};

QUrl PageUrl(const HelpPage& page)
{
    return QUrl(QStringLiteral("qrc:/help/%1.html").arg(QLatin1String(page.file)));
}

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

} // namespace

void ShowHelp()
{
    QPointer<HelpFrm>& help = OpenHelp();
    if (!help || help->isHidden()) { // a closed one deletes itself
        help = new HelpFrm;
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, help, [] { delete OpenHelp(); });
        help->show();
    }
    help->raise();
    help->activateWindow();
}

HelpFrm::HelpFrm()
    : BandedForm(nullptr), opener(BaseOf(WindowInFront())), PagesLst(new QListWidget(this)), BookTxt(new HelpBook(this))
{
    setObjectName(QStringLiteral("HelpFrm"));
    setProperty(kStandsBeside, true);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    SetCaption(Words::Text(" Help"));
    MakePages();
    MakeBook();
    MakeButtons();
    PlaceControls();
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
    for (const HelpPage& page : kHelpPages)
        new QListWidgetItem(PageIcon(page), QtText(Words(page.title)), PagesLst);
    connect(PagesLst, &QListWidget::currentRowChanged, this, &HelpFrm::ShowPage);
}

void HelpFrm::MakeBook()
{
    BookTxt->setObjectName(QStringLiteral("BookTxt"));
    BookTxt->setAccessibleName(QtText(Words::Text("Help page")));
    connect(BookTxt, &QTextBrowser::sourceChanged, this, &HelpFrm::MarkPage);
}

void HelpFrm::MakeButtons()
{
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
    const int bookHeight = size.height() - kBandHeight - kButtonRowHeight - 3 * kHelpMargin;
    const int pagesWidth = std::clamp(PagesLst->sizeHintForColumn(0) + kBesideThePages, kPagesWidth, kMostPagesWidth);
    PagesLst->setGeometry({BodyPoint(kHelpMargin, kHelpMargin), QSize(pagesWidth, bookHeight)});
    const int bookLeft = 2 * kHelpMargin + pagesWidth;
    BookTxt->setGeometry({BodyPoint(bookLeft, kHelpMargin), QSize(size.width() - bookLeft - kHelpMargin, bookHeight)});
    PlaceButtons(size.width(), bookHeight + 2 * kHelpMargin);
    // At the screen's edge, to cover little of what the user asks about.
    move(std::max(screenRect.right() - width() - kScreenEdge, screenRect.left()), screenRect.top() + kScreenEdge);
}

void HelpFrm::ShowPage(int row)
{
    const HelpPage& page = kHelpPages[static_cast<std::size_t>(std::max(row, 0))];
    if (BookTxt->source().adjusted(QUrl::RemoveFragment) != PageUrl(page))
        BookTxt->setSource(PageUrl(page));
}

/// Marks the page that the book shows, however it was reached.
void HelpFrm::MarkPage(const QUrl& source)
{
    const QUrl shown = source.adjusted(QUrl::RemoveFragment);
    const auto* page = std::find_if(kHelpPages.begin(), kHelpPages.end(),
                                    [&shown](const HelpPage& candidate) { return PageUrl(candidate) == shown; });
    const QSignalBlocker quiet(PagesLst);
    PagesLst->setCurrentRow(page == kHelpPages.end() ? -1 : static_cast<int>(page - kHelpPages.begin()));
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
