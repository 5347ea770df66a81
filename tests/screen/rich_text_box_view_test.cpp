#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>

#include "screen/readable_colours.h"
#include "screen/themes.h"
#include "tests/screen/desktop_fixture.h"

namespace orvane::test {
namespace {

class HelpWindow : public DesktopFixture {
 protected:
  QTextDocument& show(const std::string& rtf) {
    files.contents["ReadMe.rtf"] = rtf;
    start();
    menu("mnuHelpContents");
    return *windows.mainWindow()->findChild<QTextBrowser*>("rtbReadMe")->document();
  }
};

TEST_F(HelpWindow, ShowsParagraphsAndTables) {
  const auto& document = show(
      "{\\rtf1\\qj\\li300\\sb45\\sa60\\fs41\\b Titre\\par\\pard\\plain a  \\i b\\i0\\line{\\ul <c>}\\tab d\\par"
      "\\trowd\\cellx1500\\cellx4500\\intbl A\\cell B\\par C\\cell\\row\\cell\\cell\\row\\pard fin}");
  EXPECT_EQ(document.toPlainText().toStdString(), "Titre\na  b\n<c>\td\nA\nB\nC\n \n \n\nfin");
  const auto format = document.begin().blockFormat();
  EXPECT_EQ(format.alignment(), Qt::AlignJustify);
  EXPECT_EQ(QRectF(format.leftMargin(), format.topMargin(), 1, format.bottomMargin()), QRectF(20, 3, 1, 4));
  EXPECT_EQ(document.begin().begin().fragment().charFormat().fontPointSize(), 20.5);
  EXPECT_EQ(document.begin().next().begin().fragment().charFormat().fontPointSize(), 12);
  const auto* table = qobject_cast<QTextTable*>(document.rootFrame()->childFrames().value(0));
  ASSERT_TRUE(table);
  EXPECT_EQ(table->rows(), 2);
  EXPECT_EQ(table->format().columnWidthConstraints().at(1).rawValue(), 200);
}

TEST_F(HelpWindow, TextAfterAMarkerBeginsWhereTheLinesBelowItDo) {
  const auto& document = show("{\\rtf1{\\pntext\\'b7\\tab}\\li720\\fi-360 un\\line deux}");
  document.documentLayout()->documentSize();
  const auto* layout = document.begin().layout();
  ASSERT_EQ(layout->lineCount(), 2);
  const double left = layout->lineAt(1).cursorToX(5);
  EXPECT_NEAR(layout->lineAt(0).cursorToX(2), left, 1);
  EXPECT_NEAR(layout->lineAt(0).cursorToX(0), left - 24, 1);
}

TEST_F(HelpWindow, ColoursAndEdgesStandOutFromEveryPalette) {
  const QPalette before = QApplication::palette();
  const auto& document = show(
      "{\\rtf1{\\colortbl;\\red0\\green0\\blue128;\\red255\\green255\\blue0;\\red0\\green0\\blue0;}"
      "\\cf1 a\\cf2 b\\cf3 c\\par\\trowd\\cellx900\\cell\\row}");
  for (const auto& theme : themes()) {
    QApplication::setPalette(theme.palette);
    turn();
    turn();
    const QColor ground = theme.palette.color(QPalette::Base);
    auto part = document.begin().begin();
    for (const int hue : {240, 60}) {
      const QColor colour = (part++).fragment().charFormat().foreground().color();
      EXPECT_GE(contrast(colour, ground), readableContrast) << theme.name.toStdString() << hue;
      EXPECT_NEAR(colour.hslHue(), hue, 2) << theme.name.toStdString();
    }
    EXPECT_FALSE(part.fragment().charFormat().hasProperty(QTextFormat::ForegroundBrush)) << "black is no colour";
    const auto edges = document.rootFrame()->childFrames().value(0)->frameFormat().borderBrush().color();
    EXPECT_GE(contrast(edges, ground), 1.8) << theme.name.toStdString();
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace orvane::test
