#include "VideoFormatList.h"

#include "Logger.h"

#include <QJsonObject>
#include <QMutex>

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

    QJsonArray array;
    for (int i = 0; i < count; ++i) {
        const int at = i * kEntrySize;
        const int type = byteAt(bytes, at);
        const int width = byteAt(bytes, at + 1) | (byteAt(bytes, at + 2) << 8);
        const int height = byteAt(bytes, at + 3) | (byteAt(bytes, at + 4) << 8);
        const int rate = byteAt(bytes, at + 5);

        // HDMI reports a 1080-line interlaced format by its field height;
        // it ranks one above the progressive format of the same kind.
        const bool interlaced = interlace && height == 540;
        const int rankHeight = interlaced ? 1081 : height;
        QJsonObject format;
        format.insert(QStringLiteral("Weights"), width - type + rate + rankHeight);
        format.insert(QStringLiteral("DataType"), type);
        format.insert(QStringLiteral("width"), width);
        format.insert(QStringLiteral("height"), interlaced ? 1080 : height);
        format.insert(QStringLiteral("Fps"), QString::number(rate) + (interlaced ? QStringLiteral("i") : QString()));
        array.prepend(format);
    }

    // Bubble sort, largest first; equal weights never swap, so among them the
    // reverse block order from the prepends stands.
    const int n = array.size();
    for (int p = 0; p < n; ++p) {
        for (int j = 0; j + 1 < n - p; ++j) {
            if (array.at(j).toObject().value(QStringLiteral("Weights")).toInt()
                < array.at(j + 1).toObject().value(QStringLiteral("Weights")).toInt()) {
                const QJsonValue first = array.at(j);
                array.replace(j, array.at(j + 1));
                array.replace(j + 1, first);
            }
        }
    }
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
