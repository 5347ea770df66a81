#include "paper/on_the_form.h"

#include <array>

#include <QFile>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include "surface/failure.h"

// Outside all namespaces: the name that is declared inside the macro is global.
static void keepFormLinked() { Q_INIT_RESOURCE(form); }

namespace orvane {
namespace {

constexpr std::array<const char*, 2> formNames = {"/Recto", "/Verso"};

QByteArray blankForm() {
  keepFormLinked();
  QFile file(QStringLiteral(":/paper/feuille.pdf"));
  if (!file.open(QIODevice::ReadOnly)) throw Failure("Le formulaire manque dans le programme.");
  return file.readAll();
}

// A PDF that is read from memory.
class ReadPdf {
 public:
  explicit ReadPdf(const QByteArray& bytes) : bytes_(bytes) {
    pdf_.processMemoryFile("PDF", bytes_.constData(), static_cast<std::size_t>(bytes_.size()));
  }
  QPDF& pdf() { return pdf_; }
  std::vector<QPDFPageObjectHelper> pages() { return QPDFPageDocumentHelper(pdf_).getAllPages(); }

 private:
  QByteArray bytes_;
  QPDF pdf_;
};

// From the middle of its own page to the place of the side; the axis of PDF pages points upwards.
QPDFMatrix matrixOf(const PlacedSide& placed) {
  const QPointF from = middleCorner(placed.side);
  const double s = placed.scale;
  return {s,
          0,
          0,
          s,
          placed.corner.x() - s * from.x(),
          (paperSize.height() - placed.corner.y()) - s * (paperSize.height() - from.y())};
}

void putUnder(QPDF& pdf, QPDFPageObjectHelper& page, const PaperPage& sides,
              const std::array<QPDFObjectHandle, 2>& forms) {
  std::string drawing;
  auto resources = page.getObjectHandle().getKey("/Resources").getKey("/XObject");
  for (const auto& placed : sides) {
    resources.replaceKey(formNames.at(placed.side), forms.at(placed.side));
    drawing += "q " + matrixOf(placed).unparse() + " cm " + formNames.at(placed.side) + " Do Q\n";
  }
  page.addPageContents(QPDFObjectHandle::newStream(&pdf, drawing), true);
}

void note(QPDF& pdf, const PaperNotes& notes) {
  auto info = QPDFObjectHandle::newDictionary();
  info.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(notes.title));
  if (!notes.author.empty()) info.replaceKey("/Author", QPDFObjectHandle::newUnicodeString(notes.author));
  info.replaceKey("/Creator", QPDFObjectHandle::newUnicodeString("Orvane"));
  pdf.getTrailer().replaceKey("/Info", pdf.makeIndirectObject(info));
  pdf.getRoot().replaceKey("/Lang", QPDFObjectHandle::newString("fr"));
  pdf.getRoot().replaceKey("/ViewerPreferences",
                           QPDFObjectHandle::parse("<< /DisplayDocTitle true /PrintScaling /None >>"));
}

std::string written(QPDF& pdf) {
  QPDFWriter writer(pdf);
  writer.setOutputMemory();
  writer.setDeterministicID(true);
  writer.write();
  const auto bytes = writer.getBufferSharedPointer();
  return {reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()};
}

}  // namespace

std::string onTheForm(const QByteArray& textLayer, const std::vector<PaperPage>& pages, const PaperNotes& notes) {
  ReadPdf blank(blankForm());
  ReadPdf layer(textLayer);
  std::array<QPDFObjectHandle, 2> forms;
  for (std::size_t side = 0; side < forms.size(); ++side)
    forms[side] = layer.pdf().copyForeignObject(blank.pages().at(side).getFormXObjectForPage());
  auto layerPages = layer.pages();
  for (std::size_t i = 0; i < pages.size(); ++i) putUnder(layer.pdf(), layerPages.at(i), pages[i], forms);
  note(layer.pdf(), notes);
  return written(layer.pdf());
}

}  // namespace orvane
