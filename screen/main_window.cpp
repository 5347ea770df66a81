#include "screen/main_window.h"

#include <algorithm>
#include <vector>

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStyle>

#include "canvas/qt_text.h"
#include "screen/main_menu.h"
#include "screen/measures.h"

namespace orvane {
namespace {

QRect windowPlace(const frmMain::Placement& placement) {
  return QRect(pixels(placement.Left), pixels(placement.Top), pixels(placement.Width), pixels(placement.Height));
}

// A place whose title bar can be reached on one of the screens of today, no larger than that screen.
QRect onSomeScreen(QRect place) {
  const QRect grip(place.left(), place.top(), std::max(place.width(), 1), 20);
  for (const auto* screen : QGuiApplication::screens()) {
    const QRect seen = screen->availableGeometry().intersected(grip);
    if (seen.width() < std::min(100, grip.width()) || seen.height() < grip.height()) continue;
    place.setSize(place.size().boundedTo(screen->availableGeometry().size()));
    return place;
  }
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  place.setSize(place.size().boundedTo(room.size()));
  place.moveTopLeft(room.topLeft());
  return place;
}

// What a maximised window leaves behind: there is no setting that says so.
bool fillsItsScreen(const QRect& place) {
  constexpr int edges = 16, titleBar = 64;
  const auto* screen = QGuiApplication::screenAt(place.center());
  if (!screen) return false;
  const QRect room = screen->availableGeometry();
  return (place.topLeft() - room.topLeft()).manhattanLength() <= edges && place.width() >= room.width() - edges &&
         place.height() >= room.height() - titleBar;
}

int stateNumber(Qt::WindowStates state) {
  if (state & Qt::WindowMinimized) return 1;
  return state & Qt::WindowMaximized ? 2 : 0;
}

}  // namespace

MainWindow::MainWindow(frmMain& frame, ScreenDoor& door)
    : alive_(frame.shared_from_this()), frame_(frame), door_(door), area_(*new WorkArea(this)) {
  setObjectName(toQt(frame_.Name()) + "_window");
  setWindowTitle(toQt(frame_.Caption()));
  setWindowIcon(QIcon(":/art/icons/orvane-128.png"));
  setCentralWidget(&area_);
  fillMenu(*menuBar(), frame_, door_);
  addKeys();
  connect(&area_, &QMdiArea::subWindowActivated, this, &MainWindow::showButtonsOf);
}

// The children that are deleted with it are each the active one for a moment.
MainWindow::~MainWindow() { disconnect(&area_, nullptr, this, nullptr); }

// A maximised child has its buttons in the menu bar, but for as long as it is the active one.
void MainWindow::showButtonsOf(const QMdiSubWindow* active) {
  for (const auto corner : {Qt::TopLeftCorner, Qt::TopRightCorner})
    if (auto* buttons = menuBar()->cornerWidget(corner)) buttons->setVisible(active && active->isMaximized());
}

void MainWindow::addKeys() {
  const auto key = [this](const char* sequence, auto reaction) {
    connect(new QShortcut(QKeySequence(sequence), this), &QShortcut::activated, this, reaction);
  };
  key("F1", [this] { door_.act([this](User& user) { user.click(frame_.mnuHelpContents); }); });
  key("Ctrl+Tab", [this] { activateBeside(1); });
  key("Ctrl+Shift+Tab", [this] { activateBeside(-1); });
}

void MainWindow::activateBeside(int step) {
  const Desktop& desktop = frame_.desktop();
  std::vector<Form*> open;
  for (const auto& form : desktop.Forms())
    if (form->role() == Form::Role::Child && form->isVisible()) open.push_back(form.get());
  const auto count = static_cast<std::ptrdiff_t>(open.size());
  if (count < 2) return;
  const auto here = std::find(open.begin(), open.end(), desktop.activeChild()) - open.begin();
  Form& next = *open[static_cast<std::size_t>((here + step + count) % count)];
  door_.act([&](User& user) { user.activate(next); });
}

void MainWindow::open() {
  const QRect place = onSomeScreen(windowPlace(frame_.placement()));
  const bool maximised = fillsItsScreen(place);
  resize(maximised ? place.size() * 3 / 4 : place.size());
  move(place.topLeft());
  if (maximised) setWindowState(Qt::WindowMaximized);
  show();
  open_ = true;
  frame_.setWindowState(stateNumber(windowState()));
}

QSize MainWindow::largestRoom() const {
  const QSize room = area_.contentsRect().size();
  const QSize around = frameGeometry().size() - room;
  return takesAll() ? room : room.expandedTo(screen()->availableGeometry().size() - around);
}

void MainWindow::makeRoomFor(const QRect& part) {
  const QSize room = largestRoom();
  QSize wanted(part.right() + 1, part.bottom() + 1);
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  wanted += QSize(wanted.height() > room.height() ? bar : 0, wanted.width() > room.width() ? bar : 0);
  wanted = wanted.boundedTo(room);
  const QSize missing = (wanted - area_.contentsRect().size()).expandedTo({0, 0});
  if (takesAll() || missing.isNull()) return;
  resize(size() + missing);
  const QRect limits = screen()->availableGeometry();
  const QPoint lowest = limits.bottomRight() + QPoint(1, 1) - QPoint(frameGeometry().width(), frameGeometry().height());
  move(std::max(limits.left(), std::min(x(), lowest.x())), std::max(limits.top(), std::min(y(), lowest.y())));
}

void MainWindow::end() {
  open_ = false;
  hide();
}

void MainWindow::reportPlacement() {
  if (!open_ || isMinimized()) return;
  frame_.moved({twips(x()), twips(y()), twips(width()), twips(height())});
}

void MainWindow::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  reportPlacement();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  reportPlacement();
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (open_ && event->type() == QEvent::WindowStateChange) frame_.setWindowState(stateNumber(windowState()));
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  door_.act([this](User& user) { user.close(frame_); });
}

}  // namespace orvane
