#include <QCheckBox>
#include <QLineEdit>
#include <QTreeWidget>

#include "screen/readable_colours.h"
#include "screen/themes.h"
#include "tests/screen/desktop_fixture.h"

namespace orvane::test {
namespace {

// The edges of what is used, as they are painted, on the palettes that users choose.
class ReadableEdges : public DesktopFixture {
 protected:
  ReadableEdges() {
    start();
    character = &newCharacter();
  }
  ~ReadableEdges() override { QApplication::setPalette(former_); }

  void onEach(const std::function<void(const Theme&)>& check) {
    for (const auto& theme : themes()) {
      QApplication::setPalette(theme.palette);
      turn();  // tells the windows
      turn();  // shows their controls anew
      check(theme);
    }
  }
  // The best contrast to the ground on the way from one point of a picture to another.
  static double edge(const QImage& picture, QPoint from, QPoint to, const QColor& ground) {
    double best = 1;
    constexpr int steps = 60;
    for (int i = 0; i <= steps; ++i)
      best = std::max(best, contrast(picture.pixelColor(from + (to - from) * i / steps), ground));
    return best;
  }

  frmPersonnage* character = nullptr;

 private:
  QPalette former_ = QApplication::palette();
};

TEST_F(ReadableEdges, UncheckedBoxesOfListsAreSeen) {
  pickTab(*character, 4);
  perform([&](User& user) { user.row(character->lvwMartialArt, 1); });
  auto& tree = find<QTreeWidget>(*character, "lvwMartialTechnic");
  ASSERT_GT(tree.topLevelItemCount(), 1);
  ASSERT_EQ(tree.topLevelItem(1)->checkState(0), Qt::Unchecked);
  const QRect row = tree.visualItemRect(tree.topLevelItem(1));
  const int middle = row.center().y();
  onEach([&](const Theme& theme) {
    const QImage shown = tree.viewport()->grab().toImage();
    const int textBegins = row.left() + 2 * row.height() / 3;
    EXPECT_GE(edge(shown, {row.left(), middle}, {textBegins, middle}, theme.palette.color(QPalette::Base)), 2.9)
        << theme.name.toStdString();
  });
}

TEST_F(ReadableEdges, BoxesStandOutOnPalettesThatGiveThemNoEdge) {
  auto& box = find<QLineEdit>(*character, "txtYeux");
  onEach([&](const Theme& theme) {
    if (theme.name == "light") return;  // as the user's style draws it
    const QImage shown = box.grab().toImage();
    EXPECT_GE(edge(shown, {0, shown.height() / 2}, {3, shown.height() / 2}, theme.palette.color(QPalette::Base)), 2.9)
        << theme.name.toStdString();
  });
}

TEST_F(ReadableEdges, WhatIsSelectedCanBeRead) {
  const auto check = [this](const std::string& name) {
    const QPalette palette = find<QTreeWidget>(*character, "lvwSkillGen").palette();
    EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), readableContrast)
        << name;
  };
  check("the style's own palette");
  onEach([&](const Theme& theme) { check(theme.name.toStdString()); });
}

// What is refused is told in the description box, also while that is closed.
TEST_F(ReadableEdges, RefusalsCanBeReadInAClosedBox) {
  pickTab(*character, 5);
  onceOpen<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); });
  find<QCheckBox>(*character, "chkMuta").click();
  settle();
  auto& box = find<QWidget>(*character, "txtAllDescro");
  ASSERT_FALSE(box.isEnabled());
  onEach([&](const Theme& theme) {
    const auto colour = [&](QPalette::ColorRole role) { return box.palette().color(QPalette::Disabled, role); };
    EXPECT_GE(contrast(colour(QPalette::Text), colour(QPalette::Base)), readableContrast) << theme.name.toStdString();
  });
}

}  // namespace
}  // namespace orvane::test
