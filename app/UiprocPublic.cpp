#include "UiprocPublic.h"

#include <QPointer>

namespace {
QPointer<UiprocPublic> g_sink;
}

UiprocPublic::UiprocPublic(QObject *parent)
    : QObject(parent)
{
    g_sink = this;
}

UiprocPublic::~UiprocPublic() = default;

void UiprocPublic::sendDebug(const QString &debugStr)
{
    if (UiprocPublic *sink = g_sink.data())
        emit sink->sendDebugToQml(debugStr);
}
