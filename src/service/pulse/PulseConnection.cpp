// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseConnection.h"

#include <poll.h>

#include <memory>
#include <string>

#include "base/Product.h"
#include "service/pulse/PulseLibrary.h"

namespace sprout {

namespace {

/// Lets other threads work while the loop waits.
int PollUnlocked(pollfd* files, unsigned long count, int timeout, void* mutex)
{
    static_cast<std::mutex*>(mutex)->unlock();
    const int ready = poll(files, count, timeout);
    static_cast<std::mutex*>(mutex)->lock();
    return ready;
}

/// Counts an arriving list of sinks.
struct SinkCount {
    PulseConnection& connection;
    std::int32_t count = 0;
    bool isWhole = false;
};

void CountSink(pa_context* /*context*/, const pa_sink_info* /*sink*/, int isLast, void* data)
{
    auto* sinks = static_cast<SinkCount*>(data);
    if (isLast == 0) {
        ++sinks->count;
        return;
    }
    sinks->isWhole = true;
    sinks->connection.Notify();
}

} // namespace

PulseConnection::~PulseConnection()
{
    if (!loop)
        return;
    {
        const std::lock_guard lock(mutex);
        Disconnect();
        Pulse().MainLoopQuit(loop, 0);
    }
    thread.join();
    Pulse().MainLoopFree(loop);
}

pa_mainloop_api& PulseConnection::Api() const
{
    return *Pulse().MainLoopGetApi(loop);
}

bool PulseConnection::Stands() const
{
    return context && Pulse().ContextGetState(context) == PA_CONTEXT_READY;
}

ServerAnswer PulseConnection::Connect(Lock& lock, Time deadline)
{
    if (Stands())
        return ServerAnswer::Yes;
    Disconnect();
    if (!StartLoop())
        return ServerAnswer::No;
    context = Pulse().ContextNew(&Api(), std::string(kProductName).c_str());
    if (!context)
        return ServerAnswer::No;
    Pulse().ContextSetStateCallback(
        context, [](pa_context*, void* self) { static_cast<PulseConnection*>(self)->Notify(); }, this);
    Pulse().ContextConnect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
    const bool answered =
        WaitFor(lock, deadline, [this] { return Stands() || !PA_CONTEXT_IS_GOOD(Pulse().ContextGetState(context)); });
    if (Stands())
        return ServerAnswer::Yes;
    Disconnect();
    return answered ? ServerAnswer::No : ServerAnswer::Silence;
}

std::int32_t PulseConnection::CountSinks(Lock& lock, Time deadline)
{
    SinkCount sinks{*this};
    pa_operation* const question = Pulse().ContextGetSinkInfoList(context, CountSink, &sinks);
    return WaitForAnswer(lock, deadline, question, sinks.isWhole) ? sinks.count : 0;
}

bool PulseConnection::WaitForAnswer(Lock& lock, Time deadline, pa_operation* question, const bool& isWhole)
{
    if (!question)
        return false;
    const bool isAnswered = WaitFor(lock, deadline, [&] { return isWhole || !Stands(); });
    Pulse().OperationCancel(question);
    Pulse().OperationUnref(question);
    return isAnswered && isWhole;
}

bool PulseConnection::StartLoop()
{
    if (loop || !Pulse().IsThere())
        return loop != nullptr;
    loop = Pulse().MainLoopNew();
    if (!loop)
        return false;
    Pulse().MainLoopSetPollFunc(loop, PollUnlocked, &mutex);
    thread = std::thread([this] { RunLoop(); });
    return true;
}

void PulseConnection::RunLoop()
{
    const std::lock_guard lock(mutex);
    int result = 0;
    Pulse().MainLoopRun(loop, &result);
}

void PulseConnection::Disconnect()
{
    if (!context)
        return;
    Pulse().ContextSetStateCallback(context, nullptr, nullptr);
    Pulse().ContextDisconnect(context);
    Pulse().ContextUnref(context);
    context = nullptr;
}

} // namespace sprout
