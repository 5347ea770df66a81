#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "data/texts.h"
#include "surface/collection.h"

// The records of the game. Plain values: nothing is checked here, every member starts empty, 0 or false. Their texts
// stand in the reference data that they were read into.
namespace orvane {

struct clsEthnie {
  DataText sName;
  std::int16_t iMaxD = 0;
};

struct clsGrade {
  std::int16_t iSalaire = 0;
  DataText sName;
  DataText sDescro;
};

// A contact of one character; no file holds these.
struct clsContact {
  std::string sName;
  std::int16_t iInfo = 0;
  std::int16_t iReact = 0;
  std::string sDescro;
};

struct clsProfil {
  // Of the profile whose skills all sworn profiles bring as well as their own, and which nobody can choose.
  static constexpr DataText swornName = "Assermenté";

  DataText sName;
  // A sworn profile.
  bool bAsserm = false;
  // Keys of skills, or the code that stands for the skill of the favourite vehicle.
  Collection<double> colSkillPro;
  DataText sDescro;

  bool canBeChosen() const { return sName != swornName; }
  // A copy whose list can be changed without touching this one.
  std::shared_ptr<clsProfil> Duplicate() const;
};

struct clsSkill {
  std::int16_t iKey = 0;
  DataText sName;
  std::int16_t iStart = 0;
  DataText sDescro;
};

struct clsMutation {
  DataText sCateg;
  DataText sSign;
  DataText sName;
  DataText sDescro;
  std::int16_t iNum = 0;
};

struct clsMartialTechnic {
  DataText sName;
  // "o" offensive, "d" defensive.
  DataText sType;
  DataText sDescro;
  std::int16_t iKey = 0;
  // Taken by the character; only ever true on private copies.
  bool bSelected = false;

  // A copy without the key, which only the loading of the data needs.
  std::shared_ptr<clsMartialTechnic> Duplicate() const;
};

// The techniques of one art. A read-only art hands out read-only techniques.
class colMartialTechnic {
 public:
  // Stores this very record, no copy of it.
  void Add(std::shared_ptr<clsMartialTechnic> ucMartialTechnic) { technics_.Add(std::move(ucMartialTechnic)); }

  // These fail with a position outside 1 to Count().
  const std::shared_ptr<clsMartialTechnic>& Item(std::int32_t position) { return technics_.Item(position); }
  std::shared_ptr<const clsMartialTechnic> Item(std::int32_t position) const { return technics_.Item(position); }
  const std::shared_ptr<clsMartialTechnic>& operator()(std::int32_t position) { return Item(position); }
  std::shared_ptr<const clsMartialTechnic> operator()(std::int32_t position) const { return Item(position); }
  void Remove(std::int32_t position) { technics_.Remove(position); }

  std::int32_t Count() const { return technics_.Count(); }

  auto begin() { return technics_.begin(); }
  auto end() { return technics_.end(); }

 private:
  Collection<std::shared_ptr<clsMartialTechnic>> technics_;
};

struct clsMartialArt {
  DataText sName;
  std::int16_t iRestrictO = 0;
  std::int16_t iRestrictD = 0;
  DataText sDescro;
  orvane::colMartialTechnic colMartialTechnic;

  // A deep copy: every technique is a new record, private to the copy.
  std::shared_ptr<clsMartialArt> Duplicate() const;
};

struct clsDistrict {
  DataText sName;
  DataText sDescro;
};

}  // namespace orvane
