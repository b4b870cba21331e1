#pragma once
// FFmpeg, loaded the first time it is needed instead of at process start.
//
// libavformat and libavcodec pull in well over a hundred shared libraries
// (codecs, TLS, network protocols). Linked into the executable they cost
// the dynamic loader tens of milliseconds before the first picture, for a
// feature (the recordings list) that an operator may never open. So the
// core links none of them: the few functions the front end uses are looked
// up here with dlopen/dlsym, on a worker thread, from the same major
// versions the headers describe (the struct layouts come from those headers).

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avutil.h>
#include <libavutil/dict.h>
#include <libavutil/log.h>
}

#include <QString>

struct FfmpegApi
{
    decltype(&::av_log_set_callback) av_log_set_callback;
    decltype(&::av_log_format_line) av_log_format_line;
    decltype(&::av_dict_set) av_dict_set;
    decltype(&::av_dict_free) av_dict_free;
    decltype(&::av_version_info) av_version_info;
    decltype(&::avutil_license) avutil_license;

    decltype(&::avcodec_find_decoder) avcodec_find_decoder;
    decltype(&::avcodec_alloc_context3) avcodec_alloc_context3;
    decltype(&::avcodec_parameters_to_context) avcodec_parameters_to_context;
    decltype(&::avcodec_free_context) avcodec_free_context;

    decltype(&::avformat_alloc_context) avformat_alloc_context;
    decltype(&::avformat_open_input) avformat_open_input;
    decltype(&::avformat_find_stream_info) avformat_find_stream_info;
    decltype(&::avformat_close_input) avformat_close_input;
};

namespace Ffmpeg {
// The functions, loaded once (thread-safe; the first call waits for the
// loader, so call it from a worker). nullptr when a library or a function
// is missing; the reason is logged once.
const FfmpegApi *api();

// Why api() returned nullptr; empty when it did not.
QString loadError();
} // namespace Ffmpeg
