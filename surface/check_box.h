#pragma once

#include "surface/control.h"

namespace orvane {

class CheckBox : public Control {
 public:
  struct Design {
    std::string caption = {};
    int value = 0;
  };

  CheckBox(Place place, std::string name, Design design = byDefault<Design>());

  // 0 unchecked, 1 checked.
  int Value() const { return value_; }
  void setValue(int value);
  const std::string& Caption() const { return caption_; }

  Event<> Click{*this};

  std::string_view kind() const override { return "case à cocher"; }
  PropertyList properties() const override;
  Effect prepareClick() override;

 private:
  int value_;
  std::string caption_;
};

}  // namespace orvane
