// The eth0 controller in a sysroot whose stand-ins journal every command:
// the exact sequences, the settings file, the gateway and address reports,
// refused addresses, and slots that return while their commands still run.
#include "Logger.h"
#include "LogTap.h"
#include "TestSysroot.h"
#include "UiprocNetwork.h"

#include <QtTest>

using Entries = QList<UiprocNetwork::AddressEntry>;
Q_DECLARE_METATYPE(Entries)

namespace {
Entries g_entries;
Entries fakeAddresses() { return g_entries; }
const Entries kEth0 = {{"lo", "127.0.0.1", "255.0.0.0"}, {"eth0", "192.168.0.100", "255.255.255.0"}};

const QString kMarker = QStringLiteral("/tmp/cs-network-hostile");
const QStringList kStaticCommands = {"/etc/init.d/S41dhcpcd stop",
                                     "ifconfig eth0 10.0.0.5 netmask 255.0.0.0 broadcast 192.168.0.255",
                                     "ifconfig eth0 down", "ifconfig eth0 up", "route add default gw 10.0.0.1"};
const QByteArray kStaticIni = "[eth0]\nisDHCP=false\naddress=10.0.0.5\nnetmask=255.0.0.0\ngateway=10.0.0.1\n";

void writeIni(const TestSysroot &root, const QByteArray &ini)
{
    if (!ini.isNull())
        QVERIFY(TestSysroot::writeFile(root.path("/usr/bin/config/CS_network.ini"), ini));
}

// Replaces a stand-in with a script that journals like it and then runs `body`.
void installScript(const TestSysroot &root, const QString &devicePath, const QByteArray &body)
{
    const QString file = root.path(devicePath);
    QFile::remove(file);
    QVERIFY(TestSysroot::writeFile(file, "#!/bin/sh\necho \"" + devicePath.section('/', -1).toUtf8()
                                             + " $*\" >> \"$CS_SYSROOT/commands.log\"\n" + body + "\n"));
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

QList<QVariantList> emitted(const QSignalSpy &spy) { return spy; }

QStringList finishedTexts(const QSignalSpy &spy)
{
    QStringList texts;
    for (const QList<QVariant> &args : spy)
        texts << args.at(0).toString() + ' ' + args.at(1).toString();
    return texts;
}
} // namespace

class TstNetwork : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        UiprocNetwork::setAddressSource(&fakeAddresses);
        Logger::instance().setSwitch(1);
        QFile::remove(kMarker);
    }
    void init() { g_entries = kEth0; }

    void applySequence_data()
    {
        QTest::addColumn<QByteArray>("ini"); // null: no file
        QTest::addColumn<QStringList>("page"); // setIpAddress's static values; empty: initNetwork
        QTest::addColumn<bool>("resolvIsFolder");
        QTest::addColumn<QStringList>("commands");
        QTest::addColumn<QStringList>("finished");
        const QStringList dhcp = {"/etc/init.d/S41dhcpcd start"}, page = {"10.0.0.5", "255.0.0.0", "10.0.0.1"};
        QTest::newRow("static from the page") << QByteArray() << page << false << kStaticCommands << QStringList{"0 10.0.0.5"};
        QTest::newRow("static, resolv.conf unwritable") << kStaticIni << QStringList() << true << kStaticCommands << QStringList{"-2 ", "0 10.0.0.5"};
        QTest::newRow("dhcp") << QByteArray("[eth0]\nisDHCP=true\n") << QStringList() << false << dhcp << QStringList{"0 192.168.0.100"};
        QTest::newRow("no switch: dhcp, static values ignored") << QByteArray(kStaticIni).replace("isDHCP=false\n", "") << QStringList()
                                                                << false << dhcp << QStringList{"0 192.168.0.100"};
    }
    void applySequence()
    {
        QFETCH(QByteArray, ini);
        QFETCH(QStringList, page);
        QFETCH(bool, resolvIsFolder);
        QFETCH(QStringList, commands);
        QFETCH(QStringList, finished);
        TestSysroot root;
        writeIni(root, ini);
        const QString resolv = root.path("/etc/resolv.conf");
        const QByteArray resolvBefore = TestSysroot::readFile(resolv);
        if (resolvIsFolder)
            QVERIFY(QFile::remove(resolv) && QDir().mkdir(resolv));
        UiprocNetwork network;
        QSignalSpy spy(&network, &UiprocNetwork::setIpFinished);
        if (page.isEmpty())
            network.initNetwork();
        else
            network.setIpAddress(0, page[0], page[1], page[2], false);
        QTRY_COMPARE_WITH_TIMEOUT(spy.count(), finished.size(), 10000);
        QTest::qWait(50); // nothing after the last one
        QCOMPARE(finishedTexts(spy), finished);
        QCOMPARE(root.commands(), commands);
        if (!resolvIsFolder) // written for a static address only
            QCOMPARE(TestSysroot::readFile(resolv), commands == kStaticCommands ? QByteArray(UiprocNetwork::kResolvConf) : resolvBefore);
        if (!page.isEmpty())
            QCOMPARE(TestSysroot::readFile(root.path("/usr/bin/config/CS_network.ini")),
                     QByteArray("[eth0]\naddress=10.0.0.5\ngateway=10.0.0.1\nisDHCP=false\nnetmask=255.0.0.0\n"));
    }

    void report_data()
    {
        QTest::addColumn<QByteArray>("table"); // "route -n"; null: the sysroot's stand-in answers
        QTest::addColumn<QByteArray>("ini");
        QTest::addColumn<Entries>("entries");
        QTest::addColumn<QString>("address");   // getIpAddress()
        QTest::addColumn<QStringList>("report"); // showIpAddress; empty: none
        QTest::addColumn<bool>("dhcp");
        const QByteArray head = "Kernel IP routing table\nDestination     Gateway         Genmask         Flags Metric Ref    Use Iface\n";
        const QByteArray net = "192.168.0.0     0.0.0.0         255.255.255.0   U     0      0        0 eth0\n";
        const QByteArray dhcpIni = "[eth0]\nisDHCP=true\n";
        const QString a = "192.168.0.100", m = "255.255.255.0";
        const UiprocNetwork::AddressEntry v6 = {"eth0", "fe80::1%eth0", "ffff:ffff:ffff:ffff::"};
        QTest::newRow("stand-in, no file") << QByteArray() << QByteArray() << kEth0 << a << QStringList{a, m, "192.168.0.1"} << true;
        QTest::newRow("two eth0 gateways: the last") << head + "0.0.0.0         10.0.0.1        0.0.0.0         UG    0      0        0 eth0\n" + net
                + "10.9.0.0        10.0.0.9        255.255.0.0     UG    0      0        0 eth0\n" << kStaticIni << kEth0 << a << QStringList{a, m, "10.0.0.9"} << false;
        QTest::newRow("no eth0 route") << head + "0.0.0.0         10.0.0.1        0.0.0.0         UG    0      0        0 wlan0\n" << kStaticIni << kEth0 << a
                                       << QStringList{a, m, "0.0.0.0"} << false;
        QTest::newRow("eth0 without G") << head + net << dhcpIni << kEth0 << a << QStringList{a, m, "0.0.0.0"} << true;
        QTest::newRow("loopback and IPv6 only") << QByteArray() << dhcpIni
                                                << Entries{{"lo", "127.0.0.1", "255.0.0.0"}, {"lo", "::1", "ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff"}, v6}
                                                << "X.X.X.X" << QStringList() << true;
        QTest::newRow("IPv6 first, two IPv4: last taken, first reported") << QByteArray() << dhcpIni
                << Entries{v6, {"eth0", "10.1.1.2", m}, {"eth0", "10.1.1.3", m}} << "10.1.1.3" << QStringList{"10.1.1.2", m, "192.168.0.1"} << true;
    }
    void report()
    {
        QFETCH(QByteArray, table);
        QFETCH(QByteArray, ini);
        QFETCH(Entries, entries);
        QFETCH(QString, address);
        QFETCH(QStringList, report);
        QFETCH(bool, dhcp);
        g_entries = entries;
        TestSysroot root;
        writeIni(root, ini);
        if (!table.isNull()) {
            QVERIFY(TestSysroot::writeFile(root.path("/table"), table));
            installScript(root, "/bin/route", "cat \"$CS_SYSROOT/table\"");
        }
        CategoryCapture log;
        UiprocNetwork network;
        QCOMPARE(network.getIpAddress(), address);
        QVERIFY(log.contains("----------getIpAddress=" + address));
        QSignalSpy spy(&network, &UiprocNetwork::showIpAddress);
        QSignalSpy sw(&network, &UiprocNetwork::sigGetDHCPSwitchStatus);
        network.getIpAddress(0);
        QCOMPARE(emitted(sw), QList<QVariantList>{{dhcp}}); // at once, before the table comes
        // The table is logged as it is read; the report follows at once.
        QTRY_VERIFY_WITH_TIMEOUT(log.lines().filter("Kernel IP routing table").size() == 1, 5000);
        QList<QVariantList> expected;
        if (!report.isEmpty())
            expected << QVariantList{report[0], report[1], report[2]};
        QCOMPARE(emitted(spy), expected);
        QCOMPARE(root.commands(), QStringList{"route -n"});
    }

    void hostileAddressRunsNothing_data()
    {
        QTest::addColumn<int>("field"); // 0 address, 1 netmask, 2 gateway
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("fromFile");
        // Each value once, from the page and the file in turn, in each field in turn.
        const QStringList values = {"10.0.0.5;touch " + kMarker, "$(touch " + kMarker + ")", "`touch " + kMarker + "`",
                                    "10.0.0.5\ntouch " + kMarker, "10.0.0.256", "010.0.0.5", ""};
        for (int i = 0; i < values.size(); ++i)
            QTest::addRow("%s %d, field %d", i % 2 ? "file" : "page", i, i % 3) << i % 3 << values[i] << bool(i % 2);
    }
    void hostileAddressRunsNothing()
    {
        QFETCH(int, field);
        QFETCH(QString, value);
        QFETCH(bool, fromFile);
        TestSysroot root;
        QStringList config = {"10.0.0.5", "255.0.0.0", "10.0.0.1"};
        config[field] = value;
        const QString iniFile = root.path("/usr/bin/config/CS_network.ini");
        if (fromFile) {
            QSettings ini(iniFile, QSettings::IniFormat);
            ini.setValue("eth0/isDHCP", false);
            ini.setValue("eth0/address", config[0]);
            ini.setValue("eth0/netmask", config[1]);
            ini.setValue("eth0/gateway", config[2]);
        }
        const QByteArray iniBefore = TestSysroot::readFile(iniFile);
        UiprocNetwork network;
        QSignalSpy spy(&network, &UiprocNetwork::setIpFinished);
        if (fromFile)
            network.initNetwork();
        else
            network.setIpAddress(0, config[0], config[1], config[2], false);
        QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, 5000);
        QCOMPARE(finishedTexts(spy), QStringList{"-1 "});
        QCOMPARE(root.commands(), QStringList());
        QCOMPARE(TestSysroot::readFile(iniFile), iniBefore);
        QVERIFY(!QFile::exists(kMarker) && !QFile::exists(root.path(kMarker)));
    }

    void refusalsLoggedOncePerSecond()
    {
        TestSysroot root;
        CategoryCapture log;
        UiprocNetwork network;
        QTest::qWait(1100); // the previous test's line has aged
        for (int i = 0; i < 50; ++i)
            network.setIpAddress(0, "1.2.3.4;reboot", "255.0.0.0", "10.0.0.1", false);
        QCOMPARE(log.lines().filter("is not a dotted IPv4 address").size(), 1);
        QTest::qWait(1100);
        network.setIpAddress(0, "10.0.0.5", "255.0.0.x", "10.0.0.1", false);
        const QStringList lines = log.lines().filter("is not a dotted IPv4 address");
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[1], QString("UiprocNetwork::setIpAddress netmask \"255.0.0.x\" is not a dotted IPv4 address, nothing saved or run"
                                   " (49 more refused since the last such line)"));
    }

    void slotsReturnWhileCommandsRun_data()
    {
        QTest::addColumn<int>("slot");
        QTest::newRow("initNetwork") << 0;
        QTest::newRow("setIpAddress") << 1;
        QTest::newRow("getIpAddress(0)") << 2;
    }
    void slotsReturnWhileCommandsRun()
    {
        QFETCH(int, slot);
        TestSysroot root;
        installScript(root, "/etc/init.d/S41dhcpcd", "sleep 2");
        installScript(root, "/bin/route", "sleep 2; echo '0.0.0.0 10.0.0.1 0.0.0.0 UG 0 0 0 eth0'");
        UiprocNetwork network;
        QSignalSpy report(&network, &UiprocNetwork::showIpAddress);
        QSignalSpy finished(&network, &UiprocNetwork::setIpFinished);
        QElapsedTimer clock;
        clock.start();
        slot == 0 ? network.initNetwork() : slot == 1 ? network.setIpAddress(0, "", "", "", true) : network.getIpAddress(0);
        const qint64 returned = clock.elapsed();
        QVERIFY2(returned < 500, qPrintable(QString("returned after %1 ms").arg(returned)));
        QTRY_COMPARE_WITH_TIMEOUT((slot == 2 ? report : finished).count(), 1, 10000);
        QVERIFY2(clock.elapsed() >= 2000, "the stand-in's sleep was waited for");
    }
};

QTEST_GUILESS_MAIN(TstNetwork)
#include "tst_network.moc"
