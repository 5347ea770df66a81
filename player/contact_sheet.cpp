#include "player/contact_sheet.h"

#include "player/one_run.h"
#include "surface/failure.h"
#include "surface/system_reason.h"

namespace orvane {
namespace {

void putInPlace(Files& files, const std::string& file, const std::string& bytes) {
  const auto slash = file.rfind('/');
  const std::string folder = slash == std::string::npos ? "./" : file.substr(0, slash + 1);
  const std::string fresh = folder + ".nouvelle-" + file.substr(slash + 1);
  files.Kill(fresh);
  files.write(fresh, bytes);
  try {
    files.replace(fresh, file);
  } catch (const Failure&) {
    files.Kill(fresh);
    throw;
  }
  files.sync(folder);
}

}  // namespace

int saveContactSheet(const std::string& file, const std::vector<PrintedSheet>& sheets, std::ostream& err,
                     PlayerParts parts) try {
  if (sheets.empty()) {
    err << "orvane-batch: Aucun personnage n'a été sauvé : " << file << " n'a pas été écrit.\n";
    return status::notAllDone;
  }
  putInPlace(parts.files, file, parts.paper->contactSheet(sheets));
  return status::done;
} catch (const std::exception& failure) {
  err << "orvane-batch: La planche " << file << " n'a pas pu être écrite : " << sentenceOn(failure) << '\n';
  return status::notSaved;
}

}  // namespace orvane
