#include "tests/screen/view_fixture.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "screen/steady_combo.h"

namespace orvane::test {
namespace {

template <class Widget>
Widget* add(QWidget& holder, const QString& name) {
  auto* widget = new Widget;
  widget->setObjectName(name);
  if (!holder.layout()) new QVBoxLayout(&holder);
  holder.layout()->addWidget(widget);
  return widget;
}

// The layout that the sample form would have.
void fill(QWidget& window) {
  add<QLineEdit>(window, "text")->setAccessibleDescription("Nom complet");
  add<QPlainTextEdit>(window, "lines");
  add<QLineEdit>(window, "locked");
  for (const char* name : {"list", "combo"}) add<SteadyCombo>(window, name);
  add<QListWidget>(window, "names");
  add<QCheckBox>(window, "check");
  add<QScrollBar>(window, "bar")->setOrientation(Qt::Horizontal);
  for (const char* name : {"button", "other"}) add<QPushButton>(window, name);
  add<QToolButton>(window, "arrow");
  add<QLabel>(window, "label");
  auto* tabs = add<QTabWidget>(window, "tabs");
  for (int i = 0; i < 3; ++i) tabs->addTab(new QWidget, QString());
  for (int i = 0; i < 3; ++i) add<QRadioButton>(*tabs->widget(0), QString("front_%1").arg(i));
  for (int i = 0; i < 2; ++i) add<QRadioButton>(*tabs->widget(1), QString("back_%1").arg(i));
  auto* frame = add<QGroupBox>(*tabs->widget(0), "frame");
  for (int i = 0; i < 2; ++i) add<QRadioButton>(*frame, QString("framed_%1").arg(i));
  add<QLineEdit>(*frame, "deep");
  add<QTreeWidget>(window, "rows");
  window.resize(500, 1000);
}

}  // namespace

ViewFixture::ViewFixture() {
  form->Show();
  fill(window);
  view = std::make_unique<FormView>(*form, window, door);
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  window.setFocus();
}

void ViewFixture::play(const std::vector<Step>& steps) {
  int number = 0;
  for (const auto& [deed, expected] : steps) {
    SCOPED_TRACE("step " + std::to_string(++number));
    EXPECT_EQ(eventsAfter(deed), expected);
    EXPECT_EQ(unlike(*form, window), "");
  }
}

}  // namespace orvane::test
