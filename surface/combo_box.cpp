#include "surface/combo_box.h"

namespace orvane {

ComboBox::ComboBox(Place place, std::string name, Design design)
    : EntryList(place, std::move(name)), editable_(design.editable) {
  items_ = std::move(design.items);
}

void ComboBox::Clear() {
  items_.clear();
  listIndex_ = -1;
  newIndex_ = -1;
  text_.clear();
  changed();
}

void ComboBox::setListIndex(int index) {
  std::string text = index == -1 ? "" : List(index);
  if (index != listIndex_) text_ = std::move(text);
  EntryList::setListIndex(index);
}

PropertyList ComboBox::properties() const {
  return {{"ListIndex", listIndex_}, {"Text", text_},        {"ListCount", ListCount()},
          {"BackColor", backColor_}, {"Enabled", Enabled()}, {"Visible", Visible()}};
}

int ComboBox::indexOf(std::string_view text) const {
  for (int i = 0; i < ListCount(); ++i)
    if (List(i) == text) return i;
  return -1;
}

Effect ComboBox::prepareType(std::string text) {
  if (!editable_) return Control::prepareType(std::move(text));
  return [this, text = std::move(text)] { type(text); };
}

void ComboBox::type(std::string text) {
  if (text == text_) return;
  listIndex_ = indexOf(text);
  store(text_, std::move(text));
  Change.fire();
}

}  // namespace orvane
