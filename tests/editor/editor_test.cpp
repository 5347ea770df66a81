#include <map>

#include "editor/martial_restrict.h"
#include "tests/support/test_run.h"

// What the golden scripts cannot reach: all else that the editor does is theirs.
namespace orvane::test {
namespace {

using Editor = SmallRun;

TEST_F(Editor, MartialRowsThatNobodyBuiltAreRefusedWithTheirMessages) {
  auto& arts = newCharacter()->lvwMartialArt;
  arts.ListItems(1)->setSubItems(1, "Neutre");
  EXPECT_FALSE(prcMartialRestrict(globals(), *arts.ListItems(1), 1));
  arts.ListItems(1)->setSubItems(1, "Offensif");
  arts.ListItems(2)->setSubItems(3, "9");
  EXPECT_FALSE(prcMartialRestrict(globals(), *arts.ListItems(1), 1));
  EXPECT_EQ(dialogs.log, (Log{"16|Tessaly|Error : type of Martial Art unknown.",
                              "16|Tessaly|Error : Values for 2 Martial technic types not found."}));
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

TEST_F(Editor, AWindowThatCannotBeLoadedLeavesTheOthersInUse) {
  auto* first = newCharacter();
  const_cast<ReferenceData&>(run.data()).colProfil = {};
  const auto second = std::make_shared<frmPersonnage>(globals());
  run.desktop().perform([&] { second->Show(); });
  EXPECT_EQ(dialogs.log.size(), 1U);
  EXPECT_EQ(globals().frmCurrentPerso, first);
  EXPECT_EQ(run.desktop().Forms().size(), 2U);
}

TEST_F(Editor, TheClockDecidesTheDrawEveryPowerCanComeAndNobodySeesIt) {
  // Watches the box as a screen does.
  struct Spy : ControlObserver {
    void controlChanged(Control& control) override {
      if (auto& box = static_cast<TextBox&>(control); box.Visible()) seen += box.Text();
    }
    std::string seen;
  } spy;
  const auto draw = [&](float time) {
    clock.now = time;
    auto& perso = *newCharacter();
    user.pick(perso.SSTabPerso, frmPersonnage::Mutation);
    perso.txtAllDescro.watch(spy);
    spy.seen.clear();
    user.click(perso.cmdMutaRandomChoice);
    const std::string drawn = perso.cmbMutaName.Text();
    user.close(perso);
    return drawn;
  };
  std::map<std::string, int> drawn;
  for (float time = 0; time < 150; ++time) {
    ++drawn[draw(time)];
    for (const char* power : {"Peau", "Bond", "Griffes"}) EXPECT_EQ(spy.seen.find(power), std::string::npos);
  }
  ASSERT_EQ(drawn.size(), 3U);
  for (const auto& [power, times] : drawn) EXPECT_GT(times, 25) << power;
  EXPECT_EQ(draw(12345.5F), draw(12345.5F));
}

}  // namespace
}  // namespace orvane::test
