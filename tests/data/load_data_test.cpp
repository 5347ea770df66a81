#include "data/load_data.h"

#include "tests/data/load_fixture.h"

namespace orvane::test {
namespace {

std::vector<double> list(const clsProfil& profil) { return {profil.colSkillPro.begin(), profil.colSkillPro.end()}; }

TEST_F(LoadData, FillsEveryMemberOfEveryRecord) {
  EXPECT_EQ(load(), Log{});
  EXPECT_EQ(counts(), (std::vector{1, 1, 2, 1, 1, 3, 1}));
  EXPECT_EQ(data.colEthnie(1)->sName, "Nordique");
  EXPECT_EQ(data.colEthnie(1)->iMaxD, 3);
  EXPECT_EQ(data.colGrade(1)->iSalaire, 1500);
  EXPECT_EQ(data.colGrade(1)->sName, "Officier");
  EXPECT_EQ(data.colGrade(1)->sDescro, "Début; de carrière.[return]");
  EXPECT_EQ(data.colProfil(1)->sName, "Patrouilleur");
  EXPECT_TRUE(data.colProfil(1)->bAsserm);
  EXPECT_EQ(data.colProfil(1)->sDescro, "Agent.\r\nRues.");
  EXPECT_EQ(list(*data.colProfil(1)), (std::vector<double>{3, 12, 101}));
  EXPECT_FALSE(data.colProfil(2)->bAsserm);
  EXPECT_EQ(data.iProfilAsserm, 2);
  EXPECT_EQ(data.colSkill(1)->iKey, 12);
  EXPECT_EQ(data.colSkill(1)->sName, "Filature");
  EXPECT_EQ(data.colSkill(1)->iStart, 2);
  EXPECT_EQ(data.colSkill(1)->sDescro, "Suivre; sans être vu.[return]");
  EXPECT_EQ(data.colMutation(1)->sCateg, "Bêta");
  EXPECT_EQ(data.colMutation(1)->sSign, "Plus");
  EXPECT_EQ(data.colMutation(1)->iNum, 7);
  EXPECT_EQ(data.colMutation(1)->sName, "Peau épaisse");
  EXPECT_EQ(data.colMutation(1)->sDescro, "Résiste;\r\nAucun coût.");
  EXPECT_EQ(data.colDistrict(1)->sName, "Port");
  EXPECT_EQ(data.colDistrict(1)->sDescro, "Docks;\r\n\r\nMal famé.\r\n");
}

TEST_F(LoadData, ArtsShareTheRecordsOfTheirTechniques) {
  load();
  const auto& boxe = *data.colMartialArt(1);
  EXPECT_EQ(boxe.sName, "Boxe");
  EXPECT_EQ(boxe.iRestrictO, 2);
  EXPECT_EQ(boxe.iRestrictD, 1);
  EXPECT_EQ(boxe.sDescro, "Frappe.\r\nEn salle.");
  ASSERT_EQ(boxe.colMartialTechnic.Count(), 3);
  const auto balayage = boxe.colMartialTechnic(1);
  EXPECT_EQ(balayage->sName, "Balayage");
  EXPECT_EQ(balayage->sType, "o");
  EXPECT_EQ(balayage->iKey, 4);
  EXPECT_EQ(balayage->sDescro, "Fait chuter;[return]");
  EXPECT_FALSE(balayage->bSelected);
  EXPECT_EQ(boxe.colMartialTechnic(2)->sName, "Parade");
  EXPECT_EQ(boxe.colMartialTechnic(3), balayage);
  EXPECT_EQ(data.colMartialArt(2)->colMartialTechnic(1), balayage);
  EXPECT_EQ(data.colMartialArt(3)->colMartialTechnic.Count(), 0);
}

TEST_F(LoadData, TheFirstOfTwoTechniquesWithOneKeyWins) {
  put("martial_technic", "\nA;o;4;\nB;d;4;\n");
  put("martial_art", "\nBoxe;0;0;;4;\n");
  EXPECT_EQ(load(), Log{});
  EXPECT_EQ(data.colMartialArt(1)->colMartialTechnic(1)->sName, "A");
}

TEST_F(LoadData, UnknownTechniquesAreWarnedOfOneByOneAndLeftOut) {
  put("martial_art", "\nBoxe;0;0;;77;4;x;\nSavate;0;0;;77;77;\n");
  const std::string warning = "48|Tessaly|Il existe une technique martiale inconnue dans ";
  EXPECT_EQ(load(), (Log{warning + "Boxe", warning + "Boxe", warning + "Savate", warning + "Savate"}));
  EXPECT_EQ(data.colMartialArt(1)->colMartialTechnic.Count(), 1);
  EXPECT_EQ(data.colMartialArt(2)->colMartialTechnic.Count(), 0);

  remove("martial_technic");
  put("martial_art", "\nBoxe;0;0;;4;\n");
  EXPECT_EQ(load(), (Log{"16|Tessaly|Fichier martial_technic.txt manquant.", warning + "Boxe"}));
  EXPECT_EQ(counts(), (std::vector{1, 1, 2, 1, 1, 1, 1}));
}

TEST_F(LoadData, MissingFilesAreToldInOrderAndTheOthersRead) {
  for (const auto* name : {"ethnie", "profil", "mutation", "district"}) remove(name);
  EXPECT_EQ(load(), (Log{"16|Tessaly|Fichier ethnie.txt manquant.", "16|Tessaly|Fichier profil.txt manquant.",
                         "16|Tessaly|Fichier mutation.txt manquant.", "16|Tessaly|Fichier district.txt manquant."}));
  EXPECT_EQ(counts(), (std::vector{0, 1, 0, 1, 0, 3, 0}));
  EXPECT_EQ(data.iProfilAsserm, 0);

  files.contents.clear();
  load();
  Log all;
  for (const std::string name :
       {"ethnie", "grade", "profil", "skill", "mutation", "martial_technic", "martial_art", "district"})
    all.push_back("16|Tessaly|Fichier " + name + ".txt manquant.");
  EXPECT_EQ(dialogs.log, all);
}

TEST_F(LoadData, WithoutTheAssermenteProfileReadingEnds) {
  const Log none = {"16|Tessaly|Erreur: pas de profil \"Assermenté\" chargé."};
  for (const std::string line : {"", "assermenté;0;;\n", "Assermenté ;0;;\n", " Assermenté;0;;\n"}) {
    put("profil", "\nPilote;0;;\n" + line);
    EXPECT_EQ(load(), none) << line;
    EXPECT_EQ(counts(), (std::vector{1, 1, line.empty() ? 1 : 2, 0, 0, 0, 0}));
  }
  put("profil", "Titre seul\n");
  EXPECT_EQ(load(), none);
}

TEST_F(LoadData, TheLastAssermenteProfileCounts) {
  put("profil", "\nAssermenté;0;;\nPilote;0;;\nAssermenté;1;;\nGarde;0;;\n");
  EXPECT_EQ(load(), Log{});
  EXPECT_EQ(data.iProfilAsserm, 3);
}

TEST_F(LoadData, AnAssermenteProfileOutOfReachIsAFailure) {
  std::string text = "\n";
  for (int i = 0; i < 32767; ++i) text += "P;0;;\n";
  put("profil", text + "Assermenté;0;;\n");
  EXPECT_EQ(load(), (Log{"0|Tessaly|error : fichier profil.txt, ligne 32769, le profil \"Assermenté\" vient au-delà du "
                         "32767e profil."}));
}

TEST_F(LoadData, LinesEndInLfOrCrLfOrTheFile) {
  for (const std::string text : {"T\nA;1\nB;2\n", "T\r\nA;1\r\nB;2\r\n", "T\nA;1\r\nB;2"}) {
    put("ethnie", text);
    EXPECT_EQ(load(), Log{}) << text;
    ASSERT_EQ(data.colEthnie.Count(), 2);
    EXPECT_EQ(data.colEthnie(2)->sName, "B");
    EXPECT_EQ(data.colEthnie(2)->iMaxD, 2);
  }
  for (const std::string title : {"\n", "Titre", "\r\n"}) {
    put("ethnie", title);
    EXPECT_EQ(load(), Log{});
    EXPECT_EQ(data.colEthnie.Count(), 0);
  }
}

TEST_F(LoadData, IntegersAreRoundedHalvesToEven) {
  put("ethnie", "\nA;2.5\nB;3.5\nC;-2.5\nD; 7 \nE;-32768\nF;32767.4\nG;1e2\n");
  EXPECT_EQ(load(), Log{});
  std::vector<int> values;
  for (const auto& ethnie : data.colEthnie) values.push_back(ethnie->iMaxD);
  EXPECT_EQ(values, (std::vector{2, 4, -2, 7, -32768, 32767, 100}));

  put("martial_art", "\nBoxe;0;0;;3.5 coups;\n");
  EXPECT_EQ(load(), Log{});
  EXPECT_EQ(data.colMartialArt(1)->colMartialTechnic(1)->sName, "Balayage");
}

TEST_F(LoadData, BooleansAreWordsOrNumbers) {
  std::string text = "\n";
  for (const std::string word : {"TRUE", "vrai", "-1", "0.4", "False", "FAUX", "0"}) text += "P;" + word + ";;\n";
  put("profil", text + "Assermenté;0;;\n");
  EXPECT_EQ(load(), Log{});
  std::vector<bool> values;
  for (const auto& profil : data.colProfil) values.push_back(profil->bAsserm);
  EXPECT_EQ(values, (std::vector<bool>{true, true, true, true, false, false, false, false}));
}

TEST_F(LoadData, ProfileListsTakeTheNumberThatAnElementBeginsWith) {
  put("profil", "\nAssermenté;0;;3;;x4;12abc;\nPilote;0;;2.5; 7;40000;2,5;\n");
  EXPECT_EQ(load(), Log{});
  EXPECT_EQ(list(*data.colProfil(1)), (std::vector<double>{3, 0, 0, 12}));
  EXPECT_EQ(list(*data.colProfil(2)), (std::vector<double>{2.5, 7, 40000, 2}));
}

TEST_F(LoadData, TextsAreKeptAsTheyStand) {
  put("district", "\n Le Port ;[RETURN]\tété [retur]n]\r; \n");
  files.contents["./district.txt"] += "\x80uro \x9C\x99\xFF;\n";
  EXPECT_EQ(load(), Log{});
  EXPECT_EQ(data.colDistrict(1)->sName, " Le Port ");
  EXPECT_EQ(data.colDistrict(1)->sDescro, "[RETURN]\tété [retur]n]\r; ");
  EXPECT_EQ(data.colDistrict(2)->sName, "€uro œ™ÿ");
}

}  // namespace
}  // namespace orvane::test
