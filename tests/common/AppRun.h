#pragma once
// The real application with a probe document, against the simulator, in a
// test's sysroot: free UDP ports and shared-memory keys of its own, so
// tests can run side by side; everything both programs print is kept.
#include "TestSysroot.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QUdpSocket>

#include <sys/ipc.h>
#include <sys/sem.h>
#include <sys/shm.h>

class AppRun
{
public:
    // `keyBase` keeps different test programs' shared-memory keys apart.
    explicit AppRun(const TestSysroot &root, int keyBase = 0x6e000000)
        : m_base(keyBase + (QCoreApplication::applicationPid() % 0x7fff) * 8)
    {
        env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("CS_SYSROOT"), root.root());
        env.insert(QStringLiteral("CS_MEDIA_PORT"), QString::number(freeUdpPort()));
        env.insert(QStringLiteral("CS_LISTEN_PORT"), QString::number(freeUdpPort()));
        env.insert(QStringLiteral("CS_PREVIEW_SHM_KEY"), QString::number(m_base));
        env.insert(QStringLiteral("CS_PREVIEW_SEM_KEY"), QString::number(m_base + 1));
        env.insert(QStringLiteral("CS_AUDIO_SHM_KEY"), QString::number(m_base + 2));
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
        env.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("cs.*.debug=false\ncs.sim.info=true"));
    }
    ~AppRun()
    {
        for (QProcess *p : {&m_app, &m_sim}) {
            if (p->state() != QProcess::NotRunning) {
                p->terminate();
                if (!p->waitForFinished(5000))
                    p->kill();
                p->waitForFinished(2000);
            }
        }
        removeIpc();
    }

    // Set before starting; shared by the simulator and the application.
    QProcessEnvironment env;

    bool startSimulator(const QStringList &args = {QStringLiteral("--size"), QStringLiteral("320x180"),
                                                   QStringLiteral("--fps"), QStringLiteral("10"),
                                                   QStringLiteral("--seconds"), QStringLiteral("120")})
    {
        m_sim.setProcessEnvironment(env);
        m_sim.setProcessChannelMode(QProcess::MergedChannels);
        m_sim.start(QStringLiteral(CS_BINARY_DIR "/sim/cs-mediasim"), args);
        return m_sim.waitForStarted(5000);
    }

    // Runs the application on tests/<document> until the probe quits it;
    // returns what it printed (the probe's lines are also echoed).
    QString runApp(const QString &document, int timeoutMs = 90000, const QStringList &args = {})
    {
        QProcessEnvironment appEnv = env;
        appEnv.insert(QStringLiteral("CS_MAIN_QML"), QStringLiteral(CS_SOURCE_DIR "/tests/") + document);
        m_app.setProcessEnvironment(appEnv);
        m_app.setProcessChannelMode(QProcess::MergedChannels);
        m_app.start(QStringLiteral(CS_BINARY_DIR "/CSFrontEnd"), args);
        m_app.waitForFinished(timeoutMs);
        appOutput = QString::fromLocal8Bit(m_app.readAll());
        for (const QString &l : appOutput.split(QLatin1Char('\n')))
            if (l.contains(QStringLiteral("PROBE ")))
                qInfo().noquote() << l.mid(l.indexOf(QStringLiteral("PROBE ")));
        return appOutput;
    }

    // Ends the simulator and returns what it printed.
    QString stopSimulator()
    {
        m_sim.terminate();
        m_sim.waitForFinished(5000);
        simOutput += QString::fromLocal8Bit(m_sim.readAll());
        return simOutput;
    }

    // The last lines of both outputs, for a failure message.
    QByteArray tail() const
    {
        return (appOutput.right(3000) + QStringLiteral("\n--- simulator ---\n") + simOutput.right(1500)).toLocal8Bit();
    }

    // The first capture of `pattern` in the application's output.
    QString captured(const QString &pattern, int group = 1) const
    {
        return QRegularExpression(pattern, QRegularExpression::MultilineOption).match(appOutput).captured(group);
    }

    QString appOutput;
    QString simOutput;

    static quint16 freeUdpPort()
    {
        QUdpSocket s;
        s.bind(QHostAddress(QHostAddress::LocalHost), 0);
        return s.localPort();
    }

private:
    void removeIpc() const
    {
        for (int key : {m_base, m_base + 2}) {
            const int id = shmget(key, 0, 0);
            if (id >= 0)
                shmctl(id, IPC_RMID, nullptr);
        }
        const int id = semget(m_base + 1, 0, 0);
        if (id >= 0)
            semctl(id, 0, IPC_RMID);
    }

    const int m_base;
    QProcess m_sim;
    QProcess m_app;
};
