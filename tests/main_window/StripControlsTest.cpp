// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/StripControls.h"

#include "main_window/TitleStripFixture.h"
#include "main_window/rules/MainWindowHints.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StripControlsTest : public TitleStripFixture {};

TEST_F(StripControlsTest, PutsTheAddButtonsBelowTheLastRow)
{
    const auto expectTop = [this](int top) {
        EXPECT_EQ(Part("TrackAddBtn").geometry().topLeft().y(), top);
        EXPECT_EQ(Part("TrackAddRecBtn").pos(), Part("TrackAddBtn").pos() + QPoint(55, 0));
        EXPECT_EQ(Part("TrackTopLbl").y(), top + 50);
    };
    EXPECT_EQ(Part("TrackAddBtn").size(), QSize(48, 48));
    EXPECT_EQ(Part("TrackAddRecBtn").size(), QSize(48, 48));
    EXPECT_TRUE(IsShown("TrackAddBtn"));
    EXPECT_TRUE(IsShown("TrackAddRecBtn"));
    expectTop(2 * 46 + 30);
    SetTracks(5);
    expectTop(5 * 46 + 30);
    Scroll("TrackVScroll").setValue(2);
    expectTop(4 * 46 + 30);
}

TEST_F(StripControlsTest, AddsTracksByItsButtons)
{
    statusLbl.setText(QStringLiteral("old"));
    QTest::mouseClick(&Part("TrackAddBtn"), Qt::LeftButton);
    EXPECT_EQ(statusLbl.text(), QString());
    QTest::keyClick(&Part("TrackAddRecBtn"), Qt::Key_Return);
    EXPECT_THAT(asked, ElementsAre("TrackAddBtn", "TrackAddRecBtn"));
}

TEST_F(StripControlsTest, AClickOnAFloatingButtonRunsItsCommandAndClearsTheHint)
{
    const auto click = [this](int x, std::int32_t row, const char* name) {
        Hover(x, RowY(row) + 20);
        QTest::mouseClick(&Part(name), Qt::LeftButton);
        EXPECT_EQ(statusLbl.text(), QString()) << name;
    };
    click(40, 1, "TrackTuneBtn");
    click(40, 2, "TrackAudioBtn");
    click(77, 2, "TrackDeleteBtn");
    click(117, 1, "TrackPlayBtn");
    EXPECT_THAT(asked, ElementsAre("TrackTuneBtn", "TrackAudioBtn", "TrackDeleteBtn", "TrackPlayBtn"));
    EXPECT_EQ(canvas->HoverTrack(), 1);
}

TEST_F(StripControlsTest, EveryButtonSaysWhatItIs)
{
    for (const char* name :
         {"TrackTuneBtn", "TrackAudioBtn", "TrackDeleteBtn", "TrackPlayBtn", "TrackAddBtn", "TrackAddRecBtn"}) {
        EXPECT_FALSE(Part(name).accessibleName().isEmpty()) << name;
        EXPECT_EQ(Part(name).accessibleDescription().toStdString(), MainWindowHint(name).English()) << name;
    }
}

TEST_F(StripControlsTest, TheHeadingsExplainThemselvesWhenClicked)
{
    const auto expectMessage = [this](const char* name, const char* message, const std::function<void()>& click) {
        QString shown;
        WithNextForm([&shown](BandedForm& form) {
            for (const QLabel* label : form.findChildren<QLabel*>())
                shown += label->text() + QLatin1Char('|');
            form.reject();
        });
        click();
        EXPECT_TRUE(shown.contains(QString::fromLatin1(message))) << name << ": " << shown.toStdString();
    };
    expectMessage("Label1", "Click on the Play button below this.", [this] { Click(window, "Label1"); });
    expectMessage("Label5", "Click on the Tune button below this.", [this] { Click(window, "Label5"); });
    expectMessage("Label5", "Click on the Tune button below this.",
                  [this] { QTest::keyClick(&Part("Label5"), Qt::Key_Return); });
    RepeatKey(Part("Label5"), Qt::Key_Return); // shows no message, which this test would have to close
    // They are above the columns that they name.
    EXPECT_EQ(Part("Label1").accessibleName(), QStringLiteral("Play"));
    EXPECT_EQ(Part("Label5").accessibleName(), QStringLiteral("Tune"));
    EXPECT_EQ(Part("Label5").accessibleDescription(), QStringLiteral("Click on the Tune button below this."));
    EXPECT_LT(Part("Label1").geometry().bottom(), 20);
    EXPECT_TRUE(Part("Label1").geometry().contains(QPoint(118, 10)));
    EXPECT_TRUE(Part("Label5").geometry().contains(QPoint(40, 10)));
}

} // namespace
} // namespace sprout
