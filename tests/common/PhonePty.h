#pragma once
// A phone on the Bluetooth serial line, played by a pseudo-terminal.
#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QString>

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

// The phone: a pty master whose slave is linked at `node` (a sysroot's /dev/rfcomm0).
class Phone
{
public:
    explicit Phone(const QString &node)
    {
        m_fd = ::posix_openpt(O_RDWR | O_NOCTTY);
        if (m_fd < 0 || ::grantpt(m_fd) != 0 || ::unlockpt(m_fd) != 0)
            return;
        termios t {};
        ::tcgetattr(m_fd, &t);
        ::cfmakeraw(&t);
        ::tcsetattr(m_fd, TCSANOW, &t);
        QFile::remove(node);
        m_ok = QFile::link(QString::fromLocal8Bit(::ptsname(m_fd)), node);
    }
    ~Phone()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    bool isValid() const { return m_ok; }
    bool send(const QByteArray &bytes) { return ::write(m_fd, bytes.constData(), size_t(bytes.size())) == bytes.size(); }
    // What the device wrote, collected until `bytes` arrived or timeoutMs passed.
    QByteArray receive(int bytes, int timeoutMs)
    {
        QByteArray got;
        QElapsedTimer clock;
        clock.start();
        while (got.size() < bytes && clock.elapsed() < timeoutMs) {
            pollfd p {m_fd, POLLIN, 0};
            if (::poll(&p, 1, 50) > 0 && (p.revents & POLLIN)) {
                char buf[4096];
                const ssize_t n = ::read(m_fd, buf, sizeof buf);
                if (n > 0)
                    got.append(buf, int(n));
            }
        }
        return got;
    }

private:
    int m_fd = -1;
    bool m_ok = false;
};
