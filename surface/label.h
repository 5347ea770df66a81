#pragma once

#include "surface/control.h"

namespace orvane {

class Label : public Control {
 public:
  struct Design {
    std::string caption = {};
    std::string tag = {};
  };

  Label(Place place, std::string name, Design design = byDefault<Design>());

  const std::string& Caption() const { return caption_; }
  void setCaption(std::string caption) { store(caption_, std::move(caption)); }
  const std::string& Tag() const { return tag_; }

  Event<> Click{*this};

  std::string_view kind() const override { return "étiquette"; }
  PropertyList properties() const override;
  bool takesFocus() const override { return false; }
  Effect prepareClick() override;

 private:
  std::string caption_;
  std::string tag_;
};

}  // namespace orvane
