#include "tests/surface/surface_fixture.h"

namespace orvane::test {
namespace {

// What a user does: the focus first, then the act.
class Acts : public Surface {
 protected:
  Sample& form = open();
};

TEST_F(Acts, MoveTheFocusFirstAndTellAlsoOfWhatIsSelectedAlready) {
  form.names.AddItem("Zoé");
  form.bar.setMax(3);
  const std::pair<std::function<void()>, std::string> acts[]{
      {[&] { user.type(form.text, "nom"); }, "+text text=nom"},
      {[&] { user.type(form.text, "nom"); }, ""},
      {[&] { user.click(form.button); }, "-text +button button"},
      {[&] { user.click(form.button); }, "button"},
      {[&] { user.focus(form.front(0)); }, "-button +front(0)"},
      {[&] { user.click(form.front(0)); }, "front(0)"},
      {[&] { user.click(form.front(0)); }, ""},
      {[&] { user.click(form.label); }, "label"},
      {[&] { user.click(form.check); }, "-front(0) +check check:1"},
      {[&] { user.click(form.check); }, "check:0"},
      {[&] { user.pick(form.list, "deux"); }, "-check +list list:deux"},
      {[&] { user.pick(form.list, 1); }, "list:deux"},
      {[&] { user.pick(form.names, 0); }, "-list +names names:Zoé"},
      {[&] { user.pick(form.names, "Zoé"); }, "names:Zoé"},
      {[&] { user.scroll(form.bar, 3); }, "-names +bar bar=3"},
      {[&] { user.scroll(form.bar, 3); }, ""},
      {[&] { user.pick(form.tabs, "une"); }, "-bar +tabs tabs:0>1"},
      {[&] { user.pick(form.tabs, 1); }, "tabs:1>1"},
      // The text of an entry selects it.
      {[&] { user.type(form.combo, "Ailleurs"); }, "-tabs +combo combo=Ailleurs"},
      {[&] { user.type(form.combo, "Docks"); }, "combo=Docks"},
      {[&] { user.type(form.combo, "Docks"); }, ""},
      {[&] { user.type(form.combo, ""); }, "combo="},
      {[&] { user.pick(form.combo, 0); }, "combo:Port"},
  };
  events();
  std::string indexes;
  for (const auto& [act, expected] : acts) {
    EXPECT_EQ(eventsAfter(act), expected);
    indexes += std::to_string(form.combo.ListIndex()) + " ";
  }
  EXPECT_TRUE(indexes.ends_with(" -1 1 1 -1 0 ")) << indexes;
  EXPECT_EQ(form.focused(), &form.combo);
}

TEST_F(Acts, EachWindowKeepsItsFocus) {
  Sample& second = open("B");
  user.focus(form.text);
  user.focus(second.button);
  EXPECT_EQ(eventsAfter([&] {
              user.focus(form.text);
              user.focus(second.button);
            }),
            "active B/active");
}

TEST_F(Acts, WhatAUserCannotDoIsRefusedAndChangesNothing) {
  form.addRow("un");
  form.bar.setMax(5);
  form.other.setEnabled(false);
  form.check.setVisible(false);
  form.tabs.setTabEnabled(1, false);
  form.tabs.setTabVisible(2, false);
  user.type(form.text, "nom");
  form.frame.setEnabled(false);
  events();
  const std::pair<std::function<void()>, std::string> acts[]{
      {[&] { user.click(form.other); }, "other est désactivé."},
      {[&] { user.click(form.check); }, "check est caché."},
      {[&] { user.click(form.back(0)); }, "back(0) se trouve sur l'onglet « une », qui n'est pas affiché."},
      {[&] { user.type(form.deep, "b"); }, "frame est désactivé."},
      {[&] { user.type(form.locked, "x"); }, "locked est en lecture seule."},
      {[&] { user.type(form.list, "x"); }, "list (liste déroulante) : taper un texte n'y est pas possible."},
      {[&] { user.pick(form.list, "cinq"); }, "Pas d'entrée « cinq » dans list."},
      {[&] { user.pick(form.list, 3); }, "Pas d'entrée 3 dans list."},
      {[&] { user.pick(form.names, -1); }, "Pas d'entrée -1 dans names."},
      {[&] { user.pick(form.tabs, 1); }, "L'onglet « une » est fermé."},
      {[&] { user.pick(form.tabs, "deux"); }, "L'onglet « deux » est fermé."},
      {[&] { user.row(form.rows, 0); }, "Pas d'entrée 0 dans rows."},
      {[&] { user.toggle(form.rows, 2); }, "Pas d'entrée 2 dans rows."},
      {[&] { user.edit(form.rows, "x", ""); }, "Pas d'entrée « x » dans rows."},
      {[&] { user.scroll(form.bar, 6); }, "bar va de 0 à 5, pas jusqu'à 6."},
      {[&] { user.scroll(form.bar, -1); }, "bar va de 0 à 5, pas jusqu'à -1."},
      {[&] { user.click(form.text); }, "text (zone de texte) : cliquer n'y est pas possible."},
      {[&] { user.focus(form.label); }, "label ne prend pas le focus."},
  };
  for (const auto& [act, reason] : acts) {
    EXPECT_EQ(refusal(act), reason);
    EXPECT_EQ(form.focused(), &form.text) << reason;
  }
  EXPECT_EQ(events(), "");
  form.frame.setEnabled(true);
  form.tabs.setTab(1);
  EXPECT_EQ(refusal(acts[3].first), "frame se trouve sur l'onglet « zéro », qui n'est pas affiché.");
}

TEST_F(Acts, NoActWhereTheLostFocusTookTheControlAway) {
  user.focus(form.text);
  form.on["-text"] = [](Sample& own) { own.button.setEnabled(false); };
  EXPECT_EQ(eventsAfter([&] { user.click(form.button); }), "-text +button");
}

TEST_F(Acts, AFailureIsToldAndTheRunGoesOn) {
  form.on["list:trois"] = [](Sample&) { throw Failure("sans suite"); };
  form.on["button"] = [](Sample& own) { own.list.setListIndex(2); };
  user.click(form.button);
  EXPECT_EQ(told(), Log{"failure|sans suite"}) << "once, however deep the handlers nest";
  form.on = {{"-button", [](Sample&) { throw std::runtime_error("panne"); }}};
  EXPECT_EQ(eventsAfter([&] { user.click(form.other); }), "-button +other other");
  EXPECT_EQ(told(), Log{"failure|Erreur interne."});
}

}  // namespace
}  // namespace orvane::test
