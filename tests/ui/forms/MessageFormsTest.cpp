// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/MessageForms.h"

#include <gtest/gtest.h>

#include "core/Shared.h"
#include "support/FakeServices.h"
#include "support/TestFolder.h"
#include "ui/ModalSteps.h"

namespace sprout {
namespace {

QWidget& Part(QWidget& form, const char* name)
{
    return *form.findChild<QWidget*>(QString::fromLatin1(name));
}

/// Shows a form, clicks one of its buttons, and returns the result.
int ResultOf(BandedForm& form, const char* button)
{
    WithNextForm([button](BandedForm& shown) { Click(shown, button); });
    return form.ShowModal();
}

TEST(NotesForm, IsAsWideAsItsWidestNoteAndAMarginOf8)
{
    Msg1Btn2NoteFrm form(nullptr, Words::AsIs("Short"),
                         Words::AsIs("A note that is certainly wider than two hundred and thirty pixels"));
    EXPECT_EQ(form.width(), Part(form, "NoteLbl2").width() + 16);
}

TEST(NotesForm, KeepsItsText16PixelsFromTheEdge)
{
    const QString text = QStringLiteral("A note that is certainly wider than two hundred and thirty pixels");
    Msg1BtnFrm form(nullptr, Words::AsIs(text.toStdString()));
    const auto& note = static_cast<QLabel&>(Part(form, "NoteLbl"));
    EXPECT_GE(form.width(), note.fontMetrics().horizontalAdvance(text) + 32);
}

TEST(NotesForm, WrapsItsTextWhereASmallScreenWould)
{
    EXPECT_EQ(WidestNote(800), 640);
    EXPECT_EQ(WidestNote(1024), 816);
    EXPECT_EQ(WidestNote(1920), 816);
}

TEST(NotesForm, IsNoNarrowerThan230And250)
{
    EXPECT_EQ(Msg1BtnFrm(nullptr, Words::AsIs("Hi")).width(), 246);
    EXPECT_EQ(MsgYesNoFrm(nullptr, Words::AsIs("Hi"), {}).width(), 266);
    EXPECT_GE(SaveConfirmFrm(nullptr, "Hi").width(), 316);
}

TEST(NotesForm, CentresItsButtons)
{
    Msg1BtnFrm one(nullptr, Words::AsIs("A note"));
    const QRect ok = Part(one, "OkBtn").geometry();
    EXPECT_EQ(ok.left(), (one.width() - ok.width()) / 2);
    MsgYesNoFrm two(nullptr, Words::AsIs("A question"), {});
    const QRect yes = Part(two, "YesBtn").geometry();
    const QRect no = Part(two, "NoBtn").geometry();
    EXPECT_EQ(yes.top(), no.top());
    EXPECT_GE(no.left() - yes.right(), 6);
    EXPECT_NEAR(yes.left(), two.width() - 1 - no.right(), 1);
    EXPECT_GE(yes.width(), 96);
    EXPECT_GE(yes.height(), 44);
}

TEST(NotesForm, BreaksANoteThatIsWiderThanTheScreen)
{
    Msg1BtnFrm form(nullptr, Words::AsIs(std::string(100, 'a') + " " + std::string(100, 'b')));
    EXPECT_LE(form.width(), form.screen()->size().width());
    EXPECT_GT(Part(form, "NoteLbl").height(), 40);
    EXPECT_GT(Part(form, "OkBtn").y(), Part(form, "NoteLbl").geometry().bottom());
}

TEST(Msg3BtnFrm, Is1ForRecording2ForAWaveFileAnd0ForCancel)
{
    Msg3BtnFrm form(nullptr, Words::Text("Choose Audio Type to add:"));
    EXPECT_EQ(ResultOf(form, "StartRecordingBtn"), 1);
    EXPECT_EQ(ResultOf(form, "ChooseWavFileBtn"), 2);
    EXPECT_EQ(ResultOf(form, "CancelBtn"), 0);
}

TEST(SaveConfirmFrm, Is2ForYes1ForNoAnd0ForCancelAndAnyOtherClose)
{
    SaveConfirmFrm form(nullptr, "Zumi");
    EXPECT_EQ(ResultOf(form, "YesBtn"), 2);
    EXPECT_EQ(ResultOf(form, "NoBtn"), 1);
    EXPECT_EQ(ResultOf(form, "Cancel_Btn"), 0);
    EXPECT_EQ(ResultOf(form, "YesBtn"), 2);
    WithNextForm([](BandedForm& shown) { shown.close(); });
    EXPECT_EQ(form.ShowModal(), 0);
}

TEST(InputBoxFrm, StandsByItsNumberOfNotes)
{
    InputBoxFrm one(nullptr, "Zumi", Words::Text("Enter the new name:"), Words::Text(" "));
    EXPECT_EQ(one.height(), 151);
    EXPECT_EQ(Part(one, "InputTxt").y() - kBandHeight, 32);
    EXPECT_EQ(Part(one, "OkBtn").y() - kBandHeight, 74);
    InputBoxFrm two(nullptr, "Zumi", Words::Text("Enter the new name:"), Words::AsIs("It may hold letters."));
    EXPECT_EQ(two.height(), 176);
    EXPECT_EQ(Part(two, "InputTxt").y() - kBandHeight, 56);
    EXPECT_EQ(Part(two, "OkBtn").y() - kBandHeight, 98);
}

TEST(BandedForm, MovesWithItsBand)
{
    Msg1BtnFrm form(nullptr, Words::AsIs("A note"));
    form.move(100, 100);
    form.show();
    QTest::mousePress(&form, Qt::LeftButton, {}, QPoint(60, 10));
    QTest::mouseMove(&form, QPoint(90, 25));
    QTest::mouseRelease(&form, Qt::LeftButton, {}, QPoint(60, 10));
    EXPECT_EQ(form.pos(), QPoint(130, 115));
}

TEST(BandedForm, StandsInTheMiddleOfTheScreen)
{
    Msg1BtnFrm form(nullptr, Words::AsIs("A note"));
    QPoint middle;
    WithNextForm([&middle](BandedForm& shown) {
        middle = shown.geometry().center();
        Click(shown, "OkBtn");
    });
    form.ShowModal();
    const QPoint screenMiddle = form.screen()->availableGeometry().center();
    EXPECT_NEAR(middle.x(), screenMiddle.x(), 1);
    EXPECT_NEAR(middle.y(), screenMiddle.y(), 1);
}

class SongTitleFrmTest : public testing::Test {
protected:
    SongTitleFrmTest()
    {
        Shared().UserSongs = services.folder.Path() / "";
        Shared().Song.SongTitle = "Zumi";
    }

    QLineEdit& NameTxt() { return *form.findChild<QLineEdit*>(QStringLiteral("NameTxt")); }

    FakeServices services;
    SongTitleFrm form{nullptr, "Zumi", "Your name here"};
};

TEST_F(SongTitleFrmTest, PutsAnUnderscoreInPlaceOfWhatNoFileNameMayHold)
{
    NameTxt().clear();
    QTest::keyClicks(&NameTxt(), QStringLiteral("a/b.c|d\"e,f\\g:h*i?j<k>l"));
    EXPECT_EQ(form.Name(), "a_b_c_d_e,f_g_h_i_j_k_l");
}

TEST_F(SongTitleFrmTest, CleansTheTitleThatItIsFilledWith)
{
    const SongTitleFrm filled(nullptr, "AC/DC: live?", "Who? Me.");
    EXPECT_EQ(filled.Name(), "AC_DC_ live_");
    EXPECT_EQ(filled.CreatedBy(), "Who? Me.");
}

TEST_F(SongTitleFrmTest, KeepsTheCaretWhereItWas)
{
    NameTxt().setText(QStringLiteral("Rain"));
    NameTxt().setCursorPosition(2);
    QTest::keyClicks(&NameTxt(), QStringLiteral(":"));
    EXPECT_EQ(form.Name(), "Ra_in");
    EXPECT_EQ(NameTxt().cursorPosition(), 3);
}

TEST_F(SongTitleFrmTest, StaysOpenWithoutATitle)
{
    NameTxt().setText(QStringLiteral("  "));
    QLabel statusLbl;
    SetStatusLbl(&statusLbl);
    ShowHint(Words::AsIs("Before"));
    QString message;
    WithNextForm([&](BandedForm& shown) {
        WithNextForm([&](BandedForm& box) {
            EXPECT_EQ(statusLbl.text(), QString());
            message = box.findChild<QLabel*>(QStringLiteral("NoteLbl"))->text();
            Click(box, "OkBtn");
        });
        Click(shown, "OkBtn");
        EXPECT_TRUE(shown.isVisible());
        Click(shown, "CancelBtn");
    });
    EXPECT_EQ(form.ShowModal(), 0);
    EXPECT_EQ(message, QStringLiteral("Please enter the Song Title."));
}

TEST_F(SongTitleFrmTest, RefusesTheTitleOfAnotherSongThatIsThere)
{
    WriteBytes(services.folder.Path() / "Rain.TqSng", "x");
    NameTxt().setText(QStringLiteral("Rain"));
    QString messages;
    WithNextForm([&messages](BandedForm& shown) {
        WithNextForm([&messages](BandedForm& box) {
            messages = box.findChild<QLabel*>(QStringLiteral("NoteLbl1"))->text() + QLatin1Char('/') +
                       box.findChild<QLabel*>(QStringLiteral("NoteLbl2"))->text();
            Click(box, "OkBtn");
        });
        Click(shown, "OkBtn");
        EXPECT_TRUE(shown.isVisible());
        Click(shown, "CloseImgBtn");
    });
    EXPECT_EQ(form.ShowModal(), 0);
    EXPECT_EQ(messages, QStringLiteral("A song with this name already exists./Please type another name."));
}

TEST_F(SongTitleFrmTest, LetsTheOwnTitleInAnotherCasePass)
{
    WriteBytes(services.folder.Path() / "Zumi.TqSng", "x");
    NameTxt().setText(QStringLiteral("ZUMI"));
    EXPECT_EQ(ResultOf(form, "OkBtn"), 1);
    EXPECT_EQ(form.Name(), "ZUMI");
    EXPECT_EQ(form.CreatedBy(), "Your name here");
}

TEST_F(SongTitleFrmTest, ShowsTheHintsOfItsBoxes)
{
    QLabel statusLbl;
    SetStatusLbl(&statusLbl);
    form.show();
    QTest::mouseMove(&NameTxt(), QPoint(20, 10));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("You can change the name of this song here"));
    QTest::mouseMove(&Part(form, "CreatedTxt"), QPoint(20, 10));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("You can type your name here"));
    QTest::mouseMove(&form, QPoint(4, 120));
    EXPECT_EQ(statusLbl.text(), QString());
}

} // namespace
} // namespace sprout
