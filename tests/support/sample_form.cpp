#include "tests/support/sample_form.h"

namespace orvane::test {

Sample::Sample(Desktop& desktop, std::string& log, std::string caption, Role role, Handlers handlers)
    : Form(desktop, {.name = "Sample", .role = role, .caption = std::move(caption)}),
      on(std::move(handlers)),
      log_(log) {
  rows.addColumnHeader(2000);
  rows.addColumnHeader(450, true);
  rows.addColumnHeader(0);
  noteFocus();
  noteValues();
  noteRows();
}

ListItemRef Sample::addRow(const std::string& name, const std::string& key) {
  auto row = rows.Add();
  row->setText(name);
  row->setSubItems(1, "3");
  row->setSubItems(2, key);
  return row;
}

void Sample::note(const std::string& event) {
  log_ += (log_.empty() ? "" : " ") + (Caption().empty() ? "" : Caption() + "/") + event;
}

void Sample::happened(const std::string& event) {
  note(event);
  if (const auto handler = on.find(event); handler != on.end()) handler->second(*this);
}

void Sample::noteFocus() {
  for (auto* control : controls()) {
    control->GotFocus.handle([this, control] { happened("+" + control->id()); });
    control->LostFocus.handle([this, control] { happened("-" + control->id()); });
  }
}

void Sample::noteValues() {
  for (auto* box : {&text, &lines, &locked, &deep})
    box->Change.handle([this, box] { happened(box->Name() + "=" + box->Text()); });
  for (auto* box : {&list, &combo}) {
    box->Change.handle([this, box] { happened(box->Name() + "=" + box->Text()); });
    box->Click.handle([this, box] { happened(box->Name() + ":" + box->Text()); });
  }
  names.Click.handle([this] { happened("names:" + names.Text()); });
  check.Click.handle([this] { happened("check:" + std::to_string(check.Value())); });
  bar.Change.handle([this] { happened("bar=" + std::to_string(bar.Value())); });
  label.Click.handle([this] { happened("label"); });
  for (auto* one : {&button, &other, &arrow}) one->Click.handle([this, one] { happened(one->Name()); });
  for (auto* family : {&front, &back, &framed})
    for (auto& option : *family) option.Click.handle([this, &option] { happened(option.id()); });
  tabs.Click.handle(
      [this](std::int16_t former) { happened("tabs:" + std::to_string(former) + ">" + std::to_string(tabs.Tab())); });
}

void Sample::noteRows() {
  rows.ItemClick.handle([this](ListItemRef row) { happened("rows:" + row->Text()); });
  rows.ItemCheck.handle([this](ListItemRef row) { happened("rows:" + row->Text() + (row->Checked() ? "+" : "-")); });
  rows.BeforeLabelEdit.handle([this](bool& cancel) {
    happened("rows?");
    cancel = rows.SelectedItem()->Bold();
  });
  rows.AfterLabelEdit.handle([this](bool& cancel, std::string& name) {
    happened("rows=" + name);
    cancel = name.empty();
    name += "!";
  });
}

}  // namespace orvane::test
