#include "Mp4File.h"

#include <QFile>

#include <algorithm>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
}

namespace Sim {

namespace {

QString avError(int rc)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(rc, text, sizeof text);
    return QString::fromLatin1(text);
}

// Owns everything one write allocates, so every exit path frees it.
struct Writer
{
    AVFormatContext *out = nullptr;
    AVCodecContext *codec = nullptr;
    AVFrame *frame = nullptr;
    AVPacket *packet = nullptr;
    AVStream *stream = nullptr;

    ~Writer()
    {
        av_packet_free(&packet);
        av_frame_free(&frame);
        avcodec_free_context(&codec);
        if (out) {
            if (out->pb)
                avio_closep(&out->pb);
            avformat_free_context(out);
        }
    }

    // Sends one frame (nullptr: flush) and writes what the encoder gives
    // back; `duration` in the codec's time base goes on each packet.
    int encode(AVFrame *f, int64_t duration)
    {
        int rc = avcodec_send_frame(codec, f);
        while (rc >= 0) {
            rc = avcodec_receive_packet(codec, packet);
            if (rc == AVERROR(EAGAIN) || rc == AVERROR_EOF)
                return 0;
            if (rc < 0)
                return rc;
            if (packet->duration <= 0)
                packet->duration = duration;
            av_packet_rescale_ts(packet, codec->time_base, stream->time_base);
            packet->stream_index = stream->index;
            rc = av_interleaved_write_frame(out, packet);
        }
        return rc;
    }
};

} // namespace

Mp4Params recordingParams(qint64 elapsedMs)
{
    Mp4Params params;
    params.lengthMs = std::max<qint64>(1000, elapsedMs);
    params.frames = int(std::clamp<qint64>(params.lengthMs / 1000, 1, 60));
    return params;
}

bool writeMp4(const QString &path, const Mp4Params &params, QString *error)
{
    auto fail = [error](const QString &why) {
        if (error)
            *error = why;
        return false;
    };
    Writer w;
    int rc = avformat_alloc_output_context2(&w.out, nullptr, params.format, nullptr);
    if (rc < 0 || !w.out)
        return fail(QStringLiteral("no muxer %1").arg(QLatin1String(params.format)));
    const AVCodec *encoder = avcodec_find_encoder(params.audioOnly ? AV_CODEC_ID_AAC : AV_CODEC_ID_MPEG4);
    if (!encoder)
        return fail(QStringLiteral("no encoder"));
    w.stream = avformat_new_stream(w.out, nullptr);
    w.codec = avcodec_alloc_context3(encoder);
    w.frame = av_frame_alloc();
    w.packet = av_packet_alloc();
    if (!w.stream || !w.codec || !w.frame || !w.packet)
        return fail(QStringLiteral("out of memory"));

    const int frames = std::max(1, params.frames);
    const qint64 lengthMs = std::max<qint64>(1, params.lengthMs);
    AVCodecContext *c = w.codec;
    if (params.audioOnly) {
        c->sample_fmt = AV_SAMPLE_FMT_FLTP;
        c->sample_rate = 48000;
        av_channel_layout_default(&c->ch_layout, 1);
        c->bit_rate = 32000;
        c->time_base = AVRational{1, c->sample_rate};
    } else {
        c->width = params.width;
        c->height = params.height;
        c->pix_fmt = AV_PIX_FMT_YUV420P;
        c->time_base = AVRational{1, 1000};
        c->gop_size = 1; // every frame a key frame: any spacing is fine
        c->max_b_frames = 0;
        c->bit_rate = 200000;
    }
    if (w.out->oformat->flags & AVFMT_GLOBALHEADER)
        c->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    if ((rc = avcodec_open2(c, encoder, nullptr)) < 0)
        return fail(QStringLiteral("encoder: %1").arg(avError(rc)));
    avcodec_parameters_from_context(w.stream->codecpar, c);
    w.stream->time_base = c->time_base;

    // "file:" keeps any name a plain file name.
    const QByteArray url = QByteArrayLiteral("file:") + QFile::encodeName(path);
    if ((rc = avio_open(&w.out->pb, url.constData(), AVIO_FLAG_WRITE)) < 0)
        return fail(QStringLiteral("cannot create the file: %1").arg(avError(rc)));
    if ((rc = avformat_write_header(w.out, nullptr)) < 0)
        return fail(QStringLiteral("header: %1").arg(avError(rc)));

    AVFrame *f = w.frame;
    if (params.audioOnly) {
        f->format = c->sample_fmt;
        f->nb_samples = c->frame_size;
        av_channel_layout_copy(&f->ch_layout, &c->ch_layout);
        if ((rc = av_frame_get_buffer(f, 0)) < 0)
            return fail(avError(rc));
        const int64_t total = lengthMs * c->sample_rate / 1000;
        for (int64_t pts = 0; pts < total; pts += f->nb_samples) {
            if ((rc = av_frame_make_writable(f)) < 0)
                return fail(avError(rc));
            std::fill_n(reinterpret_cast<float *>(f->data[0]), f->nb_samples, 0.0f);
            f->pts = pts;
            if ((rc = w.encode(f, f->nb_samples)) < 0)
                return fail(avError(rc));
        }
        rc = w.encode(nullptr, f->nb_samples);
    } else {
        f->format = c->pix_fmt;
        f->width = c->width;
        f->height = c->height;
        if ((rc = av_frame_get_buffer(f, 0)) < 0)
            return fail(avError(rc));
        for (int i = 0; i < frames; ++i) {
            if ((rc = av_frame_make_writable(f)) < 0)
                return fail(avError(rc));
            // A grey picture with a bright bar that moves from frame to frame.
            for (int y = 0; y < c->height; ++y)
                std::fill_n(f->data[0] + y * f->linesize[0], c->width, uint8_t(64));
            const int bar = (i * 16) % std::max(1, c->width);
            for (int y = 0; y < c->height; ++y)
                std::fill_n(f->data[0] + y * f->linesize[0] + bar, std::min(16, c->width - bar), uint8_t(235));
            for (int p = 1; p < 3; ++p)
                for (int y = 0; y < (c->height + 1) / 2; ++y)
                    std::fill_n(f->data[p] + y * f->linesize[p], (c->width + 1) / 2, uint8_t(128));
            const int64_t pts = lengthMs * i / frames;
            const int64_t next = lengthMs * (i + 1) / frames;
            f->pts = pts;
            if ((rc = w.encode(f, next - pts)) < 0)
                return fail(avError(rc));
        }
        rc = w.encode(nullptr, lengthMs / frames);
    }
    if (rc < 0)
        return fail(avError(rc));
    if ((rc = av_write_trailer(w.out)) < 0)
        return fail(QStringLiteral("trailer: %1").arg(avError(rc)));
    return true;
}

} // namespace Sim
