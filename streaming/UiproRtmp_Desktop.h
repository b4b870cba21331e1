#pragma once
// Streaming events with their platform URLs and stream parameters
// (config/CS_event.ini), the companion app's URL (config/CS_Zor_event.ini),
// import of URLs from the USB disk, recognition of the platform from a URL,
// and the live-session calls to the companion streaming service.
//
// Nothing is kept in memory: every call opens the files anew, so the files
// are the state. Names such as "Paltform" are the screens' interface and
// stay as they are.
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>

class QNetworkReply;

class UiproRtmp_Desktop : public QObject
{
    Q_OBJECT
    // "https://<companion domain>": the screens append "/api/Live/beginLive" and the like.
    Q_PROPERTY(QString companionHost READ companionHost CONSTANT)
public:
    explicit UiproRtmp_Desktop(QObject *parent = nullptr);

    // Import limits: a USB file is the user's own, but it may be anything.
    // Beyond these the rest of the file is skipped with one log line, so an
    // import never holds the screens up.
    static constexpr qint64 kMaxImportBytes = 1024 * 1024;
    static constexpr int kMaxImportUrls = 1000;
    // Longer lines are no stream address (the device takes at most 1020 characters).
    static constexpr int kMaxUrlChars = 4096;
    // A companion-service reply is a small JSON object.
    static constexpr qint64 kMaxReplyBytes = 1024 * 1024;
    // A request ends after this long without a byte from the service, and
    // after twice this long whatever comes, so heartbeats against a hung or
    // trickling service cannot pile up.
    static constexpr int kRequestTimeoutMs = 30000;

    static QString eventFilePath();
    static QString zorFilePath();
    static QString usbUrlFilePath();
    QString companionHost() const;
    // Time-out of the companion requests sent from now on (tests shorten it).
    void setRequestTimeout(int ms) { m_requestTimeoutMs = ms; }

signals:
    void sigEventInfo(QString strName, QString strStartTime);
    void sigEventInfo(QString strName, qlonglong nStartTime);
    void sigSendPlatformUrl(QString strPlatformName, QString strPlatformUrl);
    void sigAddPlatformItem(QString strPlatformName, QString strPlatformUrl, bool isOpen, bool isLogoForm);
    void sigStreamParams(QString strModel, QString strResolution, QString strBitrate);
    void sigSendHttpResult(QString url, bool result);

public slots:
    // Event store.
    void getAllEventInfo();
    void createOneEvent(QString strName, QString strStartTime);
    void createOneEvent(QString strName, qlonglong nStartTime);
    void delOneEventByName(QString strName);
    QJsonObject getOneEventInfoByName(QString strName);
    void savePaltformUrlsByEventName(QString strName, QStringList listPlatformUrl, QStringList listPlatformStatus);
    void getPaltformUrlsByName(QString strName, bool isLogoForm = false);
    QString getAvailablePaltformUrlsByName(QString strName);
    int getAvailablePaltformNumByName(QString strName);
    bool removePlatformUrlByEventName(QString strEventName, int nPos);
    bool removePlatformUrlByEventNameAndUrl(QString strEventName, QString strPlatformUrl);
    void savePaltformParamsModelByEventName(QString strEventName, QString strModel);
    void savePaltformParamsByEventName(QString strEventName, QString strModel, QString strResolution, QString strBitrate);
    void getPaltformParamsByEventName(QString strEventName);
    int getStreamModelByEventName(QString strEventName);
    int getResolutionByEventName(QString strEventName);
    int getBitrateByEventName(QString strEventName);
    void setZorPlatformUrl(QString zorUrl);
    void updateZorCurrentPlatformUrl(QString newUrl);

    // Import and recognition.
    QString getPlatformNameByUrl(QString strPlatformUrl);
    bool getAllUdiskPlatformUrl();
    bool getZorPlatformUrl();
    QString read_rtmp_url_from_u_file();

    // Companion service.
    void httpRequestPostByUrl(QString localUrl, QString Token, QString Data);
    void httpRequestFinished(QNetworkReply *reply);

private:
    bool importUrlFile(const QString &path, const QString &logPrefix);
    QString m_lastRequestUrl;
    int m_requestTimeoutMs = kRequestTimeoutMs;
};
