#pragma once

#include "surface/control.h"

namespace orvane {

class ComboBox : public Control {
 public:
  struct Item {
    std::string text;
    std::int32_t itemData = 0;
  };
  struct Design {
    bool editable = false;  // the user can also type
    std::vector<Item> items = {};
  };

  ComboBox(Place place, std::string name) : ComboBox(place, std::move(name), Design()) {}

  ComboBox(Place place, std::string name, Design design);

  void AddItem(std::string text);
  // Silent: ListIndex becomes -1, the text empty.
  void Clear();
  // 0-based index of the entry added last, -1 before the first.
  int NewIndex() const { return newIndex_; }
  int ListCount() const { return static_cast<int>(items_.size()); }
  // The three fail with an index outside the list.
  std::int32_t ItemData(int index) const { return items_[checked(index)].itemData; }
  void setItemData(int index, std::int32_t data) { items_[checked(index)].itemData = data; }
  const std::string& List(int index) const { return items_[checked(index)].text; }

  // 0-based, -1 for none. The write fails outside the list.
  int ListIndex() const { return listIndex_; }
  void setListIndex(int index);
  // The selected entry, or the typed text.
  const std::string& Text() const { return text_; }
  Colour BackColor() const { return backColor_; }
  void setBackColor(Colour colour) { store(backColor_, colour); }
  bool editable() const { return editable_; }

  Event<> Click{*this};
  Event<> Change{*this};

  std::string_view kind() const override { return "liste déroulante"; }
  PropertyList properties() const override;
  // Selects the entry that equals the text, if any; runs Change, never Click.
  Effect prepareType(std::string text) override;
  // Runs Click also for the entry that is selected already: an entry was picked.
  Effect preparePick(const Entry& entry) override;

 private:
  std::size_t checked(int index) const;
  int indexOf(std::string_view text) const;
  void type(std::string text);
  void pick(int index);

  bool editable_;
  std::vector<Item> items_;
  int listIndex_ = -1;
  int newIndex_ = -1;
  std::string text_;
  Colour backColor_ = Colour::WindowBackground;
};

}  // namespace orvane
