#include "VideoFormatList.h"

#include "Logger.h"

#include <QJsonObject>
#include <QMutex>

#include <algorithm>
#include <vector>

namespace {

int byteAt(const QByteArray &bytes, int k)
{
    return uchar(bytes.at(k));
}

QMutex g_modelLock;
model_videoparam g_model;

} // namespace

namespace VideoFormatList {

QJsonArray buildFormatArray(const QByteArray &bytes, quint16 len, bool interlace)
{
    // The last announced byte is a terminator, so only whole entries before
    // it count; entries the real block does not hold are not there.
    const int announced = len >= 1 ? (int(len) - 1) / kEntrySize : 0;
    const int count = qMin(announced, int(bytes.size()) / kEntrySize);

    // Entries come out in reverse block order, then ordered by weight,
    // largest first; equal weights keep that reverse order. (The device's
    // own list did this with a bubble sort; a stable sort gives exactly the
    // same order without its quadratic cost on a full 32 KB block.)
    struct Entry
    {
        int weight;
        QJsonObject format;
    };
    std::vector<Entry> entries;
    entries.reserve(size_t(count));
    for (int i = count - 1; i >= 0; --i) {
        const int at = i * kEntrySize;
        const int type = byteAt(bytes, at);
        const int width = byteAt(bytes, at + 1) | (byteAt(bytes, at + 2) << 8);
        const int height = byteAt(bytes, at + 3) | (byteAt(bytes, at + 4) << 8);
        const int rate = byteAt(bytes, at + 5);

        // HDMI reports a 1080-line interlaced format by its field height;
        // it ranks one above the progressive format of the same kind.
        const bool interlaced = interlace && height == 540;
        const int rankHeight = interlaced ? 1081 : height;
        const int weight = width - type + rate + rankHeight;
        QJsonObject format;
        format.insert(QStringLiteral("Weights"), weight);
        format.insert(QStringLiteral("DataType"), type);
        format.insert(QStringLiteral("width"), width);
        format.insert(QStringLiteral("height"), interlaced ? 1080 : height);
        format.insert(QStringLiteral("Fps"), QString::number(rate) + (interlaced ? QStringLiteral("i") : QString()));
        entries.push_back(Entry{weight, format});
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry &a, const Entry &b) { return a.weight > b.weight; });

    QJsonArray array;
    for (const Entry &e : entries)
        array.append(e.format);
    return array;
}

} // namespace VideoFormatList

QJsonArray dealNDISignalToJson(const QByteArray &bytes, quint16 len)
{
    const int announcedCount = bytes.isEmpty() ? 0 : byteAt(bytes, 0);
    const int end = qMin(int(len), int(bytes.size()));

    QJsonArray array;
    QJsonObject source; // reused: a source without a name part keeps the previous name
    QString text;
    for (int k = 1; k < end; ++k) {
        const QChar ch = QChar(ushort(byteAt(bytes, k)));
        if (ch == QLatin1Char(',')) {
            source.insert(QStringLiteral("name"), text);
            text.clear();
        } else if (ch == QLatin1Char(';')) {
            source.insert(QStringLiteral("addr"), text);
            array.append(source);
            text.clear();
        } else {
            text.append(ch);
        }
    }

    if (array.size() != announcedCount)
        writeLog(QStringLiteral("UiprocVideo_Desktop::dealNDISignalToJson no correct signal number:")
                 + QString::number(announcedCount));
    return array;
}

void setModel(const model_videoparam &model)
{
    int entries = 0;
    {
        QMutexLocker lock(&g_modelLock);
        g_model = model;
        entries = g_model.list.size();
    }
    writeLog(QStringLiteral("UiprocVideo_Desktop::setModel------------- listnum:") + QString::number(entries));
}

model_videoparam getModel()
{
    // Taken under the lock as well: a copy made while setModel writes would
    // be torn.
    QMutexLocker lock(&g_modelLock);
    return g_model;
}
