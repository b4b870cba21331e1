#include "UiprocMain_Desktop.h"

#include "Translations.h"

#include <QQmlEngine>

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
