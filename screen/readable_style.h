#pragma once

#include <map>

#include <QIcon>
#include <QProxyStyle>

namespace orvane {

// The user's own style with what it lacks for reading: air around rows and captions, and outlines that can be seen
// where the palette leaves them none. Nothing of it changes what a widget does.
class ReadableStyle final : public QProxyStyle {
 public:
  using QProxyStyle::polish;
  void polish(QPalette& palette) override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette, bool enabled,
                    const QString& text, QPalette::ColorRole role) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  // Each is read once.
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;

 private:
  mutable std::map<StandardPixmap, QIcon> icons_;
};

}  // namespace orvane
