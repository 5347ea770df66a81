#include "tests/screen/widget_door.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "canvas/qt_text.h"
#include "screen/measures.h"
#include "screen/screen_dialogs.h"
#include "surface/combo_box.h"
#include "surface/list_box.h"
#include "surface/list_view.h"
#include "surface/menu_item.h"
#include "surface/tab_control.h"
#include "tests/screen/hands.h"
#include "tests/screen/likeness.h"
#include "tests/screen/secrets.h"

namespace orvane::test {
namespace {

int position(EntryList& list, const Entry& entry) {
  return entryPosition(list, entry, 0, list.ListCount(), [&](int i) { return list.List(i); });
}

int position(TabControl& tabs, const Entry& entry) {
  return entryPosition(tabs, entry, 0, tabs.Tabs(), [&](int i) { return tabs.TabCaption(i); });
}

int position(ListView& list, const Entry& row) {
  return entryPosition(list, row, 1, list.Count(), [&](int i) { return list.ListItems(i)->Text(); }) - 1;
}

// A user in front of the real widgets: every act is mouse and keys on the widget that bears the control's name. What is
// refused must be out of reach on the screen too.
class WidgetUser final : public User {
 public:
  // The screen acts by the hand.
  WidgetUser(Desktop& desktop, ScreenDialogs& dialogs, std::unique_ptr<User> hand);
  ~WidgetUser() override;

  void click(Control& control) override;
  void type(Control& control, std::string text) override;
  void pick(Control& control, const Entry& entry) override;
  void row(Control& control, const Entry& row) override;
  void toggle(Control& control, const Entry& row) override;
  void edit(Control& control, const Entry& row, std::string text) override;
  void scroll(Control& control, int value) override;
  void focus(Control& control) override;
  void activate(Form& form) override;
  void close(Form& form) override;

  void expectSecretsKept() const;

 private:
  // Throws the Refusal of an act that cannot be done, after a look at the screen.
  void check(Control& control);
  // Lets the screen catch up, and gives the keyboard to the window of the form.
  void settle(Form& form);
  void fitSheets();
  // Lets the screen catch up, and compares all of it with the forms.
  void look();
  QWidget* windowOf(const Form& form) const;
  template <class Widget>
  Widget& widget(Control& control);

  Desktop& desktop_;
  std::unique_ptr<User> hand_;
  Windows windows_;
};

WidgetUser::WidgetUser(Desktop& desktop, ScreenDialogs& dialogs, std::unique_ptr<User> hand)
    : User(desktop), desktop_(desktop), hand_(std::move(hand)), windows_(desktop, *hand_) {
  dialogs.setWindows(windows_);
}

WidgetUser::~WidgetUser() { turn(); }

QWidget* WidgetUser::windowOf(const Form& form) const {
  return form.role() == Form::Role::Frame ? windows_.mainWindow() : test::windowOf(windows_, form);
}

// What is laid down of the places and ranges of bars is shown as it stands at the size of the design.
void WidgetUser::fitSheets() {
  turn();
  for (const auto& form : desktop_.Forms())
    if (auto* child = windows_.childOf(*form); child && form->isResizable())
      child->resize(child->size() - beyondDesign(*form, *child->widget()));
}

void WidgetUser::look() {
  fitSheets();
  turn();
  EXPECT_EQ(unlike(desktop_, windows_), "");
  expectSecretsKept();
}

void WidgetUser::expectSecretsKept() const { EXPECT_EQ(toldSecrets(desktop_, windows_), ""); }

void WidgetUser::settle(Form& form) {
  turn();
  QWidget* window = windowOf(form)->window();
  window->activateWindow();
  turn();
}

void WidgetUser::check(Control& control) {
  settle(control.form());
  try {
    requireReachable(control);
  } catch (const Refusal&) {
    const QWidget* shown = windowOf(control.form())->findChild<QWidget*>(widgetName(control));
    const bool blocked = desktop_.modal() && desktop_.modal() != &control.form();
    EXPECT_TRUE(blocked || !shown || !shown->isVisible() || !shown->isEnabled())
        << control.id() << " is refused, yet can be used on the screen";
    throw;
  }
  if (control.kind() == "menu") return;
  const QWidget* shown = windowOf(control.form())->findChild<QWidget*>(widgetName(control));
  EXPECT_TRUE(shown && shown->isVisible() && shown->isEnabled()) << control.id() << " cannot be used on the screen";
}

template <class Widget>
Widget& WidgetUser::widget(Control& control) {
  return *windowOf(control.form())->findChild<Widget*>(widgetName(control));
}

void WidgetUser::click(Control& control) {
  check(control);
  control.prepareClick();
  if (control.kind() == "menu") {
    windows_.mainWindow()->findChild<QAction*>(toQt(control.Name()))->trigger();
  } else {
    test::click(widget<QWidget>(control));
  }
  look();
}

void WidgetUser::type(Control& control, std::string text) {
  check(control);
  control.prepareType(text);
  auto& shown = widget<QWidget>(control);
  auto* combo = qobject_cast<QComboBox*>(&shown);
  // On a line of the screen nobody types control characters.
  if (!qobject_cast<QPlainTextEdit*>(&shown) && shownLines(text).contains(QRegularExpression("\\p{Cc}")))
    hand_->type(control, text);
  else
    replaceText(combo ? *combo->lineEdit() : shown, shownLines(text));
  look();
}

void WidgetUser::pick(Control& control, const Entry& entry) {
  check(control);
  control.preparePick(entry);
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    choose(widget<QComboBox>(control), position(*combo, entry));
  } else if (auto* list = dynamic_cast<ListBox*>(&control)) {
    clickEntry(widget<QListWidget>(control), position(*list, entry));
  } else if (auto* tabs = dynamic_cast<TabControl*>(&control)) {
    clickTab(widget<QTabWidget>(control), position(*tabs, entry));
  }
  look();
}

void WidgetUser::row(Control& control, const Entry& row) {
  check(control);
  control.prepareRow(row);
  clickRow(widget<QTreeWidget>(control), position(static_cast<ListView&>(control), row));
  look();
}

void WidgetUser::toggle(Control& control, const Entry& row) {
  check(control);
  control.prepareToggle(row);
  clickCheckBox(widget<QTreeWidget>(control), position(static_cast<ListView&>(control), row));
  look();
}

void WidgetUser::edit(Control& control, const Entry& row, std::string text) {
  check(control);
  control.prepareEdit(row, text);
  auto& tree = widget<QTreeWidget>(control);
  doubleClickRow(tree, position(static_cast<ListView&>(control), row));
  if (auto* editor = tree.viewport()->findChild<QLineEdit*>()) {
    replaceText(*editor, shownLines(text));
    QTest::keyClick(editor, Qt::Key_Return);
    turn();  // the editor hands its text on in a turn of its own
  }
  look();
}

void WidgetUser::scroll(Control& control, int value) {
  check(control);
  control.prepareScroll(value);
  auto& bar = widget<QScrollBar>(control);
  bar.setFocus(Qt::MouseFocusReason);
  bar.setValue(value);
  look();
}

void WidgetUser::focus(Control& control) {
  check(control);
  if (!control.takesFocus()) return hand_->focus(control);
  auto* tabs = dynamic_cast<TabControl*>(&control);
  QWidget& shown = tabs ? *widget<QTabWidget>(control).tabBar() : widget<QWidget>(control);
  // A window gives the keyboard to its first widget without telling the form; here the user comes to it.
  shown.clearFocus();
  shown.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(shown.hasFocus()) << control.id();
  look();
}

void WidgetUser::activate(Form& form) {
  requireOpen(form);
  if (form.role() != Form::Role::Child) return hand_->activate(form);
  settle(form);
  windows_.mainWindow()->area().setActiveSubWindow(windows_.childOf(form));
  look();
}

void WidgetUser::close(Form& form) {
  requireOpen(form);
  settle(form);
  windowOf(form)->close();
  look();
}

QMessageBox::StandardButton button(Answer answer) {
  switch (answer) {
    case Answer::OK:
      return QMessageBox::Ok;
    case Answer::Cancel:
      return QMessageBox::Cancel;
    case Answer::Yes:
      return QMessageBox::Yes;
    case Answer::No:
      return QMessageBox::No;
  }
  return QMessageBox::NoButton;
}

// Shows every box and dialog on the screen. Boxes are answered with the mouse, as the script lays down.
class WidgetDialogs : public Dialogs {
 public:
  explicit WidgetDialogs(PlayerDialogs& player) : player_(player) {}

  ScreenDialogs screen;
  const WidgetUser* user = nullptr;

  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) override {
    const Answer wanted = player_.MsgBox(prompt, style, title);
    pressOnceOpen(wanted, prompt);
    const Answer given = screen.MsgBox(prompt, style, title);
    EXPECT_EQ(given, wanted);
    return given;
  }
  void runModal(Form& form) override {
    QTimer::singleShot(0, [this, &form] { player_.runModal(form); });
    screen.runModal(form);
  }
  void failure(const std::string& description) override {
    player_.failure(description);
    pressOnceOpen(Answer::OK, description);
    screen.failure(description);
  }
  void notice(const std::string& text) override {
    player_.notice(text);
    pressOnceOpen(Answer::OK, text);
    screen.notice(text);
  }

 private:
  // Presses a button of the box that comes up next.
  void pressOnceOpen(Answer answer, const std::string& prompt) {
    QTimer::singleShot(0, [this, answer, prompt] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return pressOnceOpen(answer, prompt);
      EXPECT_EQ(box->text(), shownLines(prompt));
      if (user) user->expectSecretsKept();
      QTest::mouseClick(box->button(button(answer)), Qt::LeftButton);
    });
  }

  PlayerDialogs& player_;
};

}  // namespace

struct WidgetDoor::Parts {
  std::unique_ptr<WidgetDialogs> dialogs;
};

WidgetDoor::WidgetDoor() : parts_(std::make_unique<Parts>()) {}
WidgetDoor::~WidgetDoor() = default;

Dialogs& WidgetDoor::dialogs(PlayerDialogs& player) {
  parts_->dialogs = std::make_unique<WidgetDialogs>(player);
  return *parts_->dialogs;
}

std::unique_ptr<User> WidgetDoor::hand(Run& run) { return std::make_unique<User>(run.desktop()); }

std::unique_ptr<User> WidgetDoor::user(Run& run) {
  auto user = std::make_unique<WidgetUser>(run.desktop(), parts_->dialogs->screen, hand(run));
  parts_->dialogs->user = user.get();
  return user;
}

}  // namespace orvane::test
