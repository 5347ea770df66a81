#pragma once

#include <QAbstractButton>
#include <QShortcut>

#include "screen/view.h"
#include "surface/command_button.h"

namespace orvane {

class CommandButtonView final : public View {
 public:
  CommandButtonView(CommandButton& command, QAbstractButton& button, FormView& form);

 private:
  void show() override;
  void showArrow();
  // The letter of a disabled button takes the keyboard on, and is no other button's.
  void keepLetter();
  void passOn();
  bool enterPressed(const QEvent& event);
  void click();

  CommandButton& command_;
  QAbstractButton& button_;
  QShortcut& passing_;
};

}  // namespace orvane
