#pragma once

#include <QObject>

namespace orvane {

class Windows;

// Has the main window closed, as by its close button, when the system ends the program: SIGTERM, SIGHUP, SIGINT and the
// end of the desktop session. Boxes and dialogs that wait for an answer are closed first, by their Cancel.
// One at a time lives in a process.
class EndRequests final : public QObject {
 public:
  explicit EndRequests(Windows& windows);
  ~EndRequests() override;

  void closeAll();

 private:
  Windows& windows_;
  int pipe_[2];
};

}  // namespace orvane
