#pragma once

#include <map>
#include <vector>

#include "data/reading.h"

namespace orvane {

// A field, a line or a file as a finding points to it.
struct DataPlace {
  std::string_view file;
  std::int32_t line = 1;
  std::int32_t column = 1;
  std::string_view member = {};  // of the record, empty for no field
  bool isSound = true;           // false: the reader found a fault in it, and its value means nothing
};

// ", citée aussi à la ligne 3" for the places behind the first one, empty without any.
std::string alsoCited(const std::vector<DataPlace>& places);

// Where the fields of all records stand.
class Places {
 public:
  // What the reader tells, in its order.
  void field(const FieldText& text);
  void record();
  // The field told last means nothing; nor does what follows in its line, where that is broken there.
  void spoil(bool restOfLine);
  // Nor do the fields told before it in its line, but for its key.
  void spoilRecord();

  bool hasRecords(std::string_view file) const;
  // The field of a record, which is counted from 1 in its file, that fills a member; of a list the n-th one.
  DataPlace of(std::string_view file, std::int32_t position, std::string_view member, std::int32_t nth = 1) const;

 private:
  struct Cell {
    std::string_view member;
    std::int32_t column;
    bool isSound;
  };
  struct Record {
    std::int32_t line;
    std::size_t firstCell;
  };
  struct File {
    std::vector<Record> records;
    std::vector<Cell> cells;
    Record underWay = {};
    bool isBroken = false;
  };

  std::map<std::string_view, File> files_;
  std::string_view file_;  // that is being read
  File* now_ = nullptr;
};

}  // namespace orvane
