#include "editor/martial_restrict.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace orvane {
namespace {

using Points = std::vector<std::pair<std::int16_t, std::int16_t>>;

void expectRule(std::int16_t RO, std::int16_t RD, const Points& allowed, const Points& refused) {
  for (const auto& [iO, iD] : allowed)
    EXPECT_TRUE(restrictionAllows(RO, RD, iO, iD)) << RO << ':' << RD << " with " << iO << ',' << iD;
  for (const auto& [iO, iD] : refused)
    EXPECT_FALSE(restrictionAllows(RO, RD, iO, iD)) << RO << ':' << RD << " with " << iO << ',' << iD;
}

TEST(MartialRestrict, TheSideOfTheLargerTermLeadsByFullGroups) {
  expectRule(2, 1, {{1, 0}, {2, 1}, {3, 1}, {4, 2}}, {{0, 1}, {1, 1}, {2, 2}, {3, 2}});
  expectRule(1, 2, {{0, 1}, {0, 5}, {1, 2}, {1, 3}, {2, 4}}, {{1, 0}, {1, 1}, {2, 3}});
  expectRule(1, 1, {{0, 0}, {1, 0}, {1, 1}, {3, 2}}, {{0, 1}, {1, 2}});
  expectRule(3, 2, {{0, 1}, {3, 2}, {3, 3}}, {{0, 2}, {3, 4}});
}

}  // namespace
}  // namespace orvane
