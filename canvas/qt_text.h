#pragma once

#include <string>
#include <string_view>

#include <QString>

// Texts on their way between the controls, which hold UTF-8, and Qt.
namespace orvane {

QString toQt(std::string_view text);
std::string fromQt(const QString& text);

// Line ends of any kind become one "\n", as text widgets break their lines.
QString shownLines(std::string_view text);
// The line breaks of a text widget become CR LF.
std::string typedLines(const QString& text);

// The text that a widget which reads "&" as a mnemonic shows as it stands.
QString withoutMnemonics(std::string_view text);

}  // namespace orvane
