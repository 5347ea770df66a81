#include "tests/support/refusal.h"
#include "tests/support/run_fixture.h"

namespace orvane::test {
namespace {

class Characteristics : public RunFixture {
 protected:
  Characteristics() { user.pick(perso->SSTabPerso, frmPersonnage::Caracteristiques); }

  void step(int times) {
    for (int i = 0; i < std::abs(times); ++i) user.click(perso->cmdCaractModif(times < 0 ? 0 : 1));
  }
  void step(int index, int times) {
    user.click(perso->optCaract(index));
    step(times);
  }
  // The eight values and the pool.
  std::string values() const {
    std::string text;
    for (int i = 0; i < 8; ++i) text += perso->txtCaract(i).Text() + " ";
    return text + "reste " + perso->txtCaractRest.Text();
  }
  std::string secondary() const { return perso->txtEV.Text() + " " + perso->txtR.Text() + " " + perso->txtSF.Text(); }
  // The characteristics that cannot be picked.
  std::string closed() const {
    std::string text;
    for (int i = 0; i < 8; ++i)
      if (!perso->optCaract(i).Enabled()) text += std::to_string(i) + " ";
    return text;
  }

  frmPersonnage* perso = open();
};

TEST_F(Characteristics, OnlyTwoMayBeNegative) {
  for (int i = 0; i < 5; ++i) step(i, -1);
  EXPECT_EQ(values(), "-1 -1 0 0 0 0 0 0 reste 12");
  step(0, -2);
  step(1, -1);
  EXPECT_EQ(values(), "-2 -2 0 0 0 0 0 0 reste 14") << "those below 0 go on down to -2";
  step(1, 2);
  step(2, -1);
  EXPECT_EQ(values(), "-2 0 -1 0 0 0 0 0 reste 13") << "one back at 0 makes room for another";
  step(3, 1);
  step(3, -2);
  EXPECT_EQ(values(), "-2 0 -1 0 0 0 0 0 reste 13") << "the guard acts at 0 alone";
}

TEST_F(Characteristics, StepsEndAtThreeAndAtTheEndOfThePool) {
  step(4);
  EXPECT_EQ(values(), "3 0 0 0 0 0 0 0 reste 7");
  step(1, 3);
  step(2, 3);
  step(3, 3);
  EXPECT_EQ(values(), "3 3 3 1 0 0 0 0 reste 0");
}

TEST_F(Characteristics, SumsFollowTheirTwoParts) {
  step(3, 1);
  step(7, 1);
  EXPECT_EQ(secondary(), "0 0 0");
  step(0, 2);
  step(4, -1);
  step(5, 1);
  step(6, -2);
  EXPECT_EQ(secondary(), "1 1 -2");
  perso->txtCaract(2).setText("-2");
  perso->txtCaract(1).setText("2");
  EXPECT_EQ(secondary(), "1 3 -4") << "whoever writes the values";
}

TEST_F(Characteristics, TheLastTwoAtZeroCannotBePicked) {
  for (const int index : {0, 1, 2, 3, 4}) step(index, 1);
  EXPECT_EQ(closed(), "");
  step(5, 1);
  EXPECT_EQ(closed(), "6 7 ");
  EXPECT_NE(refusal([&] { user.click(perso->optCaract(6)); }), "");
  step(-1);
  EXPECT_EQ(closed(), "") << "three zeros";
}

TEST_F(Characteristics, TheSelectedOneGoesOnWhenItIsClosed) {
  for (const int index : {0, 1, 2, 3, 4, 5}) step(index, 1);
  perso->txtCaract(7).setText("1");
  step(-1);
  EXPECT_EQ(closed(), "5 6 ");
  user.pick(perso->SSTabPerso, frmPersonnage::Contacts);
  user.pick(perso->SSTabPerso, frmPersonnage::Caracteristiques);
  EXPECT_TRUE(perso->optCaract(5).Value());
  EXPECT_EQ(perso->txtAllDescro.Text(), perso->optCaract(5).Tag());
  step(1);
  EXPECT_EQ(values() + " " + closed(), "1 1 1 1 1 1 0 1 reste 4 ");
}

TEST_F(Characteristics, ARefusedThirdNegativeLeavesTheClosedOnesAlone) {
  for (const int index : {0, 1}) step(index, -1);
  for (const int index : {2, 3, 4, 5}) step(index, 1);
  EXPECT_EQ(closed(), "6 7 ");
  perso->optCaract(6).setEnabled(true);
  step(6, -1);
  EXPECT_EQ(closed(), "7 ");
  EXPECT_EQ(values(), "-1 -1 1 1 1 1 0 0 reste 8");
}

TEST_F(Characteristics, ASecondaryValueOnlyExplainsItself) {
  step(3, 1);
  user.click(perso->lblSecondCaract(1));
  EXPECT_EQ(perso->txtAllDescro.Text(), "Réaction (R) est calculée en faisant la somme de Sens + Réflexe");
  step(1);
  EXPECT_EQ(values(), "0 0 0 2 0 0 0 0 reste 8");
  EXPECT_NE(refusal([&] { user.type(perso->txtCaract(3), "9"); }), "");
}

}  // namespace
}  // namespace orvane::test
