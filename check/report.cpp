#include "check/report.h"

#include <array>
#include <cstdio>
#include <utility>

namespace orvane {
namespace {

struct SeverityWords {
  std::string_view french;
  std::string_view code;
};

// In the order of Severity.
constexpr std::array<SeverityWords, 3> severities{
    {{"erreur", "error"}, {"avertissement", "warning"}, {"remarque", "note"}}};

const SeverityWords& wordsOf(Severity severity) { return severities[static_cast<std::size_t>(severity)]; }

std::string json(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    if (static_cast<unsigned char>(c) >= 0x20) {
      quoted += c;
      continue;
    }
    std::array<char, 7> escape{};
    std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(c));
    quoted += escape.data();
  }
  return quoted + '"';
}

std::string pathOf(const Finding& finding, const std::string& folder) {
  return folder == "." ? finding.file : folder + (folder.ends_with('/') ? "" : "/") + finding.file;
}

}  // namespace

void report(const std::vector<Finding>& findings, const std::string& folder, ReportFormat format, std::ostream& out) {
  const bool isJson = format == ReportFormat::Json;
  const char* separator = "[\n";
  for (const auto& finding : findings) {
    const auto path = pathOf(finding, folder);
    const auto& severity = wordsOf(finding.severity);
    if (isJson)
      out << std::exchange(separator, ",\n") << R"(  {"file": )" << json(path) << R"(, "line": )" << finding.line
          << R"(, "column": )" << finding.column << R"(, "severity": ")" << severity.code << R"(", "code": ")"
          << finding.code << R"(", "text": )" << json(finding.text) << '}';
    else
      out << path << ':' << finding.line << ':' << finding.column << ": " << severity.french << ": " << finding.text
          << '\n';
  }
  if (isJson) out << (findings.empty() ? "[]\n" : "\n]\n");
}

}  // namespace orvane
