#include "surface/combo_box.h"

#include "surface/entries.h"
#include "surface/failure.h"

namespace orvane {

ComboBox::ComboBox(Place place, std::string name, Design design)
    : Control(place, std::move(name)), editable_(design.editable), items_(std::move(design.items)) {}

void ComboBox::AddItem(std::string text) {
  items_.push_back({std::move(text), 0});
  newIndex_ = ListCount() - 1;
  changed();
}

void ComboBox::Clear() {
  items_.clear();
  listIndex_ = -1;
  newIndex_ = -1;
  text_.clear();
  changed();
}

std::size_t ComboBox::checked(int index) const {
  if (index < 0 || index >= ListCount())
    throw Failure("Pas d'entrée " + std::to_string(index) + " dans la liste " + id() + ".");
  return static_cast<std::size_t>(index);
}

void ComboBox::setListIndex(int index) {
  std::string text = index == -1 ? std::string() : items_[checked(index)].text;
  if (index == listIndex_) return;
  text_ = std::move(text);
  store(listIndex_, index);
  Click.fire();
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

Effect ComboBox::preparePick(const Entry& entry) {
  const int index = entryPosition(*this, entry, ListCount(), [this](int i) { return List(i); });
  return [this, index] { pick(index); };
}

void ComboBox::pick(int index) {
  if (index != listIndex_)
    setListIndex(index);
  else
    Click.fire();
}

}  // namespace orvane
