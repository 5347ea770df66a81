#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "surface/check_box.h"
#include "surface/combo_box.h"
#include "surface/command_button.h"
#include "surface/form.h"
#include "surface/frame.h"
#include "surface/label.h"
#include "surface/list_box.h"
#include "surface/list_view.h"
#include "surface/option_button.h"
#include "surface/scroll_bar.h"
#include "surface/tab_control.h"
#include "surface/text_box.h"

namespace orvane::test {

class Sample;
// What a form runs inside its events, by their notes.
using Handlers = std::map<std::string, std::function<void(Sample&)>>;

// A form with controls of every kind, which notes each event in a log, blanks between them and its caption in front
// where it has one: "+text" and "-text" for the focus, "text=nom" for a change, "list:deux" and "button" for clicks,
// "rows:un+" and "rows:un-" for check boxes, "rows?" and "rows=un" around an edit, "load", "active", "end", "freed".
// Names of bold rows may not be edited; an edited one gets a "!", and an empty one is refused.
class Sample : public Form {
 public:
  Sample(Desktop& desktop, std::string& log, std::string caption = "", Role role = Role::Child, Handlers handlers = {});
  ~Sample() override { note("freed"); }

  TextBox text{*this, "text"};
  TextBox lines{*this, "lines"};
  TextBox locked{*this, "locked", {.readOnly = true, .text = "fixe"}};
  ComboBox list{*this, "list", {.items = {{"un", 1}, {"deux", 2}, {"trois", 3}}}};
  ComboBox combo{*this, "combo", {.editable = true, .items = {{"Port"}, {"Docks"}}}};
  ListBox names{*this, "names"};
  CheckBox check{*this, "check", {"Avec pouvoir"}};
  ScrollBar bar{*this, "bar"};
  CommandButton button{*this, "button", {"&Un"}};
  CommandButton other{*this, "other", {"&Autre"}};
  CommandButton arrow{*this, "arrow", rightArrow};
  Label label{*this, "label", {"Réaction"}};
  ListView rows{*this, "rows", {.width = 3000, .checkBoxes = true, .labelEdit = true}};
  TabControl tabs{*this, "tabs", {{"zéro", "une", "deux"}}};
  Family<OptionButton> front{{tabs, 0}, "front", {{"A"}, {"B"}, {"C"}}};
  Family<OptionButton> back{{tabs, 1}, "back", {{"D"}, {"E"}}};
  Frame frame{{tabs, 0}, "frame", {"Cadre"}};
  Family<OptionButton> framed{frame, "framed", {{"F"}, {"G"}}};
  TextBox deep{frame, "deep"};

  ListItemRef addRow(const std::string& name, const std::string& key = "");

  Handlers on;

 protected:
  void Form_Load() override { happened("load"); }
  void Form_Activate() override { happened("active"); }
  void Form_Unload() override { happened("end"); }

 private:
  void note(const std::string& event);
  void happened(const std::string& event);
  void noteFocus();
  void noteValues();
  void noteRows();

  std::string& log_;
};

}  // namespace orvane::test
