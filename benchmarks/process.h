#pragma once

#include <string>
#include <vector>

namespace orvane::bench {

struct ProcessCost {
  double seconds;  // of the processors
  std::string output;
};

// Runs a program in the current directory. Its last output counts; fails where its exit status is not 0.
ProcessCost runProcess(const std::vector<std::string>& command);

// The most bytes that it had resident.
double peakOf(std::vector<std::string> command);

// A program of ours, by its name.
std::string builtProgram(const std::string& name);

// Bytes of this process that are resident now.
double residentBytes();

}  // namespace orvane::bench
