#include "screen/box_colour.h"

#include <QApplication>

#include "screen/readable_colours.h"

namespace orvane {
namespace {

// What the layout says about the box stays in front of the mark.
QString describedWith(QWidget& box, const QString& mark) {
  constexpr auto property = "orvaneDescription";
  if (!box.property(property).isValid()) box.setProperty(property, box.accessibleDescription());
  const QString design = box.property(property).toString();
  if (design.isEmpty() || mark.isEmpty()) return design + mark;
  return design + ", " + mark;
}

}  // namespace

void showBoxColour(QWidget& box, Colour backColor) {
  const QVariant shown = box.property("orvaneBackColor");
  if (backColor != Colour::WindowBackground)
    box.setPalette(boxPalette(backColor, QApplication::palette(&box)));
  else if (shown.isValid() && shown.toUInt() != static_cast<uint>(backColor))
    box.setPalette(QPalette());
  if (shown.isValid() || backColor != Colour::WindowBackground)
    box.setProperty("orvaneBackColor", static_cast<uint>(backColor));
  const QString description = describedWith(box, markInWords(backColor));
  if (box.accessibleDescription() != description) box.setAccessibleDescription(description);
}

}  // namespace orvane
