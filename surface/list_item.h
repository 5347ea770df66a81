#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "surface/property.h"

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

}  // namespace orvane
