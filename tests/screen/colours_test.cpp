#include <QLineEdit>
#include <QTreeWidget>

#include "screen/readable_colours.h"
#include "tests/screen/view_fixture.h"

namespace orvane::test {
namespace {

struct NamedPalette {
  const char* name;
  QPalette palette;
};

QPalette palette(const QColor& window, const QColor& base, const QColor& text, const QColor& highlight,
                 const QColor& highlightedText) {
  QPalette made(text, window, window.lighter(), window.darker(), Qt::gray, text, base);
  made.setColor(QPalette::Window, window);
  made.setColor(QPalette::Highlight, highlight);
  made.setColor(QPalette::HighlightedText, highlightedText);
  return made;
}

std::vector<NamedPalette> palettes() {
  return {{"light", palette("#efefef", Qt::white, Qt::black, "#308cc6", Qt::white)},
          {"dark", palette("#353535", "#232323", Qt::white, "#2a82da", Qt::black)},
          {"high contrast", palette(Qt::black, Qt::black, Qt::white, Qt::yellow, Qt::black)},
          {"high contrast, white", palette(Qt::white, Qt::white, Qt::black, "#000080", Qt::white)}};
}

TEST(Colours, ContrastAndOrderOfBytes) {
  EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(contrast(QColor("#767676"), Qt::white), 4.54, 0.01);
  EXPECT_EQ(screenColour(Colour::AccessoryBroken, {}), QColor(255, 255, 192));
  EXPECT_EQ(screenColour(static_cast<Colour>(255), {}), QColor(255, 0, 0));
}

TEST(Colours, TextInMarkedBoxesCanBeReadOnEveryPalette) {
  for (const auto& [name, palette] : palettes())
    for (const auto mark :
         {Colour::EssentialBroken, Colour::AccessoryBroken, Colour::WindowBackground, Colour::ButtonFace}) {
      const QPalette box = boxPalette(mark, palette);
      EXPECT_GE(contrast(box.color(QPalette::Text), box.color(QPalette::Base)), readableContrast)
          << name << colourText(mark);
    }
}

TEST(Colours, MarksDifferFromPlainBoxesAndFromEachOther) {
  for (const auto& [name, palette] : palettes()) {
    const QColor red = boxPalette(Colour::EssentialBroken, palette).color(QPalette::Base);
    const QColor yellow = boxPalette(Colour::AccessoryBroken, palette).color(QPalette::Base);
    EXPECT_NE(red, yellow) << name;
    EXPECT_NE(red, palette.color(QPalette::Base)) << name;
    EXPECT_NE(yellow, palette.color(QPalette::Base)) << name;
  }
}

TEST(Colours, RedAndGreenLevelsCanBeReadSelectedOrNot) {
  for (const auto& [name, palette] : palettes())
    for (const auto wanted : {Colour::Red, Colour::Green})
      for (const auto ground : {QPalette::Base, QPalette::Highlight}) {
        const QColor background = palette.color(ground);
        EXPECT_GE(contrast(readable(screenColour(wanted, palette), background), background), readableContrast) << name;
      }
}

class MarkedBoxes : public ViewFixture {};

TEST_F(MarkedBoxes, AreDescribedInWordsAndGoBack) {
  auto& edit = find<QLineEdit>("txtLine");
  const QColor plain = edit.palette().color(QPalette::Base);
  const struct {
    Colour mark;
    QColor shown;
    const char* description;
  } cases[] = {{Colour::EssentialBroken, {255, 192, 192}, "Nom complet, contrainte essentielle non respectée"},
               {Colour::AccessoryBroken, {255, 255, 192}, "Nom complet, contrainte accessoire non respectée"},
               {Colour::WindowBackground, plain, "Nom complet"}};
  for (const auto& [mark, shown, description] : cases) {
    form->txtLine.setBackColor(mark);
    turn();
    EXPECT_EQ(edit.palette().color(QPalette::Base), shown);
    EXPECT_EQ(edit.accessibleDescription(), description);
  }
}

TEST_F(MarkedBoxes, LevelsArePaintedInAReadableColour) {
  form->addRows({"Tir", "Bagarre"});
  form->lvwRows.ListItems(1)->ListSubItems(1).setForeColor(Colour::Red);
  form->lvwRows.ListItems(2)->ListSubItems(1).setForeColor(Colour::Red);
  turn();
  auto& tree = find<QTreeWidget>("lvwRows");
  const QImage shown = tree.viewport()->grab().toImage();
  // The reddest point of a cell against its background.
  const auto levelContrast = [&](int row) {
    const QRect cell(tree.viewport()->width() - tree.columnWidth(1), tree.visualItemRect(tree.topLevelItem(row)).top(),
                     tree.columnWidth(1), tree.visualItemRect(tree.topLevelItem(row)).height());
    const QColor background = shown.pixelColor(cell.center().x() - 8, cell.top() + 2);
    double best = 1;
    for (int x = cell.left(); x < cell.right(); ++x)
      for (int y = cell.top(); y < cell.bottom(); ++y)
        best = std::max(best, contrast(shown.pixelColor(x, y), background));
    return best;
  };
  EXPECT_GE(levelContrast(0), 4.0);  // selected; smoothing takes a little off thin strokes
  EXPECT_GE(levelContrast(1), 4.0);
}

}  // namespace
}  // namespace orvane::test
