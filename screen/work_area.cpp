#include "screen/work_area.h"

#include <algorithm>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QMdiSubWindow>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>

#include "screen/readable_colours.h"

namespace orvane {
namespace {

// Pixels at 100 %.
constexpr int margin = 24;
constexpr int widest = 440;
constexpr int narrowestLogo = 160;

const char* const invitation =
    "<p align='center'><b>Ctrl+P</b>&nbsp;&nbsp;Nouveau personnage<br>"
    "<b>F1</b>&nbsp;&nbsp;Aide</p>"
    "<p align='center'>Un personnage sauvegardé ne peut plus être modifié.</p>"
    "<p align='center'>Fermer une fenêtre ne demande rien&nbsp;: un personnage non sauvegardé est perdu.</p>";

// As large as the room allows; none where only an unreadable one would fit.
QSize logoIn(const QSize& picture, const QSize& room) {
  const QSize logo = picture.scaled(room.boundedTo(picture), Qt::KeepAspectRatio);
  return logo.width() < narrowestLogo ? QSize() : logo;
}

void paintText(QPainter& painter, QTextDocument& text, const QColor& ground) {
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, readable(context.palette.color(QPalette::WindowText), ground));
  text.documentLayout()->draw(&painter, context);
}

void paintInvitation(QPainter& painter, const QRect& room, const QFont& font, const QColor& ground) {
  const QRect inside = room.adjusted(margin, margin, -margin, -margin);
  QTextDocument text;
  text.setDefaultFont(font);
  text.setDocumentMargin(0);
  text.setHtml(QString::fromUtf8(invitation));
  text.setTextWidth(std::min(inside.width(), widest));
  const QSize words = text.size().toSize();
  const QPixmap picture(":/art/logo.png");
  const QSize logo = logoIn(picture.size(), {inside.width(), inside.height() - words.height() - margin});
  const int above = logo.isEmpty() ? 0 : logo.height() + margin;
  const int top = std::max(inside.top(), room.center().y() - (above + words.height()) / 2);

  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(QRect(QPoint(room.center().x() - logo.width() / 2, top), logo), picture);
  painter.translate(room.center().x() - words.width() / 2, top + above);
  paintText(painter, text, ground);
}

// What to scroll by, along one side, until a part of a child can be seen: together with the edge where the child
// begins, or, where there is no room for both, alone.
int toScroll(int child, int start, int end, int room) {
  if (end - child <= room) return child < 0 ? child : std::max(0, end - room);
  return start < 0 ? start : std::max(0, std::min(start, end - room));
}

// Of something wide its beginning is enough.
int endOf(int start, int length, int room) { return start + std::min(length, room / 2); }

void scrollBy(QScrollBar& bar, int distance) {
  if (distance != 0) bar.setValue(bar.value() + distance);
}

// Behind the last child there is nothing to see.
void takeBack(QScrollBar& bar, int behind) {
  if (behind > 0) bar.setValue(std::max(bar.minimum(), bar.value() - behind));
}

const QMdiSubWindow* childAround(const QWidget* widget) {
  while (widget && !qobject_cast<const QMdiSubWindow*>(widget)) widget = widget->parentWidget();
  return static_cast<const QMdiSubWindow*>(widget);
}

}  // namespace

WorkArea::WorkArea(QWidget* parent) : QMdiArea(parent) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setActivationOrder(ActivationHistoryOrder);
  setOption(DontMaximizeSubWindowOnActivation);
  connect(this, &QMdiArea::subWindowActivated, viewport(), QOverload<>::of(&QWidget::update));
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focus) { bringIntoSight(focus); });
}

// What is deleted with it gives up the focus.
WorkArea::~WorkArea() { disconnect(qApp, nullptr, this, nullptr); }

// Who goes on with the Tab key sees where, also where a child is larger than the window. What is clicked stays in
// place.
void WorkArea::bringIntoSight(const QWidget* focus) {
  const auto* child = childAround(focus);
  if (QApplication::mouseButtons() != Qt::NoButton || !child || !isAncestorOf(child)) return;
  const QSize room = viewport()->size();
  const QPoint start = focus->mapTo(viewport(), QPoint());
  scrollBy(*horizontalScrollBar(),
           toScroll(child->x(), start.x(), endOf(start.x(), focus->width(), room.width()), room.width()));
  scrollBy(*verticalScrollBar(),
           toScroll(child->y(), start.y(), endOf(start.y(), focus->height(), room.height()), room.height()));
}

// The part that children take.
QRect WorkArea::open() const {
  QRect taken;
  for (const auto* child : subWindowList())
    if (child->isVisible()) taken |= child->geometry();
  return taken;
}

void WorkArea::paintEvent(QPaintEvent* event) {
  const QColor ground = palette().color(QPalette::Window).darker(115);
  QPainter painter(viewport());
  painter.fillRect(event->rect(), ground);
  if (subWindowList().isEmpty()) paintInvitation(painter, viewport()->rect(), font(), ground);
}

void WorkArea::resizeEvent(QResizeEvent* event) {
  QMdiArea::resizeEvent(event);
  if (const QRect taken = open(); !taken.isEmpty()) {
    takeBack(*horizontalScrollBar(), viewport()->width() - 1 - taken.right());
    takeBack(*verticalScrollBar(), viewport()->height() - 1 - taken.bottom());
  }
}

}  // namespace orvane
