#include "session/orvane-session/program.h"

#include <QApplication>

#include "player/script_parser.h"
#include "screen/end_requests.h"
#include "screen/program.h"
#include "session/orvane-session/evening.h"
#include "session/past_text.h"
#include "surface/system_reason.h"

namespace orvane {
namespace {

// What died in the middle of a line is told and left out.
void takeTornLineOff(SessionFile& file, ScreenDialogs& dialogs) {
  if (file.torn().empty()) return;
  dialogs.notice("La dernière ligne de la session n'était pas entière, elle est laissée de côté :\r\n" + file.torn());
  file.cut(file.text());
}

Script pastOf(SessionFile& file) {
  const Script whole = parseScript(file.path(), file.text());
  if (std::string text = wholeActs(file.text(), whole); text != file.text()) file.cut(std::move(text));
  return parseScript(file.path(), file.text());
}

int goThrough(SessionFile& file, ScreenDialogs& dialogs, bool pdf) {
  Evening evening(file, pastOf(file), dialogs, pdf);
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
    takeTornLineOff(file, dialogs);
    return goThrough(file, dialogs, pdf);
  } catch (const ScriptError& error) {
    dialogs.failure("La session ne peut pas être reprise.\r\n" + error.message);
  } catch (const std::exception& error) {
    dialogs.failure(sentenceOn(error));
  }
  return notPlayed;
}

}  // namespace orvane
