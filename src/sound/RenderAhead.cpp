// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/RenderAhead.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <thread>
#include <utility>

#include "core/Shared.h"
#include "service/Machine.h"
#include "service/Services.h"
#include "sound/RenderThreads.h"

namespace sprout {

namespace {

constexpr double kMostMemoryShare = 0.1;

std::size_t MostThreads()
{
    const std::size_t most = RenderThreads::Most();
    return most != 0 ? most : std::max(1u, std::thread::hardware_concurrency());
}

bool HasMemoryFor(double bytes)
{
    const auto available = static_cast<double>(TheServices().machine->GlobalMemoryStatus().AvailableBytes);
    return bytes <= kMostMemoryShare * available;
}

template <class Job>
void GiveUp(std::unique_ptr<Job>& job, std::vector<std::unique_ptr<Job>>& old)
{
    if (!job)
        return;
    job->GiveUp();
    old.push_back(std::move(job));
}

} // namespace

RenderAhead::RenderAhead(AheadThreads threads) : calls(std::move(threads))
{
    assert(!current);
    current = this;
}

RenderAhead::~RenderAhead()
{
    current = nullptr;
    GiveUp(steps, oldSteps);
    GiveUp(mix, oldMixes);
}

void RenderAhead::Begin()
{
    Interrupt();
    wasInterrupted = false;
    const SongState& song = Shared().Song;
    if (ready && (song.SongMixValid || !ready->FitsTo(song)))
        ready.reset();
    plan = ready ? AheadPlan() : PlanAhead(song, TheStepCache().MostBytes());
    wanted = {plan.keys.begin(), plan.keys.end()};
    pending = plan.keys;
    StartSteps();
}

void RenderAhead::AllowMix()
{
    mayMix = true;
    StartMix();
}

void RenderAhead::TakeResults()
{
    Collect();
    StartSteps();
    StartMix();
}

void RenderAhead::Interrupt()
{
    Collect();
    wasInterrupted = wasInterrupted || HasStepsToDo() || mix || (plan.mixable && !ready && !Shared().Song.SongMixValid);
    pending.clear();
    plan.mixable = false;
    mayMix = false;
    GiveUp(steps, oldSteps);
    GiveUp(mix, oldMixes);
}

bool RenderAhead::IsAtRest() const
{
    return !HasStepsToDo() && !mix && oldSteps.empty() && oldMixes.empty();
}

bool RenderAhead::HandMixTo(SongState& song)
{
    if (!current)
        return false;
    current->Collect();
    // One that does not fit makes room for the one that is made now.
    std::optional<ReadyMix> mix = std::exchange(current->ready, std::nullopt);
    if (!mix || !mix->FitsTo(song))
        return false;
    mix->HandTo(song);
    return true;
}

void RenderAhead::LetPlayRender()
{
    if (current)
        current->Interrupt();
}

void RenderAhead::Collect()
{
    std::erase_if(oldSteps, [this](const auto& job) { return CollectFrom(*job); });
    std::erase_if(oldMixes, [](const auto& job) { return job->IsFinished(); });
    if (steps && CollectFrom(*steps))
        steps.reset();
    CollectMix();
}

bool RenderAhead::CollectFrom(AheadSteps& job) const
{
    const bool isFinished = job.IsFinished(); // asked first, so that no result comes later
    // Whatever the song was when a sound was begun, it is right for its key.
    for (const AheadSteps::Result& result : job.TakeResults())
        if (result.sound.Length > 0 && wanted.contains(result.key))
            TheStepCache().Keep(result.key, result.sound);
    return isFinished;
}

void RenderAhead::CollectMix()
{
    if (!mix || !mix->IsFinished())
        return;
    ready = mix->Take();
    mix.reset();
    plan.mixable = false;
    if (ready && !ready->FitsTo(Shared().Song))
        ready.reset();
}

void RenderAhead::StartSteps()
{
    if (pending.empty() || steps || !oldSteps.empty())
        return;
    std::erase_if(pending, [](const StepKey& key) { return TheStepCache().Find(key) != nullptr; });
    if (!pending.empty())
        steps = std::make_unique<AheadSteps>(std::exchange(pending, {}), MostThreads(), calls);
}

void RenderAhead::StartMix()
{
    if (!mayMix || !plan.mixable || mix || HasStepsToDo() || !oldMixes.empty())
        return;
    const SongState& song = Shared().Song;
    if (HasMemoryFor(MixBytes(song)))
        mix = std::make_unique<AheadMix>(song, SoundsOfPlan(), calls);
    else
        plan.mixable = false;
}

StepCache RenderAhead::SoundsOfPlan() const
{
    StepCache sounds(std::numeric_limits<std::size_t>::max());
    for (const StepKey& key : plan.keys)
        if (const WaveData* const sound = TheStepCache().Find(key))
            sounds.Keep(key, *sound);
    return sounds;
}

} // namespace sprout
