#include "screen/rich_text_view.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QPalette>
#include <QTextBlock>
#include <QTextLayout>
#include <QTextTable>

#include "tests/screen/application.h"

namespace orvane {
namespace {

// The document's fragments with what tells them apart, a line for each block.
std::string described(const QTextDocument& document) {
  QString all;
  for (auto block = document.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const auto format = part.fragment().charFormat();
      QString text = part.fragment().text();
      all += QString("[%1%2%3%4 %5 %6|%7]")
                 .arg(format.fontWeight() == QFont::Bold ? "b" : "", format.fontItalic() ? "i" : "",
                      format.fontUnderline() ? "u" : "")
                 .arg(format.fontPointSize())
                 .arg(format.fontFamilies().toStringList().join(','))
                 .arg(format.hasProperty(QTextFormat::ForegroundBrush) ? format.foreground().color().name() : "text",
                      text.replace(QChar::LineSeparator, "\\n").replace('\t', "\\t"));
    }
    all += '\n';
  }
  return all.toStdString();
}

class RichTextView : public testing::Test {
 protected:
  void show(const std::string& bytes) {
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    showRichText(readRichText(bytes), palette, document);
  }

  // Fonts need an application.
  static void SetUpTestSuite() { test::needApplication(); }

  QTextDocument document;
};

TEST_F(RichTextView, ParagraphsRunsAndTables) {
  show(
      "{\\rtf1{\\fonttbl{\\f1 Arial;}}{\\colortbl;\\red0\\green0\\blue0;\\red200\\green0\\blue0;}"
      "\\f1\\fs40\\b Titre\\par\\plain a\\i b\\i0\\line{\\ul c}{\\cf1 d}{\\cf2 e}\\par"
      "\\trowd\\cellx1500\\cellx4500\\intbl A\\cell B\\par C\\cell\\row\\intbl D\\cell\\cell\\row\\pard fin}");
  EXPECT_EQ(described(document),
            "[b20 Arial text|Titre]\n"
            "[12  text|a][i12  text|b][12  text|\\n][u12  text|c][12  text|d][12  #c80000|e]\n"
            "[12  text|A]\n[12  text|B]\n[12  text|C]\n[12  text|D]\n\n[12  text|fin]\n");
  const auto* table = QTextCursor(document.findBlockByNumber(2)).currentTable();
  ASSERT_TRUE(table);
  EXPECT_EQ(table->rows(), 2);
  EXPECT_EQ(table->columns(), 2);
  EXPECT_EQ(table->format().columnWidthConstraints().at(1).rawValue(), 200);

  show("{\\rtf1 autre}");
  EXPECT_EQ(described(document), "[12  text|autre]\n") << "the text before is gone";
  show("{\\rtf1}");
  EXPECT_EQ(described(document), "\n");
}

TEST_F(RichTextView, MeasuresArePixels) {
  show("{\\rtf1\\qc\\li300\\fi-150\\sb45\\sa60 a}");
  const auto format = document.begin().blockFormat();
  EXPECT_EQ(format.alignment(), Qt::AlignHCenter);
  EXPECT_EQ(format.leftMargin(), 20);
  EXPECT_EQ(format.textIndent(), -10);
  EXPECT_EQ(format.topMargin(), 3);
  EXPECT_EQ(format.bottomMargin(), 4);
}

// Where the text after the marker begins and where the second line does, from the left edge, in pixels.
TEST_F(RichTextView, TextAfterAMarkerIsFlush) {
  for (const char* indents : {"\\li720\\fi-360 ", "\\li360 "}) {
    show(std::string("{\\rtf1\\pard{\\pntext\\'b7\\tab}") + indents + "un\\line deux}");
    EXPECT_EQ(described(document), "[12  text|•\\tun\\ndeux]\n");
    document.setTextWidth(600);
    document.documentLayout()->documentSize();
    const auto* layout = document.begin().layout();
    ASSERT_EQ(layout->lineCount(), 2);
    EXPECT_NEAR(layout->lineAt(0).cursorToX(2), layout->lineAt(1).cursorToX(5), 1) << indents;
    EXPECT_NEAR(layout->lineAt(0).cursorToX(0), layout->lineAt(1).cursorToX(5) - 24, 1) << indents;
  }
}

TEST(ReadableColour, EveryColourStandsOutFromLightAndDark) {
  EXPECT_EQ(readableColour({0, 0, 0}, Qt::black), std::nullopt);
  EXPECT_EQ(readableColour({0, 0, 128}, Qt::white), QColor(0, 0, 128));
  EXPECT_EQ(readableColour({255, 255, 0}, Qt::black), QColor(255, 255, 0));
  EXPECT_EQ(readableColour({255, 255, 255}, Qt::white), QColor(Qt::black));
  const QColor dark("#202020");
  const auto blue = readableColour({0, 0, 128}, dark);
  ASSERT_TRUE(blue);
  EXPECT_GT(blue->lightness(), 150);
  EXPECT_GT(blue->blue(), blue->red());
  EXPECT_EQ(readableColour({255, 255, 0}, Qt::white), std::nullopt) << "yellow is as light turned over";
}

}  // namespace
}  // namespace orvane
