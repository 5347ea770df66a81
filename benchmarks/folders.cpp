#include "benchmarks/folders.h"

#include <fstream>
#include <sstream>
#include <unistd.h>
#include <vector>

namespace orvane::bench {

namespace fs = std::filesystem;

namespace {

const std::vector<std::string> dataFiles = {"ethnie.txt",   "grade.txt",           "profil.txt",      "skill.txt",
                                            "mutation.txt", "martial_technic.txt", "martial_art.txt", "district.txt"};

Path madeFolder(Path pattern) {
  std::string path = pattern / "orvane-bench-XXXXXX";
  if (!::mkdtemp(path.data())) throw std::runtime_error("no folder " + path);
  return path;
}

std::string repeated(const std::string& text, int records) {
  const auto title = text.find('\n') + 1;
  std::string all = text.substr(0, title);
  for (auto line = title; records > 0; --records) {
    const auto end = text.find('\n', line) + 1;
    all.append(text, line, end - line);
    line = end < text.size() ? end : title;
  }
  return all;
}

}  // namespace

std::string contentsOf(const Path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error("no file " + file.string());
  std::ostringstream all;
  all << in.rdbuf();
  return all.str();
}

void write(const Path& file, const std::string& bytes) { std::ofstream(file, std::ios::binary) << bytes; }

Folders::Folders(Path sources)
    : sources_(std::move(sources)), memory_(madeFolder("/dev/shm")), disk_(madeFolder(sources_ / "build")) {
  copyGame(game());
  copyGame(gameOnDisk());
  write(emptyScript(), {});
  fs::create_directory(home());
  fs::permissions(home(), fs::perms::owner_all);
}

Folders::~Folders() {
  for (const auto& folder : {memory_, disk_}) fs::remove_all(folder);
}

Path Folders::emptyScript() const { return memory_ / "empty.script"; }
Path Folders::home() const { return memory_ / "home"; }
Path Folders::game() const { return memory_ / "game"; }
Path Folders::gameOnDisk() const { return disk_ / "game"; }

void Folders::copyGame(const Path& to) const {
  fs::create_directories(to);
  for (const auto& file : dataFiles) fs::copy_file(sources_ / "game" / file, to / file);
}

Path Folders::records(int count) const {
  const Path folder = memory_ / ("records-" + std::to_string(count));
  if (!fs::create_directory(folder)) return folder;
  for (const auto& file : dataFiles) write(folder / file, repeated(contentsOf(sources_ / "game" / file), count));
  return folder;
}

Path Folders::skills(int count) const {
  const Path folder = memory_ / ("skills-" + std::to_string(count));
  if (fs::exists(folder)) return folder;
  copyGame(folder);
  std::string skills = "Cl\xE9;Nom;Base;Description\n";
  std::string profile = "Tout;False;Sait tout.;";
  for (int key = 200; key < 200 + count; ++key) {
    const std::string number = std::to_string(key);
    skills += number + ";Comp\xE9tence " + number + ";5;Un savoir.\n";
    profile += number + ';';
  }
  write(folder / "skill.txt", skills);
  write(folder / "profil.txt",
        "Nom;Asserment\xE9;Description;Cl\xE9s;\n" + profile + "\nAsserment\xE9;False;Socle.;\n");
  return folder;
}

}  // namespace orvane::bench
