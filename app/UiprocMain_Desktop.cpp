#include "UiprocMain_Desktop.h"

#include "FfmpegLibrary.h"
#include "Translations.h"

#include <QPointer>
#include <QQmlEngine>
#include <QThreadPool>

UiprocMain_Desktop::UiprocMain_Desktop(QObject *parent)
    : QObject(parent)
{
}

void UiprocMain_Desktop::setLanguage(int type)
{
    if (!Translations::setLanguage(type))
        return;
    // Re-evaluate every qsTr binding of the live documents.
    if (QQmlEngine *engine = qmlEngine(this))
        engine->retranslate();
}

void UiprocMain_Desktop::requestLibraryInfo()
{
    QPointer<UiprocMain_Desktop> self(this);
    QThreadPool::globalInstance()->start([self] {
        QVariantMap info;
        if (const FfmpegApi *ff = Ffmpeg::api()) {
            info.insert(QStringLiteral("ffmpegVersion"), QString::fromLatin1(ff->av_version_info()));
            info.insert(QStringLiteral("ffmpegLicence"), QString::fromLatin1(ff->avutil_license()));
        }
        // Queued to the object's thread; dropped if the object is gone.
        QMetaObject::invokeMethod(self, [self, info] {
            if (self)
                emit self->libraryInfo(info);
        }, Qt::QueuedConnection);
    });
}
