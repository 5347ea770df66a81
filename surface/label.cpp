#include "surface/label.h"

namespace orvane {

Label::Label(Place place, std::string name, Design design)
    : Control(place, std::move(name)), caption_(std::move(design.caption)), tag_(std::move(design.tag)) {}

PropertyList Label::properties() const {
  return {{"Caption", caption_}, {"Enabled", Enabled()}, {"Visible", Visible()}};
}

Effect Label::prepareClick() {
  return [this] { Click.fire(); };
}

}  // namespace orvane
