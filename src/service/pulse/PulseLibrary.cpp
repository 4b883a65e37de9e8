// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseLibrary.h"

#include <dlfcn.h>

namespace sprout {

namespace {

constexpr const char* kLibraryFile = "libpulse.so.0";

/// Looks up calls one by one, and remembers whether any was missing.
class Finder {
public:
    explicit Finder(void* openLibrary) : library(openLibrary) {}

    template <class Call>
    Finder& operator()(const char* name, Call& call)
    {
        call = reinterpret_cast<Call>(dlsym(library, name));
        foundAll = foundAll && call;
        return *this;
    }

    [[nodiscard]] bool FoundAll() const { return foundAll; }

private:
    void* const library;
    bool foundAll = true;
};

void FindLoop(Finder& find, PulseLibrary& calls)
{
    find("pa_rtclock_now", calls.RtClockNow)("pa_mainloop_new", calls.MainLoopNew);
    find("pa_mainloop_free", calls.MainLoopFree)("pa_mainloop_get_api", calls.MainLoopGetApi);
    find("pa_mainloop_set_poll_func", calls.MainLoopSetPollFunc)("pa_mainloop_run", calls.MainLoopRun);
    find("pa_mainloop_quit", calls.MainLoopQuit);
}

void FindContext(Finder& find, PulseLibrary& calls)
{
    find("pa_context_new", calls.ContextNew)("pa_context_connect", calls.ContextConnect);
    find("pa_context_disconnect", calls.ContextDisconnect)("pa_context_unref", calls.ContextUnref);
    find("pa_context_get_state", calls.ContextGetState);
    find("pa_context_set_state_callback", calls.ContextSetStateCallback);
    find("pa_context_get_sink_info_list", calls.ContextGetSinkInfoList);
    find("pa_context_rttime_new", calls.ContextRtTimeNew);
    find("pa_context_rttime_restart", calls.ContextRtTimeRestart);
    find("pa_operation_cancel", calls.OperationCancel)("pa_operation_unref", calls.OperationUnref);
}

void FindStream(Finder& find, PulseLibrary& calls)
{
    find("pa_stream_new", calls.StreamNew)("pa_stream_connect_playback", calls.StreamConnectPlayback);
    find("pa_stream_disconnect", calls.StreamDisconnect)("pa_stream_unref", calls.StreamUnref);
    find("pa_stream_get_state", calls.StreamGetState)("pa_stream_set_state_callback", calls.StreamSetStateCallback);
    find("pa_stream_set_write_callback", calls.StreamSetWriteCallback);
    find("pa_stream_set_started_callback", calls.StreamSetStartedCallback);
    find("pa_stream_set_latency_update_callback", calls.StreamSetLatencyUpdateCallback);
    find("pa_stream_begin_write", calls.StreamBeginWrite)("pa_stream_write", calls.StreamWrite);
    find("pa_stream_writable_size", calls.StreamWritableSize)("pa_stream_cork", calls.StreamCork);
    find("pa_stream_flush", calls.StreamFlush);
    find("pa_stream_update_timing_info", calls.StreamUpdateTimingInfo);
    find("pa_stream_get_timing_info", calls.StreamGetTimingInfo);
}

void FindSources(Finder& find, PulseLibrary& calls)
{
    find("pa_context_get_source_info_list", calls.ContextGetSourceInfoList);
    find("pa_context_get_server_info", calls.ContextGetServerInfo);
    find("pa_context_set_source_volume_by_index", calls.ContextSetSourceVolumeByIndex);
    find("pa_context_set_source_mute_by_index", calls.ContextSetSourceMuteByIndex);
    find("pa_context_set_subscribe_callback", calls.ContextSetSubscribeCallback);
    find("pa_context_subscribe", calls.ContextSubscribe);
}

void FindRecording(Finder& find, PulseLibrary& calls)
{
    find("pa_stream_connect_record", calls.StreamConnectRecord);
    find("pa_stream_set_read_callback", calls.StreamSetReadCallback);
    find("pa_stream_peek", calls.StreamPeek)("pa_stream_drop", calls.StreamDrop);
    find("pa_stream_is_suspended", calls.StreamIsSuspended);
    find("pa_stream_get_device_name", calls.StreamGetDeviceName);
}

PulseLibrary LoadLibrary()
{
    void* const library = dlopen(kLibraryFile, RTLD_LAZY | RTLD_LOCAL);
    if (!library)
        return {};
    PulseLibrary calls;
    Finder find(library);
    FindLoop(find, calls);
    FindContext(find, calls);
    FindStream(find, calls);
    FindSources(find, calls);
    FindRecording(find, calls);
    return find.FoundAll() ? calls : PulseLibrary();
}

} // namespace

const PulseLibrary& Pulse()
{
    static const PulseLibrary library = LoadLibrary();
    return library;
}

void Forget(pa_operation* question)
{
    if (question)
        Pulse().OperationUnref(question);
}

} // namespace sprout
