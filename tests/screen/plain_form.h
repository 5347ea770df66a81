#pragma once

#include <string>

#include <QWidget>

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

// A form with one control of each kind, which writes down every event.
class PlainForm : public Form {
 public:
  explicit PlainForm(Desktop& desktop);

  TextBox txtLine{*this, "txtLine"};
  TextBox txtLines{*this, "txtLines"};
  TextBox txtFixed{*this, "txtFixed", {.readOnly = true, .text = "fixe"}};
  ComboBox cmbList{*this, "cmbList", {.items = {{"Alpha"}, {"Bêta"}}}};
  ComboBox cmbEdit{*this, "cmbEdit", {.editable = true, .items = {{"Voiture"}, {"Moto"}}}};
  ListBox lstNames{*this, "lstNames"};
  CheckBox chkMuta{*this, "chkMuta", {"Avec pouvoir"}};
  CommandButton cmdOne{*this, "cmdOne", {"&Un"}};
  Label lblClick{*this, "lblClick", {"Réaction"}};
  ScrollBar HScroll{*this, "HScroll"};
  TabControl tabs{*this, "tabs", {{"Un", "Deux", "Trois"}}};
  Family<OptionButton> optFirst{Place(tabs, 0), "optFirst", {{"A"}, {"B"}, {"C"}}};
  Family<OptionButton> optSecond{Place(tabs, 1), "optSecond", {{"D"}, {"E"}}};
  TextBox txtThird{Place(tabs, 2), "txtThird"};
  ListView lvwRows{*this, "lvwRows", {.width = 3000, .checkBoxes = true, .labelEdit = true}};

  // The events since the last call, blanks between them.
  std::string events();
  void note(const std::string& event) { log_ += (log_.empty() ? "" : " ") + event; }
  void addRows(const std::vector<std::string>& names);

  // The widgets of the layout that the form would have.
  static void layOut(QWidget& window);

 private:
  void noteFocus();

  std::string log_;
};

}  // namespace orvane::test
