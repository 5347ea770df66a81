#pragma once

#include <string>
#include <vector>

namespace orvane::bench {

// What a whole process cost.
struct ProcessCost {
  double seconds;    // of the processors
  double peakBytes;  // resident
  std::string output;
};

// Runs a program in the current directory. Its last output counts; fails where its exit status is not 0.
ProcessCost runProcess(const std::vector<std::string>& command);

// A program of ours, by its name.
std::string builtProgram(const std::string& name);

// Bytes of this process that are resident now.
double residentBytes();

}  // namespace orvane::bench
