#pragma once
#include <QObject>
#include <QVariantMap>

class QQmlEngine;

// Language switch for the screens, and the library versions the About
// page shows.
class UiprocMain_Desktop : public QObject
{
    Q_OBJECT
public:
    explicit UiprocMain_Desktop(QObject *parent = nullptr);

public slots:
    // 0 Chinese, 1 English, 2 German; any other value keeps the current language.
    void setLanguage(int type);
    // Loads FFmpeg on a worker (it is not linked at start) and answers with
    // libraryInfo({ffmpegVersion, ffmpegLicence}); empty texts when missing.
    void requestLibraryInfo();

signals:
    void libraryInfo(const QVariantMap &info);
};
