// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/Song.h"

namespace sprout {

enum class PlayState : std::int32_t { Stopped = 0, Playing = 1, PlayingLoop = 2, Paused = 3 };
enum class PlayKind : std::int32_t { Other = 0, SongOrTrack = 1, Recording = 2 };

/// What the player and the windows know about the current sound.
struct PlayModState {
    std::int32_t SoundDriver = 0; ///< 0 = no sound, 1 = the machine's sound output
    sprout::PlayState PlayState = sprout::PlayState::Stopped;
    bool PlayLooping = false; ///< the request of the last play
    sprout::PlayKind PlayKind = sprout::PlayKind::Other;
    std::int32_t PlayingTrack = 0; ///< `kWholeSong`, 0 for no track, otherwise the track's number
    std::int32_t PlayStartPos = 0; ///< first cell of the wave of a song or track
    std::int32_t PlayOffset = 0;   ///< added to the device's cursor; 1 in every play
    std::int32_t PlayLength = 0;   ///< frames in the current wave
    std::int32_t PlayTempo = 0;    ///< `Tempo` when the play of a song or track began
    std::int32_t PlayCursor = 0;   ///< frame that is heard, from 1; 0 when stopped
    bool DemoPlaying = false;      ///< the tutorial plays: `PlayWaveStatus` leaves the main window alone

    /// The last wave played, as a complete WAV file; empty before the first play. Bytes from 44 on are samples.
    std::vector<std::byte> PlayBuffer;
    std::int32_t PlayBufBits = 0;
    std::int32_t PlayBufChannels = 0;
    std::int32_t PlayBufRate = 0;
    std::int32_t PlayBufLength = 0; ///< frames in the buffer, including its tail
};

/// The one shared instance.
inline PlayModState& PlayShared()
{
    static PlayModState state;
    return state;
}

} // namespace sprout
