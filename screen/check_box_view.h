#pragma once

#include <QCheckBox>

#include "screen/view.h"
#include "surface/check_box.h"

namespace orvane {

class CheckBoxView final : public View {
 public:
  CheckBoxView(CheckBox& box, QCheckBox& button, FormView& form);

 private:
  void show() override;

  CheckBox& box_;
  QCheckBox& button_;
};

}  // namespace orvane
