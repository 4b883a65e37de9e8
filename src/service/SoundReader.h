// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>

namespace sprout {

/// What happens to a sound that is longer than wanted.
enum class TooLong { Cut, Refuse };

enum class Conversion { Done, TooLong, Unreadable };

/// A temporary WAV file. No other running program deletes it, and it is deleted with this object.
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
    std::unique_ptr<ConvertedWave> Wave; ///< set if the conversion is done
};

/// Reads sounds in formats other than the program's own. Interface thread only.
class SoundReader {
public:
    /// Called now and then with the progress, `done` of `total`. If it throws, the work ends.
    using Progress = std::function<void(std::size_t done, std::size_t total)>;

    SoundReader() = default;
    SoundReader(const SoundReader&) = delete;
    SoundReader& operator=(const SoundReader&) = delete;
    virtual ~SoundReader() = default;

    /// Converts a sound file to 44,100 Hz and 16 bits, mono as mono and everything else as stereo.
    ///
    /// mostSeconds: at most 600. No more than that is decoded. `Unreadable` also means: no sound in it, not a plain
    /// file, takes too long, or the reader's libraries are missing. Throws `RunTimeError` if the temporary file cannot
    /// be written.
    [[nodiscard]] virtual Converted Convert(const std::filesystem::path& sound, std::int32_t mostSeconds,
                                            TooLong tooLong, const Progress& progress) = 0;
};

} // namespace sprout
