#pragma once

#include <QScrollBar>

#include "screen/view.h"
#include "surface/scroll_bar.h"

namespace orvane {

class ScrollBarView final : public View {
 public:
  ScrollBarView(ScrollBar& control, QScrollBar& bar, FormView& form);

 private:
  void show() override;
  bool rolled(QEvent& event);
  void scrollTo(int value);

  ScrollBar& scroll_;
  QScrollBar& bar_;
  // Of a turn of the wheel, what is not yet a step; eighths of a degree.
  int turned_ = 0;
};

}  // namespace orvane
