#pragma once

#include <utility>
#include <vector>

#include <QImage>

#include "screen/view.h"
#include "surface/picture_box.h"

class QHelpEvent;
class QPainter;

namespace orvane {

// Shows a picture pixel for pixel at 100 %, smoothly enlarged on a denser screen, in the middle of a window that is
// wider; a strip without a picture is as wide as the window. Where a box could not take all of its text a corner is
// marked, on the screen only, and its tooltip gives the lost words.
class PictureBoxView final : public View {
 public:
  PictureBoxView(PictureBox& box, QWidget& widget, FormView& form);

 private:
  void show() override;
  void place();
  void stackWidgets();
  bool happened(const QEvent& event);
  void paint();
  void paintOutlines(QPainter& painter) const;
  void paintCorners(QPainter& painter) const;
  void tellLost(const QHelpEvent& event) const;
  // Each box of this picture that has lost words, with them.
  std::vector<std::pair<QRect, QString>> losses() const;

  PictureBox& box_;
  const QWidget& window_;
  QImage image_;
};

}  // namespace orvane
