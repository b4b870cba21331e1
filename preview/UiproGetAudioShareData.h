#pragma once
// Polls the nine audio levels from shared memory every 300 ms.
#include <QObject>

class UiproGetAudioShareData : public QObject
{
    Q_OBJECT
public:
    explicit UiproGetAudioShareData(QObject *parent = nullptr);

signals:
    void updateVoise(int mic_voise, int hdmi1_voise, int hdmi2_voise, int line_voise, int uvc1_voise,
                     int uvc2_voise, int ndi_voise, int usb_voise, int ear_voise);

public slots:
    void getShareAudioData();
};
