#include "session/session_file.h"

#include <cstdio>
#include <filesystem>
#include <sys/file.h>

#include "surface/disk_files.h"
#include "surface/failure.h"
#include "surface/system_reason.h"

namespace orvane {
namespace {

[[noreturn]] void fail(const std::string& what, const std::string& path, const std::string& reason) {
  throw Failure(what + " : " + path + " (" + reason + ").");
}

[[noreturn]] void fail(const std::string& what, const std::string& path) { fail(what, path, systemReason(errno)); }

std::string folderOf(const std::string& path) {
  const auto folder = std::filesystem::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

bool isTaken(const std::string& path) {
  std::error_code error;
  return std::filesystem::exists(std::filesystem::symlink_status(path, error));
}

}  // namespace

SessionFile::SessionFile(std::string path) : path_(std::move(path)) { open(); }

void SessionFile::open() {
  const bool isNew = !isTaken(path_);
  auto file = std::make_unique<OpenFile>(path_, O_RDWR | O_CREAT);
  if (!file->isOpen()) fail("La session ne s'ouvre pas", path_);
  if (::flock(file->descriptor(), LOCK_EX | LOCK_NB) != 0)
    fail("La session ne s'ouvre pas", path_, "un autre programme la continue");
  DiskFiles files;
  if (isNew) files.sync(folderOf(path_));
  text_ = files.read(path_);
  length_ = static_cast<off_t>(text_.size());
  const auto end = text_.rfind('\n') + 1;  // npos is one less than 0
  torn_ = text_.substr(end);
  text_.resize(end);
  file_ = std::move(file);
}

void SessionFile::append(const std::string& lines) {
  outstanding_ += lines;
  writeOutstanding();
}

void SessionFile::writeOutstanding() {
  if (outstanding_.empty()) return;
  const auto atEnd = [&] { return ::lseek(file_->descriptor(), length_, SEEK_SET) == length_; };
  if (!atEnd() || !file_->writeAll(outstanding_) || !file_->flush()) {
    const int reason = errno;
    // Half a line would hide the whole ones that come behind it.
    [[maybe_unused]] const int taken = ::ftruncate(file_->descriptor(), length_);
    errno = reason;
    fail("La session ne s'écrit pas", path_);
  }
  length_ += static_cast<off_t>(outstanding_.size());
  outstanding_.clear();
}

void SessionFile::cut(std::string text) {
  const auto length = static_cast<off_t>(text.size());
  if (::ftruncate(file_->descriptor(), length) != 0 || !file_->flush()) fail("La session ne s'écrit pas", path_);
  text_ = std::move(text);
  torn_.clear();
  length_ = length;
}

std::string SessionFile::keepFormer() const {
  for (int number = 1;; ++number) {
    const std::string kept = path_ + ".avant-" + std::to_string(number);
    if (isTaken(kept)) continue;
    DiskFiles().write(kept, text_ + torn_);
    return kept;
  }
}

std::string SessionFile::restart(const std::string& text) {
  const std::string kept = text_.empty() && torn_.empty() ? std::string() : keepFormer();
  DiskFiles files;
  // Not the link that may lead to it.
  const std::string file = std::filesystem::canonical(path_).string();
  const std::string fresh = file + ".nouveau";
  files.Kill(fresh);
  files.write(fresh, text);
  files.takeRights(fresh, file);
  files.replace(fresh, file);
  files.sync(folderOf(file));
  open();
  return kept;
}

}  // namespace orvane
