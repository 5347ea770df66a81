#pragma once

#include "surface/world.h"

namespace orvane {

// Whoever sits before a window that no one sees: takes what is asked for granted.
class Nobody : public Dialogs {
 public:
  Answer MsgBox(const std::string&, BoxStyle, const std::string&) override { return Answer::OK; }
  void runModal(Form&) override {}
  void failure(const std::string&) override {}
  void notice(const std::string&) override {}
};

}  // namespace orvane
