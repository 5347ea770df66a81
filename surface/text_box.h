#pragma once

#include "surface/control.h"

namespace orvane {

class TextBox : public Control {
 public:
  struct Design {
    bool readOnly = false;  // to the user; code writes all the same
    std::string text = {};
  };

  TextBox(Place place, std::string name, Design design = byDefault<Design>());

  const std::string& Text() const { return text_; }
  void setText(std::string text);
  Colour BackColor() const { return backColor_; }
  void setBackColor(Colour colour) { store(backColor_, colour); }
  bool readOnly() const { return readOnly_; }

  Event<> Change{*this};

  std::string_view kind() const override { return "zone de texte"; }
  PropertyList properties() const override;
  Effect prepareType(std::string text) override;

 private:
  std::string text_;
  Colour backColor_ = Colour::WindowBackground;
  bool readOnly_;
};

}  // namespace orvane
