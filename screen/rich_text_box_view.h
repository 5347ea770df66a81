#pragma once

#include <string>
#include <tuple>

#include <QTextBrowser>

#include "screen/view.h"
#include "surface/rich_text_box.h"

namespace orvane {

class RichTextBoxView final : public View {
 public:
  RichTextBoxView(RichTextBox& box, QTextBrowser& browser, FormView& form);

 private:
  void show() override;

  void showText();

  RichTextBox& box_;
  QTextBrowser& browser_;
  // What is shown: text of either kind and palette. Showing it again would take the reader back to the start.
  std::tuple<std::string, std::string, qint64> shown_;
};

}  // namespace orvane
