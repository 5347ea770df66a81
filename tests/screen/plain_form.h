#pragma once

#include <string>

#include <QWidget>

#include "surface/checkbox.h"
#include "surface/combobox.h"
#include "surface/commandbutton.h"
#include "surface/form.h"
#include "surface/frame.h"
#include "surface/label.h"
#include "surface/listbox.h"
#include "surface/listview.h"
#include "surface/optionbutton.h"
#include "surface/scrollbar.h"
#include "surface/tabcontrol.h"
#include "surface/textbox.h"

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
