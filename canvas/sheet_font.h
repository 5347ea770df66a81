#pragma once

#include <string>

#include <QFont>

namespace orvane {

// A font for a surface of 96 dots per inch, the same on every screen: whole pixels, grey edges, no kerning.
// Says once for each process on standard error when "Times New Roman" and its stand-in are both missing.
QFont sheetFont(const std::string& name, float points);

}  // namespace orvane
