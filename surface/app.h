#pragma once

#include <string>
#include <string_view>

namespace orvane {

// What the program calls itself, and its version, which stands in the project's CMakeLists.txt.
struct App {
  static inline const std::string Title = "Tessaly";
  static const int Major;
  static const int Minor;
  static const int Revision;
  static std::string version();  // "1.1.0"
  // What a program answers to --version, with its line end.
  static std::string versionLine(std::string_view program);
};

}  // namespace orvane
