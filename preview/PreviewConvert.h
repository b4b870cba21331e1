#pragma once
// Packed RGB888 rows to 32-bit 0xffRRGGBB pixels (QImage::Format_RGB32), the
// format the scene graph uploads without a further conversion.
#include <cstddef>
#include <cstdint>

namespace PreviewConvert {

// srcStride: bytes from one source row to the next (width * 3 when packed).
// dstStride: bytes from one destination row to the next.
// Nothing past the last source pixel is read.
void rgb888ToRgb32(const uint8_t *src, size_t srcStride, uint8_t *dst, size_t dstStride, int width,
                   int height);

// The plain per-pixel version, also used for row tails.
void rgb888ToRgb32Scalar(const uint8_t *src, size_t srcStride, uint8_t *dst, size_t dstStride,
                         int width, int height);

} // namespace PreviewConvert
