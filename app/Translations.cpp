#include "Translations.h"

#include "LogCategories.h"
#include "SettingsStore.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QTranslator>

namespace Translations {

QTranslator &translator()
{
    static QTranslator t;
    return t;
}

QString fileFor(int code)
{
    switch (code) {
    case 0: return QStringLiteral(":/translations/cn.qm");
    case 1: return QStringLiteral(":/translations/en.qm");
    case 2: return QStringLiteral(":/translations/de.qm");
    default: return {};
    }
}

int loadStartupLanguage(const QString &localeName)
{
    const QString letters = localeName.left(2).toUpper();

    // Read the settings the same way UiProc would, without constructing one:
    // a temporary UiProc would start command loops that share the class-wide queues.
    SettingsStore::importFromUserdata();
    SettingsStore::ensureFile();
    QJsonObject settings;
    SettingsStore::read(settings);
    const int code = settings.value(QStringLiteral("language")).toInt(0);

    int chosen = -1;
    if (code >= 0 && code <= 2) {
        chosen = code;
    } else if (code == -1) {
        if (letters == QLatin1String("ZH"))
            chosen = 0;
        else if (letters == QLatin1String("DE"))
            chosen = 2;
        else
            chosen = 1;
        QJsonObject change;
        change.insert(QStringLiteral("language"), chosen);
        SettingsStore::write(change);
    } else {
        qCDebug(lcApp) << "language" << code << "unknown: no translation loaded";
        return -1;
    }
    const bool loaded = translator().load(fileFor(chosen));
    qCDebug(lcApp).noquote() << "start-up language" << chosen << fileFor(chosen) << (loaded ? "loaded" : "not loaded");
    return loaded ? chosen : -1;
}

bool setLanguage(int code)
{
    const QString file = fileFor(code);
    if (file.isEmpty())
        return false;
    translator().load(file);
    QCoreApplication::installTranslator(&translator());
    return true;
}

} // namespace Translations
