#pragma once

#include <functional>

#include <QStyledItemDelegate>

namespace orvane {

// Where a cell keeps the colour that its control gave it, a Colour as unsigned number.
inline constexpr int cellColourRole = Qt::UserRole + 1;

// Whether a row belongs to every second group of rows, whose ground is a little darker or lighter.
inline constexpr int stripeRole = Qt::UserRole + 2;

// Paints the colours of cells so that they can be read, selected or not, pales the selection of a list that another
// one has taken over from, and hands on what was typed into a name.
class ListDelegate final : public QStyledItemDelegate {
 public:
  using Typed = std::function<void(const QString&)>;

  // At most so many characters can be typed into a name.
  ListDelegate(int longest, Typed typed) : longest_(longest), typed_(std::move(typed)) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

 protected:
  // Tab ends an edit like Enter; Qt would open the next row's name, whether it may be edited or not.
  bool eventFilter(QObject* editor, QEvent* event) override;
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  int longest_;
  Typed typed_;
};

}  // namespace orvane
