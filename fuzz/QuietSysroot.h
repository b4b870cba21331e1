#pragma once
// Fuzz targets log through the product's logger: give it a private
// sysroot (so nothing reaches the host's /CSLog) and silence the console.
#include <QByteArray>
#include <QLoggingCategory>
#include <QTemporaryDir>

inline void useQuietSysroot()
{
    static QTemporaryDir sysroot;
    static const bool ready = [] {
        qputenv("CS_SYSROOT", sysroot.path().toLocal8Bit());
        QLoggingCategory::setFilterRules(QStringLiteral("cs.*=false"));
        return true;
    }();
    Q_UNUSED(ready);
}
