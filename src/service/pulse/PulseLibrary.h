// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <pulse/pulseaudio.h>

namespace sprout {

/// libpulse's calls for playing and recording. The library is loaded at first use, not at program start: it loads
/// twenty more, which would delay the first picture of the window.
struct PulseLibrary {
    decltype(&pa_rtclock_now) RtClockNow = nullptr;

    decltype(&pa_mainloop_new) MainLoopNew = nullptr;
    decltype(&pa_mainloop_free) MainLoopFree = nullptr;
    decltype(&pa_mainloop_get_api) MainLoopGetApi = nullptr;
    decltype(&pa_mainloop_set_poll_func) MainLoopSetPollFunc = nullptr;
    decltype(&pa_mainloop_run) MainLoopRun = nullptr;
    decltype(&pa_mainloop_quit) MainLoopQuit = nullptr;

    decltype(&pa_context_new) ContextNew = nullptr;
    decltype(&pa_context_connect) ContextConnect = nullptr;
    decltype(&pa_context_disconnect) ContextDisconnect = nullptr;
    decltype(&pa_context_unref) ContextUnref = nullptr;
    decltype(&pa_context_get_state) ContextGetState = nullptr;
    decltype(&pa_context_set_state_callback) ContextSetStateCallback = nullptr;
    decltype(&pa_context_get_sink_info_list) ContextGetSinkInfoList = nullptr;
    decltype(&pa_context_get_source_info_list) ContextGetSourceInfoList = nullptr;
    decltype(&pa_context_get_server_info) ContextGetServerInfo = nullptr;
    decltype(&pa_context_set_source_volume_by_index) ContextSetSourceVolumeByIndex = nullptr;
    decltype(&pa_context_set_source_mute_by_index) ContextSetSourceMuteByIndex = nullptr;
    decltype(&pa_context_set_subscribe_callback) ContextSetSubscribeCallback = nullptr;
    decltype(&pa_context_subscribe) ContextSubscribe = nullptr;
    decltype(&pa_context_rttime_new) ContextRtTimeNew = nullptr;
    decltype(&pa_context_rttime_restart) ContextRtTimeRestart = nullptr;

    decltype(&pa_operation_cancel) OperationCancel = nullptr;
    decltype(&pa_operation_unref) OperationUnref = nullptr;

    decltype(&pa_stream_new) StreamNew = nullptr;
    decltype(&pa_stream_connect_playback) StreamConnectPlayback = nullptr;
    decltype(&pa_stream_connect_record) StreamConnectRecord = nullptr;
    decltype(&pa_stream_disconnect) StreamDisconnect = nullptr;
    decltype(&pa_stream_unref) StreamUnref = nullptr;
    decltype(&pa_stream_get_state) StreamGetState = nullptr;
    decltype(&pa_stream_set_state_callback) StreamSetStateCallback = nullptr;
    decltype(&pa_stream_set_write_callback) StreamSetWriteCallback = nullptr;
    decltype(&pa_stream_set_started_callback) StreamSetStartedCallback = nullptr;
    decltype(&pa_stream_set_latency_update_callback) StreamSetLatencyUpdateCallback = nullptr;
    decltype(&pa_stream_begin_write) StreamBeginWrite = nullptr;
    decltype(&pa_stream_write) StreamWrite = nullptr;
    decltype(&pa_stream_writable_size) StreamWritableSize = nullptr;
    decltype(&pa_stream_cork) StreamCork = nullptr;
    decltype(&pa_stream_flush) StreamFlush = nullptr;
    decltype(&pa_stream_update_timing_info) StreamUpdateTimingInfo = nullptr;
    decltype(&pa_stream_get_timing_info) StreamGetTimingInfo = nullptr;

    decltype(&pa_stream_set_read_callback) StreamSetReadCallback = nullptr;
    decltype(&pa_stream_peek) StreamPeek = nullptr;
    decltype(&pa_stream_drop) StreamDrop = nullptr;
    decltype(&pa_stream_is_suspended) StreamIsSuspended = nullptr;
    decltype(&pa_stream_get_device_name) StreamGetDeviceName = nullptr;

    /// If the library is missing, no other call may be made.
    [[nodiscard]] bool IsThere() const { return RtClockNow != nullptr; }
};

/// The library, which is loaded once and stays loaded. May be called from any thread.
[[nodiscard]] const PulseLibrary& Pulse();

/// Lets a question continue although nobody waits for its answer. May be null.
void Forget(pa_operation* question);

} // namespace sprout
