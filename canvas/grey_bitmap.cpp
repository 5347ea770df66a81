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

void spread(const uchar* greys, std::size_t count, char* pixels) {
  for (std::size_t i = 0; i < count; ++i, pixels += 3) std::memset(pixels, greys[i], 3);
}

// Onto white. Most of the paper is white, and looked at by eights.
void spreadRow(const uchar* greys, std::size_t count, char* pixels) {
  constexpr std::uint64_t white = ~std::uint64_t{0};
  std::size_t i = 0;
  for (std::uint64_t eight = white; i + sizeof eight <= count; i += sizeof eight) {
    std::memcpy(&eight, greys + i, sizeof eight);
    if (eight != white) spread(greys + i, sizeof eight, pixels + 3 * i);
  }
  spread(greys + i, count - i, pixels + 3 * i);
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
    std::memset(row.data(), 0xFF, width * 3);
    spreadRow(picture.constScanLine(y), width, row.data());
    bytes += row;
  }
  return bytes;
}

}  // namespace orvane
