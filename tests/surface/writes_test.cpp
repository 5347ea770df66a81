#include "tests/surface/surface_fixture.h"

namespace orvane::test {
namespace {

// What the code writes, and which handlers run inside the write.
class Writes : public Surface {
 protected:
  Writes() { noted(); }
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
    return noted();
  };
  EXPECT_EQ(write(),
            (Log{"text.Change", "list.Click", "check.Click", "front(0).Click", "tabs.Click(0)", "bar.Change"}));
  EXPECT_EQ(write(), Log{});
}

TEST_F(Writes, AllButTheValueIsSilent) {
  form.names.AddItem("un");
  form.list.setListIndex(0);
  form.names.setListIndex(0);
  noted();
  form.list.Clear();
  form.names.setList(0, "deux");
  form.names.RemoveItem(0);
  form.front(0).setValue(false);
  form.tabs.setTabEnabled(0, false);
  form.tabs.setTabVisible(0, false);
  form.bar.setMax(4);
  for (auto* control : form.controls()) {
    control->setEnabled(false);
    control->setVisible(false);
  }
  EXPECT_EQ(noted(), Log{});
  EXPECT_EQ(form.list.ListIndex(), -1);
  EXPECT_EQ(form.list.Text(), "");
  form.list.AddItem("neuf");
  EXPECT_EQ(form.list.NewIndex(), 0);
}

TEST_F(Writes, OptionsUnderOneParentAreOneGroupAcrossTabs) {
  form.framed(1).setValue(true);
  form.front(1).setValue(true);
  form.tabs.setTabEnabled(1, false);
  noted();
  form.back(0).setValue(true);
  EXPECT_TRUE(form.back(0).Value()) << "also on a tab that is disabled";
  EXPECT_FALSE(form.front(1).Value());
  EXPECT_TRUE(form.framed(1).Value()) << "a frame makes a group of its own";
  EXPECT_EQ(noted(), Log{"back(0).Click"}) << "only the one that is selected tells";
}

TEST_F(Writes, OutsideAListFailAndChangeNothing) {
  form.list.setListIndex(1);
  form.rows.addColumnHeader(600);
  const auto row = form.rows.Add();
  noted();
  EXPECT_THROW(form.list.setListIndex(3), Failure);
  EXPECT_THROW(form.list.setListIndex(-2), Failure);
  EXPECT_THROW(form.names.setListIndex(0), Failure);
  EXPECT_THROW(form.names.RemoveItem(0), Failure);
  EXPECT_THROW(form.tabs.setTab(3), Failure);
  EXPECT_THROW(form.front(2), Failure);
  EXPECT_THROW(form.tabs.setTabEnabled(-1, true), Failure);
  EXPECT_THROW(row->setSubItems(1, "x"), Failure);
  EXPECT_THROW(row->SubItems(0), Failure);
  EXPECT_THROW(form.rows.ListItems(0), Failure);
  EXPECT_THROW(form.rows.ListItems(2), Failure);
  EXPECT_EQ(form.list.ListIndex(), 1);
  EXPECT_EQ(noted(), Log{});
}

}  // namespace
}  // namespace orvane::test
