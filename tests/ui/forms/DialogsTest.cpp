// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/Dialogs.h"

#include <gtest/gtest.h>

#include "ui/ModalSteps.h"
#include "ui/forms/MessageForms.h"
#include "ui/forms/QtMessages.h"

namespace sprout {
namespace {

QString TextOf(const QWidget& form, const char* label)
{
    return form.findChild<QLabel*>(QString::fromLatin1(label))->text();
}

struct Seen {
    QString form;
    QString caption;
};

/// Keeps which form comes next and its caption, and clicks one of its buttons.
void ClickNext(Seen& seen, const char* button)
{
    WithNextForm([&seen, button](BandedForm& form) {
        seen = {form.objectName(), TextOf(form, "CaptionLbl")};
        Click(form, button);
    });
}

TEST(ShowMessage, UsesTheFormOfOneNoteForABlankSecondLine)
{
    Seen seen;
    ClickNext(seen, "OkBtn");
    ShowMessage(Words::Text("Song not selected."), Words::AsIs("  "), Words::Text(" "));
    EXPECT_EQ(seen.form, QStringLiteral("Msg1BtnFrm"));
    EXPECT_EQ(seen.caption, QStringLiteral(" Tonquill Sprout Painter"));
}

TEST(ShowMessage, UsesTheFormOfTwoNotesAndPutsABlankBeforeTheTitle)
{
    Seen seen;
    ClickNext(seen, "OkBtn");
    ShowMessage(Words::AsIs("Your song \"Zumi\" is saved."), Words::AsIs("Well done."), Words::Text("Good!"));
    EXPECT_EQ(seen.form, QStringLiteral("Msg1Btn2NoteFrm"));
    EXPECT_EQ(seen.caption, QStringLiteral(" Good!"));
}

TEST(AskYesNo, Is1ForYesAnd0ForNoCloseBoxAndEscape)
{
    Seen seen;
    ClickNext(seen, "YesBtn");
    EXPECT_EQ(AskYesNo(Words::Text("Do you want to delete this song?"), Words::AsIs("Zumi")), 1);
    EXPECT_EQ(seen.form, QStringLiteral("MsgYesNoFrm"));
    ClickNext(seen, "NoBtn");
    EXPECT_EQ(AskYesNo(Words::Text("Do you want to delete this song?"), Words::AsIs("Zumi")), 0);
    ClickNext(seen, "CloseImgBtn");
    EXPECT_EQ(AskYesNo(Words::Text("Do you want to delete this song?"), Words::AsIs("Zumi")), 0);
    WithNextForm([](BandedForm& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    EXPECT_EQ(AskYesNo(Words::Text("Do you want to delete this song?"), Words::AsIs("Zumi")), 0);
}

TEST(AskYesNo, IsAnsweredWithArrowsTabAndEnter)
{
    WithNextForm([](BandedForm& form) { QTest::keyClick(form.focusWidget(), Qt::Key_Return); });
    EXPECT_EQ(AskYesNo(Words::AsIs("Overwrite?")), 0) << "the answer that loses nothing has the focus";
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Backtab}) {
        int onYes = -1;
        WithNextForm([key, &onYes](BandedForm& form) {
            QTest::keyClick(form.focusWidget(), key);
            onYes = form.focusWidget()->objectName() == QStringLiteral("YesBtn");
            QTest::keyClick(form.focusWidget(), Qt::Key_Return);
        });
        EXPECT_EQ(AskYesNo(Words::AsIs("Overwrite?")), 1);
        EXPECT_EQ(onYes, 1);
    }
}

TEST(AskYesNo, IsNotAnsweredByAnEnterHeldDownSinceBefore)
{
    WithNextForm([](BandedForm& form) {
        for (QWidget* target : {form.focusWidget(), static_cast<QWidget*>(&form)}) {
            RepeatKey(*target, Qt::Key_Return);
            EXPECT_TRUE(form.isVisible()) << target->objectName().toStdString();
        }
        Click(form, "NoBtn");
    });
    EXPECT_EQ(AskYesNo(Words::AsIs("Overwrite?")), 0);
}

TEST(AskYesNo, HasTheTimerOfItsRaisedButtonsOnFromTheStart)
{
    WithNextForm([](BandedForm& form) {
        EXPECT_TRUE(form.findChild<QTimer*>(QStringLiteral("ButtonAllOffTimer"))->isActive());
        Click(form, "NoBtn");
    });
    EXPECT_EQ(AskYesNo(Words::AsIs("Overwrite?")), 0);
}

TEST(AskText, ReturnsTheTextOnOkAndNothingElse)
{
    WithNextForm([](BandedForm& form) {
        auto* box = form.findChild<QLineEdit*>(QStringLiteral("InputTxt"));
        EXPECT_EQ(box->text(), QStringLiteral("Zumi"));
        QTest::keyClicks(box, QStringLiteral("Rain")); // the old text is selected and is replaced
        Click(form, "OkBtn");
    });
    EXPECT_EQ(AskText("Zumi", Words::Text("Enter the new name:")), "Rain");
    Seen seen;
    ClickNext(seen, "CancelBtn");
    EXPECT_EQ(AskText("Zumi", Words::Text("Enter the new name:")), "");
    WithNextForm([](BandedForm& form) {
        QTest::keyClick(form.findChild<QWidget*>(QStringLiteral("InputTxt")), Qt::Key_Return);
    });
    EXPECT_EQ(AskText("Zumi", Words::Text("Enter the new name:")), "Zumi");
}

TEST(AskText, GoesFromTheBoxToOkAndCancelByTab)
{
    QStringList reached;
    WithNextForm([&reached](BandedForm& form) {
        for (int i = 0; i < 4; ++i) {
            reached << form.focusWidget()->objectName();
            QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
        }
        Click(form, "CancelBtn");
    });
    EXPECT_EQ(AskText("Zumi", Words::Text("Enter the new name:")), "");
    EXPECT_EQ(reached.join(QLatin1Char(' ')), QStringLiteral("InputTxt OkBtn CancelBtn InputTxt"));
}

TEST(ShowMessage, StacksOnAnotherModalForm)
{
    int answers = 0;
    WithNextForm([&answers](BandedForm& question) {
        WithNextForm([&](BandedForm& message) {
            EXPECT_NE(&message, &question);
            ++answers;
            Click(message, "OkBtn");
        });
        ShowMessage(Words::AsIs("On top."));
        ++answers;
        Click(question, "YesBtn");
    });
    EXPECT_EQ(AskYesNo(Words::AsIs("Below?")), 1);
    EXPECT_EQ(answers, 2);
}

TEST(QtMessages, ShowsATitledBoxOfSeveralLines)
{
    QString text;
    Seen seen;
    WithNextForm([&](BandedForm& form) {
        text = TextOf(form, "NoteLbl");
        seen = {form.objectName(), TextOf(form, "CaptionLbl")};
        EXPECT_NE(form.findChild<QLabel*>(QStringLiteral("IconImg")), nullptr);
        Click(form, "OkBtn");
    });
    QtMessages().MessageBox(Words::Text("Play Failed"), Words::AsIs("Could not Play Sound\nDriver busy or not ready"),
                            MessageIcon::Exclamation);
    EXPECT_EQ(text, QStringLiteral("Could not Play Sound\nDriver busy or not ready"));
    EXPECT_EQ(seen.caption, QStringLiteral(" Play Failed"));
}

TEST(QtMessages, ShowsAnUntitledBox)
{
    Seen seen;
    ClickNext(seen, "OkBtn");
    QtMessages().MessageBox({}, Words::Text("Error Loading File"), MessageIcon::None);
    EXPECT_EQ(seen.form, QStringLiteral("PlainBoxFrm"));
    EXPECT_EQ(seen.caption, QString());
}

} // namespace
} // namespace sprout
