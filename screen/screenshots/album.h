#pragma once

#include <QString>
#include <QWidget>

namespace orvane {

// A folder of pictures of windows.
class Album {
 public:
  // Pictures are called NAME-THEME.png. Throws std::runtime_error when the folder cannot be made.
  Album(const QString& folder, QString theme);

  // Takes the window as it stands now. Throws std::runtime_error when the picture cannot be written.
  void take(QWidget& window, const QString& name) const;

 private:
  QString folder_;
  QString theme_;
};

}  // namespace orvane
