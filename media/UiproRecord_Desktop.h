#pragma once
// Recordings on the USB disk: whether a disk is there with room to record,
// the list of MP4 files with their creation time, length and picture size
// (read from the container with libavformat; nothing is decoded), the
// length of one file, and renaming a file.
//
// The disk is the mount under /media/usb with the most available blocks, as
// the system's df reports it. Paths given to the screens are device paths
// ("/media/usb0/x.mp4"); every slot also takes the path a sysroot resolves.
// File names on the disk are outside text: they are listed, opened and
// renamed only through system calls, never through a shell.
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

struct RecordListingState;

class UiproRecord_Desktop : public QObject
{
    Q_OBJECT
public:
    // Free space of the file system holding a path, as statfs gives it.
    struct FreeSpace
    {
        quint64 freeBlocks = 0; // f_bfree: includes the blocks kept for root
        quint64 blockSize = 0;
    };
    // False when the path cannot be queried.
    using FileSystemQuery = std::function<bool(const QString &path, FreeSpace *out)>;

    // Space kept free on the disk for the recorder's own use: 512 MiB.
    static constexpr quint64 kReserveBytes = quint64(1) << 29;

    explicit UiproRecord_Desktop(QObject *parent = nullptr);
    ~UiproRecord_Desktop() override;

    // Replaces statfs for this object (tests); an empty function restores it.
    void setFileSystemQuery(FileSystemQuery query);

    // Waits until no threaded listing runs (tests, benchmarks); false on time-out.
    static bool waitForListings(int msecs);

    // The mount point the last disk search found (a real path), "" if none.
    QString mountPath() const { return m_mountPath; }

signals:
    void updateFileRecord(QStringList files);

public slots:
    double check_is_usb_disk_ok_for_record();
    void connect_get_usb_record_files();
    QStringList get_usb_record_files(bool requeryMP4);
    QStringList get_usb_record_files();
    int get_cur_record_file_time(QString filePath);
    QString rename_record_file(QString oldPath, QString newName);

private:
    FileSystemQuery m_query;
    QString m_mountPath;
    char m_probeText[256] = {};
    std::shared_ptr<RecordListingState> m_listing;
};
