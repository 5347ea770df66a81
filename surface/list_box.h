#pragma once

#include "surface/entry_list.h"

namespace orvane {

// A sorted list of texts.
class ListBox : public EntryList {
 public:
  using EntryList::EntryList;

  // Puts the entry at its place in alphabetical order, behind equal ones; the selected entry stays selected.
  void AddItem(std::string text);
  // Fails outside the list. Removing the selected entry leaves none selected; no event.
  void RemoveItem(int index);
  // Fails outside the list. Leaves the entry where it stands, sorted or not.
  void setList(int index, std::string text) { store(items_[checked(index)].text, std::move(text)); }
  // The selected entry, empty for none.
  std::string Text() const { return listIndex_ == -1 ? "" : List(listIndex_); }

  std::string_view kind() const override { return "liste"; }
  PropertyList properties() const override;
};

}  // namespace orvane
