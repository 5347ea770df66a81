#pragma once

#include <vector>

#include <QRadioButton>

#include "screen/view.h"
#include "surface/option_button.h"

namespace orvane {

// The surface rules the group; to Qt each button stands alone.
class OptionButtonView final : public View {
 public:
  OptionButtonView(OptionButton& option, QRadioButton& button, FormView& form);

 private:
  void show() override;
  bool arrowPressed(const QEvent& event);
  void moveBy(int step);
  std::vector<OptionButton*> row() const;

  OptionButton& option_;
  QRadioButton& button_;
};

}  // namespace orvane
