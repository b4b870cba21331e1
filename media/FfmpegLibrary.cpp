#include "FfmpegLibrary.h"

#include "LogCategories.h"

#include <QLoggingCategory>

#include <dlfcn.h>
#include <mutex>

namespace {

#define CS_STR2(x) #x
#define CS_STR(x) CS_STR2(x)

struct Loaded
{
    FfmpegApi api{};
    bool ok = false;
    QString error;
};

void *openLibrary(const char *soname, QString *error)
{
    // RTLD_GLOBAL: libavformat resolves libavcodec's and libavutil's symbols
    // through its own dependencies anyway; global keeps one copy of each.
    void *h = ::dlopen(soname, RTLD_NOW | RTLD_GLOBAL);
    if (!h && error->isEmpty())
        *error = QString::fromLocal8Bit(::dlerror());
    return h;
}

template <typename F>
void resolve(void *handle, const char *name, F *out, QString *error)
{
    *out = handle ? reinterpret_cast<F>(::dlsym(handle, name)) : nullptr;
    if (handle && !*out && error->isEmpty())
        *error = QStringLiteral("missing function %1").arg(QLatin1String(name));
}

Loaded load()
{
    Loaded l;
    void *util = openLibrary("libavutil.so." CS_STR(LIBAVUTIL_VERSION_MAJOR), &l.error);
    void *codec = openLibrary("libavcodec.so." CS_STR(LIBAVCODEC_VERSION_MAJOR), &l.error);
    void *format = openLibrary("libavformat.so." CS_STR(LIBAVFORMAT_VERSION_MAJOR), &l.error);
    FfmpegApi &a = l.api;
    resolve(util, "av_log_set_callback", &a.av_log_set_callback, &l.error);
    resolve(util, "av_log_format_line", &a.av_log_format_line, &l.error);
    resolve(util, "av_dict_set", &a.av_dict_set, &l.error);
    resolve(util, "av_dict_free", &a.av_dict_free, &l.error);
    resolve(util, "av_version_info", &a.av_version_info, &l.error);
    resolve(util, "avutil_license", &a.avutil_license, &l.error);
    resolve(codec, "avcodec_find_decoder", &a.avcodec_find_decoder, &l.error);
    resolve(codec, "avcodec_alloc_context3", &a.avcodec_alloc_context3, &l.error);
    resolve(codec, "avcodec_parameters_to_context", &a.avcodec_parameters_to_context, &l.error);
    resolve(codec, "avcodec_free_context", &a.avcodec_free_context, &l.error);
    resolve(format, "avformat_alloc_context", &a.avformat_alloc_context, &l.error);
    resolve(format, "avformat_open_input", &a.avformat_open_input, &l.error);
    resolve(format, "avformat_find_stream_info", &a.avformat_find_stream_info, &l.error);
    resolve(format, "avformat_close_input", &a.avformat_close_input, &l.error);
    l.ok = util && codec && format && l.error.isEmpty();
    if (!l.ok)
        qCWarning(lcHardware).noquote() << "FFmpeg libraries could not be loaded:" << l.error
                                        << "- recordings are listed without length and picture size";
    return l;
}

const Loaded &loaded()
{
    static Loaded l;
    static std::once_flag once;
    std::call_once(once, [] { l = load(); });
    return l;
}

} // namespace

const FfmpegApi *Ffmpeg::api()
{
    const Loaded &l = loaded();
    return l.ok ? &l.api : nullptr;
}

QString Ffmpeg::loadError()
{
    return loaded().error;
}
