#pragma once

#include <vector>

#include "surface/control.h"
#include "surface/list_item.h"

namespace orvane {

struct ColumnHeader {
  float width = 0;  // twips; 0 hides the column, which still holds its data
  bool rightAligned = false;

  bool operator==(const ColumnHeader&) const = default;
};

// Rows in columns without captions.
class ListView : public Control {
 public:
  struct Design {
    float width = 0;  // twips
    bool checkBoxes = false;
    bool labelEdit = false;    // the names are edited in place, as far as BeforeLabelEdit allows
    int longestLabel = 32767;  // characters that the user can type into a name
  };

  ListView(Place place, std::string name, Design design = byDefault<Design>());
  // Rows that someone still holds let go of the list.
  ~ListView() override;

  float Width() const { return design_.width; }
  bool checkBoxes() const { return design_.checkBoxes; }
  bool labelEdit() const { return design_.labelEdit; }
  int longestLabel() const { return design_.longestLabel; }

  const std::vector<ColumnHeader>& ColumnHeaders() const { return columns_; }
  void clearColumnHeaders();
  void addColumnHeader(float widthTwips, bool rightAligned = false);

  // The first row of an empty list becomes the selected one.
  ListItemRef Add();
  void Clear();
  int Count() const { return static_cast<int>(rows_.size()); }
  // 1-based; fails outside the list.
  const ListItemRef& ListItems(int position) const;
  const std::vector<ListItemRef>& rows() const { return rows_; }
  // None only while the list is empty.
  const ListItemRef& SelectedItem() const { return selected_; }

  // Puts the rows in the French alphabetical order of column SortKey once, at each call; equal names keep their order.
  void setSortKey(int column) { sortKey_ = column; }
  void sort();

  Event<ListItemRef> ItemClick{*this};
  Event<ListItemRef> ItemCheck{*this};
  Event<bool&> BeforeLabelEdit{*this};
  Event<bool&, std::string&> AfterLabelEdit{*this};

  std::string_view kind() const override { return "liste à colonnes"; }
  PropertyList properties() const override;
  Effect prepareRow(const Entry& row) override;
  Effect prepareToggle(const Entry& row) override;
  // Clicks the row; edits its name where that is allowed, else does nothing else.
  Effect prepareEdit(const Entry& row, std::string text) override;

  // The two halves of an edit, for a screen that lets the user type in between. The row was clicked before.
  bool beginEdit();
  void endEdit(const ListItemRef& row, std::string text);

 private:
  friend class ListItem;

  ListItemRef rowOf(const Entry& row) const;
  void releaseRows();
  void clickRow(const ListItemRef& row);
  void toggle(const ListItemRef& row);
  std::string sortText(const ListItem& row) const;

  Design design_;
  std::vector<ColumnHeader> columns_;
  std::vector<ListItemRef> rows_;
  ListItemRef selected_;
  int sortKey_ = 0;
};

}  // namespace orvane
