#pragma once

#include <functional>
#include <memory>
#include <span>

#include "data/record_line.h"
#include "data/records.h"
#include "surface/world.h"

// What a line of each file holds, field by field.
namespace orvane {

// Finds a technique by its key, empty where there is none.
using TechnicFinder = std::function<std::shared_ptr<clsMartialTechnic>(std::int16_t iKey)>;

// What fields are read with, beside their line.
struct ReadingTools {
  Dialogs& dialogs;
  Texts& texts;
  TechnicFinder technic;
};

template <class Record>
struct FieldFormat {
  Field field;
  // Takes the field off the line and into the record; the last field of some records takes all that are left.
  void (*take)(RecordLine& line, const Field& field, Record& record, const ReadingTools& tools);
};

template <class Record>
struct RecordFormat {
  std::string_view file;
  std::span<const FieldFormat<Record>> fields;

  Record read(RecordLine& line, const ReadingTools& tools) const {
    Record record;
    for (const auto& [field, take] : fields) take(line, field, record, tools);
    return record;
  }
};

extern const RecordFormat<clsEthnie> ethnieFormat;
extern const RecordFormat<clsGrade> gradeFormat;
extern const RecordFormat<clsProfil> profilFormat;
extern const RecordFormat<clsSkill> skillFormat;
extern const RecordFormat<clsMutation> mutationFormat;
extern const RecordFormat<clsMartialTechnic> martialTechnicFormat;
// A technique that is not found is a fault, and left out.
extern const RecordFormat<clsMartialArt> martialArtFormat;
extern const RecordFormat<clsDistrict> districtFormat;

}  // namespace orvane
