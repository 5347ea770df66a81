#include "surface/text_box.h"

namespace orvane {

TextBox::TextBox(Place place, std::string name, Design design)
    : Control(place, std::move(name)), text_(std::move(design.text)), readOnly_(design.readOnly) {}

void TextBox::setText(std::string text) {
  if (store(text_, std::move(text))) Change.fire();
}

PropertyList TextBox::properties() const {
  return {{"Text", text_}, {"BackColor", backColor_}, {"Enabled", Enabled()}, {"Visible", Visible()}};
}

Effect TextBox::prepareType(std::string text) {
  if (readOnly_) throw Refusal{id() + " est en lecture seule."};
  return [this, text = std::move(text)] { setText(text); };
}

}  // namespace orvane
