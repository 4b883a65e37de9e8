// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "service/Files.h"
#include "service/ffmpeg/FfmpegWmaEncoder.h"

namespace sprout {

using Samples = std::vector<std::int16_t>; // of both channels, alternating

/// A file in memory. Its nth call and all later ones can fail.
class MemoryFile : public Replacement {
public:
    void Write(std::span<const std::byte> written) override
    {
        CountCall();
        bytes.resize(std::max(bytes.size(), place + written.size()));
        std::transform(written.begin(), written.end(), bytes.begin() + static_cast<std::ptrdiff_t>(place),
                       [](std::byte byte) { return static_cast<char>(byte); });
        place += written.size();
    }
    void MoveTo(std::uint64_t to) override
    {
        CountCall();
        place = static_cast<std::size_t>(to);
    }
    void PutInPlace(Flush /*flush*/) override {}

    std::string bytes;
    int calls = 0;
    int failsFrom = 0; ///< 0: none of them
    bool failsOnce = false;

private:
    void CountCall()
    {
        ++calls;
        if (failsFrom != 0 && (failsOnce ? calls == failsFrom : calls >= failsFrom))
            throw RunTimeError(Words::AsIs("No space left on device."));
    }

    std::size_t place = 0;
};

inline constexpr double kTwoPi = 6.283185307179586;

/// Plucked tones over a soft chord; the two channels differ.
inline Samples Music(std::int32_t frames)
{
    Samples samples;
    for (std::int32_t i = 0; i < frames; ++i) {
        const double t = i / 44100.0;
        const double pitch = 220.0 * std::pow(2.0, static_cast<int>(t * 4) % 12 / 12.0);
        const double struck = std::exp(-8 * std::fmod(t, 0.25));
        double pluck = 0;
        for (int k = 1; k <= 5; ++k)
            pluck += std::sin(kTwoPi * pitch * k * t) / k;
        const double chord = std::sin(kTwoPi * 131 * t) + std::sin(kTwoPi * 165 * t) + std::sin(kTwoPi * 196 * t);
        samples.push_back(static_cast<std::int16_t>(std::lround(7000 * struck * pluck + 1500 * chord)));
        samples.push_back(static_cast<std::int16_t>(std::lround(4000 * struck * pluck + 2500 * chord)));
    }
    return samples;
}

inline constexpr WmaFormat kUsualFormat = {.Format = 1};

/// Encodes in pieces of `pieceBytes`. Returns true if all writes and the close succeed.
inline bool Encode(std::span<const std::byte> bytes, Replacement& target, std::size_t pieceBytes,
                   const WmaTags& tags = {}, const WmaFormat& format = kUsualFormat)
{
    FfmpegWmaEncoder encoder;
    const std::unique_ptr<WmaFile> file = encoder.Load() ? encoder.Open(target, format) : nullptr;
    if (!file)
        return false;
    file->SetTags(tags);
    bool taken = true;
    while (!bytes.empty()) {
        const auto piece = bytes.first(std::min(pieceBytes, bytes.size()));
        taken = file->Write(piece) && taken;
        bytes = bytes.subspan(piece.size());
    }
    return file->Close() && taken;
}

/// The bytes of a WMA file of `samples`; empty if that failed.
inline std::string WmaOf(const Samples& samples, const WmaTags& tags = {}, const WmaFormat& format = kUsualFormat)
{
    MemoryFile file;
    return Encode(std::as_bytes(std::span(samples)), file, 1764000, tags, format) ? file.bytes : "";
}

} // namespace sprout
