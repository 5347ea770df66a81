#pragma once

#include "tests/support/memory_files.h"

namespace orvane::test {

// Files of which one access fails, counted over all that change or read one; or that access and all behind it.
class FaultyFiles : public MemoryFiles {
 public:
  enum class Fault { Before, After, FromThenOn };

  // 1 is the next access, 0 none.
  void failAt(int access, Fault fault) {
    countdown_ = access;
    fault_ = fault;
    failed = 0;
  }
  int failed = 0;

  std::string read(const std::string& path) override {
    std::string bytes;
    run(path, [&] { bytes = MemoryFiles::read(path); });
    return bytes;
  }
  void MkDir(const std::string& path) override {
    run(path, [&] { MemoryFiles::MkDir(path); });
  }
  void write(const std::string& path, std::string_view bytes) override {
    run(path, [&] { MemoryFiles::write(path, bytes); });
  }
  void replace(const std::string& from, const std::string& to) override {
    run(to, [&] { MemoryFiles::replace(from, to); });
  }
  void Kill(const std::string& path) override {
    run(path, [&] { MemoryFiles::Kill(path); });
  }

 private:
  template <class Act>
  void run(const std::string& path, Act act) {
    const bool fails = countdown_ == 1;
    if (countdown_ > 1 || (fails && fault_ != Fault::FromThenOn)) --countdown_;
    if (!fails) return act();
    ++failed;
    if (fault_ == Fault::After) act();
    throw Failure("Panne : " + path + ".");
  }

  int countdown_ = 0;
  Fault fault_ = Fault::Before;
};

}  // namespace orvane::test
