#pragma once

#include <gtest/gtest.h>

#include "data/load_data.h"
#include "tests/support/logged_dialogs.h"
#include "tests/support/memory_files.h"
#include "tests/support/windows_1252.h"

namespace orvane::test {

using Log = std::vector<std::string>;

// Eight small files without a fault; a test replaces those that it is about.
class LoadData : public testing::Test {
 protected:
  LoadData() {
    put("ethnie", "Nom;MaxD\nNordique;3\n");
    put("grade", "Salaire;Nom\n1500;Officier;Début; de carrière.[return]\n");
    put("profil", "Profil\nPatrouilleur;True;Agent.[return]Rues.;3;12;101;\nAssermenté;False;;\n");
    put("skill", "Compétence\n12;Filature;2;Suivre; sans être vu.[return]\n");
    put("mutation", "Mutation\nBêta;Plus;7;Peau épaisse;Résiste;[return]Aucun coût.\n");
    put("martial_technic", "Technique\nBalayage;o;4;Fait chuter;[return]\nParade;d;9;Pare.\n");
    put("martial_art", "Art\nBoxe;2;1;Frappe.[return]En salle.;4;9;4;\nLutte;0;0;;4;\nRepos;-1;0;;\n");
    put("district", "Quartier\nPort;Docks;[return][return]Mal famé.[return]\n");
  }

  static std::string path(const std::string& name) { return "./" + name + ".txt"; }
  void put(const std::string& name, const std::string& text) { files.contents[path(name)] = ansi(text); }
  void remove(const std::string& name) { files.contents.erase(path(name)); }

  const Log& load() {
    data = ReferenceData();
    dialogs.log.clear();
    prcLoadData(data, files, dialogs);
    return dialogs.log;
  }

  // The only message of a load with this file.
  std::string messageFor(const std::string& name, const std::string& text) {
    const std::string before = files.contents[path(name)];
    put(name, text);
    load();
    files.contents[path(name)] = before;
    return dialogs.log.size() == 1 ? dialogs.log[0] : std::to_string(dialogs.log.size()) + " messages";
  }

  // How many records each collection holds: ethnie, grade, profil, skill, mutation, martial art, district.
  std::vector<int> counts() const {
    return {data.colEthnie.Count(),   data.colGrade.Count(),      data.colProfil.Count(),  data.colSkill.Count(),
            data.colMutation.Count(), data.colMartialArt.Count(), data.colDistrict.Count()};
  }

  MemoryFiles files;
  LoggedDialogs dialogs;
  ReferenceData data;
};

}  // namespace orvane::test
