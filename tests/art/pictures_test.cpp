#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <stdexcept>

#include <QFile>
#include <QFontDatabase>
#include <QImage>

#include "sheet/art/render/paper.h"
#include "sheet/art/render/rendering.h"
#include "tests/canvas/gui.h"
#include "tests/support/source_folder.h"

using namespace orvane;

namespace {

const QString kFolder = QString::fromStdString(test::sourceFolder() / "sheet/art/");

const auto* const kGui = testing::AddGlobalTestEnvironment(new test::Gui);

// The greatest mean difference of two pictures within a square of ten pixels, in levels of grey: a letter that another
// version of the font library smooths otherwise stays far below 20, another letter or a moved rule goes above it.
double greatestDifference(const QImage& one, const QImage& other) {
  constexpr int kSide = 10;
  double greatest = 0;
  for (int top = 0; top < one.height(); top += kSide)
    for (int left = 0; left < one.width(); left += kSide) {
      int sum = 0;
      for (int y = top; y < std::min(top + kSide, one.height()); ++y)
        for (int x = left; x < std::min(left + kSide, one.width()); ++x)
          sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
      greatest = std::max(greatest, sum / double(kSide * kSide));
    }
  return greatest;
}
constexpr double kSameDrawing = 15;

TEST(Pictures, AreDrawnFromTheirSourcesAtTheirSizes) {
  for (const auto* family : {"Liberation Sans", "Liberation Sans Narrow", "Liberation Serif"})
    ASSERT_TRUE(QFontDatabase::families().contains(family)) << family;
  std::map<QString, QImage> drawn{{"recto.bmp", drawPage(kFolder + "recto.svg", kRectoSize)},
                                  {"verso.bmp", drawPage(kFolder + "verso.svg", kVersoSize)},
                                  {"logo.png", drawMark(kFolder + "logo.svg", kLogoSize)}};
  for (int side : kIconSides) drawn[iconFile(side)] = drawMark(kFolder + iconSource(side), {side, side});
  for (const auto& [file, image] : drawn) {
    const QImage kept(kFolder + file);
    ASSERT_EQ(kept.size(), image.size()) << file.toStdString();
    EXPECT_LT(greatestDifference(kept, image), kSameDrawing) << "draw it again, target art: " << file.toStdString();
    EXPECT_EQ(kept.hasAlphaChannel(), image.hasAlphaChannel()) << file.toStdString();
  }
}

TEST(Pictures, OfThePaperAreTheSameBytesAtEveryHour) {
  QFile kept(QString::fromStdString(test::sourceFolder() / "game/table/feuille.pdf"));
  ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
  EXPECT_TRUE(kept.readAll() == blankSheet(kFolder)) << "draw it again, target art";
}

TEST(Pictures, RefuseAPageOfAnotherSizeAndAMissingSource) {
  EXPECT_THROW(drawPage(kFolder + "recto.svg", kVersoSize), std::runtime_error);
  EXPECT_THROW(drawPage(kFolder + "nothing.svg", kRectoSize), std::runtime_error);
  EXPECT_THROW(drawMark(kFolder + "nothing.svg", kLogoSize), std::runtime_error);
}

}  // namespace
