#pragma once
// Polls the nine audio levels from shared memory every 300 ms.
#include <QObject>

#include <atomic>
#include <memory>
#include <vector>

class UiproGetAudioShareData : public QObject
{
    Q_OBJECT
public:
    static constexpr int kDefaultShmKey = 6100;
    static constexpr int kSegmentSize = 36;
    static constexpr int kPollMs = 300;

    // Key, overridable by CS_AUDIO_SHM_KEY (decimal or 0x-hex).
    static int shmKey();

    explicit UiproGetAudioShareData(QObject *parent = nullptr);
    ~UiproGetAudioShareData() override;

    // Detaches the segment; nothing in the application calls it.
    int detach();
    // Stops the pollers (tests and tools; the application never stops them).
    void stopPollers();

signals:
    void updateVoise(int mic_voise, int hdmi1_voise, int hdmi2_voise, int line_voise, int uvc1_voise,
                     int uvc2_voise, int ndi_voise, int usb_voise, int ear_voise);

public slots:
    void getShareAudioData();

public:
    struct Poller;

private:
    std::atomic<void *> m_shmAddr{nullptr};
    int m_levels[9] = {0, 0, 0, 0, 0, 0, 0, 0, 0};
    std::vector<std::shared_ptr<Poller>> m_pollers;
};
