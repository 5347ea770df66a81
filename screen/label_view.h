#pragma once

#include <QLabel>

#include "screen/view.h"
#include "surface/label.h"

namespace orvane {

// A label that the layout gives a place in the Tab order is clicked by keys as well; the focus of the form stays where
// it is.
class LabelView final : public View {
 public:
  LabelView(Label& label, QLabel& text, FormView& form);

 private:
  void show() override;
  bool happened(const QEvent& event);
  bool click();
  void underline(bool underlined);

  Label& label_;
  QLabel& text_;
};

}  // namespace orvane
