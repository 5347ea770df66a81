#include "data/load_data.h"

#include <gtest/gtest.h>
#include <random>
#include <sstream>

#include "data/return_marker.h"
#include "data/windows_1252.h"
#include "surface/property.h"
#include "surface/text.h"
#include "tests/support/approved.h"
#include "tests/support/fakes.h"

namespace orvane::test {
namespace {

namespace fs = std::filesystem;

const fs::path cases = sourceFolder() / "tests/data/cases";

class LoadData : public testing::Test, protected TestWorld<> {
 protected:
  LoadData() { files = filesOf(cases / "sound"); }

  const Log& load() {
    data = ReferenceData();
    dialogs.log.clear();
    prcLoadData(data, files, dialogs);
    return dialogs.log;
  }

  ReferenceData data;
};

std::ostream& operator<<(std::ostream& out, const clsMartialTechnic& technic) {
  return out << technic.sName << " " << technic.sType << " " << technic.iKey << " " << orvane::quoted(technic.sDescro);
}

// Every record with all its members, a line each.
std::string described(const ReferenceData& data) {
  std::ostringstream out;
  for (const auto& one : data.colEthnie) out << "ethnie " << one.sName << " " << one.iMaxD << "\n";
  for (const auto& one : data.colGrade)
    out << "grade " << one.iSalaire << " " << one.sName << " " << orvane::quoted(one.sDescro) << "\n";
  for (const auto& one : data.colProfil) {
    out << "profil " << orvane::quoted(one.sName) << " " << one.bAsserm << " " << orvane::quoted(one.sDescro);
    for (const double key : one.colSkillPro) out << " " << key;
    out << "\n";
  }
  out << "sworn " << data.iProfilAsserm << "\n";
  for (const auto& one : data.colSkill)
    out << "skill " << one.iKey << " " << one.sName << " " << one.iStart << " " << orvane::quoted(one.sDescro) << "\n";
  for (const auto& one : data.colMutation)
    out << "mutation " << one.sCateg << " " << one.sSign << " " << one.iNum << " " << one.sName << " "
        << orvane::quoted(one.sDescro) << "\n";
  for (const auto& one : data.colMartialArt) {
    out << "art " << one.sName << " " << one.iRestrictO << " " << one.iRestrictD << " " << orvane::quoted(one.sDescro);
    const auto& technics = one.colMartialTechnic;
    for (std::int32_t i = 1; i <= technics.Count(); ++i) out << "\n  " << *technics(i);
    out << "\n";
  }
  for (const auto& one : data.colDistrict)
    out << "district " << orvane::quoted(one.sName) << " " << orvane::quoted(one.sDescro) << "\n";
  return out.str();
}

class LoadCases : public LoadData {
 protected:
  std::string toldAndRead() {
    std::string told;
    for (const auto& message : load()) told += message + "\n";
    return told + described(data);
  }
};

// tests/data/cases/NAME: files that take the place of the sound ones, and what is then told and read.
TEST_F(LoadCases, ReadsAndTellsAsApproved) {
  for (const auto& entry : fs::directory_iterator(cases)) {
    for (const auto& [path, bytes] : filesOf(entry.path()).contents) files.contents[path] = bytes;
    const std::string expected = toldAndRead();
    expectApproved(entry.path() / "expected", expected);
    files.part = 3;
    EXPECT_EQ(toldAndRead(), expected) << entry.path();
    files = filesOf(cases / "sound");
  }
}

TEST_F(LoadData, ArtsShareTheRecordsOfTheirTechniques) {
  load();
  EXPECT_EQ(data.colMartialArt(1).colMartialTechnic(1), data.colMartialArt(2).colMartialTechnic(1));
}

TEST_F(LoadData, WhatCannotBeReadAtAllEndsTheReading) {
  files.broken.insert("./skill.txt");
  EXPECT_EQ(load(), (Log{"0|Tessaly|error : Accès refusé : ./skill.txt."}));
  EXPECT_EQ(data.colProfil.Count(), 2);
  EXPECT_EQ(data.colMutation.Count(), 0);
}

TEST_F(LoadData, AFileThatBreaksOffKeepsItsWholeLines) {
  files.contents["./district.txt"] = "\nA;1\nB;2\nC;3\n";
  files.readable["./district.txt"] = 10;
  files.part = 4;
  EXPECT_EQ(load(), (Log{"0|Tessaly|error : Erreur d'entrée/sortie."}));
  EXPECT_EQ(data.colDistrict.Count(), 2);
}

TEST_F(LoadData, AnAssermenteProfileOutOfReachIsAFailure) {
  std::string text = "\n";
  for (int i = 0; i < 32767; ++i) text += "P;0;;\n";
  files.contents["./profil.txt"] = text + "Asserment\xE9;0;;\n";
  EXPECT_EQ(load(), (Log{"0|Tessaly|error : fichier profil.txt, ligne 32769, le profil \"Assermenté\" vient au-delà du "
                         "32767e profil."}));
}

TEST(Windows1252, LacksFiveCharacters) {
  std::string lacking;
  for (int code = 0; code < 256; ++code)
    if (!inWindows1252(static_cast<char>(code))) lacking += static_cast<char>(code);
  EXPECT_EQ(lacking, "\x81\x8D\x8F\x90\x9D");
  EXPECT_EQ(fromWindows1252("~\x7F\x80\x82\x9C\x99\xA0\xFF"), "~\x7F€‚œ™\u00A0ÿ");
  std::string back;
  for (const char32_t character : U"~\x7F€‚œ™\u00A0ÿ") back += toWindows1252(character).value_or('?');
  EXPECT_EQ(back, std::string("~\x7F\x80\x82\x9C\x99\xA0\xFF\0", 9));
  EXPECT_EQ(toWindows1252(U'ω'), std::nullopt);
}

TEST(ReturnMarker, BecomesALineEndWhereverItStands) {
  LoggedDialogs dialogs;
  EXPECT_EQ(prcReturnToCrLf("[return]a[return][return]b[return]", dialogs), "\r\na\r\n\r\nb\r\n");
  EXPECT_EQ(prcReturnToCrLf("[RETURN] [return[return] [re[return]turn]", dialogs), "[RETURN] [return\r\n [re\r\nturn]");
}

bool isUtf8Text(const std::string& text) { return lowerCase(text).find("\uFFFD") == std::string::npos; }

// One to eight places changed, taken out or doubled.
void damage(std::string& bytes, std::mt19937& random) {
  const std::string_view likely = ";\n\r0-.e\x81\x9D[]";
  for (auto times = 1 + random() % 8; times > 0 && !bytes.empty(); --times) {
    const auto at = random() % bytes.size();
    const auto kind = random() % 4;
    if (kind == 0) bytes[at] = static_cast<char>(random() % 256);
    if (kind == 1) bytes[at] = likely[random() % likely.size()];
    if (kind == 2) bytes.erase(at, 1 + random() % 10);
    if (kind == 3) bytes.insert(at, bytes.substr(at, random() % 20));
  }
}

TEST_F(LoadData, DamagedFilesAreReadOrReportedAndNeverMore) {
  const auto sound = files.contents;
  std::mt19937 random(1);
  int failures = 0;
  for (int round = 0; round < 600; ++round) {
    files.contents = sound;
    for (auto& [path, bytes] : files.contents)
      if (random() % 4 == 0) damage(bytes, random);
    for (const auto& message : load()) {
      EXPECT_TRUE(isUtf8Text(message)) << message;
      failures += message.starts_with("0|Tessaly|error : fichier ");
    }
    EXPECT_TRUE(isUtf8Text(described(data)));
    EXPECT_LE(data.iProfilAsserm, data.colProfil.Count());
  }
  EXPECT_GT(failures, 50);
  EXPECT_LT(failures, 550);
}

}  // namespace
}  // namespace orvane::test
