#include "benchmarks/process.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane::bench {
namespace {

double seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

[[noreturn]] void become(const std::vector<std::string>& command, const std::array<int, 2>& pipe) {
  ::dup2(pipe[1], STDOUT_FILENO);
  for (const int end : pipe) ::close(end);
  std::vector<char*> arguments;
  for (const auto& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  ::execvp(arguments.front(), arguments.data());
  ::_exit(127);
}

std::string readAll(int end) {
  std::string all;
  std::array<char, 65536> part;
  for (ssize_t count; (count = ::read(end, part.data(), part.size())) > 0;)
    all.append(part.data(), static_cast<std::size_t>(count));
  return all;
}

}  // namespace

ProcessCost runProcess(const std::vector<std::string>& command) {
  std::array<int, 2> pipe{};
  if (::pipe(pipe.data()) != 0) throw std::runtime_error("no pipe");
  const pid_t process = ::fork();
  if (process == 0) become(command, pipe);
  ::close(pipe[1]);
  std::string output = readAll(pipe[0]);
  ::close(pipe[0]);
  int status = 0;
  rusage used{};
  ::wait4(process, &status, 0, &used);
  if (status != 0) throw std::runtime_error(command.front() + " failed: " + output);
  return {seconds(used.ru_utime) + seconds(used.ru_stime), std::move(output)};
}

double peakOf(std::vector<std::string> command) {
  command.insert(command.begin(), builtProgram("peak-of"));
  return std::stod(runProcess(command).output);
}

std::string builtProgram(const std::string& name) {
  return (std::filesystem::read_symlink("/proc/self/exe").parent_path() / name).string();
}

double residentBytes() {
  std::ifstream statm("/proc/self/statm");
  double total = 0, resident = 0;
  statm >> total >> resident;
  return resident * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

}  // namespace orvane::bench
