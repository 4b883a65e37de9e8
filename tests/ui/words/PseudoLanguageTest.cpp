// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/words/PseudoLanguage.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLabel>

#include "ui/words/QtText.h"
#include "ui/words/Texts.h"

namespace sprout {
namespace {

class PseudoLanguageTest : public testing::Test {
protected:
    PseudoLanguageTest() { QCoreApplication::installTranslator(&language); }
    PseudoLanguageTest(const PseudoLanguageTest&) = delete;
    PseudoLanguageTest& operator=(const PseudoLanguageTest&) = delete;
    ~PseudoLanguageTest() override { QCoreApplication::removeTranslator(&language); }

    PseudoLanguage language;
};

TEST_F(PseudoLanguageTest, TranslatesWordsButNotWhatTheUserWrote)
{
    QLabel label;
    SetText(label, Words::Text("Overwrite?"));
    EXPECT_EQ(label.text().toStdString(), "[Övêêrwrîîtêê?~]");
    SetText(label, Words::AsIs("Overwrite?"));
    EXPECT_EQ(label.text().toStdString(), "Overwrite?");
    EXPECT_EQ(QtText(Words::Text("Track %1, %2", 3, "Save")).toStdString(), "[Trààçk 3, Save~~]");
}

TEST_F(PseudoLanguageTest, LeavesQtItsOwnTexts)
{
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel").toStdString(), "Cancel");
}

} // namespace
} // namespace sprout
