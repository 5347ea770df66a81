#include "screen/picture_box_view.h"

#include <algorithm>
#include <vector>

#include <QPainter>

#include "canvas/qt_pictures.h"
#include "screen/measures.h"
#include "surface/form.h"
#include "surface/shape.h"

namespace orvane {
namespace {

std::vector<PlacedControl*> backToFront(const Form& form) {
  std::vector<PlacedControl*> placed;
  for (auto* control : form.controls())
    if (auto* one = dynamic_cast<PlacedControl*>(control)) placed.push_back(one);
  std::stable_sort(placed.begin(), placed.end(), [](auto* a, auto* b) { return a->zOrder() < b->zOrder(); });
  return placed;
}

}  // namespace

PictureBoxView::PictureBoxView(PictureBox& box, QWidget& widget, FormView& form) : View(box, widget, form), box_(box) {
  widget.setAutoFillBackground(true);  // it covers what is scrolled under it
  if (box_.hasPicture()) onEvent(widget, [this](QEvent& event) { return paint(event); });
}

void PictureBoxView::show() {
  placeWidget(box_, widget());
  stackWidgets();
  if (!box_.hasPicture()) return;
  image_ = image(box_.Image());
  widget().update();
}

void PictureBoxView::stackWidgets() {
  for (auto* control : backToFront(box_.form()))
    if (View* view = viewOf(*control)) view->widget().raise();
}

bool PictureBoxView::paint(const QEvent& event) {
  if (event.type() != QEvent::Paint) return false;
  QPainter painter(&widget());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRect(QPoint(), image_.size()), image_);
  paintOutlines(painter);
  return true;
}

void PictureBoxView::paintOutlines(QPainter& painter) const {
  painter.setPen(Qt::black);
  for (auto* control : box_.form().controls()) {
    const auto* shape = dynamic_cast<Shape*>(control);
    if (!shape || shape->holder() != &box_ || shape->BorderStyle() == 0 || !shape->Visible()) continue;
    painter.drawRect(pixels(shape->Left()), pixels(shape->Top()), pixels(shape->Width()), pixels(shape->Height()));
  }
}

}  // namespace orvane
