#include "data/record_formats.h"

#include "data/return_marker.h"
#include "surface/desktop.h"

namespace orvane {

std::shared_ptr<clsEthnie> readEthnie(RecordLine& line) {
  auto ethnie = std::make_shared<clsEthnie>();
  ethnie->sName = line.text({"sName", "nom de l'ethnie"});
  ethnie->iMaxD = line.integerToEnd({"iMaxD", "nombre de l'ethnie"});
  return ethnie;
}

std::shared_ptr<clsGrade> readGrade(RecordLine& line) {
  auto grade = std::make_shared<clsGrade>();
  grade->iSalaire = line.integer({"iSalaire", "salaire"});
  grade->sName = line.text({"sName", "nom du grade"});
  grade->sDescro = line.textToEnd({"sDescro", "description"});
  return grade;
}

std::shared_ptr<clsProfil> readProfil(RecordLine& line, Dialogs& dialogs) {
  auto profil = std::make_shared<clsProfil>();
  profil->sName = line.text({"sName", "nom du profil"});
  profil->bAsserm = line.boolean({"bAsserm", "profil assermenté ou non"});
  profil->sDescro = prcReturnToCrLf(line.text({"sDescro", "description"}), dialogs);
  while (!line.atEnd()) profil->colSkillPro.Add(line.number({"colSkillPro", "clé d'une compétence du profil"}));
  return profil;
}

std::shared_ptr<clsSkill> readSkill(RecordLine& line) {
  auto skill = std::make_shared<clsSkill>();
  skill->iKey = line.integer({"iKey", "clé de la compétence"});
  skill->sName = line.text({"sName", "nom de la compétence"});
  skill->iStart = line.integer({"iStart", "valeur de base"});
  skill->sDescro = line.textToEnd({"sDescro", "description"});
  return skill;
}

std::shared_ptr<clsMutation> readMutation(RecordLine& line, Dialogs& dialogs) {
  auto mutation = std::make_shared<clsMutation>();
  mutation->sCateg = line.text({"sCateg", "catégorie"});
  mutation->sSign = line.text({"sSign", "signe"});
  mutation->iNum = line.integer({"iNum", "numéro du pouvoir"});
  mutation->sName = line.text({"sName", "nom du pouvoir"});
  mutation->sDescro = prcReturnToCrLf(line.textToEnd({"sDescro", "description"}), dialogs);
  return mutation;
}

std::shared_ptr<clsMartialTechnic> readMartialTechnic(RecordLine& line) {
  auto technic = std::make_shared<clsMartialTechnic>();
  technic->sName = line.text({"sName", "nom de la technique"});
  technic->sType = line.text({"sType", "type, o ou d"});
  technic->iKey = line.integer({"iKey", "clé de la technique"});
  technic->sDescro = line.textToEnd({"sDescro", "description"});
  return technic;
}

std::shared_ptr<clsMartialArt> readMartialArt(RecordLine& line, const TechnicFinder& technic, Dialogs& dialogs) {
  auto art = std::make_shared<clsMartialArt>();
  art->sName = line.text({"sName", "nom de l'art martial"});
  art->iRestrictO = line.integer({"iRestrictO", "restriction offensive"});
  art->iRestrictD = line.integer({"iRestrictD", "restriction défensive"});
  art->sDescro = prcReturnToCrLf(line.text({"sDescro", "description"}), dialogs);
  while (!line.atEnd()) {
    auto found = technic(line.key({"colMartialTechnic", "clé d'une technique de l'art"}));
    if (found)
      art->colMartialTechnic.Add(std::move(found));
    else
      dialogs.MsgBox("Il existe une technique martiale inconnue dans " + art->sName, BoxStyle::Exclamation,
                     std::string(App::Title));
  }
  return art;
}

std::shared_ptr<clsDistrict> readDistrict(RecordLine& line, Dialogs& dialogs) {
  auto district = std::make_shared<clsDistrict>();
  district->sName = line.text({"sName", "nom du quartier"});
  district->sDescro = prcReturnToCrLf(line.textToEnd({"sDescro", "description"}), dialogs);
  return district;
}

}  // namespace orvane
