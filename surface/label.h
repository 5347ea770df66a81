#pragma once

#include "surface/control.h"

namespace orvane {

class Label : public Control {
 public:
  struct Design {
    std::string caption = {};
    std::string tag = {};
  };

  Label(Place place, std::string name, Design design = byDefault<Design>())
      : Control(place, std::move(name)), design_(std::move(design)) {}

  const std::string& Caption() const { return design_.caption; }
  void setCaption(std::string caption) { store(design_.caption, std::move(caption)); }
  const std::string& Tag() const { return design_.tag; }

  Event<> Click{*this};

  std::string_view kind() const override { return "étiquette"; }
  PropertyList properties() const override;
  bool takesFocus() const override { return false; }
  Effect prepareClick() override;

 private:
  Design design_;
};

}  // namespace orvane
