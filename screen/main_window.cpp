#include "screen/main_window.h"

#include <algorithm>
#include <vector>

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>

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

int stateNumber(Qt::WindowStates state) {
  if (state & Qt::WindowMinimized) return 1;
  return state & Qt::WindowMaximized ? 2 : 0;
}

}  // namespace

MainWindow::MainWindow(frmMain& frame, ScreenDoor& door)
    : alive_(frame.shared_from_this()), frame_(frame), door_(door), area_(*new QMdiArea(this)) {
  setObjectName(toQt(frame_.Name()) + "_window");
  setWindowTitle(toQt(frame_.Caption()));
  setWindowIcon(QIcon(":/art/icons/orvane-128.png"));
  area_.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_.setActivationOrder(QMdiArea::ActivationHistoryOrder);
  area_.setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  setCentralWidget(&area_);
  fillMenu(*menuBar(), frame_, door_);
  addKeys();
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focus) { bringIntoSight(focus); });
}

// What is deleted with it gives up the focus.
MainWindow::~MainWindow() { disconnect(qApp, nullptr, this, nullptr); }

namespace {

void scrollBy(QScrollBar& bar, int before, int behind) {
  if (before < 0) bar.setValue(bar.value() + before);
  if (before >= 0 && behind > 0) bar.setValue(bar.value() + std::min(before, behind));
}

}  // namespace

// Who goes on with the Tab key sees where, also where a child is larger than the window. What is clicked stays in
// place.
void MainWindow::bringIntoSight(const QWidget* focus) {
  const auto* sight = area_.viewport();
  const bool byMouse = QApplication::mouseButtons() != Qt::NoButton;
  if (byMouse || !focus || !sight->isAncestorOf(focus)) return;
  const QRect place(focus->mapTo(sight, QPoint()), focus->size());
  scrollBy(*area_.horizontalScrollBar(), place.left(), place.right() - sight->width());
  scrollBy(*area_.verticalScrollBar(), place.top(), place.bottom() - sight->height());
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
  resize(place.size());
  move(place.topLeft());
  show();
  open_ = true;
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
