#pragma once

#include "surface/control.h"

namespace orvane {

class CommandButton : public Control {
 public:
  enum class Picture { None, LeftArrow, RightArrow };
  struct Design {
    std::string caption = {};
    Picture picture = Picture::None;
    bool cancel = false;  // the Escape key presses it
    bool visible = true;
  };

  CommandButton(Place place, std::string name, Design design = byDefault<Design>())
      : Control(place, std::move(name)), design_(std::move(design)) {
    setVisible(design_.visible);
  }

  const std::string& Caption() const { return design_.caption; }
  Picture picture() const { return design_.picture; }
  bool isCancel() const { return design_.cancel; }

  Event<> Click{*this};

  std::string_view kind() const override { return "bouton"; }
  PropertyList properties() const override;
  Effect prepareClick() override;

 private:
  Design design_;
};

// The button of a form that the Escape key presses; null for none.
CommandButton* cancelButton(const Form& form);

// The designs of a pair of arrow buttons: index 0 steps down, index 1 steps up.
inline const CommandButton::Design leftArrow{.picture = CommandButton::Picture::LeftArrow};
inline const CommandButton::Design rightArrow{.picture = CommandButton::Picture::RightArrow};

}  // namespace orvane
