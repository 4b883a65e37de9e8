// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>

#include "sprout-song/Session.h"

namespace sprout {

/// What a library is made of, and where it goes.
struct LibraryPlaces {
    std::filesystem::path Source;    ///< holds library/ and art/
    std::filesystem::path SoundFont; ///< the font that beats are played from
    std::filesystem::path Output;    ///< becomes the folder with Beats, Tunes, Stars and Songs
    std::int64_t Time = 0;           ///< last-write time of every generated file, in seconds since 1970
};

/// Makes the installed folder of beats, tunes, stars and songs, or the part that is out of date with the sources.
///
/// Equal places, time, zone and tool give equal bytes and times. Stamps inside tunes and songs are times of the beats
/// beside them in the machine's zone, as the program writes them. Throws `RunTimeError`, also if the engine showed a
/// message.
void MakeLibrary(Session& session, const LibraryPlaces& places);

} // namespace sprout
