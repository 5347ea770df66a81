#include "session/orvane-session/program.h"

#include <QApplication>

#include "player/script_parser.h"
#include "screen/end_requests.h"
#include "screen/program.h"
#include "session/orvane-session/evening.h"
#include "session/past_text.h"
#include "surface/system_reason.h"
#include "surface/text.h"

namespace orvane {
namespace {

void tellTorn(ScreenDialogs& dialogs, const std::string& torn) {
  dialogs.notice("La dernière ligne de la session n'était pas entière, elle est laissée de côté :\r\n" +
                 shortened(torn));
}

int goThrough(SessionFile& file, ScreenDialogs& dialogs, bool pdf) {
  Script past = takePast(file, [&](const std::string& torn) { tellTorn(dialogs, torn); });
  Evening evening(file, std::move(past), dialogs, pdf);
  evening.windows().closed = [] { QCoreApplication::quit(); };
  const EndRequests endRequests(evening.windows());
  evening.begin();
  if (!evening.isOpen()) return 1;
  const int status = QApplication::exec();
  evening.end();
  return status;
}

}  // namespace

int runSession(const std::string& path, bool pdf) {
  constexpr int notPlayed = 2;
  prepareDesktop();
  ScreenDialogs dialogs;
  try {
    SessionFile file(path);
    return goThrough(file, dialogs, pdf);
  } catch (const ScriptError& error) {
    dialogs.failure("La session ne peut pas être reprise.\r\n" + shortened(error.message));
  } catch (const std::exception& error) {
    dialogs.failure(sentenceOn(error));
  }
  return notPlayed;
}

}  // namespace orvane
