#pragma once
// The serial link to the companion phone app over Bluetooth (/dev/rfcomm0):
// a reader thread that turns the app's messages into signals, and a writer
// that sends the app one text line.
//
// The phone's text is outside input: it is parsed, logged escaped and
// bounded, and never reaches a shell. The writer puts bytes on the device
// node itself, so no text it is given can run a command.
#include <QObject>
#include <QString>
#include <QThreadPool>

#include <memory>

struct BluetoothReaderState;

class UiproBluetooth_Desktop : public QObject
{
    Q_OBJECT
public:
    explicit UiproBluetooth_Desktop(QObject *parent = nullptr);
    ~UiproBluetooth_Desktop() override;

    // What one read from the app means.
    struct Message
    {
        bool destination = false;
        QString url, token, data, vertical;
        bool stopPush = false;
        int fields = 0;     // "#"-separated fields of a message that passed the destination test
    };
    static Message parse(const QByteArray &text, const QString &pushHost);

    // The line the app receives for `text`: what echo prints for
    // "echo <text>\r\n" (the four characters written out) plus its newline.
    static QByteArray wireLine(const QString &text);

    // The writer refuses longer texts: the app never gets more than a word.
    static constexpr int kMaxWriteBytes = 4096;
    static constexpr int kReadBytes = 1024;

public slots:
    void getBlueData();
    void sendBlueData();
    void writeDataToDev(QString Data);
    void setWriteFlag(bool flag);
    void setReadFlag(bool flag);
    void setReadStop();

signals:
    void pushReadRtmp(QString url, QString token, QString Data, QString vertical);
    void pushAirSet(bool tmpSet);

private:
    bool m_writeFlag = false;
    QByteArray m_writeBuffer;
    // Shared with the detached reader thread, which outlives this object
    // by at most one poll interval and never touches it once it is gone.
    std::shared_ptr<BluetoothReaderState> m_reader;
    // One thread, so lines reach the app in the order they were written.
    QThreadPool m_writer;
};
