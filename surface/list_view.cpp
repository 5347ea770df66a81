#include "surface/list_view.h"

#include "surface/text.h"

namespace orvane {

ListView::ListView(Place place, std::string name, Design design) : Control(place, std::move(name)), design_(design) {}

ListView::~ListView() { releaseRows(); }

void ListView::releaseRows() {
  for (auto& row : rows_) row->list_ = nullptr;
}

void ListView::clearColumnHeaders() {
  columns_.clear();
  changed();
}

void ListView::addColumnHeader(float widthTwips, bool rightAligned) {
  columns_.push_back({widthTwips, rightAligned});
  changed();
}

ListItemRef ListView::Add() {
  const int subItems = columns_.empty() ? 0 : static_cast<int>(columns_.size()) - 1;
  rows_.push_back(std::make_shared<ListItem>(*this, subItems));
  if (!selected_) selected_ = rows_.back();
  changed();
  return rows_.back();
}

void ListView::Clear() {
  releaseRows();
  rows_.clear();
  selected_.reset();
  changed();
}

const ListItemRef& ListView::ListItems(int position) const {
  return rows_[offsetOf(position, 1, Count(), "de ligne", Name())];
}

std::string ListView::sortText(const ListItem& row) const {
  return sortKey_ == 0 ? row.Text() : row.SubItems(sortKey_);
}

void ListView::sort() {
  std::vector<std::string> texts;
  texts.reserve(rows_.size());
  for (const auto& row : rows_) texts.push_back(sortText(*row));
  std::vector<ListItemRef> sorted;
  sorted.reserve(rows_.size());
  for (const auto position : alphabeticalOrder(texts)) sorted.push_back(rows_[position]);
  store(rows_, std::move(sorted));
}

PropertyList ListView::properties() const {
  return {{"Count", Count()},
          {"SelectedItem", selected_ ? selected_->Index() : 0},
          {"Enabled", Enabled()},
          {"Visible", Visible()}};
}

ListItemRef ListView::rowOf(const Entry& row) const {
  return ListItems(entryPosition(*this, row, 1, Count(), [this](int i) { return ListItems(i)->Text(); }));
}

void ListView::clickRow(const ListItemRef& row) {
  row->select();
  ItemClick.fire(row);
}

void ListView::toggle(const ListItemRef& row) {
  row->setChecked(!row->Checked());
  ItemCheck.fire(row);
}

Effect ListView::prepareRow(const Entry& row) {
  return [this, target = rowOf(row)] { clickRow(target); };
}

Effect ListView::prepareToggle(const Entry& row) {
  if (!checkBoxes()) return Control::prepareToggle(row);
  return [this, target = rowOf(row)] { toggle(target); };
}

Effect ListView::prepareEdit(const Entry& row, std::string text) {
  if (!labelEdit()) return Control::prepareEdit(row, std::move(text));
  return [this, target = rowOf(row), text = std::move(text)] {
    clickRow(target);
    if (beginEdit()) endEdit(target, text);
  };
}

bool ListView::beginEdit() {
  bool cancel = !labelEdit() || !selected_;
  if (!cancel) BeforeLabelEdit.fire(cancel);
  return !cancel;
}

void ListView::endEdit(const ListItemRef& row, std::string text) {
  bool cancel = false;
  AfterLabelEdit.fire(cancel, text);
  if (!cancel) row->setText(std::move(text));
}

}  // namespace orvane
