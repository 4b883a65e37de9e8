// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sound/MachineSound.h"

#include <cstdlib>
#include <utility>

#include "service/pulse/PulseSound.h"
#include "service/sdl/SdlSound.h"

namespace sprout {

namespace {

/// `handle`, or an empty one if it is not a `Sound`: a handle of one output means nothing to the other.
template <class Sound>
SoundHandle KeepIf(SoundHandle handle)
{
    return dynamic_cast<Sound*>(handle.get()) ? std::move(handle) : nullptr;
}

bool IsOpenDevice(const SoundHandle& handle, const SoundFormat& format)
{
    auto* const sound = dynamic_cast<SdlSound*>(handle.get());
    return sound && sound->IsOpenIn(format);
}

} // namespace

bool UserChoseSdl()
{
    const char* const driver = std::getenv("SDL_AUDIODRIVER");
    return driver && *driver != '\0';
}

MachineSound::MachineSound(std::chrono::milliseconds restRound) : server(restRound), device(restRound) {}

ServerAnswer MachineSound::AskServer()
{
    return UserChoseSdl() ? ServerAnswer::No : server.AskServer();
}

void MachineSound::CountAhead()
{
    countAhead = std::async([this] { return CountDevices(); });
}

std::int32_t MachineSound::SoundDeviceCount()
{
    return countAhead.valid() ? countAhead.get() : CountDevices();
}

std::int32_t MachineSound::CountDevices()
{
    const ServerAnswer answer = AskServer();
    if (answer == ServerAnswer::Yes)
        return server.SoundDeviceCount();
    // SDL would wait for a silent server without limit.
    return answer == ServerAnswer::No ? device.SoundDeviceCount() : 0;
}

SoundHandle MachineSound::Open(SoundHandle old, std::int32_t windowHandle, const SoundFormat& format,
                               std::int32_t bufferBytes)
{
    if (countAhead.valid())
        countAhead.wait();
    ServerAnswer answer = IsOpenDevice(old, format) ? ServerAnswer::No : AskServer();
    if (answer == ServerAnswer::Yes) {
        SoundHandle sound = server.Open(KeepIf<PulseSound>(std::move(old)), windowHandle, format, bufferBytes);
        if (sound)
            return sound;
        old = nullptr;
        answer = AskServer(); // a failure may be the first sign that the server is gone
    }
    if (answer == ServerAnswer::No)
        return device.Open(KeepIf<SdlSound>(std::move(old)), windowHandle, format, bufferBytes);
    return nullptr;
}

} // namespace sprout
