#include "session/data_marks.h"

#include <string_view>

#include <QCryptographicHash>

#include "data/record_formats.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::string_view markStart = "# données ";

// In the order in which they are read.
std::vector<std::string_view> dataFiles() {
  return {ethnieFormat.file,   gradeFormat.file,          profilFormat.file,     skillFormat.file,
          mutationFormat.file, martialTechnicFormat.file, martialArtFormat.file, districtFormat.file};
}

std::string checksum(const std::string& bytes) {
  const auto length = static_cast<qsizetype>(bytes.size());
  return QCryptographicHash::hash(QByteArrayView(bytes.data(), length), QCryptographicHash::Sha256)
      .toHex()
      .toStdString();
}

// "# données skill.txt 2345 octets, SHA-256 0123..."
std::string markOf(std::string_view name, Files& files) {
  const std::string start = std::string(markStart) + std::string(name) + " ";
  if (!files.fileExists(std::string(name))) return start + "absent";
  const std::string bytes = files.read(std::string(name));
  return start + std::to_string(bytes.size()) + " octets, SHA-256 " + checksum(bytes);
}

bool speaksOf(std::string_view name, std::string_view line) {
  return line.starts_with(std::string(markStart) + std::string(name) + " ");
}

template <class Reaction>
void forEachLine(std::string_view text, Reaction reaction) {
  while (!text.empty()) reaction(cutLine(text));
}

}  // namespace

std::string dataMarks(Files& files) {
  std::string marks;
  for (const auto name : dataFiles()) marks += markOf(name, files) + "\n";
  return marks;
}

bool hasDataMarks(const std::string& session) {
  bool found = false;
  forEachLine(session, [&](std::string_view line) { found = found || line.starts_with(markStart); });
  return found;
}

std::vector<std::string> changedData(const std::string& session, Files& files) {
  std::vector<std::string> changed;
  for (const auto name : dataFiles())
    forEachLine(session, [&](std::string_view line) {
      if (speaksOf(name, line) && line != markOf(name, files)) changed.emplace_back(name);
    });
  return changed;
}

std::string withDataMarks(const std::string& session, Files& files) {
  std::string text;
  forEachLine(session, [&](std::string_view line) {
    std::string kept(line);
    for (const auto name : dataFiles())
      if (speaksOf(name, line)) kept = markOf(name, files);
    text += kept + "\n";
  });
  return text;
}

}  // namespace orvane
