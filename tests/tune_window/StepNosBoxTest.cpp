// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepNosBox.h"

#include <QLineEdit>
#include <QWheelEvent>

#include <algorithm>

#include "tune_window/StepEditorTest.h"

namespace sprout {
namespace {

using StepNosCmbTest = StepEditorTest;

constexpr std::int32_t kLeadInFrames = 33075;

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

TEST_F(StepNosCmbTest, AsksForACountAndIgnoresTheWheel)
{
    StepNosBox box(&window);
    std::vector<std::int32_t> wanted;
    QObject::connect(&box, &StepNosBox::StepCountWanted, &box, [&](std::int32_t count) { wanted.push_back(count); });
    box.SyncStepCombo();
    EXPECT_EQ(box.currentText(), QStringLiteral("4 Steps"));
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(box.currentText(), QStringLiteral("4 Steps"));
    PickSteps(box, PlaceOfSteps(box, 32));
    EXPECT_EQ(wanted, std::vector<std::int32_t>{32});
    EXPECT_EQ(tune.StepCount, 4) << "the editor changes the tune";
}

} // namespace
} // namespace sprout
