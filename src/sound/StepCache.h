// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <unordered_map>

#include "base/WaveData.h"

namespace sprout {

/// Everything that the sound of a step depends on.
///
/// Sources are equal if they share their sample blocks, not if their samples are the same. The key holds its source, so
/// no other sound can end up in the same block.
struct StepKey {
    WaveData Source;
    float PitchFactor = 1;
    float DurationFactor = 1;
    std::int32_t Volume = 100; ///< percent

    friend bool operator==(const StepKey& a, const StepKey& b);
};

struct StepKeyHash {
    [[nodiscard]] std::size_t operator()(const StepKey& key) const;
};

/// Rendered sounds of steps, so that equal steps of any tune or track are stretched only once.
///
/// Its size in bytes is limited, including the sources that its keys keep alive; a block shared by several counts once.
/// The least recently used is evicted first. Renders give the same samples with and without it. Interface thread only.
class StepCache {
public:
    static constexpr std::size_t kMostBytes = std::size_t{64} << 20;

    explicit StepCache(std::size_t bytes = kMostBytes) : mostBytes(bytes) {}

    /// The sound of an equal step, or null. Valid until the cache changes.
    [[nodiscard]] const WaveData* Find(const StepKey& key);

    /// Stores a sound, unless it is larger than the limit. Replaces the sound of an equal step.
    void Keep(const StepKey& key, const WaveData& sound);

    void Clear();

    /// Sets a new limit; 0 stores nothing.
    void SetMostBytes(std::size_t bytes);

    [[nodiscard]] std::size_t MostBytes() const { return mostBytes; }
    [[nodiscard]] std::size_t Bytes() const { return bytesHeld; }
    [[nodiscard]] std::size_t Count() const { return sounds.size(); }

private:
    struct Entry {
        StepKey key;
        WaveData sound;
    };
    using Entries = std::list<Entry>;

    void Drop(Entries::iterator entry);
    void DropOldest();
    void Hold(const Channel& channel);
    void Release(const Channel& channel);

    std::size_t mostBytes;
    std::size_t bytesHeld = 0;
    Entries sounds; // most recently used first
    std::unordered_map<StepKey, Entries::iterator, StepKeyHash> index;
    std::unordered_map<const void*, std::size_t> holders; // of each block
};

/// The cache that all renders share.
[[nodiscard]] StepCache& TheStepCache();

} // namespace sprout
