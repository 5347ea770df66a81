#include "surface/disk_files.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <sys/file.h>
#include <thread>

#include "surface/failure.h"
#include "surface/open_file.h"
#include "surface/system_reason.h"

namespace orvane {
namespace {

using Time = std::chrono::steady_clock;

[[noreturn]] void fail(const std::string& what, const std::string& path, const std::string& reason) {
  throw Failure(what + " : " + path + " (" + reason + ").");
}

[[noreturn]] void fail(const std::string& what, const std::string& path, int error = errno) {
  fail(what, path, systemReason(error));
}

using Look = int (*)(const char*, struct stat*);

// False where there is nothing of that name, or no way to it.
bool look(const std::string& path, struct stat& found, Look how) {
  if (uninterrupted([&] { return how(path.c_str(), &found); }) == 0) return true;
  for (const int absent : {ENOENT, ENOTDIR, ENAMETOOLONG, ELOOP, EACCES})
    if (errno == absent) return false;
  fail("Examen impossible", path);
}

bool isDirectory(const struct stat& found) { return S_ISDIR(found.st_mode); }

class ReadFile final : public FileParts {
 public:
  explicit ReadFile(const std::string& path) : path_(path), file_(path, O_RDONLY) {
    if (!file_.isOpen() || !file_.stat(found_)) fail("Lecture impossible", path);
    if (isDirectory(found_)) fail("Lecture impossible", path, EISDIR);
    if (!S_ISREG(found_.st_mode)) fail("Lecture impossible", path, "ce n'est pas un fichier ordinaire");
    failIfTooLarge(size());
  }

  std::size_t size() const override { return static_cast<std::size_t>(found_.st_size); }

  std::string_view next() override {
    const ssize_t count = file_.read(buffer_);
    if (count < 0) fail("Lecture impossible", path_);
    failIfTooLarge(read_ += static_cast<std::size_t>(count));
    return {buffer_.data(), static_cast<std::size_t>(count)};
  }

 private:
  void failIfTooLarge(std::size_t size) const {
    if (size > largestFile) fail("Lecture impossible", path_, std::string(tooLargeFile));
  }

  std::string path_;
  OpenFile file_;
  struct stat found_ {};
  std::size_t read_ = 0;
  std::array<char, 65536> buffer_;
};

// Most disks tell it in the list. Not where it is gone by now.
bool isFolder(const std::filesystem::directory_entry& entry) {
  std::error_code error;
  return !entry.is_symlink(error) && entry.is_directory(error);
}

std::vector<FolderEntry> entriesOf(const std::string& path, std::error_code& error) {
  std::vector<FolderEntry> entries;
  for (std::filesystem::directory_iterator entry(path, error), end; !error && entry != end; entry.increment(error))
    entries.push_back({entry->path().filename(), isFolder(*entry)});
  return entries;
}

bool knowsNoLinks(int error) { return error == EPERM || error == EOPNOTSUPP || error == ENOSYS || error == EMLINK; }

class DirectoryLock : public FolderLock {
 public:
  explicit DirectoryLock(const std::string& path) : directory_(path, O_RDONLY | O_DIRECTORY) {
    if (!directory_.isOpen()) fail("Verrouillage impossible", path);
  }
  // Closing it may fail, and this program would wait for itself.
  ~DirectoryLock() override { ::flock(directory_.descriptor(), LOCK_UN); }

  bool take() {
    return uninterrupted([&] { return ::flock(directory_.descriptor(), LOCK_EX | LOCK_NB); }) == 0;
  }

 private:
  OpenFile directory_;
};

}  // namespace

DiskFiles::DiskFiles() { std::signal(SIGXFSZ, SIG_IGN); }

bool DiskFiles::fileExists(const std::string& path) {
  struct stat found {};
  return look(path, found, ::stat) && !isDirectory(found);
}

bool DiskFiles::directoryExists(const std::string& path) {
  struct stat found {};
  return look(path, found, ::stat) && isDirectory(found);
}

std::unique_ptr<FileParts> DiskFiles::open(const std::string& path) { return std::make_unique<ReadFile>(path); }

std::vector<FolderEntry> DiskFiles::list(const std::string& path) {
  std::error_code error;
  auto entries = entriesOf(path, error);
  while (error == std::errc::interrupted) entries = entriesOf(path, error);
  if (error) fail("Lecture impossible", path, error.value());
  return entries;
}

bool DiskFiles::MkDir(const std::string& path) {
  if (uninterrupted([&] { return ::mkdir(path.c_str(), S_IRWXU | S_IRWXG | S_IRWXO); }) == 0) return true;
  if (errno != EEXIST) fail("Création du dossier impossible", path);
  return false;
}

void DiskFiles::write(const std::string& path, std::string_view bytes) {
  OpenFile file(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
  if (!file.isOpen()) fail("Écriture impossible", path);
  if (file.writeAll(bytes) && file.flush() && file.close()) return;
  const int error = errno;
  ::unlink(path.c_str());
  fail("Écriture impossible", path, error);
}

void DiskFiles::takeRights(const std::string& path, const std::string& of) {
  struct stat model {};
  if (!look(of, model, ::lstat) || !S_ISREG(model.st_mode)) return;
  const OpenFile file(path, O_RDONLY | O_NOFOLLOW);
  struct stat own {};
  if (!file.isOpen() || !file.stat(own)) return;
  // The group alone may be given where the owner may not. Giving either can take rights away, so these come last.
  const auto give = [&](uid_t owner) { return ::fchown(file.descriptor(), owner, model.st_gid) == 0; };
  const bool given =
      (own.st_uid == model.st_uid && own.st_gid == model.st_gid) || give(model.st_uid) || give(own.st_uid);
  const mode_t kept = given ? S_IRWXU | S_IRWXG | S_IRWXO : S_IRWXU | S_IRWXO;
  static_cast<void>(::fchmod(file.descriptor(), model.st_mode & kept));
}

bool DiskFiles::keep(const std::string& path, const std::string& under) {
  const auto link = [&] { return ::linkat(AT_FDCWD, path.c_str(), AT_FDCWD, under.c_str(), 0); };
  if (uninterrupted(link) == 0) return true;
  if (errno == ENOENT) return false;
  if (!knowsNoLinks(errno)) fail("Mise de côté impossible", path);
  // A directory has no second path on any disk.
  if (directoryExists(path)) fail("Mise de côté impossible", path, EISDIR);
  replace(path, under);
  return true;
}

void DiskFiles::replace(const std::string& from, const std::string& to) {
  if (uninterrupted([&] { return std::rename(from.c_str(), to.c_str()); }) != 0) fail("Mise en place impossible", to);
}

void DiskFiles::Kill(const std::string& path) {
  if (uninterrupted([&] { return std::remove(path.c_str()); }) != 0 && errno != ENOENT)
    fail("Suppression impossible", path);
}

void DiskFiles::sync(const std::string& directory) {
  OpenFile open(directory, O_RDONLY | O_DIRECTORY);
  if (!open.isOpen()) fail("Écriture impossible", directory);
  // A disk that cannot flush a directory says that the request is none.
  if (!open.flush() && errno != EINVAL) fail("Écriture impossible", directory);
}

std::unique_ptr<FolderLock> DiskFiles::lock(const std::string& directory, float seconds) {
  auto lock = std::make_unique<DirectoryLock>(directory);
  const auto end = Time::now() + std::chrono::duration<float>(seconds);
  while (!lock->take()) {
    if (errno != EWOULDBLOCK) fail("Verrouillage impossible", directory);
    if (Time::now() >= end) return nullptr;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return lock;
}

}  // namespace orvane
