#include "surface/list_box.h"

#include <algorithm>

#include "surface/text.h"

namespace orvane {

void ListBox::AddItem(std::string text) {
  const std::string key = sortKey(text);
  const auto place = std::find_if(items_.begin(), items_.end(), [&](auto& item) { return sortKey(item.text) > key; });
  insert(static_cast<int>(place - items_.begin()), {std::move(text)});
}

void ListBox::RemoveItem(int index) {
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(checked(index)));
  if (listIndex_ == index)
    listIndex_ = -1;
  else if (listIndex_ > index)
    --listIndex_;
  changed();
}

PropertyList ListBox::properties() const {
  return {{"ListIndex", listIndex_},
          {"Text", Text()},
          {"ListCount", ListCount()},
          {"Enabled", Enabled()},
          {"Visible", Visible()}};
}

}  // namespace orvane
