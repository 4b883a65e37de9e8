// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseCaptureFeed.h"

#include <gmock/gmock.h>

#include <deque>
#include <string>
#include <vector>

#include "service/pulse/PulseLibrary.h"

namespace sprout {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kFeedFrameBytes = 4;

/// Logs its input: "5 from 1" for five frames, the first of which holds 1; "hole 7" for a hole.
class NotingSink : public CaptureSink {
public:
    void Take(std::span<const std::byte> frames) override
    {
        notes.push_back(std::to_string(frames.size() / kFeedFrameBytes) + " from " +
                        std::to_string(std::to_integer<int>(frames.front())));
    }
    void TakeHole(std::int64_t frames) override { notes.push_back("hole " + std::to_string(frames)); }

    std::vector<std::string> notes;
};

/// What a server's stream delivers next: frames, or a hole of that size.
struct Piece {
    std::vector<std::byte> data;
    std::size_t bytes = 0;
};

Piece FramesFrom(int first, int count)
{
    Piece piece;
    for (int frame = 0; frame < count; ++frame)
        piece.data.insert(piece.data.end(), kFeedFrameBytes, static_cast<std::byte>(first + frame));
    piece.bytes = piece.data.size();
    return piece;
}

Piece HoleOf(std::size_t frames)
{
    return {{}, frames * kFeedFrameBytes};
}

std::deque<Piece>& Waiting()
{
    static std::deque<Piece> pieces;
    return pieces;
}

/// The library's two calls, for a stream that holds the waiting pieces.
PulseLibrary CallsForWaiting()
{
    PulseLibrary calls;
    calls.StreamPeek = [](pa_stream*, const void** data, std::size_t* bytes) {
        *bytes = Waiting().empty() ? 0 : Waiting().front().bytes;
        *data = *bytes == 0 || Waiting().front().data.empty() ? nullptr : Waiting().front().data.data();
        return 0;
    };
    calls.StreamDrop = [](pa_stream*) {
        Waiting().pop_front();
        return 0;
    };
    return calls;
}

class PulseCaptureFeedTest : public testing::Test {
protected:
    PulseCaptureFeedTest() { Waiting().clear(); }

    void Bring(PulseCaptureFeed& from, std::deque<Piece> pieces, PulseCaptureFeed::Clock::time_point now)
    {
        Waiting() = std::move(pieces);
        from.TakeAll(calls, nullptr, now);
        EXPECT_THAT(Waiting(), IsEmpty()) << "all that the stream has is taken";
    }

    const PulseLibrary calls = CallsForWaiting();
    const PulseCaptureFeed::Clock::time_point start;
    NotingSink sink;
    PulseCaptureFeed feed;
};

TEST_F(PulseCaptureFeedTest, TellsAHoleOfTheServersOwnBetweenItsFrames)
{
    feed.GiveTo(sink, nullptr);
    Bring(feed, {FramesFrom(1, 3), HoleOf(882), FramesFrom(4, 2)}, start);
    EXPECT_THAT(sink.notes, ElementsAre("3 from 1", "hole 882", "2 from 4"));
}

TEST_F(PulseCaptureFeedTest, TellsAHoleWithWhichAStreamBegins)
{
    feed.GiveTo(sink, nullptr);
    Bring(feed, {HoleOf(10)}, start);
    EXPECT_THAT(sink.notes, ElementsAre("hole 10"));
}

TEST_F(PulseCaptureFeedTest, ThrowsTheBeginningAwayAndTheHolesInIt)
{
    feed.Skip(6);
    feed.GiveTo(sink, nullptr);
    Bring(feed, {HoleOf(2), FramesFrom(1, 2), HoleOf(5), FramesFrom(3, 1)}, start);
    EXPECT_THAT(sink.notes, ElementsAre("hole 3", "1 from 3"));
    sink.notes.clear();
    feed.Skip(2);
    Bring(feed, {FramesFrom(1, 5)}, start);
    EXPECT_THAT(sink.notes, ElementsAre("3 from 3"));
}

TEST_F(PulseCaptureFeedTest, ThrowsAwayWhatNobodyWants)
{
    Bring(feed, {FramesFrom(1, 3), HoleOf(9)}, start);
    feed.GiveTo(sink, nullptr);
    Bring(feed, {FramesFrom(4, 1)}, start);
    EXPECT_THAT(sink.notes, ElementsAre("1 from 4"));
}

TEST_F(PulseCaptureFeedTest, TellsTheGapBehindAnotherStreamOnce)
{
    feed.GiveTo(sink, nullptr);
    Bring(feed, {FramesFrom(1, 1)}, start);
    PulseCaptureFeed next;
    next.GiveTo(sink, &feed);
    Bring(next, {HoleOf(100)}, start + milliseconds(50));
    Bring(next, {FramesFrom(2, 2), FramesFrom(4, 1)}, start + milliseconds(100)); // 4,410 frames later
    EXPECT_THAT(sink.notes, ElementsAre("1 from 1", "hole 4408", "2 from 2", "1 from 4"));
}

TEST_F(PulseCaptureFeedTest, TellsNoGapWhereNoneIsAndOfAPauseHalfASecond)
{
    feed.GiveTo(sink, nullptr);
    Bring(feed, {FramesFrom(1, 1)}, start);
    PulseCaptureFeed next;
    next.GiveTo(sink, &feed);
    Bring(next, {FramesFrom(2, 1)}, start);
    PulseCaptureFeed last;
    last.GiveTo(sink, &next);
    Bring(last, {FramesFrom(3, 1)}, start + std::chrono::hours(8));
    EXPECT_THAT(sink.notes, ElementsAre("1 from 1", "1 from 2", "hole 22050", "1 from 3"));
}

} // namespace
} // namespace sprout
