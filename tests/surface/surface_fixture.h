#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "surface/check_box.h"
#include "surface/combo_box.h"
#include "surface/command_button.h"
#include "surface/desktop.h"
#include "surface/frame.h"
#include "surface/label.h"
#include "surface/list_box.h"
#include "surface/list_view.h"
#include "surface/option_button.h"
#include "surface/scroll_bar.h"
#include "surface/tab_control.h"
#include "surface/text_box.h"
#include "surface/user.h"
#include "tests/support/fakes.h"
#include "tests/support/logged_dialogs.h"
#include "tests/support/memory_files.h"
#include "tests/support/refusal.h"

namespace orvane::test {

using Log = std::vector<std::string>;

class Sample;
// What a form runs inside its events, by the text that is noted of them.
using Handlers = std::map<std::string, std::function<void(Sample&)>>;

// A form with controls of every kind, which notes each event as "CONTROL.EVENT", behind its caption where it has one.
class Sample : public Form {
 public:
  Sample(Desktop& desktop, Log& log, std::string caption, Role role, Handlers handlers)
      : Form(desktop, {.name = "Sample", .role = role, .caption = std::move(caption)}),
        on(std::move(handlers)),
        log_(log) {
    noteFocus();
    noteChanges();
    noteClicks();
  }
  ~Sample() override { note("freed"); }

  TextBox text{*this, "text"};
  TextBox locked{*this, "locked", {.readOnly = true}};
  ComboBox list{*this, "list", {.items = {{"un", 1}, {"deux", 2}, {"trois", 3}}}};
  ComboBox combo{*this, "combo", {.editable = true, .items = {{"Port"}, {"Docks"}}}};
  ListBox names{*this, "names"};
  CheckBox check{*this, "check"};
  ScrollBar bar{*this, "bar", {}};
  CommandButton button{*this, "button"};
  CommandButton other{*this, "other"};
  Label label{*this, "label"};
  ListView rows{*this, "rows", {.width = 1000, .checkBoxes = true, .labelEdit = true}};
  TabControl tabs{*this, "tabs", {{"zéro", "une", "deux"}}};
  Family<OptionButton> front{{tabs, 0}, "front", 2};
  Family<OptionButton> back{{tabs, 1}, "back", 2};
  Frame frame{{tabs, 0}, "frame"};
  Family<OptionButton> framed{frame, "framed", 2};
  TextBox deep{frame, "deep"};

  Handlers on;

 protected:
  void Form_Load() override { happened("Form_Load"); }
  void Form_Activate() override { happened("Form_Activate"); }
  void Form_Unload() override { happened("Form_Unload"); }

 private:
  void note(const std::string& event) { log_.push_back((Caption().empty() ? "" : Caption() + ": ") + event); }
  void happened(const std::string& event) {
    note(event);
    if (const auto handler = on.find(event); handler != on.end()) handler->second(*this);
  }

  void noteFocus() {
    for (auto* control : controls()) {
      control->GotFocus.handle([this, control] { happened(control->id() + ".GotFocus"); });
      control->LostFocus.handle([this, control] { happened(control->id() + ".LostFocus"); });
    }
  }
  void noteChanges() {
    const auto change = [this](auto&... control) {
      (control.Change.handle([this, &control] { happened(control.id() + ".Change"); }), ...);
    };
    change(text, locked, combo, bar, deep);
  }
  void noteClicks() {
    const auto click = [this](auto&... control) {
      (control.Click.handle([this, &control] { happened(control.id() + ".Click"); }), ...);
    };
    click(list, combo, names, check, button, other, label);
    for (auto* family : {&front, &back, &framed})
      for (auto& option : *family) click(option);
    tabs.Click.handle([this](std::int16_t previous) { happened("tabs.Click(" + std::to_string(previous) + ")"); });
    rows.ItemClick.handle([this](ListItemRef row) { happened("rows.ItemClick " + row->Text()); });
    rows.ItemCheck.handle(
        [this](ListItemRef row) { happened("rows.ItemCheck " + row->Text() + (row->Checked() ? "+" : "-")); });
    rows.BeforeLabelEdit.handle([this](bool& cancel) {
      happened("rows.BeforeLabelEdit");
      cancel = rows.SelectedItem()->Bold();
    });
    rows.AfterLabelEdit.handle([this](bool& cancel, std::string& name) {
      happened("rows.AfterLabelEdit " + name);
      cancel = name.empty();
      name += "!";
    });
  }

  Log& log_;
};

class Surface : public testing::Test {
 protected:
  // Opens a window and gives it up to the desktop: it is freed as soon as it is closed.
  Sample& open(std::string caption = "", Form::Role role = Form::Role::Child, Handlers handlers = {}) {
    const auto form = make(std::move(caption), role, std::move(handlers));
    desktop.perform([&] { form->Show(); });
    return *form;
  }
  std::shared_ptr<Sample> make(std::string caption, Form::Role role = Form::Role::Child, Handlers on = {}) {
    return std::make_shared<Sample>(desktop, log, std::move(caption), role, std::move(on));
  }

  // What was noted since the last call.
  Log noted() { return std::exchange(log, {}); }
  Log told() { return std::exchange(dialogs.log, {}); }
  // The captions of the loaded forms.
  Log openForms() const {
    Log captions;
    for (const auto& form : desktop.Forms()) captions.push_back(form->Caption());
    return captions;
  }

  Log log;
  LoggedDialogs dialogs;
  FakeClock clock;
  NoSettings settings;
  MemoryFiles files;
  BlankPictures pictures;
  Desktop desktop{World{dialogs, clock, settings, files, pictures}};
  User user{desktop};
};

}  // namespace orvane::test
