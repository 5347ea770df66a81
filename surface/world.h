#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The outside world, as interfaces that a run is given: a screen, a script player and the tests each bring their own.
namespace orvane {

class Form;

enum class Answer : std::int16_t { OK = 1, Cancel = 2, Yes = 6, No = 7 };

// Buttons and icon of a message box, by the numbers of the system.
enum class BoxStyle : std::int16_t {
  Plain = 0,         // OK
  Critical = 16,     // OK
  Exclamation = 48,  // OK
  Information = 64,  // OK
  OkCancel = 33,     // question
  YesNo = 36,        // question
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // Blocks until the user answers.
  virtual Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) = 0;
  // Shows a form and blocks until it is unloaded; only that form takes acts meanwhile.
  virtual void runModal(Form& form) = 0;
  // Tells of a failure that no handler caught.
  virtual void failure(const std::string& description) = 0;
  // Tells what the user should know and asked nothing about.
  virtual void notice(const std::string& text) = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  // Seconds since midnight.
  virtual float Timer() = 0;
  virtual void sleep(float seconds) = 0;
};

// The per-user store of texts.
class Settings {
 public:
  virtual ~Settings() = default;
  virtual std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                                 const std::string& defaultValue) = 0;
  virtual void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                           const std::string& value) = 0;
};

// Always the defaults; what is saved is forgotten.
class NoSettings : public Settings {
 public:
  std::string GetSetting(const std::string&, const std::string&, const std::string&,
                         const std::string& defaultValue) override {
    return defaultValue;
  }
  void SaveSetting(const std::string&, const std::string&, const std::string&, const std::string&) override {}
};

// Held by one program at a time, until it is destroyed or its program ends.
class FolderLock {
 public:
  virtual ~FolderLock() = default;
};

struct FolderEntry {
  std::string name;
  bool isFolder = false;  // a link to one is none
};

// Bytes. A longer file is not read.
inline constexpr std::size_t largestFile = 64U << 20;

// A file that is read from its start on.
class FileParts {
 public:
  virtual ~FileParts() = default;
  // Its bytes, as far as that is known before they are read.
  virtual std::size_t size() const = 0;
  // The next bytes, valid until the next call; none at the end.
  virtual std::string_view next() = 0;
};

// A file whose bytes are there already.
class WholeFile final : public FileParts {
 public:
  explicit WholeFile(std::string bytes) : bytes_(std::move(bytes)), rest_(bytes_) {}
  std::size_t size() const override { return bytes_.size(); }
  std::string_view next() override { return std::exchange(rest_, {}); }

 private:
  std::string bytes_;
  std::string_view rest_;
};

// Files by path, relative to the current directory. Each either does its work or fails with a French reason that names
// the path. What changes a directory is sure to last once that directory has been synced.
class Files {
 public:
  virtual ~Files() = default;
  // Anything but a directory.
  virtual bool fileExists(const std::string& path) = 0;
  virtual bool directoryExists(const std::string& path) = 0;
  // A regular file of at most largestFile bytes. What is longer fails then, or once it is read as far.
  virtual std::unique_ptr<FileParts> open(const std::string& path) = 0;
  std::string read(const std::string& path);
  // Whether a file that can be read holds just these bytes.
  bool holds(const std::string& path, std::string_view bytes);
  // All that a directory holds.
  virtual std::vector<FolderEntry> list(const std::string& path) = 0;
  // False where the name is taken.
  virtual bool MkDir(const std::string& path) = 0;
  // Writes a new file, never over another one, and returns once its bytes are on the disk.
  virtual void write(const std::string& path, std::string_view bytes) = 0;
  // Gives a file the access rights of another one, and its owner, as far as the system allows.
  virtual void takeRights(const std::string& path, const std::string& of) = 0;
  // Gives a file, or a link itself, a second path; on a disk that knows no second paths it moves there. False where
  // there is none.
  virtual bool keep(const std::string& path, const std::string& under) = 0;
  // Puts a file in the place of another one, or a directory where none is, in one step.
  virtual void replace(const std::string& from, const std::string& to) = 0;
  // Removes a file, a link or an empty directory; none there is as good.
  virtual void Kill(const std::string& path) = 0;
  virtual void sync(const std::string& directory) = 0;
  // Waits some seconds at most; null where another one holds it all that time.
  virtual std::unique_ptr<FolderLock> lock(const std::string& directory, float seconds) = 0;
};

// Twips are 1/1440 inch, pixels 1/96, on paper as on the screen.
inline constexpr float twipsPerPixel = 15;

// A surface of 96 dots per inch that texts are printed on for good. Measures are twips.
class Canvas {
 public:
  virtual ~Canvas() = default;
  virtual float width() const = 0;
  virtual float height() const = 0;
  virtual void setFont(const std::string& name, float points) = 0;
  virtual float TextWidth(std::string_view text) const = 0;
  // The height of one line, also for an empty text.
  virtual float TextHeight(std::string_view text) const = 0;
  // Draws black on what lies there, the top left corner of the text at x, y.
  virtual void print(std::string_view text, float x, float y) = 0;
  // The bytes of a Windows bitmap file of all that is on the canvas.
  virtual std::string bitmap() const = 0;
};

// The pictures that are stored with the program.
class Pictures {
 public:
  virtual ~Pictures() = default;
  // A canvas of its own that holds the picture: "recto" or "verso". Fails with any other name.
  virtual std::unique_ptr<Canvas> open(std::string_view name) = 0;
};

// All of it. The references outlive the run that uses them.
struct World {
  Dialogs& dialogs;
  Clock& clock;
  Settings& settings;
  Files& files;
  Pictures& pictures;
};

}  // namespace orvane
