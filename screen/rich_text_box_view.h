#pragma once

#include <QTextBrowser>

#include "screen/view.h"
#include "surface/richtextbox.h"

namespace orvane {

class RichTextBoxView final : public View {
 public:
  RichTextBoxView(RichTextBox& box, QTextBrowser& browser, FormView& form);

 private:
  void show() override;

  RichTextBox& box_;
  QTextBrowser& browser_;
};

}  // namespace orvane
