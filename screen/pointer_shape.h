#pragma once

#include <QGuiApplication>

namespace orvane {

// The shape of the mouse pointer as long as this lives, whatever stands under it.
class PointerShape {
 public:
  explicit PointerShape(Qt::CursorShape shape) { QGuiApplication::setOverrideCursor(shape); }
  ~PointerShape() { QGuiApplication::restoreOverrideCursor(); }
  PointerShape(const PointerShape&) = delete;
  PointerShape& operator=(const PointerShape&) = delete;
};

}  // namespace orvane
