#pragma once
// Who may send reports: the media service runs on this board, so only
// loopback and this machine's own interface addresses are accepted.
// Anyone else on the network reaching the listening port is turned away.
#include <QHostAddress>
#include <QList>

#include <functional>

class SenderFilter
{
public:
    using AddressSource = std::function<QList<QHostAddress>()>;
    // How long the list of own addresses is trusted before it is read again
    // (a DHCP lease or a static change brings a new one).
    static constexpr qint64 kRefreshMs = 5000;

    // ownAddresses: the machine's addresses; by default every interface's.
    explicit SenderFilter(AddressSource ownAddresses = {});

    bool accepts(const QHostAddress &sender, qint64 nowMs);
    // The address as the log shows it: IPv4 without the "::ffff:" prefix.
    static QHostAddress plain(const QHostAddress &address);

private:
    AddressSource m_source;
    QList<QHostAddress> m_own;
    qint64 m_readMs = -1;
};
