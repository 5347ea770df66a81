#include "screen/arranging.h"

#include <algorithm>

#include <QScrollBar>
#include <QStyle>

namespace orvane {
namespace {

using WindowList = std::vector<ChildWindow*>;

WindowList those(const WindowList& windows, bool minimized) {
  WindowList found;
  std::copy_if(windows.begin(), windows.end(), std::back_inserter(found),
               [&](auto* window) { return window->isMinimized() == minimized; });
  return found;
}

void place(ChildWindow& window, const QRect& where) {
  if (window.isMaximized()) window.showNormal();
  window.move(where.topLeft());
  if (window.form().isResizable()) window.resize(where.size());
}

// The room is shared out from left to right, so that the last one ends at its edge; from above each one leaves the
// title bar of the one before it free, however many there are; hence the bar to scroll.
void cascade(QSize room, const WindowList& windows) {
  if (!windows.empty()) room.rwidth() -= windows.front()->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const auto steps = std::max(1, static_cast<int>(windows.size()) - 1);
  QPoint corner;
  for (auto* window : windows) {
    const int titleBar = window->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window) + 4;
    const QSize left = room - QSize(corner.x(), corner.y());
    place(*window, QRect(corner, window->size().boundedTo(left).expandedTo({300, 200})));
    window->raise();
    corner += QPoint(std::clamp((room.width() - window->width()) / steps, 0, titleBar), titleBar);
  }
}

// Horizontally: each as wide as the room, one above the other, the active one on top.
void tile(const QSize& room, const WindowList& windows, bool horizontally) {
  const auto count = static_cast<int>(windows.size());
  for (int i = 0; i < count; ++i) {
    const int slot = count - 1 - i;
    const QRect row(0, room.height() * slot / count, room.width(), room.height() / count);
    const QRect column(room.width() * slot / count, 0, room.width() / count, room.height());
    place(*windows[static_cast<std::size_t>(i)], horizontally ? row : column);
  }
}

void arrangeIcons(const QSize& room, const WindowList& icons) {
  QPoint corner(0, room.height());
  for (auto* icon : icons) {
    if (corner.x() > 0 && corner.x() + icon->width() > room.width()) corner = QPoint(0, corner.y() - icon->height());
    icon->move(corner.x(), corner.y() - icon->height());
    corner.rx() += icon->width();
  }
}

}  // namespace

void arrange(QMdiArea& area, const std::vector<ChildWindow*>& windows, Arrangement arrangement) {
  if (arrangement == Arrangement::Icons) return arrangeIcons(area.viewport()->size(), those(windows, true));
  for (auto* bar : {area.horizontalScrollBar(), area.verticalScrollBar()}) bar->setValue(0);
  const QSize room = area.contentsRect().size();
  if (arrangement == Arrangement::Cascade) return cascade(room, those(windows, false));
  tile(room, those(windows, false), arrangement == Arrangement::TileHorizontally);
}

}  // namespace orvane
