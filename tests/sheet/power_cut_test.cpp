#include <gtest/gtest.h>
#include <iostream>

#include "sheet/recovery.h"
#include "sheet/sheet_files.h"
#include "tests/support/fakes.h"

namespace orvane::test {
namespace {

// Files on a disk that only keeps for sure what was synced: of all other changes any may be lost when the power fails.
class ForgetfulFiles : public MemoryFiles {
 public:
  struct Change {
    std::set<std::string> folders;
    std::function<void(MemoryFiles&)> make;
  };
  // What is on the disk, and the changes that may be there too.
  MemoryFiles kept;
  std::vector<Change> unsynced;
  int callsLeft = -1;  // until the power fails; negative for ever

  struct PowerCut {};

  // After the cut, with the changes that came through.
  MemoryFiles after(const std::function<bool(std::size_t)>& cameThrough) const {
    MemoryFiles files = kept;
    for (std::size_t i = 0; i < unsynced.size(); ++i)
      if (cameThrough(i)) unsynced[i].make(files);
    std::erase_if(files.contents, [&](const auto& file) { return files.directories.count(parent(file.first)) == 0; });
    return files;
  }

  bool MkDir(const std::string& path) override {
    call();
    if (!MemoryFiles::MkDir(path)) return false;
    note({parent(path)}, [path](MemoryFiles& files) { files.directories.insert(path); });
    return true;
  }
  void write(const std::string& path, std::string_view bytes) override {
    call();
    MemoryFiles::write(path, bytes);
    put(path);
  }
  bool keep(const std::string& path, const std::string& under) override {
    call();
    if (!fileExists(path)) return false;
    contents[under] = contents[path];
    put(under);
    return true;
  }
  void replace(const std::string& from, const std::string& to) override {
    call();
    MemoryFiles::replace(from, to);
    note({parent(from), parent(to)}, [from, to, bytes = contents[to]](MemoryFiles& files) {
      if (files.directories.count(from) > 0) return files.replace(from, to);
      files.contents.erase(from);
      files.contents[to] = bytes;
    });
  }
  void Kill(const std::string& path) override {
    call();
    MemoryFiles::Kill(path);
    note({parent(path)}, [path](MemoryFiles& files) { files.Kill(path); });
  }
  void sync(const std::string& directory) override {
    call();
    std::erase_if(unsynced, [&](const Change& change) {
      if (change.folders.count(directory) == 0) return false;
      change.make(kept);
      return true;
    });
  }

 private:
  static std::string parent(const std::string& path) {
    const std::string folder = path.substr(0, path.rfind('/'));
    return folder == "." ? "./" : folder;
  }
  void call() {
    if (callsLeft == 0) throw PowerCut();
    --callsLeft;
  }
  void note(std::set<std::string> folders, std::function<void(MemoryFiles&)> make) {
    unsynced.push_back({std::move(folders), std::move(make)});
  }
  void put(const std::string& path) {
    note({parent(path)}, [path, bytes = contents[path]](MemoryFiles& files) { files.contents[path] = bytes; });
  }
};

// Front, back and the PDF.
using Sheet = std::array<std::string, 3>;
const Sheet goals = {"./Perso/Luc_1.bmp", "./Perso/Luc_2.bmp", "./Perso/Luc.pdf"};
const Sheet fresh = {"new front", "new back", "new PDF"};
const Sheet withoutPaper = {"new front", "new back", ""};

Sheet sheet(const MemoryFiles& files) {
  const auto bytes = [&](const std::string& path) {
    const auto found = files.contents.find(path);
    return found == files.contents.end() ? std::string() : found->second;
  };
  return {bytes(goals[0]), bytes(goals[1]), bytes(goals[2])};
}

// True where it told that it has saved, false where the power failed before.
bool saves(ForgetfulFiles& files) {
  LoggedDialogs dialogs;
  try {
    recoverSavesAtStart(files, dialogs);
    SheetFiles sheetFiles(files, "Luc");
    sheetFiles.makeFolder();
    const auto turn = sheetFiles.takeTurn(dialogs);
    return sheetFiles.save({[] { return fresh[0]; }, [] { return fresh[1]; }}, [] { return fresh[2]; });
  } catch (const ForgetfulFiles::PowerCut&) {
    return false;
  }
}

void start(Files& files) {
  LoggedDialogs dialogs;
  recoverSavesAtStart(files, dialogs);
}

void expectWhole(MemoryFiles files, const Sheet& former, bool saved) {
  start(files);
  const Sheet now = sheet(files);
  EXPECT_TRUE(now == fresh || (!saved && (now == former || now == withoutPaper))) << now[0] << ", " << now[1] << now[2];
  for (const auto& entry : files.list("./Perso")) EXPECT_FALSE(entry.name.starts_with(".")) << entry.name;
}

// The power may fail again during the next start.
void expectWholeAtLast(const MemoryFiles& found, const Sheet& former, bool saved) {
  expectWhole(found, former, saved);
  for (int call = 0;; ++call) {
    ForgetfulFiles files;
    static_cast<MemoryFiles&>(files) = files.kept = found;
    files.callsLeft = call;
    try {
      return start(files);
    } catch (const ForgetfulFiles::PowerCut&) {
      for (const bool all : {false, true}) expectWhole(files.after([&](std::size_t) { return all; }), former, saved);
    }
  }
}

// Nothing, everything, one change alone, or all but one of what was not synced: gives the number of states.
int expectWholeWhateverCameThrough(const ForgetfulFiles& files, const Sheet& former, bool saved) {
  const std::size_t changes = files.unsynced.size();
  for (std::size_t one = 0; one <= changes; ++one) {
    expectWholeAtLast(files.after([&](std::size_t i) { return i == one; }), former, saved);
    expectWholeAtLast(files.after([&](std::size_t i) { return i != one; }), former, saved);
  }
  return static_cast<int>(2 * changes + 2);
}

TEST(PowerCut, LeavesAPairWhollyOldOrWhollyNewWithItsOwnPdfOrNone) {
  int states = 0;
  for (const Sheet& former :
       {Sheet{}, Sheet{"old front", "old back"}, Sheet{"", "old back"}, Sheet{"old front", "old back", "old PDF"}}) {
    bool saved = false;
    for (int call = 0; !saved && !HasFailure(); ++call) {
      SCOPED_TRACE(former[0] + ", cut before call " + std::to_string(call + 1));
      ForgetfulFiles files;
      files.directories = {"."};
      for (std::size_t i = 0; i < former.size(); ++i)
        if (!former[i].empty()) files.contents[goals[i]] = former[i];
      if (!files.contents.empty()) files.directories.insert("./Perso");
      files.kept = files;
      files.callsLeft = call;
      saved = saves(files);
      states += expectWholeWhateverCameThrough(files, former, saved);
    }
  }
  std::cout << states << " states\n";
}

}  // namespace
}  // namespace orvane::test
