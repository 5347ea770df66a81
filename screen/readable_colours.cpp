#include "screen/readable_colours.h"

#include <algorithm>
#include <cmath>

#include <QApplication>

#include "surface/combo_box.h"
#include "surface/text_box.h"

namespace orvane {
namespace {

double linear(double channel) {
  return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

bool isDark(const QColor& background) { return contrast(background, Qt::white) > contrast(background, Qt::black); }

bool isMark(Colour colour) { return colour == Colour::EssentialBroken || colour == Colour::AccessoryBroken; }

QColor markBackground(Colour mark, const QPalette& palette) {
  const QColor colour = screenColour(mark, palette);
  if (!isDark(palette.color(QPalette::Base))) return colour;
  return QColor::fromHslF(colour.hslHueF(), 0.7F, 0.2F);
}

// What the layout says about the box stays in front of the mark.
QString describedWith(QWidget& box, const QString& mark) {
  constexpr auto property = "orvaneDescription";
  if (!box.property(property).isValid()) box.setProperty(property, box.accessibleDescription());
  const QString design = box.property(property).toString();
  if (design.isEmpty() || mark.isEmpty()) return design + mark;
  return design + ", " + mark;
}

}  // namespace

QColor blend(const QColor& from, const QColor& to, double share) {
  const auto mixed = [share](float a, float b) { return a + (b - a) * static_cast<float>(share); };
  return QColor::fromRgbF(mixed(from.redF(), to.redF()), mixed(from.greenF(), to.greenF()),
                          mixed(from.blueF(), to.blueF()));
}

double contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

QColor screenColour(Colour colour, const QPalette& palette) {
  switch (colour) {
    case Colour::WindowBackground:
      return palette.color(QPalette::Base);
    case Colour::WindowText:
      return palette.color(QPalette::Text);
    case Colour::ButtonFace:
      return palette.color(QPalette::Window);
    default:
      break;
  }
  const auto bits = static_cast<std::uint32_t>(colour);
  return QColor(static_cast<int>(bits & 0xFF), static_cast<int>(bits >> 8 & 0xFF), static_cast<int>(bits >> 16 & 0xFF));
}

QColor readable(const QColor& colour, const QColor& background, double wanted) {
  const QColor end = isDark(background) ? Qt::white : Qt::black;
  for (double share = 0; share < 1; share += 0.05) {
    const QColor candidate = blend(colour, end, share);
    if (contrast(candidate, background) >= wanted) return candidate;
  }
  return end;
}

QPalette boxPalette(Colour backColor, const QPalette& palette) {
  QPalette box = palette;
  if (!isMark(backColor)) {
    if (backColor == Colour::ButtonFace) box.setColor(QPalette::Base, palette.color(QPalette::Window));
    return box;
  }
  const QColor background = markBackground(backColor, palette);
  const QColor text = readable(palette.color(QPalette::Active, QPalette::Text), background);
  for (const auto role : {QPalette::Base, QPalette::Button}) box.setColor(role, background);
  for (const auto role : {QPalette::Text, QPalette::ButtonText}) box.setColor(role, text);
  box.setColor(QPalette::PlaceholderText, text);
  return box;
}

QPalette readingPalette(bool enabled, const QPalette& palette) {
  QPalette box = palette;
  const auto from = enabled ? QPalette::Active : QPalette::Disabled;
  box.setColor(QPalette::Text, readable(palette.color(from, QPalette::Text), palette.color(QPalette::Base)));
  return box;
}

QPalette valuePalette() {
  QPalette box;
  box.setColor(QPalette::Base, Qt::transparent);
  return box;
}

Colour backColorOf(const Control& control) {
  if (const auto* text = dynamic_cast<const TextBox*>(&control)) return text->BackColor();
  if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) return combo->BackColor();
  return Colour::WindowBackground;
}

QString markInWords(Colour backColor) {
  switch (backColor) {
    case Colour::EssentialBroken:
      return QStringLiteral("contrainte essentielle non respectée");
    case Colour::AccessoryBroken:
      return QStringLiteral("contrainte accessoire non respectée");
    default:
      return {};
  }
}

void showBoxColour(QWidget& box, Colour backColor) {
  constexpr const char* colouredBefore = "orvaneColoured";
  const bool isColoured = backColor != Colour::WindowBackground;
  const bool wasColoured = box.property(colouredBefore).toBool();
  if (isColoured) box.setPalette(boxPalette(backColor, QApplication::palette(&box)));
  if (wasColoured && !isColoured) box.setPalette(QPalette());
  if (wasColoured != isColoured) box.setProperty(colouredBefore, isColoured);
  const QString description = describedWith(box, markInWords(backColor));
  if (box.accessibleDescription() != description) box.setAccessibleDescription(description);
}

}  // namespace orvane
