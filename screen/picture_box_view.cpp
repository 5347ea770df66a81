#include "screen/picture_box_view.h"

#include <algorithm>

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "canvas/qt_pictures.h"
#include "canvas/qt_text.h"
#include "screen/form_view.h"
#include "screen/measures.h"
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

QRect placeOf(const Shape& shape) {
  return {pixels(shape.Left()), pixels(shape.Top()), pixels(shape.Width()), pixels(shape.Height())};
}

QString inWords(const QString& lost) { return QStringLiteral("Sans place sur la feuille : ") + lost; }

}  // namespace

PictureBoxView::PictureBoxView(PictureBox& box, QWidget& widget, FormView& form)
    : View(box, widget, form), box_(box), window_(form.root()) {
  widget.setAutoFillBackground(true);  // it covers what is scrolled under it
  if (box_.hasPicture()) onEvent(widget, [this](QEvent& event) { return happened(event); });
  onEvent(form.root(), [this](QEvent& event) {
    if (event.type() == QEvent::Resize) place();
    return false;
  });
}

void PictureBoxView::show() {
  place();
  stackWidgets();
  if (!box_.hasPicture()) return;
  image_ = image(box_.Image());
  QStringList lost;
  for (const auto& [place, words] : losses()) lost << words;
  widget().setAccessibleDescription(lost.isEmpty() ? QString() : inWords(lost.join(", ")));
  widget().update();
}

void PictureBoxView::place() {
  placeWidget(box_, widget());
  const int beyond = beyondDesign(box_.form(), window_).width();
  if (box_.hasPicture())
    widget().move(widget().pos() + QPoint(std::max(0, beyond / 2), 0));
  else if (widget().width() == designSize(box_.form()).width())
    widget().resize(widget().width() + beyond, widget().height());
}

void PictureBoxView::stackWidgets() {
  for (auto* control : backToFront(box_.form()))
    if (View* view = viewOf(*control)) view->widget().raise();
}

bool PictureBoxView::happened(const QEvent& event) {
  if (event.type() == QEvent::Paint) paint();
  if (event.type() == QEvent::ToolTip) tellLost(static_cast<const QHelpEvent&>(event));
  return event.type() == QEvent::Paint || event.type() == QEvent::ToolTip;
}

void PictureBoxView::paint() {
  QPainter painter(&widget());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRect(QPoint(), image_.size()), image_);
  paintOutlines(painter);
  paintCorners(painter);
}

void PictureBoxView::paintOutlines(QPainter& painter) const {
  painter.setPen(Qt::black);
  for (auto* control : box_.form().controls()) {
    const auto* shape = dynamic_cast<Shape*>(control);
    if (!shape || shape->holder() != &box_ || shape->BorderStyle() == 0 || !shape->Visible()) continue;
    painter.drawRect(placeOf(*shape));
  }
}

void PictureBoxView::paintCorners(QPainter& painter) const {
  constexpr int side = 12;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor("#c62828"));
  for (const auto& [place, words] : losses()) {
    const QPoint corner = place.bottomRight() + QPoint(1, 1);
    painter.drawPolygon(QPolygon{corner, corner - QPoint(side, 0), corner - QPoint(0, side)});
  }
}

void PictureBoxView::tellLost(const QHelpEvent& event) const {
  QString told;
  for (const auto& [place, words] : losses())
    if (place.contains(event.pos())) told = "<p>" + inWords(words).toHtmlEscaped() + "</p>";
  QToolTip::showText(event.globalPos(), told, &widget());
}

std::vector<std::pair<QRect, QString>> PictureBoxView::losses() const {
  std::vector<std::pair<QRect, QString>> found;
  if (!box_.log()) return found;
  for (auto* control : box_.form().controls()) {
    const auto* shape = dynamic_cast<Shape*>(control);
    if (!shape || shape->holder() != &box_) continue;
    for (const auto& [id, words] : box_.log()->lost)
      if (id == shape->id()) found.emplace_back(placeOf(*shape), toQt(words));
  }
  return found;
}

}  // namespace orvane
