#include "benchmarks/row.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <utility>

namespace orvane::bench {
namespace {

// Keeps what a run took, and prints nothing.
class LastResult : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override { seconds_ = runs.back().GetAdjustedRealTime() / 1e9; }
  double seconds() const { return seconds_; }

 private:
  double seconds_ = 0;
};

double meanOfRepeats(const Work& work, int repeats) {
  benchmark::ClearRegisteredBenchmarks();
  benchmark::RegisterBenchmark("work",
                               [&work](benchmark::State& state) {
                                 for ([[maybe_unused]] auto _ : state) state.SetIterationTime(work());
                               })
      ->Iterations(repeats)
      ->UseManualTime();
  LastResult result;
  benchmark::RunSpecifiedBenchmarks(&result, "work");
  return result.seconds();
}

double resultOf(const Side& side, const Work& work) {
  return side.factor * (side.repeats == 0 ? work() : meanOfRepeats(work, side.repeats));
}

double median(std::vector<double> results) {
  const auto middle = results.begin() + static_cast<std::ptrdiff_t>(results.size() / 2);
  std::nth_element(results.begin(), middle, results.end());
  return *middle;
}

}  // namespace

Side constant(std::string name, double value) {
  return {std::move(name), [value] { return [value] { return value; }; }};
}

Medians measured(const Row& row, int rounds) {
  const Work program = row.program.prepare();
  const Work yardstick = row.yardstick.prepare();
  std::vector<double> ours, others;
  for (int round = 0; round < rounds; ++round) {
    ours.push_back(resultOf(row.program, program));
    others.push_back(resultOf(row.yardstick, yardstick));
  }
  return {median(ours), median(others)};
}

}  // namespace orvane::bench
