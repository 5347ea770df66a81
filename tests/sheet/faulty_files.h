#pragma once

#include "tests/support/memory_files.h"

namespace orvane::test {

// Files of which one access fails, counted over all that change or read one; or it and the next one; or it and all
// behind it.
class FaultyFiles : public MemoryFiles {
 public:
  enum class Fault { Before, After, Twice, FromThenOn };

  // 1 is the next access.
  void failAt(int access, Fault fault) {
    first_ = access_ + access;
    fault_ = fault;
  }
  // Writes half of what it is given, and says nothing.
  bool lying = false;

  std::string read(const std::string& path) override {
    std::string bytes;
    run(path, [&] { bytes = MemoryFiles::read(path); });
    return bytes;
  }
  void MkDir(const std::string& path) override {
    run(path, [&] { MemoryFiles::MkDir(path); });
  }
  void write(const std::string& path, std::string_view bytes) override {
    run(path, [&] { MemoryFiles::write(path, bytes.substr(0, lying ? bytes.size() / 2 : bytes.size())); });
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
    if (!isFaulty(++access_)) return act();
    if (fault_ == Fault::After) act();
    throw Failure("Panne : " + path + ".");
  }
  bool isFaulty(int access) const {
    const int last = first_ + (fault_ == Fault::Twice ? 1 : 0);
    return first_ > 0 && access >= first_ && (fault_ == Fault::FromThenOn || access <= last);
  }

  int access_ = 0;
  int first_ = 0;
  Fault fault_ = Fault::Before;
};

}  // namespace orvane::test
