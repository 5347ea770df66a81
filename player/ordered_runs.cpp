#include "player/ordered_runs.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "surface/failure.h"
#include "surface/system_reason.h"

namespace orvane {
namespace {

bool writeAll(int end, const void* bytes, std::size_t length) {
  for (auto* rest = static_cast<const char*>(bytes); length > 0;) {
    const auto written = ::write(end, rest, length);
    if (written < 0 && errno != EINTR) return false;
    rest += std::max<ssize_t>(written, 0);
    length -= static_cast<std::size_t>(std::max<ssize_t>(written, 0));
  }
  return true;
}

bool readAll(int end, void* bytes, std::size_t length) {
  for (auto* rest = static_cast<char*>(bytes); length > 0;) {
    const auto got = ::read(end, rest, length);
    if (got == 0 || (got < 0 && errno != EINTR)) return false;
    rest += std::max<ssize_t>(got, 0);
    length -= static_cast<std::size_t>(std::max<ssize_t>(got, 0));
  }
  return true;
}

bool writeText(int end, const std::string& text) {
  const std::size_t length = text.size();
  return writeAll(end, &length, sizeof length) && writeAll(end, text.data(), length);
}

bool readText(int end, std::string& text) {
  std::size_t length = 0;
  if (!readAll(end, &length, sizeof length)) return false;
  text.resize(length);
  return readAll(end, text.data(), length);
}

template <class Item, class WriteItem>
bool writeList(int end, const std::vector<Item>& list, WriteItem writeItem) {
  const std::size_t count = list.size();
  return writeAll(end, &count, sizeof count) &&
         std::all_of(list.begin(), list.end(), [&](const Item& item) { return writeItem(end, item); });
}

template <class Item, class ReadItem>
bool readList(int end, std::vector<Item>& list, ReadItem readItem) {
  std::size_t count = 0;
  if (!readAll(end, &count, sizeof count)) return false;
  for (; count > 0 && readItem(end, list.emplace_back()); --count) {
  }
  return count == 0;
}

bool writePrinted(int end, const PrintedText& printed) {
  return writeText(end, printed.text) && writeAll(end, &printed.x, sizeof printed.x) &&
         writeAll(end, &printed.y, sizeof printed.y) && writeAll(end, &printed.points, sizeof printed.points);
}

bool readPrinted(int end, PrintedText& printed) {
  return readText(end, printed.text) && readAll(end, &printed.x, sizeof printed.x) &&
         readAll(end, &printed.y, sizeof printed.y) && readAll(end, &printed.points, sizeof printed.points);
}

bool writeSheet(int end, const PrintedSheet& sheet) {
  return writeText(end, sheet.character) && writeText(end, sheet.player) &&
         writeList(end, sheet.sides[0], writePrinted) && writeList(end, sheet.sides[1], writePrinted);
}

bool readSheet(int end, PrintedSheet& sheet) {
  return readText(end, sheet.character) && readText(end, sheet.player) && readList(end, sheet.sides[0], readPrinted) &&
         readList(end, sheet.sides[1], readPrinted);
}

bool send(int end, const RunResult& result) {
  return writeAll(end, &result.status, sizeof result.status) && writeText(end, result.transcript) &&
         writeText(end, result.notices) && writeList(end, result.sheets, writeSheet);
}

RunResult receive(int end) {
  RunResult result;
  if (readAll(end, &result.status, sizeof result.status) && readText(end, result.transcript) &&
      readText(end, result.notices) && readList(end, result.sheets, readSheet))
    return result;
  throw Failure("Un des processus s'est arrêté avant d'avoir joué toutes ses lignes.");
}

// Processes that send their results through a pipe each.
class Workers {
 public:
  ~Workers() {
    // A worker whose results nobody reads any more stops behind the run that it is at.
    for (const auto& worker : workers_) ::close(worker.results);
    for (const auto& worker : workers_) ::waitpid(worker.process, nullptr, 0);
  }

  void add(const std::function<void(int results)>& work) {
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0) throw Failure(std::string("Pas de tube (") + systemReason(errno) + ").");
    const pid_t process = ::fork();
    if (process == 0) {
      std::signal(SIGPIPE, SIG_IGN);
      for (const auto& worker : workers_) ::close(worker.results);
      ::close(pipe[0]);
      work(pipe[1]);
      ::_exit(0);
    }
    ::close(pipe[1]);
    if (process > 0) {
      workers_.push_back({process, pipe[0]});
      return;
    }
    ::close(pipe[0]);
    throw Failure(std::string("Pas de processus (") + systemReason(errno) + ").");
  }

  RunResult next(std::size_t worker) const { return receive(workers_[worker].results); }

 private:
  struct Worker {
    pid_t process;
    int results;
  };
  std::vector<Worker> workers_;
};

}  // namespace

void playInOrder(std::size_t count, int jobs, const std::function<RunResult(std::size_t)>& play,
                 const std::function<bool(const RunResult&)>& take) {
  if (jobs == 1) {
    for (std::size_t run = 0; run < count; ++run)
      if (!take(play(run))) return;
    return;
  }
  const std::size_t step = std::min(static_cast<std::size_t>(jobs), count);
  Workers workers;
  for (std::size_t first = 0; first < step; ++first)
    workers.add([&](int results) {
      for (std::size_t run = first; run < count; run += step)
        if (!send(results, play(run))) return;
    });
  for (std::size_t run = 0; run < count; ++run)
    if (!take(workers.next(run % step))) return;
}

}  // namespace orvane
