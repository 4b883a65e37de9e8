// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>

namespace sprout {

/// What becomes of a sound that is longer than wanted.
enum class TooLong { Cut, Refuse };

enum class Conversion { Done, TooLong, Unreadable };

/// A temporary WAV file, which no other running program deletes and which goes with the object.
class ConvertedWave {
public:
    ConvertedWave() = default;
    ConvertedWave(const ConvertedWave&) = delete;
    ConvertedWave& operator=(const ConvertedWave&) = delete;
    virtual ~ConvertedWave() = default;

    [[nodiscard]] virtual const std::filesystem::path& Path() const = 0;
};

struct Converted {
    Conversion Outcome = Conversion::Unreadable;
    std::unique_ptr<ConvertedWave> Wave; ///< there when it is done
};

/// Reads sounds of other kinds than the program's own. Interface thread only.
class SoundReader {
public:
    /// Told now and then how far the work is, `done` of `total`. What it throws ends the work.
    using Progress = std::function<void(std::size_t done, std::size_t total)>;

    SoundReader() = default;
    SoundReader(const SoundReader&) = delete;
    SoundReader& operator=(const SoundReader&) = delete;
    virtual ~SoundReader() = default;

    /// Converts a sound file to 44,100 Hz and 16 bits, mono as mono and everything else as stereo.
    ///
    /// mostSeconds: at most 600. Of a longer sound no more than that is decoded. `Unreadable` is also what holds no
    /// sound, is no plain file, takes too long, or finds the reader's libraries missing. Throws `RunTimeError` where
    /// the temporary file cannot be written.
    [[nodiscard]] virtual Converted Convert(const std::filesystem::path& sound, std::int32_t mostSeconds,
                                            TooLong tooLong, const Progress& progress) = 0;
};

} // namespace sprout
