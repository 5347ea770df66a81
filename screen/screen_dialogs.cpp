#include "screen/screen_dialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "canvas/qt_text.h"
#include "screen/pointer_shape.h"
#include "screen/windows.h"
#include "surface/desktop.h"

namespace orvane {
namespace {

QMessageBox::Icon icon(BoxStyle style) {
  switch (style) {
    case BoxStyle::Critical:
      return QMessageBox::Critical;
    case BoxStyle::Exclamation:
      return QMessageBox::Warning;
    case BoxStyle::Information:
      return QMessageBox::Information;
    case BoxStyle::OkCancel:
    case BoxStyle::YesNo:
      return QMessageBox::Question;
    case BoxStyle::Plain:
      break;
  }
  return QMessageBox::NoIcon;
}

struct BoxButton {
  QMessageBox::StandardButton button;
  Answer answer;
  const char* text;
};

constexpr BoxButton boxButtons[] = {
    {QMessageBox::Ok, Answer::OK, "OK"},
    {QMessageBox::Cancel, Answer::Cancel, "Annuler"},
    {QMessageBox::Yes, Answer::Yes, "&Oui"},
    {QMessageBox::No, Answer::No, "&Non"},
};

QMessageBox::StandardButtons buttons(BoxStyle style) {
  if (style == BoxStyle::YesNo) return QMessageBox::Yes | QMessageBox::No;
  if (style == BoxStyle::OkCancel) return QMessageBox::Ok | QMessageBox::Cancel;
  return QMessageBox::Ok;
}

void sayInFrench(QMessageBox& box) {
  for (const auto& [button, answer, text] : boxButtons)
    if (auto* shown = box.button(button)) shown->setText(QString::fromUtf8(text));
}

Answer answerOf(int pressed) {
  for (const auto& [button, answer, text] : boxButtons)
    if (button == pressed) return answer;
  return Answer::Cancel;
}

// No act comes in while a box waits; the pointer is an arrow, whatever the handler has made of it.
class Waiting {
 public:
  explicit Waiting(Windows* windows) : windows_(windows) {
    if (windows_) windows_->door().suspend();
  }
  ~Waiting() {
    if (windows_) windows_->door().resume();
  }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;

 private:
  Windows* windows_;
  PointerShape arrow_{Qt::ArrowCursor};
};

}  // namespace

Answer ScreenDialogs::MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) {
  const Waiting waiting(windows_);
  QWidget* parent = QApplication::activeModalWidget();
  if (!parent && windows_) parent = windows_->mainWindow();
  QMessageBox box(icon(style), toQt(title), shownLines(prompt), buttons(style), parent);
  box.setTextFormat(Qt::PlainText);
  sayInFrench(box);
  // What is asked so cannot be undone: Enter alone does not say yes.
  if (style == BoxStyle::YesNo) box.setDefaultButton(QMessageBox::No);
  return answerOf(box.exec());
}

void ScreenDialogs::runModal(Form& form) {
  if (windows_) windows_->runModal(form);
}

void ScreenDialogs::failure(const std::string& description) { MsgBox(description, BoxStyle::Critical, App::Title); }

void ScreenDialogs::notice(const std::string& text) { MsgBox(text, BoxStyle::Exclamation, App::Title); }

}  // namespace orvane
