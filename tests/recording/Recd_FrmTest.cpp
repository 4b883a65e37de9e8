// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/Recd_Frm.h"

#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QTimerEvent>
#include <QWheelEvent>

#include <functional>

#include "recording/Recd_Mod.h"
#include "support/FakeServices.h"
#include "ui/FormAnswers.h"
#include "ui/Hints.h"
#include "ui/ModalSteps.h"
#include "ui/Palette.h"
#include "ui/QtText.h"

namespace sprout {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class RecdFrmTest : public testing::Test {
protected:
    RecdFrmTest()
    {
        SetStatusLbl(&statusLbl);
        Recd() = {};
        form = std::make_unique<Recd_Frm>(nullptr);
    }
    ~RecdFrmTest() override { Recd() = {}; }

    /// Records, and runs `steps` once the window is open; if they leave it open, it is closed.
    void Record(const std::function<void()>& steps)
    {
        form->InitilizeForm();
        ASSERT_TRUE(form->InitilizeDriver());
        WithNextForm([this, &steps](BandedForm&) {
            steps();
            form->done(0);
        });
        form->CaptureStartRemote();
    }

    /// Lets a timer of the window tick.
    void Tick(const char* name) const
    {
        auto& timer = Control<QTimer>(name);
        ASSERT_TRUE(timer.isActive()) << name;
        QTimerEvent tick(timer.timerId());
        QApplication::sendEvent(&timer, &tick);
    }

    /// The capture reports this status, and the window checks it.
    void Tell(CaptureState state, std::int64_t blocks, CaptureEnd end = CaptureEnd::None)
    {
        capture.status.State = state;
        capture.status.Blocks = blocks;
        ++capture.status.Pieces;
        capture.status.End = end;
        Tick("CaptureTimer");
    }

    template <class Kind>
    [[nodiscard]] Kind& Control(const char* name) const
    {
        return *form->findChild<Kind*>(QString::fromLatin1(name));
    }
    [[nodiscard]] std::string Text(const char* name) const { return Control<QLabel>(name).text().toStdString(); }
    [[nodiscard]] QComboBox& Sources() const { return Control<QComboBox>("MixerRecSrcCmb"); }
    [[nodiscard]] QWidget& Pointer() const { return Control<QWidget>("VolumePrtImg"); }
    [[nodiscard]] QColor Pixel(const char* name, int x, int y) const
    {
        return Control<QWidget>(name).grab().toImage().pixelColor(x, y);
    }

    FakeServices services;
    FakeCapture& capture = services.capture;
    QLabel statusLbl;
    std::unique_ptr<Recd_Frm> form;
};

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
        CaptureOpening Open() override { throw RunTimeError("The microphone is on fire."); }
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

TEST_F(RecdFrmTest, ShowsARecordingWhileItRuns)
{
    Record([this] {
        EXPECT_EQ(Text("Dur_Lbl"), "0.0");
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "");
        Tell(CaptureState::Recording, 0);
        EXPECT_EQ(Text("Dur_Lbl"), "00");
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "Now Recording");
        Tell(CaptureState::Recording, 7);
        EXPECT_EQ(Text("Dur_Lbl"), "01.40");
        Tell(CaptureState::Paused, 7);
        EXPECT_EQ(Text("Dur_Lbl"), "01.40 [P]");
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "Recording Paused");
        capture.status.SilentSeconds = 2;
        Tell(CaptureState::Paused, 7);
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "Recording Paused - I cannot hear you");
    });
    EXPECT_FALSE(Control<QTimer>("CaptureTimer").isActive());
    EXPECT_FALSE(Control<QTimer>("AnimTimer").isActive());
}

TEST_F(RecdFrmTest, ShowsTheWholeSecondTimeFromTheBeginning)
{
    Record([this] { Tell(CaptureState::Recording, 50); });
    capture.status = {};
    Record([this] {
        EXPECT_EQ(Text("Dur_Lbl"), "0.0");
        Tell(CaptureState::Recording, 0);
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "Now Recording");
    });
}

TEST_F(RecdFrmTest, DrawsTheLevelsOfBothChannels)
{
    const int top = 2; // below the frame
    const int bottom = Control<QWidget>("RecShowLPic").height() - 3;
    Record([this, top, bottom] {
        for (const char* meter : {"RecShowLPic", "RecShowRPic"})
            EXPECT_EQ(Pixel(meter, 20, bottom), kSand) << "an empty bar";
        capture.peaks = {32767, 0};
        Tell(CaptureState::Recording, 1);
        EXPECT_EQ(Pixel("RecShowLPic", 20, 6), ColourOf(0x0000FF)) << "a bar of full height";
        EXPECT_EQ(Pixel("RecShowRPic", 20, bottom), kSand);
        capture.peaks = {0, 16384};
        Tell(CaptureState::Paused, 1);
        EXPECT_EQ(Pixel("RecShowRPic", 20, bottom), ColourOf(0xFF0000));
        EXPECT_EQ(Pixel("RecShowRPic", 20, 68), ColourOf(0xFF0000));
        EXPECT_EQ(Pixel("RecShowRPic", 20, 62), kSand);
        EXPECT_EQ(Pixel("RecShowRPic", 20, 64), kBark) << "the loudest of the last second";
        EXPECT_EQ(Pixel("RecShowLPic", 20, top), kBark) << "the loudest of the last second";
        EXPECT_EQ(Pixel("RecShowLPic", 20, 6), kSand);
    });
}

TEST_F(RecdFrmTest, MarksAnOverloadInTheMeterItBelongsTo)
{
    Record([this] {
        capture.peaks = {10, 10, false, true};
        Tell(CaptureState::Recording, 1);
        EXPECT_EQ(Pixel("RecShowLPic", 24, 28), kSand);
        EXPECT_NE(Pixel("RecShowRPic", 24, 28), kSand);
        Tell(CaptureState::Stopped, 1, CaptureEnd::DiskFull);
        EXPECT_EQ(Pixel("RecShowRPic", 24, 28), kSand);
    });
}

TEST_F(RecdFrmTest, FillsTheProgressUpToThreeMinutes)
{
    const int width = Control<QWidget>("RecProgressPic").width();
    Record([this, width] {
        Tell(CaptureState::Recording, 450); // 90 s
        EXPECT_EQ(Pixel("RecProgressPic", width / 2 - 1, 9), kLeaf);
        EXPECT_EQ(Pixel("RecProgressPic", width / 2, 9), kSand);
        Tell(CaptureState::Recording, 9000);
        EXPECT_EQ(Pixel("RecProgressPic", width - 3, 9), kLeaf);
        EXPECT_TRUE(form->isVisible()) << "there is no limit";
    });
}

TEST_F(RecdFrmTest, LetsTheBirdHopWhileItRecords)
{
    const auto up = [this] { return Control<QLabel>("AnimImg1").isVisible(); };
    Record([this, &up] {
        std::string poses;
        for (int tick = 0; tick < 10; ++tick) {
            Tick("AnimTimer");
            EXPECT_NE(up(), Control<QLabel>("AnimImg0").isVisible());
            poses += up() ? 'u' : 'd';
        }
        EXPECT_EQ(poses, "uuudduuudd");
        Tell(CaptureState::Recording, 1);
        EXPECT_TRUE(Control<QTimer>("AnimTimer").isActive());
        Tell(CaptureState::Stopped, 1, CaptureEnd::MicrophoneGone);
        EXPECT_FALSE(Control<QTimer>("AnimTimer").isActive());
    });
}

TEST_F(RecdFrmTest, BringsTheRecordingToTheSharedArrays)
{
    capture.leftSamples = {1, 2, 3};
    capture.rightSamples = {4, 5, 6};
    ShowHint(QStringLiteral("A hint"));
    Record([this] {
        Tell(CaptureState::Recording, 1);
        Click(*form, "RecFinishBtn");
        EXPECT_FALSE(form->isVisible());
    });
    EXPECT_TRUE(form->Ok);
    EXPECT_EQ(Recd().RecdLength, 2);
    EXPECT_EQ(TakeRecordedWave().WavR[2], 6);
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_EQ(services.screen.hourglassesShown, 1);
    EXPECT_EQ(services.screen.hourglasses, 0);
    EXPECT_FALSE(std::filesystem::exists(capture.files.first));
    EXPECT_FALSE(std::filesystem::exists(capture.files.second));
}

TEST_F(RecdFrmTest, FinishesWithNothingWhereNothingWasCaptured)
{
    Recd().RecdLength = 77;
    Record([this] { Click(*form, "RecFinishBtn"); });
    EXPECT_TRUE(form->Ok);
    EXPECT_EQ(Recd().RecdLength, 0) << "the length of an earlier recording is not this one's";
}

TEST_F(RecdFrmTest, FinishesWhatACaptureLeftThatEndedByItself)
{
    capture.leftSamples = {1, 2, 3};
    Record([this] {
        Tell(CaptureState::Recording, 3);
        Tell(CaptureState::Stopped, 3, CaptureEnd::DiskFull);
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "Recording Done - the disk is full");
        Click(*form, "RecFinishBtn");
    });
    EXPECT_TRUE(form->Ok);
    EXPECT_EQ(Recd().RecdLength, 2);
}

TEST_F(RecdFrmTest, StaysOpenWhereTheRecordingCannotBeReadAndLeavesNoVoiceBehind)
{
    class UnreadableCapture : public FakeCapture {
    public:
        void Stop() override
        {
            isKeeping = false; // from here on the files belong to the window
            std::filesystem::remove(files.first);
            std::filesystem::create_symlink("/proc/self/mem", files.first);
        }
    };
    UnreadableCapture unreadable;
    TheServices().capture = &unreadable;
    form = std::make_unique<Recd_Frm>(nullptr);
    Record([this, &unreadable] {
        Click(*form, "RecFinishBtn");
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(services.screen.hourglasses, 0);
        EXPECT_TRUE(std::filesystem::exists(unreadable.files.second));
    });
    EXPECT_EQ(services.messages.shown.size(), 1U);
    EXPECT_FALSE(form->Ok);
    form.reset();
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(unreadable.files.first)));
    EXPECT_FALSE(std::filesystem::exists(unreadable.files.second));
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
    ShowHint(QStringLiteral("A hint"));
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

TEST_F(RecdFrmTest, ListsTheSources)
{
    EXPECT_EQ(Sources().count(), 2);
    EXPECT_EQ(Sources().currentText(), QStringLiteral("Microphone"));
    EXPECT_EQ(Text("VolumeLbl"), "100%");
    EXPECT_THAT(capture.calls, ElementsAre("ListSources")) << "filling the list selects nothing";
}

TEST_F(RecdFrmTest, SaysFailedWhereThereIsNoMixerAndRecordsAllTheSame)
{
    capture.sources.reset();
    form = std::make_unique<Recd_Frm>(nullptr);
    EXPECT_EQ(Sources().count(), 1);
    EXPECT_EQ(Sources().currentText(), QStringLiteral("Failed"));
    EXPECT_FALSE(Sources().isEnabled());
    EXPECT_FALSE(Pointer().isEnabled());
    capture.leftSamples = {1, 2, 3};
    Record([this] { Click(*form, "RecFinishBtn"); });
    EXPECT_TRUE(form->Ok);
    EXPECT_EQ(Recd().RecdLength, 2);
}

TEST_F(RecdFrmTest, SelectsTheSourceThatIsChosen)
{
    capture.sources->Sources.insert(capture.sources->Sources.begin(), {" ", 1}); // it gets no line
    capture.sources->Selected = 1;
    form = std::make_unique<Recd_Frm>(nullptr);
    capture.calls.clear();
    Record([this] {
        Sources().setFocus();
        QTest::keyClick(&Sources(), Qt::Key_Down);
        EXPECT_THAT(capture.calls, Contains("SelectSource 2"));
        EXPECT_EQ(Sources().currentText(), QStringLiteral("Headset"));
        EXPECT_EQ(Text("VolumeLbl"), "50%");
        EXPECT_EQ(capture.calls.back(), "ListSources");
    });
}

TEST_F(RecdFrmTest, AWheelOverTheListSelectsNothing)
{
    Record([this] {
        QWheelEvent wheel(QPointF(5, 5), Sources().mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Sources(), &wheel);
        EXPECT_EQ(Sources().currentText(), QStringLiteral("Microphone"));
        EXPECT_FALSE(wheel.isAccepted());
    });
}

TEST_F(RecdFrmTest, FollowsSourcesThatComeAndGo)
{
    Record([this] {
        capture.sources->Sources.push_back({"Webcam", 100});
        Tell(CaptureState::Recording, 1);
        EXPECT_EQ(Sources().count(), 2) << "nobody said that there is a change";
        ++capture.sourceChanges;
        Tell(CaptureState::Recording, 1);
        EXPECT_EQ(Sources().count(), 3);
        EXPECT_EQ(Sources().currentText(), QStringLiteral("Microphone"));
        capture.sources = SoundSources{};
        ++capture.sourceChanges;
        Tick("CaptureTimer"); // although the capture has nothing new
        EXPECT_EQ(Sources().currentText(), QStringLiteral("Failed"));
        EXPECT_FALSE(Sources().isEnabled());
        capture.sources = SoundSources{{{"Webcam", 6554}}, 0};
        ++capture.sourceChanges;
        Tick("CaptureTimer");
        EXPECT_EQ(Sources().count(), 1);
        EXPECT_EQ(Sources().currentText(), QStringLiteral("Webcam"));
        EXPECT_TRUE(Sources().isEnabled());
        EXPECT_TRUE(Pointer().isEnabled());
        EXPECT_EQ(Text("VolumeLbl"), "10%");
        EXPECT_THAT(capture.calls, Not(Contains(testing::StartsWith("SelectSource"))));
    });
}

TEST_F(RecdFrmTest, LeavesAnOpenListOpenWhereOnlyAVolumeChanges)
{
    Record([this] {
        Sources().showPopup();
        capture.sources->Sources[0].Volume = 0;
        ++capture.sourceChanges;
        Tick("CaptureTimer");
        EXPECT_TRUE(Sources().view()->isVisible());
        EXPECT_EQ(Text("VolumeLbl"), "0%");
        capture.sources->Sources.pop_back();
        ++capture.sourceChanges;
        Tick("CaptureTimer");
        EXPECT_FALSE(Sources().view()->isVisible());
    });
}

TEST_F(RecdFrmTest, ShowsTheBeginningOfALongNameAndTellsItWhole)
{
    const std::string name(300, 'n');
    capture.sources = SoundSources{{{"<b>" + name + "\n2", 65535}}, 0};
    form = std::make_unique<Recd_Frm>(nullptr);
    EXPECT_LT(Sources().fontMetrics().horizontalAdvance(Sources().currentText()), Sources().width());
    EXPECT_EQ(Sources().itemData(0, Qt::AccessibleTextRole).toString().toStdString(), "<b>" + name + " 2");
    EXPECT_EQ(Sources().itemData(0, Qt::ToolTipRole).toString().toStdString(), "<p>&lt;b&gt;" + name + " 2</p>");
}

TEST_F(RecdFrmTest, DragsTheVolume)
{
    const QRect slot = Control<QWidget>("VolumeSliderImg").geometry();
    Record([this, slot] {
        EXPECT_EQ(Pointer().geometry().right(), slot.right());
        QTest::mousePress(&Pointer(), Qt::LeftButton, {}, QPoint(10, 10));
        const int room = slot.width() - Pointer().width();
        QTest::mouseMove(&Pointer(), QPoint(10 - room / 2, 10));
        EXPECT_EQ(Text("VolumeLbl"), "50%");
        EXPECT_THAT(capture.calls, Not(Contains(testing::StartsWith("SetVolume")))) << "before the release";
        capture.sources->Sources[0].Volume = 0;
        ++capture.sourceChanges;
        Tick("CaptureTimer");
        EXPECT_EQ(Text("VolumeLbl"), "50%") << "the pointer stays in the hand";
        QTest::mouseMove(&Pointer(), QPoint(-2000, 10));
        EXPECT_EQ(Pointer().x(), slot.left());
        QTest::mouseMove(&Pointer(), QPoint(10 + room * 3 / 4, 10));
        QTest::mouseRelease(&Pointer(), Qt::LeftButton, {}, QPoint(10, 10));
        EXPECT_EQ(Text("VolumeLbl"), "75%");
        EXPECT_THAT(capture.calls, Contains("SetVolume 0 49151"));
        EXPECT_EQ(capture.calls.back(), "ListSources");
    });
}

TEST_F(RecdFrmTest, ChangesTheVolumeByKeys)
{
    capture.sources->Selected = 1;
    form = std::make_unique<Recd_Frm>(nullptr);
    Record([this] {
        QTest::keyClick(&Pointer(), Qt::Key_Right);
        EXPECT_THAT(capture.calls, Contains("SetVolume 1 33423")); // 51 %
        EXPECT_EQ(Text("VolumeLbl"), "51%");
        QTest::keyClick(&Pointer(), Qt::Key_PageUp);
        EXPECT_EQ(Text("VolumeLbl"), "61%");
        QTest::keyClick(&Pointer(), Qt::Key_Home);
        EXPECT_EQ(Text("VolumeLbl"), "0%");
    });
}

TEST_F(RecdFrmTest, AVolumeBeyondAHundredStaysUntilTheSliderIsTouched)
{
    capture.sources->Sources[0].Volume = 98304;
    form = std::make_unique<Recd_Frm>(nullptr);
    Record([this] {
        EXPECT_EQ(Text("VolumeLbl"), "100%");
        EXPECT_EQ(capture.sources->Sources[0].Volume, 98304);
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
