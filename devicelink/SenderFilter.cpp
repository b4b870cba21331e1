#include "SenderFilter.h"

#include <QNetworkInterface>

SenderFilter::SenderFilter(AddressSource ownAddresses)
    : m_source(ownAddresses ? std::move(ownAddresses) : AddressSource(&QNetworkInterface::allAddresses))
{
}

QHostAddress SenderFilter::plain(const QHostAddress &address)
{
    bool isV4 = false;
    const quint32 v4 = address.toIPv4Address(&isV4);
    return isV4 ? QHostAddress(v4) : address;
}

bool SenderFilter::accepts(const QHostAddress &sender, qint64 nowMs)
{
    const QHostAddress from = plain(sender);
    if (from.isLoopback())
        return true;
    if (m_readMs < 0 || nowMs - m_readMs >= kRefreshMs) {
        m_own.clear();
        for (const QHostAddress &a : m_source())
            m_own.append(plain(a));
        m_readMs = nowMs;
    }
    for (const QHostAddress &own : qAsConst(m_own)) {
        // Link-local IPv6 addresses carry a scope the sender's may lack.
        if (own.isEqual(from, QHostAddress::TolerantConversion)
            || (own.protocol() == QAbstractSocket::IPv6Protocol && QHostAddress(own.toIPv6Address()) == QHostAddress(from.toIPv6Address())))
            return true;
    }
    return false;
}
