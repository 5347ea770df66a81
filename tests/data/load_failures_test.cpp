#include <random>

#include "data/return_marker.h"
#include "surface/text.h"
#include "tests/data/load_fixture.h"

namespace orvane::test {
namespace {

TEST_F(LoadData, AFailureNamesThePlaceWhatStandsThereAndWhatWasExpected) {
  const std::string error = "0|Tessaly|error : fichier ";
  const std::string integer = "attendu un nombre entier de -32768 à 32767";
  const std::string alone = ", sans rien derrière, pas même « ; ».";
  const std::string separator = "attendu « ; » à la fin du champ.";
  const struct {
    std::string file, text, message;
  } cases[] = {
      {"ethnie", "", "ethnie.txt, ligne 1, fichier vide : attendu une ligne de titre."},
      {"ethnie", "T\rA;1\r",
       "ethnie.txt, ligne 1, trouvé « T<0D>A;1<0D> », attendu des lignes qui se terminent par LF ou CR LF."},
      {"ethnie", std::string(3, '\0'),
       "ethnie.txt, ligne 1, trouvé « <00><00><00> », attendu des lignes qui se terminent par LF ou CR LF."},
      {"ethnie", "\nA;1\n\nB;2\n", "ethnie.txt, ligne 3, champ 1 (sName, nom de l'ethnie) : trouvé rien, " + separator},
      {"ethnie", "\nNordique;3;\n",
       "ethnie.txt, ligne 2, champ 2 (iMaxD, nombre de l'ethnie) : trouvé « 3; », " + integer + alone},
      {"ethnie", "\nNordique;3\r",
       "ethnie.txt, ligne 2, champ 2 (iMaxD, nombre de l'ethnie) : trouvé « 3<0D> », " + integer + alone},
      {"grade", "\n2,5;Officier;\n",
       "grade.txt, ligne 2, champ 1 (iSalaire, salaire) : trouvé « 2,5 », " + integer + "."},
      {"profil", "\nP;oui;;\n",
       "profil.txt, ligne 2, champ 2 (bAsserm, profil assermenté ou non) : trouvé « oui », attendu True, False, Vrai, "
       "Faux ou un nombre."},
      {"profil", "\nP;True;Texte;1e999;\n",
       "profil.txt, ligne 2, champ 4 (colSkillPro, clé d'une compétence du profil) : trouvé « 1e999 », "
       "attendu un nombre moins grand."},
      {"martial_art", "\nA;0;0;;4;-32769;\n",
       "martial_art.txt, ligne 2, champ 6 (colMartialTechnic, clé d'une technique de l'art) : trouvé « -32769 », "
       "attendu une clé de -32768 à 32767."},
      {"district", "\n" + std::string(41, 'x') + "\n",
       "district.txt, ligne 2, champ 1 (sName, nom du quartier) : trouvé « " + std::string(40, 'x') + "… », " +
           separator},
  };
  for (const auto& wrong : cases) EXPECT_EQ(messageFor(wrong.file, wrong.text), error + wrong.message);
}

TEST_F(LoadData, AByteWithoutACharacterIsReportedOutsideTheTitle) {
  put("ethnie", "T\x81\x8D\x8F\x90\x9D\nA;1\n");
  EXPECT_EQ(load(), Log{});
  const std::string place = "0|Tessaly|error : fichier district.txt, ligne 2, champ 2 (sDescro, description) : trouvé ";
  const std::string expected = ", attendu un texte en Windows-1252, qui n'a pas de caractère <";
  for (const auto& [byte, shown] : {std::pair{"\x81", "81>"}, {"\x8D", "8D>"}, {"\x8F", "8F>"}, {"\x90", "90>"}})
    EXPECT_EQ(messageFor("district", std::string("\nPort;Pr") + byte + "s d'ici\n"),
              place + "« Pr<" + shown + "s d'ici »" + expected + shown + ".");
  EXPECT_EQ(messageFor("district", "\nPort;" + std::string(100, 'x') + "\x9D" + std::string(100, 'y') + "\n"),
            place + "« …" + std::string(20, 'x') + "<9D>" + std::string(19, 'y') + "… »" + expected + "9D>.");
}

TEST_F(LoadData, AFailureEndsTheReadingAndKeepsWhatWasComplete) {
  put("martial_art", "\nBoxe;0;0;;4;\nLutte;0;0;;77;99999;\nSavate;0;0;;\n");
  ASSERT_EQ(load().size(), 2u);
  EXPECT_EQ(dialogs.log[0], "48|Tessaly|Il existe une technique martiale inconnue dans Lutte");
  EXPECT_EQ(counts(), (std::vector{1, 1, 2, 1, 1, 1, 0}));

  files.broken.insert("./skill.txt");
  EXPECT_EQ(load(), (Log{"0|Tessaly|error : Accès refusé : ./skill.txt."}));
  EXPECT_EQ(counts(), (std::vector{1, 1, 2, 0, 0, 0, 0}));

  // The profile "Assermenté" is only missed in a file that was read to its end.
  put("profil", "\nPilote;0;;\nGarde\n");
  EXPECT_EQ(load().size(), 1u);
  EXPECT_EQ(counts(), (std::vector{1, 1, 1, 0, 0, 0, 0}));
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
  int failures = 0;
  for (const unsigned start : {1u, 2u, 3u}) {
    std::mt19937 random(start);
    for (int round = 0; round < 400; ++round) {
      files.contents = sound;
      for (auto& [path, bytes] : files.contents)
        if (random() % 4 == 0) damage(bytes, random);
      for (const auto& message : load()) {
        EXPECT_TRUE(isUtf8Text(message)) << message;
        failures += message.starts_with("0|Tessaly|error : fichier ");
      }
      EXPECT_LE(data.iProfilAsserm, data.colProfil.Count());
      for (const auto& district : data.colDistrict) EXPECT_TRUE(isUtf8Text(district->sName + district->sDescro));
    }
  }
  EXPECT_GT(failures, 100);
  EXPECT_LT(failures, 1100);
}

}  // namespace
}  // namespace orvane::test
