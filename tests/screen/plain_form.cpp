#include "tests/screen/plain_form.h"

#include <utility>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace orvane::test {

PlainForm::PlainForm(Desktop& desktop) : Form(desktop, {.name = "PlainForm"}) {
  for (auto* box : {&txtLine, &txtLines, &txtThird})
    box->Change.handle([this, box] { note(box->Name() + "=" + box->Text()); });
  for (auto* box : {&cmbList, &cmbEdit}) {
    box->Click.handle([this, box] { note(box->Name() + " Click " + box->Text()); });
    box->Change.handle([this, box] { note(box->Name() + " Change " + box->Text()); });
  }
  lstNames.Click.handle([this] { note("lstNames " + lstNames.Text()); });
  chkMuta.Click.handle([this] { note("chkMuta " + std::to_string(chkMuta.Value())); });
  cmdOne.Click.handle([this] { note("cmdOne"); });
  lblClick.Click.handle([this] { note("lblClick"); });
  HScroll.Change.handle([this] { note("HScroll " + std::to_string(HScroll.Value())); });
  tabs.Click.handle(
      [this](std::int16_t former) { note("tabs " + std::to_string(former) + ">" + std::to_string(tabs.Tab())); });
  for (auto& option : optFirst) option.Click.handle([this, &option] { note(option.Caption()); });
  for (auto& option : optSecond) option.Click.handle([this, &option] { note(option.Caption()); });
  lvwRows.ItemClick.handle([this](ListItemRef row) { note("row " + row->Text()); });
  lvwRows.ItemCheck.handle(
      [this](ListItemRef row) { note((row->Checked() ? "checked " : "unchecked ") + row->Text()); });
  noteFocus();
}

void PlainForm::noteFocus() {
  for (auto* control : controls()) {
    if (!control->takesFocus()) continue;
    control->GotFocus.handle([this, control] { note("+" + control->id()); });
    control->LostFocus.handle([this, control] { note("-" + control->id()); });
  }
}

std::string PlainForm::events() { return std::exchange(log_, {}); }

void PlainForm::addRows(const std::vector<std::string>& names) {
  lvwRows.clearColumnHeaders();
  lvwRows.addColumnHeader(2000);
  lvwRows.addColumnHeader(450, true);
  lvwRows.addColumnHeader(0);
  for (const auto& name : names) {
    const auto row = lvwRows.Add();
    row->setText(name);
    row->setSubItems(1, "3");
    row->setSubItems(2, "clé");
  }
}

namespace {

template <class Widget>
Widget* add(QWidget& holder, const QString& name) {
  auto* widget = new Widget;
  widget->setObjectName(name);
  if (!holder.layout()) new QVBoxLayout(&holder);
  holder.layout()->addWidget(widget);
  return widget;
}

}  // namespace

void PlainForm::layOut(QWidget& window) {
  add<QLineEdit>(window, "txtLine")->setAccessibleDescription("Nom complet");
  add<QPlainTextEdit>(window, "txtLines");
  add<QLineEdit>(window, "txtFixed");
  add<QComboBox>(window, "cmbList");
  add<QComboBox>(window, "cmbEdit");
  add<QListWidget>(window, "lstNames");
  add<QCheckBox>(window, "chkMuta");
  add<QPushButton>(window, "cmdOne");
  add<QLabel>(window, "lblClick");
  add<QScrollBar>(window, "HScroll")->setOrientation(Qt::Horizontal);
  auto* tabs = add<QTabWidget>(window, "tabs");
  for (int i = 0; i < 3; ++i) tabs->addTab(new QWidget, QString());
  for (int i = 0; i < 3; ++i) add<QRadioButton>(*tabs->widget(0), QString("optFirst_%1").arg(i));
  for (int i = 0; i < 2; ++i) add<QRadioButton>(*tabs->widget(1), QString("optSecond_%1").arg(i));
  add<QLineEdit>(*tabs->widget(2), "txtThird");
  add<QTreeWidget>(window, "lvwRows");
  window.resize(500, 900);
}

}  // namespace orvane::test
