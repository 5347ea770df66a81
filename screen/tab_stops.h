#pragma once

#include <QWidget>

namespace orvane {

// The next widget within the pane that the Tab key would go to; null for none.
QWidget* tabStopBehind(const QWidget& widget, const QWidget& pane);

}  // namespace orvane
