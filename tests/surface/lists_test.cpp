#include "tests/surface/surface_fixture.h"

namespace orvane::test {
namespace {

class Lists : public Surface {
 protected:
  Lists() {
    for (const float width : {600.0F, 400.0F, 0.0F}) form.rows.addColumnHeader(width);
    noted();
  }

  ListItemRef add(const std::string& name, const std::string& key = "") {
    auto row = form.rows.Add();
    row->setText(name);
    row->setSubItems(2, key);
    return row;
  }
  // The rows as "NAME/KEY", the selected one with a star.
  Log shown() const {
    Log texts;
    for (const auto& row : form.rows.rows())
      texts.push_back(row->Text() + "/" + row->SubItems(2) + (row->Selected() ? "*" : ""));
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
  form.names.RemoveItem(0);
  EXPECT_EQ(form.names.ListIndex(), -1) << "the selected one is gone";
  EXPECT_EQ(form.names.Text(), "");
}

TEST_F(Lists, SomeRowIsAlwaysSelected) {
  add("un");
  add("deux")->select();
  EXPECT_EQ(shown(), (Log{"un/", "deux/*"}));
  form.rows.Clear();
  EXPECT_EQ(form.rows.SelectedItem(), nullptr);
  add("trois");
  EXPECT_EQ(shown(), Log{"trois/*"});
  EXPECT_EQ(noted(), Log{}) << "no write of rows tells anything";
}

TEST_F(Lists, SortingIsFrenchAndStableAndKeepsTheSelection) {
  add("Élan", "2");
  add("Tir", "3")->select();
  add("Eau", "4");
  add("ère", "5");
  form.rows.setSortKey(0);
  form.rows.sort();
  EXPECT_EQ(shown(), (Log{"Eau/4", "Élan/2", "ère/5", "Tir/3*"}));
  form.rows.Clear();
  std::string keys;
  for (char key = 'z'; key >= 'a'; --key) add("même", std::string(1, key));
  form.rows.sort();
  for (const auto& row : form.rows.rows()) keys += row->SubItems(2);
  EXPECT_EQ(keys, "zyxwvutsrqponmlkjihgfedcba") << "equal names keep their order";
}

TEST_F(Lists, ARowOutlivesItsListForItsHolder) {
  const auto row = add("Tir", "58");
  form.rows.Clear();
  const auto last = add("Course", "2");
  row->select();
  row->setSubItems(2, "59");
  EXPECT_EQ(row->Index(), 0);
  EXPECT_FALSE(row->Selected());
  EXPECT_EQ(row->SubItems(2), "59");
  EXPECT_EQ(shown(), Log{"Course/2*"});
  user.close(form);
  last->setText("Marche");
  EXPECT_EQ(last->Index(), 0) << "the list is gone with its window";
}

TEST_F(Lists, RowsAreClickedAndToggled) {
  add("un");
  add("deux");
  user.row(form.rows, "deux");
  user.row(form.rows, 2);
  user.toggle(form.rows, 1);
  user.toggle(form.rows, "un");
  EXPECT_EQ(noted(), (Log{"rows.GotFocus", "rows.ItemClick deux", "rows.ItemClick deux", "rows.ItemCheck un+",
                          "rows.ItemCheck un-"}));
  EXPECT_EQ(shown(), (Log{"un/", "deux/*"})) << "a check box selects nothing by itself";
}

TEST_F(Lists, NamesAreEditedInPlaceAsFarAsTheHandlersAllow) {
  add("un");
  add("deux")->setBold(true);
  user.edit(form.rows, 1, "Un");
  user.edit(form.rows, "deux", "Deux");
  user.edit(form.rows, "Un!", "");
  EXPECT_EQ(shown(), (Log{"Un!/*", "deux/"}));
  EXPECT_EQ(noted(), (Log{"rows.GotFocus", "rows.ItemClick un", "rows.BeforeLabelEdit", "rows.AfterLabelEdit Un",
                          "rows.ItemClick deux", "rows.BeforeLabelEdit", "rows.ItemClick Un!", "rows.BeforeLabelEdit",
                          "rows.AfterLabelEdit "}));
}

TEST_F(Lists, AHandlerMayClearTheRowsItWasCalledFor) {
  for (const char* event : {"rows.ItemClick un", "rows.ItemCheck deux+"})
    form.on[event] = [](Sample& own) { own.rows.Clear(); };
  add("un");
  user.edit(form.rows, 1, "x");
  EXPECT_EQ(form.rows.Count(), 0);
  add("deux");
  user.toggle(form.rows, 1);
  EXPECT_EQ(form.rows.Count(), 0);
}

}  // namespace
}  // namespace orvane::test
