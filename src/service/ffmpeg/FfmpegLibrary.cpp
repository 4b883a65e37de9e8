// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/FfmpegLibrary.h"

#include <dlfcn.h>

#include <string>

namespace sprout {

namespace {

/// A library of the release that the headers belong to: others have different structures.
class Library {
public:
    Library(const char* name, int version)
        : handle(dlopen((std::string(name) + ".so." + std::to_string(version)).c_str(), RTLD_LAZY | RTLD_LOCAL)),
          foundAll(handle != nullptr)
    {
    }

    template <class Call>
    Library& operator()(const char* name, Call& call)
    {
        call = handle ? reinterpret_cast<Call>(dlsym(handle, name)) : nullptr;
        foundAll = foundAll && call;
        return *this;
    }

    [[nodiscard]] bool FoundAll() const { return foundAll; }

private:
    void* handle;
    bool foundAll;
};

bool FindUtil(FfmpegLibrary& calls)
{
    Library find("libavutil", LIBAVUTIL_VERSION_MAJOR);
    find("av_log_set_level", calls.LogSetLevel)("av_malloc", calls.Malloc)("av_freep", calls.Freep);
    find("av_dict_set", calls.DictSet)("av_dict_get", calls.DictGet)("av_dict_free", calls.DictFree);
    find("av_frame_alloc", calls.FrameAlloc)("av_frame_free", calls.FrameFree)("av_frame_unref", calls.FrameUnref);
    find("av_frame_get_buffer", calls.FrameGetBuffer)("av_frame_make_writable", calls.FrameMakeWritable);
    find("av_channel_layout_default", calls.ChannelLayoutDefault);
    find("av_channel_layout_copy", calls.ChannelLayoutCopy);
    find("av_channel_layout_uninit", calls.ChannelLayoutUninit);
    find("av_opt_set", calls.OptSet);
    return find.FoundAll();
}

bool FindCodec(FfmpegLibrary& calls)
{
    Library find("libavcodec", LIBAVCODEC_VERSION_MAJOR);
    find("avcodec_find_encoder", calls.FindEncoder)("avcodec_find_decoder", calls.FindDecoder);
    find("av_codec_iterate", calls.CodecIterate)("av_codec_is_decoder", calls.CodecIsDecoder);
    find("avcodec_get_name", calls.CodecGetName)("avcodec_alloc_context3", calls.CodecAllocContext);
    find("avcodec_free_context", calls.CodecFreeContext)("avcodec_open2", calls.CodecOpen);
    find("avcodec_parameters_from_context", calls.ParametersFromContext);
    find("avcodec_parameters_to_context", calls.ParametersToContext);
    find("avcodec_send_frame", calls.SendFrame)("avcodec_receive_packet", calls.ReceivePacket);
    find("avcodec_send_packet", calls.SendPacket)("avcodec_receive_frame", calls.ReceiveFrame);
    find("av_packet_alloc", calls.PacketAlloc)("av_packet_free", calls.PacketFree);
    find("av_packet_unref", calls.PacketUnref)("av_packet_rescale_ts", calls.PacketRescaleTs);
    return find.FoundAll();
}

bool FindFormat(FfmpegLibrary& calls)
{
    Library find("libavformat", LIBAVFORMAT_VERSION_MAJOR);
    find("avio_alloc_context", calls.IoAllocContext)("avio_context_free", calls.IoContextFree);
    find("avio_flush", calls.IoFlush)("avformat_alloc_context", calls.FormatAllocContext);
    find("avformat_alloc_output_context2", calls.FormatAllocOutputContext);
    find("avformat_free_context", calls.FormatFreeContext)("avformat_new_stream", calls.FormatNewStream);
    find("avformat_write_header", calls.FormatWriteHeader)("av_write_frame", calls.FormatWriteFrame);
    find("av_write_trailer", calls.FormatWriteTrailer)("avformat_open_input", calls.FormatOpenInput);
    find("avformat_close_input", calls.FormatCloseInput)("avformat_find_stream_info", calls.FormatFindStreamInfo);
    find("av_find_best_stream", calls.FormatFindBestStream)("av_read_frame", calls.FormatReadFrame);
    return find.FoundAll();
}

bool FindResample(FfmpegLibrary& calls)
{
    Library find("libswresample", LIBSWRESAMPLE_VERSION_MAJOR);
    find("swr_alloc_set_opts2", calls.ResampleAllocSetOpts)("swr_init", calls.ResampleInit);
    find("swr_convert", calls.ResampleConvert)("swr_get_out_samples", calls.ResampleGetOutSamples);
    find("swr_free", calls.ResampleFree);
    return find.FoundAll();
}

FfmpegLibrary LoadLibraries()
{
    FfmpegLibrary calls;
    if (!FindUtil(calls) || !FindCodec(calls) || !FindFormat(calls) || !FindResample(calls))
        return {};
    calls.LogSetLevel(AV_LOG_QUIET);
    return calls;
}

} // namespace

const FfmpegLibrary& Ffmpeg()
{
    static const FfmpegLibrary library = LoadLibraries();
    return library;
}

} // namespace sprout
