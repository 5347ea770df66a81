#include "sheet/art/render/labels.h"

#include <map>
#include <stdexcept>

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace orvane {
namespace {

QString found(const QString& text, const char* pattern) {
  return QRegularExpression(QString::fromLatin1(pattern)).match(text).captured(1);
}

// What the style sheet says of the classes of one label.
class Style {
 public:
  explicit Style(const QString& declarations) : declarations_(declarations) {}

  QFont font() const {
    QFont font(found(declarations_, "font-family: '([^']+)'"));
    font.setPixelSize(found(declarations_, "font-size: (\\d+)px").toInt());
    font.setBold(declarations_.contains("font-weight: bold"));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
  }
  QColor colour() const { return QColor(found(declarations_, "fill: (#\\w{6})")); }
  // How much of its width stands in front of its place.
  double anchor() const {
    const QString anchor = found(declarations_, "text-anchor: (\\w+)");
    return anchor == "middle" ? 0.5 : anchor == "end" ? 1 : 0;
  }

 private:
  QString declarations_;
};

class StyleSheet {
 public:
  explicit StyleSheet(const QString& css) {
    const QRegularExpression rule(QStringLiteral("\\.(\\w+) \\{([^}]*)\\}"));
    for (const auto& match : rule.globalMatch(css)) rules_[match.captured(1)] = match.captured(2);
  }

  Style of(const QString& classes) const {
    QString declarations;
    for (const auto& name : classes.split(' ')) {
      const auto rule = rules_.find(name);
      if (rule == rules_.end()) throw std::runtime_error("no style for labels: " + classes.toStdString());
      declarations += rule->second + ';';
    }
    return Style(declarations);
  }

 private:
  std::map<QString, QString> rules_;
};

void turn(QPainter& painter, const QString& transform) {
  if (transform.isEmpty()) return;
  const auto match =
      QRegularExpression(QStringLiteral("^translate\\((\\S+) (\\S+)\\) rotate\\((\\S+)\\)$")).match(transform);
  if (!match.hasMatch()) throw std::runtime_error("no such label: " + transform.toStdString());
  painter.translate(match.captured(1).toDouble(), match.captured(2).toDouble());
  painter.rotate(match.captured(3).toDouble());
}

void drawLabel(QPainter& painter, const QXmlStreamAttributes& place, const QString& text, const Style& style) {
  // Measured large, for a painter's own dots round the widths of small letters.
  constexpr double finer = 100;
  QFont large = style.font();
  large.setPixelSize(static_cast<int>(large.pixelSize() * finer));
  const double width = QFontMetricsF(large).horizontalAdvance(text) / finer;
  painter.save();
  turn(painter, place.value("transform").toString());
  painter.setFont(style.font());
  painter.setPen(style.colour());
  painter.drawText(QPointF(place.value("x").toDouble() - style.anchor() * width, place.value("y").toDouble()), text);
  painter.restore();
}

}  // namespace

void drawLabels(QPainter& painter, const QByteArray& svg) {
  const StyleSheet styles(found(QString::fromUtf8(svg), "<style>([^<]*)</style>"));
  QXmlStreamReader source(svg);
  while (!source.atEnd()) {
    if (source.readNext() != QXmlStreamReader::StartElement || source.name() != QLatin1String("text")) continue;
    const auto place = source.attributes();
    drawLabel(painter, place, source.readElementText(), styles.of(place.value("class").toString()));
  }
  if (source.hasError()) throw std::runtime_error(source.errorString().toStdString());
}

QByteArray withoutLabels(const QByteArray& svg) {
  return QString::fromUtf8(svg).remove(QRegularExpression(QStringLiteral("<text [^\\n]*</text>"))).toUtf8();
}

}  // namespace orvane
