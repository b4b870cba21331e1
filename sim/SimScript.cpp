#include "SimScript.h"

#include "SimState.h"

#include <QFile>

namespace Sim {

namespace {

bool readInt(const QString &word, int base, int lo, int hi, int *out)
{
    bool ok = false;
    const int v = word.toInt(&ok, base);
    if (!ok || v < lo || v > hi)
        return false;
    *out = v;
    return true;
}

constexpr int kMaxScriptBytes = 1 << 20;
constexpr double kMaxSeconds = 7 * 24 * 3600.0;

} // namespace

Script Script::parse(const QString &text)
{
    Script s;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int n = 0; n < lines.size(); ++n) {
        const QString line = lines.at(n).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const QStringList w = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        auto fail = [&](const QString &why) {
            s.errors.append(QStringLiteral("script line %1: %2: \"%3\"").arg(n + 1).arg(why, line.left(80)));
        };
        bool ok = false;
        const double seconds = w.value(0).toDouble(&ok);
        if (!ok || !(seconds >= 0) || seconds > kMaxSeconds) {
            fail(QStringLiteral("bad time"));
            continue;
        }
        ScriptEvent e;
        e.atMs = int(seconds * 1000.0 + 0.5);
        e.line = n + 1;
        const QString verb = w.value(1).toLower();
        const int argc = w.size() - 2;
        bool good = false;
        if ((verb == QLatin1String("plug") || verb == QLatin1String("unplug")) && argc == 1) {
            e.kind = verb == QLatin1String("plug") ? ScriptEvent::Plug : ScriptEvent::Unplug;
            good = readInt(w.at(2), 10, 0, kInputCount - 1, &e.args[0]);
        } else if ((verb == QLatin1String("usb") || verb == QLatin1String("typec")) && argc == 1) {
            e.kind = verb == QLatin1String("usb") ? ScriptEvent::Usb : ScriptEvent::TypeC;
            good = readInt(w.at(2), 10, 0, 255, &e.args[0]);
        } else if (verb == QLatin1String("stream") && argc == 2) {
            e.kind = ScriptEvent::Stream;
            good = readInt(w.at(2), 10, 0, kStreamChannels - 1, &e.args[0]) && readInt(w.at(3), 10, 0, 255, &e.args[1]);
        } else if (verb == QLatin1String("report") && argc >= 2 && argc <= 5) {
            e.kind = ScriptEvent::Report;
            good = true;
            for (int i = 0; i < argc; ++i) {
                QString word = w.at(2 + i);
                if (word.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
                    word = word.mid(2);
                good = good && word.size() <= 2 && readInt(word, 16, 0, 255, &e.args[size_t(i)]);
            }
        } else {
            fail(QStringLiteral("unknown event or wrong number of arguments"));
            continue;
        }
        if (!good) {
            fail(QStringLiteral("argument out of range"));
            continue;
        }
        s.events.append(e);
    }
    return s;
}

Script Script::load(const QString &fileName)
{
    QFile f(fileName);
    if (!f.open(QIODevice::ReadOnly)) {
        Script s;
        s.errors.append(QStringLiteral("script %1: cannot open: %2").arg(fileName, f.errorString()));
        return s;
    }
    const QByteArray bytes = f.read(kMaxScriptBytes + 1);
    if (bytes.size() > kMaxScriptBytes) {
        Script s;
        s.errors.append(QStringLiteral("script %1: larger than %2 bytes, not used").arg(fileName).arg(kMaxScriptBytes));
        return s;
    }
    return parse(QString::fromUtf8(bytes));
}

} // namespace Sim
