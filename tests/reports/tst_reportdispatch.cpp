// Report dispatch: every vector (record in, signal with arguments and log
// lines out), the vocabulary's coverage by vectors, the exact signal and
// slot interface the screens bind to, codes that must stay silent, and
// signals no report may ever fire.
#include "Logger.h"
#include "ReportVectors.h"
#include "TestSysroot.h"
#include "UiprocVideo_Desktop.h"

#include <QJsonDocument>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QtTest>

#include <memory>
#include <set>

using namespace ReportVectors;

namespace {

// One argument as text: numbers and strings as they are, JSON compact.
QString argText(const QVariant &v)
{
    switch (v.userType()) {
    case QMetaType::Bool:
        return v.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::QJsonArray:
        return QString::fromUtf8(QJsonDocument(v.toJsonArray()).toJson(QJsonDocument::Compact));
    case QMetaType::QJsonObject:
        return QString::fromUtf8(QJsonDocument(v.toJsonObject()).toJson(QJsonDocument::Compact));
    default:
        return v.toString();
    }
}

// Expected JSON may list keys in any order: compare parsed documents.
bool sameArg(const QString &actual, const QString &expected)
{
    if (expected.startsWith(QLatin1Char('[')) || expected.startsWith(QLatin1Char('{'))) {
        const QJsonDocument a = QJsonDocument::fromJson(actual.toUtf8());
        const QJsonDocument e = QJsonDocument::fromJson(expected.toUtf8());
        return !e.isNull() && a == e;
    }
    return actual == expected;
}

// Spies on every signal of the class, by name.
class AllSignals
{
public:
    explicit AllSignals(UiprocVideo_Desktop *obj)
    {
        const QMetaObject *mo = obj->metaObject();
        for (int i = mo->methodOffset(); i < mo->methodCount(); ++i) {
            const QMetaMethod m = mo->method(i);
            if (m.methodType() == QMetaMethod::Signal)
                spies.emplace_back(QString::fromLatin1(m.name()), std::make_unique<QSignalSpy>(obj, m));
        }
    }
    QSignalSpy *spy(const QString &name) const
    {
        for (const auto &s : spies)
            if (s.first == name)
                return s.second.get();
        return nullptr;
    }
    // Names of signals that fired, other than the one given.
    QStringList firedExcept(const QString &name) const
    {
        QStringList out;
        for (const auto &s : spies)
            if (s.first != name && s.second->count() > 0)
                out << s.first;
        return out;
    }
    std::vector<std::pair<QString, std::unique_ptr<QSignalSpy>>> spies;
};

const QStringList kSignals = {
    "pushInitInput(int mainInput, int subInput)",
    "pushVideoFormatData(int inputType, int dataLength, QJsonArray formatArray)",
    "pushNDISignalData(int dataLength, QJsonArray ndiSignalArray)",
    "pushLocalIP(QString localIP)",
    "pushUSBStatus(int status)",
    "pushResetStatus(int status)",
    "pushPower(int powerID, int powerCount)",
    "pushSoftwareVersion(int firstVersion, int secondVersion)",
    "pushSystemVersion(int firstVersion, int secondVersion)",
    "pushPGMCutFinish(int sourceIndex)",
    "pushRecordFileName(QString recordFilePath, QString recordFileName)",
    "pushAudioSamplingRate(int inputType, int rate)",
    "pushHDMIOutStyle(int type)",
    "pushSN(QString deviceID)",
    "pushInputInitiative(int status, int inputID)",
    "pushOutputInitiative(int status)",
    "pushUSBInitiative(int status)",
    "pushNetInitiative(int status)",
    "pushNetConCInitiative(int status)",
    "pushInputFormatInitiative(int type, QJsonObject format)",
    "pushNDIStatusInitiative(int status)",
    "pushNDIDecodingStatusInitiative(int status)",
    "pushNDIDecodingFormatInitiative(int status)",
    "pushHDMI2Status(int status)",
    "pushTypeCStatus(int status)",
    "pushRecordingStatus(int status)",
    "pushRecordPlayEndInitiative()",
    "pushTypeCInitiative(int status)",
    "pushInitInputInitiative(int status)",
    "pushChangeHDMIInitiative(int hdmiID)",
    "pushRtmpStatus(int channel, int status)",
    "pushBluetoothFin()",
    "pushBluetoothFinBroadCast()",
    "pushBluetoothDevInfo(int connect, QString mac, QString name)",
    "pushBluetoothDevInfoBroadCast(int connect, QString mac, QString name)",
    "pushInputClick(int index)",
    "pushConnectResult(int type, bool result)",
    "pushConnectResult_Zor(bool result)",
    "pushConnectResult_new(bool isConnect)",
    "pushOpenResult_new(bool isOpen)",
    "pushNdiSwitchType(int type)",
    "pushNdiStatus(int status)",
    "pushNDIDecodingStatus(int status)",
    "pushNdiGroupName(QString groupName)",
    "pushNdiChannelName(QString channelName)",
    "pushNdiDeviceName(QString deviceName)",
    "pushNdiDataType(int dataType, int codeValue)",
    "pushNDIDecodingVideoFormat(int videoType)",
    "pushNdiConnectType(QJsonObject ndiJsonObject)",
    "pushNdiBaseInfo(QString format, int m_fps, int m_bitrate, int m_sampleRate)",
    "pushStyleStatus(QJsonArray ptzStyleArray)",
    "pushPTZStatus(int level, int vertical, int zoom, int autofocus)",
    "pushPTZAutoFocus(int status)",
    "pushPTZView(int index)",
    "pushPTZTally(int status)",
};

const QStringList kSilent = {"pushNetInitiative", "pushConnectResult_Zor", "pushConnectResult_new",
                             "pushOpenResult_new", "pushNdiSwitchType"};

QString declaration(const QMetaMethod &m)
{
    QStringList params;
    const QList<QByteArray> types = m.parameterTypes();
    const QList<QByteArray> names = m.parameterNames();
    for (int i = 0; i < types.size(); ++i)
        params << QString::fromLatin1(types.at(i) + ' ' + names.at(i));
    return QString::fromLatin1(m.name()) + QLatin1Char('(') + params.join(QStringLiteral(", ")) + QLatin1Char(')');
}

} // namespace

class TstReportDispatch : public QObject
{
    Q_OBJECT
    std::unique_ptr<TestSysroot> sysroot;

private slots:
    void initTestCase()
    {
        sysroot.reset(new TestSysroot);
        QVERIFY(sysroot->isValid());
        Logger::instance().setSwitch(1);
    }
    void cleanupTestCase()
    {
        Logger::instance().close();
        sysroot.reset();
    }

    void dispatch_data()
    {
        QTest::addColumn<int>("index");
        const QVector<Vector> vectors = all();
        for (int i = 0; i < vectors.size(); ++i)
            QTest::newRow(vectors.at(i).tag) << i;
    }
    void dispatch()
    {
        QFETCH(int, index);
        const Vector v = all().at(index);

        UiprocVideo_Desktop video;
        AllSignals spies(&video);
        CategoryCapture log("cs.log");
        if (v.warns)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^report [0-9a-f]{2}/[0-9a-f]{2}: .* needs \\d+ block bytes, got \\d+; ignored$")));
        video.cmdProcess(v.rec);

        QCOMPARE(spies.firedExcept(v.signal), QStringList());
        if (!v.signal.isEmpty()) {
            QSignalSpy *spy = spies.spy(v.signal);
            QVERIFY2(spy, qPrintable(v.signal));
            QCOMPARE(spy->count(), v.emissions.size());
            for (int e = 0; e < spy->count(); ++e) {
                const QList<QVariant> args = spy->at(e);
                QCOMPARE(args.size(), v.emissions.at(e).size());
                for (int a = 0; a < args.size(); ++a) {
                    const QString actual = argText(args.at(a));
                    QVERIFY2(sameArg(actual, v.emissions.at(e).at(a)),
                             qPrintable(QStringLiteral("emission %1 argument %2: got %3, expected %4")
                                            .arg(e).arg(a).arg(actual, v.emissions.at(e).at(a))));
                }
            }
        }
        QCOMPARE(log.lines(), v.logs);
    }

    // taskCmdProcess (the slot the worker drives) decodes exactly like cmdProcess.
    void taskCmdProcessMatchesCmdProcess()
    {
        UiprocVideo_Desktop video;
        QSignalSpy spy(&video, &UiprocVideo_Desktop::pushLocalIP);
        video.taskCmdProcess(rec(0x89, 10, 0, 0, 7));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("10.0.0.7"));
    }

    // The log line is written before the signal reaches the screens.
    void logBeforeSignal()
    {
        UiprocVideo_Desktop video;
        CategoryCapture log("cs.log");
        QStringList seenAtEmit;
        connect(&video, &UiprocVideo_Desktop::pushUSBStatus, this, [&] { seenAtEmit = log.lines(); });
        video.cmdProcess(rec(0x68, 0xAD, 1));
        QCOMPARE(seenAtEmit, QStringList{P(" get usb")});
    }

    // Every row of the vocabulary has at least one vector, and the vector's
    // signal is the one the row names.
    void everyRowHasAVector()
    {
        const QVector<ReportRow> &table = UiprocVideo_Desktop::reportTable();
        std::set<int> covered;
        for (const Vector &v : all()) {
            const int row = UiprocVideo_Desktop::matchReport(v.rec);
            QVERIFY2(row >= 0, v.tag);
            QCOMPARE(QString::fromLatin1(table.at(row).signal), v.signal);
            covered.insert(row);
        }
        QStringList missing;
        for (int i = 0; i < table.size(); ++i)
            if (!covered.count(i))
                missing << QStringLiteral("CMD %1 DAT1 %2 DAT2 %3 DAT3 %4")
                               .arg(table.at(i).cmd, 0, 16)
                               .arg(table.at(i).dat1)
                               .arg(table.at(i).dat2)
                               .arg(table.at(i).dat3);
        QCOMPARE(missing, QStringList());
    }

    // Every signal a row names exists on the class.
    void rowsNameRealSignals()
    {
        const QMetaObject &mo = UiprocVideo_Desktop::staticMetaObject;
        QStringList names;
        for (int i = mo.methodOffset(); i < mo.methodCount(); ++i)
            if (mo.method(i).methodType() == QMetaMethod::Signal)
                names << QString::fromLatin1(mo.method(i).name());
        for (const ReportRow &r : UiprocVideo_Desktop::reportTable()) {
            const QString s = QString::fromLatin1(r.signal);
            QVERIFY2(s.isEmpty() || names.contains(s), qPrintable(s));
            QVERIFY2(!kSilent.contains(s), qPrintable(s));
        }
    }

    void signalsInOrder()
    {
        const QMetaObject &mo = UiprocVideo_Desktop::staticMetaObject;
        QStringList signalList, slotList;
        for (int i = mo.methodOffset(); i < mo.methodCount(); ++i) {
            const QMetaMethod m = mo.method(i);
            QCOMPARE(m.access(), QMetaMethod::Public);
            if (m.methodType() == QMetaMethod::Signal)
                signalList << declaration(m);
            else if (m.methodType() == QMetaMethod::Slot)
                slotList << declaration(m);
        }
        QCOMPARE(signalList.size(), 55);
        QCOMPARE(signalList, kSignals);
        QCOMPARE(slotList, (QStringList{"cmdProcess(model_Protocoldata pData)", "taskCmdProcess(model_Protocoldata pData)",
                                        "bizConnect()", "bizDisconnect()"}));
    }

    // Codes and sub-codes outside the vocabulary: nothing emitted, nothing logged.
    void ignored_data()
    {
        QTest::addColumn<model_Protocoldata>("record");
        QTest::newRow("unknown code") << rec(0x01, 0, 1, 2, 3);
        QTest::newRow("tally DAT1 1") << rec(0x00, 1, 0, 0, 0, QByteArray("0123456789ABC7EF"));
        QTest::newRow("0x68 unknown DAT1") << rec(0x68, 0x00, 1);
        QTest::newRow("power DAT2 0") << rec(0x68, 0xB0, 0, 5);
        QTest::newRow("power DAT2 3") << rec(0x68, 0xB0, 3, 5);
        QTest::newRow("0x69 other DAT1") << rec(0x69, 0x11);
        QTest::newRow("version DAT1 2") << rec(0x6A, 2, 1, 1);
        QTest::newRow("init input DAT2 1") << rec(0x78, 2, 1, 1, 3);
        QTest::newRow("0x78 DAT1 3") << rec(0x78, 3, 0);
        QTest::newRow("recording DAT2 2") << rec(0xC2, 1, 2, 1);
        QTest::newRow("0xC5 DAT1 4") << rec(0xC5, 4);
        QTest::newRow("0xC6 DAT1 2") << rec(0xC6, 2, 1);
        QTest::newRow("ptz DAT1 4 DAT3 3") << rec(0xC8, 4, 0, 3, 1);
        QTest::newRow("ptz DAT1 6") << rec(0xC8, 6, 0, 1, 1);
        QTest::newRow("0xC9 DAT2 3") << rec(0xC9, 1, 3, 1);
        QTest::newRow("0xC9 DAT1 0") << rec(0xC9, 0, 1, 1);
        QTest::newRow("0xD0 DAT1 13") << rec(0xD0, 13, 1);
        QTest::newRow("0xF0 DAT1 0xB4") << rec(0xF0, 0xB4, 1);
        QTest::newRow("0xF1 0xB5") << block(0xB5, 0, text0("x"));
        QTest::newRow("0xF1 0xB6") << block(0xB6, 0, text0("x"));
        QTest::newRow("0xF1 0xB7") << block(0xB7, 0, text0("x"));
        QTest::newRow("formats DAT2 5") << block(0xB3, 5, bytes({0, 0x80, 0x07, 0x38, 0x04, 60, 0}));
        QTest::newRow("bluetooth DAT2 2") << block(0xB4, 2, bytes({1, 1, 1, 2, 3, 4, 5, 6, 0}));
        QTest::newRow("ndi settings DAT2 5") << block(0xB8, 5, text0("x"));
    }
    void ignored()
    {
        QFETCH(model_Protocoldata, record);
        UiprocVideo_Desktop video;
        AllSignals spies(&video);
        CategoryCapture log("cs.log");
        QCOMPARE(UiprocVideo_Desktop::matchReport(record), -1);
        video.cmdProcess(record);
        QCOMPARE(spies.firedExcept(QString()), QStringList());
        QCOMPARE(log.lines(), QStringList());
    }

    // The five signals kept for the screens never fire, whatever arrives;
    // and no record, however its block is cut, brings the object down.
    void silentSignalsNeverFire()
    {
        // Logging off for the sweep: it only slows it down.
        Logger::instance().close();
        Logger::instance().setSwitch(0);
        QLoggingCategory::setFilterRules(QStringLiteral("cs.report.warning=false"));
        UiprocVideo_Desktop video;
        AllSignals spies(&video);
        const QByteArray blocks[] = {QByteArray(), bytes({3}), bytes({2}) + "A,b;c,d;", QByteArray(40, '\x01'),
                                     QByteArray(13, '\xff')};
        int handled = 0;
        for (int cmd = 0; cmd < 256; ++cmd) {
            for (int d1 = 0; d1 < 256; ++d1) {
                const bool known = UiprocVideo_Desktop::matchReport(rec(cmd, d1, 0)) >= 0
                    || UiprocVideo_Desktop::matchReport(rec(cmd, d1, 1, 1)) >= 0
                    || UiprocVideo_Desktop::matchReport(rec(cmd, d1, 2, 2)) >= 0
                    || UiprocVideo_Desktop::matchReport(rec(cmd, d1, 3, 1)) >= 0;
                if (!known && cmd != 0x01)
                    continue;
                for (int d2 = 0; d2 < 6; ++d2)
                    for (int d3 = 0; d3 < 3; ++d3)
                        for (const QByteArray &b : blocks)
                            for (int d4 : {0, 1, 0xff}) {
                                video.cmdProcess(rec(cmd, d1, d2, d3, d4, b));
                                ++handled;
                            }
            }
        }
        QVERIFY(handled > 1000);
        for (const QString &name : kSilent) {
            QVERIFY2(spies.spy(name), qPrintable(name));
            QCOMPARE(spies.spy(name)->count(), 0);
        }
        QLoggingCategory::setFilterRules(QString());
        Logger::instance().setSwitch(1);
    }

    // Disconnecting with no worker (no UiProc in this process) is harmless,
    // and connecting says why reports will not arrive.
    void bizConnectWithoutWorker()
    {
        UiprocVideo_Desktop video;
        CategoryCapture log("cs.log");
        video.bizDisconnect();
        video.bizConnect();
        QCOMPARE(log.lines(),
                 QStringList{"---UiprocVideo_Desktop::bizConnect() no command worker, reports are not received"});
    }
};

QTEST_GUILESS_MAIN(TstReportDispatch)
#include "tst_reportdispatch.moc"
