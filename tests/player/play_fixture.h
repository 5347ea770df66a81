#pragma once

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "player/play_scripts.h"
#include "tests/support/approved.h"
#include "tests/support/fakes.h"

namespace orvane::test {

// The player on the game, with files in memory. Scripts go to standard input or to files of their own.
class PlayFixture : public ::testing::Test, protected TestWorld<> {
 protected:
  PlayFixture() { files = filesOf(); }

  int play(const std::string& script, const std::vector<std::string>& arguments = {}) {
    std::istringstream in(script);
    out.str("");
    err.str("");
    return playScripts(arguments, in, out, err, {files, pictures, clock});
  }
  std::string transcript() const { return out.str(); }

  std::ostringstream out;
  std::ostringstream err;
};

}  // namespace orvane::test
