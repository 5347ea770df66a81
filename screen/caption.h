#pragma once

#include <QLabel>

namespace orvane {

// A label of plain text. What room it asks for is found once for all that look the same: the windows of a kind have the
// same ones, and a label measures its text three times.
class Caption final : public QLabel {
 public:
  using QLabel::QLabel;

  QSize sizeHint() const override { return room().wanted; }
  QSize minimumSizeHint() const override { return room().least; }

 private:
  struct Room {
    QSize wanted;
    QSize least;
  };
  const Room& room() const;
};

}  // namespace orvane
