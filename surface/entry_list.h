#pragma once

#include "surface/control.h"

namespace orvane {

// A control with a list of entries, of which one may be selected: what combo boxes and list boxes share. Positions run
// from 0.
class EntryList : public Control {
 public:
  struct Item {
    std::string text;
    std::int32_t itemData = 0;
  };

  using Control::Control;

  int ListCount() const { return static_cast<int>(items_.size()); }
  // Both fail with an index outside the list.
  const std::string& List(int index) const { return items_[checked(index)].text; }
  std::int32_t ItemData(int index) const { return items_[checked(index)].itemData; }
  // The entry added last, -1 before the first.
  int NewIndex() const { return newIndex_; }

  // -1 for none. The write fails outside the list.
  int ListIndex() const { return listIndex_; }
  virtual void setListIndex(int index);
  // Of the selected entry; fails when there is none.
  std::int32_t selectedData() const { return ItemData(listIndex_); }

  Event<> Click{*this};

  // Runs Click also for the entry that is selected already: an entry was picked.
  Effect preparePick(const Entry& entry) override;

 protected:
  std::size_t checked(int index) const { return offsetOf(index, 0, ListCount(), "d'entrée", Name()); }
  // The selected entry stays selected.
  void insert(int index, Item item);

  std::vector<Item> items_;
  int listIndex_ = -1;
  int newIndex_ = -1;
};

}  // namespace orvane
