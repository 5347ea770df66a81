#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "surface/failure.h"
#include "tests/screen/view_fixture.h"

namespace orvane::test {
namespace {

// The windows of the program detach their views when the form is unloaded, as this does.
class Lifetimes : public ViewFixture, public DesktopObserver {
 protected:
  Lifetimes() { desktop.watch(*this); }
  ~Lifetimes() override { desktop.unwatch(*this); }
  void unloaded(Form&) override { view->detach(); }
};

TEST_F(Lifetimes, AHandlerUnloadsItsFormInsideASignalOfItsOwnWidget) {
  form->cmdOne.Click.handle([&unloading = *form] { unloading.Unload(); });
  const std::weak_ptr<PlainForm> unloaded = form;
  auto& name = form->txtLine;
  form.reset();
  click(find<QPushButton>("cmdOne"));
  ASSERT_FALSE(unloaded.expired());  // its widgets still refer to it
  EXPECT_TRUE(unloaded.lock()->wasUnloaded());
  QTest::keyClicks(&find<QLineEdit>("txtLine"), "x");
  turn();
  EXPECT_EQ(name.Text(), "");
  view.reset();
  EXPECT_TRUE(unloaded.expired());
  QTest::keyClicks(&find<QLineEdit>("txtLine"), "y");
}

TEST_F(Lifetimes, LosingTheFocusMayCloseTheFormBeforeTheClick) {
  form->txtLine.LostFocus.handle([this] { form->Unload(); });
  click(find<QLineEdit>("txtLine"));
  EXPECT_EQ(eventsAfter([&] { click(find<QPushButton>("cmdOne")); }), "");
  EXPECT_TRUE(form->wasUnloaded());
}

TEST_F(Lifetimes, AnEditorOutlivesItsForm) {
  form->addRows({"Tir"});
  turn();
  auto& tree = find<QTreeWidget>("lvwRows");
  QTest::keyClick(&tree, Qt::Key_F2);
  auto* editor = tree.viewport()->findChild<QLineEdit*>();
  ASSERT_TRUE(editor);
  form->Unload();
  QTest::keyClicks(editor, "x");
  QTest::keyClick(editor, Qt::Key_Return);
  turn();
  EXPECT_EQ(form->lvwRows.ListItems(1)->Text(), "Tir");
}

TEST_F(Lifetimes, AFailureOfAHandlerIsToldAndGoesNoFurther) {
  form->cmdOne.Click.handle([] { throw Failure("Cela n'a pas marché."); });
  click(find<QPushButton>("cmdOne"));
  EXPECT_EQ(dialogs.log, std::vector<std::string>{"failure|Cela n'a pas marché."});
}

TEST_F(Lifetimes, NoActComesInWhileABoxWaits) {
  door.suspend();
  EXPECT_EQ(eventsAfter([&] { click(find<QPushButton>("cmdOne")); }), "");
  door.resume();
  EXPECT_EQ(eventsAfter([&] { click(find<QPushButton>("cmdOne")); }), "+cmdOne cmdOne");
}

}  // namespace
}  // namespace orvane::test
