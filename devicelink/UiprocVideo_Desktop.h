#pragma once
// Turns every report of the media service into one typed signal for the screens.
#include "model_Protocoldata.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QObject>

class UiprocVideo_Desktop : public QObject
{
    Q_OBJECT
public:
    explicit UiprocVideo_Desktop(QObject *parent = nullptr);

public slots:
    void bizConnect();
    void bizDisconnect();
};
