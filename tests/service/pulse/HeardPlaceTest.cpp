// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/HeardPlace.h"

#include <gtest/gtest.h>

#include <vector>

namespace sprout {
namespace {

using std::chrono::milliseconds;

/// A sound of 1000 ms in a format in which a millisecond is four bytes, queued by a half.
class HeardPlaceTest : public ::testing::Test {
protected:
    HeardPlaceTest() : queue(kFormat), heard(kFormat)
    {
        queue.Load(std::vector<std::byte>(4000, std::byte{1}), 4000);
        Queue(Loop::No, 2000);
    }

    void Queue(Loop loop, std::size_t bytes)
    {
        queue.Start(0, loop);
        std::vector<std::byte> written(bytes);
        queue.Fill(written);
    }

    /// The place that is heard `age` after `begun`.
    std::int64_t PlaceAt(milliseconds age)
    {
        static_cast<void>(heard.Follow(begun + age, queue));
        return heard.Place();
    }

    static constexpr SoundFormat kFormat{2, 1000, 16};
    const HeardPlace::Time begun = std::chrono::steady_clock::now();
    SoundQueue queue;
    HeardPlace heard;
};

TEST_F(HeardPlaceTest, StaysUntilSomethingIsReported)
{
    EXPECT_EQ(PlaceAt(milliseconds(300)), 0);
    heard.DeviceStarted(700);
    EXPECT_EQ(PlaceAt(milliseconds(300)), 0);
}

TEST_F(HeardPlaceTest, AReportFromBeforeTheStartDoesNotCount)
{
    heard.Report(begun, 900, milliseconds(0));
    EXPECT_EQ(PlaceAt(milliseconds(100)), 0);
    heard.DeviceStarted(700);
    heard.Report(begun, 700, milliseconds(0));
    EXPECT_EQ(PlaceAt(milliseconds(100)), 0);
    EXPECT_TRUE(heard.HasDeviceStarted());
}

TEST_F(HeardPlaceTest, RunsOnFromTheReportWithoutWhatIsStillUnheard)
{
    heard.DeviceStarted(700);
    heard.Report(begun, 1100, milliseconds(20));
    EXPECT_EQ(PlaceAt(milliseconds(0)), 400 - 80);
    EXPECT_EQ(PlaceAt(milliseconds(25)), 400 - 80 + 100);
}

TEST_F(HeardPlaceTest, NeverGoesBack)
{
    heard.DeviceStarted(0);
    heard.Report(begun, 400, milliseconds(0));
    EXPECT_EQ(PlaceAt(milliseconds(50)), 600);
    heard.Report(begun + milliseconds(50), 404, milliseconds(0));
    EXPECT_EQ(PlaceAt(milliseconds(60)), 600);
}

TEST_F(HeardPlaceTest, NeverPassesWhatIsQueued)
{
    heard.DeviceStarted(0);
    heard.Report(begun, 1900, milliseconds(0));
    EXPECT_EQ(PlaceAt(milliseconds(500)), 2000);
}

TEST_F(HeardPlaceTest, TheEndIsHeardByAFreshReportAndTheClock)
{
    Queue(Loop::No, 6000);
    heard.DeviceStarted(0);
    heard.Report(begun, 3900, milliseconds(0));
    EXPECT_EQ(heard.Follow(begun + milliseconds(24), queue), EndHeard::No);
    EXPECT_EQ(heard.Follow(begun + milliseconds(25), queue), EndHeard::Yes);
    EXPECT_EQ(heard.Place(), 4000);
}

TEST_F(HeardPlaceTest, AnOldReportLeavesTheEndUnknownUntilANewOne)
{
    Queue(Loop::No, 6000);
    heard.DeviceStarted(0);
    heard.Report(begun, 3700, milliseconds(0));
    EXPECT_EQ(heard.Follow(begun + milliseconds(90), queue), EndHeard::Unknown);
    heard.Report(begun + milliseconds(90), 3900, milliseconds(0)); // the device stood still
    EXPECT_EQ(heard.Follow(begun + milliseconds(100), queue), EndHeard::No);
    heard.Report(begun + milliseconds(110), 4000, milliseconds(0));
    EXPECT_EQ(heard.Follow(begun + milliseconds(900), queue), EndHeard::Yes);
}

TEST_F(HeardPlaceTest, ALoopHasNoEnd)
{
    Queue(Loop::Yes, 9000);
    heard.DeviceStarted(0);
    heard.Report(begun, 8900, milliseconds(0));
    EXPECT_EQ(heard.Follow(begun + milliseconds(500), queue), EndHeard::No);
    EXPECT_EQ(heard.Place(), 9000);
}

TEST_F(HeardPlaceTest, AStopLeavesThePlaceWhereTheDeviceStopped)
{
    heard.DeviceStarted(700);
    heard.Report(begun, 1500, milliseconds(0));
    EXPECT_EQ(PlaceAt(milliseconds(10)), 840);
    heard.DeviceStopped(1520); // it gave back a part
    EXPECT_EQ(heard.Place(), 820);
}

TEST_F(HeardPlaceTest, AStopOfAnEmptyStreamMovesNothing)
{
    heard.DeviceStopped(1520);
    EXPECT_EQ(heard.Place(), 0);
}

TEST_F(HeardPlaceTest, AfterAPauseItCountsFromTheSameBeginning)
{
    heard.DeviceStarted(700);
    heard.DeviceStopped(1500);
    heard.GoOn();
    EXPECT_FALSE(heard.HasDeviceStarted());
    heard.Report(begun, 1600, milliseconds(0));
    EXPECT_EQ(PlaceAt(milliseconds(0)), 800);
    heard.DeviceStarted(1500);
    heard.Report(begun, 1600, milliseconds(0));
    EXPECT_EQ(PlaceAt(milliseconds(0)), 900);
}

TEST_F(HeardPlaceTest, AnEmptiedStreamBeginsAtThePlace)
{
    heard.DeviceStarted(700);
    heard.DeviceStopped(1500);
    heard.StartAnew();
    heard.DeviceStarted(5000);
    heard.Report(begun, 5040, milliseconds(0));
    EXPECT_EQ(PlaceAt(milliseconds(0)), 840);
    heard.Rewind();
    EXPECT_EQ(heard.Place(), 0);
}

} // namespace
} // namespace sprout
