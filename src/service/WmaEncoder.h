// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace sprout {

class Replacement;

/// The metadata of a WMA file, in UTF-8. An empty text is left out.
struct WmaTags {
    std::string Title{};
    std::string Author{};
    std::string Copyright{};
    std::string Rating{};
    std::string Year{};
    std::string Description{};
};

/// The format to encode to.
struct WmaFormat {
    std::int32_t Rate = 44100; ///< frames per second
    std::int32_t Channels = 2;
    std::int32_t Bits = 16;
    std::int32_t Codec = 0;  ///< index in the list of formats, from 0
    std::int32_t Format = 0; ///< index in the codec's formats, from 0
};

/// A WMA file that is being written.
///
/// Sample n written is sample n that a player decodes. The same samples and tags give the same bytes.
class WmaFile {
public:
    WmaFile() = default;
    WmaFile(const WmaFile&) = delete;
    WmaFile& operator=(const WmaFile&) = delete;
    virtual ~WmaFile() = default;

    /// Call before the first samples.
    virtual void SetTags(const WmaTags& tags) = 0;
    /// Encodes interleaved samples of 16 bits, low byte first, any number of bytes; an incomplete frame waits for the
    /// next call. Returns false on failure.
    [[nodiscard]] virtual bool Write(std::span<const std::byte> samples) = 0;
    /// Finishes the file; the last call. Returns false on failure.
    [[nodiscard]] virtual bool Close() = 0;
};

/// Encodes Windows Media Audio. Interface thread only.
class WmaEncoder {
public:
    WmaEncoder() = default;
    WmaEncoder(const WmaEncoder&) = delete;
    WmaEncoder& operator=(const WmaEncoder&) = delete;
    virtual ~WmaEncoder() = default;

    /// Loads the encoder's libraries if necessary; returns false if they are missing. Must succeed before any other
    /// call.
    [[nodiscard]] virtual bool Load() = 0;

    /// Bytes of the list of formats; below 1 if it is unavailable.
    [[nodiscard]] virtual std::int32_t FormatListLength() = 0;
    /// The codecs, separated by CR LF CR LF. Each consists of lines, separated by CR LF: its name, and for each format
    /// the description, bits per second, frames per second, channels and bits, separated by LF. Nothing on failure.
    [[nodiscard]] virtual std::optional<std::string> FormatList() = 0;

    /// Begins a file and sends its bytes to `target`; null on failure. The target outlives the file, which does not put
    /// it in place.
    [[nodiscard]] virtual std::unique_ptr<WmaFile> Open(Replacement& target, const WmaFormat& format) = 0;
};

} // namespace sprout
