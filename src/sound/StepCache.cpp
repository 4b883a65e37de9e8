// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/StepCache.h"

#include <functional>
#include <iterator>

namespace sprout {

namespace {

constexpr std::size_t kEntryBytes = 512; // the entry, its second key and the map nodes, generously

std::size_t BlockBytes(const Channel& channel)
{
    return (static_cast<std::size_t>(channel.UpperBound()) + 1) * sizeof(std::int16_t);
}

} // namespace

bool operator==(const StepKey& a, const StepKey& b)
{
    return a.Source.WavL.SharesBlockWith(b.Source.WavL) && a.Source.WavR.SharesBlockWith(b.Source.WavR) &&
           a.Source.Length == b.Source.Length && a.Source.Rate == b.Source.Rate && a.Source.Bits == b.Source.Bits &&
           a.Source.Channels == b.Source.Channels && a.PitchFactor == b.PitchFactor &&
           a.DurationFactor == b.DurationFactor && a.Volume == b.Volume;
}

std::size_t StepKeyHash::operator()(const StepKey& key) const
{
    std::size_t hash = 0;
    const auto mix = [&hash](std::size_t part) { hash = hash * 1099511628211u + part; };
    mix(std::hash<const void*>()(key.Source.WavL.Identity()));
    mix(std::hash<std::int32_t>()(key.Source.Length));
    mix(std::hash<float>()(key.PitchFactor));
    mix(std::hash<float>()(key.DurationFactor));
    mix(std::hash<std::int32_t>()(key.Volume));
    return hash;
}

const WaveData* StepCache::Find(const StepKey& key)
{
    const auto found = index.find(key);
    if (found == index.end())
        return nullptr;
    sounds.splice(sounds.begin(), sounds, found->second);
    return &found->second->sound;
}

void StepCache::Keep(const StepKey& key, const WaveData& sound)
{
    if (const auto found = index.find(key); found != index.end())
        Drop(found->second);
    sounds.push_front({key, sound});
    index.emplace(key, sounds.begin());
    bytesHeld += kEntryBytes;
    for (const Channel* channel : {&key.Source.WavL, &key.Source.WavR, &sound.WavL, &sound.WavR})
        Hold(*channel);
    DropOldest();
}

void StepCache::Clear()
{
    index.clear();
    sounds.clear();
    holders.clear();
    bytesHeld = 0;
}

void StepCache::SetMostBytes(std::size_t bytes)
{
    mostBytes = bytes;
    DropOldest();
}

void StepCache::Drop(Entries::iterator entry)
{
    for (const Channel* channel :
         {&entry->key.Source.WavL, &entry->key.Source.WavR, &entry->sound.WavL, &entry->sound.WavR})
        Release(*channel);
    bytesHeld -= kEntryBytes;
    index.erase(entry->key);
    sounds.erase(entry);
}

void StepCache::DropOldest()
{
    while (bytesHeld > mostBytes && !sounds.empty())
        Drop(std::prev(sounds.end()));
}

void StepCache::Hold(const Channel& channel)
{
    if (channel.Identity() && ++holders[channel.Identity()] == 1)
        bytesHeld += BlockBytes(channel);
}

void StepCache::Release(const Channel& channel)
{
    const auto holder = holders.find(channel.Identity());
    if (holder == holders.end() || --holder->second > 0)
        return;
    bytesHeld -= BlockBytes(channel);
    holders.erase(holder);
}

StepCache& TheStepCache()
{
    static StepCache cache;
    return cache;
}

} // namespace sprout
