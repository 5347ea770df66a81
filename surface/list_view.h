#pragma once

#include <memory>
#include <vector>

#include "surface/control.h"

namespace orvane {

class ListItem;
class ListView;

using ListItemRef = std::shared_ptr<ListItem>;

// The look of one cell beside a row's name.
class ListSubItem {
 public:
  bool Bold() const { return bold_; }
  void setBold(bool bold);
  Colour ForeColor() const { return foreColor_; }
  void setForeColor(Colour colour);

 private:
  friend class ListItem;
  explicit ListSubItem(ListItem& row) : row_(row) {}

  ListItem& row_;
  std::string text_;
  bool bold_ = false;
  Colour foreColor_ = Colour::WindowText;
};

// A row of a list view. It outlives its list for whoever still refers to it.
class ListItem {
 public:
  ListItem(ListView& list, int subItems);

  const std::string& Text() const { return text_; }
  void setText(std::string text);
  // Columns behind the name, from 1; fail with a column that the list does not have.
  const std::string& SubItems(int column) const { return cell(column).text_; }
  void setSubItems(int column, std::string text);
  ListSubItem& ListSubItems(int column) { return cells_[checked(column)]; }
  const ListSubItem& ListSubItems(int column) const { return cell(column); }
  int subItemCount() const { return static_cast<int>(cells_.size()); }

  bool Bold() const { return bold_; }
  void setBold(bool bold) { store(bold_, bold); }
  bool Checked() const { return checked_; }
  void setChecked(bool checked) { store(checked_, checked); }
  Colour ForeColor() const { return foreColor_; }
  void setForeColor(Colour colour) { store(foreColor_, colour); }
  bool Selected() const;
  // Makes it the selected row of its list.
  void select();
  // 1-based position in its list, 0 once it was removed.
  int Index() const;

 private:
  friend class ListSubItem;
  friend class ListView;

  std::size_t checked(int column) const;
  const ListSubItem& cell(int column) const { return cells_[checked(column)]; }
  template <class T>
  void store(T& field, T value) {
    if (field == value) return;
    field = std::move(value);
    changed();
  }
  void changed();

  ListView* list_;
  std::string text_;
  std::vector<ListSubItem> cells_;
  bool bold_ = false;
  bool checked_ = false;
  Colour foreColor_ = Colour::WindowText;
};

struct ColumnHeader {
  float width = 0;  // twips; 0 hides the column, which still holds its data
  bool rightAligned = false;
};

// Rows in columns without captions.
class ListView : public Control {
 public:
  struct Design {
    float width = 0;  // twips
    bool checkBoxes = false;
    bool labelEdit = false;  // the names are edited in place, as far as BeforeLabelEdit allows
  };

  ListView(Place place, std::string name, Design design = byDefault<Design>());
  // Rows that someone still holds let go of the list.
  ~ListView() override;

  float Width() const { return design_.width; }
  bool checkBoxes() const { return design_.checkBoxes; }
  bool labelEdit() const { return design_.labelEdit; }

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
