// Calls to the companion streaming service against an HTTPS server of the
// test's own on loopback (self-signed certificate): the request as it
// arrives, and which replies count as success.
#include "HttpsTestServer.h"
#include "TestSysroot.h"
#include "UiproRtmp_Desktop.h"

#include <QNetworkAccessManager>
#include <QSignalSpy>
#include <QSslSocket>
#include <QtTest>

// Waits until every request has finished: each takes its manager along.
#define SETTLE(rtmp) QTRY_VERIFY_WITH_TIMEOUT((rtmp).findChildren<QNetworkAccessManager *>().isEmpty(), 15000)

class TestCompanion : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void reply_data();
    void reply();
    void tokenWithLineBreakIsNotSent();
    void successCarriesMostRecentRequestUrl();

private:
    QString url(const char *path) const { return QStringLiteral("https://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path); }

    TestSysroot m_root;
    QTemporaryDir m_dir;
    HttpsTestServer m_server;
};

void TestCompanion::initTestCase()
{
    QVERIFY(QSslSocket::supportsSsl());
    QString error;
    QVERIFY2(m_server.start(m_dir.path(), &error), qPrintable(error));
}

void TestCompanion::reply_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("success");
    QTest::newRow("SUCCEED") << 200 << QByteArray(R"({"code":"SUCCEED","msg":"ok"})") << true;
    QTest::newRow("lower case") << 200 << QByteArray(R"({"code":"succeed"})") << false;
    QTest::newRow("numeric code") << 200 << QByteArray(R"({"code":200})") << false;
    QTest::newRow("not JSON") << 200 << QByteArray("SUCCEED") << false;
    QTest::newRow("HTTP 500 saying SUCCEED") << 500 << QByteArray(R"({"code":"SUCCEED"})") << false;
    QTest::newRow("connection refused") << 0 << QByteArray() << false;
}

void TestCompanion::reply()
{
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    QFETCH(bool, success);
    m_server.answers["/api/Live/beginLive"] = {status, body, 0};
    m_server.requests.clear();
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const QString target = status ? url("/api/Live/beginLive") : QStringLiteral("https://127.0.0.1:%1/api/Live/beginLive").arg(closed.serverPort());
    closed.close();

    UiproRtmp_Desktop rtmp;
    QSignalSpy spy(&rtmp, &UiproRtmp_Desktop::sigSendHttpResult);
    rtmp.httpRequestPostByUrl(target, "tok-1", "room 7&x=ü");
    SETTLE(rtmp);
    QCOMPARE(spy.count(), success ? 1 : 0);
    if (spy.count())
        QCOMPARE(spy.at(0), (QVariantList{target, true}));
    if (!status)
        return;
    QCOMPARE(m_server.requests.size(), 1);
    const QByteArray req = m_server.requests.at(0);
    const QByteArray sent = QString("live_room_id=room 7&x=ü").toUtf8();
    QVERIFY(req.startsWith("POST /api/Live/beginLive HTTP/1.1\r\n"));
    QVERIFY(req.endsWith("\r\n\r\n" + sent));
    const QByteArray head = req.toLower();
    QVERIFY(head.contains("\r\ncontent-type: application/x-www-form-urlencoded\r\n"));
    QVERIFY(head.contains("\r\ncontent-length: " + QByteArray::number(sent.size()) + "\r\n"));
    QVERIFY(req.contains("\r\ncookie: api_token=tok-1\r\n"));
}

void TestCompanion::tokenWithLineBreakIsNotSent()
{
    m_server.answers["/api/Live/beginLive"] = {200, R"({"code":"SUCCEED"})", 0};
    m_server.requests.clear();
    UiproRtmp_Desktop rtmp;
    QSignalSpy spy(&rtmp, &UiproRtmp_Desktop::sigSendHttpResult);
    rtmp.httpRequestPostByUrl(url("/api/Live/beginLive"), "t\r\nX-Injected: 1", "r");
    rtmp.httpRequestPostByUrl(url("/api/Live/beginLive"), "ok", "r\r\nX-Not-A-Header: 1");
    SETTLE(rtmp);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_server.requests.size(), 1);
    QVERIFY(m_server.requests.at(0).endsWith("\r\n\r\nlive_room_id=r\r\nX-Not-A-Header: 1"));
}

void TestCompanion::successCarriesMostRecentRequestUrl()
{
    m_server.answers["/api/Live/headBeat"] = {200, R"({"code":"SUCCEED"})", 400};
    m_server.answers["/api/Live/endLive"] = {500, "", 0};
    UiproRtmp_Desktop rtmp;
    QSignalSpy spy(&rtmp, &UiproRtmp_Desktop::sigSendHttpResult);
    for (int i = 0; i < 20; ++i) // a long show's heartbeats
        rtmp.httpRequestPostByUrl(url("/api/Live/headBeat"), "t", "r");
    SETTLE(rtmp);
    QCOMPARE(spy.count(), 20);
    spy.clear();
    rtmp.httpRequestPostByUrl(url("/api/Live/headBeat"), "t", "r");
    rtmp.httpRequestPostByUrl(url("/api/Live/endLive"), "t", "r");
    SETTLE(rtmp);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), (QVariantList{url("/api/Live/endLive"), true}));
}

QTEST_MAIN(TestCompanion)
#include "tst_companion.moc"
