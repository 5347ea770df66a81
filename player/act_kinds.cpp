#include "player/act_kinds.h"

#include <algorithm>

#include "player/player_world.h"
#include "player/prints.h"
#include "player/stage.h"

namespace orvane {
namespace {

void click(Stage& stage, const Act& act) { stage.user.click(stage.control(act.target)); }
void type(Stage& stage, const Act& act) { stage.user.type(stage.control(act.target), act.text); }
void pick(Stage& stage, const Act& act) { stage.user.pick(stage.control(act.target), act.entry); }
void row(Stage& stage, const Act& act) { stage.user.row(stage.control(act.target), act.entry); }
void toggle(Stage& stage, const Act& act) { stage.user.toggle(stage.control(act.target), act.entry); }
void edit(Stage& stage, const Act& act) { stage.user.edit(stage.control(act.target), act.entry, act.text); }
void scroll(Stage& stage, const Act& act) { stage.user.scroll(stage.control(act.target), act.number); }
void focus(Stage& stage, const Act& act) { stage.user.focus(stage.control(act.target)); }
void window(Stage& stage, const Act& act) { stage.user.activate(stage.window(act.entry)); }
void close(Stage& stage, const Act&) { stage.user.close(stage.activeForm()); }
void answer(Stage& stage, const Act& act) { stage.dialogs.layDown(act.answers); }
void clock(Stage& stage, const Act& act) { stage.clock.set(act.seconds); }

std::string shownProperty(Stage& stage, const Act& act) {
  const Control& control = stage.control(act.target);
  if (const auto value = control.property(act.property)) return shownValue(*value);
  throw Refusal{control.idAndKind() + " n'a pas de propriété " + act.property + "."};
}

std::string propertyName(const Act& act) { return act.target.text() + "." + act.property; }

void get(Stage& stage, const Act& act) { stage.transcript.line(propertyName(act) + " " + shownProperty(stage, act)); }

void expect(Stage& stage, const Act& act) {
  const std::string shown = shownProperty(stage, act);
  if (shown != act.value) stage.transcript.expected(propertyName(act) + " " + act.value + ", not " + shown);
}

void list(Stage& stage, const Act& act) { printList(stage.transcript, stage.control(act.target)); }
void state(Stage& stage, const Act&) { printState(stage.transcript, stage.activeForm()); }
void windows(Stage& stage, const Act&) { printWindows(stage.transcript, stage.desktop); }
void printed(Stage& stage, const Act& act) { printPrinted(stage.transcript, stage.control(act.target)); }
void lost(Stage& stage, const Act&) { printLost(stage.transcript, stage.activeForm()); }

// How every act is written and which function plays it.
const std::vector<ActKind>& actKinds() {
  using O = Operand;
  static const std::vector<ActKind> kinds = {
      {"click", {O::Target}, click},
      {"type", {O::Target, O::Text}, type},
      {"pick", {O::Target, O::Choice}, pick},
      {"row", {O::Target, O::Choice}, row},
      {"toggle", {O::Target, O::Choice}, toggle},
      {"edit", {O::Target, O::Choice, O::Text}, edit},
      {"scroll", {O::Target, O::Number}, scroll},
      {"focus", {O::Target}, focus},
      {"window", {O::Choice}, window},
      {"close", {}, close},
      {"answer", {O::Answer}, answer},
      {"clock", {O::Seconds}, clock},
      {"get", {O::Property}, get, true},
      {"list", {O::Target}, list, true},
      {"state", {}, state, true},
      {"windows", {}, windows, true},
      {"printed", {O::Target}, printed, true},
      {"lost", {}, lost, true},
      {"expect", {O::Property, O::Literal}, expect, true},
  };
  return kinds;
}

}  // namespace

const ActKind* actNamed(std::string_view name) {
  const auto& kinds = actKinds();
  const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const auto& kind) { return kind.name == name; });
  return found == kinds.end() ? nullptr : &*found;
}

}  // namespace orvane
