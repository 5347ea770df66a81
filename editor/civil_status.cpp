#include <array>
#include <string_view>

#include "data/reference_data.h"
#include "editor/frmPersonnage.h"
#include "editor/numbers_in_controls.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr const char* foreignDistrict = "Le quartier d'origine du personnage n'est pas de Tessaly.";
constexpr double highestDegree = 5;

// By degree of language, from 0 to 5: the head and the text behind it.
struct Degree {
  std::string_view head;
  std::string_view text;
};
constexpr std::array<Degree, 6> degrees{{
    {"Langue Degré 0 ",
     "Le personnage ne parle pas et ne comprend pas la langue. Il ne connaît que quelques mots très courants (bonjour, "
     "au revoir, etc...)"},
    {"Langue Degré 1 ",
     "Le personnage est capable de communiquer de manière très basique, avec des phrases très simples concernant des "
     "sujets de la vie quotidienne."},
    {"Langue Degré 2 ",
     "Le personnage comprend la langue mais la parle très mal, même s'il commence à faire passer d'autres concepts que "
     "ceux de la vie quotidienne."},
    {"Langue Degré 3 ",
     "Le personnage parle relativement couramment, mais avec un accent étranger et un vocabulaire un peu faible "
     "parfois. "
     "C'est le niveau d'un autochtone mal éduqué ou d'un primo-arrivant ayant étudié la langue sur place."},
    {"Langue Degré 4 ",
     "Le personnage parle couramment la langue, connais plus de 80% du vocabulaire et communique sans accent."},
    {"Langue Degré 5 ",
     "Le personnage est un spécialiste de la langue. Il la connaît parfaitement, avec toutes ses subtilités."},
}};

}  // namespace

void frmPersonnage::cmbDistrict_Change() { txtAllDescro.setText(foreignDistrict); }

void frmPersonnage::cmbDistrict_Click() {
  if (cmbDistrict.ListIndex() == -1)
    txtAllDescro.setText(foreignDistrict);
  else
    txtAllDescro.setText(data_.colDistrict(cmbDistrict.ItemData(cmbDistrict.ListIndex()))->sDescro);
}

void frmPersonnage::cmbGrade_Click() {
  if (cmbGrade.ListIndex() != -1)
    txtAllDescro.setText(data_.colGrade(cmbGrade.ItemData(cmbGrade.ListIndex()))->sDescro);
}

void frmPersonnage::optLang_Click(std::int16_t Index) {
  iLangSel = Index;
  prcLangDegréDescro();
}

void frmPersonnage::txtOtherLang_GotFocus() { optLang(2).setValue(true); }

void frmPersonnage::cmdLangModif_Click(std::int16_t Index) {
  TextBox& degree = txtLang(iLangSel);
  if (Index != 0 && number(degree) < highestDegree && number(txtLangRest) > 0) {
    add(degree, 1);
    add(txtLangRest, -1);
  } else if (Index == 0 && number(degree) > 0) {
    add(degree, -1);
    add(txtLangRest, 1);
  }
  prcLangDegréDescro();
}

void frmPersonnage::prcLangDegréDescro() {
  const double selected = number(txtLang(iLangSel));
  for (std::size_t i = 0; i < degrees.size(); ++i)
    if (selected == static_cast<double>(i))
      txtAllDescro.setText(std::string(degrees[i].head) + crLf + std::string(degrees[i].text));
}

}  // namespace orvane
