#include "UiproGetImageShareData.h"

UiproGetImageShareData::UiproGetImageShareData(QObject *parent)
    : QObject(parent)
{
}

void UiproGetImageShareData::getShareImageData() {}
void UiproGetImageShareData::setShareImageFlag(bool flag) { m_shareImageFlag = flag; }
