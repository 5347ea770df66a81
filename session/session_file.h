#pragma once

#include <memory>
#include <string>

#include "surface/open_file.h"
#include "surface/world.h"

namespace orvane {

// The file of one session, which belongs to one program at a time. All that fails throws a Failure.
class SessionFile {
 public:
  // Opens the file, or makes it. Fails where it is no regular file, too long, or another program goes on with it.
  explicit SessionFile(std::string path);

  const std::string& path() const { return path_; }
  // Whole lines, as they stood there at the start or since the last restart.
  const std::string& text() const { return text_; }
  // What stands behind the last whole line: the rest of an act that was being written when its program died.
  const std::string& torn() const { return torn_; }

  // Returns once the lines are on the disk. What fails to get there is kept and goes ahead of the next lines.
  void append(const std::string& lines);
  // Cuts off what stands behind the text, torn or not.
  void cut(std::string text);
  // Begins anew with another text and keeps the former file. Gives the name it is kept under, none for an empty one.
  std::string restart(const std::string& text);

 private:
  void open();
  void writeOutstanding();
  std::string keepFormer() const;

  std::string path_;
  std::unique_ptr<OpenFile> file_;
  std::string text_;
  std::string torn_;
  std::string outstanding_;
  off_t length_ = 0;  // of what is on the disk for sure
};

}  // namespace orvane
