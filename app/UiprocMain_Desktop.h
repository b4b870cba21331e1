#pragma once
#include <QObject>

class QQmlEngine;

// Language switch for the screens.
class UiprocMain_Desktop : public QObject
{
    Q_OBJECT
public:
    explicit UiprocMain_Desktop(QObject *parent = nullptr);

public slots:
    // 0 Chinese, 1 English, 2 German; any other value keeps the current language.
    void setLanguage(int type);
};
