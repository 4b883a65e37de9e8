// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>
#include <vector>

namespace sprout {

/// One note of a sound font.
struct FontNote {
    int Bank = 0;
    int Program = 0;
    int Key = 60;
    int Velocity = 100;
    double HeldSeconds = 0;
    double Seconds = 0; ///< length of the result
    double Cents = 0;   ///< shift of the tuning, -200..200
};

/// Plays a sound font. The same note always gives the same samples, whatever was played before.
class SoundFont {
public:
    /// Throws `RunTimeError` if the font cannot be loaded.
    explicit SoundFont(const std::filesystem::path& file);
    SoundFont(const SoundFont&) = delete;
    SoundFont& operator=(const SoundFont&) = delete;
    ~SoundFont();

    /// The mono sound of a note at 44,100 Hz, full scale 1. Throws `RunTimeError` if the font lacks the program.
    [[nodiscard]] std::vector<double> Play(const FontNote& note);

private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};

} // namespace sprout
