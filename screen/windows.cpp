#include "screen/windows.h"

#include <algorithm>
#include <utility>

#include <QScopedValueRollback>
#include <QTimer>

#include "screen/arranging.h"
#include "sheet/frmFeuille.h"

namespace orvane {
namespace {

template <class Window>
Window* windowOf(const std::vector<Window*>& windows, const Form& form) {
  const auto found =
      std::find_if(windows.begin(), windows.end(), [&](auto* window) { return &window->form() == &form; });
  return found == windows.end() ? nullptr : *found;
}

}  // namespace

Windows::Windows(Desktop& desktop, User& user) : desktop_(desktop), door_(desktop, user) { desktop_.watch(*this); }

Windows::~Windows() {
  desktop_.unwatch(*this);
  following_ = true;
  for (auto* dialog : dialogs_) delete dialog;
  main_.reset();
}

ChildWindow* Windows::childOf(const Form& form) const { return windowOf(children_, form); }
DialogWindow* Windows::dialogOf(const Form& form) const { return windowOf(dialogs_, form); }

void Windows::shown(Form& form) {
  switch (form.role()) {
    case Form::Role::Frame:
      return showFrame(form);
    case Form::Role::Child:
      return showChild(form);
    case Form::Role::Dialog:
      return openDialog(form).openOnScreen();
  }
}

void Windows::showFrame(Form& form) {
  main_ = std::make_unique<MainWindow>(dynamic_cast<frmMain&>(form), door_);
  QObject::connect(&main_->area(), &QMdiArea::subWindowActivated, &main_->area(),
                   [this](QMdiSubWindow* window) { activatedByUser(window); });
  main_->open();
}

void Windows::showChild(Form& form) {
  const QScopedValueRollback following(following_, true);
  auto* window = childOf(form);
  if (!window) {
    window = new ChildWindow(form, door_, main_->area());
    place(*window);
    children_.push_back(window);
  }
  window->show();
  bringToFront(*window);
}

// Where the one stood that it replaces, as large, and with the same side of the sheet in front.
void Windows::place(ChildWindow& window) {
  window.measure(main_->largestRoom());
  const auto former = std::exchange(vacated_, std::nullopt);
  const bool replaces = former && former->name == window.form().Name();
  window.openAt(replaces ? former->place.topLeft() : cornerFor(window), main_->largestRoom());
  if (!replaces) return main_->makeRoomFor(window.geometry());
  if (former->maximised)
    window.showMaximized();
  else
    window.setGeometry(former->place);
  auto* sheet = dynamic_cast<frmFeuille*>(&window.form());
  if (former->verso && sheet)
    QTimer::singleShot(0, &window, [this, sheet] { door_.act([&](User& user) { user.click(sheet->optFeuille(1)); }); });
}

void Windows::noteVacated(const ChildWindow& window) {
  const auto* sheet = dynamic_cast<const frmFeuille*>(&window.form());
  if (!sheet || window.isMinimized()) return;
  vacated_ = {sheet->Name(), window.geometry(), window.isMaximized(), sheet->optFeuille(1).Value()};
  QTimer::singleShot(0, main_.get(), [this] { vacated_.reset(); });
}

// A sheet stands beside its character, the window in front until now, where there is room.
QPoint Windows::cornerFor(const ChildWindow& window) const {
  const auto* front = main_->area().currentSubWindow();
  if (!front || front->isMinimized() || !window.form().isResizable()) return freeCorner(window.size());
  const QRect beside(front->geometry().topRight() + QPoint(1, 0), window.size());
  const QSize room = main_->largestRoom();
  const bool fits = beside.right() < room.width() && beside.bottom() < room.height();
  return fits ? beside.topLeft() : freeCorner(window.size());
}

// Beside the windows that are open, so that something of each can be seen, and no further than it fits.
QPoint Windows::freeCorner(const QSize& size) const {
  constexpr int step = 28;
  const auto taken = [&](const QPoint& corner) {
    return std::any_of(children_.begin(), children_.end(), [&](auto* open) { return open->pos() == corner; });
  };
  const QSize spare = main_->largestRoom() - size;
  for (int column = 0; column == 0 || column < spare.width(); column += step)
    for (QPoint corner(column, 0); corner.x() <= spare.width() && corner.y() <= spare.height();
         corner += QPoint(step, step))
      if (!taken(corner)) return corner;
  return {};
}

DialogWindow& Windows::openDialog(Form& form) {
  if (auto* open = dialogOf(form)) return *open;
  return *dialogs_.emplace_back(new DialogWindow(form, door_, main_.get()));
}

void Windows::runModal(Form& form) {
  if (!form.wasUnloaded()) openDialog(form).runModal();
}

void Windows::unloaded(Form& form) {
  const QScopedValueRollback following(following_, true);
  if (auto* child = childOf(form)) {
    noteVacated(*child);
    std::erase(children_, child);
    child->end();
    main_->area().removeSubWindow(child);
  } else if (auto* dialog = dialogOf(form)) {
    std::erase(dialogs_, dialog);
    dialog->end();
  } else if (form.role() == Form::Role::Frame && main_) {
    main_->end();
    main_.release()->deleteLater();
    if (closed) closed();
  }
}

void Windows::activated(Form& form) {
  const QScopedValueRollback following(following_, true);
  auto* window = childOf(form);
  // When the active window is minimised Qt walks on to the next one, which may be an icon and stays one.
  if (!window || window == main_->area().activeSubWindow()) return;
  bringToFront(*window);
}

void Windows::bringToFront(ChildWindow& window) {
  if (window.isMinimized()) window.showNormal();
  main_->area().setActiveSubWindow(&window);
  // While a message box goes away, the main window is not active: it would give the keyboard, and with it the
  // activation, back to the child that had it last.
  const QWidget* kept = main_->focusWidget();
  if (!kept || !window.isAncestorOf(kept)) window.takeKeyboard();
}

void Windows::activatedByUser(QMdiSubWindow* window) {
  auto* child = dynamic_cast<ChildWindow*>(window);
  if (following_ || !child || desktop_.activeChild() == &child->form()) return;
  const bool done = door_.act([&](User& user) { user.activate(child->form()); });
  if (!done && desktop_.activeChild()) activated(*desktop_.activeChild());
}

void Windows::lookAway() {
  door_.suspend();
  desktop_.unwatch(*this);
}

void Windows::catchUp() {
  desktop_.watch(*this);
  door_.resume();
  for (auto* child : std::vector(children_))
    if (child->form().wasUnloaded()) unloaded(child->form());
  const auto& forms = desktop_.Forms();
  const bool frameIsOpen = std::any_of(forms.begin(), forms.end(),
                                       [this](const auto& form) { return main_ && form.get() == &main_->frame(); });
  if (main_ && !frameIsOpen) return unloaded(main_->frame());
  for (const auto& form : forms)
    if (form->role() != Form::Role::Frame && form->isVisible() && form.get() != desktop_.modal()) shown(*form);
  if (auto* active = desktop_.activeChild()) {
    activated(*active);
    // Once Qt has given it to the windows as they came up.
    QTimer::singleShot(0, childOf(*active), [window = childOf(*active)] { window->giveKeyboardToFocus(); });
  }
}

void Windows::captionChanged(Form& form) {
  if (auto* child = childOf(form)) child->showCaption();
  if (auto* dialog = dialogOf(form)) dialog->showCaption();
}

void Windows::refresh(Form& form) {
  if (auto* dialog = dialogOf(form)) dialog->paintNow();
}

void Windows::arrange(Arrangement arrangement) {
  if (!main_) return;
  std::vector<ChildWindow*> open;
  for (auto* form : desktop_.activationOrder())
    if (auto* window = childOf(*form)) open.push_back(window);
  orvane::arrange(main_->area(), open, arrangement);
}

}  // namespace orvane
