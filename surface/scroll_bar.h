#pragma once

#include "surface/placed_control.h"

namespace orvane {

// Min is 0; the small and the large step are 1.
class ScrollBar : public PlacedControl {
 public:
  struct Design {
    float width = 0;  // twips
    float height = 0;
  };

  ScrollBar(Place place, std::string name, Design design = byDefault<Design>());

  int Value() const { return value_; }
  void setValue(int value);
  int Max() const { return max_; }
  void setMax(int max) { store(max_, max); }

  Event<> Change{*this};

  std::string_view kind() const override { return "barre de défilement"; }
  PropertyList properties() const override;
  Effect prepareScroll(int value) override;

 private:
  int value_ = 0;
  int max_ = 0;
};

}  // namespace orvane
