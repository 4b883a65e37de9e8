// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/sdl/SdlSoundOutput.h"

#include <SDL.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <utility>

#include "core/Shared.h"
#include "service/sdl/PcmFeed.h"

namespace sprout {

namespace {

/// Frames that the device asks for at a time at 44,100 Hz, 12 ms: what a stop has to wait for, once in the device's
/// thread and once in its queue.
constexpr std::int32_t kFramesAsked = 512;

std::int32_t FramesAsked(const SoundFormat& format)
{
    return kFramesAsked * format.Rate / 44100;
}

/// A sound on a device of its own.
class SdlSoundObject : public SoundObject {
public:
    explicit SdlSoundObject(const SoundFormat& soundFormat) : format(soundFormat), feed(format, FramesAsked(format)) {}
    ~SdlSoundObject() override
    {
        feed.Stop();
        if (device != 0)
            SDL_CloseAudioDevice(device);
    }

    /// Opens the default device. False where there is none.
    [[nodiscard]] bool Open();
    [[nodiscard]] bool IsAliveIn(const SoundFormat& wanted) const { return wanted == format && !IsLost(); }
    void SetSize(std::int32_t bufferBytes) { soundBytes = static_cast<std::size_t>(std::max(0, bufferBytes)); }

    void Service06(std::span<const std::byte> pcm) override { feed.Load(pcm, soundBytes); }
    void Service04(StartFrom from, Loop loop) override { feed.Start(from, loop); }
    void Service05() override { feed.Stop(); }
    [[nodiscard]] SoundPlace Service07() override;
    void Service09(Loop loop) override { feed.SetLooping(loop); }

private:
    /// True when the sound server or the device went away. SDL goes on asking for samples, and nobody hears them.
    [[nodiscard]] bool IsLost() const { return SDL_GetAudioDeviceStatus(device) == SDL_AUDIO_STOPPED; }

    static void SDLCALL FillFromFeed(void* object, Uint8* out, int bytes);

    const SoundFormat format;
    PcmFeed feed;
    std::size_t soundBytes = 0;
    SDL_AudioDeviceID device = 0;
};

bool SdlSoundObject::Open()
{
    SDL_AudioSpec wanted{};
    wanted.freq = format.Rate;
    wanted.format = format.Bits == 8 ? AUDIO_U8 : AUDIO_S16LSB;
    wanted.channels = static_cast<Uint8>(format.Channels);
    wanted.samples = static_cast<Uint16>(FramesAsked(format));
    wanted.callback = FillFromFeed;
    wanted.userdata = this;
    SDL_AudioSpec opened{};
    device = SDL_OpenAudioDevice(nullptr, 0, &wanted, &opened, 0);
    if (device == 0)
        return false;
    SDL_PauseAudioDevice(device, 0);
    return true;
}

SoundPlace SdlSoundObject::Service07()
{
    SoundPlace place = feed.PlaceAt(std::chrono::steady_clock::now());
    if (IsLost()) {
        feed.Stop();
        place.Playing = false;
    }
    return place;
}

void SdlSoundObject::FillFromFeed(void* object, Uint8* out, int bytes)
{
    static_cast<SdlSoundObject*>(object)->feed.Fill(
        {reinterpret_cast<std::byte*>(out), static_cast<std::size_t>(bytes)}, std::chrono::steady_clock::now());
}

std::unique_ptr<SdlSoundObject> OpenSound(const SoundFormat& format)
{
    auto sound = std::make_unique<SdlSoundObject>(format);
    return sound->Open() ? std::move(sound) : nullptr;
}

} // namespace

SdlSoundOutput::~SdlSoundOutput()
{
    StopAudio();
}

std::int32_t SdlSoundOutput::SoundDeviceCount()
{
    return StartAudio() ? std::max(0, SDL_GetNumAudioDevices(0)) : 0;
}

SoundHandle SdlSoundOutput::Service02(SoundHandle old, std::int32_t, const SoundFormat& format,
                                      std::int32_t bufferBytes)
{
    // Every handle came from here.
    std::unique_ptr<SdlSoundObject> sound(static_cast<SdlSoundObject*>(old.release()));
    if (sound && !sound->IsAliveIn(format))
        sound.reset();
    if (!sound && StartAudio())
        sound = OpenSound(format);
    if (!sound) {
        StopAudio();
        if (StartAudio())
            sound = OpenSound(format);
    }
    if (sound)
        sound->SetSize(bufferBytes);
    return sound;
}

bool SdlSoundOutput::StartAudio()
{
    if (audioRuns)
        return true;
    // Ctrl-C goes on ending the program.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, std::string(kProductName).c_str());
    audioRuns = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
    // Nobody fetches these: the state of the open device tells the same.
    SDL_EventState(SDL_AUDIODEVICEADDED, SDL_IGNORE);
    SDL_EventState(SDL_AUDIODEVICEREMOVED, SDL_IGNORE);
    return audioRuns;
}

void SdlSoundOutput::StopAudio()
{
    if (audioRuns)
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    audioRuns = false;
}

} // namespace sprout
