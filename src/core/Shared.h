// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/Song.h"

namespace sprout {

/// Colours of the wave view, 0x00BBGGRR.
struct WaveViewColours {
    std::int32_t WaveFormNormalColorL = 0x0000FF;
    std::int32_t WaveFormNormalColorR = 0x00FFFF;
    std::int32_t CenterLineColor = 0x808080;
    std::int32_t NormalBackColor = 0xA00000;
    std::int32_t SelectBackColor = 0x006400;
    std::int32_t LineCursorColor = 0x00FFFF;
    std::int32_t PlayPosIndiColor = 0xFF00FF;
};

/// A codec that the WMA encoder offers. Elements of the arrays count from 1.
struct WmaCodec {
    std::string Name;
    std::int32_t FormatCount = 0;
    std::vector<std::string> Descriptions;
    std::vector<std::int32_t> BitRates;      ///< bits a second
    std::vector<std::int32_t> SampleRates;   ///< frames a second
    std::vector<std::int32_t> Channels;      ///< 1 or 2
    std::vector<std::int32_t> BitsPerSample; ///< 8 or 16
};

/// The encoder's codecs, listed at the first export, and the format that exports use. Codec and format count from 0.
struct WmaChoice {
    std::vector<WmaCodec> Codecs;
    std::int32_t ChosenCodec = -1;
    std::int32_t ChosenFormat = -1;
    bool CodecChosen = false;
};

/// What every window and the engine read and write directly; it lives from start to exit.
struct SharedState {
    // The one sound format in memory, set at the start and never changed.
    std::int32_t SampleRate = 44100;
    std::int32_t BitsPerSample = 16;
    std::int32_t Channels = 2;
    WaveData TestTone; ///< the sound of a step without a beat
    std::int32_t SoundMemoryLimit = 0;

    SongState Song;

    Tune CurrentTune;                                   ///< the tune open in the tune window
    Tune TuneClipboard;                                 ///< what every tune load fills and every tune save reads
    Tune TuneInfoDefault;                               ///< the tune window's own
    std::vector<Tune> TuneTable = std::vector<Tune>(1); ///< the tunes of `UserTunes`, from 1
    std::int32_t TuneTableCount = 0;

    bool SongBeatsInside = true;    ///< song and tune files carry their beats
    bool AllowEditOriginal = false; ///< the tunes that came with the program may be edited
    WaveViewColours WaveColours;
    WmaChoice Wma;

    // Pictures that the program itself holds; told apart by identity.
    Picture BlankPic;           ///< of a track's tune that was not chosen yet
    Picture BlankStarPic;       ///< the other half of its blinking
    Picture DefaultTunePicture; ///< where a picture file is missing
    Picture NewTunePicture;     ///< of a tune made in the tune window

    // Folders. Those of the second and third line end in a separator.
    std::filesystem::path ProgramFolder, TempFolder, SettingsFile, DocumentsFolder, UserRoot;
    std::filesystem::path InstallRoot, InstallBeats, InstallTunes, InstallStars, InstallSongs, DemoImages;
    std::filesystem::path UserBeats, UserTunes, UserStars, UserSongs;
};

/// The one shared instance.
[[nodiscard]] SharedState& Shared();

/// Gives the shared state four plain pictures of 32 x 32, for programs without windows: files and tables tell the
/// pictures apart by identity, so they must be there and must be four.
void MakePlainPictures();

} // namespace sprout
