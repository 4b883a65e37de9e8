// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/sdl/SdlCapture.h"

#include <utility>

#include "service/sdl/SdlLibrary.h"

namespace sprout {

namespace {

constexpr Uint16 kFramesGiven = 1024; // at a time, 23 ms

} // namespace

SdlCapture::~SdlCapture()
{
    SdlCapture::Close();
}

CaptureOpening SdlCapture::Open(CaptureSink& captureSink)
{
    Close();
    sink = &captureSink;
    audioRuns = StartSdlAudio();
    const CaptureOpening opening = audioRuns ? OpenDevice() : CaptureOpening::Failed;
    if (opening != CaptureOpening::Ready)
        Close(); // the next opening restarts SDL's audio and finds a device that came later
    return opening;
}

CaptureOpening SdlCapture::OpenDevice()
{
    // A list that cannot be read (below 0) is not an empty one.
    if (Sdl().GetNumAudioDevices(1) == 0)
        return CaptureOpening::NoMicrophone;
    SDL_AudioSpec wanted{};
    wanted.freq = 44100;
    wanted.format = AUDIO_S16LSB;
    wanted.channels = 2;
    wanted.samples = kFramesGiven;
    wanted.callback = OnFrames;
    wanted.userdata = this;
    SDL_AudioSpec opened{};
    device = Sdl().OpenAudioDevice(nullptr, 1, &wanted, &opened, 0);
    if (device == 0)
        return CaptureOpening::Failed;
    Sdl().PauseAudioDevice(device, 0);
    return CaptureOpening::Ready;
}

void SdlCapture::Close()
{
    if (device != 0)
        Sdl().CloseAudioDevice(device); // this ends its thread, which reads the number
    device = 0;
    if (std::exchange(audioRuns, false))
        Sdl().QuitSubSystem(SDL_INIT_AUDIO);
}

bool SdlCapture::IsThere() const
{
    return device != 0 && Sdl().GetAudioDeviceStatus(device) != SDL_AUDIO_STOPPED;
}

SourceState SdlCapture::State()
{
    return IsThere() ? SourceState::Runs : SourceState::Gone;
}

void SdlCapture::OnFrames(void* self, std::uint8_t* frames, int bytes)
{
    const auto* capture = static_cast<const SdlCapture*>(self);
    if (capture->IsThere()) // SDL continues with silence if the device is gone
        capture->sink->Take({reinterpret_cast<const std::byte*>(frames), static_cast<std::size_t>(bytes)});
}

} // namespace sprout
