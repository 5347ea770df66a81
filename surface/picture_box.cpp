#include "surface/picture_box.h"

#include "surface/desktop.h"
#include "surface/failure.h"

namespace orvane {

PictureBox::PictureBox(Place place, std::string name, Design design)
    : PlacedControl(place, std::move(name)), log_(design.log) {
  if (design.picture.empty()) return;
  canvas_ = form().desktop().world().pictures.open(design.picture);
  chooseFont();
}

void PictureBox::setAutoSize(bool autoSize) {
  if (store(autoSize_, autoSize) && autoSize && canvas_) setSizeTwips(canvas_->width(), canvas_->height());
}

Canvas& PictureBox::canvas() const {
  if (!canvas_) throw Failure(id() + " ne porte pas d'image.");
  return *canvas_;
}

void PictureBox::chooseFont() { canvas().setFont(fontName_, fontSize_); }

void PictureBox::setFontName(std::string name) {
  if (store(fontName_, std::move(name))) chooseFont();
}

void PictureBox::setFontSize(float points) {
  if (store(fontSize_, points)) chooseFont();
}

void PictureBox::Print(const std::string& text) {
  canvas().print(text, currentX_, currentY_);
  if (log_ && !text.empty()) log_->printed.push_back({this, text, currentX_, currentY_, fontSize_});
  changed();
}

void PictureBox::noteLost(const std::string& shape, std::string words) {
  if (log_) log_->lost.push_back({shape, std::move(words)});
}

PropertyList PictureBox::properties() const {
  return {{"Left", Left()}, {"Top", Top()}, {"Width", Width()}, {"Height", Height()}, {"Visible", Visible()}};
}

}  // namespace orvane
