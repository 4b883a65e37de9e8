// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/Recd_Frm.h"

#include <QAccessible>

#include "recording/RecdFrmFixture.h"
#include "ui/FormAnswers.h"

namespace sprout {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class RecdFrmTest : public RecdFrmFixture {};

TEST_F(RecdFrmTest, HasTheProgramsNameInItsTitle)
{
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Tonquill Sprout Painter - Record Audio"));
    form->show(); // until then there is no room for it
    EXPECT_EQ(Text("CaptionLbl"), " Tonquill Sprout Painter - Record Audio");
}

TEST_F(RecdFrmTest, FitsOnASmallScreen)
{
    EXPECT_LE(form->width(), 640);
    EXPECT_LE(form->height(), 480);
    for (const auto* child : form->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        EXPECT_TRUE(form->rect().contains(child->geometry())) << child->objectName().toStdString();
}

TEST_F(RecdFrmTest, HasTheBirdAboveTheSourceAndTheSourceAboveItsVolume)
{
    const std::vector<std::pair<const char*, QRect>> places = {
        {"AnimImg0", {16, 10, 128, 128}},        {"AnimImg1", {16, 10, 128, 128}},
        {"Microphone", {16, 194, 32, 32}},       {"MixerRecSrcCmb", {58, 192, 462, 36}},
        {"RecSrcBtn2", {536, 186, 48, 48}},      {"MicrophoneVolume", {16, 254, 32, 32}},
        {"VolumeSliderImg", {58, 250, 380, 40}}, {"VolumeLbl", {450, 250, 70, 40}},
        {"RecSrcBtn1", {536, 246, 48, 48}},
    };
    for (const auto& [name, place] : places)
        EXPECT_EQ(Place(name), place) << name;
}

TEST_F(RecdFrmTest, CentresItsAnswersInTheLastRow)
{
    const QRect finish = Place("RecFinishBtn");
    const QRect cancel = Place("Cancel_Btn");
    EXPECT_EQ(finish.top(), 312);
    EXPECT_EQ(cancel.top(), 312);
    EXPECT_EQ(cancel.left() - (finish.right() + 1), 16);
    EXPECT_NEAR(finish.left(), form->width() - (cancel.right() + 1), 1);
}

TEST_F(RecdFrmTest, DrawsItsPicturesAtTheSizeOfTheirPlaces)
{
    for (const char* name : {"AnimImg0", "AnimImg1", "Microphone", "MicrophoneVolume", "VolumeSliderImg"}) {
        const auto& label = Control<QLabel>(name);
        EXPECT_EQ(label.pixmap().deviceIndependentSize().toSize(), label.size()) << name;
    }
}

TEST_F(RecdFrmTest, SetsTheFormatOfTheRecording)
{
    Recd().RecdBits = 8;
    Recd().RecdRate = 1;
    Recd().RecdChannels = 1;
    form->InitilizeForm();
    EXPECT_EQ(Recd().RecdBits, 16);
    EXPECT_EQ(Recd().RecdRate, 44100);
    EXPECT_EQ(Recd().RecdChannels, 2);
}

TEST_F(RecdFrmTest, TellsWhyThereIsNoDriver)
{
    FormAnswers answers(statusLbl, {});
    form->InitilizeForm();
    capture.opening = CaptureOpening::Failed;
    EXPECT_FALSE(form->InitilizeDriver());
    capture.opening = CaptureOpening::NoMicrophone;
    EXPECT_FALSE(form->InitilizeDriver());
    EXPECT_THAT(answers.seen,
                ElementsAre("Failed to create DirectX Sound Capture Buffer.|",
                            "Failed to create DirectX Sound Capture Buffer.|Please plug in a microphone.|"));
    EXPECT_FALSE(Control<QTimer>("CaptureTimer").isActive());
}

TEST_F(RecdFrmTest, TellsARunTimeErrorOfTheDriver)
{
    class FailingCapture : public FakeCapture {
    public:
        CaptureOpening Open() override { throw RunTimeError(Words::AsIs("The microphone is on fire.")); }
    };
    FailingCapture failing;
    TheServices().capture = &failing;
    Recd_Frm window(nullptr);
    FormAnswers answers(statusLbl, {});
    window.InitilizeForm();
    EXPECT_FALSE(window.InitilizeDriver());
    EXPECT_THAT(answers.seen, ElementsAre("The microphone is on fire.|"));
}

TEST_F(RecdFrmTest, LooksEveryFortyMillisecondsAtTheCapture)
{
    form->InitilizeForm();
    ASSERT_TRUE(form->InitilizeDriver());
    auto& timer = Control<QTimer>("CaptureTimer");
    EXPECT_TRUE(timer.isActive());
    EXPECT_EQ(timer.interval(), 40);
    Tick("CaptureTimer");
    EXPECT_TRUE(timer.isActive());
}

TEST_F(RecdFrmTest, TellsThatTheRecordingFailedAndShowsAllTheSame)
{
    capture.starts = false;
    FormAnswers answers(statusLbl, {});
    form->InitilizeForm();
    ASSERT_TRUE(form->InitilizeDriver());
    bool isShown = false;
    QTimer::singleShot(0, form.get(), [this, &isShown] { // runs while the message is open
        QTimer::singleShot(0, form.get(), [this, &isShown] {
            Tick("CaptureTimer");
            isShown = form->isVisible();
            Click(*form, "RecFinishBtn");
        });
    });
    form->CaptureStartRemote();
    EXPECT_THAT(answers.seen, ElementsAre("Recording Failed.|"));
    EXPECT_TRUE(isShown);
    EXPECT_TRUE(form->Ok);
    EXPECT_EQ(Recd().RecdLength, 0);
    EXPECT_EQ(Text("Rec_Stat_Lbl"), "");
}

TEST_F(RecdFrmTest, CancelsWithoutAQuestion)
{
    ShowHint(Words::AsIs("A hint"));
    Record([this] {
        Tell(CaptureState::Recording, 100);
        Click(*form, "Cancel_Btn");
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(statusLbl.text(), QString());
    });
    EXPECT_FALSE(form->Ok);
    EXPECT_THAT(capture.calls, Not(Contains("Stop")));
    EXPECT_THAT(capture.calls, Not(Contains("Release"))) << "before the window is unloaded";
    form.reset();
    EXPECT_EQ(capture.calls.back(), "Release");
    EXPECT_EQ(services.screen.hourglassesShown, 1);
    EXPECT_EQ(services.screen.hourglasses, 0);
}

TEST_F(RecdFrmTest, IsNotOkAfterACancelThatFollowsAFinish)
{
    Record([this] { Click(*form, "RecFinishBtn"); });
    Record([this] { Click(*form, "Cancel_Btn"); });
    EXPECT_FALSE(form->Ok);
}

TEST_F(RecdFrmTest, AsksBeforeEscapeAndTheCloseBoxThrowAwayTwoSeconds)
{
    const std::vector<std::function<void()>> ways = {[this] { QTest::keyClick(form.get(), Qt::Key_Escape); },
                                                     [this] { Click(*form, "CloseImgBtn"); },
                                                     [this] { form->close(); }};
    for (const auto& leave : ways) {
        FormAnswers answers(statusLbl, {"NoBtn", "YesBtn"});
        capture.status = {};
        Record([this, &leave, &answers] {
            Tell(CaptureState::Recording, 10); // 2 s
            leave();
            EXPECT_TRUE(form->isVisible());
            leave();
            EXPECT_FALSE(form->isVisible());
            EXPECT_THAT(answers.seen, ElementsAre("Throw this recording away?||", "Throw this recording away?||"));
        });
        EXPECT_FALSE(form->Ok);
    }
}

TEST_F(RecdFrmTest, DoesNotAskWhereLessThanTwoSecondsAreRecorded)
{
    FormAnswers answers(statusLbl, {"NoBtn"});
    Record([this] {
        Tell(CaptureState::Recording, 9); // 1.8 s
        QTest::keyClick(form.get(), Qt::Key_Escape);
        EXPECT_FALSE(form->isVisible());
    });
    EXPECT_TRUE(answers.seen.empty());
}

TEST_F(RecdFrmTest, TheQuestionHasItsFocusOnNo)
{
    Record([this] {
        Tell(CaptureState::Recording, 10);
        WithNextForm([](BandedForm& question) { QTest::keyClick(question.focusWidget(), Qt::Key_Return); });
        QTest::keyClick(form.get(), Qt::Key_Escape);
        EXPECT_TRUE(form->isVisible());
    });
}

TEST_F(RecdFrmTest, EnterFinishesUnlessAnotherButtonHasTheFocus)
{
    for (const char* name : {"RecFinishBtn", "MixerRecSrcCmb", "VolumePrtImg"}) {
        Record([this, name] {
            Control<QWidget>(name).setFocus();
            QTest::keyClick(form->focusWidget(), Qt::Key_Return);
            EXPECT_FALSE(form->isVisible()) << name;
        });
        EXPECT_TRUE(form->Ok) << name;
    }
    Record([this] {
        Control<QWidget>("Cancel_Btn").setFocus();
        QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    });
    EXPECT_FALSE(form->Ok);
}

TEST_F(RecdFrmTest, EnterHeldDownFromTheWindowBeforeFinishesNothing)
{
    Record([this] {
        RepeatKey(*form->focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(form->isVisible());
    });
}

TEST_F(RecdFrmTest, OpensTheDesktopsControls)
{
    Record([this] {
        Click(*form, "RecSrcBtn1");
        Click(*form, "RecSrcBtn2");
    });
    EXPECT_THAT(services.desktop.soundControls, ElementsAre(SoundControl::Play, SoundControl::Record));
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(RecdFrmTest, NamesTheControlsThatAreNotThere)
{
    services.desktop.missingControls = {"pavucontrol", "gnome-control-center"};
    Record([this] { Click(*form, "RecSrcBtn2"); });
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text, "The program pavucontrol or gnome-control-center is not found,\r\n"
                                               "that is needed to set recording sound source\r\n"
                                               "Please set recording source using volume control in the task bar.");
}

TEST_F(RecdFrmTest, ExplainsItsControls)
{
    constexpr const char* meter = "This should show moving up-down when you sing";
    constexpr const char* control = "This will open the recording control";
    const std::vector<std::pair<const char*, const char*>> hints = {
        {"Cancel_Btn", "This will stop and cancel the recording"},
        {"RecFinishBtn", "This will stop and bring the recording to track"},
        {"AnimImg0", "Recording bird"},
        {"Dur_Lbl", "Shows the recorded duration"},
        {"Rec_Stat_Lbl", "Recording status"},
        {"RecShowLPic", meter},
        {"RecShowRPic", meter},
        {"RecSrcBtn1", control},
        {"RecSrcBtn2", control},
        {"VolumePrtImg", "Slide this pointer to adjust Recording Volume"},
        {"VolumeSliderImg", "Recording Volume slider"},
        {"RecProgressPic", ""},
        {"MixerRecSrcCmb", ""},
        {"Microphone", ""},
        {"MicrophoneVolume", ""},
        {"VolumeLbl", ""},
    };
    Record([this, &hints] {
        for (const auto& [name, hint] : hints) {
            auto& widget = Control<QWidget>(name);
            statusLbl.setText(QStringLiteral("before"));
            QTest::mouseMove(&widget, QPoint(4, 4));
            QTest::mouseMove(&widget, QPoint(5, 5));
            EXPECT_EQ(statusLbl.text().toStdString(), hint) << name;
            EXPECT_EQ(widget.accessibleDescription().toStdString(), hint) << name;
        }
        Tick("AnimTimer");
        QTest::mouseMove(&Control<QWidget>("AnimImg1"), QPoint(6, 6));
        EXPECT_EQ(statusLbl.text(), QStringLiteral("Recording bird")) << "in its other pose";
    });
}

TEST_F(RecdFrmTest, TellsScreenReadersWhatItsControlsAre)
{
    const std::vector<std::pair<const char*, QAccessible::Role>> roles = {
        {"RecFinishBtn", QAccessible::Button},     {"Cancel_Btn", QAccessible::Button},
        {"RecSrcBtn1", QAccessible::Button},       {"RecSrcBtn2", QAccessible::Button},
        {"MixerRecSrcCmb", QAccessible::ComboBox}, {"VolumePrtImg", QAccessible::Slider},
        {"RecShowLPic", QAccessible::Graphic},     {"RecShowRPic", QAccessible::Graphic},
        {"RecProgressPic", QAccessible::Graphic}};
    for (const auto& [name, role] : roles) {
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&Control<QWidget>(name));
        EXPECT_EQ(spoken->role(), role) << name;
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << name;
    }
}

} // namespace
} // namespace sprout
