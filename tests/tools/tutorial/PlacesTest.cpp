// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/Places.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QListWidget>

#include "base/Errors.h"
#include "core/Shared.h"
#include "main_window/TrackCanvas.h"
#include "support/TestFolder.h"
#include "tutorial/DemoProgram.h"
#include "tutorial/Hand.h"
#include "tutorial/HeldTimers.h"

namespace sprout {
namespace {

/// The program with the sample song, and a small window in front of it if a test shows that.
class PlacesTest : public testing::Test {
protected:
    static void Click(const std::vector<std::string>& words)
    {
        Hand hand;
        hand.MoveTo(FindPlace(words).center() - QPoint(1, 1));
        hand.MoveTo(FindPlace(words).center());
        hand.Press();
        hand.Release();
    }

    TestFolder folder;
    HeldTimers timers;
    DemoProgram program{SPROUT_INSTALLED, folder.Path()};
};

TEST_F(PlacesTest, AreControls)
{
    const QWidget& button = *FrontWindow().findChild<QWidget*>(QStringLiteral("PlayAllBtn"));
    EXPECT_EQ(FindPlace({"PlayAllBtn"}), QRect(button.mapToGlobal(QPoint(0, 0)), button.size()));
    EXPECT_THROW(static_cast<void>(FindPlace({"NoSuchBtn"})), RunTimeError);
    EXPECT_THROW(static_cast<void>(FindPlace({"picture", "1"})), RunTimeError) << "another window has these";
}

TEST_F(PlacesTest, ArePointsOfControls)
{
    const QRect strip = FindPlace({"TrackPic"});
    EXPECT_EQ(FindPlace({"at", "TrackPic", "50", "0"}).center(), strip.topLeft() + QPoint(strip.width() / 2, 0));
}

TEST_F(PlacesTest, AreCellsOfTracks)
{
    At(Shared().Song.Tracks, 2).Painted.assign(At(Shared().Song.Tracks, 2).Painted.size(), 0);
    Click({"cell", "2", "50"});
    EXPECT_TRUE(At(Shared().Song.Tracks, 2).IsPainted(50));
    EXPECT_FALSE(At(Shared().Song.Tracks, 2).IsPainted(49));
    EXPECT_FALSE(At(Shared().Song.Tracks, 2).IsPainted(51));
    EXPECT_THROW(static_cast<void>(FindPlace({"cell", "2", "900"})), RunTimeError) << "not in view";
}

TEST_F(PlacesTest, ArePartsOfATracksTitle)
{
    const auto& canvas = *FrontWindow().findChild<TrackCanvas*>();
    Hand().MoveTo(FindPlace({"row", "3", "tune"}).center());
    EXPECT_EQ(canvas.HoverTrack(), 3);
    EXPECT_TRUE(canvas.TrackTuneBtnVisible());
    for (const char* part : {"delete", "play"}) {
        Hand().MoveTo(FindPlace({"row", "2", part}).center());
        EXPECT_EQ(canvas.HoverTrack(), 2);
        EXPECT_FALSE(canvas.TrackTuneBtnVisible()) << part;
    }
}

TEST_F(PlacesTest, AreLinesOfTheListInFront)
{
    QDialog dialog;
    dialog.setModal(true);
    QListWidget list(&dialog);
    list.setGeometry(10, 10, 200, 100);
    list.addItems({QStringLiteral("Bamboo"), QStringLiteral("Toy Shop")});
    dialog.show();
    QApplication::processEvents();
    Click({"line", "Toy Shop"});
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_THROW(static_cast<void>(FindPlace({"line", "Zumi"})), RunTimeError);
}

} // namespace
} // namespace sprout
