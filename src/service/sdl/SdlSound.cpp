// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/sdl/SdlSound.h"

#include <chrono>
#include <utility>

#include "service/sdl/SdlLibrary.h"

namespace sprout {

namespace {

/// Frames per request of the device at 44,100 Hz, 12 ms. A stop has to wait for this twice: in the device's thread and
/// in its queue.
constexpr std::int32_t kFramesAsked = 512;

std::int32_t FramesAsked(const SoundFormat& format)
{
    return kFramesAsked * format.Rate / 44100;
}

constexpr int kAsksToSettle = 2; // 23 ms
constexpr int kRoundsBeforeRest = 3;

void SDLCALL FillFromFeed(void* feed, Uint8* out, int bytes)
{
    static_cast<PcmFeed*>(feed)->Fill({reinterpret_cast<std::byte*>(out), static_cast<std::size_t>(bytes)},
                                      std::chrono::steady_clock::now());
}

} // namespace

SdlSound::SdlSound(const SoundFormat& soundFormat, std::chrono::milliseconds round)
    : format(soundFormat), restRound(round), feed(format, FramesAsked(format))
{
}

SdlSound::~SdlSound()
{
    feed.Stop();
    EndWatch();
    Close();
}

bool SdlSound::IsLost() const
{
    return device != 0 && Sdl().GetAudioDeviceStatus(device) == SDL_AUDIO_STOPPED;
}

bool SdlSound::IsAliveIn(const SoundFormat& wanted)
{
    const std::lock_guard lock(mutex);
    return wanted == format && !IsLost();
}

bool SdlSound::IsOpenIn(const SoundFormat& wanted)
{
    const std::lock_guard lock(mutex);
    return wanted == format && device != 0 && !IsLost();
}

bool SdlSound::Wake()
{
    {
        const std::lock_guard lock(mutex);
        used = true;
        if (device != 0)
            return true;
    }
    EndWatch();
    if (!Open())
        return false;
    watch = std::thread([this] { WatchForRest(); });
    return true;
}

bool SdlSound::Open()
{
    SDL_AudioSpec wanted{};
    wanted.freq = format.Rate;
    wanted.format = format.Bits == 8 ? AUDIO_U8 : AUDIO_S16LSB;
    wanted.channels = static_cast<Uint8>(format.Channels);
    wanted.samples = static_cast<Uint16>(FramesAsked(format));
    wanted.callback = FillFromFeed;
    wanted.userdata = &feed;
    SDL_AudioSpec opened{};
    feed.SettleDevice(kAsksToSettle);
    device = Sdl().OpenAudioDevice(nullptr, 0, &wanted, &opened, 0);
    if (device == 0)
        return false;
    Sdl().PauseAudioDevice(device, 0);
    return true;
}

void SdlSound::Close()
{
    if (device != 0)
        Sdl().CloseAudioDevice(device);
    device = 0;
}

void SdlSound::WatchForRest()
{
    std::unique_lock lock(mutex);
    int silentRounds = 0;
    while (!watchEnds.wait_for(lock, restRound, [this] { return watchIsEnding; })) {
        silentRounds = std::exchange(used, false) || isStarting || feed.Plays() ? 0 : silentRounds + 1;
        if (silentRounds == kRoundsBeforeRest)
            return Close();
    }
}

void SdlSound::EndWatch()
{
    if (!watch.joinable())
        return;
    {
        const std::lock_guard lock(mutex);
        watchIsEnding = true;
    }
    watchEnds.notify_one();
    watch.join();
    watchIsEnding = false;
}

void SdlSound::Start(StartFrom from, Loop loop)
{
    SetStarting(true);
    if (Wake())
        feed.Start(from, loop);
    SetStarting(false);
}

void SdlSound::SetStarting(bool starting)
{
    const std::lock_guard lock(mutex);
    isStarting = starting;
}

SoundPlace SdlSound::Place()
{
    SoundPlace place = feed.PlaceAt(std::chrono::steady_clock::now());
    const std::lock_guard lock(mutex);
    if (IsLost()) {
        feed.Stop();
        place.Playing = false;
    }
    return place;
}

} // namespace sprout
