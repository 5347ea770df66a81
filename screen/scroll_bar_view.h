#pragma once

#include <QScrollBar>

#include "screen/view.h"
#include "surface/scroll_bar.h"

namespace orvane {

// The bar of a window that grows keeps to its edge, and scrolls no further than the pictures of the form reach.
class ScrollBarView final : public View {
 public:
  ScrollBarView(ScrollBar& control, QScrollBar& bar, FormView& form);

 private:
  void show() override;
  void place();
  int reach() const;
  bool isVertical() const { return bar_.orientation() == Qt::Vertical; }
  bool rolled(QEvent& event);
  void scrollTo(int value);

  ScrollBar& scroll_;
  const QWidget& window_;
  QScrollBar& bar_;
  // Of a turn of the wheel, what is not yet a step; eighths of a degree.
  int turned_ = 0;
};

}  // namespace orvane
