#include "screen/arranging.h"

#include <algorithm>

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

void cascade(const QSize& room, const WindowList& windows) {
  int step = 0;
  for (auto* window : windows) {
    const int offset = window->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window) + 4;
    const QPoint corner = QPoint(step, step);
    place(*window, QRect(corner, window->size().boundedTo(room - QSize(step, step)).expandedTo({300, 200})));
    window->raise();
    step = step + 2 * offset > room.height() / 2 ? 0 : step + offset;
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
  const QSize room = area.contentsRect().size();
  switch (arrangement) {
    case Arrangement::Cascade:
      return cascade(room, those(windows, false));
    case Arrangement::TileHorizontally:
    case Arrangement::TileVertically:
      return tile(room, those(windows, false), arrangement == Arrangement::TileHorizontally);
    case Arrangement::Icons:
      return arrangeIcons(room, those(windows, true));
  }
}

}  // namespace orvane
