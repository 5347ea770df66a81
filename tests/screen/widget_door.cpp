#include "tests/screen/widget_door.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QTimer>

#include "canvas/qt_text.h"

namespace orvane::test {
namespace {

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

// Presses a button of the box that comes up next.
void pressOnceOpen(Answer answer, const std::string& prompt) {
  QTimer::singleShot(0, [=] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return pressOnceOpen(answer, prompt);
    EXPECT_EQ(box->text(), shownLines(prompt));
    QTest::mouseClick(box->button(button(answer)), Qt::LeftButton);
  });
}

}  // namespace

Answer WidgetDialogs::MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) {
  const Answer wanted = player_.MsgBox(prompt, style, title);
  pressOnceOpen(wanted, prompt);
  const Answer given = screen_.MsgBox(prompt, style, title);
  EXPECT_EQ(given, wanted);
  return given;
}

void WidgetDialogs::runModal(Form& form) {
  QTimer::singleShot(0, [this, &form] { player_.runModal(form); });
  screen_.runModal(form);
}

void WidgetDialogs::failure(const std::string& description) {
  player_.failure(description);
  pressOnceOpen(Answer::OK, description);
  screen_.failure(description);
}

void WidgetDialogs::notice(const std::string& text) {
  player_.notice(text);
  pressOnceOpen(Answer::OK, text);
  screen_.notice(text);
}

Dialogs& WidgetDoor::dialogs(PlayerDialogs& player) {
  dialogs_ = std::make_unique<WidgetDialogs>(player, screen_);
  return *dialogs_;
}

std::unique_ptr<User> WidgetDoor::user(Run& run) { return std::make_unique<WidgetUser>(run.desktop(), screen_); }

}  // namespace orvane::test
