#include <QLineEdit>
#include <QTreeWidget>

#include "tests/screen/view_fixture.h"

namespace orvane::test {
namespace {

class ListViewViews : public ViewFixture {
 protected:
  ListViewViews() {
    form->addRows({"Acrobatie", "Bagarre", "Tir"});
    turn();
  }
  QPoint nameOf(int row) { return tree.visualItemRect(tree.topLevelItem(row)).center(); }
  QPoint checkBoxOf(int row) {
    const QRect item = tree.visualItemRect(tree.topLevelItem(row));
    return {item.left() + 10, item.center().y()};
  }
  void clickAt(QPoint where) { click(*tree.viewport(), where); }
  QLineEdit* editor() { return tree.viewport()->findChild<QLineEdit*>(); }

  QTreeWidget& tree = find<QTreeWidget>("lvwRows");
};

TEST_F(ListViewViews, ShowsColumnsAndTheSelectedRow) {
  EXPECT_TRUE(tree.isColumnHidden(2));
  EXPECT_EQ(tree.columnWidth(0) + tree.columnWidth(1), tree.viewport()->width());
  EXPECT_TRUE(tree.topLevelItem(0)->isSelected());
  form->lvwRows.ListItems(3)->select();
  form->lvwRows.ListItems(2)->setBold(true);
  EXPECT_EQ(eventsAfter([] {}), "");
  EXPECT_EQ(tree.currentItem(), tree.topLevelItem(2));
  EXPECT_TRUE(tree.topLevelItem(1)->data(0, Qt::FontRole).value<QFont>().bold());
  EXPECT_EQ(eventsAfter([&] { form->lvwRows.Clear(); }), "");
}

TEST_F(ListViewViews, KeysAndLettersClickRows) {
  tree.setFocus();
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&tree, Qt::Key_Down); }), "+lvwRows row Bagarre");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&tree, Qt::Key_A); }), "row Acrobatie");
}

TEST_F(ListViewViews, CheckBoxesToggleByMouseAndSpace) {
  EXPECT_EQ(eventsAfter([&] { clickAt(checkBoxOf(1)); }), "+lvwRows checked Bagarre");
  EXPECT_EQ(tree.currentItem(), tree.topLevelItem(0));
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&tree, Qt::Key_Space); }), "checked Acrobatie");
  // A handler that refuses leaves no check mark behind.
  form->lvwRows.ItemCheck.handle([](ListItemRef row) { row->setChecked(false); });
  clickAt(checkBoxOf(2));
  turn();
  EXPECT_EQ(tree.topLevelItem(2)->checkState(0), Qt::Unchecked);
}

TEST_F(ListViewViews, NamesAreEditedInPlace) {
  form->lvwRows.BeforeLabelEdit.handle(
      [this](bool& cancel) { cancel = form->lvwRows.SelectedItem()->Text() == "Tir"; });
  form->lvwRows.AfterLabelEdit.handle([this](bool&, std::string& text) {
    form->note("after " + text);
    text = text.substr(0, 4);
  });
  const auto afterTyping = [this](const char* text, Qt::Key end) {
    turn();
    QTest::keyClick(&tree, Qt::Key_F2);
    return eventsAfter([&] {
      QTest::keyClicks(editor(), text);
      QTest::keyClick(editor(), end);
    });
  };
  clickAt(nameOf(1));
  EXPECT_EQ(afterTyping("Chant", Qt::Key_Return), "after Chant");
  turn();  // the editor hands its text on in a turn of its own
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(tree.topLevelItem(1)->text(0), "Chan");
  EXPECT_EQ(afterTyping("rien", Qt::Key_Escape), "");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(form->lvwRows.ListItems(2)->Text(), "Chan");
  clickAt(nameOf(2));
  QTest::mouseDClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, nameOf(2));
  turn();
  EXPECT_FALSE(editor());
}

TEST_F(ListViewViews, TabEndsAnEditAndOpensNoOther) {
  clickAt(nameOf(1));
  turn();
  QTest::keyClick(&tree, Qt::Key_F2);
  ASSERT_TRUE(editor());
  QTest::keyClicks(editor(), "Luth");
  QTest::keyClick(editor(), Qt::Key_Tab);
  EXPECT_EQ(form->lvwRows.ListItems(2)->Text(), "Luth");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(editor());
}

TEST_F(ListViewViews, ASecondSlowClickEditsToo) {
  clickAt(nameOf(0));  // the selected row, but this click only brings the focus
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  EXPECT_FALSE(editor());
  clickAt(nameOf(0));
  EXPECT_TRUE(QTest::qWaitFor([this] { return editor() != nullptr; }, 3000));
}

TEST_F(ListViewViews, TheSelectedRowStaysInSight) {
  std::vector<std::string> many;
  for (int i = 0; i < 80; ++i) many.push_back("Rang " + std::to_string(i));
  form->addRows(many);
  form->lvwRows.ListItems(70)->select();
  turn();
  EXPECT_TRUE(tree.viewport()->rect().contains(nameOf(69)));
  window.resize(500, 800);
  turn();
  EXPECT_TRUE(tree.viewport()->rect().contains(nameOf(69)));
}

}  // namespace
}  // namespace orvane::test
