#include "player/table.h"

#include <gtest/gtest.h>
#include <sstream>

#include "player/play_scripts.h"
#include "player/script_parser.h"
#include "tests/support/approved.h"
#include "tests/support/fakes.h"
#include "tests/support/source_folder.h"

namespace orvane::test {
namespace {

// Cells behind "|", rows behind their lines; or what is wrong.
std::string read(std::string_view bytes) {
  try {
    const Table table = parseTable("t", bytes);
    std::string shown;
    for (const auto& column : table.columns) shown += "|" + column;
    for (const auto& row : table.rows) {
      shown += " " + std::to_string(row.line);
      for (const auto& cell : row.cells) shown += "|" + cell;
    }
    return shown;
  } catch (const ScriptError& error) {
    return error.message;
  }
}

TEST(Tables, AreCommaSeparatedValues) {
  EXPECT_EQ(read("\xEF\xBB\xBF"
                 "a,b\r\n1,2\r\n"),
            "|a|b 2|1|2");
  EXPECT_EQ(read("a,b\n\n\"x, \"\"y\"\"\n z\",\n,\"\""), "|a|b 3|x, \"y\"\n z| 5||");
  EXPECT_EQ(read("a\n\"1\n2\"\n3,4\n"), "t:4: 2 champs pour 1 colonnes");
  EXPECT_EQ(read("a,b\n1,\"2\n"), "t:2: guillemet non fermé");
  EXPECT_EQ(read("a\nx\"y\n"), "t:2: un guillemet au milieu d'un champ ou un texte derrière");
  EXPECT_EQ(read("a\n\"x\"y\n"), "t:2: un guillemet au milieu d'un champ ou un texte derrière");
  EXPECT_EQ(read("a,b\r1,2\r"), "t:1: fin de ligne ancienne (CR seul)");
  EXPECT_EQ(read("a;b\n1;\"2\"\n"),
            "t:1: les champs sont séparés par des points-virgules, et devraient l'être par des virgules");
  EXPECT_EQ(read("a,b,a\n1,2,3\n"), "t:1: deux colonnes « a »");
  EXPECT_EQ(read("a,,b\n1,2,3\n"), "t:1: une colonne n'a pas de nom");
  EXPECT_EQ(read("a\n\xE9\n"), "t:2: la ligne n'est pas en UTF-8");
  EXPECT_EQ(read("a\n\n"), "t: le tableau n'a pas de ligne derrière celle des colonnes");
}

class TableRuns : public ::testing::Test, protected TestWorld<> {
 protected:
  TableRuns() {
    files = filesOf(sourceFolder() / "game");
    files.contents["t.csv"] = "nom,âge\n\"Zoé \"\"Z\"\"\",31\nBo,\"3\"\"1\"\nCléo,trente\n";
    files.contents["s.script"] =
        "# ${nom} et ${rien}\nclick mnuFileNewPJ\ntype txtPerso \"${nom}\"\nget txtPerso.Text\n";
  }
  int play(std::vector<std::string> arguments) {
    std::istringstream in;
    out.str("");
    err.str("");
    arguments.insert(arguments.begin(), {"--with", "t.csv", "s.script"});
    return playScripts(arguments, in, out, err, {files, pictures, clock});
  }

  std::ostringstream out;
  std::ostringstream err;
};

TEST_F(TableRuns, PlayTheScriptsOnceForEachRowInItsOrder) {
  const std::string transcript = "txtPerso.Text \"Zoé \\\"Z\\\"\"\ntxtPerso.Text \"Bo\"\ntxtPerso.Text \"Cléo\"\n";
  for (const char* jobs : {"1", "2", "64"}) {
    EXPECT_EQ(play({"--jobs", jobs}), 0);
    EXPECT_EQ(out.str(), transcript) << jobs;
    EXPECT_EQ(err.str(), "");
  }
}

TEST_F(TableRuns, NameARowThatIsRefusedAndGoOnWhenTold) {
  files.contents["s.script"] += "type txtTaille \"170\"\nclick optLang(${âge})\nget txtTaille.Text\n";
  files.contents["t.csv"] = "nom,âge\nZoé,1\nBo,7\nCléo,2\nDan,x\n";
  EXPECT_EQ(play({}), 2);
  EXPECT_EQ(out.str(), "") << "nothing is played";
  EXPECT_TRUE(err.str().starts_with("t.csv:5: s.script:6: ")) << err.str();
  for (const char* jobs : {"1", "3"}) {
    EXPECT_EQ(play({"--keep-going", "--jobs", jobs}), 1);
    EXPECT_EQ(out.str(),
              "txtPerso.Text \"Zoé\"\ntxtTaille.Text \"170\"\ntxtPerso.Text \"Bo\"\n"
              "refused s.script:6: Pas de contrôle optLang(7) dans la fenêtre « Définition Bo ».\n"
              "txtPerso.Text \"Cléo\"\ntxtTaille.Text \"170\"\n");
    EXPECT_NE(err.str().find("t.csv:3: la ligne n'a pas été jouée comme il fallait\n"), std::string::npos);
    EXPECT_NE(err.str().find("t.csv:5: la ligne"), std::string::npos);
  }
  files.contents["t.csv"] = "nom,âge\nZoé,1\nBo,7\nCléo,2\n";
  for (const char* jobs : {"1", "2"}) {
    EXPECT_EQ(play({"--jobs", jobs}), 1);
    EXPECT_EQ(out.str().find("Cléo"), std::string::npos) << "the first one ends it";
  }
}

TEST_F(TableRuns, SayWhatIsWrongBeforeAnythingIsPlayed) {
  files.contents["s.script"] += "type txtAge \"${age}\"\n";
  EXPECT_EQ(play({}), 2);
  EXPECT_EQ(err.str(), "s.script:5: « age » n'est pas une colonne de t.csv, qui a « nom », « âge »\n");
  EXPECT_EQ(play({"--jobs", "0"}), 2);
  EXPECT_EQ(play({"--with"}), 2);
  files.contents["t.csv"] = "";
  EXPECT_EQ(play({}), 2);
}

TEST_F(TableRuns, MakeTheTwentyRecruits) {
  const auto folder = sourceFolder() / "examples/recrues";
  files.contents["s.script"] = bytesOf(folder / "recrue.script");
  files.contents["t.csv"] = bytesOf(folder / "recrues.csv");
  EXPECT_EQ(play({}), 0) << err.str();
  EXPECT_EQ(out.str().find("incomplet"), std::string::npos);
  const auto isSheet = [](const auto& file) { return file.first.ends_with(".bmp"); };
  EXPECT_EQ(std::count_if(files.contents.begin(), files.contents.end(), isSheet), 40);
}

}  // namespace
}  // namespace orvane::test
