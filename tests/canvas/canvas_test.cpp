#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

#include <QFontInfo>
#include <QImage>

#include "canvas/qt_pictures.h"
#include "canvas/sheet_font.h"
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

// The pixels that a print changed.
QRect changed(const QImage& before, const QImage& after) {
  QRect ink;
  for (int y = 0; y < after.height(); ++y)
    for (int x = 0; x < after.width(); ++x)
      if (before.pixel(x, y) != after.pixel(x, y)) ink |= QRect(x, y, 1, 1);
  return ink;
}

TEST(Pictures, AreTheStoredOnesAndNoOthers) {
  EXPECT_EQ(canvas()->width(), 9900);
  EXPECT_EQ(canvas()->height(), 15420);
  EXPECT_EQ(canvas(10, "verso")->width(), 9855);
  EXPECT_EQ(canvas(10, "verso")->height(), 15360);
  EXPECT_THROW(QtPictures().open("logo"), Failure);
}

TEST(Pictures, EachCanvasIsPrintedOnAlone) {
  const auto printed = canvas();
  const auto other = canvas();
  EXPECT_EQ(image(*printed).constBits(), image(*other).constBits()) << "decoded more than once";
  printed->print("Luc", 2640, 1215);
  EXPECT_NE(printed->bitmap(), other->bitmap());
  EXPECT_EQ(other->bitmap(), canvas()->bitmap());
}

TEST(Bitmap, Has24BitsAt96DotsPerInch) {
  for (const auto& [name, width, height] : {std::tuple{"recto", 660U, 1028U}, std::tuple{"verso", 657U, 1024U}}) {
    const auto sheet = canvas(10, name);
    sheet->print("Luc", 2640, 1215);
    const std::string bytes = sheet->bitmap();
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(number(bytes, 2, 4), bytes.size());
    EXPECT_EQ(number(bytes, 10, 4), 54U);
    EXPECT_EQ(number(bytes, 18, 4), width);
    EXPECT_EQ(number(bytes, 22, 4), height);
    EXPECT_EQ(number(bytes, 28, 2), 24U);
    EXPECT_EQ(number(bytes, 30, 4), 0U) << "compressed";
    EXPECT_EQ(number(bytes, 38, 4), 3780U);
    EXPECT_EQ(number(bytes, 42, 4), 3780U);
    EXPECT_EQ(bytes.size(), 54 + std::size_t{height} * ((width * 3 + 3) / 4 * 4));
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(bytes)).convertToFormat(QImage::Format_RGB32), image(*sheet));
  }
}

TEST(Print, IsGreyOrBlackAndLiesWhereItWasMeasured) {
  for (const float points : sizes)
    for (const char* text : {"Peau épaisse", "AVATAR fi ffl", "Å çgj|Q_", "12"}) {
      const auto sheet = canvas(points);
      const QImage before = image(*sheet);
      sheet->print(text, 6495, 7560);
      const QRect ink = changed(before, image(*sheet));
      const QRect box(433, 504, qRound(sheet->TextWidth(text) / 15), qRound(sheet->TextHeight(text) / 15));
      ASSERT_FALSE(ink.isEmpty()) << text;
      EXPECT_TRUE(box.adjusted(-1, -1, 1, 1).contains(ink)) << text << " at " << points;
      EXPECT_GE(ink.right(), box.right() - 4) << text << " at " << points;
      for (int x = ink.left(); x <= ink.right(); ++x)
        for (int y = ink.top(); y <= ink.bottom(); ++y) {
          const QColor colour = image(*sheet).pixelColor(x, y);
          ASSERT_TRUE(colour.red() == colour.green() && colour.green() == colour.blue()) << "coloured edges";
        }
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
    EXPECT_EQ(sheet->TextWidth(line + "   "), sum + 3 * sheet->TextWidth(" "));
  }
}

TEST(Measures, ALineIsAsHighAsAnyTextAndAnEmptyOne) {
  const auto sheet = canvas(10);
  EXPECT_EQ(sheet->TextHeight(""), sheet->TextHeight("Åg"));
  EXPECT_NEAR(sheet->TextHeight(""), 216, 3);
  EXPECT_NEAR(canvas(9)->TextHeight(""), 199, 3);
  EXPECT_NEAR(canvas(8)->TextHeight(""), 183, 3);
}

TEST(Font, IsTheOneOfTheFormOrItsStandIn) {
  const QString family = QFontInfo(sheetFont("Times New Roman", 10)).family();
  EXPECT_TRUE(family == "Liberation Serif" || family == "Times New Roman") << family.toStdString();
  EXPECT_EQ(sheetFont("Times New Roman", 8).pixelSize(), 11);
  EXPECT_EQ(sheetFont("Times New Roman", 9).pixelSize(), 12);
  EXPECT_EQ(sheetFont("Times New Roman", 10).pixelSize(), 13);
}

}  // namespace
}  // namespace orvane::test
