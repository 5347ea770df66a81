#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QHash>
#include <QTimer>
#include <QTreeWidget>

#include "screen/list_delegate.h"
#include "screen/view.h"
#include "surface/list_view.h"

namespace orvane {

// The rows of a list view, a tree item for each; the first column takes the room that the others leave.
class ListViewView final : public View {
 public:
  ListViewView(ListView& list, QTreeWidget& tree, FormView& form);
  ~ListViewView() override;

 private:
  void show() override;
  void reveal() override;
  void say(const QString& text) override;
  void tellTick(int row);
  void showColumns();
  void showRows();
  void showRow(const ListItem& row, QTreeWidgetItem& item) const;
  void showSelection();
  void fitColumns();
  void fitWidth();
  int widthOfTexts(int column) const;

  bool viewportEvent(QEvent& event);
  bool treeEvent(QEvent& event);
  bool pressed(const QPoint& where, bool twice);
  bool onCheckBox(QTreeWidgetItem& item, const QPoint& where) const;
  void clickRow(QTreeWidgetItem* item);
  void toggle(QTreeWidgetItem* item);
  // Of the selected row, whose name the user has asked for.
  void beginEdit();
  void endEdit(const QString& text);
  void editClosed();
  int positionOf(QTreeWidgetItem* item) const { return tree_.indexOfTopLevelItem(item) + 1; }

  ListView& list_;
  QTreeWidget& tree_;
  ListItemRef edited_;
  std::optional<std::vector<ColumnHeader>> shownColumns_;
  // Ends with the view: an editor that is still open hands its text to nobody.
  ListDelegate delegate_{list_.longestLabel(), [this](const QString& text) { endEdit(text); }};
  // The click that brought the focus is none for the name.
  bool entered_ = false;
  QTimer secondClick_;
};

}  // namespace orvane
