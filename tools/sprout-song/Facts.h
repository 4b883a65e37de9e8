// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <nlohmann/json.hpp>

#include "base/WaveData.h"
#include "core/Song.h"
#include "service/ffmpeg/SoundFacts.h"

namespace sprout {

// What `sprout-song info` shows of each record, with the keys in reading order.

using Facts = nlohmann::ordered_json;

[[nodiscard]] Facts WaveFacts(const WaveData& wave);
[[nodiscard]] Facts EncodedFacts(const SoundFacts& sound);
[[nodiscard]] Facts TuneFacts(const Tune& tune);
[[nodiscard]] Facts SongFacts(const SongState& song);

} // namespace sprout
