// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseTimer.h"

#include <utility>

#include "service/pulse/PulseLibrary.h"

namespace sprout {

PulseTimer::PulseTimer(PulseConnection& server, std::function<void()> call)
    : connection(server), whenOver(std::move(call))
{
}

void PulseTimer::Start(std::chrono::milliseconds time)
{
    const auto end = Pulse().RtClockNow() + static_cast<pa_usec_t>(std::chrono::microseconds(time).count());
    if (event)
        return Pulse().ContextRtTimeRestart(connection.Context(), event, end);
    event = Pulse().ContextRtTimeNew(
        connection.Context(), end,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* self) {
            static_cast<PulseTimer*>(self)->whenOver();
        },
        this);
}

void PulseTimer::Stop()
{
    if (event)
        connection.Api().time_free(std::exchange(event, nullptr));
}

} // namespace sprout
