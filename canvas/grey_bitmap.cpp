#include "canvas/grey_bitmap.h"

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

// Writes a zero behind the last pixel, where that of the string stands, what fills up the row, or the next one.
void spread(const uchar* greys, int count, char* pixels) {
  for (int i = 0; i < count; ++i, pixels += 3) {
    const std::uint32_t pixel = greys[i] * 0x010101U;
    std::memcpy(pixels, &pixel, sizeof pixel);
  }
}

}  // namespace

// The lowest row comes first, and each fills up four bytes.
std::string greyBitmap(const QImage& picture) {
  const auto rowSize = static_cast<std::size_t>((picture.width() * 3 + 3) / 4 * 4);
  const std::size_t size = rowSize * static_cast<std::size_t>(picture.height());
  std::string bytes = headOf(picture, static_cast<std::uint32_t>(size));
  bytes.resize(headSize + size);
  char* row = bytes.data() + headSize;
  for (int y = picture.height() - 1; y >= 0; --y, row += rowSize)
    spread(picture.constScanLine(y), picture.width(), row);
  return bytes;
}

}  // namespace orvane
