#include "surface/list_box.h"

#include <algorithm>

#include "surface/entries.h"
#include "surface/failure.h"
#include "surface/text.h"

namespace orvane {

ListBox::ListBox(Place place, std::string name, Design) : Control(place, std::move(name)) {}

void ListBox::AddItem(std::string text) {
  const std::string key = sortKey(text);
  const auto place = std::find_if(items_.begin(), items_.end(), [&](auto& item) { return sortKey(item) > key; });
  newIndex_ = static_cast<int>(place - items_.begin());
  items_.insert(place, std::move(text));
  if (listIndex_ >= newIndex_) ++listIndex_;
  changed();
}

void ListBox::RemoveItem(int index) {
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(checked(index)));
  if (listIndex_ == index)
    listIndex_ = -1;
  else if (listIndex_ > index)
    --listIndex_;
  changed();
}

std::size_t ListBox::checked(int index) const {
  if (index < 0 || index >= ListCount())
    throw Failure("Pas d'entrée " + std::to_string(index) + " dans la liste " + id() + ".");
  return static_cast<std::size_t>(index);
}

void ListBox::setListIndex(int index) {
  if (index != -1) checked(index);
  if (store(listIndex_, index)) Click.fire();
}

PropertyList ListBox::properties() const {
  return {{"ListIndex", listIndex_},
          {"Text", Text()},
          {"ListCount", ListCount()},
          {"Enabled", Enabled()},
          {"Visible", Visible()}};
}

Effect ListBox::preparePick(const Entry& entry) {
  const int index = entryPosition(*this, entry, ListCount(), [this](int i) { return List(i); });
  return [this, index] {
    if (index != listIndex_)
      setListIndex(index);
    else
      Click.fire();
  };
}

}  // namespace orvane
