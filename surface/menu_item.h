#pragma once

#include "surface/control.h"

namespace orvane {

// An entry of a menu. Entries are declared in the order of the menu; one of level 1 opens those of level 2 behind it.
class MenuItem : public Control {
 public:
  struct Design {
    int level = 2;
    std::string caption = {};  // "-" is a separator
    std::string shortcut = {};
  };

  MenuItem(Place place, std::string name, Design design)
      : Control(place, std::move(name)), design_(std::move(design)) {}

  int level() const { return design_.level; }
  const std::string& Caption() const { return design_.caption; }
  const std::string& shortcut() const { return design_.shortcut; }
  bool isSeparator() const { return design_.caption == "-"; }

  Event<> Click{*this};

  std::string_view kind() const override { return "menu"; }
  bool takesFocus() const override { return false; }
  Effect prepareClick() override {
    if (level() == 1 || isSeparator()) return Control::prepareClick();
    return [this] { Click.fire(); };
  }

 private:
  Design design_;
};

}  // namespace orvane
