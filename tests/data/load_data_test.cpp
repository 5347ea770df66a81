#include "data/load_data.h"

#include "tests/data/load_fixture.h"

namespace orvane::test {
namespace {

std::vector<double> list(const clsProfil& profil) { return {profil.colSkillPro.begin(), profil.colSkillPro.end()}; }

TEST_F(LoadData, FillsEveryMemberOfEveryRecord) {
  EXPECT_EQ(load(), Log{});
  EXPECT_EQ(counts(), (std::vector{1, 1, 2, 1, 1, 3, 1}));
  const auto& grade = *data.colGrade(1);
  const auto& skill = *data.colSkill(1);
  const auto& mutation = *data.colMutation(1);
  EXPECT_EQ(data.colEthnie(1)->sName, "Nordique");
  EXPECT_EQ(grade.sName + " " + grade.sDescro, "Officier Début; de carrière.[return]");
  EXPECT_EQ(data.colProfil(1)->sName + " " + data.colProfil(1)->sDescro, "Patrouilleur Agent.\r\nRues.");
  EXPECT_EQ(list(*data.colProfil(1)), (std::vector<double>{3, 12, 101}));
  EXPECT_EQ(skill.sName + " " + skill.sDescro, "Filature Suivre; sans être vu.[return]");
  EXPECT_EQ((std::vector<int>{data.colEthnie(1)->iMaxD, grade.iSalaire, skill.iKey, skill.iStart, mutation.iNum}),
            (std::vector{3, 1500, 12, 2, 7}));
  EXPECT_EQ(mutation.sCateg + " " + mutation.sSign + " " + mutation.sName + " " + mutation.sDescro,
            "Bêta Plus Peau épaisse Résiste;\r\nAucun coût.");
  EXPECT_EQ(data.colDistrict(1)->sName + " " + data.colDistrict(1)->sDescro, "Port Docks;\r\n\r\nMal famé.\r\n");
}

TEST_F(LoadData, ArtsShareTheRecordsOfTheirTechniques) {
  put("martial_technic", "\nBalayage;o;4;Fait chuter;[return]\nSecond;d;4;\nParade;d;9;Pare.\n");
  EXPECT_EQ(load(), Log{}) << "the first of two techniques with one key wins";
  const auto& boxe = *data.colMartialArt(1);
  EXPECT_EQ(boxe.sName + " " + boxe.sDescro, "Boxe Frappe.\r\nEn salle.");
  EXPECT_EQ(boxe.iRestrictO, 2);
  EXPECT_EQ(boxe.iRestrictD, 1);
  ASSERT_EQ(boxe.colMartialTechnic.Count(), 3);
  const auto balayage = boxe.colMartialTechnic(1);
  EXPECT_EQ(balayage->sName + " " + balayage->sType + " " + balayage->sDescro, "Balayage o Fait chuter;[return]");
  EXPECT_EQ(balayage->iKey, 4);
  EXPECT_FALSE(balayage->bSelected);
  EXPECT_EQ(boxe.colMartialTechnic(2)->sName, "Parade");
  EXPECT_EQ(boxe.colMartialTechnic(3), balayage);
  EXPECT_EQ(data.colMartialArt(2)->colMartialTechnic(1), balayage);
}

TEST_F(LoadData, UnknownTechniquesAreWarnedOfOneByOneAndLeftOut) {
  put("martial_art", "\nBoxe;0;0;;77;4;x;\nSavate;0;0;;77;\n");
  const std::string warning = "48|Tessaly|Il existe une technique martiale inconnue dans ";
  EXPECT_EQ(load(), (Log{warning + "Boxe", warning + "Boxe", warning + "Savate"}));
  EXPECT_EQ(data.colMartialArt(1)->colMartialTechnic.Count(), 1);
  remove("martial_technic");
  put("martial_art", "\nBoxe;0;0;;4;\n");
  EXPECT_EQ(load(), (Log{"16|Tessaly|Fichier martial_technic.txt manquant.", warning + "Boxe"}));
}

TEST_F(LoadData, MissingFilesAreToldInOrderAndTheOthersRead) {
  for (const char* name : {"grade", "profil"}) remove(name);
  EXPECT_EQ(load(), (Log{"16|Tessaly|Fichier grade.txt manquant.", "16|Tessaly|Fichier profil.txt manquant."}));
  EXPECT_EQ(counts(), (std::vector{1, 0, 0, 1, 1, 3, 1}));
  EXPECT_EQ(data.iProfilAsserm, 0);
}

TEST_F(LoadData, WithoutTheAssermenteProfileReadingEnds) {
  const Log none = {"16|Tessaly|Erreur: pas de profil \"Assermenté\" chargé."};
  for (const std::string line : {"assermenté;0;;\n", "Assermenté ;0;;\n", " Assermenté;0;;\n"}) {
    put("profil", "\nPilote;0;;\n" + line);
    EXPECT_EQ(load(), none) << line;
    EXPECT_EQ(counts(), (std::vector{1, 1, 2, 0, 0, 0, 0}));
  }
  put("profil", "Titre seul\n");
  EXPECT_EQ(load(), none);
  put("profil", "\nAssermenté;0;;\nPilote;0;;\nAssermenté;1;;\nGarde;0;;\n");
  EXPECT_EQ(load(), Log{});
  EXPECT_EQ(data.iProfilAsserm, 3) << "the last one counts";
}

TEST_F(LoadData, AnAssermenteProfileOutOfReachIsAFailure) {
  std::string text = "\n";
  for (int i = 0; i < 32767; ++i) text += "P;0;;\n";
  put("profil", text + "Assermenté;0;;\n");
  EXPECT_EQ(load(), (Log{"0|Tessaly|error : fichier profil.txt, ligne 32769, le profil \"Assermenté\" vient au-delà du "
                         "32767e profil."}));
}

TEST_F(LoadData, LinesEndInLfOrCrLfOrTheFile) {
  for (const std::string text : {"T\nA;1\nB;2\n", "T\r\nA;1\r\nB;2\r\n", "T\nA;1\r\nB;2", "\n", "Titre"}) {
    put("ethnie", text);
    EXPECT_EQ(load(), Log{}) << text;
    std::string read;
    for (const auto& ethnie : data.colEthnie) read += ethnie->sName + std::to_string(ethnie->iMaxD);
    EXPECT_EQ(read, text.size() > 5 ? "A1B2" : "");
  }
}

TEST_F(LoadData, IntegersAreRoundedHalvesToEven) {
  put("ethnie", "\nA;2.5\nB;3.5\nD; 7 \nE;-32768\nF;32767.4\nG;1e2\n");
  EXPECT_EQ(load(), Log{});
  std::vector<int> values;
  for (const auto& ethnie : data.colEthnie) values.push_back(ethnie->iMaxD);
  EXPECT_EQ(values, (std::vector{2, 4, 7, -32768, 32767, 100}));
}

TEST_F(LoadData, BooleansAreWordsOrNumbers) {
  for (const auto& [word, truth] : {std::pair{"TRUE", true},
                                    {"vrai", true},
                                    {"-1", true},
                                    {"0.4", true},
                                    {"False", false},
                                    {"FAUX", false},
                                    {"0", false}}) {
    put("profil", std::string("\nAssermenté;") + word + ";;\n");
    EXPECT_EQ(load(), Log{});
    EXPECT_EQ(data.colProfil(1)->bAsserm, truth) << word;
  }
}

TEST_F(LoadData, ListsTakeTheNumberThatAnElementBeginsWith) {
  put("profil", "\nAssermenté;0;;;x4;12abc;2.5; 7;40000;2,5;\n");
  put("martial_art", "\nBoxe;0;0;;3.5 coups;\n");
  EXPECT_EQ(load(), Log{});
  EXPECT_EQ(list(*data.colProfil(1)), (std::vector<double>{0, 0, 12, 2.5, 7, 40000, 2}));
  EXPECT_EQ(data.colMartialArt(1)->colMartialTechnic(1)->sName, "Balayage") << "keys are rounded";
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
