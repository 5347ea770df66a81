#include "surface/list_item.h"

#include <algorithm>

#include "surface/list_view.h"

namespace orvane {

void ListSubItem::setBold(bool bold) { row_.store(bold_, bold); }
void ListSubItem::setForeColor(Colour colour) { row_.store(foreColor_, colour); }

ListItem::ListItem(ListView& list, int subItems) : list_(&list) {
  cells_.reserve(static_cast<std::size_t>(subItems));
  for (int i = 0; i < subItems; ++i) cells_.push_back(ListSubItem(*this));
}

void ListItem::setText(std::string text) { store(text_, std::move(text)); }

void ListItem::setSubItems(int column, std::string text) { store(cells_[checked(column)].text_, std::move(text)); }

std::size_t ListItem::checked(int column) const {
  return offsetOf(column, 1, subItemCount(), "de colonne", "la ligne");
}

bool ListItem::Selected() const { return list_ && list_->selected_.get() == this; }

void ListItem::select() {
  if (!list_ || Selected()) return;
  list_->selected_ = list_->ListItems(Index());
  changed();
}

int ListItem::Index() const {
  if (!list_) return 0;
  const auto& rows = list_->rows_;
  const auto place = std::find_if(rows.begin(), rows.end(), [this](auto& row) { return row.get() == this; });
  return static_cast<int>(place - rows.begin()) + 1;
}

void ListItem::changed() {
  if (list_) list_->changed();
}

}  // namespace orvane
