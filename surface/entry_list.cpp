#include "surface/entry_list.h"

namespace orvane {

void EntryList::insert(int index, Item item) {
  items_.insert(items_.begin() + index, std::move(item));
  newIndex_ = index;
  if (listIndex_ >= index) ++listIndex_;
  changed();
}

void EntryList::setListIndex(int index) {
  if (index != -1) checked(index);
  if (store(listIndex_, index)) Click.fire();
}

Effect EntryList::preparePick(const Entry& entry) {
  const int index = entryPosition(*this, entry, 0, ListCount(), [this](int i) { return List(i); });
  return [this, index] {
    if (index != listIndex_)
      setListIndex(index);
    else
      Click.fire();
  };
}

}  // namespace orvane
