#include "screen/qt_settings.h"

#include <QSettings>
#include <QStandardPaths>

#include "canvas/qt_text.h"

namespace orvane {
namespace {

QString place(const std::string& section, const std::string& key) { return toQt(section) + "/" + toQt(key); }

}  // namespace

QString QtSettings::file(const std::string& application) const {
  const QString folder =
      folder_.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) : folder_;
  return folder + "/" + toQt(application) + ".ini";
}

std::string QtSettings::GetSetting(const std::string& application, const std::string& section, const std::string& key,
                                   const std::string& defaultValue) {
  const QSettings store(file(application), QSettings::IniFormat);
  return fromQt(store.value(place(section, key), toQt(defaultValue)).toString());
}

void QtSettings::SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                             const std::string& value) {
  QSettings(file(application), QSettings::IniFormat).setValue(place(section, key), toQt(value));
}

}  // namespace orvane
