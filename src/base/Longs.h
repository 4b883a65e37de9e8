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
// They contain texts, waves and pictures as blocks; docs/file-formats.md shows the layouts.

/// An array under construction. Samples are kept as channels, without a copy, until the bytes are requested.
class LongsWriter {
public:
    LongsWriter() = default;

    void Put(std::int32_t value);
    void PutMany(std::span<const std::int32_t> values);
    void PutText(std::string_view text);     ///< packed, as its stored bytes
    void PutWave(const WaveData& wave);      ///< wave block
    void PutPicture(const Picture& picture); ///< 1024 colours in columns

    /// Number of elements so far. Throws `RunTimeError` if it exceeds 32 bits.
    [[nodiscard]] std::int32_t Count() const;

    /// Overwrites element 0, reserved by an earlier `Put`, with the index of the last element.
    void PutLastIndex();

    /// The array's bytes as pieces that stay valid until the writer changes.
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

/// Reads an array element by element, never beyond its last one. Throws `RunTimeError` if the data is invalid.
class LongsReader {
public:
    /// The array that begins at byte `begin` of `source`; its element 0 gives its length, which must lie within the
    /// source. Starts at element 1.
    LongsReader(ByteSource& source, std::uint64_t begin);

    /// Bytes from `begin` on as they are, whatever element 0 contains. Starts at element 0.
    [[nodiscard]] static LongsReader Raw(ByteSource& source, std::uint64_t begin, std::uint64_t end);

    [[nodiscard]] std::int32_t Get();
    [[nodiscard]] std::string GetText();
    [[nodiscard]] WaveData GetWave();
    [[nodiscard]] Picture GetPicture();
    /// Fills `elements`. Call `Require` before you allocate them.
    void GetMany(std::span<std::int32_t> elements);

    // Each moves behind a block without reading more than its head, and throws where reading it would throw.

    void SkipText();
    void SkipWave();
    void SkipPicture();
    /// Moves behind `count` records of `size` elements each.
    void SkipMany(std::int32_t count, std::int64_t size);

    /// Elements not read yet.
    [[nodiscard]] std::uint64_t Left() const { return cursor.Left() / 4; }
    /// Throws unless `count` (not negative) records of at least `size` elements each are left.
    void Require(std::int32_t count, std::int64_t size) const;

private:
    explicit LongsReader(ByteCursor bytes) : cursor(std::move(bytes)) {}

    /// Where the content of a text or a wave lies, as bytes of the source.
    struct TextPlace {
        std::int32_t length = 0;
        std::uint64_t end = 0;
    };
    struct WavePlace {
        std::uint64_t right = 0; ///< of the right channel, if there is one
        std::uint64_t end = 0;
    };

    /// The byte after the block whose element 0 was just read as `lastIndex`.
    [[nodiscard]] std::uint64_t BlockEnd(std::int32_t lastIndex) const;
    [[nodiscard]] TextPlace GetTextHead();
    /// Fills all of `wave` but its samples, which then begin at the cursor; a block that is only 0 leaves it empty.
    [[nodiscard]] WavePlace GetWaveHead(WaveData& wave);
    [[nodiscard]] Channel GetChannel(std::int32_t length);

    ByteCursor cursor;
};

/// Packed text: an empty text is 1, 0; any other is K, its byte count L, its bytes, where K = round(L / 4 + 2) is the
/// index of the block's last element.
[[nodiscard]] std::vector<std::int32_t> TextToLongs(std::string_view text);

/// The text of such a block.
[[nodiscard]] std::string LongsToText(std::span<const std::int32_t> longs);

} // namespace sprout
