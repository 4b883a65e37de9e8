// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/words/QtText.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

#include <string_view>

namespace sprout {
namespace {

/// A language of one sentence.
class OneSentence : public QTranslator {
public:
    OneSentence() { QCoreApplication::installTranslator(this); }
    OneSentence(const OneSentence&) = delete;
    OneSentence& operator=(const OneSentence&) = delete;
    ~OneSentence() override { QCoreApplication::removeTranslator(this); }

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* text, const char* /*comment*/,
                                    int /*count*/) const override
    {
        const bool isOurs = std::string_view(context) == "Words" && std::string_view(text) == "The song \"%1\"";
        return isOurs ? QStringLiteral("„%1“, das Lied") : QString();
    }
};

TEST(QtText, GivesTheEnglishWithoutATranslation)
{
    EXPECT_EQ(QtText(Words::Text("The song \"%1\"", "Zürich")), QStringLiteral("The song \"Zürich\""));
}

TEST(QtText, LooksTheWordsUpWhenTheyAreShown)
{
    const Words words = Words::Text("The song \"%1\"", "%1");
    const OneSentence language;
    EXPECT_EQ(QtText(words), QStringLiteral("„%1“, das Lied"));
    EXPECT_EQ(QtText(Words::AsIs("Another sentence")), QStringLiteral("Another sentence"));
}

TEST(QtText, LooksUpNoTextFromOutside)
{
    const OneSentence language;
    EXPECT_EQ(QtText(Words::AsIs("The song \"%1\"")), QStringLiteral("The song \"%1\""));
}

TEST(ShownText, KeepsBytesThatAreNoUtf8)
{
    const OneSentence language;
    EXPECT_EQ(ShownText(Words::Text("The song \"%1\"", "a\xFFz")), "„a\xFFz“, das Lied");
}

} // namespace
} // namespace sprout
