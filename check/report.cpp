#include "check/report.h"

#include <array>
#include <cstdio>
#include <utility>

#include "surface/text.h"

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

// The name of a folder may be no text: what is no ASCII in it is then replaced.
std::string textOf(const std::string& path) {
  if (charactersOf(path)) return path;
  std::string text;
  for (const char c : path)
    appendUtf8(text, static_cast<unsigned char>(c) < 0x80 ? static_cast<char32_t>(c) : U'\uFFFD');
  return text;
}

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

}  // namespace

std::string pathOf(const std::string& folder, std::string_view file) {
  return (folder == "." ? "" : folder + (folder.ends_with('/') ? "" : "/")).append(file);
}

void report(const std::vector<Finding>& findings, const std::string& folder, ReportFormat format, std::ostream& out) {
  const bool isJson = format == ReportFormat::Json;
  const char* separator = "[\n";
  for (const auto& finding : findings) {
    const auto path = pathOf(folder, finding.file);
    const auto& severity = wordsOf(finding.severity);
    if (isJson)
      out << std::exchange(separator, ",\n") << R"(  {"file": )" << json(textOf(path)) << R"(, "line": )"
          << finding.line << R"(, "column": )" << finding.column << R"(, "severity": ")" << severity.code
          << R"(", "code": ")" << finding.code << R"(", "text": )" << json(finding.text) << '}';
    else
      out << path << ':' << finding.line << ':' << finding.column << ": " << severity.french << ": " << finding.text
          << '\n';
  }
  if (isJson) out << (findings.empty() ? "[]\n" : "\n]\n");
}

}  // namespace orvane
