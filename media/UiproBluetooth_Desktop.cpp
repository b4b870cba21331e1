#include "UiproBluetooth_Desktop.h"

#include "CompanionService.h"
#include "LineThrottle.h"
#include "Logger.h"
#include "Platform.h"

#include <QFile>
#include <QLoggingCategory>
#include <QMetaObject>

#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <mutex>
#include <poll.h>
#include <pthread.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

Q_LOGGING_CATEGORY(lcBluetooth, "cs.bluetooth")

namespace {

const QString kNode = QStringLiteral("/dev/rfcomm0");
// Written out as text by the app, not control characters.
const QString kTerminator = QStringLiteral("\\r\\n");

// The reader waits for the app in slices this long, so a stop or the
// object's end is noticed within one slice even while nothing arrives.
constexpr int kPollSliceMs = 200;

void say(const QByteArray &text)
{
    std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

// The link carries messages, not a terminal session: in the default
// terminal mode the line discipline would echo the app's text back to it
// and hold back a message that has no real line end.
void makeRaw(int fd)
{
    if (!::isatty(fd))
        return;
    termios t {};
    if (::tcgetattr(fd, &t) != 0)
        return;
    ::cfmakeraw(&t);
    t.c_cc[VMIN] = 1;
    t.c_cc[VTIME] = 0;
    ::tcsetattr(fd, TCSANOW, &t);
}

} // namespace

// State the reader thread shares with its object. The thread is detached and
// keeps this alive; the object only clears `owner` and sets `gone` when it is
// destroyed, so shutdown never waits on a read that may block for hours, and
// the thread never touches a freed object.
struct BluetoothReaderState
{
    std::mutex mutex;
    std::condition_variable wake;
    UiproBluetooth_Desktop *owner = nullptr; // guarded by mutex
    bool running = false;                    // guarded by mutex
    unsigned kicks = 0;                      // guarded by mutex: bumped on every flag change
    QByteArray node;                         // guarded by mutex
    QString pushHost;                        // guarded by mutex
    std::atomic<bool> readFlag {false};
    std::atomic<bool> readStop {false}; // written under mutex
    std::atomic<bool> gone {false};     // written under mutex

    bool leaving() const { return readStop || gone; }

    void kick()
    {
        {
            std::lock_guard<std::mutex> lock(mutex);
            ++kicks;
        }
        wake.notify_all();
    }

    // Sleeps up to ms; a flag change, a stop or the object's end cut it short.
    void pause(int ms)
    {
        std::unique_lock<std::mutex> lock(mutex);
        const unsigned seen = kicks;
        wake.wait_for(lock, std::chrono::milliseconds(ms), [&] { return kicks != seen || leaving(); });
    }

    // Runs `emitter` on the object's thread, if the object still exists.
    // Posted events of a destroyed object are discarded with it.
    void post(std::function<void(UiproBluetooth_Desktop *)> emitter)
    {
        std::lock_guard<std::mutex> lock(mutex);
        if (!owner)
            return;
        UiproBluetooth_Desktop *target = owner;
        QMetaObject::invokeMethod(target, [target, emitter] { emitter(target); }, Qt::QueuedConnection);
    }
};

namespace {

LineThrottle &openThrottle()
{
    static LineThrottle t;
    return t;
}
LineThrottle &fieldThrottle()
{
    static LineThrottle t;
    return t;
}
LineThrottle &writeThrottle()
{
    static LineThrottle t;
    return t;
}

// Waits for the app's text on fd. 1: readable; 0: give up (stop, object
// gone or reading switched off); -1: poll failed.
int waitReadable(BluetoothReaderState &s, int fd)
{
    while (!s.leaving() && s.readFlag) {
        pollfd p {fd, POLLIN, 0};
        const int r = ::poll(&p, 1, kPollSliceMs);
        if (r > 0)
            return s.leaving() ? 0 : 1; // the text stays for the next reader
        if (r < 0 && errno != EINTR)
            return -1;
    }
    return 0;
}

void handleText(BluetoothReaderState &s, const QByteArray &text, const QString &pushHost)
{
    const QString shown = LineThrottle::shown(QString::fromUtf8(text), UiproBluetooth_Desktop::kReadBytes);
    qCDebug(lcBluetooth).noquote() << shown << "wwww";
    say(shown.toUtf8());

    const UiproBluetooth_Desktop::Message m = UiproBluetooth_Desktop::parse(text, pushHost);
    if (m.destination) {
        s.post([m](UiproBluetooth_Desktop *o) { emit o->pushReadRtmp(m.url, m.token, m.data, m.vertical); });
    } else if (m.fields > 0) {
        writeLogThrottled(fieldThrottle(), QStringLiteral("bluetooth destination with %1 of 4 fields ignored: %2")
                                          .arg(m.fields)
                                          .arg(LineThrottle::shown(QString::fromUtf8(text), 120)));
    }
    if (m.stopPush)
        s.post([](UiproBluetooth_Desktop *o) { emit o->pushAirSet(false); });
}

void readerLoop(std::shared_ptr<BluetoothReaderState> state)
{
    BluetoothReaderState &s = *state;
    pthread_setname_np(pthread_self(), "cs-bluetooth");
    QByteArray node;
    QString pushHost;
    bool hungUp = false;
    for (;;) {
        {
            // Decided under the lock, so a getBlueData() racing with the end
            // either keeps this reader going or starts a new one, never neither.
            std::lock_guard<std::mutex> lock(s.mutex);
            if (s.leaving()) {
                s.running = false;
                s.readStop = false;
                return;
            }
            node = s.node;
            pushHost = s.pushHost;
        }
        if (!s.readFlag || ::access(node.constData(), F_OK) != 0) {
            s.pause(1000);
            continue;
        }
        // Non-blocking open: a serial node may otherwise wait for a carrier.
        const int fd = ::open(node.constData(), O_RDONLY | O_TRUNC | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        if (fd < 0) {
            writeLogThrottled(openThrottle(), QStringLiteral("bluetooth: cannot open %1: %2")
                                             .arg(QString::fromLocal8Bit(node), QString::fromLocal8Bit(std::strerror(errno))));
            s.pause(100); // a node that keeps refusing must not spin a core
            continue;
        }
        qCDebug(lcBluetooth) << fd << "aaaa";
        makeRaw(fd);
        const int ready = waitReadable(s, fd);
        if (ready != 0) {
            char buffer[UiproBluetooth_Desktop::kReadBytes];
            std::memset(buffer, 0, sizeof buffer);
            const ssize_t n = ready > 0 ? ::read(fd, buffer, sizeof buffer) : -1;
            if (n < 0 && (errno == EAGAIN || errno == EINTR)) {
                ::close(fd);
                continue; // woken without data after all
            }
            if (n <= 0) {
                const QString why = n < 0 ? QString::fromLocal8Bit(std::strerror(errno)) : QStringLiteral("end of file");
                say(n < 0 ? "read error" : "read nothing");
                // A node that hung up (phone gone, device unbound) keeps failing
                // once a second until it comes back: said once per outage.
                if (!hungUp)
                    writeLog(QStringLiteral("bluetooth: %1 hung up (%2); waiting for it").arg(QString::fromLocal8Bit(node), why));
                hungUp = true;
            } else {
                hungUp = false;
                handleText(s, QByteArray(buffer, int(n)), pushHost);
            }
        }
        ::close(fd);
        if (ready != 0)
            s.pause(1000);
    }
}

} // namespace

UiproBluetooth_Desktop::UiproBluetooth_Desktop(QObject *parent)
    : QObject(parent)
    , m_reader(std::make_shared<BluetoothReaderState>())
{
    m_reader->owner = this;
    m_writer.setMaxThreadCount(1);
}

UiproBluetooth_Desktop::~UiproBluetooth_Desktop()
{
    {
        std::lock_guard<std::mutex> lock(m_reader->mutex);
        m_reader->owner = nullptr;
        m_reader->gone = true;
    }
    m_reader->wake.notify_all();
    // m_writer's destructor waits for lines still queued: non-blocking writes.
}

UiproBluetooth_Desktop::Message UiproBluetooth_Desktop::parse(const QByteArray &raw, const QString &pushHost)
{
    Message m;
    const QString text = QString::fromUtf8(raw);
    m.stopPush = text.contains(QLatin1String("StopPush"));
    if (!text.contains(kTerminator) || pushHost.isEmpty() || !text.contains(pushHost))
        return m;
    const QStringList fields = text.split(QLatin1Char('#'));
    m.fields = fields.size();
    if (fields.size() < 4)
        return m;
    m.destination = true;
    m.url = fields.at(0);
    m.token = fields.at(1);
    m.data = fields.at(2);
    // The code ends at the terminator, so text after it in the same read
    // ("StopPush") does not become part of it.
    const QString last = fields.at(3);
    const int end = last.indexOf(kTerminator);
    m.vertical = end >= 0 ? last.left(end) : last.chopped(qMin(4, last.size()));
    return m;
}

QByteArray UiproBluetooth_Desktop::wireLine(const QString &text)
{
    return text.toUtf8() + kTerminator.toLatin1() + '\n';
}

void UiproBluetooth_Desktop::getBlueData()
{
    say("getBlueData=============");
    const QByteArray node = QFile::encodeName(Platform::path(kNode));
    const QString host = CompanionService::companionDomain();
    bool start = false;
    {
        std::lock_guard<std::mutex> lock(m_reader->mutex);
        m_reader->node = node;
        m_reader->pushHost = host;
        m_reader->readStop = false; // a reader still winding down carries on instead
        ++m_reader->kicks;
        if (!m_reader->running) {
            m_reader->running = true;
            start = true;
        }
    }
    m_reader->wake.notify_all();
    if (start)
        std::thread(readerLoop, m_reader).detach();
}

void UiproBluetooth_Desktop::sendBlueData()
{
    // Kept for the screens; there is nothing to send unasked.
    say("sendBlueData=============");
}

void UiproBluetooth_Desktop::writeDataToDev(QString Data)
{
    m_writeBuffer = Data.toUtf8();
    const QString command = QStringLiteral("echo ") + Data + kTerminator + QStringLiteral(" > ") + kNode;
    qCDebug(lcBluetooth).noquote() << LineThrottle::shown(command, 200) << "writeData";
    m_writeFlag = true;
    if (m_writeBuffer.size() > kMaxWriteBytes) {
        writeLogThrottled(writeThrottle(), QStringLiteral("bluetooth: a text of %1 bytes not sent (at most %2)")
                                          .arg(m_writeBuffer.size())
                                          .arg(kMaxWriteBytes));
        return;
    }
    const QByteArray line = wireLine(Data);
    const QByteArray node = QFile::encodeName(Platform::path(kNode));
    // Off the GUI thread; non-blocking, so a phone that stopped reading
    // loses the line instead of holding the writer.
    m_writer.start([line, node] {
        const int fd = ::open(node.constData(), O_WRONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        if (fd < 0) {
            writeLogThrottled(writeThrottle(), QStringLiteral("bluetooth: cannot open %1 to write: %2")
                                              .arg(QString::fromLocal8Bit(node), QString::fromLocal8Bit(std::strerror(errno))));
            return;
        }
        qsizetype done = 0;
        while (done < line.size()) {
            const ssize_t n = ::write(fd, line.constData() + done, size_t(line.size() - done));
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0) {
                writeLogThrottled(writeThrottle(), QStringLiteral("bluetooth: line cut after %1 of %2 bytes: %3")
                                                  .arg(done)
                                                  .arg(line.size())
                                                  .arg(QString::fromLocal8Bit(std::strerror(errno))));
                break;
            }
            done += n;
        }
        ::close(fd);
    });
}

void UiproBluetooth_Desktop::setWriteFlag(bool flag) { m_writeFlag = flag; }

void UiproBluetooth_Desktop::setReadFlag(bool flag)
{
    m_reader->readFlag = flag;
    m_reader->kick();
}

void UiproBluetooth_Desktop::setReadStop()
{
    {
        std::lock_guard<std::mutex> lock(m_reader->mutex);
        m_reader->readStop = true;
    }
    m_reader->wake.notify_all();
}
