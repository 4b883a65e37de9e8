// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TunFramPic.h"

#include "support/FakeServices.h"
#include "tune_window/BlackKeys.h"
#include "tune_window/StepEditorTest.h"
#include "tune_window/rules/KeyMap.h"
#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"

namespace sprout {
namespace {

class TunFramPicTest : public StepEditorTest {
protected:
    /// The artwork as it must appear on the surface.
    static QImage ArtOf(const char* name, QSize size)
    {
        return Artwork(QStringLiteral("pictures/") + QString::fromLatin1(name), size, 1).toImage();
    }
};

TEST(KeysPic, ShowsEveryKeyWhereItIsHit)
{
    for (const auto& [name, scale] : {std::pair{"KeysPic", 1}, {"KeysPic", 2}, {"KeysPicOwnPitch", 1}}) {
        const QImage octave =
            Artwork(QStringLiteral("pictures/") + QString::fromLatin1(name), QSize(kOctaveWidth, kOctaveHeight), scale)
                .toImage();
        ASSERT_EQ(octave.size(), QSize(kOctaveWidth, kOctaveHeight) * scale);
        for (int y = 0; y < octave.height(); ++y)
            for (int x = 0; x < octave.width(); ++x) {
                const QColor colour = octave.pixelColor(x, y);
                const std::int32_t key = KeyAt(x / scale, y / scale);
                if (key == kNoKey)
                    EXPECT_EQ(colour, kBark) << x << ", " << y;
                else if (IsBlackKey(key))
                    EXPECT_TRUE(colour != kBark && colour.value() < 100) << x << ", " << y;
                else
                    EXPECT_GE(colour.value(), 200) << x << ", " << y;
            }
    }
}

TEST_F(TunFramPicTest, DrawsLampsForAllStepsAndKeysForOnSteps)
{
    const QImage drawn = Drawn();
    const QImage octave = ArtOf("KeysPic", QSize(30, 73));
    const QImage on = ArtOf("StpOnPic", QSize(30, 16));
    const QImage off = ArtOf("StpOffPic", QSize(30, 16));
    for (std::int32_t step = 1; step <= 4; ++step) {
        const int x = StepLeft(step, 8);
        const bool isOn = step != 3;
        EXPECT_EQ(drawn.pixelColor(x + 15, 24 + 8), (isOn ? on : off).pixelColor(15, 8)) << step;
        for (const QPoint place : {QPoint(24, 3), QPoint(5, 9), QPoint(24, 40)})
            for (const int top : {141, 213})
                EXPECT_EQ(drawn.pixelColor(x + place.x(), top + place.y()) == octave.pixelColor(place), isOn) << step;
    }
}

TEST_F(TunFramPicTest, TintsTheKeyOfTheBeatsOwnPitchAlone)
{
    const QImage drawn = Drawn();
    const int x = StepLeft(1, 8) + 24;
    EXPECT_LT(drawn.pixelColor(x, kUpperOctaveTop + 66).blue(), 0xC0);
    EXPECT_EQ(drawn.pixelColor(x, kUpperOctaveTop + 56), QColor(Qt::white));
    EXPECT_EQ(drawn.pixelColor(x, kLowerOctaveTop + 66), QColor(Qt::white));
}

TEST_F(TunFramPicTest, PrintsTheNumberOfEveryStepBelowItsLamp)
{
    ShowTuneOf(64);
    Scroll().setValue(Scroll().maximum());
    const QImage drawn = Drawn();
    for (const std::int32_t step : {50, 64}) {
        const QRect place(StepLeft(step, StepsLeftAt(Scroll().value())), kNumberTop, 30, 14);
        int inked = 0;
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                inked += drawn.pixelColor(x, y).value() < 128 ? 1 : 0;
        EXPECT_GT(inked, 15) << step;
        EXPECT_LT(inked, 150) << step;
    }
}

TEST_F(TunFramPicTest, LaysTheStripFromItsLeftEndToTheLastStep)
{
    const QImage drawn = Drawn();
    const QColor plank = ArtOf("PitchOnOffMiddle", QSize(35, 38)).pixelColor(20, 10);
    EXPECT_EQ(drawn.pixelColor(8 + 33, 19 + 10), plank);
    EXPECT_EQ(drawn.pixelColor(8 + 4 * 35 - 1, 19 + 10), plank);
    const QColor end = ArtOf("PitchOnOffRight", QSize(4, 38)).pixelColor(2, 10);
    EXPECT_NE(end, kPaper);
    EXPECT_EQ(drawn.pixelColor(8 + 4 * 35 + 2, 19 + 10), end);
    EXPECT_EQ(drawn.pixelColor(8 + 4 * 35 + 4, 19 + 10), kPaper);
    EXPECT_EQ(drawn.pixelColor(4, 19 + 10), kPaper);
    EXPECT_NE(drawn.pixelColor(5, 19 + 10), kPaper);
    EXPECT_EQ(drawn.pixelColor(8 + 33, 18), kPaper);
}

TEST_F(TunFramPicTest, KeepsTheLeftEndOfTheStripWhereItIsWhenTheStepsAreScrolled)
{
    Scroll().setValue(3);
    const QImage drawn = Drawn();
    EXPECT_EQ(drawn.pixelColor(4, 19 + 10), kPaper);
    EXPECT_NE(drawn.pixelColor(5, 19 + 10), kPaper);
}

TEST_F(TunFramPicTest, DrawsTheIconInARaisedFrame)
{
    const QImage drawn = Drawn();
    const QColor icon(3, 0, 0); // the default picture: the beats have none
    EXPECT_EQ(drawn.pixelColor(43 - 1, 79), icon);
    EXPECT_EQ(drawn.pixelColor(43 + 30, 110), icon);
    EXPECT_EQ(drawn.pixelColor(43 + 31, 95), kPaper);
    EXPECT_EQ(drawn.pixelColor(43 - 2, 112 - 1), QColor(Qt::white));
    EXPECT_EQ(drawn.pixelColor(43 + 32, 78), QColor(Qt::white));
    EXPECT_EQ(drawn.pixelColor(43 + 33, 112), QColor(0x80, 0x80, 0x80));
    EXPECT_EQ(drawn.pixelColor(43 + 10, 112), QColor(0x80, 0x80, 0x80));
    EXPECT_EQ(drawn.pixelColor(78 + 10, 95), kPaper) << "step 3 is off";
}

TEST_F(TunFramPicTest, LaysTheEarlierBarOverTheLater)
{
    tune.Steps[1].Duration = 200;
    editor.UpdateThisTune();
    const QImage drawn = Drawn();
    const DurationBar first = Surface().DurationBars()[1];
    const QColor middle = ArtOf("DurationMiddle", QSize(8, 8)).pixelColor(4, 4);
    EXPECT_EQ(drawn.pixelColor(first.handleX - 2, first.top + 4), middle);
    const QColor cap = ArtOf("DurationRight", QSize(8, 8)).pixelColor(5, 4);
    EXPECT_EQ(drawn.pixelColor(first.handleX + 5, first.top + 4), cap) << "over the bar of step 2";
}

TEST_F(TunFramPicTest, DrawsABarOfAnyLength)
{
    tune.Steps[1].Duration = 2000000000;
    editor.UpdateThisTune();
    const DurationBar bar = Surface().DurationBars()[1];
    const QColor middle = ArtOf("DurationMiddle", QSize(8, 8)).pixelColor(4, 4);
    EXPECT_EQ(Drawn().pixelColor(Surface().width() - 1, bar.top + 4), middle);
}

TEST_F(TunFramPicTest, MarksABeatWithoutAFileOnlyWhereFilesDoNotCarryTheirBeats)
{
    WriteBytes(Shared().UserBeats / "B1.wav", "any");
    tune.Steps[4].StepBeat.Name.clear();
    const QColor mark = ArtOf("MissingBeatMark", QSize(32, 32)).pixelColor(16, 22);
    const auto isMarked = [&](std::int32_t step) {
        return Drawn().pixelColor(StepLeft(step, 8) - 2 + 16, 78 + 22) == mark;
    };
    editor.UpdateThisTune();
    EXPECT_FALSE(isMarked(2));
    Shared().SongBeatsInside = false;
    editor.UpdateThisTune();
    EXPECT_FALSE(isMarked(1)) << "its file is there";
    EXPECT_TRUE(isMarked(2));
    EXPECT_FALSE(isMarked(3)) << "it is off";
    EXPECT_FALSE(isMarked(4)) << "it has no beat";
}

TEST_F(TunFramPicTest, ShowsATuneOnlyWhenAskedTo)
{
    const DurationBar bar = Surface().DurationBars()[4];
    MoveTo(QPoint(bar.handleX + 1, bar.top + 1));
    ASSERT_FALSE(Handle().isHidden());
    const QImage before = Drawn();
    MakeTune(2);
    EXPECT_EQ(Drawn(), before);
    QTest::mousePress(&Surface(), Qt::LeftButton, Qt::NoModifier, QPoint(bar.handleX + 1, bar.top + 1));
    MoveTo(QPoint(bar.handleX + 9, bar.top + 1));
    QTest::mouseRelease(&Surface(), Qt::LeftButton, Qt::NoModifier, QPoint(bar.handleX + 9, bar.top + 1));
    ClickAt(In(4, 30));
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Up, Qt::Key_Delete, Qt::Key_Right})
        QTest::keyClick(&StepButton(4), key);
    EXPECT_EQ(edits, 0) << "the tune has no such step";
}

} // namespace
} // namespace sprout
