#include "screen/rich_text_box_view.h"

#include <utility>

#include "canvas/qt_text.h"
#include "screen/rich_text_view.h"
#include "surface/failure.h"

namespace orvane {
namespace {

// Around the text, pixels.
constexpr int margin = 12;

}  // namespace

RichTextBoxView::RichTextBoxView(RichTextBox& box, QTextBrowser& browser, FormView& form)
    : View(box, browser, form), box_(box), browser_(browser) {
  browser_.setOpenLinks(false);
  browser_.document()->setDocumentMargin(margin);
}

void RichTextBoxView::show() {
  const std::tuple now(box_.TextRTF(), box_.Text(), browser_.palette().cacheKey());
  if (now != std::exchange(shown_, now)) showText();
}

void RichTextBoxView::showText() {
  const QSignalBlocker silent(browser_);
  if (box_.TextRTF().empty()) return browser_.setPlainText(shownLines(box_.Text()));
  try {
    showRichText(readRichText(box_.TextRTF()), browser_.palette(), *browser_.document());
    browser_.moveCursor(QTextCursor::Start);
  } catch (const Failure& failure) {
    browser_.setPlainText(toQt(failure.what()));
  }
}

}  // namespace orvane
