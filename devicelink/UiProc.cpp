#include "UiProc.h"

#include "Logger.h"
#include "SettingsStore.h"

UiProc::UiProc(QObject *parent)
    : QObject(parent)
{
    registerProtocolTypes();
    // The log switch is read once per start.
    Logger::instance().setSwitch(SettingsStore::openLogSwitch());
    setupTransport();
}

UiProc::~UiProc()
{
    teardownTransport();
    Logger::instance().closeFile();
}

short UiProc::combineTwoByte(uchar lowDat, uchar higDat)
{
    return ::combineTwoByte(lowDat, higDat);
}
