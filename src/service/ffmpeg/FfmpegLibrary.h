// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avutil.h>
#include <libavutil/channel_layout.h>
#include <libavutil/dict.h>
#include <libavutil/frame.h>
#include <libavutil/log.h>
#include <libavutil/mem.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

namespace sprout {

/// FFmpeg's calls for writing and reading sounds, by their own names without `av` and similar prefixes. The libraries
/// are loaded at first use, not at program start: they load 130 more.
struct FfmpegLibrary {
    // libavutil
    decltype(&av_log_set_level) LogSetLevel = nullptr;
    decltype(&av_malloc) Malloc = nullptr;
    decltype(&av_freep) Freep = nullptr;
    decltype(&av_dict_set) DictSet = nullptr;
    decltype(&av_dict_get) DictGet = nullptr;
    decltype(&av_dict_free) DictFree = nullptr;
    decltype(&av_frame_alloc) FrameAlloc = nullptr;
    decltype(&av_frame_free) FrameFree = nullptr;
    decltype(&av_frame_unref) FrameUnref = nullptr;
    decltype(&av_frame_get_buffer) FrameGetBuffer = nullptr;
    decltype(&av_frame_make_writable) FrameMakeWritable = nullptr;
    decltype(&av_channel_layout_default) ChannelLayoutDefault = nullptr;
    decltype(&av_channel_layout_copy) ChannelLayoutCopy = nullptr;
    decltype(&av_channel_layout_uninit) ChannelLayoutUninit = nullptr;
    decltype(&av_opt_set) OptSet = nullptr;

    // libavcodec
    decltype(&avcodec_find_encoder) FindEncoder = nullptr;
    decltype(&avcodec_find_decoder) FindDecoder = nullptr;
    decltype(&av_codec_iterate) CodecIterate = nullptr;
    decltype(&av_codec_is_decoder) CodecIsDecoder = nullptr;
    decltype(&avcodec_get_name) CodecGetName = nullptr;
    decltype(&avcodec_alloc_context3) CodecAllocContext = nullptr;
    decltype(&avcodec_free_context) CodecFreeContext = nullptr;
    decltype(&avcodec_open2) CodecOpen = nullptr;
    decltype(&avcodec_parameters_from_context) ParametersFromContext = nullptr;
    decltype(&avcodec_parameters_to_context) ParametersToContext = nullptr;
    decltype(&avcodec_send_frame) SendFrame = nullptr;
    decltype(&avcodec_receive_packet) ReceivePacket = nullptr;
    decltype(&avcodec_send_packet) SendPacket = nullptr;
    decltype(&avcodec_receive_frame) ReceiveFrame = nullptr;
    decltype(&av_packet_alloc) PacketAlloc = nullptr;
    decltype(&av_packet_free) PacketFree = nullptr;
    decltype(&av_packet_unref) PacketUnref = nullptr;
    decltype(&av_packet_rescale_ts) PacketRescaleTs = nullptr;

    // libavformat
    decltype(&avio_alloc_context) IoAllocContext = nullptr;
    decltype(&avio_context_free) IoContextFree = nullptr;
    decltype(&avio_flush) IoFlush = nullptr;
    decltype(&avformat_alloc_context) FormatAllocContext = nullptr;
    decltype(&avformat_alloc_output_context2) FormatAllocOutputContext = nullptr;
    decltype(&avformat_free_context) FormatFreeContext = nullptr;
    decltype(&avformat_new_stream) FormatNewStream = nullptr;
    decltype(&avformat_write_header) FormatWriteHeader = nullptr;
    decltype(&av_write_frame) FormatWriteFrame = nullptr;
    decltype(&av_write_trailer) FormatWriteTrailer = nullptr;
    decltype(&avformat_open_input) FormatOpenInput = nullptr;
    decltype(&avformat_close_input) FormatCloseInput = nullptr;
    decltype(&avformat_find_stream_info) FormatFindStreamInfo = nullptr;
    decltype(&av_find_best_stream) FormatFindBestStream = nullptr;
    decltype(&av_read_frame) FormatReadFrame = nullptr;

    // libswresample
    decltype(&swr_alloc_set_opts2) ResampleAllocSetOpts = nullptr;
    decltype(&swr_init) ResampleInit = nullptr;
    decltype(&swr_convert) ResampleConvert = nullptr;
    decltype(&swr_get_out_samples) ResampleGetOutSamples = nullptr;
    decltype(&swr_free) ResampleFree = nullptr;

    /// If the libraries are missing, no other call may be made.
    [[nodiscard]] bool IsThere() const { return LogSetLevel != nullptr; }
};

/// The libraries. They are loaded once, stay loaded and print nothing on standard error. May be called from any thread.
[[nodiscard]] const FfmpegLibrary& Ffmpeg();

} // namespace sprout
