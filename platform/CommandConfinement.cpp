#include "CommandConfinement.h"

#include "Platform.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <vector>

namespace {

// Regular built-ins that act on other processes. A function of the same
// name takes precedence over a regular built-in in a POSIX shell, so each
// becomes a call of the sysroot's program. Special built-ins (exec, ., eval,
// trap) cannot be shadowed; what they open or run is rewritten like any text.
const char *const kShadowedBuiltins[] = {"kill"};

// Where the value of an argument such as "if=/dev/x" or "--file=/x" starts.
const QRegularExpression &optionPrefix()
{
    static const QRegularExpression re(QStringLiteral("\\A-{0,2}[A-Za-z0-9_][A-Za-z0-9_.-]*=(?=/)"));
    return re;
}

// Stands for the value of an expansion ($x, $(...)) inside a word's value.
const QChar kExpansion(1);

enum Quote : char { Unquoted, Single, Double, Escaped, Expansion };

struct Word
{
    QString raw;           // as written, inner $(...) already confined
    QString value;         // after quote removal
    std::vector<int> at;   // offset in raw of each value character
    std::vector<Quote> how;
    bool glob = false;     // an unquoted * ? [
    void add(QChar c, Quote q, int rawOffset)
    {
        value += c;
        how.push_back(q);
        at.push_back(rawOffset);
    }
    bool literal() const { return !glob && !value.contains(kExpansion); }
};

// One pass over a command text with just enough of the POSIX shell grammar
// to tell words, quotes, operators, comments and heredocs apart.
class Rewriter
{
public:
    Rewriter(const QString &text, const QString &root)
        : s(text), n(text.size()), root(root), canonicalRoot(QFileInfo(root).canonicalFilePath())
    {
    }
    QString run() { return list(false); }
    QString error;

private:
    enum class Target { None, Write, Other, Heredoc };

    QString list(bool nested)
    {
        QString out;
        Target target = Target::None;
        int depth = 0;
        while (i < n && error.isEmpty()) {
            const QChar c = s.at(i);
            if (c == QLatin1Char(' ') || c == QLatin1Char('\t')) {
                out += c;
                ++i;
            } else if (c == QLatin1Char('\n')) {
                out += c;
                ++i;
                heredocBodies(out);
            } else if (c == QLatin1Char('#')) { // a comment: words are read whole, so this starts one
                const int end = lineEnd(i);
                out += s.midRef(i, end - i);
                i = end;
            } else if (c == QLatin1Char(')') && nested && depth == 0) {
                return out;
            } else if (QStringLiteral(";&|()").contains(c)) {
                depth += c == QLatin1Char('(') ? 1 : c == QLatin1Char(')') ? -1 : 0;
                out += c;
                ++i;
                target = Target::None;
            } else if (c == QLatin1Char('<') || c == QLatin1Char('>')) {
                target = redirection(out);
            } else {
                const Word w = word();
                if (error.isEmpty())
                    out += place(w, target);
                target = Target::None;
            }
        }
        if (nested && error.isEmpty())
            error = QStringLiteral("unbalanced $(");
        return out;
    }

    Target redirection(QString &out)
    {
        static const char *const ops[] = {"<<-", "<<", "<>", "<&", ">>", ">|", ">&", "<", ">"};
        for (const char *op : ops) {
            const QLatin1String o(op);
            if (!s.midRef(i).startsWith(o))
                continue;
            out += o;
            i += o.size();
            stripTabs = o == QLatin1String("<<-");
            if (o.startsWith(QLatin1String("<<")))
                return Target::Heredoc;
            return o.endsWith(QLatin1Char('&')) || o == QLatin1String("<") ? Target::Other : Target::Write;
        }
        return Target::None;
    }

    // Heredoc bodies are data for the command: copied as written.
    void heredocBodies(QString &out)
    {
        for (const auto &[delimiter, strip] : pending) {
            while (i < n) {
                const int end = lineEnd(i);
                QString line = s.mid(i, end - i);
                out += s.midRef(i, qMin(end + 1, n) - i);
                i = qMin(end + 1, n);
                while (strip && line.startsWith(QLatin1Char('\t')))
                    line.remove(0, 1);
                if (line == delimiter)
                    break;
            }
        }
        pending.clear();
    }

    Word word()
    {
        Word w;
        while (i < n && error.isEmpty()) {
            const QChar c = s.at(i);
            if (QStringLiteral(" \t\n;&|()<>").contains(c))
                break;
            if (c == QLatin1Char('\\')) {
                if (i + 1 < n && s.at(i + 1) != QLatin1Char('\n'))
                    w.add(s.at(i + 1), Escaped, w.raw.size());
                w.raw += s.midRef(i, 2);
                i += 2;
            } else if (c == QLatin1Char('\'')) {
                const int end = s.indexOf(QLatin1Char('\''), i + 1);
                if (end < 0) {
                    error = QStringLiteral("unbalanced quote");
                    break;
                }
                w.raw += c;
                for (++i; i < end; ++i) {
                    w.add(s.at(i), Single, w.raw.size());
                    w.raw += s.at(i);
                }
                w.raw += c;
                ++i;
            } else if (c == QLatin1Char('"')) {
                w.raw += c;
                for (++i; i < n && s.at(i) != QLatin1Char('"') && error.isEmpty();) {
                    const QChar d = s.at(i);
                    if (d == QLatin1Char('\\') && i + 1 < n) {
                        const QChar e = s.at(i + 1);
                        if (!QStringLiteral("$`\"\\\n").contains(e))
                            w.add(d, Double, w.raw.size());
                        if (e != QLatin1Char('\n'))
                            w.add(e, Double, w.raw.size());
                        w.raw += s.midRef(i, 2);
                        i += 2;
                    } else if (d == QLatin1Char('$')) {
                        dollar(w);
                    } else if (d == QLatin1Char('`')) {
                        error = QStringLiteral("backquote substitution (write $(...))");
                    } else {
                        w.add(d, Double, w.raw.size());
                        w.raw += d;
                        ++i;
                    }
                }
                if (i >= n && error.isEmpty())
                    error = QStringLiteral("unbalanced quote");
                w.raw += c;
                ++i;
            } else if (c == QLatin1Char('$')) {
                dollar(w);
            } else if (c == QLatin1Char('`')) {
                error = QStringLiteral("backquote substitution (write $(...))");
            } else {
                w.glob = w.glob || c == QLatin1Char('*') || c == QLatin1Char('?') || c == QLatin1Char('[');
                w.add(c, Unquoted, w.raw.size());
                w.raw += c;
                ++i;
            }
        }
        return w;
    }

    void dollar(Word &w)
    {
        const int start = i;
        const QStringRef next = s.midRef(i, 3);
        if (next.startsWith(QLatin1String("$(("))) { // arithmetic: "/" divides
            i = matching(i + 1, QLatin1Char('('), QLatin1Char(')'));
        } else if (next.startsWith(QLatin1String("$("))) {
            if (++nesting > kMaxNesting) {
                error = QStringLiteral("$(...) nested too deeply");
                return;
            }
            i += 2;
            const QString inner = list(true);
            --nesting;
            if (!error.isEmpty())
                return;
            ++i;
            w.add(kExpansion, Expansion, w.raw.size());
            w.raw += QStringLiteral("$(") + inner + QLatin1Char(')');
            return;
        } else if (next.startsWith(QLatin1String("${"))) {
            i = matching(i + 1, QLatin1Char('{'), QLatin1Char('}'));
        } else if (i + 1 < n && (s.at(i + 1).isLetter() || s.at(i + 1) == QLatin1Char('_'))) {
            for (++i; i < n && (s.at(i).isLetterOrNumber() || s.at(i) == QLatin1Char('_'));)
                ++i;
        } else if (i + 1 < n && (s.at(i + 1).isDigit() || QStringLiteral("@*#?-$!").contains(s.at(i + 1)))) {
            i += 2;
        } else { // a lone "$" is itself
            w.add(s.at(i), Unquoted, w.raw.size());
            w.raw += s.at(i++);
            return;
        }
        w.add(kExpansion, Expansion, w.raw.size());
        w.raw += s.midRef(start, i - start);
    }

    int matching(int from, QChar open, QChar close)
    {
        int depth = 0;
        for (int k = from; k < n; ++k) {
            depth += s.at(k) == open ? 1 : s.at(k) == close ? -1 : 0;
            if (depth == 0)
                return k + 1;
        }
        error = QStringLiteral("unbalanced ") + open;
        return n;
    }

    QString place(const Word &w, Target target)
    {
        if (target == Target::Heredoc) {
            pending.push_back({w.value, stripTabs});
            return w.raw;
        }
        int start = w.value.startsWith(QLatin1Char('/')) ? 0 : -1;
        const QRegularExpressionMatch option = optionPrefix().match(w.value);
        if (start < 0 && option.hasMatch()
            && std::all_of(w.how.begin(), w.how.begin() + option.capturedEnd(), [](Quote q) { return q == Unquoted; }))
            start = option.capturedEnd();
        QString out = w.raw;
        QString opened = w.value.isEmpty() ? QString() : root + QLatin1Char('/') + w.value; // relative to the sysroot
        if (start >= 0 && w.literal()) {
            opened = Platform::path(w.value.mid(start));
            out = w.raw.left(start ? w.at[size_t(start)] : 0) + Platform::shellQuote(opened);
        } else if (start >= 0) {
            const QString device = w.value.mid(start);
            if (device.split(QLatin1Char('/')).contains(QLatin1String(".."))) {
                error = QStringLiteral("\"..\" in a path built from expansions");
                return {};
            }
            if (!device.startsWith(root + QLatin1Char('/')))
                out.insert(w.at[size_t(start)], quotedRoot(w.how[size_t(start)]));
        }
        if (target == Target::Write && w.literal() && !leadsInside(opened))
            error = QStringLiteral("a write redirection that a link leads out of the sysroot");
        return out;
    }

    // The sysroot's path, written so that it joins the quoted text it is put in.
    QString quotedRoot(Quote context) const
    {
        if (context == Single)
            return QLatin1Char('\'') + Platform::shellQuote(root) + QLatin1Char('\'');
        if (context != Double)
            return Platform::shellQuote(root);
        QString escaped;
        for (const QChar c : root) {
            if (QStringLiteral("\\\"$`").contains(c))
                escaped += QLatin1Char('\\');
            escaped += c;
        }
        return escaped;
    }

    // Whether the file a redirection opens for writing stays inside the
    // sysroot once its links are followed (links to /dev/null are fine).
    bool leadsInside(QString file) const
    {
        if (file.isEmpty())
            return true;
        for (int hop = 0; hop < 40 && QFileInfo(file).isSymLink(); ++hop)
            file = QFileInfo(file).symLinkTarget();
        const QFileInfo info(file);
        QString real = info.exists() ? info.canonicalFilePath() : QFileInfo(info.absolutePath()).canonicalFilePath();
        if (real.isEmpty())
            return true; // nothing there to open: the redirection fails in the shell
        if (!info.exists())
            real += QLatin1Char('/') + info.fileName();
        return real == QLatin1String("/dev/null") || real == QLatin1String("/dev/zero") || real == canonicalRoot
            || real.startsWith(canonicalRoot + QLatin1Char('/'));
    }

    int lineEnd(int from) const
    {
        const int end = s.indexOf(QLatin1Char('\n'), from);
        return end < 0 ? n : end;
    }

    const QString s;
    const int n;
    const QString root;
    const QString canonicalRoot;
    int i = 0;
    int nesting = 0; // of $(...), each a level of recursion
    static constexpr int kMaxNesting = 32;
    bool stripTabs = false;
    std::vector<std::pair<QString, bool>> pending; // heredoc delimiters waiting for the next line
};

} // namespace

CommandConfinement::CommandConfinement()
    : m_root(Platform::sysroot())
{
}

QString CommandConfinement::shellScript(const QString &line, QString *error) const
{
    if (!isActive())
        return line;
    Rewriter rewriter(line, m_root);
    const QString text = rewriter.run();
    if (!rewriter.error.isEmpty()) {
        if (error)
            *error = rewriter.error;
        return QString();
    }
    // On the text's first line, so the shell's messages keep its line numbers.
    QString script = QStringLiteral("cd ") + Platform::shellQuote(m_root) + QStringLiteral(" || exit 126");
    for (const char *builtin : kShadowedBuiltins) {
        const QString name = QLatin1String(builtin);
        const QString program = QStandardPaths::findExecutable(name, Platform::programDirs());
        script += QStringLiteral("; ") + name + QStringLiteral("() { ")
            + (program.isEmpty() ? QStringLiteral("echo \"%1: not found\" >&2; return 127").arg(name)
                                 : Platform::shellQuote(program) + QStringLiteral(" \"$@\""))
            + QStringLiteral("; }");
    }
    return script + QStringLiteral("; ") + text;
}

QString CommandConfinement::word(const QString &word) const
{
    if (!isActive())
        return word;
    const int start = word.startsWith(QLatin1Char('/')) ? 0 : optionPrefix().match(word).capturedEnd();
    return start < 0 ? word : word.left(start) + Platform::path(word.mid(start));
}
