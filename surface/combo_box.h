#pragma once

#include "surface/entry_list.h"

namespace orvane {

class ComboBox : public EntryList {
 public:
  struct Design {
    bool editable = false;  // the user can also type
    std::vector<Item> items = {};
  };

  ComboBox(Place place, std::string name, Design design = byDefault<Design>());

  void AddItem(std::string text, std::int32_t itemData = 0) { insert(ListCount(), {std::move(text), itemData}); }
  // Silent: ListIndex becomes -1, the text empty.
  void Clear();
  void setListIndex(int index) override;
  // The selected entry, or the typed text.
  const std::string& Text() const { return text_; }
  Colour BackColor() const { return backColor_; }
  void setBackColor(Colour colour) { store(backColor_, colour); }
  bool editable() const { return editable_; }

  Event<> Change{*this};

  std::string_view kind() const override { return "liste déroulante"; }
  PropertyList properties() const override;
  // Selects the entry that equals the text, if any; runs Change, never Click.
  Effect prepareType(std::string text) override;

 private:
  int indexOf(std::string_view text) const;
  void type(std::string text);

  bool editable_;
  std::string text_;
  Colour backColor_ = Colour::WindowBackground;
};

}  // namespace orvane
