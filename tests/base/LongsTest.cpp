// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Longs.h"

#include <gtest/gtest.h>

#include <limits>
#include <span>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "support/AllocationWatch.h"
#include "support/HandArray.h"

namespace sprout {
namespace {

using Elements = std::vector<std::int32_t>;

/// A reader of elements in memory.
class ReaderOf {
public:
    explicit ReaderOf(Elements values)
        : elements(std::move(values)),
          source(std::as_bytes(std::span(elements))),
          data(LongsReader::Raw(source, 0, source.Size()))
    {
    }
    LongsReader* operator->() { return &data; }

private:
    Elements elements;
    MemorySource source;
    LongsReader data;
};

TEST(TextToLongs, CountsElementsWithTiesToEven)
{
    const std::pair<std::size_t, std::int32_t> lastIndexes[] = {{1, 2}, {2, 2}, {3, 3},  {4, 3},  {5, 3},  {6, 4},
                                                                {7, 4}, {8, 4}, {10, 4}, {11, 5}, {14, 6}, {18, 6}};
    for (const auto& [length, last] : lastIndexes) {
        const Elements block = TextToLongs(std::string(length, 'x'));
        EXPECT_EQ(block[0], last) << length;
        EXPECT_EQ(block[1], static_cast<std::int32_t>(length));
        EXPECT_EQ(block.size(), static_cast<std::size_t>(last) + 1);
    }
}

TEST(TextToLongs, PacksFourBytesAnElementAndLeavesTheRestZero)
{
    EXPECT_EQ(TextToLongs("abcde"), (Elements{3, 5, 0x64636261, 0x65}));
    EXPECT_EQ(TextToLongs("abcdef"), (Elements{4, 6, 0x64636261, 0x6665, 0})); // one spare element
    EXPECT_EQ(TextToLongs(""), (Elements{1, 0}));
}

TEST(TextToLongs, StoresTheCodePageAndCountsItsBytes)
{
    EXPECT_EQ(TextToLongs("\xC3\xA9"), (Elements{2, 1, 0xE9}));
    EXPECT_EQ(TextToLongs("\xE2\x82\xAC"), (Elements{2, 1, 0x80}));
}

TEST(LongsToText, ReturnsEveryTextOfEveryAlphabet)
{
    for (std::size_t length = 0; length < 40; ++length)
        EXPECT_EQ(LongsToText(TextToLongs(std::string(length, 'q'))), std::string(length, 'q'));
    for (const char* text : {"Caf\xC3\xA9", "\xE6\xA5\xBD\xE6\x9B\xB2", "\xD0\x9F\xD0\xB5\xD1\x81\xD0\xBD\xD1\x8F",
                             "\xF0\x9F\x8E\xB5", "\xC3\x83\xC2\xA9"})
        EXPECT_EQ(LongsToText(TextToLongs(text)), text);
}

TEST(LongsToText, StepsByTheIndexOfTheLastElementAndNotByTheLength)
{
    ReaderOf data({5, 2, 0x6261, 7, 8, 9, 42});
    EXPECT_EQ(data->GetText(), "ab");
    EXPECT_EQ(data->Get(), 42);
}

TEST(LongsToText, RefusesTextsThatDoNotFitIntoTheirBlock)
{
    EXPECT_THROW(static_cast<void>(LongsToText(Elements{2, 5, 0x64636261})), RunTimeError);
    EXPECT_THROW(static_cast<void>(LongsToText(Elements{2, -1, 0})), RunTimeError);
    EXPECT_THROW(static_cast<void>(LongsToText(Elements{-1, 1, 0})), RunTimeError);
    EXPECT_THROW(static_cast<void>(LongsToText(Elements{0, 0})), RunTimeError);
    EXPECT_THROW(static_cast<void>(LongsToText(Elements{})), RunTimeError);
    EXPECT_THROW(static_cast<void>(LongsToText(Elements{2147483647, 2147483647})), RunTimeError);
}

TEST(LongsWriter, WritesAMonoWaveOfOddLengthWithAZeroHalf)
{
    LongsWriter data;
    data.PutWave(WaveOf({1, -2, 3}));
    EXPECT_EQ(data.Elements(), (Elements{6, 16, 1, 44100, 3, static_cast<std::int32_t>(0xFFFE0001), 3}));
}

TEST(LongsWriter, WritesAMonoWaveOfEvenLengthWithASpareElement)
{
    LongsWriter data;
    data.PutWave(WaveOf({1, 2}));
    EXPECT_EQ(data.Elements(), (Elements{6, 16, 1, 44100, 2, 0x00020001, 0}));
}

TEST(LongsWriter, WritesTheRightChannelBehindTheLeft)
{
    LongsWriter data;
    data.PutWave(WaveOf({1, 2}, {3, 4}));
    EXPECT_EQ(data.Elements(), (Elements{8, 16, 2, 44100, 2, 0x00020001, 0, 0x00040003, 0}));
}

TEST(LongsWriter, WritesAnEmptyWaveAsItsHeadAlone)
{
    LongsWriter data;
    data.PutWave(WaveData());
    EXPECT_EQ(data.Elements(), (Elements{4, 16, 2, 44100, 0}));
}

TEST(LongsWriter, GoesByTheLengthOfAWaveAndNotByItsArrays)
{
    WaveData cleared = WaveOf({1, 2, 3}, {4, 5, 6});
    cleared.Length = 0;
    LongsWriter data;
    data.PutWave(cleared);
    EXPECT_EQ(data.Elements(), (Elements{4, 16, 2, 44100, 0}));
}

TEST(LongsWriter, KeepsSamplesUncopied)
{
    const WaveData wave = WaveOf(std::vector<std::int16_t>(1000, 5));
    LongsWriter data;
    data.PutWave(wave);
    data.Put(7);
    const auto pieces = data.Pieces();
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_EQ(pieces[1].data(), std::as_bytes(wave.WavL.Samples()).data());
}

TEST(LongsWriter, WritesPicturesInColumns)
{
    std::vector<std::uint32_t> pixels(kPicturePixels);
    pixels[1] = 0x123456;            // x 1, y 0
    pixels[kPictureSide] = 0xABCDEF; // x 0, y 1
    LongsWriter data;
    data.PutPicture({kPictureSide, kPictureSide, pixels});
    const Elements elements = data.Elements();
    ASSERT_EQ(elements.size(), 1024U);
    EXPECT_EQ(elements[1], 0xABCDEF);
    EXPECT_EQ(elements[32], 0x123456);
}

TEST(LongsWriter, PutsTheLastIndexAheadOfTheWaves)
{
    LongsWriter data;
    data.Put(0);
    data.PutText("abc");
    data.PutWave(WaveOf({1}));
    data.PutLastIndex();
    EXPECT_EQ(data.Elements().front(), static_cast<std::int32_t>(data.Elements().size()) - 1);
}

TEST(LongsWriter, RefusesMoreElementsThan32BitNumbersCount)
{
    WaveData wave;
    wave.Channels = 1;
    wave.Length = 1 << 26; // blocks of 2^25 elements that share their samples
    wave.WavL = Channel::Unfilled(wave.Length);
    LongsWriter data;
    for (int i = 0; i < 63; ++i)
        data.PutWave(wave);
    EXPECT_GT(data.Count(), 0);
    data.PutWave(wave);
    EXPECT_THROW(static_cast<void>(data.Count()), RunTimeError);
}

TEST(LongsReader, ReturnsEveryWaveAsItWas)
{
    for (std::int16_t length = 0; length < 9; ++length) {
        std::vector<std::int16_t> left, right;
        for (std::int16_t i = 0; i < length; ++i) {
            left.push_back(i);
            right.push_back(static_cast<std::int16_t>(-i));
        }
        for (const bool stereo : {false, true}) {
            WaveData wave = WaveOf(left, stereo ? right : std::vector<std::int16_t>());
            wave.Channels = stereo ? 2 : 1;
            wave.Bits = 8;
            wave.Rate = 11025;
            LongsWriter data;
            data.PutWave(wave);
            data.Put(99);
            ReaderOf read(data.Elements());
            EXPECT_EQ(read->GetWave(), wave) << length;
            EXPECT_EQ(read->Get(), 99);
        }
    }
}

TEST(LongsReader, TakesASingleElementForAnEmptyWave)
{
    ReaderOf data({0, 7});
    EXPECT_EQ(data->GetWave(), WaveData());
    EXPECT_EQ(data->Get(), 7);
}

TEST(LongsReader, GivesAWaveOfOddChannelCountOneChannel)
{
    ReaderOf data({6, 16, 7, 44100, 2, 0x00020001, 0});
    const WaveData wave = data->GetWave();
    EXPECT_EQ(wave.Channels, 7);
    EXPECT_EQ(wave.WavL[2], 2);
    EXPECT_EQ(wave.WavR.UpperBound(), 0);
}

TEST(LongsReader, RefusesWavesThatLieAboutTheirLength)
{
    const std::int32_t most = std::numeric_limits<std::int32_t>::max();
    for (const Elements& block :
         {Elements{4, 16, 1, 44100, 1}, Elements{5, 16, 1, 44100, 3, 0}, Elements{6, 16, 2, 44100, 2, 0, 0},
          Elements{5, 16, 1, 44100, -1, 0}, Elements{4, 16, 2, 44100, most}, Elements{most, 16, 2, 44100, 1, 0, 0},
          Elements{-5, 16, 2, 44100, 0}, Elements{3, 16, 2, 44100, 0}, Elements{4, 16, 2}}) {
        ReaderOf data(block);
        const AllocationWatch watch;
        EXPECT_THROW(static_cast<void>(data->GetWave()), RunTimeError);
        EXPECT_THROW(ReaderOf(block)->SkipWave(), RunTimeError);
        EXPECT_LT(watch.Largest(), 100'000U);
    }
}

TEST(LongsReader, SkipsEachBlockToWhereReadingItEnds)
{
    LongsWriter data;
    data.PutText("");
    data.PutText("abcdefgh"); // with a spare element
    data.PutWave(WaveOf({1, 2, 3}, {4, 5, 6}));
    data.PutWave(WaveOf({1, 2}));
    data.PutWave(WaveData());
    data.Put(0); // an empty wave too
    data.PutPicture(PlainPicture(7));
    data.PutMany(Elements{1, 2, 3, 4, 5, 6});
    data.Put(99);
    ReaderOf read(data.Elements());
    ReaderOf skip(data.Elements());
    const auto expectSamePlace = [&] { EXPECT_EQ(skip->Left(), read->Left()); };
    for (int text = 0; text < 2; ++text) {
        static_cast<void>(read->GetText());
        skip->SkipText();
        expectSamePlace();
    }
    for (int wave = 0; wave < 4; ++wave) {
        static_cast<void>(read->GetWave());
        skip->SkipWave();
        expectSamePlace();
    }
    static_cast<void>(read->GetPicture());
    skip->SkipPicture();
    expectSamePlace();
    skip->SkipMany(2, 3);
    EXPECT_EQ(skip->Get(), 99);
}

TEST(LongsReader, RefusesToSkipWhatTheArrayDoesNotHold)
{
    const std::int32_t most = std::numeric_limits<std::int32_t>::max();
    for (const Elements& block : {Elements{2, 5, 0}, Elements{3, 4, 0}, Elements{most, 0}, Elements{-1, 0}}) {
        ReaderOf data(block);
        EXPECT_THROW(data->SkipText(), RunTimeError);
    }
    EXPECT_THROW(ReaderOf(Elements(1023, 0))->SkipPicture(), RunTimeError);
    EXPECT_THROW(ReaderOf({1, 2, 3})->SkipMany(2, 2), RunTimeError);
    EXPECT_THROW(ReaderOf({1, 2, 3})->SkipMany(-1, 1), RunTimeError);
}

TEST(LongsReader, RefusesAnArrayThatTheSourceCannotHold)
{
    for (const Elements& array : {Elements{2, 0}, Elements{-1, 0}, Elements{2147483647, 0}, Elements{}}) {
        MemorySource source(std::as_bytes(std::span(array)));
        EXPECT_THROW(LongsReader(source, 0), RunTimeError);
    }
}

TEST(LongsReader, StopsAtTheArraysLastElement)
{
    const Elements array{1, 5, 6};
    MemorySource source(std::as_bytes(std::span(array)));
    LongsReader data(source, 0);
    EXPECT_EQ(data.Left(), 1U);
    EXPECT_EQ(data.Get(), 5);
    EXPECT_THROW(static_cast<void>(data.Get()), RunTimeError);
}

TEST(LongsReader, AsksForRecordsWithoutOverflow)
{
    ReaderOf data({1, 2, 3, 4});
    data->Require(2, 2);
    data->Require(0, std::numeric_limits<std::int64_t>::max());
    EXPECT_THROW(data->Require(3, 2), RunTimeError);
    EXPECT_THROW(data->Require(-1, 1), RunTimeError);
    EXPECT_THROW(data->Require(2147483647, std::int64_t{1} << 62), RunTimeError);
}

TEST(LongsReader, TakesAnArrayOfElement0Alone)
{
    const Elements elements{0, 99};
    MemorySource source(std::as_bytes(std::span(elements)));
    LongsReader data(source, 0);
    EXPECT_EQ(data.Left(), 0U);
    EXPECT_THROW(static_cast<void>(data.Get()), RunTimeError);
}

} // namespace
} // namespace sprout
