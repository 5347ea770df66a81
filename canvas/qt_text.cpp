#include "canvas/qt_text.h"

namespace orvane {

QString toQt(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

std::string fromQt(const QString& text) { return text.toStdString(); }

QString shownLines(std::string_view text) {
  QString shown = toQt(text);
  return shown.replace("\r\n", "\n").replace('\r', '\n');
}

std::string typedLines(const QString& text) {
  QString typed = text;
  typed.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n');
  return fromQt(typed.replace('\n', "\r\n"));
}

QString withoutMnemonics(std::string_view text) { return toQt(text).replace('&', "&&"); }

}  // namespace orvane
