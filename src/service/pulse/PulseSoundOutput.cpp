// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseSoundOutput.h"

#include <memory>

#include "service/pulse/PulseSound.h"

namespace sprout {

PulseSoundOutput::PulseSoundOutput(std::chrono::milliseconds round, std::chrono::milliseconds tailBehindEnd)
    : restRound(round), tail(tailBehindEnd)
{
}

ServerAnswer PulseSoundOutput::AskServer()
{
    PulseConnection::Lock lock(connection.Mutex());
    return connection.Connect(lock, ServerDeadline());
}

std::int32_t PulseSoundOutput::SoundDeviceCount()
{
    const auto deadline = ServerDeadline();
    PulseConnection::Lock lock(connection.Mutex());
    return connection.Connect(lock, deadline) == ServerAnswer::Yes ? connection.CountSinks(lock, deadline) : 0;
}

SoundHandle PulseSoundOutput::Open(SoundHandle old, std::int32_t, const SoundFormat& format, std::int32_t bufferBytes)
{
    const auto deadline = ServerDeadline();
    std::unique_ptr<PulseSound> sound(static_cast<PulseSound*>(old.release()));
    bool isAwake = sound && sound->IsAliveIn(format) && sound->Wake(deadline);
    // Twice: after a server restart, only the first failure reveals that the old connection is gone.
    for (int tries = 0; tries < 2 && !isAwake; ++tries) {
        sound.reset();
        sound = std::make_unique<PulseSound>(connection, format, restRound, tail);
        isAwake = sound->Wake(deadline);
    }
    if (!isAwake)
        return nullptr;
    sound->SetSize(bufferBytes);
    return sound;
}

} // namespace sprout
