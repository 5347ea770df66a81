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

  OptionButton(Place place, std::string name, Design design = byDefault<Design>());

  bool Value() const { return value_; }
  // Selecting one clears the others of the group; only the one selected fires Click.
  void setValue(bool value);
  const std::string& Caption() const { return caption_; }
  const std::string& Tag() const { return tag_; }

  Event<> Click{*this};

  std::string_view kind() const override { return "bouton d'option"; }
  PropertyList properties() const override;
  Effect prepareClick() override;

 private:
  void clearGroup();

  bool value_ = false;
  std::string caption_;
  std::string tag_;
};

}  // namespace orvane
