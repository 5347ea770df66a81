#pragma once

#include <QAbstractButton>

#include "screen/view.h"
#include "surface/commandbutton.h"

namespace orvane {

class ButtonView final : public View {
 public:
  ButtonView(CommandButton& command, QAbstractButton& button, FormView& form);

 private:
  void show() override;
  void showArrow();
  bool enterPressed(const QEvent& event);
  void click();

  CommandButton& command_;
  QAbstractButton& button_;
};

}  // namespace orvane
