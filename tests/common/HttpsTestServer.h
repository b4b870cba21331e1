#pragma once
// An HTTPS server on loopback standing in for the companion streaming
// service: a self-signed certificate made with `openssl`, one request per
// connection, the answer chosen by path. Every request is kept as it
// arrived (head and body) with the time it was complete.
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <QTimer>

#include <functional>

class HttpsTestServer : public QTcpServer
{
public:
    struct Answer
    {
        int status = 200;
        QByteArray body;
        int delayMs = 0;
        int trickleMs = 0;   // > 0: after the head, one byte of a never-ending body this often
    };

    QMap<QByteArray, Answer> answers;   // by path; a path not listed gets an empty 200
    QList<QByteArray> requests;         // head and body as received
    QList<qint64> receivedAtMs;         // on `clock`, one per request
    QElapsedTimer clock;
    std::function<void(const QByteArray &path)> onRequest;

    // Makes the certificate in `dir` and listens on a free loopback port.
    bool start(const QString &dir, QString *error)
    {
        QProcess openssl;
        openssl.start(QStringLiteral("openssl"),
                      {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=localhost", "-keyout",
                       dir + "/key.pem", "-out", dir + "/cert.pem"});
        if (!openssl.waitForFinished(60000) || openssl.exitCode() != 0) {
            *error = QStringLiteral("openssl: ") + QString::fromLocal8Bit(openssl.readAllStandardError());
            return false;
        }
        m_cert = QSslCertificate(readAll(dir + "/cert.pem"));
        m_key = QSslKey(readAll(dir + "/key.pem"), QSsl::Rsa);
        if (m_cert.isNull() || m_key.isNull()) {
            *error = QStringLiteral("certificate or key unreadable");
            return false;
        }
        clock.start();
        if (!listen(QHostAddress::LocalHost)) {
            *error = errorString();
            return false;
        }
        return true;
    }

    static QByteArray pathOf(const QByteArray &request) { return request.split(' ').value(1); }
    QList<QByteArray> paths() const
    {
        QList<QByteArray> out;
        for (const QByteArray &r : requests)
            out << pathOf(r);
        return out;
    }

protected:
    void incomingConnection(qintptr fd) override
    {
        auto *s = new QSslSocket(this);
        s->setSocketDescriptor(fd);
        s->setLocalCertificate(m_cert);
        s->setPrivateKey(m_key);
        auto *buf = new QByteArray;
        connect(s, &QSslSocket::disconnected, s, [s, buf] { delete buf; s->deleteLater(); });
        connect(s, &QSslSocket::readyRead, s, [this, s, buf] {
            *buf += s->readAll();
            const int end = buf->indexOf("\r\n\r\n");
            if (end < 0)
                return;
            const QByteArray head = buf->left(end).toLower();
            const int at = head.indexOf("content-length:");
            const int len = at < 0 ? 0 : head.mid(at + 15, head.indexOf("\r\n", at) - at - 15).trimmed().toInt();
            if (buf->size() < end + 4 + len)
                return;
            requests << *buf;
            receivedAtMs << clock.elapsed();
            const QByteArray path = pathOf(*buf);
            const Answer a = answers.value(path);
            buf->clear();
            if (a.trickleMs > 0) {
                s->write("HTTP/1.1 200 X\r\nContent-Type: application/json\r\nContent-Length: 1000000\r\n\r\n");
                auto *drip = new QTimer(s);
                connect(drip, &QTimer::timeout, s, [s] { s->write(" "); });
                drip->start(a.trickleMs);
                if (onRequest)
                    onRequest(path);
                return;
            }
            QTimer::singleShot(a.delayMs, s, [s, a] {
                s->write("HTTP/1.1 " + QByteArray::number(a.status) + " X\r\nContent-Type: application/json\r\nContent-Length: "
                         + QByteArray::number(a.body.size()) + "\r\nConnection: close\r\n\r\n" + a.body);
                s->disconnectFromHost();
            });
            if (onRequest)
                onRequest(path);
        });
        s->startServerEncryption();
    }

private:
    static QByteArray readAll(const QString &file)
    {
        QFile f(file);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    QSslCertificate m_cert;
    QSslKey m_key;
};
