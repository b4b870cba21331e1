#pragma once
// Software upgrade from the USB disk: whether /media/usb0 is usable, the
// upgrade images on it in version order, and handing the chosen image to
// the system's update script.
//
// The image name comes from a file on the disk: it reaches the script as
// one literal argument, never through a shell.
#include <QObject>
#include <QString>
#include <QStringList>

class UiproVersion_Desktop : public QObject
{
    Q_OBJECT
public:
    explicit UiproVersion_Desktop(QObject *parent = nullptr);

    // "ZORVANE_RELEASE_1.2.3.img" -> "1.2.3.img_ZORVANE_RELEASE_": the name
    // turned at the "_" that ends the build kind.
    static QString versionEntry(const QString &fileName);
    // The entry's number characters read as one decimal int; 0 when there
    // are none or they do not fit.
    static int versionNumber(const QString &entry);

public slots:
    int check_is_usb_disk_ok_for_version();
    QStringList getUpgradeVersionList();
    int start_upgrade_software(QString fileName);

private:
    QStringList m_versions;
};
