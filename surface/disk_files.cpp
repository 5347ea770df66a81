#include "surface/disk_files.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "surface/failure.h"
#include "surface/system_reason.h"

namespace orvane {
namespace {

[[noreturn]] void fail(const std::string& what, const std::string& path, int error = errno) {
  throw Failure(what + " : " + path + " (" + systemReason(error) + ").");
}

class OpenFile {
 public:
  OpenFile(const std::string& path, int flags) : descriptor_(::open(path.c_str(), flags | O_CLOEXEC, 0666)) {}
  ~OpenFile() {
    if (isOpen()) ::close(descriptor_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  bool isOpen() const { return descriptor_ >= 0; }

  // Bytes read, 0 at the end, below 0 with errno.
  template <std::size_t N>
  ssize_t read(std::array<char, N>& buffer) {
    ssize_t count;
    do count = ::read(descriptor_, buffer.data(), N);
    while (count < 0 && errno == EINTR);
    return count;
  }

  bool writeAll(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
      if (count < 0 && errno != EINTR) return false;
      if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
  }

  bool flush() { return ::fsync(descriptor_) == 0; }

  bool close() {
    const int descriptor = descriptor_;
    descriptor_ = -1;
    return ::close(descriptor) == 0;
  }

 private:
  int descriptor_;
};

std::string directoryOf(const std::string& path) {
  const auto slash = path.rfind('/');
  return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

// The change is made by now and cannot be half undone: a directory that will not be flushed is no failure.
void flushDirectoryOf(const std::string& path) {
  OpenFile directory(directoryOf(path), O_RDONLY | O_DIRECTORY);
  if (directory.isOpen()) directory.flush();
}

bool isDirectory(const struct stat& found) { return S_ISDIR(found.st_mode); }

}  // namespace

bool DiskFiles::fileExists(const std::string& path) {
  struct stat found {};
  return ::stat(path.c_str(), &found) == 0 && !isDirectory(found);
}

bool DiskFiles::directoryExists(const std::string& path) {
  struct stat found {};
  return ::stat(path.c_str(), &found) == 0 && isDirectory(found);
}

std::string DiskFiles::read(const std::string& path) {
  OpenFile file(path, O_RDONLY);
  if (!file.isOpen()) fail("Lecture impossible", path);
  std::string bytes;
  std::array<char, 65536> buffer;
  while (true) {
    const ssize_t count = file.read(buffer);
    if (count < 0) fail("Lecture impossible", path);
    if (count == 0) return bytes;
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

void DiskFiles::MkDir(const std::string& path) {
  if (::mkdir(path.c_str(), 0777) != 0) fail("Création du dossier impossible", path);
}

void DiskFiles::write(const std::string& path, std::string_view bytes) {
  OpenFile file(path, O_WRONLY | O_CREAT | O_TRUNC);
  if (!file.isOpen()) fail("Écriture impossible", path);
  if (file.writeAll(bytes) && file.flush() && file.close()) return;
  const int error = errno;
  ::unlink(path.c_str());
  fail("Écriture impossible", path, error);
}

void DiskFiles::replace(const std::string& from, const std::string& to) {
  if (std::rename(from.c_str(), to.c_str()) != 0) fail("Mise en place impossible", to);
  flushDirectoryOf(to);
}

void DiskFiles::Kill(const std::string& path) {
  if (::unlink(path.c_str()) != 0) fail("Suppression impossible", path);
}

}  // namespace orvane
