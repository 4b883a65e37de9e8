// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/ByteCursor.h"
#include "base/Picture.h"
#include "base/WaveData.h"

namespace sprout {

// Songs, tunes and caches are arrays of 32-bit little-endian integers whose element 0 is the index of the last element.
// Texts, waves and pictures stand in them as blocks; docs/file-formats.md draws the layouts.

/// An array in the making. Samples are kept as channels, not copied, until the bytes are asked for.
class LongsWriter {
public:
    LongsWriter() = default;

    void Put(std::int32_t value);
    void PutMany(std::span<const std::int32_t> values);
    void PutText(std::string_view text);     ///< packed, in its stored bytes
    void PutWave(const WaveData& wave);      ///< wave block
    void PutPicture(const Picture& picture); ///< 1024 colours in columns

    /// Number of elements so far. Throws `RunTimeError` beyond the 32-bit numbers.
    [[nodiscard]] std::int32_t Count() const;

    /// Overwrites element 0, for which `Put` made room, with the index of the last element.
    void PutLastIndex();

    /// The array's bytes as pieces that stay valid as long as the writer is not changed.
    [[nodiscard]] std::vector<std::span<const std::byte>> Pieces() const;

    /// The array as numbers.
    [[nodiscard]] std::vector<std::int32_t> Elements() const;

private:
    // Runs of bytes; a run is either `words` or the samples of a channel.
    struct Run {
        std::vector<std::byte> words;
        Channel samples;
    };

    void PutChannel(const Channel& channel);
    std::vector<std::byte>& Words();

    std::vector<Run> runs;
    std::uint64_t bytes = 0;
};

/// Reads an array element by element, never beyond its last one. Throws `RunTimeError` for what cannot be there.
class LongsReader {
public:
    /// The array that begins at byte `begin` of `source`; its element 0 tells its length, which must lie within the
    /// source. Stands on element 1 afterwards.
    LongsReader(ByteSource& source, std::uint64_t begin);

    /// Bytes from `begin` on as they are, element 0 being whatever stands there. Stands on element 0.
    [[nodiscard]] static LongsReader Raw(ByteSource& source, std::uint64_t begin, std::uint64_t end);

    [[nodiscard]] std::int32_t Get();
    [[nodiscard]] std::string GetText();
    [[nodiscard]] WaveData GetWave();
    [[nodiscard]] Picture GetPicture();
    /// Fills `elements`. What is allocated for them should have been asked for by `Require` before.
    void GetMany(std::span<std::int32_t> elements);

    /// Elements not read yet.
    [[nodiscard]] std::uint64_t Left() const { return cursor.Left() / 4; }
    /// Throws unless `count` (not negative) records of at least `size` elements each are left.
    void Require(std::int32_t count, std::int64_t size) const;

private:
    explicit LongsReader(ByteCursor bytes) : cursor(std::move(bytes)) {}

    /// The byte behind the block whose element 0 was just read as `lastIndex`.
    [[nodiscard]] std::uint64_t BlockEnd(std::int32_t lastIndex) const;
    Channel GetChannel(std::int32_t length, std::uint64_t blockEnd);

    ByteCursor cursor;
};

/// Packed text: an empty text is 1, 0; any other is K, its byte count L, its bytes, with K = round(L / 4 + 2) the index
/// of the block's last element.
[[nodiscard]] std::vector<std::int32_t> TextToLongs(std::string_view text);

/// The text of such a block.
[[nodiscard]] std::string LongsToText(std::span<const std::int32_t> longs);

} // namespace sprout
