#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

#include <QImage>

#include "canvas/qt_canvas.h"
#include "canvas/qt_pictures.h"
#include "surface/failure.h"
#include "tests/canvas/gui.h"

namespace orvane::test {
namespace {

[[maybe_unused]] const auto* const gui = ::testing::AddGlobalTestEnvironment(new Gui);

constexpr std::array<float, 3> sizes{8, 9, 10};

std::unique_ptr<Canvas> canvas(float points = 10, const char* picture = "recto") {
  auto opened = QtPictures().open(picture);
  opened->setFont("Times New Roman", points);
  return opened;
}

unsigned number(const std::string& bytes, std::size_t offset, int size) {
  unsigned value = 0;
  while (size-- > 0) value = value << 8 | static_cast<unsigned char>(bytes.at(offset + static_cast<std::size_t>(size)));
  return value;
}

TEST(Pictures, AreTheStoredOnesAndDecodedOnce) {
  const auto one = canvas();
  const auto other = canvas();
  EXPECT_EQ(image(*one).constBits(), image(*other).constBits());
  one->print("Luc", 2640, 1215);
  EXPECT_NE(one->bitmap(), other->bitmap());
  EXPECT_THROW(QtPictures().open("logo"), Failure);
}

TEST(Bitmap, Has24BitsAt96DotsPerInch) {
  for (const auto& [name, width, height] : {std::tuple{"recto", 660U, 1028U}, std::tuple{"verso", 657U, 1024U}}) {
    const auto sheet = canvas(10, name);
    sheet->print("Luc", 2640, 1215);
    EXPECT_EQ(sheet->width(), 15 * static_cast<float>(width));
    EXPECT_EQ(sheet->height(), 15 * static_cast<float>(height));
    const std::string bytes = sheet->bitmap();
    EXPECT_EQ(bytes.size(), 54 + std::size_t{height} * ((width * 3 + 3) / 4 * 4));
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    // Offset and size of a number of the head, and what it must be: sizes, bits, no compression, pixels per metre.
    for (const auto& [offset, size, expected] :
         std::initializer_list<std::tuple<std::size_t, int, std::size_t>>{{2, 4, bytes.size()},
                                                                          {10, 4, 54},
                                                                          {18, 4, width},
                                                                          {22, 4, height},
                                                                          {28, 2, 24},
                                                                          {30, 4, 0},
                                                                          {38, 4, 3780},
                                                                          {42, 4, 3780}})
      EXPECT_EQ(number(bytes, offset, size), expected) << offset;
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(bytes)).convertToFormat(QImage::Format_Grayscale8),
              image(*sheet));
  }
}

TEST(Measures, WordsAndBlanksAddUpToTheirLineInWholePixels) {
  const std::string line = "AVEC Wagons, Tyrol : fi « élève » d’un To. V.A.";
  for (const float points : sizes) {
    const auto sheet = canvas(points);
    float sum = 0;
    for (std::size_t start = 0; start < line.size();) {
      const auto end = std::min(line.find(' ', start), line.size());
      sum += sheet->TextWidth(line.substr(start, end - start)) + (end < line.size() ? sheet->TextWidth(" ") : 0);
      start = end + 1;
    }
    EXPECT_EQ(sheet->TextWidth(line), sum);
    EXPECT_EQ(sum, 15 * std::round(sum / 15));
    EXPECT_EQ(sheet->TextWidth(""), 0);
    EXPECT_EQ(sheet->TextHeight(""), sheet->TextHeight("Åg"));
    EXPECT_EQ(sheet->TextWidth(line + "   "), sum + 3 * sheet->TextWidth(" "));
  }
}

// Texts of each character that a sheet may get from western data, between others, and of some that Qt has to shape.
std::vector<std::string> textsOfAllKinds() {
  std::vector<std::string> texts = {"AVEC fi fl ffi « élève » d’un To.", "fi\tsoft\u00ADhyphen", "n\u0303 李 ẞ", "𝒪 ∑"};
  const QString signs = "–—‘’‚“”„†‡•…‰‹›€™";
  const int latin = 0x180;
  for (int i = 0x20; i < latin + signs.size(); ++i) {
    const QChar character = i < latin ? QChar(i) : signs[i - latin];
    texts.push_back(QString("%1fA%1%1j").arg(character).toStdString());
  }
  return texts;
}

// A canvas in colour leaves all texts to Qt.
TEST(Glyphs, MakeTheVeryBitmapsThatQtMakes) {
  const QImage paper = image(*canvas());
  ASSERT_EQ(paper.format(), QImage::Format_Grayscale8);
  const QImage part = paper.copy(0, 0, 100, 100);
  for (const float points : sizes)
    for (const auto& text : textsOfAllKinds()) {
      QtCanvas grey(part), colour(part.convertToFormat(QImage::Format_RGB32));
      for (QtCanvas* each : {&grey, &colour}) {
        each->setFont("", points);
        for (const auto& [x, y] : {std::pair{150.F, 450.F}, {-60.F, -60.F}, {1400.F, 1400.F}, {-9000.F, 20000.F}})
          each->print(text, x, y);
      }
      EXPECT_EQ(grey.TextWidth(text), colour.TextWidth(text)) << text;
      EXPECT_EQ(grey.bitmap(), colour.bitmap()) << text << " at " << points;
    }
}

}  // namespace
}  // namespace orvane::test
