#include "tests/random/random_user.h"

#include <array>
#include <map>

#include "surface/check_box.h"
#include "surface/combo_box.h"
#include "surface/command_button.h"
#include "surface/label.h"
#include "surface/list_box.h"
#include "surface/list_view.h"
#include "surface/option_button.h"
#include "surface/scroll_bar.h"
#include "surface/tab_control.h"
#include "surface/text_box.h"

namespace orvane::test {
namespace {

constexpr std::size_t mostWindows = 6;

// The invariants speak of pools that nobody overwrites by hand.
bool holdsANumberOfTheRules(const Control& control) {
  return control.Name() == "txtLang" || control.Name() == "txtLangRest" || control.Name() == "txtSkillRest";
}

// What ends a window or starts a side over is rare, so that characters grow old enough to be worth it: one in so many.
int rarity(const Control& control) {
  static const std::map<std::string, int> rare{
      {"cmdClose", 60},  {"cmdSave", 8},     {"cmdPrintPreview", 60}, {"cmdHelp", 60},
      {"cmbProfil", 20}, {"cmbVehicle", 20}, {"chkMuta", 4},          {"cmdMutaRandomChoice", 10}};
  const auto found = rare.find(control.Name());
  return found == rare.end() ? 1 : found->second;
}

CommandButton::Picture arrow(const Control& control) {
  const auto* button = dynamic_cast<const CommandButton*>(&control);
  return button ? button->picture() : CommandButton::Picture::None;
}

}  // namespace

void RandomUser::act(Form& frame) {
  Form* active = desktop_.activeChild();
  if (!active || oneIn(500))
    openOrSwitchWindow(frame);
  else
    actAt(*active);
}

void RandomUser::openOrSwitchWindow(Form& frame) {
  const auto& open = desktop_.activationOrder();
  if (open.size() < mostWindows && (open.empty() || oneIn(2))) {
    lastAct_ = "New PJ";
    user_.click(*frame.find("mnuFileNewPJ", std::nullopt));
  } else {
    lastAct_ = "another window";
    user_.activate(*open[static_cast<std::size_t>(below(static_cast<int>(open.size())))]);
  }
}

void RandomUser::actModal(Form& dialog) {
  for (int i = 0; i < 20 && dialog.isLoaded(); ++i) actAt(dialog);
  if (dialog.isLoaded()) user_.close(dialog);
}

Answer RandomUser::answer(BoxStyle style) {
  if (style == BoxStyle::OkCancel) return oneIn(3) ? Answer::Cancel : Answer::OK;
  if (style == BoxStyle::YesNo) return oneIn(3) ? Answer::No : Answer::Yes;
  return Answer::OK;
}

void RandomUser::actAt(Form& form) {
  const auto& controls = form.controls();
  for (int tries = 0; tries < 100; ++tries) {
    Control& control = *controls[static_cast<std::size_t>(below(static_cast<int>(controls.size())))];
    if (control.unreachable() || holdsANumberOfTheRules(control)) continue;
    if (!oneIn(rarity(control))) continue;
    const auto direction = arrow(control);
    if (direction == CommandButton::Picture::None && !oneIn(4)) continue;
    if (direction == CommandButton::Picture::LeftArrow && spender_ && !oneIn(5)) continue;
    lastAct_ = form.Name() + " " + control.id();
    try {
      return actOn(control);
    } catch (const Refusal&) {
      // Read-only, a closed tab: another one then.
    }
  }
}

void RandomUser::actOn(Control& control) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) return user_.type(*box, text());
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    if (combo->editable() && oneIn(3)) return user_.type(*combo, text());
    return user_.pick(*combo, below(combo->ListCount() + 1));
  }
  if (auto* list = dynamic_cast<ListBox*>(&control)) return user_.pick(*list, below(list->ListCount() + 1));
  if (auto* tabs = dynamic_cast<TabControl*>(&control)) return user_.pick(*tabs, below(tabs->Tabs()));
  if (auto* bar = dynamic_cast<ScrollBar*>(&control)) return user_.scroll(*bar, below(bar->Max() + 1));
  if (auto* view = dynamic_cast<ListView*>(&control)) {
    const int row = 1 + below(view->Count() + 1);
    if (view->checkBoxes()) return user_.toggle(*view, row);
    if (view->labelEdit() && oneIn(4)) return user_.edit(*view, row, text());
    return user_.row(*view, row);
  }
  user_.click(control);
}

std::string RandomUser::text() {
  static const std::array<const char*, 10> texts{"",           " ",
                                                 "31",         "Zoé",
                                                 "Anne Ravel", "Port-aux-Brumes",
                                                 "Autre",      "une très longue phrase qui ne tient pas partout",
                                                 "élan",       "42 kg"};
  return texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))];
}

}  // namespace orvane::test
