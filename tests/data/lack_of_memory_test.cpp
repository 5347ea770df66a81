#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <new>

#include "data/load_data.h"
#include "data/return_marker.h"
#include "tests/support/fakes.h"

namespace {

constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();
std::size_t largestPiece = unlimited;  // the first one above is refused, once

}  // namespace

// Out of line, as a compiler that sees only the one or the other takes them for a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size) {
  const bool refused = size > largestPiece;
  if (refused) largestPiece = unlimited;
  void* const memory = refused ? nullptr : std::malloc(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace orvane::test {
namespace {

TEST(LackOfMemory, IsToldWhereverItComes) {
  TestWorld<> world;
  const std::string text = "a[return]" + std::string(50000, 'b') + "[return]c";
  largestPiece = 40000;
  EXPECT_EQ(prcReturnToCrLf(text, world.dialogs), "");
  world.files.contents["./ethnie.txt"] = "\nA;1\n" + text + ";1\n";
  largestPiece = 40000;
  ReferenceData data;
  prcLoadData(data, world.files, world.dialogs);
  EXPECT_EQ(world.dialogs.log, (Log{"16|Tessaly|Erreur durant la lecture du texte " + std::string(1000, 'b') + "…",
                                    "0|Tessaly|error : mémoire insuffisante pour lire les fichiers de données."}));
}

}  // namespace
}  // namespace orvane::test
