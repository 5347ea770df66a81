#include "screen/end_requests.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTimer>

#include "screen/windows.h"

namespace orvane {
namespace {

constexpr int endSignals[] = {SIGTERM, SIGHUP, SIGINT};

// A signal may interrupt anything: it leaves a byte, and the event loop does the rest.
volatile std::sig_atomic_t bell = -1;

extern "C" void ring(int) {
  const char note = 0;
  [[maybe_unused]] const auto written = ::write(bell, &note, 1);
}

}  // namespace

EndRequests::EndRequests(Windows& windows) : windows_(windows), pipe_{-1, -1} {
  connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) { closeAll(); });
  if (::pipe2(pipe_, O_CLOEXEC | O_NONBLOCK) != 0) return;
  bell = pipe_[1];
  auto* heard = new QSocketNotifier(pipe_[0], QSocketNotifier::Read, this);
  connect(heard, &QSocketNotifier::activated, this, [this, heard] {
    heard->setEnabled(false);
    closeAll();
  });
  for (const int signal : endSignals) std::signal(signal, ring);
}

EndRequests::~EndRequests() {
  for (const int signal : endSignals) std::signal(signal, SIG_DFL);
  for (const int end : pipe_)
    if (end >= 0) ::close(end);
}

void EndRequests::closeAll() {
  auto* waiting = QApplication::activeModalWidget();
  if (QWidget* next = waiting ? waiting : windows_.mainWindow()) next->close();
  // What a box has held up goes on first, and may show another one; the main window may still be to come.
  QTimer::singleShot(10, this, [this] { closeAll(); });
}

}  // namespace orvane
