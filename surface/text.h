#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// French text. All texts are UTF-8; lengths count characters.
namespace orvane {

// The line end of texts for the user.
inline const std::string crLf = "\r\n";

std::size_t characterCount(std::string_view text);
std::string firstCharacters(std::string_view text, std::size_t count);
// The same for a message, with an ellipsis behind it where characters are left out.
std::string shortened(std::string_view text, std::size_t count = 1000);
std::string lowerCase(std::string_view text);

// Without the spaces at both ends.
std::string trimmed(std::string_view text);

// Cuts the next line off the rest, without its line end, LF or CR LF. A last line need not have one.
std::string_view cutLine(std::string_view& rest);

// Appends one character; U+FFFD in place of a surrogate or of what lies beyond Unicode.
void appendUtf8(std::string& text, char32_t character);

// The characters of a text; nothing for what is no UTF-8 or holds U+FFFD, which stands for that.
std::optional<std::u32string> charactersOf(std::string_view text);

// A text whose byte order is the French alphabetical order of the texts it was made from (É beside E).
std::string sortKey(std::string_view text);

// The positions of the texts in French alphabetical order, equal ones in the order they came in.
std::vector<std::size_t> alphabeticalOrder(const std::vector<std::string>& texts);

}  // namespace orvane
