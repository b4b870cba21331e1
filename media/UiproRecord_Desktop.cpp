#include "UiproRecord_Desktop.h"

#include "FfmpegLibrary.h"
#include "LineThrottle.h"
#include "LogCategories.h"
#include "Logger.h"
#include "Platform.h"
#include "Shell.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QThreadPool>

#include <algorithm>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <mutex>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/statfs.h>
#include <unistd.h>

// Shared with the listing job, which may outlive the object (the window
// closes while a slow disk is read): results are posted only while it lives.
struct RecordListingState
{
    QMutex mutex;
    UiproRecord_Desktop *object = nullptr;
    bool running = false;
    bool again = false; // asked for once more while a listing ran
};

namespace {

const char kDfPipeline[] = "df | grep '/media/usb' | awk '{print $4,$6}' | sort -n | tail -n 1 | awk '{print $2}'";
const char kPopenText[] = "returned_value_from_popen_command";
// The pipeline's answer is one line of at most 99 characters (a 100-byte
// fgets buffer); a longer one is refused rather than cut into a wrong path.
constexpr int kMaxLine = 99;

void say(const char *text)
{
    std::fputs(text, stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

// File names and container errors come from the disk: one line a second.
void logBadFile(const char *what, const QByteArray &localPath)
{
    static LineThrottle throttle;
    int held = 0;
    if (!throttle.admit(&held))
        return;
    writeLog(QString::fromLatin1(what));
    qCWarning(lcHardware).noquote() << what << LineThrottle::shown(QFile::decodeName(localPath), 200)
                                    << (held ? QStringLiteral("(%1 more since the last message)").arg(held) : QString());
}

// libavformat reports every damaged box of a corrupt file on stderr; a disk
// full of them would flood it. Errors pass, once a second.
void quietFfmpegLog(void *, int level, const char *fmt, va_list args)
{
    if (level > AV_LOG_ERROR)
        return;
    static LineThrottle throttle;
    int held = 0;
    char line[512];
    int prefix = 1;
    Ffmpeg::api()->av_log_format_line(nullptr, level, fmt, args, line, sizeof line, &prefix);
    if (!throttle.admit(&held))
        return;
    qCWarning(lcHardware).noquote() << "ffmpeg:" << LineThrottle::shown(QString::fromLocal8Bit(line).trimmed(), 200)
                                    << (held ? QStringLiteral("(%1 more since the last message)").arg(held) : QString());
}

// The libraries, loaded on first use (a listing's worker thread waits for
// that, not the GUI thread); nullptr when they are missing.
const FfmpegApi *ffmpeg()
{
    const FfmpegApi *ff = Ffmpeg::api();
    static std::once_flag once;
    if (ff)
        std::call_once(once, [ff] { ff->av_log_set_callback(quietFfmpegLog); });
    return ff;
}

bool usbPresent()
{
    return ::access(QFile::encodeName(Platform::path(QStringLiteral("/sys/bus/usb/devices/1-1/"))).constData(), F_OK) == 0;
}

// The screens see device paths; under a sysroot the real path has its prefix.
QString devicePath(const QString &real)
{
    const QString root = Platform::sysroot();
    if (!root.isEmpty() && real.startsWith(root + QLatin1Char('/')))
        return real.mid(root.size());
    return real;
}

// The mount under /media/usb with the most available blocks, or "".
QString findUsbDisk()
{
    if (!usbPresent()) {
        say("usb disk not input");
        return {};
    }
    const QByteArray out = Shell::output(QString::fromLatin1(kDfPipeline));
    const int end = out.indexOf('\n');
    QByteArray line = end < 0 ? out : out.left(end + 1);
    // A sysroot's prefix is not part of what the device's buffer holds.
    const int limit = kMaxLine + int(QFile::encodeName(Platform::sysroot()).size());
    if (line.size() - (line.endsWith('\n') ? 1 : 0) > limit) {
        std::printf("error:%s, %d\n", kPopenText, __LINE__);
        say("usb disk not find");
        return {};
    }
    if (line.endsWith('\n'))
        line.chop(1);
    if (line.isEmpty()) {
        say("usb disk not find");
        return {};
    }
    return Platform::path(QFile::decodeName(line));
}

QString lengthText(qint64 seconds)
{
    return QString::asprintf("%02lld:%02lld:%02lld", seconds / 3600, seconds % 3600 / 60, seconds % 60);
}

// Birth time where the file system keeps one, else the last status change
// (what QFileInfo reports as the creation time on Linux).
QString creationText(const QByteArray &localPath)
{
    qint64 secs = 0;
    struct statx sx;
    if (::statx(AT_FDCWD, localPath.constData(), 0, STATX_BTIME | STATX_CTIME, &sx) == 0)
        secs = (sx.stx_mask & STATX_BTIME) ? sx.stx_btime.tv_sec : sx.stx_ctime.tv_sec;
    return QDateTime::fromSecsSinceEpoch(secs).toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"));
}

// Opens a container for reading its parameters: local files only (no
// protocol named inside a file name), then its stream information.
AVFormatContext *openContainer(const FfmpegApi &ff, const QByteArray &localPath)
{
    AVFormatContext *ctx = ff.avformat_alloc_context();
    if (!ctx)
        return nullptr;
    AVDictionary *options = nullptr;
    ff.av_dict_set(&options, "protocol_whitelist", "file", 0);
    const QByteArray url = QByteArrayLiteral("file:") + localPath;
    const int rc = ff.avformat_open_input(&ctx, url.constData(), nullptr, &options); // frees ctx on failure
    ff.av_dict_free(&options);
    if (rc != 0)
        return nullptr;
    if (ff.avformat_find_stream_info(ctx, nullptr) < 0) {
        ff.avformat_close_input(&ctx);
        return nullptr;
    }
    return ctx;
}

qint64 durationSeconds(const AVFormatContext *ctx)
{
    if (ctx->duration == AV_NOPTS_VALUE || ctx->duration <= 0)
        return 0;
    return ctx->duration / AV_TIME_BASE;
}

// One file's five entries, or none when it cannot be opened as a
// container. The path is the file system's raw bytes, so any name opens.
QStringList describeFile(const QByteArray &localPath)
{
    const QString path = QFile::decodeName(localPath);
    const FfmpegApi *ff = ffmpeg();
    AVFormatContext *ctx = ff ? openContainer(*ff, localPath) : nullptr;
    if (ff && !ctx) {
        logBadFile("open record file failed", localPath);
        return {};
    }
    // Without the libraries (their absence is logged once) a file is still
    // listed, with no length and no picture size.
    const qint64 seconds = ctx ? durationSeconds(ctx) : 0;
    // Only a video stream 0 has a picture size; audio-only or data-only
    // files list as "0*0", which the screens show as no picture.
    int width = 0, height = 0;
    if (ctx && ctx->nb_streams > 0) {
        const AVCodecParameters *par = ctx->streams[0]->codecpar;
        const AVCodec *codec = ff->avcodec_find_decoder(par->codec_id);
        AVCodecContext *cc = codec ? ff->avcodec_alloc_context3(codec) : nullptr;
        if (!codec)
            logBadFile("failed to find decoder for stream", localPath);
        else if (!cc)
            logBadFile("falied to allocate the decoder context for stream", localPath);
        else if (ff->avcodec_parameters_to_context(cc, par) < 0)
            logBadFile("failed to copy decoder paramters to input decoder context for stream", localPath);
        if (par->codec_type == AVMEDIA_TYPE_VIDEO) {
            width = std::max(0, par->width);
            height = std::max(0, par->height);
            qCDebug(lcHardware) << "record size" << width << height;
        }
        ff->avcodec_free_context(&cc);
    }
    if (ctx)
        ff->avformat_close_input(&ctx);
    return {creationText(localPath), QFileInfo(path).completeBaseName(), lengthText(seconds),
            QStringLiteral("%1*%2").arg(width).arg(height), devicePath(path)};
}

struct Entry
{
    QByteArray name;
    QByteArray path;
};

QStringList listRecordings(const QString &mount)
{
    if (mount.isEmpty())
        return {};
    const QByteArray dir = QFile::encodeName(mount);
    QVector<Entry> files;
    if (DIR *d = ::opendir(dir.constData())) {
        while (const dirent *e = ::readdir(d)) {
            const QByteArray name(e->d_name);
            // Hidden files (also the "._x.mp4" a Mac leaves) are not recordings.
            if (name.startsWith('.') || name.size() <= 4 || name.right(4).toLower() != ".mp4")
                continue;
            const QByteArray path = dir + '/' + name;
            struct stat st;
            if (::stat(path.constData(), &st) != 0 || !S_ISREG(st.st_mode) || ::access(path.constData(), R_OK) != 0)
                continue;
            files.append({name, path});
        }
        ::closedir(d);
    }
    std::sort(files.begin(), files.end(), [](const Entry &a, const Entry &b) { return a.name < b.name; });

    QStringList list;
    for (const Entry &f : files) {
        qCDebug(lcHardware).noquote() << "record file:" << LineThrottle::shown(QFile::decodeName(f.name), 300);
        list << describeFile(f.path);
    }
    return list;
}

// Listings have their own worker, never joined (as the other detached
// work of the program): a slow disk does not hold up the shared pool or exit.
QThreadPool &listingPool()
{
    static QThreadPool *pool = [] {
        auto *p = new QThreadPool;
        p->setMaxThreadCount(1);
        return p;
    }();
    return *pool;
}

bool statfsQuery(const QString &path, UiproRecord_Desktop::FreeSpace *out)
{
    struct statfs fs;
    if (::statfs(QFile::encodeName(path).constData(), &fs) != 0)
        return false;
    out->freeBlocks = fs.f_bfree;
    out->blockSize = quint64(fs.f_bsize);
    return true;
}

} // namespace

UiproRecord_Desktop::UiproRecord_Desktop(QObject *parent)
    : QObject(parent)
    , m_query(statfsQuery)
    , m_listing(std::make_shared<RecordListingState>())
{
    m_listing->object = this;
}

UiproRecord_Desktop::~UiproRecord_Desktop()
{
    QMutexLocker lock(&m_listing->mutex);
    m_listing->object = nullptr;
}

void UiproRecord_Desktop::setFileSystemQuery(FileSystemQuery query)
{
    m_query = query ? std::move(query) : FileSystemQuery(statfsQuery);
}

double UiproRecord_Desktop::check_is_usb_disk_ok_for_record()
{
    m_mountPath = findUsbDisk();
    if (m_mountPath.isEmpty())
        return -1.0;
    FreeSpace space;
    if (!m_query(m_mountPath, &space)) {
        say("statfs error");
        return -2.0;
    }
    const quint64 freeBytes = space.blockSize && space.freeBlocks > ~quint64(0) / space.blockSize
        ? ~quint64(0)
        : space.freeBlocks * space.blockSize;
    if (freeBytes < kReserveBytes) {
        say("there is not enough space");
        return -3.0;
    }
    const double usable = double(freeBytes / 1024) - double(kReserveBytes / 1024);
    std::snprintf(m_probeText, sizeof m_probeText, "rongliang:%lf\n", usable);
    std::fputs(m_probeText, stdout);
    std::fflush(stdout);
    return usable;
}

bool UiproRecord_Desktop::waitForListings(int msecs)
{
    return listingPool().waitForDone(msecs);
}

void UiproRecord_Desktop::connect_get_usb_record_files()
{
    {
        QMutexLocker lock(&m_listing->mutex);
        if (m_listing->running) {
            // Requests made while a listing runs share one more listing.
            m_listing->again = true;
            return;
        }
        m_listing->running = true;
    }
    std::shared_ptr<RecordListingState> state = m_listing;
    listingPool().start([state] {
        // Reading a disk full of files is background work: under load the
        // GUI thread gets the processor first.
        static thread_local const bool niced = ::setpriority(PRIO_PROCESS, pid_t(::syscall(SYS_gettid)), 10) == 0;
        Q_UNUSED(niced)
        for (;;) {
            const QStringList list = listRecordings(findUsbDisk());
            QMutexLocker lock(&state->mutex);
            if (UiproRecord_Desktop *object = state->object)
                QMetaObject::invokeMethod(object, [object, list] { emit object->updateFileRecord(list); }, Qt::QueuedConnection);
            if (state->object && state->again) {
                state->again = false;
                continue;
            }
            state->running = false;
            state->again = false;
            return;
        }
    });
}

QStringList UiproRecord_Desktop::get_usb_record_files(bool requeryMP4)
{
    // Every listing reads the disk afresh; nothing is cached to requery.
    Q_UNUSED(requeryMP4)
    m_mountPath = findUsbDisk();
    const QStringList list = listRecordings(m_mountPath);
    emit updateFileRecord(list);
    return list;
}

QStringList UiproRecord_Desktop::get_usb_record_files()
{
    return get_usb_record_files(false);
}

int UiproRecord_Desktop::get_cur_record_file_time(QString filePath)
{
    qCDebug(lcHardware).noquote() << "record time of" << LineThrottle::shown(filePath, 300);
    if (filePath.isEmpty())
        return 0;
    const FfmpegApi *ff = ffmpeg();
    if (!ff)
        return 0;
    const QByteArray local = QFile::encodeName(Platform::path(filePath));
    AVFormatContext *ctx = openContainer(*ff, local);
    if (!ctx) {
        logBadFile("open record file failed", local);
        return 0;
    }
    const qint64 seconds = durationSeconds(ctx);
    ff->avformat_close_input(&ctx);
    return int(std::min<qint64>(seconds, std::numeric_limits<int>::max()));
}

QString UiproRecord_Desktop::rename_record_file(QString oldPath, QString newName)
{
    if (oldPath.isEmpty())
        return {};
    // The name is typed on the screen or sent by the companion app: it must
    // stay a name in the same folder.
    if (newName.isEmpty() || newName.contains(QLatin1Char('/')) || newName.contains(QChar(0))
        || newName == QLatin1String(".") || newName == QLatin1String("..")) {
        logBadFile("rename refused, not a file name", QFile::encodeName(newName));
        return {};
    }
    const QFileInfo old(oldPath);
    const QString newPath = old.path() + QLatin1Char('/') + newName + QLatin1Char('.') + old.suffix();
    qCDebug(lcHardware).noquote() << "rename record to" << LineThrottle::shown(newPath, 300);
    // QFile::rename never replaces an existing file (also not a dangling link).
    const QString realNew = Platform::path(newPath);
    if (QFileInfo(realNew).exists() || QFileInfo(realNew).isSymLink())
        return {};
    if (!QFile::rename(Platform::path(oldPath), realNew))
        return {};
    return newPath;
}
