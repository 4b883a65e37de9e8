// SPDX-License-Identifier: GPL-3.0-or-later
#include <set>
#include <string>

#include "ui/help/HelpFrmTest.h"

namespace sprout {
namespace {

class HelpFrmSearchTest : public HelpFrmTest {};

TEST_F(HelpFrmSearchTest, SearchesAllPagesWithKeys)
{
    HelpFrm& help = Open();
    QApplication::setActiveWindow(&help);
    QTest::keyClick(&Book(help), Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(Box(help).hasFocus());
    QTest::keyClicks(&Box(help), QStringLiteral("microphone"));
    const std::string first = Found(help);
    EXPECT_EQ(first.rfind("Place 1 of ", 0), 0U) << first;
    EXPECT_EQ(MarkedWord(help), "microphone");
    EXPECT_EQ(Box(help).accessibleDescription().toStdString(), first);
    const int count = std::stoi(first.substr(first.rfind(' ')));
    std::set<QString> pages;
    for (int place = 2; place <= count; ++place) {
        QTest::keyClick(&Box(help), Qt::Key_Return);
        EXPECT_EQ(Found(help), "Place " + std::to_string(place) + " of " + std::to_string(count));
        EXPECT_EQ(QString::fromStdString(MarkedWord(help)).toLower(), QStringLiteral("microphone"));
        const QRect word = Book(help).cursorRect();
        EXPECT_TRUE(Book(help).viewport()->rect().contains(word)) << place;
        EXPECT_EQ(Shown(help), Marked(help));
        pages.insert(Shown(help));
    }
    EXPECT_GT(pages.size(), 2U);
    QTest::keyClick(&Box(help), Qt::Key_Enter);
    EXPECT_EQ(Found(help), first);
    EXPECT_TRUE(help.isVisible());
    EXPECT_TRUE(Box(help).hasFocus());
}

TEST_F(HelpFrmSearchTest, SearchesWithClicks)
{
    HelpFrm& help = Open();
    ClickThroughWindow(Box(help), Box(help).rect().center());
    ASSERT_TRUE(Box(help).hasFocus());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("leaf"));
    const std::string first = Found(help);
    EXPECT_EQ(MarkedWord(help), "leaf");
    QWidget& findBtn = *help.findChild<QWidget*>(QStringLiteral("FindBtn"));
    ClickThroughWindow(findBtn, findBtn.rect().center());
    EXPECT_NE(Found(help), first);
    EXPECT_EQ(MarkedWord(help), "leaf");
}

TEST_F(HelpFrmSearchTest, TellsInWordsThatNothingIsFound)
{
    HelpFrm& help = Open();
    QTest::keyClicks(&Box(help), QStringLiteral("xylo"));
    EXPECT_EQ(Found(help), "I found nothing about \"xylo\". Try another word.");
    EXPECT_EQ(Box(help).accessibleDescription().toStdString(), Found(help));
    EXPECT_EQ(MarkedWord(help), "");
    QTest::keyClick(&Box(help), Qt::Key_Return);
    EXPECT_EQ(Found(help), "I found nothing about \"xylo\". Try another word.");
    EXPECT_EQ(Shown(help), QStringLiteral("Welcome"));
    Box(help).selectAll();
    QTest::keyClick(&Box(help), Qt::Key_Backspace);
    EXPECT_EQ(Found(help), "");
    Click(help, "FindBtn");
    EXPECT_TRUE(Box(help).hasFocus());
}

TEST_F(HelpFrmSearchTest, AnotherPageHasNoMark)
{
    HelpFrm& help = Open();
    QTest::keyClicks(&Box(help), QStringLiteral("paint"));
    EXPECT_EQ(Shown(help), QStringLiteral("Welcome")); // it stays where the word is
    EXPECT_NE(MarkedWord(help), "");
    ClickPage(help, 5);
    EXPECT_EQ(MarkedWord(help), "");
}

TEST_F(HelpFrmSearchTest, TabGoesFromTheBoxToThePages)
{
    HelpFrm& help = Open();
    Box(help).setFocus();
    EXPECT_FALSE(Box(help).accessibleName().isEmpty());
    QTest::keyClick(&Box(help), Qt::Key_Tab);
    EXPECT_TRUE(Pages(help).hasFocus());
    QTest::keyClick(&Pages(help), Qt::Key_Tab);
    EXPECT_TRUE(Book(help).hasFocus());
}

} // namespace
} // namespace sprout
