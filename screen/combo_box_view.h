#pragma once

#include <QStyledItemDelegate>

#include "screen/steady_combo.h"
#include "screen/view.h"
#include "surface/combo_box.h"

namespace orvane {

// Lets the numbers that entries begin with end below one another.
class NumberDelegate final : public QStyledItemDelegate {
 public:
  // Of the widest number, in digits.
  int digits = 0;

  QString displayText(const QVariant& value, const QLocale& locale) const override;
};

class ComboBoxView final : public View {
 public:
  ComboBoxView(ComboBox& box, SteadyCombo& combo, FormView& form);

 private:
  void show() override;
  void showEntries();
  void showSelection();
  bool entriesDiffer() const;

  ComboBox& box_;
  SteadyCombo& combo_;
  NumberDelegate numbers_;
};

}  // namespace orvane
