#include "screen/readable_style.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>

#include "screen/readable_colours.h"

namespace orvane {
namespace {

// Pixels at 100 %.
constexpr int rowAir = 6;
constexpr int sideAir = 3;
constexpr int captionAir = 14;

// What the edges of things that are used need against what lies around them.
constexpr double visibleContrast = 3;
constexpr double faintContrast = 1.8;

enum class Outline { Square, Rounded, Circle };

struct Outlined {
  QStyle::PrimitiveElement element;
  Outline outline;
  QPalette::ColorRole ground;
};

constexpr Outlined outlined[] = {
    {QStyle::PE_FrameLineEdit, Outline::Rounded, QPalette::Base},
    {QStyle::PE_Frame, Outline::Square, QPalette::Base},
    {QStyle::PE_FrameGroupBox, Outline::Square, QPalette::Window},
    {QStyle::PE_FrameTabWidget, Outline::Square, QPalette::Window},
    {QStyle::PE_PanelButtonCommand, Outline::Rounded, QPalette::Window},
    {QStyle::PE_IndicatorCheckBox, Outline::Square, QPalette::Button},
    {QStyle::PE_IndicatorItemViewItemCheck, Outline::Square, QPalette::Base},
    {QStyle::PE_IndicatorRadioButton, Outline::Circle, QPalette::Button},
};

int lineHeight(const QWidget* widget) {
  return widget ? widget->fontMetrics().height() : QFontMetrics(QApplication::font()).height();
}

// Who has chosen black and white asks for as much of what is disabled, too.
double disabledContrast(const QPalette& palette) {
  const double chosen = contrast(palette.color(QPalette::Active, QPalette::WindowText),
                                 palette.color(QPalette::Active, QPalette::Window));
  return chosen > 20 ? readableContrast : visibleContrast;
}

void makeDisabledReadable(QPalette& palette) {
  const double wanted = disabledContrast(palette);
  constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> texts[] = {{QPalette::WindowText, QPalette::Window},
                                                                           {QPalette::Text, QPalette::Base},
                                                                           {QPalette::ButtonText, QPalette::Button}};
  for (const auto& [text, ground] : texts)
    palette.setColor(
        QPalette::Disabled, text,
        readable(palette.color(QPalette::Disabled, text), palette.color(QPalette::Disabled, ground), wanted));
}

bool isIndicator(QStyle::PrimitiveElement element) {
  return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorItemViewItemCheck ||
         element == QStyle::PE_IndicatorRadioButton;
}

// A list or a box of lines that has the focus.
bool isFocusedFrame(QStyle::PrimitiveElement element, const QStyleOption& option) {
  return element == QStyle::PE_Frame && option.state & QStyle::State_HasFocus;
}

// This style draws its edges darker than the window, which nobody sees on a dark one. Others see to theirs themselves.
bool hasFaintEdges(const QStyle& style, const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  return style.name() == "fusion" && contrast(window.darker(140), window) < 1.4;
}

// The frame of a group begins below its title.
QRect frameOf(QStyle::PrimitiveElement element, const QStyleOption& option, const QWidget* widget) {
  const auto* group = element == QStyle::PE_FrameGroupBox ? dynamic_cast<const QGroupBox*>(widget) : nullptr;
  if (!group || group->title().isEmpty()) return option.rect;
  return option.rect.adjusted(0, group->fontMetrics().height() + 3, 0, 0);
}

QColor edgeColour(const QStyleOption& option, QPalette::ColorRole ground) {
  const double wanted = option.state & QStyle::State_Enabled ? visibleContrast : faintContrast;
  const auto colour = option.state & QStyle::State_HasFocus ? QPalette::Highlight : QPalette::Window;
  return readable(option.palette.color(colour), option.palette.color(ground), wanted);
}

void drawOutline(QPainter& painter, const QRect& rect, Outline outline, const QColor& colour) {
  const QRectF edge = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(colour);
  painter.setBrush(Qt::NoBrush);
  if (outline == Outline::Circle)
    painter.drawEllipse(edge);
  else if (outline == Outline::Rounded)
    painter.drawRoundedRect(edge, 2, 2);
  else
    painter.drawRect(edge);
  painter.restore();
}

// The title is drawn in white, whatever the palette says.
QStyleOptionTitleBar withReadableTitle(const QStyleOptionTitleBar& bar) {
  QStyleOptionTitleBar made = bar;
  if (bar.titleBarState & QStyle::State_Active)
    made.palette.setColor(QPalette::Highlight, readable(bar.palette.color(QPalette::Highlight), Qt::white));
  return made;
}

}  // namespace

// What is selected can be read, and so can what is disabled.
void ReadableStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  for (const auto group : {QPalette::Active, QPalette::Inactive})
    palette.setColor(
        group, QPalette::Highlight,
        readable(palette.color(group, QPalette::Highlight), palette.color(group, QPalette::HighlightedText)));
  makeDisabledReadable(palette);
}

int ReadableStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const int usual = QProxyStyle::pixelMetric(metric, option, widget);
  switch (metric) {
    case PM_FocusFrameHMargin:
      return usual + sideAir;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_ButtonIconSize:
      return std::max(usual, lineHeight(widget) - 1);
    default:
      return usual;
  }
}

QSize ReadableStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                      const QWidget* widget) const {
  const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
  if (type == CT_ItemViewItem) return usual + QSize(0, rowAir);
  if (type == CT_PushButton) return usual.expandedTo(size + QSize(2 * captionAir, 0));
  return usual;
}

// A platform gives some widgets palettes of their own, which no style gets to polish.
void ReadableStyle::drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette, bool enabled,
                                 const QString& text, QPalette::ColorRole role) const {
  if (enabled) return QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
  QPalette readableText = palette;
  makeDisabledReadable(readableText);
  QProxyStyle::drawItemText(painter, rect, flags, readableText, enabled, text, role);
}

void ReadableStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (!entry || element != CE_MenuItem) return QProxyStyle::drawControl(element, option, painter, widget);
  QStyleOptionMenuItem readableEntry = *entry;
  makeDisabledReadable(readableEntry.palette);
  QProxyStyle::drawControl(element, &readableEntry, painter, widget);
}

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (!isIndicator(element) && !isFocusedFrame(element, *option) && !hasFaintEdges(*baseStyle(), option->palette))
    return;
  for (const auto& one : outlined)
    if (one.element == element)
      drawOutline(*painter, frameOf(element, *option, widget), one.outline, edgeColour(*option, one.ground));
}

QIcon ReadableStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
  auto& known = icons_[icon];
  if (known.isNull()) known = QProxyStyle::standardIcon(icon, option, widget);
  return known;
}

void ReadableStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                       const QWidget* widget) const {
  if (const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option); bar && control == CC_TitleBar) {
    const QStyleOptionTitleBar readableBar = withReadableTitle(*bar);
    return QProxyStyle::drawComplexControl(control, &readableBar, painter, widget);
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (!hasFaintEdges(*baseStyle(), option->palette)) return;
  if (control == CC_ComboBox)
    drawOutline(*painter, option->rect, Outline::Rounded, edgeColour(*option, QPalette::Window));
  if (control == CC_ScrollBar)
    drawOutline(*painter, subControlRect(control, option, SC_ScrollBarSlider, widget), Outline::Square,
                edgeColour(*option, QPalette::Window));
}

}  // namespace orvane
