#include <QRadioButton>

#include "screen/measures.h"
#include "sheet/frmFeuille.h"
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
  EXPECT_EQ(sheet->VScroll.Value(), std::min(12, sheet->VScroll.Max()));
  for (int i = 0; i < 2; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp);
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

TEST_F(SheetWindows, OpensAsTallAsTheMainWindowAllows) {
  const int room = mainWindow().area().viewport()->height();
  EXPECT_EQ(windows.childOf(*sheet)->geometry().bottom() + 1, room);
  EXPECT_GT(windows.childOf(*sheet)->height(), 555);
}

}  // namespace
}  // namespace orvane::test
