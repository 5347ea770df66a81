#include <map>

#include "editor/martial_restrict.h"
#include "tests/support/run_fixture.h"

// What the golden scripts cannot reach: all else that the editor does is theirs.
namespace orvane::test {
namespace {

TEST_F(RunFixture, MartialRowsThatNobodyBuiltAreRefusedWithTheirMessages) {
  auto& arts = open()->lvwMartialArt;
  arts.ListItems(1)->setSubItems(1, "Neutre");
  EXPECT_FALSE(prcMartialRestrict(globals, *arts.ListItems(1), 1));
  arts.ListItems(1)->setSubItems(1, "Offensif");
  arts.ListItems(2)->setSubItems(3, "9");
  EXPECT_FALSE(prcMartialRestrict(globals, *arts.ListItems(1), 1));
  EXPECT_EQ(boxes(),
            "16|Tessaly|Error : type of Martial Art unknown.\n"
            "16|Tessaly|Error : Values for 2 Martial technic types not found.\n");
}

TEST(MartialRestrict, TheSideOfTheLargerTermLeadsByFullGroups) {
  struct Rule {
    std::int16_t RO, RD;
    std::vector<std::pair<std::int16_t, std::int16_t>> allowed, refused;
  };
  for (const auto& [RO, RD, allowed, refused] : std::vector<Rule>{
           {2, 1, {{3, 1}, {4, 2}}, {{1, 1}, {3, 2}}},
           {1, 2, {{0, 5}, {1, 2}}, {{1, 1}, {2, 3}}},
           {1, 1, {{1, 0}, {3, 3}}, {{0, 1}}},
           {3, 2, {{0, 1}, {3, 3}}, {{0, 2}, {3, 4}}},
       }) {
    for (const auto& [iO, iD] : allowed)
      EXPECT_TRUE(restrictionAllows(RO, RD, iO, iD)) << RO << ':' << RD << " with " << iO << ',' << iD;
    for (const auto& [iO, iD] : refused)
      EXPECT_FALSE(restrictionAllows(RO, RD, iO, iD)) << RO << ':' << RD << " with " << iO << ',' << iD;
  }
}

TEST_F(RunFixture, AWindowThatCannotBeLoadedLeavesTheOthersInUse) {
  auto* first = open();
  data.colProfil = {};
  EXPECT_EQ(open(), nullptr);
  EXPECT_EQ(dialogs.log.size(), 1U);
  EXPECT_EQ(globals.frmCurrentPerso, first);
  EXPECT_EQ(desktop.Forms().size(), 1U);
}

TEST_F(RunFixture, TheClockDecidesTheDrawEveryPowerCanComeAndNobodySeesIt) {
  // Watches the box as a screen does.
  struct Spy : ControlObserver {
    void controlChanged(Control& control) override {
      if (auto& box = static_cast<TextBox&>(control); box.Visible()) seen += box.Text();
    }
    std::string seen;
  } spy;
  const auto draw = [&](float time) {
    clock.now = time;
    frmPersonnage* another = open();
    another->txtAllDescro.watch(spy);
    user.pick(another->SSTabPerso, frmPersonnage::Mutation);
    spy.seen.clear();
    user.click(another->cmdMutaRandomChoice);
    return another->cmbMutaName.Text();
  };
  std::map<std::string, int> drawn;
  for (float time = 0; time < 300; ++time) {
    ++drawn[draw(time)];
    for (const char* power : {"Peau", "Bond", "Griffes"}) EXPECT_EQ(spy.seen.find(power), std::string::npos);
  }
  ASSERT_EQ(drawn.size(), 3U);
  for (const auto& [power, times] : drawn) EXPECT_GT(times, 60) << power;
  EXPECT_EQ(draw(12345.5F), draw(12345.5F));
}

}  // namespace
}  // namespace orvane::test
