#include "data/return_marker.h"
#include "tests/data/load_fixture.h"
#include "tests/data/refused_memory.h"

namespace orvane::test {
namespace {

TEST(ReturnMarker, ALackOfMemoryIsToldAndGivesAnEmptyText) {
  LoggedDialogs dialogs;
  const std::string text = "a[return]" + std::string(50000, 'b') + "[return]c";
  refuseMemoryAbove(40000);
  EXPECT_EQ(prcReturnToCrLf(text, dialogs), "");
  EXPECT_EQ(dialogs.log, (Log{"16|Tessaly|Erreur durant la lecture du texte " + text.substr(9)}));
}

TEST_F(LoadData, ALackOfMemoryEndsTheReading) {
  put("ethnie", "\nA;1\n" + std::string(50000, 'b') + ";1\n");
  refuseMemoryAbove(40000);
  EXPECT_EQ(load(), (Log{"0|Tessaly|error : mémoire insuffisante pour lire les fichiers de données."}));
}

}  // namespace
}  // namespace orvane::test
