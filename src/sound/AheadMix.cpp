// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/AheadMix.h"

#include <exception>
#include <system_error>
#include <utility>

#include "base/Errors.h"
#include "core/rendered/Rendered.h"
#include "sound/RenderSetting.h"
#include "sound/SongParts.h"

namespace sprout {

AheadMix::AheadMix(const SongState& song, StepCache sounds, const AheadThreads& threads)
    : calls(threads), before(CopyForMix(song)), after(before), stepSounds(std::move(sounds))
{
    try {
        worker = std::thread([this] { Work(); });
    } catch (const std::system_error&) {
        isRunning = false; // the play makes the mix
    }
}

AheadMix::~AheadMix()
{
    GiveUp();
    if (worker.joinable())
        worker.join();
}

std::optional<ReadyMix> AheadMix::Take()
{
    if (!IsFinished() || !std::exchange(isMade, false))
        return std::nullopt;
    return ReadyMix(std::move(before), std::move(after));
}

void AheadMix::Work()
{
    calls.begun();
    // A mix that cannot be made now is left to the play, which meets the same failure and treats it.
    try {
        Mix();
        isMade = true;
    } catch (const WorkStopped&) {
    } catch (const std::exception&) {
    }
    isRunning.store(false);
    calls.finished();
}

void AheadMix::Mix()
{
    const auto goOn = [this](std::size_t, std::size_t) {
        if (isGivenUp.load())
            throw WorkStopped();
    };
    Rendered::KeepSongMix(after, MixParts({after, stepSounds, UnloadedBeats::AreRefused, goOn, goOn}));
}

} // namespace sprout
