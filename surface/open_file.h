#pragma once

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace orvane {

// Calls the system again for as long as a signal comes in between. Gives what the call gave, -1 with errno.
template <class Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

// A descriptor of the system. All fail with false, or below 0, and errno.
class OpenFile {
 public:
  // Neither a pipe nor a device makes it wait.
  OpenFile(const std::string& path, int flags)
      : descriptor_(uninterrupted([&] {
          return ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, S_IRUSR | S_IWUSR | others);
        })) {}
  ~OpenFile() { close(); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  bool isOpen() const { return descriptor_ >= 0; }
  int descriptor() const { return descriptor_; }

  bool stat(struct stat& found) const {
    return uninterrupted([&] { return ::fstat(descriptor_, &found); }) == 0;
  }

  // Bytes read, 0 at the end.
  template <std::size_t N>
  ssize_t read(std::array<char, N>& buffer) {
    return uninterrupted([&] { return ::read(descriptor_, buffer.data(), N); });
  }

  bool writeAll(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t count = uninterrupted([&] { return ::write(descriptor_, bytes.data(), bytes.size()); });
      if (count < 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
  }

  bool flush() {
    return uninterrupted([&] { return ::fsync(descriptor_); }) == 0;
  }

  // An interrupted close has closed.
  bool close() {
    const int descriptor = descriptor_;
    descriptor_ = -1;
    return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR;
  }

 private:
  static constexpr mode_t others = S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;

  int descriptor_;
};

}  // namespace orvane
