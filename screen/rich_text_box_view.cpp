#include "screen/rich_text_box_view.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QTextBlock>

#include "canvas/qt_text.h"
#include "screen/readable_colours.h"

namespace orvane {
namespace {

// What the edges of tables need against the background.
constexpr double edgeContrast = 1.8;
// Around the text, pixels.
constexpr int margin = 12;

// A colour too near to the background is first tried with its lightness turned over: that keeps more of its hue.
QColor readableHue(const QColor& given, const QColor& background) {
  if (contrast(given, background) >= readableContrast) return given;
  const float lightness = 1 - given.lightnessF();
  return readable(QColor::fromHslF(std::max(0.0F, given.hslHueF()), given.hslSaturationF(), lightness), background);
}

// The HTML with its colours such that they can be read on the background.
QString withReadableColours(QString html, const QColor& background) {
  const QString before = "\"color:";
  std::map<QString, QString> shown;
  for (qsizetype at = 0; (at = html.indexOf(before, at)) >= 0;) {
    at += before.size();
    const QString given = html.mid(at, 7);  // #rrggbb
    const auto [colour, fresh] = shown.try_emplace(given);
    if (fresh) colour->second = readableHue(QColor(given), background).name();
    html.replace(at, 7, colour->second);
  }
  return html;
}

// Where a first line hangs to the left, the text after its first tab begins where the lines below it do. HTML cannot
// say so.
void stopTabsAtHangs(QTextDocument& document) {
  QTextCursor cursor(&document);
  cursor.beginEditBlock();
  for (auto block = document.begin(); block.isValid(); block = block.next()) {
    const double hang = -block.blockFormat().textIndent();
    if (hang <= 0) continue;
    QTextBlockFormat format;
    format.setTabPositions({QTextOption::Tab(hang, QTextOption::LeftTab)});
    cursor.setPosition(block.position());
    cursor.mergeBlockFormat(format);
  }
  cursor.endEditBlock();
}

}  // namespace

RichTextBoxView::RichTextBoxView(RichTextBox& box, QTextBrowser& browser, FormView& form)
    : View(box, browser, form), box_(box), browser_(browser) {
  browser_.setOpenLinks(false);
  browser_.document()->setDocumentMargin(margin);
}

void RichTextBoxView::show() {
  const std::tuple now(box_.Html(), box_.Text(), browser_.palette().cacheKey());
  if (now != std::exchange(shown_, now)) showText();
}

void RichTextBoxView::showText() {
  const QSignalBlocker silent(browser_);
  if (box_.Html().empty()) return browser_.setPlainText(shownLines(box_.Text()));
  const QPalette& palette = browser_.palette();
  const QColor background = palette.color(QPalette::Base);
  const QColor edges = readable(palette.color(QPalette::Mid), background, edgeContrast);
  browser_.document()->setDefaultStyleSheet(
      "table { border-collapse: collapse; border-style: solid; border-color: " + edges.name() + " }");
  browser_.setHtml(withReadableColours(toQt(box_.Html()), background));
  stopTabsAtHangs(*browser_.document());
}

}  // namespace orvane
