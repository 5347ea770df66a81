#pragma once

#include <QAbstractButton>

#include "screen/view.h"
#include "surface/command_button.h"

namespace orvane {

class CommandButtonView final : public View {
 public:
  CommandButtonView(CommandButton& command, QAbstractButton& button, FormView& form);

 private:
  void show() override;
  void showArrow();
  bool enterPressed(const QEvent& event);
  void click();

  CommandButton& command_;
  QAbstractButton& button_;
};

}  // namespace orvane
