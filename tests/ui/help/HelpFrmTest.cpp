// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help/HelpFrmTest.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>

#include <string>
#include <utility>
#include <vector>

#include "ui/forms/Dialogs.h"
#include "ui/forms/MessageForms.h"
#include "ui/help/HelpPages.h"

namespace sprout {
namespace {

TEST_F(HelpFrmTest, OpensAtItsFirstPage)
{
    HelpFrm& help = Open();
    EXPECT_EQ(help.findChild<QLabel*>(QStringLiteral("CaptionLbl"))->text(), QStringLiteral(" Help"));
    EXPECT_EQ(Shown(help), QStringLiteral("Welcome"));
    EXPECT_EQ(Marked(help), QStringLiteral("Welcome"));
    EXPECT_FALSE(help.isModal());
}

TEST_F(HelpFrmTest, EveryPageOfTheListIsThere)
{
    HelpFrm& help = Open();
    ASSERT_EQ(Pages(help).count(), static_cast<int>(HelpPages().size()));
    for (int row = 0; row < Pages(help).count(); ++row) {
        ClickPage(help, row);
        EXPECT_EQ(Shown(help), Pages(help).item(row)->text());
        EXPECT_EQ(Marked(help), Shown(help));
        EXPECT_GT(Book(help).toPlainText().size(), 300) << row;
    }
}

TEST_F(HelpFrmTest, EveryTitleHasRoomBesideAScrollBar)
{
    const QListWidget& pages = Pages(Open());
    const int room = pages.contentsRect().width() - pages.verticalScrollBar()->sizeHint().width();
    EXPECT_LE(pages.sizeHintForColumn(0), room);
}

TEST_F(HelpFrmTest, EveryLinkAndEveryPictureOfItsPagesIsThere)
{
    HelpFrm& help = Open();
    const QRegularExpression references(QStringLiteral("(src|href)=[\"']([^\"']+)[\"']"));
    for (int row = 0; row < Pages(help).count(); ++row) {
        ClickPage(help, row);
        QFile file(QLatin1Char(':') + Book(help).source().path());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        auto found = references.globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext()) {
            const QRegularExpressionMatch reference = found.next();
            const QUrl target(reference.captured(2));
            if (reference.captured(1) == QStringLiteral("href"))
                EXPECT_TRUE(target.path().isEmpty() || QFile::exists(QStringLiteral(":/help/") + target.path()))
                    << target.path().toStdString();
            else
                EXPECT_FALSE(Book(help).loadResource(QTextDocument::ImageResource, target).value<QPixmap>().isNull())
                    << reference.captured(2).toStdString();
        }
    }
}

TEST_F(HelpFrmTest, EveryTopicFitsOnOneScreen)
{
    HelpFrm& help = Open();
    const int room = Book(help).viewport()->height();
    for (int row = 0; row < Pages(help).count(); ++row) {
        ClickPage(help, row);
        const QTextDocument& page = *Book(help).document();
        std::vector<std::pair<QString, qreal>> topics;
        for (QTextBlock block = page.begin(); block.isValid(); block = block.next())
            if (block.blockFormat().headingLevel() > 0)
                topics.emplace_back(block.text(), page.documentLayout()->blockBoundingRect(block).top());
        ASSERT_FALSE(topics.empty()) << row;
        topics.emplace_back(QString(), page.size().height());
        for (std::size_t topic = 0; topic + 1 < topics.size(); ++topic)
            EXPECT_LE(topics[topic + 1].second - topics[topic].second, room)
                << topics[topic].first.toStdString() << " of " << Shown(help).toStdString();
    }
}

TEST_F(HelpFrmTest, F1OpensThePageOfEachWindow)
{
    for (const HelpOfWindow& about : HelpOfWindows()) {
        const std::string name = about.window;
        if (name == "MainFrm" || name == "TunFramPic" || name == "HelpFrm") // no forms, or the help itself
            continue;
        BandedForm form(nullptr);
        form.setObjectName(QString::fromStdString(name));
        form.show();
        const std::string title = HelpPageOpenedBy(form, [&form] { QTest::keyClick(&form, Qt::Key_F1); });
        EXPECT_EQ(title, HelpPages()[static_cast<std::size_t>(PageAbout(&form))].title.English()) << name;
    }
}

TEST_F(HelpFrmTest, F1TurnsAnOpenHelpToThePageOfTheWindow)
{
    HelpFrm& help = Open();
    BandedForm form(nullptr);
    form.setObjectName(QStringLiteral("SongSelFrm"));
    form.show();
    QApplication::setActiveWindow(&form);
    QTest::keyClick(&form, Qt::Key_F1);
    EXPECT_EQ(OpenedHelp(), &help);
    EXPECT_EQ(Shown(help), QStringLiteral("Your songs"));
    Click(help, "BackBtn");
    EXPECT_EQ(Shown(help), QStringLiteral("Welcome"));
    QApplication::setActiveWindow(&help);
    QTest::keyClick(&Book(help), Qt::Key_F1);
    EXPECT_EQ(Shown(help), QStringLiteral("This help"));
    delete OpenedHelp();
}

TEST_F(HelpFrmTest, BackGoesTheWayThatWasCome)
{
    HelpFrm& help = Open();
    auto* back = help.findChild<ImageButton*>(QStringLiteral("BackBtn"));
    EXPECT_FALSE(back->isEnabled());
    ClickPage(help, 2);
    ClickPage(help, 3);
    Click(help, "BackBtn");
    EXPECT_EQ(Marked(help), QStringLiteral("Painting"));
    QTest::keyClick(&help, Qt::Key_Backspace);
    EXPECT_EQ(Shown(help), QStringLiteral("Welcome"));
    EXPECT_EQ(Marked(help), QStringLiteral("Welcome"));
    EXPECT_FALSE(back->isEnabled());
}

TEST_F(HelpFrmTest, ALinkIsFollowedWithKeys)
{
    HelpFrm& help = Open();
    HelpBook& book = Book(help);
    ASSERT_TRUE(book.hasFocus());
    QTest::keyClick(&book, Qt::Key_Tab);
    QTest::keyClick(&book, Qt::Key_Return);
    EXPECT_EQ(Shown(help), QStringLiteral("Painting"));
    EXPECT_EQ(Marked(help), QStringLiteral("Painting"));
}

TEST_F(HelpFrmTest, ArrowsMoveThePageAndEnterDoesNothing)
{
    HelpFrm& help = Open();
    HelpBook& book = Book(help);
    QTest::keyClick(&book, Qt::Key_Down);
    EXPECT_GT(book.verticalScrollBar()->value(), 0);
    QTest::keyClick(&book, Qt::Key_Up);
    QTest::keyClick(&book, Qt::Key_Up);
    QTest::keyClick(&book, Qt::Key_Return);
    EXPECT_EQ(book.verticalScrollBar()->value(), 0);
    EXPECT_TRUE(book.hasFocus());
    EXPECT_TRUE(help.isVisible());
}

TEST_F(HelpFrmTest, ArrowsGoThroughTheListOfPages)
{
    HelpFrm& help = Open();
    Pages(help).setFocus();
    QTest::keyClick(&Pages(help), Qt::Key_Down);
    EXPECT_EQ(Shown(help), QStringLiteral("The big window"));
}

TEST_F(HelpFrmTest, IsOneWindowHoweverOftenItIsCalled)
{
    HelpFrm& help = Open();
    ClickPage(help, 3);
    QWidget unknown; // has no page of its own, so the reader stays on the same one
    unknown.show();
    QApplication::setActiveWindow(&unknown);
    EXPECT_EQ(&Open(), &help);
    EXPECT_EQ(Shown(help), QStringLiteral("Playing"));
    delete OpenedHelp();
}

TEST_F(HelpFrmTest, EscapeAndCloseEndItAndItRemembersNothing)
{
    for (const bool byKey : {true, false}) {
        HelpFrm& help = Open();
        ClickPage(help, 4);
        if (byKey)
            QTest::keyClick(&Book(help), Qt::Key_Escape);
        else
            Click(help, "CloseBtn");
        EXPECT_EQ(OpenedHelp(), nullptr);
        EXPECT_EQ(Shown(Open()), QStringLiteral("Welcome"));
        delete OpenedHelp();
    }
}

TEST_F(HelpFrmTest, CanBeUsedWhileAModalFormWaitsThatItWasCalledFrom)
{
    QString shown;
    QString shownFirst;
    bool formWaits = false;
    WithNextForm([&](BandedForm& question) {
        QTest::keyClick(&question, Qt::Key_F1);
        QApplication::processEvents();
        HelpFrm& help = *OpenedHelp();
        shownFirst = Shown(help);
        ClickPage(help, 3);
        shown = Shown(help);
        formWaits = question.isVisible();
        Click(question, "YesBtn");
    });
    EXPECT_EQ(AskYesNo(Words::AsIs("Overwrite?")), 1);
    EXPECT_TRUE(formWaits);
    EXPECT_EQ(shownFirst, QStringLiteral("Messages"));
    EXPECT_EQ(shown, QStringLiteral("Playing"));
    ASSERT_NE(OpenedHelp(), nullptr); // it outlives the form
    ClickPage(*OpenedHelp(), 4);
    EXPECT_EQ(Shown(*OpenedHelp()), QStringLiteral("Tracks"));
}

TEST_F(HelpFrmTest, CanBeUsedWhileModalFormsWaitThatCameLater)
{
    HelpFrm& help = Open();
    QStringList shown;
    WithNextForm([&](BandedForm& question) {
        QApplication::processEvents();
        ClickPage(help, 2);
        shown.push_back(Shown(help));
        WithNextForm([&](BandedForm& onTop) {
            QApplication::processEvents();
            ClickPage(help, 3);
            shown.push_back(Shown(help));
            Click(onTop, "OkBtn");
        });
        ShowMessage(Words::AsIs("On top."));
        QApplication::processEvents();
        ClickPage(help, 4);
        shown.push_back(Shown(help));
        Click(question, "YesBtn");
    });
    EXPECT_EQ(AskYesNo(Words::AsIs("Below?")), 1);
    EXPECT_EQ(shown.join(QLatin1Char('/')), QStringLiteral("Painting/Playing/Tracks"));
    EXPECT_EQ(OpenedHelp(), &help);
}

TEST_F(HelpFrmTest, StaysInFrontOfTheWindowThatItWasCalledFrom)
{
    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    const HelpFrm& help = Open();
    EXPECT_EQ(help.windowHandle()->transientParent(), window.windowHandle());
    const QWindow* duringTheQuestion = nullptr;
    QWindow* questionWindow = nullptr;
    WithNextForm([&](BandedForm& question) {
        QApplication::processEvents();
        questionWindow = question.windowHandle();
        duringTheQuestion = help.windowHandle()->transientParent();
        Click(question, "YesBtn");
    });
    QApplication::setActiveWindow(&window);
    EXPECT_EQ(AskYesNo(Words::AsIs("Below?")), 1);
    QApplication::processEvents();
    EXPECT_EQ(duringTheQuestion, questionWindow);
    EXPECT_EQ(help.windowHandle()->transientParent(), window.windowHandle());
    delete OpenedHelp();
}

TEST_F(HelpFrmTest, CanBeClosedWhileAModalFormWaits)
{
    Open();
    WithNextForm([&](BandedForm& message) {
        QApplication::processEvents();
        QWidget& close = *OpenedHelp()->findChild<QWidget*>(QStringLiteral("CloseBtn"));
        ClickThroughWindow(close, close.rect().center());
        QApplication::processEvents();
        EXPECT_EQ(OpenedHelp(), nullptr);
        Click(message, "OkBtn");
    });
    ShowMessage(Words::AsIs("Still here."));
}

TEST_F(HelpFrmTest, OwnsNoQuestionThatIsAskedWhileItIsInFront)
{
    HelpFrm& help = Open();
    QApplication::setActiveWindow(&help);
    EXPECT_EQ(WindowInFront(), nullptr);
    QWidget* owner = &help;
    WithNextForm([&owner](BandedForm& message) {
        owner = message.parentWidget();
        Click(message, "OkBtn");
    });
    ShowMessage(Words::AsIs("The sound has ended."));
    EXPECT_EQ(owner, nullptr);
}

TEST_F(HelpFrmTest, DoesNotKeepTheProgramRunning)
{
    EXPECT_FALSE(Open().testAttribute(Qt::WA_QuitOnClose));
}

} // namespace
} // namespace sprout
