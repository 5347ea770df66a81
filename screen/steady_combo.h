#pragma once

#include <QComboBox>

namespace orvane {

// Asks for the room of minimumContentsLength characters and some air, whatever its entries. Qt has a policy for that,
// but with it each combo makes its list while the window opens, long before anybody asks for one.
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
