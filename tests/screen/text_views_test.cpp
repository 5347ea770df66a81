#include <QLineEdit>
#include <QPlainTextEdit>

#include "tests/screen/view_fixture.h"

namespace orvane::test {
namespace {

using TextViews = ViewFixture;

TEST_F(TextViews, WritesOfCodeShowOnceForATurnAndNeverComeBack) {
  auto& edit = find<QLineEdit>("txtLine");
  const QSignalSpy edited(&edit, &QLineEdit::textEdited);
  form->txtLine.setText("un");
  form->txtLine.setText("deux");
  EXPECT_EQ(edit.text(), "");
  turn();
  EXPECT_EQ(edit.text(), "deux");
  EXPECT_EQ(form->events(), "txtLine=un txtLine=deux");
  EXPECT_EQ(edited.count(), 0);
}

TEST_F(TextViews, AHandlerCutsWhatWasTypedAndTheCursorStays) {
  form->txtLine.Change.handle([this] { form->txtLine.setText(form->txtLine.Text().substr(0, 3)); });
  auto& edit = find<QLineEdit>("txtLine");
  edit.setFocus();
  QTest::keyClicks(&edit, "abc");
  edit.setCursorPosition(1);
  QTest::keyClicks(&edit, "x");
  turn();
  EXPECT_EQ(edit.text(), "axb");
  EXPECT_EQ(edit.cursorPosition(), 2);
}

TEST_F(TextViews, LineBreaksAreCrLfInTheControl) {
  auto& edit = find<QPlainTextEdit>("txtLines");
  QTest::keyClicks(&edit, "a\rb");
  EXPECT_EQ(form->txtLines.Text(), "a\r\nb");
  turn();
  EXPECT_EQ(edit.textCursor().position(), 3);
  form->txtLines.setText("un\r\n\r\ntrois");
  EXPECT_EQ(eventsAfter([] {}), "");
  EXPECT_EQ(edit.toPlainText(), "un\n\ntrois");
}

TEST_F(TextViews, AReadOnlyBoxTakesTheFocusAndNoText) {
  auto& edit = find<QLineEdit>("txtFixed");
  EXPECT_EQ(eventsAfter([&] { click(edit); }), "+txtFixed");
  QTest::keyClicks(&edit, "x");
  EXPECT_EQ(edit.text(), "fixe");
}

TEST_F(TextViews, ATextThatIsRefusedIsTakenBack) {
  form->txtLine.setEnabled(false);
  // The user was faster than the screen.
  auto& edit = find<QLineEdit>("txtLine");
  edit.setFocus();
  EXPECT_EQ(eventsAfter([&] { QTest::keyClicks(&edit, "x"); }), "");
  EXPECT_EQ(edit.text(), "");
  EXPECT_FALSE(edit.isEnabled());
}

}  // namespace
}  // namespace orvane::test
