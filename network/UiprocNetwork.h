#pragma once
// The wired interface eth0: its DHCP-or-static choice kept in
// config/CS_network.ini, applied with the system's tools on detached worker
// threads (they sleep and wait for commands), and its current address,
// netmask and default gateway reported back to the screens.
//
// The apply's results (setIpFinished) are posted to the object's own thread,
// so they reach the screens queued, in order, and never after the object is
// gone. Addresses must be dotted IPv4 before they reach a command: anything
// else is refused with a log line, nothing is saved or run, and
// setIpFinished(-1, "") tells the page its apply is over.
#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class QProcess;
struct UiprocNetworkLife;

class UiprocNetwork : public QObject
{
    Q_OBJECT
public:
    explicit UiprocNetwork(QObject *parent = nullptr);
    ~UiprocNetwork() override;

    // One address entry of one interface, as the walks below see it.
    struct AddressEntry
    {
        QString interfaceName;
        QString address;
        QString netmask;
    };
    using AddressSource = QList<AddressEntry> (*)();
    // Replaces the system's interface list (tests); nullptr restores it.
    static void setAddressSource(AddressSource source);

    // Four decimal parts 0..255, no leading zeros, nothing else.
    static bool isDottedIPv4(const QString &text);
    // The gateway of eth0 in the output of `route -n`: the second column of
    // the last eth0 line with the "G" flag, "0.0.0.0" when there is none.
    static QString gatewayFromRoute(const QString &routeOutput);

    // The fixed name servers written for a static address.
    static const char kResolvConf[];

signals:
    void showIpAddress(QString ipStr, QString maskStr, QString gwStr);
    void setIpFinished(int index, QString ipStr = QString());
    void setDefIpFinished(int index);
    void sigGetDHCPSwitchStatus(bool isOpen);

public:
    Q_INVOKABLE void getIpAddress(int index);
    Q_INVOKABLE void setIpAddress(int index, QString ipStr, QString maskStr, QString gateway, bool bIsDHCP = false);
    Q_INVOKABLE QString getIpAddress();
    Q_INVOKABLE void initNetwork();

private slots:
    void slot_shellReadGateWay();

private:
    void reportAddress();

    QProcess *m_gatewayProcess;
    QString m_gateway;
    std::shared_ptr<UiprocNetworkLife> m_life;
};
