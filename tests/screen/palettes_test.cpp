#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "screen/readable_colours.h"
#include "screen/themes.h"
#include "tests/screen/desktop_fixture.h"

namespace orvane::test {
namespace {

TEST(Colours, ContrastAndOrderOfBytes) {
  EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(contrast(QColor("#767676"), Qt::white), 4.54, 0.01);
  EXPECT_EQ(screenColour(Colour::AccessoryBroken, {}), QColor(255, 255, 192));
  EXPECT_EQ(screenColour(static_cast<Colour>(255), {}), QColor(255, 0, 0));
  EXPECT_EQ(readable("#2f6fb0", Qt::white), QColor("#2f6fb0")) << "no more than needed";
}

// Those that users choose, and high contrast on white.
std::vector<Theme> palettes() {
  auto all = themes();
  QPalette white(Qt::white, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) white.setColor(role, Qt::black);
  white.setColor(QPalette::Highlight, "#000080");
  white.setColor(QPalette::HighlightedText, Qt::white);
  all.push_back({"white", white});
  return all;
}

class Palettes : public DesktopFixture {
 protected:
  ~Palettes() override { QApplication::setPalette(former_); }

  void onEach(const std::function<void(const QPalette&)>& check) {
    for (const auto& [name, palette] : palettes()) {
      SCOPED_TRACE(name.toStdString());
      QApplication::setPalette(palette);
      turn();  // tells the windows
      turn();  // shows their controls anew
      check(palette);
    }
  }
  // The best contrast to the ground inside a part of a picture.
  static double edge(const QImage& picture, const QRect& part, const QColor& ground) {
    double best = 1;
    for (int x = part.left(); x <= part.right(); ++x)
      for (int y = part.top(); y <= part.bottom(); ++y)
        best = std::max(best, contrast(picture.pixelColor(x, y), ground));
    return best;
  }
  // That of the left and the upper edge in the middle of a widget, of which the fainter one.
  static double edges(QWidget& widget, const QColor& ground, int top = 0) {
    const QImage shown = widget.grab().toImage();
    return std::min(edge(shown, QRect(0, shown.height() / 2, 3, 1), ground),
                    edge(shown, QRect(shown.width() / 2, top, 1, 3), ground));
  }

  frmPersonnage& character = (start(), newCharacter());

 private:
  QPalette former_ = QApplication::palette();
};

TEST_F(Palettes, LetEveryMarkAndLevelBeRead) {
  const auto contrastIn = [](const QPalette& palette, QPalette::ColorRole text, QPalette::ColorRole ground) {
    return contrast(palette.color(text), palette.color(ground));
  };
  onEach([&](const QPalette& palette) {
    std::vector<QColor> grounds{palette.color(QPalette::Base)};
    for (const auto mark :
         {Colour::EssentialBroken, Colour::AccessoryBroken, Colour::WindowBackground, Colour::ButtonFace}) {
      const QPalette box = boxPalette(mark, palette);
      EXPECT_GE(contrastIn(box, QPalette::Text, QPalette::Base), readableContrast) << colourText(mark);
      EXPECT_GE(contrastIn(box, QPalette::ButtonText, QPalette::Button), readableContrast) << colourText(mark);
      if (markInWords(mark).isEmpty()) continue;
      for (const auto& ground : grounds) EXPECT_NE(box.color(QPalette::Base), ground) << colourText(mark);
      grounds.push_back(box.color(QPalette::Base));
    }
    for (const auto wanted : {Colour::Red, Colour::Green})
      for (const auto ground : {QPalette::Base, QPalette::Highlight}) {
        const QColor background = palette.color(ground);
        EXPECT_GE(contrast(readable(screenColour(wanted, palette), background), background), readableContrast);
      }
    const QPalette selected = find<QTreeWidget>(character, "lvwSkillGen").palette();
    EXPECT_GE(contrastIn(selected, QPalette::HighlightedText, QPalette::Highlight), readableContrast);
  });
}

// What is refused is told in the description box, also while that is closed.
TEST_F(Palettes, LetAClosedBoxBeRead) {
  character.txtAllDescro.setEnabled(false);
  auto& box = find<QWidget>(character, "txtAllDescro");
  onEach([&](const QPalette& palette) {
    const QPalette shown = box.palette();
    EXPECT_TRUE(box.isEnabled()) << "can be scrolled";
    EXPECT_GE(contrast(shown.color(QPalette::Text), shown.color(QPalette::Base)), readableContrast);
    const QPalette button = find<QWidget>(character, "cmdClose").palette();
    EXPECT_GE(contrast(button.color(QPalette::Disabled, QPalette::ButtonText), button.color(QPalette::Button)),
              contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)) > 20 ? 4.4 : 2.9);
  });
}

TEST_F(Palettes, LetTheInvitationBeRead) {
  auto& area = *mainWindow().area().viewport();
  mainWindow().resize(433, 433);
  const auto bestContrast = [&] {
    QImage shown(area.size(), QImage::Format_RGB32);
    area.render(&shown, {}, {}, QWidget::DrawWindowBackground);
    return edge(shown, QRect(0, shown.height() * 2 / 3, shown.width(), 60), shown.pixelColor(0, 0));
  };
  EXPECT_EQ(bestContrast(), 1) << "not behind a window";
  windows.childOf(character)->close();
  onEach([&](const QPalette&) { EXPECT_GE(bestContrast(), 4.0); });
}

// The reddest point of a cell, selected or not; smoothing takes a little off thin strokes.
TEST_F(Palettes, LetLevelsBeReadAsTheyArePainted) {
  pickTab(character, frmPersonnage::Competences);
  auto& tree = find<QTreeWidget>(character, "lvwSkillGen");
  onEach([&](const QPalette& palette) {
    const QImage shown = tree.viewport()->grab().toImage();
    for (int row = 0; row < 2; ++row) {
      QRect cell = tree.visualRect(tree.model()->index(row, 1));
      const auto ground = tree.topLevelItem(row)->isSelected() ? QPalette::Highlight : QPalette::Base;
      EXPECT_GE(edge(shown, cell.adjusted(6, 3, -3, -3), palette.color(ground)), 4.0) << row;
    }
  });
}

TEST_F(Palettes, LetEdgesBeSeen) {
  pickTab(character, frmPersonnage::ArtsMartiaux);
  perform([&] { user.row(character.lvwMartialArt, 1); });
  auto& tree = find<QTreeWidget>(character, "lvwMartialTechnic");
  const QRect row = tree.visualItemRect(tree.topLevelItem(1));
  onEach([&](const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base);
    const QRect box(row.left(), row.center().y(), 2 * row.height() / 3, 1);
    EXPECT_GE(edge(tree.viewport()->grab().toImage(), box, base), 2.9) << "an unchecked box of a list";
    // Where the palette gives an edge, it is as the user's style draws it.
    if (contrast(palette.color(QPalette::Window).darker(140), palette.color(QPalette::Window)) >= 1.4) return;
    const QColor window = palette.color(QPalette::Window);
    EXPECT_GE(edges(find<QWidget>(character, "txtYeux"), base), 2.9);
    EXPECT_GE(edges(find<QWidget>(character, "cmbSexe"), window), 2.9);
    EXPECT_GE(edges(find<QWidget>(character, "cmdClose"), window), 2.9);
    auto& frame = find<QGroupBox>(character, "frmLangue");
    EXPECT_GE(edges(frame, window, frame.fontMetrics().height() + 3), 2.9) << "below its title";
  });
}

TEST_F(Palettes, LetTheFocusBeSeenInAList) {
  pickTab(character, frmPersonnage::Competences);
  auto& tree = find<QTreeWidget>(character, "lvwSkillGen");
  onEach([&](const QPalette& palette) {
    find<QWidget>(character, "txtSkillRest").setFocus();
    const QImage before = tree.grab().toImage();
    tree.setFocus();
    const QColor edge = tree.grab().toImage().pixelColor(0, tree.height() / 2);
    EXPECT_NE(edge, before.pixelColor(0, tree.height() / 2));
    EXPECT_GE(contrast(edge, palette.color(QPalette::Base)), 2.5);
  });
}

TEST_F(Palettes, MarkBoxesInWordsToo) {
  auto& edit = find<QLineEdit>(character, "txtLangRest");
  const QColor plain = edit.palette().color(QPalette::Base);
  const QString design = edit.accessibleDescription();
  const struct {
    Colour mark;
    QColor shown;
    QString description;
  } cases[] = {{Colour::EssentialBroken, {255, 192, 192}, design + ", contrainte essentielle non respectée"},
               {Colour::AccessoryBroken, {255, 255, 192}, design + ", contrainte accessoire non respectée"},
               {Colour::WindowBackground, plain, design}};
  for (const auto& [mark, shown, description] : cases) {
    character.txtLangRest.setBackColor(mark);
    turn();
    EXPECT_EQ(edit.palette().color(QPalette::Base), shown);
    EXPECT_EQ(edit.accessibleDescription(), description);
  }
}

}  // namespace
}  // namespace orvane::test
