// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Longs.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <cstring>
#include <limits>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace sprout {

// Files store samples and colours exactly as memory does.
static_assert(std::endian::native == std::endian::little);

namespace {

constexpr std::uint64_t kElementBytes = 4;
constexpr std::int32_t kWaveHeadElements = 5;
constexpr std::int32_t kTextHeadElements = 2;

std::int64_t ChannelElements(std::int32_t upperBound)
{
    return upperBound == 0 ? 0 : std::int64_t{upperBound} / 2 + 1;
}

/// A channel as stored in a file: `length` samples, or none if the channel has none.
Channel StoredChannel(Channel channel, std::int32_t length)
{
    if (channel.UpperBound() != 0)
        channel.Resize(length);
    return channel;
}

std::int32_t TextLastIndex(std::size_t byteCount)
{
    return byteCount == 0 ? 1 : RoundHalfEven(static_cast<double>(byteCount) / 4 + kTextHeadElements);
}

void Append(std::vector<std::byte>& words, std::int32_t value)
{
    const auto bytes = std::bit_cast<std::array<std::byte, kElementBytes>>(value);
    words.insert(words.end(), bytes.begin(), bytes.end());
}

} // namespace

std::vector<std::byte>& LongsWriter::Words()
{
    if (runs.empty() || runs.back().samples.UpperBound() > 0)
        runs.emplace_back();
    return runs.back().words;
}

void LongsWriter::Put(std::int32_t value)
{
    Append(Words(), value);
    bytes += kElementBytes;
}

void LongsWriter::PutMany(std::span<const std::int32_t> values)
{
    std::vector<std::byte>& words = Words();
    const auto added = std::as_bytes(values);
    words.insert(words.end(), added.begin(), added.end());
    bytes += added.size();
}

void LongsWriter::PutText(std::string_view text)
{
    const std::string stored = StoredBytes(text);
    const std::int32_t lastIndex = TextLastIndex(stored.size());
    Put(lastIndex);
    Put(static_cast<std::int32_t>(stored.size()));
    const std::size_t room = static_cast<std::size_t>(lastIndex + 1 - kTextHeadElements) * kElementBytes;
    std::vector<std::byte>& words = Words();
    const auto letters = std::as_bytes(std::span(stored));
    words.insert(words.end(), letters.begin(), letters.end());
    words.resize(words.size() + room - stored.size());
    bytes += room;
}

void LongsWriter::PutChannel(const Channel& channel)
{
    const std::int32_t upper = channel.UpperBound();
    if (upper == 0)
        return;
    const auto sampleBytes = static_cast<std::uint64_t>(upper) * sizeof(std::int16_t);
    const auto blockBytes = static_cast<std::uint64_t>(ChannelElements(upper)) * kElementBytes;
    runs.push_back({{}, channel});
    Words().resize(static_cast<std::size_t>(blockBytes - sampleBytes));
    bytes += blockBytes;
}

void LongsWriter::PutWave(const WaveData& wave)
{
    // Only the length decides what sounds: a cleared wave may still have samples.
    const Channel left = StoredChannel(wave.WavL, wave.Length);
    const Channel right = wave.Channels == 2 ? StoredChannel(wave.WavR, wave.Length) : Channel();
    const std::int64_t lastIndex =
        kWaveHeadElements - 1 + ChannelElements(left.UpperBound()) + ChannelElements(right.UpperBound());
    Put(RoundHalfEven(static_cast<double>(lastIndex)));
    Put(wave.Bits);
    Put(wave.Channels);
    Put(wave.Rate);
    Put(wave.Length);
    PutChannel(left);
    PutChannel(right);
}

void LongsWriter::PutPicture(const Picture& picture)
{
    PutMany(PictureColumns(picture));
}

std::int32_t LongsWriter::Count() const
{
    const std::uint64_t count = bytes / kElementBytes;
    if (count > static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max()))
        throw RunTimeError(Words::Text("There is too much sound for one file."));
    return static_cast<std::int32_t>(count);
}

void LongsWriter::PutLastIndex()
{
    assert(!runs.empty() && runs.front().words.size() >= kElementBytes);
    const std::int32_t last = Count() - 1;
    std::memcpy(runs.front().words.data(), &last, kElementBytes);
}

std::vector<std::span<const std::byte>> LongsWriter::Pieces() const
{
    std::vector<std::span<const std::byte>> pieces;
    pieces.reserve(runs.size());
    for (const Run& run : runs)
        pieces.push_back(run.samples.UpperBound() > 0 ? std::as_bytes(run.samples.Samples())
                                                      : std::as_bytes(std::span(run.words)));
    return pieces;
}

std::vector<std::int32_t> LongsWriter::Elements() const
{
    std::vector<std::int32_t> elements(static_cast<std::size_t>(Count()));
    std::size_t place = 0;
    for (const std::span<const std::byte> piece : Pieces()) {
        std::memcpy(std::as_writable_bytes(std::span(elements)).data() + place, piece.data(), piece.size());
        place += piece.size();
    }
    return elements;
}

LongsReader::LongsReader(ByteSource& source, std::uint64_t begin) : cursor(source, begin, source.Size())
{
    const std::int32_t lastIndex = cursor.ReadInt32();
    if (lastIndex < 0)
        throw RunTimeError(Words::Text("The file is damaged: its length is missing."));
    cursor.Require(static_cast<std::uint64_t>(lastIndex) * kElementBytes);
    const std::uint64_t end = begin + (static_cast<std::uint64_t>(lastIndex) + 1) * kElementBytes;
    cursor.Narrow(end);
}

LongsReader LongsReader::Raw(ByteSource& source, std::uint64_t begin, std::uint64_t end)
{
    return LongsReader(ByteCursor(source, begin, end));
}

std::int32_t LongsReader::Get()
{
    return cursor.ReadInt32();
}

void LongsReader::Require(std::int32_t count, std::int64_t size) const
{
    assert(size > 0);
    if (count < 0)
        throw RunTimeError(Words::Text("The file is damaged: a count is below zero."));
    if (static_cast<std::uint64_t>(count) > Left() / static_cast<std::uint64_t>(size))
        throw RunTimeError(Words::Text("The file is damaged: it promises more than it holds."));
}

void LongsReader::GetMany(std::span<std::int32_t> elements)
{
    cursor.Read(std::as_writable_bytes(elements));
}

std::uint64_t LongsReader::BlockEnd(std::int32_t lastIndex) const
{
    Require(lastIndex, 1);
    return cursor.Offset() + static_cast<std::uint64_t>(lastIndex) * kElementBytes;
}

LongsReader::TextPlace LongsReader::GetTextHead()
{
    const std::uint64_t blockEnd = BlockEnd(cursor.ReadInt32());
    const std::int32_t length = cursor.ReadInt32();
    if (length < 0 || cursor.Offset() > blockEnd || static_cast<std::uint64_t>(length) > blockEnd - cursor.Offset())
        throw RunTimeError(Words::Text("The file is damaged: a text is longer than its place."));
    return {length, blockEnd};
}

std::string LongsReader::GetText()
{
    const TextPlace place = GetTextHead();
    std::string stored(static_cast<std::size_t>(place.length), '\0');
    cursor.Read(std::as_writable_bytes(std::span(stored)));
    cursor.MoveTo(place.end);
    return TextFromStored(stored);
}

void LongsReader::SkipText()
{
    cursor.MoveTo(GetTextHead().end);
}

LongsReader::WavePlace LongsReader::GetWaveHead(WaveData& wave)
{
    const std::int32_t lastIndex = cursor.ReadInt32();
    const std::uint64_t blockEnd = BlockEnd(lastIndex);
    if (lastIndex == 0)
        return {blockEnd, blockEnd};
    if (lastIndex < kWaveHeadElements - 1)
        throw RunTimeError(Words::Text("The file is damaged: a sound has no head."));
    wave.Bits = cursor.ReadInt32();
    wave.Channels = cursor.ReadInt32();
    wave.Rate = cursor.ReadInt32();
    wave.Length = cursor.ReadInt32();
    if (wave.Length < 0)
        throw RunTimeError(Words::Text("The file is damaged: the length of a sound is below zero."));
    const std::uint64_t left = cursor.Offset();
    const std::uint64_t right =
        std::min(left + static_cast<std::uint64_t>(ChannelElements(wave.Length)) * kElementBytes, blockEnd);
    const std::uint64_t samplesBegin = wave.Channels == 2 && wave.Length > 0 ? right : left;
    if (static_cast<std::uint64_t>(wave.Length) * sizeof(std::int16_t) > blockEnd - samplesBegin)
        throw RunTimeError(Words::Text("The file is damaged: a sound is longer than its place."));
    return {right, blockEnd};
}

Channel LongsReader::GetChannel(std::int32_t length)
{
    Channel channel = Channel::Unfilled(length);
    if (length > 0)
        cursor.Read(std::as_writable_bytes(channel.Change().subspan(1)));
    return channel;
}

WaveData LongsReader::GetWave()
{
    WaveData wave;
    const WavePlace place = GetWaveHead(wave);
    wave.WavL = GetChannel(wave.Length);
    if (wave.Channels == 2 && wave.Length > 0) {
        cursor.MoveTo(place.right);
        wave.WavR = GetChannel(wave.Length);
    }
    cursor.MoveTo(place.end);
    return wave;
}

void LongsReader::SkipWave()
{
    WaveData wave;
    cursor.MoveTo(GetWaveHead(wave).end);
}

Picture LongsReader::GetPicture()
{
    std::array<std::int32_t, kPicturePixels> columns{};
    cursor.Read(std::as_writable_bytes(std::span(columns)));
    return PictureFromColumns(columns);
}

void LongsReader::SkipPicture()
{
    SkipMany(kPicturePixels, 1);
}

void LongsReader::SkipMany(std::int32_t count, std::int64_t size)
{
    Require(count, size);
    cursor.MoveTo(cursor.Offset() +
                  static_cast<std::uint64_t>(count) * static_cast<std::uint64_t>(size) * kElementBytes);
}

std::vector<std::int32_t> TextToLongs(std::string_view text)
{
    LongsWriter writer;
    writer.PutText(text);
    return writer.Elements();
}

std::string LongsToText(std::span<const std::int32_t> longs)
{
    MemorySource source(std::as_bytes(longs));
    return LongsReader::Raw(source, 0, source.Size()).GetText();
}

} // namespace sprout
