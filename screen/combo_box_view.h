#pragma once

#include <QComboBox>

#include "screen/view.h"
#include "surface/combo_box.h"

namespace orvane {

class ComboBoxView final : public View {
 public:
  ComboBoxView(ComboBox& box, QComboBox& combo, FormView& form);

 private:
  void show() override;
  void showEntries();
  void showSelection();
  bool entriesDiffer() const;

  ComboBox& box_;
  QComboBox& combo_;
};

}  // namespace orvane
