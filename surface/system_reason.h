#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace orvane {

// French reasons, without a full stop.
inline constexpr std::string_view tooLargeFile = "le fichier dépasse 64 Mio";
// For an error number of the system.
std::string systemReason(int error);

// A French sentence on what went wrong: the text of a Failure, or our own words for any other exception.
std::string sentenceOn(const std::exception& error);

}  // namespace orvane
