#include "canvas/grey_bitmap.h"

#include <array>
#include <cstdint>
#include <cstring>

#include <QImage>

namespace orvane {
namespace {

constexpr std::uint32_t headSize = 54;
constexpr std::uint32_t infoSize = 40;

// Numbers of a file, the lowest byte first.
class Head {
 public:
  Head& add(std::uint32_t number, int bytes = 4) {
    for (; bytes > 0; --bytes, number >>= 8) bytes_ += static_cast<char>(number & 0xFF);
    return *this;
  }
  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_ = "BM";
};

std::string headOf(const QImage& picture, std::uint32_t pixelBytes) {
  const auto number = [](int value) { return static_cast<std::uint32_t>(value); };
  Head head;
  head.add(headSize + pixelBytes).add(0).add(headSize).add(infoSize);
  head.add(number(picture.width())).add(number(picture.height())).add(1, 2).add(24, 2).add(0).add(pixelBytes);
  head.add(number(picture.dotsPerMeterX())).add(number(picture.dotsPerMeterY())).add(0).add(0);
  return head.bytes();
}

// Processors that can place the bytes of a vector anew do so; the compiler has another way for the others.
#ifdef __x86_64__
#define ORVANE_BY_VECTORS __attribute__((target_clones("ssse3", "default")))
#else
#define ORVANE_BY_VECTORS
#endif

// Each grey three times.
ORVANE_BY_VECTORS void spread(const uchar* greys, std::size_t count, char* pixels) {
  using Sixteen = uchar __attribute__((vector_size(16)));
  std::size_t i = 0;
  for (Sixteen g; i + sizeof g <= count; i += sizeof g, pixels += 3 * sizeof g) {
    std::memcpy(&g, greys + i, sizeof g);
    const std::array<Sixteen, 3> three = {
        __builtin_shufflevector(g, g, 0, 0, 0, 1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4, 5),
        __builtin_shufflevector(g, g, 5, 5, 6, 6, 6, 7, 7, 7, 8, 8, 8, 9, 9, 9, 10, 10),
        __builtin_shufflevector(g, g, 10, 11, 11, 11, 12, 12, 12, 13, 13, 13, 14, 14, 14, 15, 15, 15)};
    std::memcpy(pixels, &three, sizeof three);
  }
  for (; i < count; ++i, pixels += 3) std::memset(pixels, greys[i], 3);
}

}  // namespace

// The lowest row comes first, and zeros fill up the last four bytes of each.
std::string greyBitmap(const QImage& picture) {
  const auto width = static_cast<std::size_t>(picture.width());
  const std::size_t rowSize = (width * 3 + 3) / 4 * 4;
  const std::size_t size = rowSize * static_cast<std::size_t>(picture.height());
  std::string bytes = headOf(picture, static_cast<std::uint32_t>(size));
  bytes.reserve(headSize + size);
  std::string row(rowSize, '\0');
  for (int y = picture.height() - 1; y >= 0; --y) {
    spread(picture.constScanLine(y), width, row.data());
    bytes += row;
  }
  return bytes;
}

}  // namespace orvane
