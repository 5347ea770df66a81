#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QPointer>

namespace orvane {

// A combo that makes no list before somebody asks for it, which would be a good part of opening a window. It asks for
// the room of minimumContentsLength characters and some air, whatever its entries: the policy of Qt makes the list.
class SteadyCombo final : public QComboBox {
 public:
  using QComboBox::QComboBox;

  // For the layouts: Qt's own makes the list as well, and a completer, which would type what the user has not typed.
  void setEditable(bool editable) {
    if (!editable || isEditable()) return QComboBox::setEditable(editable);
    static QPointer<QCompleter> none;
    if (!none) none = new QCompleter(qApp);
    auto* edit = new QLineEdit(this);
    edit->setCompleter(none);
    setLineEdit(edit);
    edit->setCompleter(nullptr);
  }

  // How the entries of the list are painted; outlives it.
  void setListDelegate(QAbstractItemDelegate& delegate) { listDelegate_ = &delegate; }
  void showPopup() override {
    if (listDelegate_) view()->setItemDelegate(listDelegate_);
    QComboBox::showPopup();
  }

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override {
    constexpr int besideIcon = 4;
    return QComboBox::minimumSizeHint() + QSize(iconSize().width() + besideIcon, 0);
  }

 private:
  QAbstractItemDelegate* listDelegate_ = nullptr;
};

}  // namespace orvane
