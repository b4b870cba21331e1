#include "UiproGetAudioShareData.h"

UiproGetAudioShareData::UiproGetAudioShareData(QObject *parent)
    : QObject(parent)
{
}

void UiproGetAudioShareData::getShareAudioData() {}
