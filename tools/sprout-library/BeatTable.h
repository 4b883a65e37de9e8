// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace sprout {

/// How one beat of the library is made.
struct BeatRecipe {
    std::string Name;
    std::string Sound;    ///< "bank:program" of the sound font, counted from 0; bank 128 holds drum kits; or "own:NAME"
    int Key = 60;         ///< MIDI key; in a drum kit the key of the drum
    bool Pitched = false; ///< true if a listener hears `Key`
    int Velocity = 100;
    double HeldSeconds = 0;
    double Seconds = 0; ///< maximum length of the result
    std::string Glyph;  ///< base name of the drawing under art/beats/

    /// The letter before the underscore.
    [[nodiscard]] char Family() const { return Name.front(); }
};

/// What the beats of one family have in common.
struct BeatFamily {
    char Letter = 0;
    std::string Words;
    std::uint32_t HighColour = 0; ///< background of the pictures, 0x00RRGGBB
    std::uint32_t PlainColour = 0;
    std::uint32_t LowColour = 0;
    double LoudnessDb = 0; ///< K-weighted level of the loudest 100 ms, LUFS
};

/// Reads library/beats.txt. Throws `RunTimeError`.
[[nodiscard]] std::vector<BeatRecipe> ReadBeatTable(const std::filesystem::path& file);

/// Reads library/families.txt. Throws `RunTimeError`.
[[nodiscard]] std::map<char, BeatFamily> ReadFamilyTable(const std::filesystem::path& file);

/// The MIDI key of a note name: "C4" is 60. Throws `RunTimeError`.
[[nodiscard]] int KeyOfNote(std::string_view note);

} // namespace sprout
