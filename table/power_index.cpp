#include "table/power_index.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

#include <QTextDocument>

#include "surface/text.h"
#include "table/page.h"
#include "table/typesetting.h"

namespace orvane {
namespace {

const auto kTitle = QStringLiteral("Pouvoirs et défauts");
const auto kHeading = QStringLiteral(
    "<h1>Pouvoirs et défauts</h1>"
    "<p class=\"lead\">Pour le meneur de jeu : tout ce qu’une mutation peut donner, et ce qu’elle peut prendre.</p>");
constexpr int kColumns = 2;

constexpr double kGapBefore = 1.2;  // millimetres
constexpr double kGapBeforeHeading = 2.6;

// Never broken between columns; a heading is one with what it stands under it.
struct Piece {
  std::unique_ptr<QTextDocument> text;
  double gap;  // in dots, to what it follows in a column
};

QString heading(const QString& words) { return "<h2>" + words + "</h2>"; }

QString signHeading(const clsMutation& power) {
  return heading(QString::fromStdString(power.sCateg) +
                 (power.sSign == "Plus" ? " Plus, les pouvoirs" : " Moins, les défauts"));
}

// As printers set it; the data have the apostrophe of keyboards.
QString printed(const std::string& text) {
  return QString::fromStdString(text).remove('\r').replace('\'', QChar(0x2019)).toHtmlEscaped();
}

QString entry(const clsMutation& power) {
  const auto lines = printed(power.sDescro).split('\n');
  return QStringLiteral("<p class=\"entry\"><span class=\"name\">%1&nbsp; %2.</span> %3 <i>%4</i></p>")
      .arg(QString::number(power.iNum), printed(power.sName), lines.value(0), lines.mid(1).join(' '));
}

// Names and numbers in two columns of the same length.
QString alphabet(const ReferenceData& data) {
  std::map<std::string, QString> sorted;
  for (const auto& power : data.colMutation)
    sorted[sortKey(power.sName)] = printed(power.sName) + "&nbsp; " + QString::number(power.iNum);
  const auto half = static_cast<std::ptrdiff_t>((sorted.size() + 1) / 2);
  QString html = "<table width=\"100%\" cellspacing=\"0\" cellpadding=\"0\"><tr>";
  auto name = sorted.begin();
  for (const auto& end : {std::next(name, half), sorted.end()}) {
    html += "<td width=\"50%\" class=\"alphabet\">";
    for (; name != end; ++name) html += name->second + "<br>";
    html += "</td>";
  }
  return html + "</tr></table>";
}

class Setting {
 public:
  Setting(const Typesetting& typesetting, double width) : typesetting_(typesetting), width_(width) {}

  std::vector<Piece> all(const ReferenceData& data) {
    std::string before;
    for (const auto& power : data.colMutation) {
      const auto group = power.sCateg + ";" + power.sSign;
      add(group == before ? QString() : signHeading(power), entry(power));
      before = group;
    }
    add(heading(QStringLiteral("Par ordre alphabétique")), alphabet(data));
    return std::move(pieces_);
  }

 private:
  void add(const QString& heading, const QString& html) {
    pieces_.push_back(
        {typesetting_.set(heading + html, width_), dots(heading.isEmpty() ? kGapBefore : kGapBeforeHeading)});
  }

  const Typesetting& typesetting_;
  double width_;
  std::vector<Piece> pieces_;
};

// Fills column after column and page after page.
class Flow {
 public:
  explicit Flow(Pdf& pdf) : pdf_(pdf) { page_.drawHeading(kHeading); }

  double columnWidth() const { return page_.columnWidth(); }

  void draw(const Piece& piece) {
    const double height = piece.text->size().height();
    double top = bottom_ > 0 ? bottom_ + piece.gap : 0;
    if (top + height > page_.columnHeight()) {
      nextColumn();
      top = 0;
    }
    page_.drawInColumn(column_, top, *piece.text);
    bottom_ = top + height;
  }

  void drawFoot() { page_.drawFoot(kTitle, QString::number(number_)); }

 private:
  void nextColumn() {
    if (++column_ < kColumns) return;
    drawFoot();
    pdf_.newPage();
    page_ = Page(pdf_, kColumns);
    column_ = 0;
    ++number_;
  }

  Pdf& pdf_;
  Page page_{pdf_, kColumns};
  int number_ = 1;
  int column_ = 0;
  double bottom_ = 0;  // of what is drawn in the column
};

}  // namespace

QByteArray powerIndex(const ReferenceData& data) {
  Pdf pdf(kTitle);
  Flow flow(pdf);
  for (const auto& piece : Setting(Typesetting(pdf.paper()), flow.columnWidth()).all(data)) flow.draw(piece);
  flow.drawFoot();
  return pdf.finish();
}

}  // namespace orvane
