#include <array>
#include <cstdint>
#include <string>

#include "data/load_data.h"
#include "fuzz/require.h"
#include "surface/text.h"
#include "tests/support/fakes.h"

namespace orvane::fuzz {
namespace {

constexpr std::size_t longestMessage = 20000;  // characters
constexpr int mostDescribed = 4;

struct SoundFile {
  const char* path;
  const char* bytes;
};

// Without records where no other file needs them.
const std::array<SoundFile, 8> soundFiles = {
    {{"./ethnie.txt", "Nom;MaxD\n"},
     {"./grade.txt", "Salaire;Nom\n"},
     {"./profil.txt", "Profil\nPatrouilleur;True;Agent.;3;12;101;\nAsserment\xE9;False;;\n"},
     {"./skill.txt", "Comp\xE9tence\n"},
     {"./mutation.txt", "Mutation\n"},
     {"./martial_technic.txt", "Technique\nBalayage;o;4;Chute;\nParade;d;9;Pare.\n"},
     {"./martial_art.txt", "Art\n"},
     {"./district.txt", "Quartier\n"}}};

// A reading that goes on behind its faults.
class WholeReading : public Reading {
 public:
  int faults = 0;
  int records = 0;

  void fault(const Fault& fault) override {
    require(fault.at.line >= 1 && fault.column >= 1, "a fault has a place");
    if (++faults > mostDescribed) return;  // the others are of the same kinds
    const std::string told = describe(fault);
    require(charactersOf(told).has_value(), "a fault is told in a text");
    require(characterCount(told) <= longestMessage, "a fault is told in short");
  }
  void field(const FieldText& field) override {
    require(field.line > 1 && field.column >= 1 && field.position >= 1, "a field has a place");
  }
  void record() override { ++records; }
};

std::int32_t recordsIn(const ReferenceData& data) {
  return data.colEthnie.Count() + data.colGrade.Count() + data.colProfil.Count() + data.colSkill.Count() +
         data.colMutation.Count() + data.colMartialArt.Count() + data.colDistrict.Count();
}

void read(test::MemoryFiles& files) {
  test::LoggedDialogs start;
  ReferenceData atStart;
  prcLoadData(atStart, files, start);
  for (const auto& told : start.log) require(characterCount(told) <= longestMessage, "a box is short");
  test::LoggedDialogs check;
  ReferenceData whole;
  WholeReading reading;
  const auto technics = readData(whole, files, check, reading);
  require(reading.records == recordsIn(whole) + technics.Count(), "every record is told of");
  if (start.log.empty()) {
    require(reading.faults == 0, "what a start reads without a word has no fault");
    require(recordsIn(atStart) == recordsIn(whole), "a start reads all of it");
  }
}

}  // namespace
}  // namespace orvane::fuzz

// The first byte picks the file that holds the others; the rest of the folder is sound.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace orvane;
  static test::MemoryFiles files;
  for (const auto& file : fuzz::soundFiles) files.contents[file.path] = file.bytes;
  if (size > 0)
    files.contents[fuzz::soundFiles[bytes[0] % fuzz::soundFiles.size()].path] =
        std::string(reinterpret_cast<const char*>(bytes) + 1, size - 1);
  fuzz::read(files);
  return 0;
}
