#include "UiprocVideo_Desktop.h"

UiprocVideo_Desktop::UiprocVideo_Desktop(QObject *parent)
    : QObject(parent)
{
}

void UiprocVideo_Desktop::bizConnect() {}
void UiprocVideo_Desktop::bizDisconnect() {}
