#pragma once
// Reads preview frames from the media service's shared memory.
#include <QObject>

class UiproGetImageShareData : public QObject
{
    Q_OBJECT
public:
    explicit UiproGetImageShareData(QObject *parent = nullptr);

public slots:
    void getShareImageData();
    void setShareImageFlag(bool flag);

private:
    bool m_shareImageFlag = false;
};
