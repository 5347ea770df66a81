#pragma once

#include "surface/control.h"

namespace orvane {

// A sorted list of texts.
class ListBox : public Control {
 public:
  struct Design {};

  ListBox(Place place, std::string name) : ListBox(place, std::move(name), Design()) {}

  ListBox(Place place, std::string name, Design design);

  // Puts the entry at its place in alphabetical order, behind equal ones; the selected entry stays selected.
  void AddItem(std::string text);
  // Fails outside the list. Removing the selected entry leaves none selected; no event.
  void RemoveItem(int index);
  // 0-based index of the entry added last, -1 before the first.
  int NewIndex() const { return newIndex_; }
  int ListCount() const { return static_cast<int>(items_.size()); }
  // Both fail outside the list. A write leaves the entry where it stands, sorted or not.
  const std::string& List(int index) const { return items_[checked(index)]; }
  void setList(int index, std::string text) { store(items_[checked(index)], std::move(text)); }

  // 0-based, -1 for none. The write fails outside the list.
  int ListIndex() const { return listIndex_; }
  void setListIndex(int index);
  // The selected entry, empty for none.
  std::string Text() const { return listIndex_ == -1 ? std::string() : List(listIndex_); }

  Event<> Click{*this};

  std::string_view kind() const override { return "liste"; }
  PropertyList properties() const override;
  Effect preparePick(const Entry& entry) override;

 private:
  std::size_t checked(int index) const;

  std::vector<std::string> items_;
  int listIndex_ = -1;
  int newIndex_ = -1;
};

}  // namespace orvane
