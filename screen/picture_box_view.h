#pragma once

#include <QImage>

#include "screen/view.h"
#include "surface/picture_box.h"

class QPainter;

namespace orvane {

// Shows a picture pixel for pixel at 100 %, smoothly enlarged on a denser screen.
class PictureBoxView final : public View {
 public:
  PictureBoxView(PictureBox& box, QWidget& widget, FormView& form);

 private:
  void show() override;
  void stackWidgets();
  bool paint(const QEvent& event);
  void paintOutlines(QPainter& painter) const;

  PictureBox& box_;
  QImage image_;
};

}  // namespace orvane
