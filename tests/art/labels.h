#pragma once

#include <map>
#include <string>

#include <QFile>
#include <QPointF>
#include <QRegularExpression>
#include <QString>
#include <QXmlStreamReader>

namespace orvane {

// The label that the paper has at each box; empty where the heading of the first skill column serves
// all three, and for the third language, whose name is printed itself.
inline const std::map<std::string, QString> kRectoLabels = {
    {"shpJoueur", "Joueur ou joueuse"},
    {"shpPerso", "Personnage"},
    {"shpEthnie", "Ethnie"},
    {"shpSexe", "Sexe"},
    {"shpTaillePoids", "Taille (cm) / Poids (kg)"},
    {"shpYeux", "Yeux"},
    {"shpDistrict", "Origine"},
    {"shpAge", "Age"},
    {"shpCheveux", "Cheveux"},
    {"shpProfil", "Profil"},
    {"shpGrade", "Grade"},
    {"shpCaract(0)", "Corps"},
    {"shpCaract(1)", "Sens"},
    {"shpCaract(2)", "Détermination"},
    {"shpCaract(3)", "Adresse"},
    {"shpCaract(4)", "Résistance"},
    {"shpCaract(5)", "Réflexe"},
    {"shpCaract(6)", "Intelligence"},
    {"shpCaract(7)", "Relation"},
    {"shpEV", "Energie Vitale"},
    {"shpR", "Réaction"},
    {"shpSF", "Sang Froid"},
    {"shpMutaCateg", "Catégorie, signe et numéro"},
    {"shpMutaName", "Pouvoir"},
    {"shpMutaDescro", "Pouvoir"},
    {"shpParticulSign", "cicatrices, tatouages, implants, manies"},
    {"shpContact", "CONTACTS"},
    {"shpLangValue(0)", "Anglais"},
    {"shpLangValue(1)", "Espagnol"},
    {"shpLangValue(2)", ""},
    {"shpOtherLang", ""},
};

inline const std::map<std::string, QString> kVersoLabels = {
    {"shpValues(0)", "Niv."}, {"shpNames(0)", "Compétence"},
    {"shpValues(1)", ""},     {"shpNames(1)", ""},
    {"shpValues(2)", ""},     {"shpNames(2)", ""},
    {"shpMatos", "MATÉRIEL"}, {"shpMartialArt", "ARTS MARTIAUX"},
};

// Every text of an SVG source with the place of its baseline; a turned text stands where it was moved to.
inline std::multimap<QString, QPointF> textsOf(const QString& source) {
  static const QRegularExpression moved(QStringLiteral("translate\\(([0-9.]+) ([0-9.]+)\\)"));
  std::multimap<QString, QPointF> texts;
  QFile file(source);
  if (!file.open(QIODevice::ReadOnly)) return texts;
  QXmlStreamReader reader(&file);
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("text")) continue;
    const auto attributes = reader.attributes();
    const auto shift = moved.match(attributes.value(QLatin1String("transform")).toString());
    const QPointF place(attributes.value(QLatin1String("x")).toDouble(),
                        attributes.value(QLatin1String("y")).toDouble());
    const QPointF by(shift.captured(1).toDouble(), shift.captured(2).toDouble());
    texts.emplace(reader.readElementText(), place + by);
  }
  return texts;
}

}  // namespace orvane
