// The eth0 controller against a real kernel: the test runs itself again in a
// private network namespace, makes a veth pair whose near end is eth0 and
// whose far end sits in a second namespace with dnsmasq on it, and links the
// real ifconfig and route into the sysroot. Nothing leaves the namespaces;
// every wait is bounded. Without namespaces every case skips.
#include "TestSysroot.h"
#include "UiprocNetwork.h"

#include <QtTest>

#include <cstdlib>
#include <unistd.h>
#include <vector>

namespace {
const char kChildMark[] = "CS_NETNS_CHILD";

QString tool(const QString &name)
{
    return QStandardPaths::findExecutable(name, {"/usr/sbin", "/sbin", "/usr/bin", "/bin"});
}

// A host tool run by the test itself (never by the product), its output back.
QString run(const QString &program, const QStringList &args)
{
    QProcess p;
    p.start(tool(program), args);
    p.waitForFinished(10000); // the destructor ends it if need be
    return QString::fromLocal8Bit(p.readAllStandardOutput() + p.readAllStandardError());
}

void writeScript(const QString &file, const QString &text)
{
    QFile::remove(file); // a link to the stand-in
    QVERIFY(TestSysroot::writeFile(file, text.toUtf8()));
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}
} // namespace

class TstNetworkNetns : public QObject
{
    Q_OBJECT
    QProcess m_peer; // the far end's namespace, running dnsmasq
    QTemporaryDir m_work;

    // The real tools in place of the stand-ins; the DHCP script starts a real client.
    void prepare(const TestSysroot &root)
    {
        for (const char *name : {"/bin/ifconfig", "/sbin/ifconfig", "/bin/route"}) {
            QFile::remove(root.path(name));
            QVERIFY(QFile::link(tool(QString(name).section('/', -1)), root.path(name)));
        }
        writeScript(root.path("/lease.sh"), QString("#!/bin/sh\ncase \"$1\" in\n"
                                                    "deconfig) %1 \"$interface\" 0.0.0.0 ;;\n"
                                                    "bound|renew) %1 \"$interface\" \"$ip\" netmask \"$subnet\"; [ -n \"$router\" ] && %2 add default gw \"$router\" ;;\n"
                                                    "esac\nexit 0\n").arg(tool("ifconfig"), tool("route")));
        writeScript(root.path("/etc/init.d/S41dhcpcd"),
                    QString("#!/bin/sh\necho \"/etc/init.d/S41dhcpcd $*\" >> \"$CS_SYSROOT/commands.log\"\n[ \"$1\" = start ] || exit 0\n"
                            "%1 eth0 up\nexec %2 20 %3 udhcpc -i eth0 -f -q -n -t 5 -T 1 -A 1 -s \"$CS_SYSROOT/lease.sh\"\n")
                        .arg(tool("ifconfig"), tool("timeout"), tool("busybox")));
    }

private slots:
    void initTestCase()
    {
        if (qEnvironmentVariable(kChildMark) != QLatin1String("1"))
            QSKIP("no private network namespace here (unshare -n as root or unshare -rn refused): the real-interface cases need one");
        QStringList missing;
        for (const char *name : {"ip", "ifconfig", "route", "dnsmasq", "busybox", "timeout", "unshare"})
            if (tool(name).isEmpty())
                missing << name;
        if (!missing.isEmpty())
            QSKIP(qPrintable("missing tools (scripts/install-deps.sh installs them): " + missing.join(' ')));
        QVERIFY(m_work.isValid());
        run("ip", {"link", "set", "lo", "up"});
        // The far end waits for its interface, addresses it and serves DHCP on it for at most 90 s.
        const QString peer = QString("echo ready; i=0; while ! %1 link show peer0 >/dev/null 2>&1; do i=$((i+1)); [ $i -gt 50 ] && exit 1; sleep 0.1; done; "
                                     "%1 link set lo up; %1 addr add 192.0.2.1/24 dev peer0; %1 link set peer0 up; "
                                     "exec %2 90 %3 --no-daemon --conf-file=/dev/null --interface=peer0 --bind-interfaces --port=0 --no-ping "
                                     "--dhcp-range=192.0.2.50,192.0.2.60,255.255.255.0,1h --dhcp-option=3,192.0.2.1 --user=root --group=root "
                                     "--dhcp-leasefile=%4/leases --pid-file=%4/pid --no-resolv --no-hosts --log-facility=-")
                                 .arg(tool("ip"), tool("timeout"), tool("dnsmasq"), m_work.path());
        m_peer.setProcessChannelMode(QProcess::MergedChannels);
        m_peer.start(tool("unshare"), {"-n", "/bin/sh", "-c", peer});
        QVERIFY(m_peer.waitForReadyRead(5000) && m_peer.readLine().startsWith("ready"));
        const QString made = run("ip", {"link", "add", "eth0", "type", "veth", "peer", "name", "peer0", "netns", QString::number(m_peer.processId())});
        QVERIFY2(made.isEmpty(), qPrintable(made));
        run("ip", {"link", "set", "eth0", "up"});
    }
    void cleanupTestCase()
    {
        m_peer.terminate(); // timeout passes it on to dnsmasq; the destructor kills what is left
        m_peer.waitForFinished(3000);
    }

    // A static apply, then a DHCP one that replaces its address with a lease.
    void applyReachesKernel_data()
    {
        QTest::addColumn<bool>("dhcp");
        QTest::addColumn<QString>("address"); // a pattern for the lease
        QTest::newRow("static") << false << "192\\.0\\.2\\.10";
        QTest::newRow("dhcp") << true << "192\\.0\\.2\\.(5\\d|60)";
    }
    void applyReachesKernel()
    {
        QFETCH(bool, dhcp);
        QFETCH(QString, address);
        TestSysroot root;
        prepare(root);
        const QByteArray resolv = TestSysroot::readFile(root.path("/etc/resolv.conf"));
        UiprocNetwork network;
        QSignalSpy finished(&network, &UiprocNetwork::setIpFinished);
        network.setIpAddress(0, "192.0.2.10", "255.255.255.0", "192.0.2.1", dhcp);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
        const QString ip = finished.at(0).at(1).toString();
        QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(address)).match(ip).hasMatch(), qPrintable(ip + '\n' + m_peer.readAll()));
        QCOMPARE(finished.at(0).at(0).toInt(), 0);
        QVERIFY2(run("ip", {"-4", "addr", "show", "dev", "eth0"}).contains("inet " + ip + "/24"), qPrintable(run("ip", {"addr"})));
        QVERIFY2(run("ip", {"route", "show", "default"}).contains("default via 192.0.2.1 dev eth0"), qPrintable(run("ip", {"route"})));
        QCOMPARE(network.getIpAddress(), ip);
        QCOMPARE(TestSysroot::readFile(root.path("/etc/resolv.conf")), dhcp ? resolv : QByteArray(UiprocNetwork::kResolvConf));
        if (dhcp)
            QVERIFY(TestSysroot::readFile(m_work.filePath("leases")).contains(ip.toUtf8()));
        QSignalSpy report(&network, &UiprocNetwork::showIpAddress);
        network.getIpAddress(0); // from the kernel's own routing table
        QTRY_COMPARE_WITH_TIMEOUT(report.count(), 1, 5000);
        QCOMPARE(report.at(0), QVariantList({ip, "255.255.255.0", "192.0.2.1"}));
    }
};

int main(int argc, char **argv)
{
    // Once: start again inside a new network namespace when the machine allows one
    // (as root a plain one, otherwise one in a user namespace).
    if (qEnvironmentVariableIsEmpty(kChildMark)) {
        const char *flag = geteuid() == 0 ? "-n" : "-rn";
        char self[4096] = {};
        if (std::system((std::string("unshare ") + flag + " true >/dev/null 2>&1").c_str()) == 0
            && readlink("/proc/self/exe", self, sizeof self - 1) > 0) {
            qputenv(kChildMark, "1");
            std::vector<char *> args = {const_cast<char *>("unshare"), const_cast<char *>(flag), self};
            args.insert(args.end(), argv + 1, argv + argc + 1); // with the closing null
            execvp("unshare", args.data());
        }
        qputenv(kChildMark, "0"); // here, every case skips
    }
    QCoreApplication app(argc, argv);
    TstNetworkNetns test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_network_netns.moc"
