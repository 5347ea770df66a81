#include "tests/surface/surface_fixture.h"

namespace orvane::test {
namespace {

// What a user does: the focus first, then the act.
class Acts : public Surface {
 protected:
  Acts() { noted(); }
  Sample& form = open();
};

TEST_F(Acts, LostFocusRunsBeforeTheNextClick) {
  user.type(form.text, "nom");
  user.click(form.button);
  user.click(form.button);
  user.click(form.front(1));
  user.click(form.label);
  EXPECT_EQ(form.focused(), &form.front(1)) << "a label takes no focus";
  EXPECT_EQ(noted(), (Log{"text.GotFocus", "text.Change", "text.LostFocus", "button.GotFocus", "button.Click",
                          "button.Click", "button.LostFocus", "front(1).GotFocus", "front(1).Click", "label.Click"}));
}

TEST_F(Acts, EachWindowKeepsItsFocus) {
  Sample& second = open("B");
  user.focus(form.text);
  user.focus(second.button);
  noted();
  user.focus(form.text);
  user.focus(second.button);
  EXPECT_EQ(noted(), (Log{"Form_Activate", "B: Form_Activate"}));
}

TEST_F(Acts, AnOptionTellsOnlyWhenItBecomesSelected) {
  user.focus(form.front(0));
  EXPECT_FALSE(form.front(0).Value());
  for (int i = 0; i < 2; ++i) user.click(form.front(0));
  for (int i = 0; i < 2; ++i) user.click(form.check);
  EXPECT_EQ(noted(), (Log{"front(0).GotFocus", "front(0).Click", "front(0).LostFocus", "check.GotFocus", "check.Click",
                          "check.Click"}));
  EXPECT_EQ(form.check.Value(), 0);
}

TEST_F(Acts, APickTellsAlsoOfTheSelectedEntry) {
  user.pick(form.list, "deux");
  user.pick(form.list, 1);
  user.pick(form.tabs, "une");
  user.pick(form.tabs, 1);
  form.names.AddItem("Zoé");
  user.pick(form.names, 0);
  user.pick(form.names, "Zoé");
  EXPECT_EQ(noted(),
            (Log{"list.GotFocus", "list.Click", "list.Click", "list.LostFocus", "tabs.GotFocus", "tabs.Click(0)",
                 "tabs.Click(1)", "tabs.LostFocus", "names.GotFocus", "names.Click", "names.Click"}));
}

TEST_F(Acts, TypedComboText) {
  std::string chosen;
  for (const char* text : {"Ailleurs", "Docks", "Docks", ""}) {
    user.type(form.combo, text);
    chosen += form.combo.Text() + " " + std::to_string(form.combo.ListIndex()) + ";";
  }
  EXPECT_EQ(chosen, "Ailleurs -1;Docks 1;Docks 1; -1;") << "the text of an entry selects it";
  EXPECT_EQ(noted(), (Log{"combo.GotFocus", "combo.Change", "combo.Change", "combo.Change"}));
}

TEST_F(Acts, WhatAUserCannotDoIsRefusedAndChangesNothing) {
  form.rows.Add();
  form.bar.setMax(5);
  form.other.setEnabled(false);
  form.check.setVisible(false);
  form.tabs.setTabEnabled(1, false);
  form.tabs.setTabVisible(2, false);
  user.type(form.text, "nom");
  noted();

  const std::vector<std::pair<const char*, std::function<void()>>> acts{
      {"disabled", [&] { user.click(form.other); }},
      {"hidden", [&] { user.click(form.check); }},
      {"on another tab", [&] { user.click(form.back(0)); }},
      {"read-only", [&] { user.type(form.locked, "x"); }},
      {"no such entry", [&] { user.pick(form.list, "cinq"); }},
      {"position before the start", [&] { user.pick(form.names, -1); }},
      {"disabled tab", [&] { user.pick(form.tabs, 1); }},
      {"hidden tab", [&] { user.pick(form.tabs, "deux"); }},
      {"row 0", [&] { user.row(form.rows, 0); }},
      {"scrolled too far", [&] { user.scroll(form.bar, 6); }},
      {"wrong kind", [&] { user.click(form.text); }},
      {"no focus for a label", [&] { user.focus(form.label); }},
      {"inside a disabled frame", [&] { user.type(form.deep, "b"); }},
  };
  form.frame.setEnabled(false);
  for (const auto& [what, act] : acts) {
    EXPECT_NE(refusal(act), "") << what;
    EXPECT_EQ(form.focused(), &form.text) << what;
  }
  form.frame.setEnabled(true);
  form.tabs.setTab(1);
  EXPECT_NE(refusal(acts.back().second), "") << "inside a frame on another tab";
  EXPECT_EQ(noted(), Log{"tabs.Click(0)"});
}

TEST_F(Acts, NoActWhereTheLostFocusTookTheControlAway) {
  user.focus(form.text);
  form.on["text.LostFocus"] = [](Sample& own) { own.button.setEnabled(false); };
  noted();
  user.click(form.button);
  EXPECT_EQ(noted(), (Log{"text.LostFocus", "button.GotFocus"}));
}

TEST_F(Acts, AFailureIsToldAndTheRunGoesOn) {
  form.on["list.Click"] = [](Sample&) { throw Failure("sans suite"); };
  form.on["button.Click"] = [](Sample& own) { own.list.setListIndex(2); };
  user.click(form.button);
  EXPECT_EQ(told(), Log{"failure|sans suite"}) << "once, however deep the handlers nest";
  form.on.clear();
  noted();
  user.click(form.button);
  EXPECT_EQ(noted(), Log{"button.Click"});
}

}  // namespace
}  // namespace orvane::test
