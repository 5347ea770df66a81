#include "data/record_formats.h"

#include "data/return_marker.h"

namespace orvane {
namespace {

using Line = RecordLine;

template <class Record, class Value>
Record recordOf(Value Record::*);
template <auto member>
using RecordOf = decltype(recordOf(member));

template <auto member, auto reading>
void take(Line& line, const Field& field, RecordOf<member>& record, const ReadingTools&) {
  record.*member = (line.*reading)(field);
}

template <auto member, auto reading>
void takeText(Line& line, const Field& field, RecordOf<member>& record, const ReadingTools& tools) {
  record.*member = tools.texts.keep((line.*reading)(field));
}

// The same for a text in which "[return]" stands for a line end.
template <auto member, auto reading>
void takeEscaped(Line& line, const Field& field, RecordOf<member>& record, const ReadingTools& tools) {
  record.*member = tools.texts.keep(prcReturnToCrLf((line.*reading)(field), tools.dialogs));
}

void takeSkills(Line& line, const Field& field, clsProfil& profil, const ReadingTools&) {
  profil.colSkillPro.reserve(line.fieldsLeft());
  while (!line.atEnd()) profil.colSkillPro.Add(line.number(field));
}

void takeTechnics(Line& line, const Field& field, clsMartialArt& art, const ReadingTools& tools) {
  while (!line.atEnd()) {
    if (auto technic = tools.technic(line.key(field)))
      art.colMartialTechnic.Add(std::move(technic));
    else
      line.fault(FaultKind::UnknownTechnic, art.sName);
  }
}

constexpr FieldFormat<clsEthnie> ethnieFields[] = {
    {{"sName", "nom de l'ethnie"}, takeText<&clsEthnie::sName, &Line::text>},
    {{"iMaxD", "nombre de l'ethnie"}, take<&clsEthnie::iMaxD, &Line::integerToEnd>},
};

constexpr FieldFormat<clsGrade> gradeFields[] = {
    {{"iSalaire", "salaire"}, take<&clsGrade::iSalaire, &Line::integer>},
    {{"sName", "nom du grade"}, takeText<&clsGrade::sName, &Line::text>},
    {{"sDescro", "description"}, takeText<&clsGrade::sDescro, &Line::textToEnd>},
};

constexpr FieldFormat<clsProfil> profilFields[] = {
    {{"sName", "nom du profil"}, takeText<&clsProfil::sName, &Line::text>},
    {{"bAsserm", "profil assermenté ou non"}, take<&clsProfil::bAsserm, &Line::boolean>},
    {{"sDescro", "description"}, takeEscaped<&clsProfil::sDescro, &Line::text>},
    {{"colSkillPro", "clé d'une compétence du profil"}, takeSkills},
};

constexpr FieldFormat<clsSkill> skillFields[] = {
    {{"iKey", "clé de la compétence"}, take<&clsSkill::iKey, &Line::integer>},
    {{"sName", "nom de la compétence"}, takeText<&clsSkill::sName, &Line::text>},
    {{"iStart", "valeur de base"}, take<&clsSkill::iStart, &Line::integer>},
    {{"sDescro", "description"}, takeText<&clsSkill::sDescro, &Line::textToEnd>},
};

constexpr FieldFormat<clsMutation> mutationFields[] = {
    {{"sCateg", "catégorie"}, takeText<&clsMutation::sCateg, &Line::text>},
    {{"sSign", "signe"}, takeText<&clsMutation::sSign, &Line::text>},
    {{"iNum", "numéro du pouvoir"}, take<&clsMutation::iNum, &Line::integer>},
    {{"sName", "nom du pouvoir"}, takeText<&clsMutation::sName, &Line::text>},
    {{"sDescro", "description"}, takeEscaped<&clsMutation::sDescro, &Line::textToEnd>},
};

constexpr FieldFormat<clsMartialTechnic> martialTechnicFields[] = {
    {{"sName", "nom de la technique"}, takeText<&clsMartialTechnic::sName, &Line::text>},
    {{"sType", "type, o ou d"}, takeText<&clsMartialTechnic::sType, &Line::text>},
    {{"iKey", "clé de la technique"}, take<&clsMartialTechnic::iKey, &Line::integer>},
    {{"sDescro", "description"}, takeText<&clsMartialTechnic::sDescro, &Line::textToEnd>},
};

constexpr FieldFormat<clsMartialArt> martialArtFields[] = {
    {{"sName", "nom de l'art martial"}, takeText<&clsMartialArt::sName, &Line::text>},
    {{"iRestrictO", "restriction offensive"}, take<&clsMartialArt::iRestrictO, &Line::integer>},
    {{"iRestrictD", "restriction défensive"}, take<&clsMartialArt::iRestrictD, &Line::integer>},
    {{"sDescro", "description"}, takeEscaped<&clsMartialArt::sDescro, &Line::text>},
    {{"colMartialTechnic", "clé d'une technique de l'art"}, takeTechnics},
};

constexpr FieldFormat<clsDistrict> districtFields[] = {
    {{"sName", "nom du quartier"}, takeText<&clsDistrict::sName, &Line::text>},
    {{"sDescro", "description"}, takeEscaped<&clsDistrict::sDescro, &Line::textToEnd>},
};

}  // namespace

const RecordFormat<clsEthnie> ethnieFormat{"ethnie.txt", ethnieFields};
const RecordFormat<clsGrade> gradeFormat{"grade.txt", gradeFields};
const RecordFormat<clsProfil> profilFormat{"profil.txt", profilFields};
const RecordFormat<clsSkill> skillFormat{"skill.txt", skillFields};
const RecordFormat<clsMutation> mutationFormat{"mutation.txt", mutationFields};
const RecordFormat<clsMartialTechnic> martialTechnicFormat{"martial_technic.txt", martialTechnicFields};
const RecordFormat<clsMartialArt> martialArtFormat{"martial_art.txt", martialArtFields};
const RecordFormat<clsDistrict> districtFormat{"district.txt", districtFields};

}  // namespace orvane
