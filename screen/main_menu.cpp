#include "screen/main_menu.h"

#include <QAction>
#include <QMenu>

#include "canvas/qt_text.h"

namespace orvane {
namespace {

void addEntry(QMenu& menu, MenuItem& entry, ScreenDoor& door) {
  if (entry.isSeparator()) {
    menu.addSeparator()->setObjectName(toQt(entry.Name()));
    return;
  }
  QAction* action = menu.addAction(toQt(entry.Caption()));
  action->setObjectName(toQt(entry.Name()));
  if (!entry.shortcut().empty()) action->setShortcut(QKeySequence(toQt(entry.shortcut())));
  QObject::connect(action, &QAction::triggered, &menu,
                   [&entry, &door] { door.act([&](User& user) { user.click(entry); }); });
}

QString listed(int number, const Form& form) {
  const QString caption = form.Caption().empty() ? QStringLiteral("(sans nom)") : withoutMnemonics(form.Caption());
  return number < 10 ? QString("&%1 %2").arg(number).arg(caption) : QString("%1 %2").arg(number).arg(caption);
}

void listWindows(QMenu& menu, int entries, const Desktop& desktop, ScreenDoor& door) {
  while (menu.actions().size() > entries) delete menu.actions().last();
  int number = 0;
  for (const auto& form : desktop.Forms()) {
    if (form->role() != Form::Role::Child || !form->isVisible()) continue;
    if (++number == 1) menu.addSeparator();
    QAction* action = menu.addAction(listed(number, *form));
    action->setCheckable(true);
    action->setChecked(desktop.activeChild() == form.get());
    QObject::connect(action, &QAction::triggered, &menu, [window = std::weak_ptr(form), &door] {
      if (const auto open = window.lock()) door.act([&](User& user) { user.activate(*open); });
    });
  }
}

}  // namespace

void fillMenu(QMenuBar& bar, frmMain& frame, ScreenDoor& door) {
  QMenu* menu = nullptr;
  for (auto* control : frame.controls()) {
    auto& entry = dynamic_cast<MenuItem&>(*control);
    if (entry.level() == 2) {
      addEntry(*menu, entry, door);
      continue;
    }
    menu = bar.addMenu(toQt(entry.Caption()));
    menu->setObjectName(toQt(entry.Name()));
  }
  auto* windows = bar.findChild<QMenu*>(toQt(frame.mnuWindow.Name()));
  const auto entries = static_cast<int>(windows->actions().size());
  QObject::connect(windows, &QMenu::aboutToShow, windows,
                   [windows, entries, &frame, &door] { listWindows(*windows, entries, frame.desktop(), door); });
}

}  // namespace orvane
