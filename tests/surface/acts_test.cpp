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
  EXPECT_EQ(noted(),
            (Log{"A: text.GotFocus", "A: text.Change", "A: text.LostFocus", "A: button.GotFocus", "A: button.Click",
                 "A: button.Click", "A: button.LostFocus", "A: front(1).GotFocus", "A: front(1).Click"}));
}

TEST_F(Acts, LabelsAndWritesMoveNoFocus) {
  user.focus(form.text);
  noted();
  user.click(form.label);
  form.button.Click.fire();
  form.deep.setText("x");
  EXPECT_EQ(form.focused(), &form.text);
  EXPECT_EQ(noted(), (Log{"A: label.Click", "A: button.Click", "A: deep.Change"}));
}

TEST_F(Acts, EachWindowKeepsItsFocus) {
  Sample& second = open("B");
  user.focus(form.text);
  user.focus(second.button);
  noted();
  user.focus(form.text);
  user.focus(second.button);
  EXPECT_EQ(noted(), (Log{"A: Form_Activate", "B: Form_Activate"}));
}

TEST_F(Acts, AnOptionTellsOnlyWhenItBecomesSelected) {
  user.focus(form.front(0));
  EXPECT_FALSE(form.front(0).Value());
  user.click(form.front(0));
  user.click(form.front(0));
  user.click(form.check);
  user.click(form.check);
  EXPECT_EQ(noted(), (Log{"A: front(0).GotFocus", "A: front(0).Click", "A: front(0).LostFocus", "A: check.GotFocus",
                          "A: check.Click", "A: check.Click"}));
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
  EXPECT_EQ(noted(), (Log{"A: list.GotFocus", "A: list.Click", "A: list.Click", "A: list.LostFocus", "A: tabs.GotFocus",
                          "A: tabs.Click(0)", "A: tabs.Click(1)", "A: tabs.LostFocus", "A: names.GotFocus",
                          "A: names.Click", "A: names.Click"}));
}

TEST_F(Acts, TypedComboText) {
  user.type(form.combo, "Ailleurs");
  EXPECT_EQ(form.combo.Text(), "Ailleurs");
  EXPECT_EQ(form.combo.ListIndex(), -1);
  user.type(form.combo, "Docks");
  EXPECT_EQ(form.combo.ListIndex(), 1) << "the text of an entry selects it";
  user.type(form.combo, "Docks");
  user.pick(form.combo, "Port");
  user.type(form.combo, "");
  EXPECT_EQ(form.combo.ListIndex(), -1);
  EXPECT_EQ(noted(),
            (Log{"A: combo.GotFocus", "A: combo.Change", "A: combo.Change", "A: combo.Click", "A: combo.Change"}));
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
      {"not editable", [&] { user.type(form.list, "un"); }},
      {"no such entry", [&] { user.pick(form.list, "cinq"); }},
      {"position behind the end", [&] { user.pick(form.list, 3); }},
      {"position before the start", [&] { user.pick(form.names, -1); }},
      {"disabled tab", [&] { user.pick(form.tabs, 1); }},
      {"hidden tab", [&] { user.pick(form.tabs, "deux"); }},
      {"row 0", [&] { user.row(form.rows, 0); }},
      {"no such row", [&] { user.toggle(form.rows, "x"); }},
      {"scrolled too far", [&] { user.scroll(form.bar, 6); }},
      {"wrong kind", [&] { user.click(form.text); }},
      {"no focus for a label", [&] { user.focus(form.label); }},
  };
  for (const auto& [what, act] : acts) {
    EXPECT_NE(refusal(act), "") << what;
    EXPECT_EQ(form.focused(), &form.text) << what;
  }
  EXPECT_EQ(noted(), Log{});
}

TEST_F(Acts, WhatHoldsAControlMustBeReachableToo) {
  user.type(form.deep, "a");
  form.frame.setEnabled(false);
  EXPECT_NE(refusal([&] { user.type(form.deep, "b"); }), "");
  form.frame.setEnabled(true);
  form.tabs.setVisible(false);
  EXPECT_NE(refusal([&] { user.type(form.deep, "b"); }), "");
  form.tabs.setVisible(true);
  form.tabs.setTab(1);
  EXPECT_NE(refusal([&] { user.type(form.deep, "b"); }), "");
  EXPECT_EQ(form.deep.Text(), "a");
}

TEST_F(Acts, NoActWhereTheLostFocusTookTheControlAway) {
  user.focus(form.text);
  form.then = [&](const std::string& event) {
    if (event == "text.LostFocus") form.button.setEnabled(false);
  };
  noted();
  user.click(form.button);
  EXPECT_EQ(noted(), (Log{"A: text.LostFocus", "A: button.GotFocus"}));
}

TEST_F(Acts, AFailureIsToldAndTheRunGoesOn) {
  form.then = [&](const std::string& event) {
    if (event == "list.Click") throw Failure("sans suite");
    if (event == "button.Click") form.list.setListIndex(2);
  };
  user.click(form.button);
  EXPECT_EQ(told(), Log{"failure|sans suite"}) << "once, however deep the handlers nest";
  form.then = nullptr;
  noted();
  user.click(form.button);
  EXPECT_EQ(noted(), Log{"A: button.Click"});
}

}  // namespace
}  // namespace orvane::test
