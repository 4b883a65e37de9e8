// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TempoBar.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <memory>

#include "core/SongModel.h"
#include "support/FakeServices.h"
#include "support/Flags.h"
#include "ui/widgets/Hints.h"

namespace sprout {
namespace {

class TempoBarTest : public testing::Test {
protected:
    TempoBarTest()
    {
        NewSong();
        Freshen();
        SetStatusLbl(&statusLbl);
        bar = std::make_unique<TempoBar>(&window, watcher);
        window.resize(400, 100);
        window.show();
    }

    /// Makes everything fresh that a new tempo makes stale.
    void Freshen() const
    {
        SetSongMixValid(song, true);
        SetSongChanged(song, false);
        for (Track& track : song.Tracks) {
            SetTrackRenderValid(track, true);
            SetTuneWaveValid(track.TrackTune, true);
        }
    }

    [[nodiscard]] bool AllIsFresh() const
    {
        return song.SongMixValid && !song.SongChanged && song.Tracks[2].TrackRenderValid &&
               song.Tracks[2].TrackTune.TuneWaveValid;
    }

    [[nodiscard]] bool AllIsStale() const
    {
        bool stale = !song.SongMixValid && song.SongChanged;
        for (const std::size_t track : {1U, 2U})
            stale = stale && !song.Tracks[track].TrackRenderValid && !song.Tracks[track].TrackTune.TuneWaveValid;
        return stale;
    }

    [[nodiscard]] QWidget& Control(const char* name) const
    {
        return *bar->findChild<QWidget*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QString Text(const char* name) const
    {
        return bar->findChild<QLabel*>(QString::fromLatin1(name))->text();
    }

    void Press() { QTest::mousePress(&pointer(), Qt::LeftButton, {}, QPoint(10, 10)); }
    void DragBy(int pixels) { QTest::mouseMove(&pointer(), QPoint(10 + pixels, 12)); }
    void Release() { QTest::mouseRelease(&pointer(), Qt::LeftButton, {}, QPoint(10, 10)); }
    [[nodiscard]] QWidget& pointer() const { return Control("TempoPrtImg"); }

    FakeServices services;
    SongState& song = Shared().Song;
    QLabel statusLbl;
    QWidget window;
    HintWatcher watcher{&window};
    std::unique_ptr<TempoBar> bar;
};

TEST_F(TempoBarTest, ShowsTheSongsTempoAndDuration)
{
    EXPECT_EQ(Text("TempoLbl"), QStringLiteral("100%"));
    EXPECT_EQ(Text("SngDurLbl"), QStringLiteral("240 sec"));
    EXPECT_EQ(pointer().x(), 50);
    song.Tempo = 160;
    bar->UpdateTempoSliderValue();
    EXPECT_EQ(Text("TempoLbl"), QStringLiteral("50%"));
    EXPECT_EQ(Text("SngDurLbl"), QStringLiteral("480 sec"));
    EXPECT_EQ(pointer().x(), Control("TempoSliderImg").x());
}

TEST_F(TempoBarTest, LeavesATempoOutsideTheSliderInTheSong)
{
    song.Tempo = 3200;
    bar->UpdateTempoSliderValue();
    EXPECT_EQ(Text("TempoLbl"), QStringLiteral("200%"));
    EXPECT_EQ(Text("SngDurLbl"), QStringLiteral("24 sec"));
    EXPECT_EQ(pointer().x() + pointer().width(), Control("TempoSliderImg").width());
    EXPECT_EQ(song.Tempo, 3200);
    song.Tempo = 0;
    bar->UpdateTempoSliderValue();
    EXPECT_EQ(Text("TempoLbl"), QStringLiteral("50%"));
    EXPECT_EQ(Text("SngDurLbl"), QStringLiteral("0 sec"));
    EXPECT_TRUE(AllIsFresh());
}

TEST_F(TempoBarTest, ShowsADragAtOnceAndTakesItAtTheRelease)
{
    const QSignalSpy changes(bar.get(), &TempoBar::TempoChanged);
    Press();
    DragBy(50);
    EXPECT_EQ(pointer().x(), 100);
    EXPECT_EQ(Text("TempoLbl"), QStringLiteral("150%"));
    EXPECT_EQ(Text("SngDurLbl"), QStringLiteral("160 sec"));
    EXPECT_EQ(song.Tempo, 320);
    EXPECT_TRUE(AllIsFresh());
    Release();
    EXPECT_EQ(song.Tempo, 480);
    EXPECT_TRUE(AllIsStale());
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(Text("TempoLbl"), QStringLiteral("150%"));
    EXPECT_EQ(Text("SngDurLbl"), QStringLiteral("160 sec"));
}

TEST_F(TempoBarTest, ShowsTheDurationOfADragAlsoWhereTheTempoLayBeyondTheSlider)
{
    song.Tempo = 3200;
    bar->UpdateTempoSliderValue();
    ASSERT_EQ(Text("SngDurLbl"), QStringLiteral("24 sec"));
    Press();
    DragBy(20); // the pointer is already at the slot's end
    EXPECT_EQ(Text("TempoLbl"), QStringLiteral("200%"));
    EXPECT_EQ(Text("SngDurLbl"), QStringLiteral("120 sec"));
    EXPECT_EQ(song.Tempo, 3200);
    Release();
    EXPECT_EQ(song.Tempo, 640);
}

TEST_F(TempoBarTest, EndsADragWhoseReleaseGoesToAnotherWindow)
{
    QApplication::setActiveWindow(&window);
    pointer().setFocus();
    Press();
    DragBy(50);
    pointer().clearFocus();
    EXPECT_EQ(song.Tempo, 480);
    DragBy(20);
    EXPECT_EQ(Text("TempoLbl"), QStringLiteral("150%"));
    Release();
    EXPECT_EQ(song.Tempo, 480);
}

TEST_F(TempoBarTest, MarksNothingWhereTheTempoComesBackAsItWas)
{
    const QSignalSpy changes(bar.get(), &TempoBar::TempoChanged);
    Press();
    DragBy(30);
    DragBy(-30);
    Release();
    EXPECT_EQ(pointer().x(), 50);
    EXPECT_TRUE(AllIsFresh());
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(TempoBarTest, KeepsThePointerInItsSlot)
{
    Press();
    DragBy(-500);
    EXPECT_EQ(pointer().x(), 0);
    EXPECT_EQ(Text("TempoLbl"), QStringLiteral("50%"));
    DragBy(900);
    EXPECT_EQ(pointer().x() + pointer().width(), Control("TempoSliderImg").width());
    Release();
    EXPECT_EQ(song.Tempo, 640);
}

TEST_F(TempoBarTest, MovesOnlyWhileTheLeftButtonHoldsThePointer)
{
    DragBy(20);
    QTest::mousePress(&pointer(), Qt::RightButton, {}, QPoint(10, 10));
    DragBy(20);
    QTest::mouseRelease(&pointer(), Qt::RightButton, {}, QPoint(10, 10));
    EXPECT_EQ(pointer().x(), 50);
    EXPECT_TRUE(AllIsFresh());
    Press();
    DragBy(20);
    Release();
    Freshen();
    DragBy(20);
    EXPECT_EQ(pointer().x(), 70);
    EXPECT_TRUE(AllIsFresh());
}

TEST_F(TempoBarTest, AClickOnTheSlotMovesThePointerThere)
{
    QWidget& slot = Control("TempoSliderImg");
    const auto click = [&slot](int x) { QTest::mouseClick(&slot, Qt::LeftButton, {}, QPoint(x, 2)); };
    click(17 + 75); // the pointer is 34 pixels wide, and one percent is one pixel
    EXPECT_EQ(song.Tempo, 400);
    EXPECT_EQ(Text("TempoLbl"), QStringLiteral("125%"));
    EXPECT_EQ(pointer().x(), 75);
    EXPECT_TRUE(AllIsStale());
    click(0);
    EXPECT_EQ(song.Tempo, 160);
    click(slot.width() - 1);
    EXPECT_EQ(song.Tempo, 640);
    QTest::mouseClick(&slot, Qt::RightButton, {}, QPoint(20, 2));
    EXPECT_EQ(song.Tempo, 640);
}

TEST_F(TempoBarTest, AnswersTheKeys)
{
    struct KeyRow {
        Qt::Key key;
        std::int32_t tempo;
    };
    for (const auto& [key, tempo] :
         {KeyRow{Qt::Key_Right, 323}, KeyRow{Qt::Key_Up, 326}, KeyRow{Qt::Key_Left, 323}, KeyRow{Qt::Key_Down, 320},
          KeyRow{Qt::Key_PageUp, 352}, KeyRow{Qt::Key_PageDown, 320}, KeyRow{Qt::Key_End, 640},
          KeyRow{Qt::Key_Home, 160}}) {
        Freshen();
        QTest::keyClick(&pointer(), key);
        EXPECT_EQ(song.Tempo, tempo);
        EXPECT_TRUE(AllIsStale());
    }
    EXPECT_EQ(Text("TempoLbl"), QStringLiteral("50%"));
    Freshen();
    QTest::keyClick(&pointer(), Qt::Key_Left);
    EXPECT_TRUE(AllIsFresh());
}

TEST_F(TempoBarTest, LeavesTheWheelToOthers)
{
    QWheelEvent wheel({5, 5}, pointer().mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&pointer(), &wheel);
    EXPECT_FALSE(wheel.isAccepted());
    EXPECT_EQ(song.Tempo, 320);
}

TEST_F(TempoBarTest, IsASliderToAScreenReader)
{
    QAccessibleInterface* slider = QAccessible::queryAccessibleInterface(&pointer());
    ASSERT_TRUE(slider);
    EXPECT_EQ(slider->role(), QAccessible::Slider);
    EXPECT_EQ(slider->text(QAccessible::Name), QStringLiteral("Tempo"));
    EXPECT_EQ(slider->text(QAccessible::Description), QStringLiteral("Slide this pointer to adjust tempo"));
    ASSERT_TRUE(slider->valueInterface());
    EXPECT_EQ(slider->valueInterface()->minimumValue().toInt(), 50);
    EXPECT_EQ(slider->valueInterface()->maximumValue().toInt(), 200);
    EXPECT_EQ(slider->valueInterface()->currentValue().toInt(), 100);
    slider->valueInterface()->setCurrentValue(120);
    EXPECT_EQ(song.Tempo, 384);
    Press();
    DragBy(5);
    EXPECT_EQ(slider->valueInterface()->currentValue().toInt(), 125);
    Release();
}

TEST_F(TempoBarTest, ExplainsItselfOnTheStatusLine)
{
    const auto hintOf = [this](const char* name) {
        QTest::mouseMove(&Control(name), QPoint(20, 14));
        return statusLbl.text();
    };
    EXPECT_EQ(hintOf("TempoSliderImg"), QStringLiteral("Tempo slider, use it to change the speed of the song"));
    EXPECT_EQ(hintOf("TempoPrtImg"), QStringLiteral("Slide this pointer to adjust tempo"));
    EXPECT_EQ(hintOf("TempoLbl"), QStringLiteral("Tempo percentage, use the tempo slider to change"));
    EXPECT_EQ(hintOf("SngDurLbl"), QStringLiteral("Song duration in seconds"));
}

TEST_F(TempoBarTest, FitsIntoANarrowWindow)
{
    bar->FitRoom({170, 40});
    EXPECT_LE(bar->width(), 170);
    EXPECT_LE(Control("TempoLbl").geometry().bottom(), Control("SngDurLbl").y());
    const QWidget& slot = Control("TempoSliderImg");
    Press();
    DragBy(500);
    EXPECT_EQ(pointer().x() + pointer().width(), slot.width());
    DragBy(-500);
    Release();
    EXPECT_EQ(song.Tempo, 160);
    bar->FitRoom({1000, 40});
    EXPECT_EQ(slot.width(), 184);
}

TEST_F(TempoBarTest, HasItsLabelsBelowTheSlotWhereTheRoomIsNarrowAndHigh)
{
    bar->FitRoom({126, 53});
    EXPECT_EQ(bar->size(), QSize(126, 53));
    EXPECT_EQ(Control("TempoSliderImg").width(), 126);
    const QRect percent = Control("TempoLbl").geometry();
    const QRect seconds = Control("SngDurLbl").geometry();
    EXPECT_EQ(percent.topLeft(), QPoint(13, 37));
    EXPECT_EQ(seconds.bottomRight(), QPoint(112, 52));
    EXPECT_EQ(seconds.x(), percent.x() + percent.width());
    EXPECT_GT(seconds.width(), percent.width()) << "they share the width by what they may have to show";
    for (const char* name : {"TempoLbl", "SngDurLbl"}) {
        const auto& label = static_cast<const QLabel&>(Control(name));
        EXPECT_GE(QFontInfo(label.font()).pixelSize(), 12);
        EXPECT_LE(label.sizeHint().width(), label.width());
    }
    bar->FitRoom({300, 53});
    EXPECT_EQ(bar->size(), QSize(184, 53));
    bar->FitRoom({1000, 40});
    EXPECT_EQ(bar->height(), 40);
}

TEST_F(TempoBarTest, MarksTheUsualTempoUnderThePointersMiddle)
{
    for (const QSize room : {QSize(1000, 40), QSize(170, 40), QSize(126, 53)}) {
        bar->FitRoom(room);
        const QImage slot = Control("TempoSliderImg").grab().toImage();
        const int middle = pointer().x() + pointer().width() / 2;
        EXPECT_GT(slot.pixelColor(middle - 8, 6).lightness(), 150);
        EXPECT_LT(slot.pixelColor(middle - 1, 6).lightness(), 150);
        EXPECT_LT(slot.pixelColor(middle, 6).lightness(), 150);
    }
}

TEST_F(TempoBarTest, HasAPointerThatAChildCanHit)
{
    EXPECT_GE(pointer().width(), 20);
    EXPECT_GE(pointer().height(), 20);
    EXPECT_GE(bar->height(), pointer().geometry().bottom() + 1);
}

} // namespace
} // namespace sprout
