#include "surface/form.h"

#include <utility>

#include "surface/desktop.h"

namespace orvane {

float twipsPerUnit(int scaleMode) {
  constexpr float twipsPerCentimetre = 1440.0F / 2.54F;
  return scaleMode == 7 ? twipsPerCentimetre : 1.0F;
}

Form::Form(Desktop& desktop, Design design) : desktop_(desktop), design_(std::move(design)) {}

void Form::setCaption(std::string caption) {
  if (design_.caption == caption) return;
  design_.caption = std::move(caption);
  desktop_.tell(&DesktopObserver::captionChanged, *this);
}

float Form::ScaleWidth() const { return design_.scaleWidth / twipsPerUnit(scaleMode_); }
float Form::ScaleHeight() const { return design_.scaleHeight / twipsPerUnit(scaleMode_); }

void Form::Load() { desktop_.load(*this); }
void Form::Show() { desktop_.show(*this); }
void Form::ShowModal() { desktop_.showModal(*this); }
void Form::Unload() { desktop_.unload(*this); }

void Form::Refresh() { desktop_.tell(&DesktopObserver::refresh, *this); }

Control* Form::find(std::string_view name, std::optional<int> index) const {
  for (auto* control : controls_)
    if (control->Name() == name && control->Index() == index) return control;
  return nullptr;
}

}  // namespace orvane
