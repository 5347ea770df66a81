#include <QHelpEvent>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolTip>

#include "screen/measures.h"
#include "sheet/composition.h"
#include "sheet/frmFeuille.h"
#include "sheet/prcPrintInShape.h"
#include "tests/screen/desktop_fixture.h"

namespace orvane::test {
namespace {

class SheetWindows : public DesktopFixture {
 protected:
  SheetWindows() {
    start("18000", "10000");
    sheet->Show();
    turn();
  }
  QWidget& picture(const char* name) { return find<QWidget>(*sheet, name); }

  std::shared_ptr<frmFeuille> sheet = std::make_shared<frmFeuille>(globals());
};

TEST_F(SheetWindows, ShowsThePicturePixelForPixel) {
  EXPECT_EQ(picture("pctRecto").geometry(), QRect(0, 38, 660, 1028));
  sheet->pctRecto.setCurrentX(3000);
  sheet->pctRecto.setCurrentY(3000);
  for (auto* control : sheet->controls())
    if (auto* shape = dynamic_cast<Shape*>(control)) shape->setBorderStyle(0);
  sheet->pctRecto.Print("Anne Ravel");
  turn();
  QImage shown(picture("pctRecto").size(), QImage::Format_RGB32);
  picture("pctRecto").render(&shown);
  EXPECT_EQ(shown, image(sheet->pctRecto.Image()).convertToFormat(QImage::Format_RGB32));
}

TEST_F(SheetWindows, TheWheelAndThePageKeysScroll) {
  ASSERT_GT(sheet->VScroll.Max(), 2);
  QWidget& pane = *windows.childOf(*sheet)->widget();
  QWheelEvent wheel(QPointF(50, 100), pane.mapToGlobal(QPointF(50, 100)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&wheel);  // others do not reach the widgets around
  qApp->notify(&picture("pctRecto"), &wheel);
  turn();
  EXPECT_EQ(sheet->VScroll.Value(), 2);
  EXPECT_EQ(picture("pctRecto").y(), pixels(567.0F * (1 - 2)));
  // The sheet opens with the keyboard at its first button.
  ASSERT_EQ(QApplication::focusWidget(), &picture("optFeuille_0"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown);
  EXPECT_EQ(sheet->VScroll.Value(), std::min(12, find<QScrollBar>(*sheet, "VScroll").maximum()));
  // Down to the end of the picture, by whole centimetres, and no further.
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown);
  turn();
  const int below = pane.height() - 1 - picture("pctRecto").geometry().bottom();
  EXPECT_GE(below, 0);
  EXPECT_LT(below, pixels(567));
  for (int i = 0; i < 3; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp);
  EXPECT_EQ(sheet->VScroll.Value(), 0);
}

TEST_F(SheetWindows, TheOtherSideComesToTheFrontBelowTheStrip) {
  QTest::mouseClick(&find<QRadioButton>(*sheet, "optFeuille_1"), Qt::LeftButton, {}, {8, 8});
  sheet->VScroll.setValue(3);
  turn();
  EXPECT_FALSE(picture("pctRecto").isVisible());
  QWidget& pane = *windows.childOf(*sheet)->widget();
  EXPECT_EQ(pane.childAt(300, 100), &picture("pctVerso"));
  EXPECT_NE(pane.childAt(300, 10), &picture("pctVerso"));
  QImage strip(picture("pctController").size(), QImage::Format_ARGB32_Premultiplied);
  strip.fill(Qt::transparent);
  picture("pctController").render(&strip, {}, {}, QWidget::DrawWindowBackground);
  EXPECT_EQ(strip.pixelColor(300, 2).alpha(), 255);
  EXPECT_EQ(pane.childAt(picture("VScroll").geometry().center()), &picture("VScroll"));
}

TEST_F(SheetWindows, UseTheRoomThatTheyAreGiven) {
  auto& child = *windows.childOf(*sheet);
  mainWindow().resize(1400, 900);
  child.showMaximized();
  turn();
  const QSize room = child.widget()->size();
  EXPECT_EQ(picture("VScroll").geometry().bottomRight() + QPoint(1, 1), QPoint(room.width(), room.height()));
  EXPECT_EQ(picture("pctController").width(), room.width());
  EXPECT_NEAR(picture("pctRecto").geometry().center().x(), room.width() / 2, 16);
  mainWindow().resize(1400, 1300);
  turn();
  EXPECT_FALSE(picture("VScroll").isVisible()) << "nothing to scroll";
}

TEST_F(SheetWindows, TakeThePlaceAndTheSideOfTheOneTheyReplace) {
  sheet->Unload();
  turn();
  mainWindow().resize(1700, 900);
  auto& character = newCharacter();
  const auto compose = [&] {
    perform([&] { composeSheet(globals(), character); });
    turn();
    return windows.childOf(*run.desktop().activeChild());
  };
  character.txtPerso.setText("Lou");
  onceOpen<QMessageBox>([](QMessageBox& box) { box.accept(); });
  auto* first = compose();
  first->setGeometry(100, 50, 800, 600);
  auto& shown = dynamic_cast<frmFeuille&>(first->form());
  perform([&] { user.click(shown.optFeuille(1)); });
  onceOpen<QMessageBox>([](QMessageBox& box) { box.accept(); });
  auto* second = compose();
  EXPECT_EQ(second->geometry(), QRect(100, 50, 800, 600));
  EXPECT_TRUE(dynamic_cast<frmFeuille&>(second->form()).optFeuille(1).Value());
}

TEST_F(SheetWindows, MarkTheBoxesThatLostWordsOnTheScreenOnly) {
  auto& box = sheet->shpJoueur;
  const QPoint spot(pixels(box.Left() + box.Width()) - 3, pixels(box.Top() + box.Height()) - 2);
  const auto seen = [&] {
    const QImage shown = picture("pctRecto").grab().toImage();
    return shown.pixelColor(spot * shown.devicePixelRatio()).rgb();
  };
  prcPrintInShape("Anne", sheet->pctRecto, box);
  turn();
  const QRgb paper = image(sheet->pctRecto.Image()).pixelColor(spot).rgb();
  EXPECT_EQ(seen(), paper);
  prcPrintInShape(std::string(400, 'A') + " <i>", sheet->pctRecto, sheet->shpJoueur);
  turn();
  EXPECT_NE(seen(), paper);
  EXPECT_EQ(image(sheet->pctRecto.Image()).pixelColor(spot).rgb(), paper);
  EXPECT_TRUE(picture("pctRecto").accessibleDescription().endsWith("<i>"));
  QHelpEvent hover(QEvent::ToolTip, spot, picture("pctRecto").mapToGlobal(spot));
  QApplication::sendEvent(&picture("pctRecto"), &hover);
  EXPECT_TRUE(QToolTip::text().contains("&lt;i&gt;"));
  QToolTip::hideText();
}

TEST_F(SheetWindows, OpensAsTallAsTheMainWindowAllows) {
  const int room = mainWindow().area().viewport()->height();
  EXPECT_EQ(windows.childOf(*sheet)->geometry().bottom() + 1, room);
  EXPECT_GT(windows.childOf(*sheet)->height(), 555);
}

}  // namespace
}  // namespace orvane::test
