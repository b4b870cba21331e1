// Live-session calls to the companion streaming service: a form POST over
// HTTPS, success reported only for a reply whose "code" is "SUCCEED".
#include "UiproRtmp_Desktop.h"

#include "CompanionService.h"
#include "LineThrottle.h"
#include "Logger.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>

namespace {
bool hasControl(const QString &text)
{
    for (const QChar c : text)
        if (c.unicode() < 0x20 || c.unicode() == 0x7f)
            return true;
    return false;
}

// Token and room id come from the companion app: the log shows them
// escaped when they are not plain text, so they cannot forge log lines.
QString shownValue(const QString &text)
{
    return hasControl(text) || text.size() > 512 ? LineThrottle::shown(text, 512) : text;
}
} // namespace

QString UiproRtmp_Desktop::companionHost() const { return CompanionService::companionHost(); }

void UiproRtmp_Desktop::httpRequestPostByUrl(QString localUrl, QString Token, QString Data)
{
    // Success is reported under the most recent request, whichever reply it is.
    m_lastRequestUrl = localUrl;
    QNetworkRequest request(QUrl(localUrl, QUrl::TolerantMode));
    writeLog(QStringLiteral("url:") + shownValue(localUrl) + QStringLiteral(" token:") + shownValue(Token)
             + QStringLiteral(" tmpData:") + shownValue(Data));
    // The token goes into a header line: a line break in it would add
    // headers of the sender's choosing.
    if (hasControl(Token)) {
        static LineThrottle throttle;
        writeLogThrottled(throttle, QStringLiteral("companion request to %1 not sent: the token holds control characters")
                                        .arg(shownValue(localUrl)));
        return;
    }

    // The service may use a certificate the device cannot check.
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setProtocol(QSsl::AnyProtocol);
    tls.setPeerVerifyMode(QSslSocket::VerifyNone);
    request.setSslConfiguration(tls);

    // The room id goes in as given, without percent-encoding.
    const QByteArray body = QByteArrayLiteral("live_room_id=") + Data.toUtf8();
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("application/x-www-form-urlencoded"));
    request.setHeader(QNetworkRequest::ContentLengthHeader, body.size());
    request.setRawHeader(QByteArrayLiteral("cookie"), QByteArrayLiteral("api_token=") + Token.toLatin1());
    request.setTransferTimeout(m_requestTimeoutMs);
    writeLog(tr("提交的用户token：") + shownValue(Token));

    // One manager per request, as in-flight calls (a heartbeat and an end
    // call) must not share state. httpRequestFinished deletes it with its
    // reply: a heartbeat every 10 s for hours would otherwise keep one
    // manager (and its thread) per beat until the object goes.
    auto *manager = new QNetworkAccessManager(this);
    connect(manager, &QNetworkAccessManager::finished, this, &UiproRtmp_Desktop::httpRequestFinished);
    QNetworkReply *reply = manager->post(request, body);
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received, qint64) {
        if (received <= kMaxReplyBytes)
            return;
        static LineThrottle throttle;
        writeLogThrottled(throttle, QStringLiteral("companion service reply from %1 over %2 bytes, dropped")
                                        .arg(reply->url().toString(), QString::number(kMaxReplyBytes)));
        reply->abort(); // finished follows with an error: nothing emitted
    });
    // Qt's transfer time-out only measures silence: a service sending a
    // byte now and then would hold the request open for ever.
    const int deadlineMs = 2 * m_requestTimeoutMs;
    QTimer::singleShot(deadlineMs, reply, [reply, deadlineMs] {
        if (reply->isFinished())
            return;
        static LineThrottle throttle;
        writeLogThrottled(throttle, QStringLiteral("companion service reply from %1 not complete after %2 ms, dropped")
                                        .arg(reply->url().toString(), QString::number(deadlineMs)));
        reply->abort();
    });
}

void UiproRtmp_Desktop::httpRequestFinished(QNetworkReply *reply)
{
    if (!reply)
        return;
    // The reply belongs to its manager: both go once this returns.
    if (reply->manager() && reply->manager()->parent() == this)
        reply->manager()->deleteLater();
    else
        reply->deleteLater();

    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (status.isValid())
        writeLog(QStringLiteral("status code=") + QString::number(status.toInt()));
    const QVariant reason = reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute);
    if (reason.isValid())
        writeLog(QStringLiteral("reason=") + reason.toString());

    if (reply->error() != QNetworkReply::NoError) {
        writeLog(QStringLiteral("Failed: ") + reply->errorString());
        return;
    }
    const QByteArray bytes = reply->readAll();
    if (bytes.isNull())
        return;
    const QString text = QString::fromUtf8(bytes);
    writeLog(text.size() <= 4096 ? text : LineThrottle::shown(text, 4096));

    const QString code = QJsonDocument::fromJson(bytes).object().value(QStringLiteral("code")).toString();
    if (code == QLatin1String("SUCCEED"))
        emit sigSendHttpResult(m_lastRequestUrl, true);
}
