#include "surface/label.h"

namespace orvane {

PropertyList Label::properties() const {
  return {{"Caption", design_.caption}, {"Enabled", Enabled()}, {"Visible", Visible()}};
}

Effect Label::prepareClick() {
  return [this] { Click.fire(); };
}

}  // namespace orvane
