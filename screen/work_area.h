#pragma once

#include <QMdiArea>

namespace orvane {

// The room of the child windows. While there are none it shows an invitation, which is painted, and no control.
class WorkArea final : public QMdiArea {
 public:
  explicit WorkArea(QWidget* parent);
  ~WorkArea() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void bringIntoSight(const QWidget* focus);
  QRect open() const;
};

}  // namespace orvane
