// Stand-alone driver for fuzz targets built without libFuzzer: feeds every
// file of the given folders (or the given files) to the target once.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

static int runFile(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        return 1;
    }
    const QByteArray bytes = f.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()), size_t(bytes.size()));
    return 0;
}

int main(int argc, char **argv)
{
    int files = 0, failures = 0;
    for (int i = 1; i < argc; ++i) {
        const QString arg = QString::fromLocal8Bit(argv[i]);
        if (QFileInfo(arg).isDir()) {
            QDirIterator it(arg, QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext()) {
                failures += runFile(it.next());
                ++files;
            }
        } else {
            failures += runFile(arg);
            ++files;
        }
    }
    std::printf("replayed %d inputs, %d unreadable\n", files, failures);
    return failures == 0 && files > 0 ? 0 : 1;
}
