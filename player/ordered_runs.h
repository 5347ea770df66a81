#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "surface/paper.h"

namespace orvane {

// What came of one run among many.
struct RunResult {
  int status = 0;
  std::string transcript;
  std::string notices;
  std::vector<PrintedSheet> sheets;  // that were saved, where they are wanted
};

// Plays runs 0 to count - 1 and gives their results in that order, each as soon as it is there, until none is wanted
// any more. With more than one job that many processes play, of which each goes on with every jobs-th run, so that some
// behind the last one wanted may have been played too.
void playInOrder(std::size_t count, int jobs, const std::function<RunResult(std::size_t)>& play,
                 const std::function<bool(const RunResult&)>& take);

}  // namespace orvane
