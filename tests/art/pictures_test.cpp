#include <algorithm>
#include <array>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <QColor>
#include <QFile>
#include <QFontDatabase>
#include <QImage>
#include <QPointF>
#include <QRect>
#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>

#include "sheet/art/render/rendering.h"
#include "sheet/frmFeuille.h"
#include "tests/canvas/gui.h"
#include "tests/support/run_fixture.h"

using namespace orvane;

namespace {

const QString kFolder = QStringLiteral(ORVANE_SOURCE_DIR "/sheet/art/");

const auto* const kGui = testing::AddGlobalTestEnvironment(new test::Gui);

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

QRect pixelsOf(const Shape& box) {
  const auto pixels = [](float twips) { return static_cast<int>(twips) / kTwipsPerPixel; };
  return {pixels(box.Left()), pixels(box.Top()), pixels(box.Width()), pixels(box.Height())};
}

// The boxes that the program prints into.
class Boxes : public test::RunFixture {
 protected:
  std::vector<const Shape*> of(const PictureBox& side) const {
    std::vector<const Shape*> boxes;
    for (const auto* control : sheet->controls())
      if (const auto* box = dynamic_cast<const Shape*>(control); box && box->holder() == &side) boxes.push_back(box);
    return boxes;
  }

  std::shared_ptr<frmFeuille> sheet = std::make_shared<frmFeuille>(globals);
};

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
  // Offset, size and value: bits per pixel, no compression, pixels per metre.
  for (const auto& [offset, count, expected] : {std::array{28, 2, 24}, {30, 4, 0}, {38, 4, 3780}, {42, 4, 3780}})
    EXPECT_EQ(littleEndian(head, offset, count), static_cast<std::uint32_t>(expected)) << offset;
}

TEST_P(SideTest, IsGrey) {
  const QImage image(bitmapOf(GetParam()));
  ASSERT_EQ(image.size(), GetParam().size);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ASSERT_TRUE(qIsGray(image.pixel(x, y))) << "at " << x << ", " << y;
}

// The boxes of the skills are a little larger than their cells and take in the rules around them.
TEST_F(Boxes, AreBlankButForTheRulesOfTheSkills) {
  const QImage recto(bitmapOf(kRecto));
  const QImage verso(bitmapOf(kVerso));
  EXPECT_EQ(of(sheet->pctRecto).size(), 31U);
  for (const auto* box : of(sheet->pctRecto)) EXPECT_EQ(firstMark(recto, pixelsOf(*box)), "") << box->id();
  for (const auto* box : of(sheet->pctVerso)) {
    const bool ofSkills = pixelsOf(*box).top() < kRulesBottom;
    EXPECT_EQ(ofSkills ? firstMark(verso, pixelsOf(*box), kRules, kCrossRules) : firstMark(verso, pixelsOf(*box)), "")
        << box->id();
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
TEST_F(Boxes, HaveAnIllustrationLeftOfTheEquipment) {
  const QImage image(bitmapOf(kVerso));
  const QRect equipment = pixelsOf(sheet->shpMatos);
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

// Every text of an SVG source with the place of its baseline; a turned text stands where it was moved to.
std::multimap<QString, QPointF> textsOf(const QString& source) {
  static const QRegularExpression moved(QStringLiteral("translate\\(([0-9.]+) ([0-9.]+)\\)"));
  std::multimap<QString, QPointF> texts;
  QFile file(source);
  if (!file.open(QIODevice::ReadOnly)) return texts;
  QXmlStreamReader reader(&file);
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("text")) continue;
    const auto attributes = reader.attributes();
    const auto shift = moved.match(attributes.value(QLatin1String("transform")).toString());
    const QPointF place(attributes.value(QLatin1String("x")).toDouble(),
                        attributes.value(QLatin1String("y")).toDouble());
    const QPointF by(shift.captured(1).toDouble(), shift.captured(2).toDouble());
    texts.emplace(reader.readElementText(), place + by);
  }
  return texts;
}

// A label stands left of its box on the box's line, or above its box.
bool isNear(const QPointF& label, const QRect& box) {
  const bool beside =
      label.x() < box.left() && box.left() - label.x() < 175 && label.y() > box.top() && label.y() <= box.bottom() + 1;
  const bool above =
      label.y() <= box.top() && box.top() - label.y() < 20 && label.x() >= box.left() - 12 && label.x() < box.right();
  return beside || above;
}

// Each box and its label. The skill columns share the heading of the first, and the third language brings its own name.
const QString kLabels =
    "shpJoueur: Joueur ou joueuse; shpPerso: Personnage; shpEthnie: Ethnie; shpSexe: Sexe; "
    "shpTaillePoids: Taille (cm) / Poids (kg); shpYeux: Yeux; shpDistrict: Origine; shpAge: Age; "
    "shpCheveux: Cheveux; shpProfil: Profil; shpGrade: Grade; shpCaract(0): Corps; shpCaract(1): Sens; "
    "shpCaract(2): Détermination; shpCaract(3): Adresse; shpCaract(4): Résistance; shpCaract(5): Réflexe; "
    "shpCaract(6): Intelligence; shpCaract(7): Relation; shpEV: Energie Vitale; shpR: Réaction; "
    "shpSF: Sang Froid; shpMutaCateg: Catégorie, signe et numéro; shpMutaName: Pouvoir; shpMutaDescro: Pouvoir; "
    "shpParticulSign: cicatrices, tatouages, implants, manies; shpContact: CONTACTS; shpLangValue(0): Anglais; "
    "shpLangValue(1): Espagnol; shpValues(0): Niv.; shpNames(0): Compétence; shpMatos: MATÉRIEL; "
    "shpMartialArt: ARTS MARTIAUX";

TEST_F(Boxes, HaveTheirLabels) {
  const QStringList labels = kLabels.split("; ");
  qsizetype found = 0;
  for (const auto& [side, picture] : {std::pair{kRecto, &sheet->pctRecto}, std::pair{kVerso, &sheet->pctVerso}}) {
    const auto texts = textsOf(sourceOf(side));
    for (const auto* box : of(*picture)) {
      const QStringList mine = labels.filter(QString::fromStdString(box->id()) + ": ");
      if (mine.isEmpty()) continue;
      ++found;
      const auto [first, last] = texts.equal_range(mine[0].section(": ", 1));
      EXPECT_TRUE(std::any_of(first, last, [&](const auto& text) { return isNear(text.second, pixelsOf(*box)); }))
          << "lacks " << mine[0].toStdString();
    }
  }
  EXPECT_EQ(found, labels.size());
}

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
