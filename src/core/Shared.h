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
    std::vector<std::int32_t> BitRates;      ///< bits per second
    std::vector<std::int32_t> SampleRates;   ///< frames per second
    std::vector<std::int32_t> Channels;      ///< 1 or 2
    std::vector<std::int32_t> BitsPerSample; ///< 8 or 16
};

/// The encoder's codecs, listed at the first export, and the format used for exports. Codec and format count from 0.
struct WmaChoice {
    std::vector<WmaCodec> Codecs;
    std::int32_t ChosenCodec = -1;
    std::int32_t ChosenFormat = -1;
    bool CodecChosen = false;
};

/// State that every window and the engine read and write directly; it lives from start to exit.
struct SharedState {
    // The one sound format in memory, set at the start and never changed.
    std::int32_t SampleRate = 44100;
    std::int32_t BitsPerSample = 16;
    std::int32_t Channels = 2;
    WaveData TestTone; ///< the sound of a step without a beat
    std::int32_t SoundMemoryLimit = 0;

    SongState Song;

    Tune CurrentTune;                                   ///< the tune open in the tune window
    Tune TuneClipboard;                                 ///< filled by every tune load and read by every tune save
    Tune TuneInfoDefault;                               ///< the tune window's own
    std::vector<Tune> TuneTable = std::vector<Tune>(1); ///< the tunes of `UserTunes`, from 1
    std::int32_t TuneTableCount = 0;

    bool SongBeatsInside = true;    ///< song and tune files contain their beats
    bool AllowEditOriginal = false; ///< the tunes that came with the program may be edited
    WaveViewColours WaveColours;
    WmaChoice Wma;

    // The program's own pictures, distinguished by identity.
    Picture BlankPic;           ///< of a track whose tune is not chosen yet
    Picture BlankStarPic;       ///< the other half of its blinking
    Picture DefaultTunePicture; ///< used if a picture file is missing
    Picture NewTunePicture;     ///< of a tune made in the tune window

    // Folders. Those from the second line on end in a separator.
    std::filesystem::path ProgramFolder, TempFolder, DocumentsFolder, UserRoot;
    std::filesystem::path InstallRoot, InstallBeats, InstallTunes, InstallStars, InstallSongs, DemoImages;
    std::filesystem::path UserBeats, UserTunes, UserStars, UserSongs;
    std::filesystem::path ClassRoot; ///< has the folders of a class, see `OwnAndClass`; empty if there is none

    bool IsInstalled = false; ///< for all users of the machine: the program never writes beside itself

    // The settings files; an empty path names none. Only the first one is ever written.
    std::filesystem::path SettingsFile;        ///< the user's
    std::filesystem::path MachineSettingsFile; ///< the administrator's, for all users
    std::filesystem::path ProgramSettingsFile; ///< beside the program; may be the user's
};

/// The one shared instance.
[[nodiscard]] SharedState& Shared();

/// Gives the shared state four plain 32 x 32 pictures, for programs without windows: files and tables distinguish the
/// pictures by identity, so there must be four different ones.
void MakePlainPictures();

} // namespace sprout
