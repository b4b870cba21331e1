#include "UiProc.h"

#include "DiskSync.h"
#include "Logger.h"
#include "SettingsStore.h"

void UiProc::isExistConfig() { SettingsStore::importFromUserdata(); }

void UiProc::readInitConfig() { SettingsStore::read(m_iniData); }

QJsonObject UiProc::getIniData() { return m_iniData; }

void UiProc::writeInitConfig(QJsonObject data)
{
    // Writes before the screens declare start-up finished are dropped, not queued.
    if (!m_initFinished)
        return;
    // The file is replaced by one rename here, in call order; only the flush
    // to the medium, which can take seconds during a USB recording, waits.
    SettingsStore::write(data);
    DiskSync::instance().request();
}

void UiProc::initFinished() { m_initFinished = true; }

void UiProc::setFirstInfo(bool first) { SettingsStore::setFirst(first); }

bool UiProc::getIsFirst() { return SettingsStore::isFirst(); }

void UiProc::setObsPath(QString path) { SettingsStore::setObsPath(path); }

QString UiProc::getObsPath() { return SettingsStore::obsPath(); }

void UiProc::writeLog(QString log) { Logger::instance().write(log); }

void UiProc::writeDailyLog(const QString &text) { Logger::writeDaily(text); }
