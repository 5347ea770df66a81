#include <algorithm>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>

#include <QColor>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QRect>

#include "sheet/art/render/rendering.h"
#include "tests/art/boxes.h"
#include "tests/art/labels.h"

using namespace orvane;

namespace {

const QString kFolder = QStringLiteral(ORVANE_SOURCE_DIR "/sheet/art/");

// Letters are drawn with the fonts of the application object.
class Application : public testing::Environment {
 public:
  void SetUp() override { application_ = std::make_unique<QGuiApplication>(count_, arguments_); }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[9] = "pictures";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};
const auto* const kApplication = testing::AddGlobalTestEnvironment(new Application);

// What a side of the form must be.
struct Side {
  const char* name;
  QSize size;
};
void PrintTo(const Side& side, std::ostream* out) { *out << side.name; }

const Side kRecto{"recto", kRectoSize};
const Side kVerso{"verso", kVersoSize};

QString bitmapOf(const Side& side) { return kFolder + side.name + ".bmp"; }
QString sourceOf(const Side& side) { return kFolder + side.name + ".svg"; }

constexpr int kTwipsPerPixel = 15;

QRect pixelsOf(const FormBox& box) {
  return {box.left / kTwipsPerPixel, box.top / kTwipsPerPixel, box.width / kTwipsPerPixel, box.height / kTwipsPerPixel};
}

// The pixel columns of the rules of the skills, and the rows that they run over: the first and the one behind the last.
const std::set<int> kRules = {10, 38, 67, 222, 250, 278, 433, 462, 490, 645};
constexpr int kRulesTop = 1035 / kTwipsPerPixel;
constexpr int kRulesBottom = 7665 / kTwipsPerPixel;
// The thin rules across them: below the heading of the first column, and at the end.
const std::set<int> kCrossRules = {1335 / kTwipsPerPixel, kRulesBottom};

bool isWhite(const QImage& image, int x, int y) { return qGray(image.pixel(x, y)) == 255; }

// The first mark in the area outside the columns and rows, or an empty text.
std::string firstMark(const QImage& image, const QRect& area, const std::set<int>& columns = {},
                      const std::set<int>& rows = {}) {
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x)
      if (!columns.contains(x) && !rows.contains(y) && !isWhite(image, x, y))
        return std::to_string(x) + ", " + std::to_string(y);
  return {};
}

class SideTest : public testing::TestWithParam<Side> {};

INSTANTIATE_TEST_SUITE_P(Form, SideTest, testing::Values(kRecto, kVerso),
                         [](const auto& side) { return std::string(side.param.name); });

std::uint32_t littleEndian(const QByteArray& bytes, int offset, int count) {
  std::uint32_t value = 0;
  for (int i = count - 1; i >= 0; --i) value = value << 8 | static_cast<std::uint8_t>(bytes[offset + i]);
  return value;
}

TEST_P(SideTest, IsAnUncompressedBitmapOf24BitsAt96DotsPerInch) {
  QFile file(bitmapOf(GetParam()));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray head = file.read(54);
  ASSERT_EQ(head.size(), 54);
  EXPECT_EQ(head.left(2), "BM");
  EXPECT_EQ(littleEndian(head, 18, 4), static_cast<std::uint32_t>(GetParam().size.width()));
  EXPECT_EQ(littleEndian(head, 22, 4), static_cast<std::uint32_t>(GetParam().size.height()));
  EXPECT_EQ(littleEndian(head, 28, 2), 24u) << "bits per pixel";
  EXPECT_EQ(littleEndian(head, 30, 4), 0u) << "compression";
  EXPECT_EQ(littleEndian(head, 38, 4), 3780u) << "pixels per metre across";
  EXPECT_EQ(littleEndian(head, 42, 4), 3780u) << "pixels per metre down";
}

TEST_P(SideTest, IsGrey) {
  const QImage image(bitmapOf(GetParam()));
  ASSERT_EQ(image.size(), GetParam().size);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ASSERT_TRUE(qIsGray(image.pixel(x, y))) << "at " << x << ", " << y;
}

TEST(Recto, LeavesEveryBoxBlank) {
  const QImage image(bitmapOf(kRecto));
  for (const FormBox& box : kRectoBoxes) EXPECT_EQ(firstMark(image, pixelsOf(box)), "") << box.name;
}

// The boxes of the skills are a little larger than their cells and take in the rules around them.
TEST(Verso, LeavesEveryBoxBlankButForTheRulesOfTheSkills) {
  const QImage image(bitmapOf(kVerso));
  for (const FormBox& box : kVersoBoxes) {
    const bool ofSkills = box.top / kTwipsPerPixel < kRulesBottom;
    const std::string mark =
        ofSkills ? firstMark(image, pixelsOf(box), kRules, kCrossRules) : firstMark(image, pixelsOf(box));
    EXPECT_EQ(mark, "") << box.name;
  }
}

TEST(Verso, RulesTheSkillsAtTheirColumnsAndNowhereElse) {
  const QImage image(bitmapOf(kVerso));
  const int belowHeading = *kCrossRules.begin() + 1;
  for (int y = belowHeading; y < kRulesBottom; ++y) {
    std::set<int> marked;
    for (int x = 0; x < image.width(); ++x)
      if (!isWhite(image, x, y)) marked.insert(x);
    ASSERT_EQ(marked, kRules) << "row " << y;
  }
  for (int column : kRules)
    for (int y = kRulesTop; y < belowHeading; ++y) EXPECT_LT(qGray(image.pixel(column, y)), 200) << column << ", " << y;
  for (int x : kRules) EXPECT_TRUE(isWhite(image, x, kRulesBottom + 1)) << "the rules end above row " << kRulesBottom;
}

// Left of the equipment and above the foot there is a picture with many greys, not just a frame.
TEST(Verso, HasAnIllustrationLeftOfTheEquipment) {
  const QImage image(bitmapOf(kVerso));
  const QRect equipment = pixelsOf(kVersoBoxes.back());
  std::set<int> greys;
  int marked = 0;
  const QRect area(20, equipment.top(), 200, equipment.height());
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x) {
      greys.insert(qGray(image.pixel(x, y)));
      marked += !isWhite(image, x, y);
    }
  EXPECT_GT(greys.size(), 50u);
  EXPECT_GT(marked, area.width() * area.height() / 2);
}

// A label stands left of its box on the box's line, or above its box.
bool isNear(const QPointF& label, const QRect& box) {
  const bool beside =
      label.x() < box.left() && box.left() - label.x() < 175 && label.y() > box.top() && label.y() <= box.bottom() + 1;
  const bool above =
      label.y() <= box.top() && box.top() - label.y() < 20 && label.x() >= box.left() - 12 && label.x() < box.right();
  return beside || above;
}

template <class Boxes, class Labels>
void expectLabels(const Side& side, const Boxes& boxes, const Labels& labels) {
  const auto texts = textsOf(sourceOf(side));
  for (const FormBox& box : boxes) {
    const auto label = labels.find(box.name);
    ASSERT_NE(label, labels.end()) << box.name << " has no label";
    if (label->second.isEmpty()) continue;
    const auto [first, last] = texts.equal_range(label->second);
    EXPECT_TRUE(std::any_of(first, last, [&](const auto& text) { return isNear(text.second, pixelsOf(box)); }))
        << box.name << " lacks " << label->second.toStdString();
  }
}

TEST(Recto, HasALabelAtEveryBox) { expectLabels(kRecto, kRectoBoxes, kRectoLabels); }
TEST(Verso, HasALabelAtEveryBox) { expectLabels(kVerso, kVersoBoxes, kVersoLabels); }

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

TEST_P(SideTest, IsDrawnFromItsSource) {
  ASSERT_THAT(QFontDatabase::families(),
              testing::IsSupersetOf({QString("Liberation Sans"), QString("Liberation Sans Narrow")}));
  const QImage image(bitmapOf(GetParam()));
  ASSERT_EQ(image.size(), GetParam().size);
  EXPECT_LT(greatestDifference(image, drawPage(sourceOf(GetParam()), GetParam().size)), kSameDrawing)
      << "draw the pictures again: target art";
}

TEST(Rendering, RefusesAPageOfAnotherSizeAndAMissingSource) {
  EXPECT_THROW(drawPage(sourceOf(kRecto), kVersoSize), std::runtime_error);
  EXPECT_THROW(drawPage(kFolder + "nothing.svg", kRectoSize), std::runtime_error);
  EXPECT_THROW(drawMark(kFolder + "nothing.svg", kLogoSize), std::runtime_error);
}

TEST(Marks, AreDrawnFromTheirSourcesAtTheirSizes) {
  const QImage logo(kFolder + "logo.png");
  ASSERT_EQ(logo.size(), kLogoSize);
  EXPECT_LT(greatestDifference(logo, drawMark(kFolder + "logo.svg", kLogoSize)), kSameDrawing);
  for (int side : kIconSides) {
    const QImage icon(kFolder + iconFile(side));
    ASSERT_EQ(icon.size(), QSize(side, side)) << iconFile(side).toStdString();
    EXPECT_LT(greatestDifference(icon, drawMark(kFolder + iconSource(side), {side, side})), kSameDrawing) << side;
    EXPECT_EQ(qAlpha(icon.pixel(0, side - 1)), 0) << "the shield stands free, side " << side;
  }
}

}  // namespace
