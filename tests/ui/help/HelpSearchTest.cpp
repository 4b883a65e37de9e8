// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help/HelpSearch.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTextCursor>
#include <QTextDocument>

#include "ui/help/HelpPages.h"

namespace sprout {
namespace {

const QString kOnManyPages = QStringLiteral("microphone");

TEST(HelpSearch, FindsAWordOnAllPagesInTheirOrder)
{
    HelpSearch search;
    search.Look(kOnManyPages, 0);
    ASSERT_GT(search.Count(), 5);
    HelpHit before = search.Hit();
    int pages = 1;
    for (int hit = 1; hit < search.Count(); ++hit) {
        search.Next();
        EXPECT_EQ(search.Number(), hit);
        const HelpHit& now = search.Hit();
        EXPECT_TRUE(now.page > before.page || now.position > before.position) << hit;
        pages += now.page > before.page ? 1 : 0;
        before = now;
    }
    EXPECT_GT(pages, 2);
    search.Next();
    EXPECT_EQ(search.Number(), 0);
}

TEST(HelpSearch, TellsWhereTheWordStandsInThePagesDocument)
{
    HelpSearch search;
    search.Look(kOnManyPages, 0);
    for (int hit = 0; hit < search.Count(); ++hit, search.Next()) {
        const HelpHit& found = search.Hit();
        QFile file(QLatin1Char(':') + PageUrl(HelpPages()[static_cast<std::size_t>(found.page)]).path());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QTextDocument document;
        document.setHtml(QString::fromUtf8(file.readAll()));
        QTextCursor cursor(&document);
        cursor.setPosition(found.position);
        cursor.setPosition(found.position + found.length, QTextCursor::KeepAnchor);
        EXPECT_EQ(cursor.selectedText().toLower(), kOnManyPages);
    }
}

TEST(HelpSearch, BeginsAtTheGivenPageAndGoesRound)
{
    HelpSearch search;
    search.Look(kOnManyPages, 0);
    const int first = search.Hit().page;
    search.Look(kOnManyPages, first + 1);
    EXPECT_GT(search.Hit().page, first);
    EXPECT_GT(search.Number(), 0);
    search.Look(QStringLiteral("nobody has ever heard"), static_cast<int>(HelpPages().size()) - 1);
    ASSERT_EQ(search.Count(), 1);
    EXPECT_EQ(search.Number(), 0);
}

TEST(HelpSearch, TakesNoNoticeOfCapitalsAndBlanksAround)
{
    HelpSearch search;
    search.Look(kOnManyPages, 0);
    const int count = search.Count();
    search.Look(QStringLiteral("  MicroPhone "), 0);
    EXPECT_EQ(search.Word(), QStringLiteral("MicroPhone"));
    EXPECT_EQ(search.Count(), count);
}

TEST(HelpSearch, FindsNothingOfAnUnknownWordOrOfNone)
{
    HelpSearch search;
    for (const char* word : {"xylophonist", "", "   "}) {
        search.Look(QString::fromLatin1(word), 0);
        EXPECT_EQ(search.Count(), 0) << word;
        search.Next();
        EXPECT_EQ(search.Number(), 0) << word;
    }
}

} // namespace
} // namespace sprout
