#include "tests/surface/surface_fixture.h"

namespace orvane::test {
namespace {

// What the code writes, and which handlers run inside the write.
class Writes : public Surface {
 protected:
  Sample& form = open();
};

TEST_F(Writes, AnEqualValueIsSilent) {
  const auto write = [this] {
    form.text.setText("5");
    form.list.setListIndex(1);
    form.names.setListIndex(-1);
    form.check.setValue(1);
    form.front(0).setValue(true);
    form.tabs.setTab(2);
    form.bar.setValue(3);
  };
  EXPECT_EQ(eventsAfter(write), "text=5 list:deux check:1 front(0) tabs:0>2 bar=3");
  EXPECT_EQ(eventsAfter(write), "");
}

TEST_F(Writes, AllButTheValueIsSilent) {
  form.names.AddItem("un");
  form.list.setListIndex(0);
  form.names.setListIndex(0);
  const auto write = [this] {
    form.list.Clear();
    form.names.setList(0, "deux");
    form.names.RemoveItem(0);
    form.front(0).setValue(false);
    form.tabs.setTabEnabled(0, false);
    form.tabs.setTabVisible(0, false);
    form.bar.setMax(4);
    form.addRow("un")->select();
    form.addRow("deux")->setChecked(true);
    for (auto* control : form.controls()) {
      control->setEnabled(false);
      control->setVisible(false);
    }
  };
  EXPECT_EQ(eventsAfter(write), "");
  EXPECT_EQ(form.list.ListIndex(), -1);
  EXPECT_EQ(form.list.Text() + std::to_string(form.list.NewIndex()), "-1");
  form.list.AddItem("neuf");
  EXPECT_EQ(form.list.NewIndex(), 0);
}

TEST_F(Writes, ObserversHearOfEachChangeOnceAndOnlyWhileTheyWatch) {
  struct Listener : ControlObserver {
    std::string heard;
    void controlChanged(Control& control) override { heard += control.id() + " "; }
  } listener;
  for (auto* control : form.controls()) control->watch(listener);
  form.text.setText("5");
  form.text.setBackColor(Colour::EssentialBroken);
  form.front(1).setValue(true);
  form.addRow("un")->setSubItems(1, "4");
  form.rows.ListItems(1)->ListSubItems(1).setForeColor(Colour::Red);
  form.rows.ListItems(1)->ListSubItems(1).setBold(true);
  form.text.unwatch(listener);
  form.text.setText("6");
  EXPECT_EQ(listener.heard, "text text front(1) rows rows rows rows rows rows ");
}

TEST_F(Writes, OptionsUnderOneParentAreOneGroupAcrossTabs) {
  form.framed(1).setValue(true);
  form.front(1).setValue(true);
  form.tabs.setTabEnabled(1, false);
  EXPECT_EQ(eventsAfter([&] { form.back(0).setValue(true); }), "back(0)") << "only the one that is selected tells";
  EXPECT_TRUE(form.back(0).Value()) << "also on a tab that is disabled";
  EXPECT_FALSE(form.front(1).Value());
  EXPECT_TRUE(form.framed(1).Value()) << "a frame makes a group of its own";
}

TEST_F(Writes, OutsideAListFailAndChangeNothing) {
  form.list.setListIndex(1);
  const auto row = form.addRow("un");
  events();
  const std::function<void()> writes[]{
      [&] { form.list.setListIndex(3); },
      [&] { form.list.setListIndex(-2); },
      [&] { form.list.ItemData(3); },
      [&] { form.names.setListIndex(0); },
      [&] { form.names.RemoveItem(0); },
      [&] { form.tabs.setTab(3); },
      [&] { form.front(3); },
      [&] { form.tabs.setTabEnabled(-1, true); },
      [&] { row->setSubItems(3, "x"); },
      [&] { row->SubItems(0); },
      [&] { form.rows.ListItems(0); },
      [&] { form.rows.ListItems(2); },
  };
  for (const auto& write : writes) EXPECT_THROW(write(), Failure);
  EXPECT_EQ(form.list.ListIndex(), 1);
  EXPECT_EQ(events(), "");
}

}  // namespace
}  // namespace orvane::test
