#include "tests/surface/surface_fixture.h"

namespace orvane::test {
namespace {

class Lists : public Surface {
 protected:
  // The rows as "NAME/KEY", the selected one with a star.
  std::string shown() const {
    std::string texts;
    for (const auto& row : form.rows.rows())
      texts += row->Text() + "/" + row->SubItems(2) + (row->Selected() ? "* " : " ");
    return texts;
  }

  Sample& form = open();
};

TEST_F(Lists, AListBoxSortsInFrench) {
  std::string names;
  for (const char* name : {"Zoé", "eau", "Été", "Etc", "anne", "Anne", "Ève", "100"}) form.names.AddItem(name);
  for (int i = 0; i < form.names.ListCount(); ++i) names += form.names.List(i) + " ";
  EXPECT_EQ(names, "100 anne Anne eau Etc Été Ève Zoé ");
  EXPECT_EQ(form.names.NewIndex(), 0);
}

TEST_F(Lists, TheSelectedEntryStaysSelectedWhereverItMoves) {
  form.names.AddItem("m");
  form.names.setListIndex(0);
  form.names.AddItem("a");
  EXPECT_EQ(form.names.Text(), "m");
  form.names.RemoveItem(0);
  EXPECT_EQ(form.names.ListIndex(), 0);
  form.names.AddItem("z");
  form.names.RemoveItem(1);
  EXPECT_EQ(form.names.Text(), "m");
  form.names.RemoveItem(0);
  EXPECT_EQ(form.names.ListIndex(), -1) << "the selected one is gone";
  EXPECT_EQ(form.names.Text(), "");
}

TEST_F(Lists, SomeRowIsAlwaysSelected) {
  form.addRow("un");
  form.addRow("deux")->select();
  EXPECT_EQ(shown(), "un/ deux/* ");
  form.rows.Clear();
  EXPECT_EQ(form.rows.SelectedItem(), nullptr);
  form.addRow("trois");
  EXPECT_EQ(shown(), "trois/* ");
}

TEST_F(Lists, SortingIsFrenchAndStableAndKeepsTheSelection) {
  form.addRow("Élan", "2");
  form.addRow("Tir", "3")->select();
  form.addRow("Eau", "4");
  form.addRow("ère", "5");
  form.rows.setSortKey(0);
  form.rows.sort();
  EXPECT_EQ(shown(), "Eau/4 Élan/2 ère/5 Tir/3* ");
  form.rows.setSortKey(2);
  form.rows.sort();
  EXPECT_EQ(shown(), "Élan/2 Tir/3* Eau/4 ère/5 ");
  form.rows.setSortKey(0);
  form.rows.Clear();
  std::string keys;
  for (char key = 'z'; key >= 'a'; --key) form.addRow("même", std::string(1, key));
  form.rows.sort();
  for (const auto& row : form.rows.rows()) keys += row->SubItems(2);
  EXPECT_EQ(keys, "zyxwvutsrqponmlkjihgfedcba") << "equal names keep their order";
}

TEST_F(Lists, ARowOutlivesItsListForItsHolder) {
  const auto row = form.addRow("Tir", "58");
  form.rows.Clear();
  const auto last = form.addRow("Course", "2");
  row->select();
  row->setSubItems(2, "59");
  EXPECT_EQ(row->Index(), 0);
  EXPECT_FALSE(row->Selected());
  EXPECT_EQ(row->SubItems(2), "59");
  EXPECT_EQ(shown(), "Course/2* ");
  user.close(form);
  last->setText("Marche");
  EXPECT_EQ(last->Index(), 0) << "the list is gone with its window";
}

TEST_F(Lists, RowsAreClickedToggledAndEditedAsFarAsTheHandlersAllow) {
  form.addRow("un");
  form.addRow("deux")->setBold(true);
  const std::pair<std::function<void()>, std::string> acts[]{
      {[&] { user.row(form.rows, "deux"); }, "+rows rows:deux"},
      {[&] { user.row(form.rows, 2); }, "rows:deux"},
      {[&] { user.toggle(form.rows, 1); }, "rows:un+"},
      {[&] { user.toggle(form.rows, "un"); }, "rows:un-"},
      {[&] { user.edit(form.rows, 1, "Un"); }, "rows:un rows? rows=Un"},
      {[&] { user.edit(form.rows, "deux", "Deux"); }, "rows:deux rows?"},
      {[&] { user.edit(form.rows, "Un!", ""); }, "rows:Un! rows? rows="},
  };
  for (const auto& [act, expected] : acts) EXPECT_EQ(eventsAfter(act), expected);
  EXPECT_EQ(shown(), "Un!/* deux/ ");
  user.toggle(form.rows, 2);
  EXPECT_EQ(shown(), "Un!/* deux/ ") << "a check box selects nothing by itself";
}

TEST_F(Lists, AHandlerMayClearTheRowsItWasCalledFor) {
  for (const char* event : {"rows:un", "rows:deux+"}) form.on[event] = [](Sample& own) { own.rows.Clear(); };
  form.addRow("un");
  user.edit(form.rows, 1, "x");
  EXPECT_EQ(form.rows.Count(), 0);
  form.addRow("deux");
  user.toggle(form.rows, 1);
  EXPECT_EQ(form.rows.Count(), 0);
}

}  // namespace
}  // namespace orvane::test
