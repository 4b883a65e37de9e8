// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneNameFrm.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "support/FakeServices.h"
#include "ui/ModalSteps.h"
#include "ui/widgets/Hints.h"

namespace sprout {
namespace {

class TuneNameFrmTest : public testing::Test {
protected:
    TuneNameFrmTest() { SetStatusLbl(&statusLbl); }

    QLineEdit& Box(const char* name) { return *form.findChild<QLineEdit*>(QString::fromLatin1(name)); }

    FakeServices services;
    QLabel statusLbl;
    TuneNameFrm form{nullptr, {"Rain", "Ann"}};
};

TEST_F(TuneNameFrmTest, StartsWithTheGivenNames)
{
    EXPECT_EQ(form.Names(), (TuneNames{"Rain", "Ann"}));
    EXPECT_FALSE(form.NameOk);
    EXPECT_EQ(form.findChild<QLabel*>(QStringLiteral("CaptionLbl"))->text(), QStringLiteral(" Save Tune"));
}

TEST_F(TuneNameFrmTest, PutsAnUnderscoreInPlaceOfWhatNoFileNameMayHold)
{
    Box("NameTxt").clear();
    QTest::keyClicks(&Box("NameTxt"), QStringLiteral(".a/b\\c:d*e?f\"g<h>i|j,k"));
    EXPECT_EQ(form.Names().Name, "_a_b_c_d_e_f_g_h_i_j,k");
    Box("CreatedTxt").setText(QStringLiteral("A. Smith"));
    EXPECT_EQ(form.Names().CreatedBy, "A. Smith");
}

TEST_F(TuneNameFrmTest, KeepsTheCaretWhereItWas)
{
    Box("NameTxt").setCursorPosition(2);
    QTest::keyClicks(&Box("NameTxt"), QStringLiteral("|"));
    EXPECT_EQ(form.Names().Name, "Ra_in");
    EXPECT_EQ(Box("NameTxt").cursorPosition(), 3);
}

TEST_F(TuneNameFrmTest, StaysOpenWithoutAName)
{
    Box("NameTxt").setText(QStringLiteral("   "));
    ShowHint(Words::AsIs("A hint"));
    std::string note;
    WithNextForm([&note](BandedForm& shown) {
        WithNextForm([&note](BandedForm& message) {
            note = message.findChild<QLabel*>(QStringLiteral("NoteLbl"))->text().toStdString();
            Click(message, "OkBtn");
        });
        Click(shown, "OkBtn");
        EXPECT_TRUE(shown.isVisible());
        Click(shown, "CancelBtn");
    });
    form.ShowModal();
    EXPECT_EQ(note, "Please enter a Tune name.");
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_FALSE(form.NameOk);
}

TEST_F(TuneNameFrmTest, IsOkOnlyByItsButton)
{
    WithNextForm([](BandedForm& shown) { shown.close(); });
    form.ShowModal();
    EXPECT_FALSE(form.NameOk);
    WithNextForm([](BandedForm& shown) { QTest::keyClick(&shown, Qt::Key_Return); });
    form.ShowModal();
    EXPECT_TRUE(form.NameOk);
}

TEST_F(TuneNameFrmTest, ShowsItsHints)
{
    form.show();
    QTest::mouseMove(&Box("NameTxt"), QPoint(5, 5));
    QTest::mouseMove(&Box("NameTxt"), QPoint(6, 6));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Type the name of this Tune here"));
    QTest::mouseMove(&Box("CreatedTxt"), QPoint(5, 5));
    QTest::mouseMove(&Box("CreatedTxt"), QPoint(6, 6));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("You can type your name here"));
}

} // namespace
} // namespace sprout
