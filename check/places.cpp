#include "check/places.h"

#include "check/names.h"

namespace orvane {

std::string alsoCited(const std::vector<DataPlace>& places) {
  std::vector<std::string> lines;
  for (std::size_t i = 1; i < places.size(); ++i)
    if (places[i].line != places[i - 1].line) lines.push_back(std::to_string(places[i].line));
  if (lines.empty()) return {};
  return (lines.size() == 1 ? ", citée aussi à la ligne " : ", citée aussi aux lignes ") + listed(lines);
}

void Places::field(const FieldText& text) {
  if (text.file != file_) now_ = &files_[file_ = text.file];
  auto& [records, cells, underWay, isBroken] = *now_;
  if (text.position == 1) {
    cells.resize(underWay.firstCell);  // a line before that was no record
    underWay.line = text.line;
    isBroken = false;
  }
  cells.push_back({text.field.member, text.column, !isBroken});
}

void Places::record() {
  now_->records.push_back(now_->underWay);
  now_->underWay.firstCell = now_->cells.size();
}

void Places::spoil(bool restOfLine) {
  now_->cells.back().isSound = false;
  now_->isBroken |= restOfLine;
}

void Places::spoilRecord() {
  for (std::size_t cell = now_->underWay.firstCell; cell < now_->cells.size(); ++cell)
    now_->cells[cell].isSound &= now_->cells[cell].member == "iKey";
  now_->isBroken = true;
}

bool Places::hasRecords(std::string_view file) const {
  const auto found = files_.find(file);
  return found != files_.end() && !found->second.records.empty();
}

DataPlace Places::of(std::string_view file, std::int32_t position, std::string_view member, std::int32_t nth) const {
  const auto& [records, cells, underWay, isBroken] = files_.at(file);
  const auto record = static_cast<std::size_t>(position);
  const std::size_t end = record < records.size() ? records[record].firstCell : underWay.firstCell;
  const auto line = records.at(record - 1).line;
  for (std::size_t cell = records[record - 1].firstCell; cell < end; ++cell)
    if (cells[cell].member == member && --nth == 0)
      return {file, line, cells[cell].column, member, cells[cell].isSound};
  return {file, line, 1, member, false};
}

}  // namespace orvane
