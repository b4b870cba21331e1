// The RGB888 -> RGB32 pass: exact pixels for every width around the vector
// block size, and no read past the last source byte (guard page).
#include "PreviewConvert.h"

#include <QtTest/QtTest>

#include <sys/mman.h>
#include <unistd.h>

class TstPreviewConvert : public QObject
{
    Q_OBJECT

private slots:
    void exactPixels_data()
    {
        QTest::addColumn<int>("w");
        QTest::addColumn<int>("h");
        for (int w : {1, 2, 3, 4, 5, 15, 16, 17, 18, 31, 32, 33, 34, 47, 48, 50, 64, 100, 1279, 1920})
            for (int h : {1, 2, 3})
                QTest::addRow("%dx%d", w, h) << w << h;
    }
    void exactPixels()
    {
        QFETCH(int, w);
        QFETCH(int, h);
        const size_t n = size_t(w) * h * 3, page = size_t(sysconf(_SC_PAGESIZE));
        const size_t span = (n + page - 1) / page * page;
        // The source ends exactly at a page that cannot be read.
        auto *base = static_cast<uint8_t *>(mmap(nullptr, span + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        QVERIFY(base != MAP_FAILED);
        QCOMPARE(mprotect(base + span, page, PROT_NONE), 0);
        uint8_t *src = base + span - n;
        for (size_t i = 0; i < n; ++i)
            src[i] = uint8_t(i * 37 + 11);
        const size_t stride = size_t(w) * 4 + 8; // a destination stride wider than the row
        std::vector<uint8_t> dst(stride * h, 0xaa);
        PreviewConvert::rgb888ToRgb32(src, size_t(w) * 3, dst.data(), stride, w, h);
        for (int y = 0; y < h; ++y) {
            for (int x = 0; x < w; ++x) {
                const uint8_t *s = src + (size_t(y) * w + x) * 3;
                quint32 px;
                memcpy(&px, dst.data() + y * stride + x * 4, 4);
                QCOMPARE(px, 0xff000000u | (quint32(s[0]) << 16) | (quint32(s[1]) << 8) | s[2]);
            }
            QCOMPARE(dst[y * stride + size_t(w) * 4], uint8_t(0xaa)); // padding after the row is left alone
        }
        munmap(base, span + page);
    }
};

QTEST_GUILESS_MAIN(TstPreviewConvert)
#include "tst_preview_convert.moc"
