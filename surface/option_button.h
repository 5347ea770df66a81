#pragma once

#include "surface/control.h"

namespace orvane {

// One of a group: all option buttons with the same direct holder, of which at most one is selected.
class OptionButton : public Control {
 public:
  struct Design {
    std::string caption = {};
    std::string tag = {};
  };

  OptionButton(Place place, std::string name, Design design = byDefault<Design>())
      : Control(place, std::move(name)), design_(std::move(design)) {}

  bool Value() const { return value_; }
  // Selecting one clears the others of the group; only the one selected fires Click.
  void setValue(bool value);
  const std::string& Caption() const { return design_.caption; }
  const std::string& Tag() const { return design_.tag; }

  Event<> Click{*this};

  std::string_view kind() const override { return "bouton d'option"; }
  PropertyList properties() const override;
  Effect prepareClick() override;

 private:
  void clearGroup();

  bool value_ = false;
  Design design_;
};

}  // namespace orvane
