#include "screen/qt_settings.h"

#include <cstdio>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryFile>

#include "canvas/qt_text.h"

namespace orvane {
namespace {

constexpr qint64 largestStore = 1 << 20;  // bytes

QString place(const std::string& section, const std::string& key) { return toQt(section) + "/" + toQt(key); }

// Not where a pipe or a device would keep the program waiting.
bool isStore(const QString& file) {
  const QFileInfo found(file);
  return found.isFile() && found.size() <= largestStore;
}

void copyTexts(const QSettings& from, QSettings& to) {
  for (const auto& key : from.allKeys()) to.setValue(key, from.value(key));
}

}  // namespace

QString settingsFolder() {
  const QString configuration = qEnvironmentVariable("XDG_CONFIG_HOME");
  if (QDir::isAbsolutePath(configuration)) return configuration;
  const QDir home(qEnvironmentVariable("HOME"));
  return home.isAbsolute() && home.exists() && !home.isRoot() ? home.filePath(".config") : QString();
}

QString QtSettings::file(const std::string& application) const { return folder_ + "/" + toQt(application) + ".ini"; }

std::string QtSettings::GetSetting(const std::string& application, const std::string& section, const std::string& key,
                                   const std::string& defaultValue) {
  const QString path = file(application);
  if (folder_.isEmpty() || !isStore(path)) return defaultValue;
  const QSettings store(path, QSettings::IniFormat);
  return fromQt(store.value(place(section, key), toQt(defaultValue)).toString());
}

// A QSettings that writes waits for the lock of its file, for half a minute where a program of another machine died
// with it. So the one that writes here has a new file to itself, which then takes the place of the store.
void QtSettings::SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                             const std::string& value) {
  if (folder_.isEmpty() || !QDir().mkpath(folder_)) return;
  const QString path = file(application);
  const bool exists = isStore(path);
  const QString target = exists ? QFileInfo(path).canonicalFilePath() : path;
  QTemporaryFile fresh(target + ".XXXXXX");
  if (!fresh.open()) return;
  QSettings store(fresh.fileName(), QSettings::IniFormat);
  if (exists) copyTexts(QSettings(path, QSettings::IniFormat), store);
  store.setValue(place(section, key), toQt(value));
  store.sync();
  if (store.status() == QSettings::NoError)
    std::rename(QFile::encodeName(fresh.fileName()).constData(), QFile::encodeName(target).constData());
}

}  // namespace orvane
