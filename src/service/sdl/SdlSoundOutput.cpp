// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/sdl/SdlSoundOutput.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "service/sdl/SdlLibrary.h"
#include "service/sdl/SdlSound.h"

namespace sprout {

namespace {

std::unique_ptr<SdlSound> OpenSound(const SoundFormat& format, std::chrono::milliseconds restRound)
{
    // ALSA, SDL's fallback, complains on standard error about every missing device. A list that cannot be read (below
    // 0) is not an empty one.
    if (Sdl().GetNumAudioDevices(0) == 0)
        return nullptr;
    auto sound = std::make_unique<SdlSound>(format, restRound);
    return sound->Wake() ? std::move(sound) : nullptr;
}

} // namespace

SdlSoundOutput::SdlSoundOutput(std::chrono::milliseconds round) : restRound(round) {}

SdlSoundOutput::~SdlSoundOutput()
{
    StopAudio();
}

std::int32_t SdlSoundOutput::SoundDeviceCount()
{
    return StartAudio() ? std::max(0, Sdl().GetNumAudioDevices(0)) : 0;
}

SoundHandle SdlSoundOutput::Open(SoundHandle old, std::int32_t, const SoundFormat& format, std::int32_t bufferBytes)
{
    // Every handle came from here.
    std::unique_ptr<SdlSound> sound(static_cast<SdlSound*>(old.release()));
    if (sound && !(sound->IsAliveIn(format) && sound->Wake()))
        sound.reset();
    if (!sound && StartAudio())
        sound = OpenSound(format, restRound);
    if (!sound) {
        StopAudio();
        if (StartAudio())
            sound = OpenSound(format, restRound);
    }
    if (sound)
        sound->SetSize(bufferBytes);
    return sound;
}

bool SdlSoundOutput::StartAudio()
{
    if (!audioRuns)
        audioRuns = StartSdlAudio();
    return audioRuns;
}

void SdlSoundOutput::StopAudio()
{
    if (audioRuns)
        Sdl().QuitSubSystem(SDL_INIT_AUDIO);
    audioRuns = false;
}

} // namespace sprout
