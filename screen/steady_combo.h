#pragma once

#include <QComboBox>

namespace orvane {

// Asks for the room of minimumContentsLength characters and some air, whatever its entries. Qt has a policy for that,
// which makes the list that is to come up at once: a tenth of the time to open a character.
class SteadyCombo final : public QComboBox {
 public:
  using QComboBox::QComboBox;

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override {
    constexpr int besideIcon = 4;
    return QComboBox::minimumSizeHint() + QSize(iconSize().width() + besideIcon, 0);
  }
};

}  // namespace orvane
