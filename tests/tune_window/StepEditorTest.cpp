// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepEditorTest.h"

#include <QLineEdit>
#include <QMouseEvent>

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "ui/MessageForms.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

using LampTest = StepEditorTest;
using KeysTest = StepEditorTest;
using StripTest = StepEditorTest;
using IconTest = StepEditorTest;
using PointerTest = StepEditorTest;
using BarTest = StepEditorTest;
using StepPopMnuTest = StepEditorTest;
using StepNosCmbTest = StepEditorTest;
using TunFramHScrollTest = StepEditorTest;
using ChangeAllBtnTest = StepEditorTest;
using PlayMarksTest = StepEditorTest;

constexpr std::int32_t kLeadInFrames = 33075;

TEST_F(LampTest, TogglesItsStepAndPlaysTheTuneBehindALeadIn)
{
    ClickAt(In(3, 30));
    EXPECT_EQ(tune.Steps[3].OnPos, 1);
    EXPECT_EQ(edits, 1);
    EXPECT_TRUE(tune.TuneWaveValid) << "rendered for the play";
    EXPECT_EQ(Played(), tune.TuneWave.Length + kLeadInFrames);
    EXPECT_EQ(editorDisplay.status, "Playing Tune");
    EXPECT_TRUE(Find<QTimer>("PlayPosTimer").isActive());
    ClickAt(In(3, 30));
    EXPECT_EQ(tune.Steps[3].OnPos, 0);
}

TEST_F(LampTest, ReturnsTheEditorToStep1)
{
    ShowTuneOf(64);
    Scroll().setValue(351);
    ClickAt(QPoint(8 - 351 + 35 * 12 + 10, 30));
    EXPECT_EQ(tune.Steps[13].OnPos, 0);
    EXPECT_EQ(Scroll().value(), 1);
    ClickAt(In(1, 30));
    EXPECT_EQ(tune.Steps[1].OnPos, 0);
}

TEST_F(LampTest, CountsBothClicksOfADoubleClick)
{
    ClickAt(In(1, 30));
    QMouseEvent second(QEvent::MouseButtonDblClick, In(1, 30), Surface().mapToGlobal(In(1, 30)), Qt::LeftButton,
                       Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Surface(), &second);
    EXPECT_EQ(edits, 2);
    EXPECT_EQ(tune.Steps[1].OnPos, 1);
}

TEST_F(LampTest, IsNotHitInTheGapBetweenTwoColumns)
{
    for (std::int32_t dx = 30; dx <= 35; ++dx)
        ClickAt(In(1, 30, dx));
    ClickAt(In(5, 30));
    EXPECT_EQ(edits, 0);
    EXPECT_FALSE(HasPlayed());
}

TEST_F(KeysTest, SetThePitchAndPlayTheStep)
{
    ClickAt(In(2, 141 + 3, 25));
    EXPECT_EQ(tune.Steps[2].PitchShift, 11);
    EXPECT_EQ(edits, 1);
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(Played(), 602);
    EXPECT_EQ(editorDisplay.status, "Playing Beat");
    ClickAt(In(2, 213 + 62, 5));
    EXPECT_EQ(tune.Steps[2].PitchShift, -11) << "the lower octave's lowest black key";
}

TEST_F(KeysTest, PlayAKeyThatIsSetAlreadyWithoutAnEdit)
{
    ClickAt(In(2, 141 + 70, 25));
    EXPECT_EQ(Played(), 602);
    EXPECT_EQ(edits, 0);
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST_F(KeysTest, StaySilentBetweenTwoKeys)
{
    ClickAt(In(2, 141 + 42, 25));
    EXPECT_EQ(edits, 0);
    EXPECT_FALSE(HasPlayed());
}

TEST_F(KeysTest, OnlyPlayForTheRightButton)
{
    ClickAt(In(2, 141 + 3, 25), Qt::RightButton);
    EXPECT_EQ(tune.Steps[2].PitchShift, 0);
    EXPECT_EQ(edits, 0);
    EXPECT_EQ(Played(), 602);
}

TEST_F(KeysTest, DoNothingForAPitchBeyond64)
{
    tune.Steps[2].PitchShift = 65;
    editor.UpdateThisTune();
    ClickAt(In(2, 141 + 30, 25));
    EXPECT_EQ(tune.Steps[2].PitchShift, 65);
    EXPECT_EQ(edits, 0);
    EXPECT_FALSE(HasPlayed());
}

TEST_F(KeysTest, DrawAPitchOf40AtTheHighestKeyAndKeepIt)
{
    tune.Steps[2].PitchShift = 40;
    editor.UpdateThisTune();
    EXPECT_EQ(Surface().DurationBars()[2].top, 142);
    EXPECT_EQ(tune.Steps[2].PitchShift, 40);
}

TEST_F(KeysTest, DoNothingOnAnOffStep)
{
    for (const std::int32_t y : {100, 150, 230, 295})
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
            ClickAt(In(3, y, 2), button);
    EXPECT_EQ(edits, 0);
    EXPECT_FALSE(HasPlayed());
    EXPECT_TRUE(chooserGot.empty());
}

TEST_F(StripTest, SetsVolumeAndDurationAtItsNarrowPlaces)
{
    ClickAt(In(1, 296, 2));
    EXPECT_EQ(tune.Steps[1].Volume, 114);
    EXPECT_EQ(edits, 1);
    ClickAt(In(1, 292, 29));
    EXPECT_EQ(tune.Steps[1].Duration, 200);
    EXPECT_EQ(edits, 2);
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(editorDisplay.status, "Playing Beat");
}

TEST_F(StripTest, PlaysOnlyBesideItsPlacesAndForTheRightButton)
{
    ClickAt(In(1, 296));
    EXPECT_EQ(Played(), 601);
    ClickAt(In(2, 296, 2), Qt::RightButton);
    EXPECT_EQ(Played(), 602);
    EXPECT_EQ(tune.Steps[2].Volume, 100);
    EXPECT_EQ(edits, 0);
}

TEST_F(IconTest, OpensTheChooserWithItsBeatAndTakesTheChosenOne)
{
    SaveWaveFile(CountingWave(700), Shared().UserBeats / "Drum.wav");
    tune.Steps[4].StepBeat.Name.clear();
    chosenBeat = "Drum";
    ClickAt(In(2, 100));
    EXPECT_EQ(chooserGot, std::vector<std::string>{"B2"});
    EXPECT_EQ(tune.Steps[2].StepBeat.Name, "Drum");
    EXPECT_EQ(tune.Steps[3].StepBeat.Name, "B3");
    EXPECT_EQ(tune.Steps[4].StepBeat.Name, "Drum") << "a later step without a beat";
    EXPECT_FALSE(tune.Steps[4].StepWaveValid);
    EXPECT_EQ(edits, 1);
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_FALSE(HasPlayed());
}

TEST_F(IconTest, ChangesNothingWhenTheChooserIsCancelled)
{
    ClickAt(In(2, 100));
    EXPECT_EQ(chooserGot.size(), 1U);
    EXPECT_EQ(edits, 0);
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST_F(IconTest, IsPushedInWhileTheChooserIsOpenAndRaisedBehindIt)
{
    QImage pressed;
    whileChoosing = [&] { pressed = Drawn(); };
    ClickAt(In(2, 100));
    const FrameEdges frame = IconFrame(2, kStepsLeftAtStart);
    EXPECT_EQ(pressed.pixelColor(frame.left, frame.top + 9), QColor(0x80, 0x80, 0x80));
    EXPECT_EQ(pressed.pixelColor(frame.right, frame.top + 9), QColor(Qt::white));
    EXPECT_NE(pressed.pixelColor(frame.left + 9, kIconTop), QColor(3, 0, 0)) << "a pixel lower";
    const QImage after = Drawn();
    EXPECT_EQ(after.pixelColor(frame.left, frame.top + 9), QColor(Qt::white));
    EXPECT_EQ(after.pixelColor(frame.right, frame.top + 9), QColor(0x80, 0x80, 0x80));
    EXPECT_EQ(after.pixelColor(frame.left + 9, kIconTop), QColor(3, 0, 0)) << "the default picture";
}

TEST_F(IconTest, DoesNothingWhenTheMouseIsLetGoElsewhere)
{
    const auto drag = [this](QPoint from, QPoint to) {
        QTest::mousePress(&Surface(), Qt::LeftButton, Qt::NoModifier, from);
        QTest::mouseRelease(&Surface(), Qt::LeftButton, Qt::NoModifier, to);
    };
    drag(In(1, 100), In(2, 100));
    drag(In(1, 100), In(1, 120));
    drag(In(1, 60), In(1, 100));
    EXPECT_TRUE(chooserGot.empty());
    drag(In(1, 82, 3), In(1, 108, 28));
    EXPECT_EQ(chooserGot.size(), 1U);
    drag(In(1, 30), In(1, 100));
    EXPECT_EQ(chooserGot.size(), 1U) << "the press on the icon before is forgotten";
}

TEST_F(IconTest, PlaysTheBeatItselfForTheRightButton)
{
    tune.Steps[1].StepBeat.Sound = CountingWave(900);
    ClickAt(In(1, 100), Qt::RightButton);
    EXPECT_EQ(Played(), 900);
    EXPECT_EQ(editorDisplay.status, "Playing Step");
    EXPECT_TRUE(chooserGot.empty());
}

TEST_F(PointerTest, ShowsTheHintOfWhatItRestsOn)
{
    MoveTo(In(1, 30));
    EXPECT_EQ(Hint(), "Click on a step to make in ON/OFF");
    MoveTo(In(1, 150, 3));
    EXPECT_EQ(Hint(), "Click on a piano key to change pitch");
    EXPECT_EQ(Surface().cursor().shape(), Qt::BitmapCursor);
    MoveTo(In(1, 100));
    EXPECT_EQ(Hint(), "Click on the icon to choose an instrument beat");
    EXPECT_EQ(Surface().toolTip(), QStringLiteral("B1"));
    EXPECT_EQ(Surface().cursor().shape(), Qt::ArrowCursor);
    MoveTo(In(1, 60));
    EXPECT_EQ(Hint(), "");
    EXPECT_EQ(Surface().toolTip(), QString());
}

TEST_F(PointerTest, ShowsANameThatLooksLikeRichTextAsItIsWritten)
{
    tune.Steps[1].StepBeat.Name = "<b>Drum</b>";
    MoveTo(In(1, 100));
    EXPECT_EQ(Surface().toolTip(), QStringLiteral("<p>&lt;b&gt;Drum&lt;/b&gt;</p>"));
}

TEST_F(PointerTest, NamesABeatAsItsFileIsWrittenAndWithoutItsFamily)
{
    WriteBytes(Shared().UserBeats / "P_Piano High.wav", "");
    tune.Steps[1].StepBeat.Name = "p_piano high";
    editor.UpdateThisTune();
    MoveTo(In(1, 100, 12));
    EXPECT_EQ(Surface().toolTip(), QStringLiteral("Piano High"));
    EXPECT_EQ(StepButton(1).accessibleName(), QStringLiteral("Step 1, on, Piano High, pitch 0"));
}

TEST_F(PointerTest, LosesItsToolTipWithTheNextDrawing)
{
    MoveTo(In(1, 100));
    editor.UpdateThisTune();
    EXPECT_EQ(Surface().toolTip(), QString());
}

/// A point on a bar's handle.
QPoint HandleOf(const DurationBar& bar)
{
    return {bar.handleX + 3, bar.handleY + 3};
}

TEST_F(BarTest, OffersItsHandleUnderThePointer)
{
    EXPECT_TRUE(Handle().isHidden());
    const DurationBar bar = Surface().DurationBars()[2];
    MoveTo(QPoint(bar.left + 2, bar.top + 2));
    EXPECT_FALSE(Handle().isHidden());
    EXPECT_EQ(Handle().pos(), QPoint(bar.handleX, bar.handleY));
    MoveTo(HandleOf(bar));
    EXPECT_EQ(Surface().cursor().shape(), Qt::SizeHorCursor);
    EXPECT_EQ(Hint(), "Click on a piano key to change pitch");
    editor.UpdateThisTune();
    EXPECT_TRUE(Handle().isHidden());
}

TEST_F(BarTest, OffersItsHandleInTheGapBehindItsColumnToo)
{
    const DurationBar bar = Surface().DurationBars()[2];
    MoveTo(QPoint(bar.right, bar.bottom));
    EXPECT_FALSE(Handle().isHidden());
}

TEST_F(BarTest, IsDrawnOutByItsEndAndKeepsWhatIsRendered)
{
    const DurationBar bar = Surface().DurationBars()[1];
    MoveTo(HandleOf(bar));
    QTest::mousePress(&Surface(), Qt::LeftButton, Qt::NoModifier, HandleOf(bar));
    EXPECT_TRUE(Handle().isHidden());
    EXPECT_FALSE(HasPlayed());
    MoveTo(HandleOf(bar) + QPoint(3, 40));
    EXPECT_EQ(tune.Steps[1].Duration, 115);
    EXPECT_EQ(Played(), 601) << "as it was rendered last";
    EXPECT_EQ(Surface().DurationBars()[1].handleX, bar.handleX + 3);
    MoveTo(HandleOf(bar) + QPoint(5, 40));
    EXPECT_EQ(tune.Steps[1].Duration, 125);
    MoveTo(HandleOf(bar) + QPoint(300, 0));
    EXPECT_EQ(tune.Steps[1].Duration, 200);
    MoveTo(HandleOf(bar) + QPoint(310, 0));
    MoveTo(HandleOf(bar) + QPoint(295, 0));
    EXPECT_EQ(tune.Steps[1].Duration, 175) << "counted from where it last changed";
    MoveTo(QPoint(-500, 0));
    EXPECT_EQ(tune.Steps[1].Duration, 0);
    QTest::mouseRelease(&Surface(), Qt::LeftButton, Qt::NoModifier, QPoint(0, 0));
    MoveTo(HandleOf(bar));
    EXPECT_EQ(tune.Steps[1].Duration, 0) << "the drag has ended";
    EXPECT_EQ(edits, 0);
    EXPECT_TRUE(tune.Steps[1].StepWaveValid);
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST_F(BarTest, IsLetGoWhenTheReleaseWentElsewhere)
{
    const auto send = [this](QEvent::Type type, QPoint place, Qt::MouseButton held) {
        QMouseEvent event(type, place, Surface().mapToGlobal(place), Qt::LeftButton, held, Qt::NoModifier);
        QApplication::sendEvent(&Surface(), &event);
    };
    const QPoint handle = HandleOf(Surface().DurationBars()[1]);
    send(QEvent::MouseMove, handle, Qt::NoButton);
    ASSERT_FALSE(Handle().isHidden());
    send(QEvent::MouseButtonPress, handle, Qt::LeftButton);
    send(QEvent::MouseMove, handle + QPoint(5, 0), Qt::NoButton);
    EXPECT_EQ(tune.Steps[1].Duration, 100) << "no button is down any more";
    ClickAt(In(2, 100));
    EXPECT_EQ(chooserGot.size(), 1U);
}

TEST_F(BarTest, CanBeDrawnOutFromADurationOf0)
{
    tune.Steps[1].Duration = 0;
    editor.UpdateThisTune();
    const DurationBar bar = Surface().DurationBars()[1];
    EXPECT_EQ(bar.right - bar.left, kDurationLeftWidth + kDurationRightWidth);
    MoveTo(HandleOf(bar));
    QTest::mousePress(&Surface(), Qt::LeftButton, Qt::NoModifier, HandleOf(bar));
    MoveTo(HandleOf(bar) + QPoint(10, 0));
    EXPECT_EQ(tune.Steps[1].Duration, 50);
    QTest::mouseRelease(&Surface(), Qt::LeftButton, Qt::NoModifier, HandleOf(bar));
}

TEST_F(BarTest, OfTheEarlierStepComesFirstWhereTwoLieOverEachOther)
{
    tune.Steps[1].Duration = 200;
    editor.UpdateThisTune();
    const DurationBar first = Surface().DurationBars()[1];
    const DurationBar second = Surface().DurationBars()[2];
    MoveTo(QPoint(second.left + 2, second.top + 3));
    EXPECT_EQ(Handle().pos(), QPoint(first.handleX, first.handleY));
}

/// Runs `steps` with the menu that opens next, and then closes it.
void WithStepMenu(const QWidget& editor, const std::function<void(QMenu&)>& steps)
{
    QTimer::singleShot(0, &editor, [&editor, steps] {
        auto& menu = *editor.findChild<QMenu*>(QStringLiteral("StepPopMnu"));
        steps(menu);
        menu.close();
    });
}

/// Picks an item like a click.
void Pick(QMenu& menu, const char* caption)
{
    for (QAction* const action : menu.actions())
        if (action->text() == QString::fromLatin1(caption)) {
            menu.setActiveAction(action);
            QTest::keyClick(&menu, Qt::Key_Return);
        }
}

TEST_F(StepPopMnuTest, OpensForTheRightButtonOnALamp)
{
    int opened = 0;
    std::string enabled;
    const auto look = [&](QMenu& menu) {
        ++opened;
        enabled.clear();
        for (const QAction* const action : menu.actions())
            enabled += action->isSeparator() ? '|' : action->isEnabled() ? 'y' : 'n';
    };
    WithStepMenu(editor, look);
    ClickAt(In(1, 30), Qt::RightButton);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(enabled, "yy|yy|yy");
    WithStepMenu(editor, look);
    ClickAt(In(3, 30), Qt::RightButton);
    EXPECT_EQ(enabled, "yy|nn|yy") << "an off-step cannot be moved alone";
    EXPECT_EQ(edits, 0);
    EXPECT_EQ(tune.Steps[1].OnPos, 1);
}

TEST_F(StepPopMnuTest, CarriesOutWhatIsPicked)
{
    WithStepMenu(editor, [](QMenu& menu) { Pick(menu, "Move Step to right"); });
    ClickAt(In(2, 30), Qt::RightButton);
    EXPECT_EQ(tune.Steps[2].OnPos, 0);
    EXPECT_EQ(tune.Steps[3].OnPos, 1);
    EXPECT_EQ(tune.Steps[3].StepBeat.Name, "B2");
    EXPECT_TRUE(tune.Steps[3].StepWaveValid);
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(edits, 1);
    EXPECT_FALSE(HasPlayed());
}

TEST_F(StepPopMnuTest, TellsWhyAMoveIsRefused)
{
    std::string words;
    WithStepMenu(editor, [&words](QMenu& menu) {
        WithNextForm([&words](BandedForm& form) {
            for (const QLabel* const label : form.findChildren<QLabel*>())
                words += label->text().toStdString() + "|";
            Click(form, "OkBtn");
        });
        Pick(menu, "Move Step to right");
    });
    ClickAt(In(1, 30), Qt::RightButton);
    EXPECT_NE(words.find("Next step is ON,|Can not move this."), std::string::npos) << words;
    EXPECT_EQ(edits, 0);
}

TEST_F(StepNosCmbTest, ShowsTheNumberOfSteps)
{
    for (const auto& [steps, caption] :
         {std::pair{8, "8 Steps"}, {16, "16 Steps"}, {32, "32 Steps"}, {64, "64 Steps"}}) {
        ShowTuneOf(steps);
        EXPECT_EQ(StepNos().currentText(), QString::fromLatin1(caption));
        EXPECT_EQ(StepNos().count(), 5);
    }
}

TEST_F(StepNosCmbTest, ShowsANumberThatIsNotInItsListBeforeTheOthers)
{
    for (const int steps : {24, 12, 16, 2}) {
        ShowTuneOf(steps);
        EXPECT_EQ(StepNos().currentText(), QStringLiteral("%1 Steps").arg(steps));
    }
    EXPECT_EQ(StepNos().currentIndex(), 0);
    EXPECT_EQ(StepNos().count(), 6);
    EXPECT_EQ(StepNos().itemText(1), QStringLiteral("8 Steps"));
}

/// The index of a number of steps in the list; -1 is "Other...!".
int PlaceOfSteps(const QComboBox& box, int steps)
{
    return box.findText(steps < 0 ? QStringLiteral("Other...!") : QStringLiteral("%1 Steps").arg(steps));
}

/// Picks a number of steps with the keys of the box, as its list does.
void PickSteps(QComboBox& box, int index)
{
    box.setCurrentIndex(index);
    Q_EMIT box.activated(index);
}

TEST_F(StepNosCmbTest, RepeatsThePatternOfACycleThatGrowsAndPlays)
{
    ShowTuneOf(3);
    PickSteps(StepNos(), PlaceOfSteps(StepNos(), 8));
    ASSERT_EQ(tune.StepCount, 8);
    std::string beats;
    for (std::int32_t i = 1; i <= 8; ++i)
        beats += At(tune.Steps, i).StepBeat.Name;
    EXPECT_EQ(beats, "B1B2B3B1B2B3B1B2");
    EXPECT_EQ(edits, 1);
    EXPECT_EQ(Played(), tune.TuneWave.Length + kLeadInFrames);
    EXPECT_EQ(StepNos().currentText(), QStringLiteral("8 Steps"));
}

TEST_F(StepNosCmbTest, SetsTheScrollToTheNewNumberAlsoWhereThePlayDoesNotBegin)
{
    editorDisplay.editor = nullptr;
    PickSteps(StepNos(), PlaceOfSteps(StepNos(), 64));
    EXPECT_EQ(Scroll().maximum(), 64 * 35 - 592);
    EXPECT_EQ(Surface().DurationBars().size(), 65U);
}

TEST_F(StepNosCmbTest, AsksForAnyNumberUntilItIsOne)
{
    std::vector<std::string> asked;
    WithNextForm([&asked](BandedForm& first) {
        auto& text = *first.findChild<QLineEdit*>(QStringLiteral("InputTxt"));
        asked.push_back(text.text().toStdString());
        text.setText(QStringLiteral("65"));
        WithNextForm([&asked](BandedForm& refusal) {
            for (const QLabel* const label : refusal.findChildren<QLabel*>())
                asked.push_back(label->text().toStdString());
            WithNextForm([](BandedForm& second) {
                second.findChild<QLineEdit*>(QStringLiteral("InputTxt"))->setText(QStringLiteral("5"));
                Click(second, "OkBtn");
            });
            Click(refusal, "OkBtn");
        });
        Click(first, "OkBtn");
    });
    PickSteps(StepNos(), PlaceOfSteps(StepNos(), -1));
    EXPECT_EQ(tune.StepCount, 5);
    ASSERT_GE(asked.size(), 3U);
    EXPECT_EQ(asked.front(), "4");
    EXPECT_NE(std::find(asked.begin(), asked.end(), "65 is not valid,"), asked.end());
    EXPECT_NE(std::find(asked.begin(), asked.end(), "Enter a number between 2 to 64."), asked.end());
}

TEST_F(StepNosCmbTest, ReturnsToTheNumberOfStepsWithoutAnAnswer)
{
    ShowTuneOf(16);
    WithNextForm([](BandedForm& form) { Click(form, "CancelBtn"); });
    PickSteps(StepNos(), PlaceOfSteps(StepNos(), -1));
    EXPECT_EQ(tune.StepCount, 16);
    EXPECT_EQ(StepNos().currentText(), QStringLiteral("16 Steps"));
    EXPECT_EQ(edits, 0);
    EXPECT_FALSE(HasPlayed());
}

TEST_F(TunFramHScrollTest, BeginsAt1AndLeavesAFifthFree)
{
    ShowTuneOf(64);
    EXPECT_EQ(Scroll().minimum(), 1);
    EXPECT_EQ(Scroll().value(), 1);
    EXPECT_EQ(Scroll().maximum(), 64 * 35 - 592);
    EXPECT_EQ(Scroll().pageStep(), 370);
    EXPECT_EQ(Surface().DurationBars()[1].left, 8 + 3) << "the steps begin at 8, not at 7";
}

TEST_F(TunFramHScrollTest, MovesTheSteps)
{
    ShowTuneOf(64);
    Scroll().setValue(36);
    EXPECT_EQ(Surface().DurationBars()[2].left, 8 - 36 + 35 + 3);
    EXPECT_EQ(StepButton(2).x(), 8 - 36 + 35 - 3);
    EXPECT_EQ(Find<QWidget>("ChangeAllBtn").x(), 64 * 35 + 8 - 36 + 8);
}

TEST_F(ChangeAllBtnTest, GivesAllStepsTheChosenBeat)
{
    SaveWaveFile(CountingWave(700), Shared().UserBeats / "Drum.wav");
    chosenBeat = "Drum";
    Click(editor, "ChangeAllBtn");
    EXPECT_EQ(chooserGot, std::vector<std::string>{""});
    for (std::int32_t i = 1; i <= 4; ++i) {
        EXPECT_EQ(At(tune.Steps, i).StepBeat.Name, "Drum");
        EXPECT_FALSE(At(tune.Steps, i).StepWaveValid);
    }
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(edits, 1);
}

TEST_F(ChangeAllBtnTest, ChangesNothingWithoutAChoice)
{
    Click(editor, "ChangeAllBtn");
    chosenBeat = "";
    Click(editor, "ChangeAllBtn");
    EXPECT_EQ(chooserGot.size(), 2U);
    EXPECT_EQ(edits, 0);
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "B1");
}

TEST_F(ChangeAllBtnTest, StandsBehindTheLastStepWhileAnyStepIsOn)
{
    constexpr std::array names{"ChangeAllBtn", "NoteInstrLbl", "NotePianoLbl"};
    for (const char* const name : names)
        EXPECT_FALSE(Find<QWidget>(name).isHidden()) << name;
    EXPECT_EQ(Find<QWidget>("ChangeAllBtn").pos(), QPoint(4 * 35 + 8 + 8, 75));
    for (TuneStep& step : tune.Steps)
        step.OnPos = 0;
    editor.UpdateThisTune();
    for (const char* const name : names)
        EXPECT_TRUE(Find<QWidget>(name).isHidden()) << name;
}

TEST_F(ChangeAllBtnTest, ShowsItsHintThoughItLiesOnTheSurface)
{
    MoveTo(In(1, 30));
    QTest::mouseMove(&Find<QWidget>("ChangeAllBtn"), QPoint(20, 20));
    QTest::mouseMove(&Find<QWidget>("ChangeAllBtn"), QPoint(22, 20));
    EXPECT_EQ(Hint(), "Change All button, use it to choose one instrument for all steps");
}

TEST_F(ChangeAllBtnTest, AsksForStepsFirst)
{
    ShowTuneOf(0);
    std::string words;
    WithNextForm([&words](BandedForm& form) {
        words = form.findChild<QLabel*>(QStringLiteral("NoteLbl"))->text().toStdString();
        Click(form, "OkBtn");
    });
    Click(editor, "ChangeAllBtn");
    EXPECT_EQ(words, "Set the number of steps and try.");
    EXPECT_TRUE(chooserGot.empty());
}

/// Makes the play-position timer tick.
void Tick(const StepEditor& editor)
{
    auto* const timer = editor.findChild<QTimer*>(QStringLiteral("PlayPosTimer"));
    ASSERT_TRUE(QMetaObject::invokeMethod(timer, "timeout"));
}

constexpr std::int32_t kCellFrames = 8269; // at the reference tempo

TEST_F(PlayMarksTest, FollowTheStepInPlay)
{
    editor.PlayCurrentTune(0);
    const QWidget& mark = Find<QWidget>("PlayingStepImg");
    const QWidget& onMark = Find<QWidget>("PlayingOnStepImg");
    EXPECT_TRUE(mark.isHidden());
    sound.place = {kCellFrames, true};
    Tick(editor);
    EXPECT_FALSE(mark.isHidden());
    EXPECT_EQ(mark.pos(), QPoint(8 + 35, 24));
    EXPECT_FALSE(onMark.isHidden());
    EXPECT_EQ(onMark.pos(), QPoint(8 + 35, 24));
    sound.place = {2 * kCellFrames, true};
    Tick(editor);
    EXPECT_EQ(mark.pos(), QPoint(8 + 70, 24));
    EXPECT_EQ(onMark.pos(), QPoint(8 + 35, 24)) << "step 3 is off";
}

TEST_F(PlayMarksTest, StayOnTheLastStepBehindTheCycle)
{
    editor.PlayCurrentTune(0);
    sound.place = {50 * kCellFrames, true};
    Tick(editor);
    EXPECT_EQ(Find<QWidget>("PlayingStepImg").pos(), QPoint(8 + 3 * 35, 24));
}

TEST_F(PlayMarksTest, CountTheLeadInAsSteps)
{
    editor.PlayCurrentTune(0.75F);
    sound.place = {kLeadInFrames, true};
    Tick(editor);
    EXPECT_EQ(Find<QWidget>("PlayingStepImg").pos(), QPoint(8 + 3 * 35, 24)) << "0.75 seconds are four steps";
}

TEST_F(PlayMarksTest, MoveWithTheScroll)
{
    ShowTuneOf(64);
    editor.PlayCurrentTune(0);
    sound.place = {kCellFrames, true};
    Tick(editor);
    Scroll().setValue(21);
    EXPECT_EQ(Find<QWidget>("PlayingStepImg").x(), 8 - 21 + 35);
    EXPECT_EQ(Find<QWidget>("PlayingOnStepImg").x(), 8 - 21 + 35);
}

TEST_F(PlayMarksTest, GoWithTheSound)
{
    editor.PlayCurrentTune(0);
    sound.place = {kCellFrames, true};
    Tick(editor);
    sound.place = {0, false};
    Tick(editor);
    EXPECT_TRUE(Find<QWidget>("PlayingStepImg").isHidden());
    EXPECT_TRUE(Find<QWidget>("PlayingOnStepImg").isHidden());
    EXPECT_FALSE(Find<QTimer>("PlayPosTimer").isActive());
}

TEST_F(PlayMarksTest, GoBeforeAStepIsPlayed)
{
    editor.PlayCurrentTune(0);
    sound.place = {kCellFrames, true};
    Tick(editor);
    ClickAt(In(2, 141 + 70, 25));
    EXPECT_TRUE(Find<QWidget>("PlayingStepImg").isHidden());
    EXPECT_FALSE(Find<QTimer>("PlayPosTimer").isActive());
    EXPECT_TRUE(sound.place.Playing) << "the step's own sound";
}

TEST_F(PlayMarksTest, GoBeforeABeatIsPlayed)
{
    editor.PlayCurrentTune(0);
    sound.place = {kCellFrames, true};
    Tick(editor);
    ClickAt(In(1, 100), Qt::RightButton);
    EXPECT_EQ(editorDisplay.status, "Playing Step");
    EXPECT_TRUE(Find<QWidget>("PlayingStepImg").isHidden());
    EXPECT_FALSE(Find<QTimer>("PlayPosTimer").isActive());
}

TEST_F(PlayMarksTest, AreNotShownWithoutSteps)
{
    editor.PlayCurrentTune(0);
    ShowTuneOf(0);
    Tick(editor);
    EXPECT_TRUE(Find<QWidget>("PlayingStepImg").isHidden());
}

} // namespace
} // namespace sprout
