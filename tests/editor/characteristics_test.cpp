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
  // The eight values, the pool, and behind it those that cannot be picked.
  std::string state() const {
    std::string values, closed;
    for (int i = 0; i < 8; ++i) {
      values += perso->txtCaract(i).Text() + " ";
      if (!perso->optCaract(i).Enabled()) closed += " " + std::to_string(i);
    }
    return values + "reste " + perso->txtCaractRest.Text() + (closed.empty() ? "" : " sans" + closed);
  }

  frmPersonnage* perso = open();
};

TEST_F(Characteristics, OnlyTwoMayBeNegative) {
  for (int i = 0; i < 3; ++i) step(i, -1);
  step(0, -2);
  EXPECT_EQ(state(), "-2 -1 0 0 0 0 0 0 reste 13") << "those below 0 go on down to -2";
  step(1, 1);
  step(2, -1);
  EXPECT_EQ(state(), "-2 0 -1 0 0 0 0 0 reste 13") << "one back at 0 makes room for another";
  step(3, 1);
  step(3, -2);
  EXPECT_EQ(state(), "-2 0 -1 0 0 0 0 0 reste 13") << "the guard acts at 0 alone";
}

TEST_F(Characteristics, TheLastTwoAtZeroCannotBePicked) {
  for (int i = 0; i < 6; ++i) step(i, 1);
  EXPECT_EQ(state(), "1 1 1 1 1 1 0 0 reste 4 sans 6 7");
  step(-1);
  EXPECT_EQ(state(), "1 1 1 1 1 0 0 0 reste 5") << "three zeros";
  perso->txtCaract(7).setText("1");
  step(1);
  step(-1);
  EXPECT_EQ(state(), "1 1 1 1 1 0 0 1 reste 5 sans 5 6");
  user.pick(perso->SSTabPerso, frmPersonnage::Contacts);
  user.pick(perso->SSTabPerso, frmPersonnage::Caracteristiques);
  EXPECT_TRUE(perso->optCaract(5).Value()) << "the selected one goes on when it is closed";
  step(1);
  EXPECT_EQ(state(), "1 1 1 1 1 1 0 1 reste 4");
}

TEST_F(Characteristics, ARefusedThirdNegativeLeavesTheClosedOnesAlone) {
  for (const int index : {0, 1}) step(index, -1);
  for (const int index : {2, 3, 4, 5}) step(index, 1);
  perso->optCaract(6).setEnabled(true);
  step(6, -1);
  EXPECT_EQ(state(), "-1 -1 1 1 1 1 0 0 reste 8 sans 7");
}

}  // namespace
}  // namespace orvane::test
