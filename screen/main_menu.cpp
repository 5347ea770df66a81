#include "screen/main_menu.h"

#include <QAction>
#include <QMenu>

#include "screen/qt_text.h"

namespace orvane {
namespace {

void addEntry(QMenu& menu, MenuItem& entry, Acts& acts) {
  if (entry.isSeparator()) {
    menu.addSeparator()->setObjectName(toQt(entry.Name()));
    return;
  }
  QAction* action = menu.addAction(toQt(entry.Caption()));
  action->setObjectName(toQt(entry.Name()));
  if (!entry.shortcut().empty()) action->setShortcut(QKeySequence(toQt(entry.shortcut())));
  QObject::connect(action, &QAction::triggered, &menu,
                   [&entry, &acts] { acts.perform([&](User& user) { user.click(entry); }); });
}

QString listed(int number, const Form& form) {
  const QString caption = form.Caption().empty() ? QStringLiteral("(sans nom)") : withoutMnemonics(form.Caption());
  return number < 10 ? QString("&%1 %2").arg(number).arg(caption) : QString("%1 %2").arg(number).arg(caption);
}

void listWindows(QMenu& menu, int entries, Acts& acts) {
  while (menu.actions().size() > entries) delete menu.actions().last();
  int number = 0;
  for (const auto& form : acts.desktop().Forms()) {
    if (form->role() != Form::Role::Child || !form->isVisible()) continue;
    if (++number == 1) menu.addSeparator();
    QAction* action = menu.addAction(listed(number, *form));
    action->setCheckable(true);
    action->setChecked(acts.desktop().activeChild() == form.get());
    QObject::connect(action, &QAction::triggered, &menu, [window = std::weak_ptr(form), &acts] {
      if (const auto open = window.lock()) acts.perform([&](User& user) { user.activate(*open); });
    });
  }
}

}  // namespace

void fillMenu(QMenuBar& bar, frmMain& frame, Acts& acts) {
  QMenu* menu = nullptr;
  for (auto* control : frame.controls()) {
    auto& entry = static_cast<MenuItem&>(*control);
    if (entry.level() == 2) {
      addEntry(*menu, entry, acts);
      continue;
    }
    menu = bar.addMenu(toQt(entry.Caption()));
    menu->setObjectName(toQt(entry.Name()));
  }
  auto* windows = bar.findChild<QMenu*>(toQt(frame.mnuWindow.Name()));
  const auto entries = static_cast<int>(windows->actions().size());
  QObject::connect(windows, &QMenu::aboutToShow, windows,
                   [windows, entries, &acts] { listWindows(*windows, entries, acts); });
}

}  // namespace orvane
