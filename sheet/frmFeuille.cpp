#include "sheet/frmFeuille.h"

#include "surface/desktop.h"
#include "surface/numbers.h"

namespace orvane {
namespace {

constexpr int centimetres = 7;
// The strip of buttons at the top, centimetres.
constexpr float stripHeight = 1;

}  // namespace

frmFeuille::frmFeuille(Globals& globals)
    : Form(globals.desktop, {.name = "frmFeuille", .scaleWidth = 10260, .scaleHeight = 8325, .resizable = true}),
      globals_(globals) {
  using F = frmFeuille;
  on(optFeuille, &OptionButton::Click, &F::optFeuille_Click);
  on(cmdSave, &CommandButton::Click, &F::cmdSave_Click);
  on(cmdClose.Click, &F::cmdClose_Click);
  on(HScroll.Change, &F::HScroll_Change);
  on(VScroll.Change, &F::VScroll_Change);
}

void frmFeuille::Form_Load() {
  setScaleMode(centimetres);
  pctMesure.setScaleMode(centimetres);
  pctController.setScaleMode(centimetres);
  for (auto* picture : {&pctRecto, &pctVerso}) picture->setAutoSize(true);
  for (auto* picture : {&pctMesure, &pctRecto, &pctVerso}) picture->setBorderStyle(0);
  pctController.Move(0, 0, ScaleWidth(), stripHeight);
  // Reaches behind the horizontal bar by the height of the strip; the vertical sums below allow for it.
  pctMesure.Move(0, stripHeight, ScaleWidth() - VScroll.Width(), ScaleHeight() - HScroll.Height());
  HScroll.setTop(pctMesure.Height());
  HScroll.setLeft(0);
  HScroll.setWidth(pctMesure.Width());
  VScroll.setTop(stripHeight);
  VScroll.setLeft(pctMesure.Width());
  VScroll.setHeight(pctMesure.Height() - stripHeight);
  optFeuille(0).setValue(true);
}

PrintedSheet frmFeuille::printed() const {
  PrintedSheet sheet{Caption(), player, {}};
  for (const auto& entry : log.printed)
    sheet.sides[entry.picture == &pctRecto ? 0 : 1].push_back({entry.text, entry.x, entry.y, entry.points});
  return sheet;
}

void frmFeuille::Form_Activate() { globals_.frmCurrentFeuille = this; }

void frmFeuille::unloaded() {
  if (globals_.frmCurrentFeuille == this) globals_.frmCurrentFeuille = desktop().lastActivated<frmFeuille>();
}

void frmFeuille::optFeuille_Click(std::int16_t Index) {
  if (Index != 0 && Index != 1) return;
  PictureBox& shown = Index == 0 ? pctRecto : pctVerso;
  PictureBox& hidden = Index == 0 ? pctVerso : pctRecto;
  shown.setVisible(true);
  hidden.setVisible(false);
  HScroll.setMax(toInt16(static_cast<double>(shown.Width() - pctMesure.Width())));
  VScroll.setMax(toInt16(static_cast<double>(shown.Height() - pctMesure.Height() + stripHeight)));
  shown.Move(0, stripHeight);
  HScroll.setValue(0);
  VScroll.setValue(0);
  VScroll.setVisible(pctMesure.Height() < shown.Height());
  HScroll.setVisible(pctMesure.Width() < shown.Width());
  shown.ZOrder();
  VScroll.ZOrder();
  HScroll.ZOrder();
  pctController.ZOrder();
}

PictureBox& frmFeuille::shownPicture() { return optFeuille(0).Value() ? pctRecto : pctVerso; }

void frmFeuille::HScroll_Change() { shownPicture().setLeft(0 - static_cast<float>(HScroll.Value())); }

void frmFeuille::VScroll_Change() { shownPicture().setTop(stripHeight - static_cast<float>(VScroll.Value())); }

void frmFeuille::cmdClose_Click() { Unload(); }

}  // namespace orvane
