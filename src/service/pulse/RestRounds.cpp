// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/RestRounds.h"

#include <utility>

namespace sprout {

namespace {

constexpr int kRoundsBeforeRest = 3;

} // namespace

RestRounds::RestRounds(PulseConnection& server, std::chrono::milliseconds round, std::function<bool()> isUsed,
                       std::function<void()> rest)
    : roundTime(round),
      whetherUsed(std::move(isUsed)),
      whenRested(std::move(rest)),
      timer(server, [this] { OnRound(); })
{
}

void RestRounds::Start()
{
    silentRounds = 0;
    timer.Start(roundTime);
}

void RestRounds::OnRound()
{
    const bool isInUse = whetherUsed();
    if (!timer.IsStarted())
        return;
    silentRounds = std::exchange(used, false) || isInUse ? 0 : silentRounds + 1;
    if (silentRounds < kRoundsBeforeRest)
        return timer.Start(roundTime);
    timer.Stop();
    whenRested();
}

} // namespace sprout
