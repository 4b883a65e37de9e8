// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "base/WaveData.h"
#include "base/Words.h"
#include "sound/PlayDllClass.h"
#include "sound/PlayShared.h"

namespace sprout {

/// The only player, created at its first use.
[[nodiscard]] PlayDllClass& Player();

/// Releases the player and its device; must be called before the services are destroyed.
void ReleasePlayer();

/// Switches the sound output on or off and stores the result in `SoundDriver`. A failure is shown in a message.
void SetSoundDriver(bool enable);

// The play calls interrupt the current sound. If `SoundDriver` is 0 they do nothing, unless stated otherwise. Once the
// play has begun they show their status and start the main window's timer.

/// Plays a wave that belongs to no track. While the tutorial plays, the main window stays unchanged.
void PlayWaveStatus(const WaveData& wave, const Words& status, Loop loop);

/// Plays a wave of some kind: "Playing Recorded" for a recording, "Playing" otherwise.
void PlayWaveKind(const WaveData& wave, PlayKind kind, Loop loop);

/// Plays the sound of a track or of the whole song (`kWholeSong`), which starts at `startCell`. `PlayingTrack` returns
/// to 0 if the play did not begin.
void PlayWaveTrack(const WaveData& wave, std::int32_t track, std::int32_t startCell, Loop loop);

/// Plays a wave after `delaySeconds` (>= 0) of silence and lets the tune window show its tune, even without a device.
void PlayWaveDelayed(const WaveData& wave, float delaySeconds, const Words& status, Loop loop);

/// The cell of the song or track that is heard. Throws `RunTimeError` if it is not a 32-bit number.
[[nodiscard]] std::int32_t CellInPlay(const PlayModState& play);

/// The cell to mark in the windows, at most 1,000,000, so that its pixel position fits a number. Nothing for a sound
/// that belongs to no track or whose cell is unknown.
[[nodiscard]] std::optional<std::int32_t> MarkerCell(const PlayModState& play);

/// The step of a tune that is heard, 1 to `stepCount`. tempo: cells per minute.
[[nodiscard]] std::int32_t StepInPlay(const PlayModState& play, std::int32_t tempo, std::int32_t stepCount);

} // namespace sprout
