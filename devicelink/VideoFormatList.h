#pragma once
// The two list reports of the media service turned into JSON for the
// screens: the video formats an input can take (ranked, interlaced HDMI
// formats shown as 1080-line "i" formats) and the NDI sources on the
// network. Also the process-wide video-parameter record kept beside them.
#include <QByteArray>
#include <QJsonArray>
#include <QList>
#include <QMetaType>

namespace VideoFormatList {

// Bytes per format entry: type, width (2, low first), height (2), rate.
constexpr int kEntrySize = 6;

// Format objects (Weights, DataType, width, height, Fps) for the entries of
// a block of announced length len, highest Weights first. interlace: the
// input is HDMI, where a 540-line entry is a 1080-line interlaced format.
// Never reads past the end of bytes.
QJsonArray buildFormatArray(const QByteArray &bytes, quint16 len, bool interlace);

} // namespace VideoFormatList

// NDI source objects (name, addr) from a block of announced length len:
// byte 0 is the announced count, then "name,addr;" pairs. Logs when the
// count found differs from the announced one.
QJsonArray dealNDISignalToJson(const QByteArray &bytes, quint16 len);

// The shared video-parameter record: a fixed header and a list of entries.
struct model_videoparam
{
    struct Entry
    {
        uchar DataType = 0;
        quint16 width = 0;
        quint16 height = 0;
        uchar Fps = 0;
        bool interlaced = false;

        bool operator==(const Entry &o) const
        {
            return DataType == o.DataType && width == o.width && height == o.height && Fps == o.Fps
                && interlaced == o.interlaced;
        }
    };

    uchar inputType = 0;    // 0 HDMI 1, 1 HDMI 2, 2 UVC 1, 3 UVC 2, 4 NDI
    uchar currentIndex = 0; // entry in use
    uchar status = 0;
    QList<Entry> list;

    bool operator==(const model_videoparam &o) const
    {
        return inputType == o.inputType && currentIndex == o.currentIndex && status == o.status && list == o.list;
    }
};
Q_DECLARE_METATYPE(model_videoparam)

// Stores a copy as the shared record (under its mutex) and logs the number
// of entries.
void setModel(const model_videoparam &model);
// A copy of the shared record.
model_videoparam getModel();
