#include "PreviewConvert.h"

#include <cstring>

#if defined(__ARM_NEON)
#include <arm_neon.h>
#elif defined(__x86_64__) || defined(__i386__)
#include <tmmintrin.h>
#define CS_HAVE_SSSE3_PATH 1
#endif

namespace PreviewConvert {

namespace {
inline void rowScalar(const uint8_t *s, uint32_t *d, int n)
{
    for (int x = 0; x < n; ++x, s += 3)
        d[x] = 0xff000000u | (uint32_t(s[0]) << 16) | (uint32_t(s[1]) << 8) | uint32_t(s[2]);
}

#if defined(CS_HAVE_SSSE3_PATH)
__attribute__((target("ssse3"))) void convertSsse3(const uint8_t *src, size_t srcStride,
                                                    uint8_t *dst, size_t dstStride, int width,
                                                    int height)
{
    // Four pixels (12 bytes) per 16-byte load: R,G,B -> B,G,R,0xff.
    const __m128i shuf = _mm_setr_epi8(2, 1, 0, -1, 5, 4, 3, -1, 8, 7, 6, -1, 11, 10, 9, -1);
    const __m128i alpha = _mm_set1_epi32(int(0xff000000u));
    for (int y = 0; y < height; ++y) {
        const uint8_t *s = src + size_t(y) * srcStride;
        uint8_t *d = dst + size_t(y) * dstStride;
        // The last 16-byte load reads 4 bytes past its 16 pixels: on the last
        // row keep two pixels in hand so nothing past the frame is touched.
        const int vecEnd = y + 1 < height ? width : width - 2;
        int x = 0;
        if ((reinterpret_cast<uintptr_t>(d) & 15) == 0) {
            // Streaming stores: the frame is far larger than the caches and
            // is read next by another thread, so skip reading the old
            // destination lines in and keep the caches for the source.
            for (; x + 16 <= vecEnd; x += 16, s += 48, d += 64) {
                __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i *>(s));
                __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i *>(s + 12));
                __m128i c = _mm_loadu_si128(reinterpret_cast<const __m128i *>(s + 24));
                __m128i e = _mm_loadu_si128(reinterpret_cast<const __m128i *>(s + 36));
                _mm_stream_si128(reinterpret_cast<__m128i *>(d), _mm_or_si128(_mm_shuffle_epi8(a, shuf), alpha));
                _mm_stream_si128(reinterpret_cast<__m128i *>(d + 16), _mm_or_si128(_mm_shuffle_epi8(b, shuf), alpha));
                _mm_stream_si128(reinterpret_cast<__m128i *>(d + 32), _mm_or_si128(_mm_shuffle_epi8(c, shuf), alpha));
                _mm_stream_si128(reinterpret_cast<__m128i *>(d + 48), _mm_or_si128(_mm_shuffle_epi8(e, shuf), alpha));
            }
        }
        for (; x + 16 <= vecEnd; x += 16, s += 48, d += 64) {
            __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i *>(s));
            __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i *>(s + 12));
            __m128i c = _mm_loadu_si128(reinterpret_cast<const __m128i *>(s + 24));
            __m128i e = _mm_loadu_si128(reinterpret_cast<const __m128i *>(s + 36));
            _mm_storeu_si128(reinterpret_cast<__m128i *>(d), _mm_or_si128(_mm_shuffle_epi8(a, shuf), alpha));
            _mm_storeu_si128(reinterpret_cast<__m128i *>(d + 16), _mm_or_si128(_mm_shuffle_epi8(b, shuf), alpha));
            _mm_storeu_si128(reinterpret_cast<__m128i *>(d + 32), _mm_or_si128(_mm_shuffle_epi8(c, shuf), alpha));
            _mm_storeu_si128(reinterpret_cast<__m128i *>(d + 48), _mm_or_si128(_mm_shuffle_epi8(e, shuf), alpha));
        }
        rowScalar(s, reinterpret_cast<uint32_t *>(d), width - x);
    }
    _mm_sfence(); // streaming stores visible before the frame is handed on
}

bool haveSsse3()
{
    static const bool have = __builtin_cpu_supports("ssse3");
    return have;
}
#endif
} // namespace

void rgb888ToRgb32Scalar(const uint8_t *src, size_t srcStride, uint8_t *dst, size_t dstStride,
                         int width, int height)
{
    for (int y = 0; y < height; ++y)
        rowScalar(src + size_t(y) * srcStride, reinterpret_cast<uint32_t *>(dst + size_t(y) * dstStride),
                  width);
}

void rgb888ToRgb32(const uint8_t *src, size_t srcStride, uint8_t *dst, size_t dstStride, int width,
                   int height)
{
#if defined(__ARM_NEON)
    for (int y = 0; y < height; ++y) {
        const uint8_t *s = src + size_t(y) * srcStride;
        uint8_t *d = dst + size_t(y) * dstStride;
        int x = 0;
        for (; x + 16 <= width; x += 16, s += 48, d += 64) {
            const uint8x16x3_t rgb = vld3q_u8(s);
            uint8x16x4_t bgra;
            bgra.val[0] = rgb.val[2];
            bgra.val[1] = rgb.val[1];
            bgra.val[2] = rgb.val[0];
            bgra.val[3] = vdupq_n_u8(0xff);
            vst4q_u8(d, bgra);
        }
        rowScalar(s, reinterpret_cast<uint32_t *>(d), width - x);
    }
#elif defined(CS_HAVE_SSSE3_PATH)
    if (haveSsse3()) {
        convertSsse3(src, srcStride, dst, dstStride, width, height);
        return;
    }
    rgb888ToRgb32Scalar(src, srcStride, dst, dstStride, width, height);
#else
    rgb888ToRgb32Scalar(src, srcStride, dst, dstStride, width, height);
#endif
}

} // namespace PreviewConvert
