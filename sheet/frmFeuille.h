#pragma once

#include <cstdint>
#include <string>

#include "editor/globals.h"
#include "sheet/pair_save.h"
#include "surface/command_button.h"
#include "surface/form.h"
#include "surface/option_button.h"
#include "surface/paper.h"
#include "surface/picture_box.h"
#include "surface/scroll_bar.h"
#include "surface/shape.h"

namespace orvane {

class SheetFiles;
struct clsMutation;

// The window of one character's sheet: two pictures that texts were printed on, of which one is shown.
class frmFeuille : public Form {
 public:
  explicit frmFeuille(Globals& globals);

  // What was printed on both pictures.
  PrintLog log;
  // The player whose character it is.
  std::string player;
  PrintedSheet printed() const;

  PictureBox pctMesure{*this, "pctMesure"};
  PictureBox pctRecto{*this, "pctRecto", {"recto", &log}};
  PictureBox pctVerso{*this, "pctVerso", {"verso", &log}};
  PictureBox pctController{*this, "pctController"};
  Family<OptionButton> optFeuille{pctController, "optFeuille", {{"Recto"}, {"Verso"}}};
  Family<CommandButton> cmdSave{
      pctController, "cmdSave", {{.caption = "&Save"}, {.caption = "Save && &Print", .visible = false}}};
  CommandButton cmdClose{pctController, "cmdClose", {"&Close"}};
  ScrollBar HScroll{*this, "HScroll", {.height = 255}};
  ScrollBar VScroll{*this, "VScroll", {.width = 255}};

  // The blank boxes of the paper form, twips.
  Shape shpJoueur{pctRecto, "shpJoueur", {2640, 1215, 4800, 285}};
  Shape shpPerso{pctRecto, "shpPerso", {1635, 1605, 2550, 270}};
  Shape shpEthnie{pctRecto, "shpEthnie", {5115, 1605, 2310, 270}};
  Shape shpSexe{pctRecto, "shpSexe", {1290, 1980, 240, 270}};
  Shape shpTaillePoids{pctRecto, "shpTaillePoids", {3690, 1965, 1050, 255}};
  Shape shpYeux{pctRecto, "shpYeux", {5820, 1965, 1605, 270}};
  Shape shpDistrict{pctRecto, "shpDistrict", {1290, 2340, 2220, 270}};
  Shape shpAge{pctRecto, "shpAge", {4275, 2355, 435, 255}};
  Shape shpCheveux{pctRecto, "shpCheveux", {5820, 2340, 1620, 270}};
  Shape shpProfil{pctRecto, "shpProfil", {1290, 2700, 2310, 270}};
  Shape shpGrade{pctRecto, "shpGrade", {4830, 2700, 2595, 270}};
  Family<Shape> shpCaract{pctRecto,
                          "shpCaract",
                          {{360, 3990, 435, 255},
                           {360, 4740, 435, 255},
                           {360, 5445, 435, 255},
                           {360, 6180, 435, 255},
                           {1845, 3990, 435, 255},
                           {1845, 4725, 435, 255},
                           {1845, 5445, 435, 255},
                           {1845, 6180, 435, 255}}};
  Shape shpEV{pctRecto, "shpEV", {3210, 3990, 435, 255}};
  Shape shpR{pctRecto, "shpR", {3210, 4725, 435, 255}};
  Shape shpSF{pctRecto, "shpSF", {3210, 5445, 435, 255}};
  Shape shpMutaCateg{pctRecto, "shpMutaCateg", {2805, 7050, 3285, 315}};
  Shape shpMutaName{pctRecto, "shpMutaName", {1125, 7455, 4965, 315}};
  Shape shpMutaDescro{pctRecto, "shpMutaDescro", {240, 7800, 5850, 1245}};
  Shape shpParticulSign{pctRecto, "shpParticulSign", {6375, 7440, 3270, 1605}};
  Shape shpContact{pctRecto, "shpContact", {2760, 9270, 6930, 1500}};
  Family<Shape> shpLangValue{
      pctRecto, "shpLangValue", {{1560, 9720, 270, 255}, {1560, 10080, 270, 255}, {1560, 10485, 270, 255}}};
  Shape shpOtherLang{pctRecto, "shpOtherLang", {300, 10500, 1095, 255}};

  Family<Shape> shpValues{
      pctVerso, "shpValues", {{60, 1350, 480, 6330}, {3225, 1080, 480, 6600}, {6405, 1080, 480, 6600}}};
  Family<Shape> shpNames{
      pctVerso, "shpNames", {{1065, 1350, 2280, 6330}, {4230, 1080, 2280, 6600}, {7410, 1080, 2280, 6600}}};
  Shape shpMartialArt{pctVerso, "shpMartialArt", {720, 7935, 8955, 1710}};
  Shape shpMatos{pctVerso, "shpMatos", {3690, 10215, 5985, 3765}};

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  void unloaded() override;

 private:
  void optFeuille_Click(std::int16_t Index);
  void HScroll_Change();
  void VScroll_Change();
  void cmdClose_Click();
  // Saves both pictures and closes the sheet and its character window (saving.cpp).
  void cmdSave_Click(std::int16_t Index);

  PictureBox& shownPicture();

  // The steps of the save.
  bool confirmed();
  // False where that failed, which is told, or the user keeps the files of before.
  bool triesToSave(SheetFiles& files);
  bool saveFiles(SheetFiles& files);
  MakePaper paperAhead();
  void saveBoth(SheetFiles& files, const MakePaper& paper);
  bool mayOverwrite();
  // Null for none, or none any more.
  const clsMutation* powerToPrint() const;
  void printDrawnPower();

  Globals& globals_;
  // A drawn power was put on the front; a print cannot be taken back, nor done again over itself.
  bool drawnPowerPrinted_ = false;
};

}  // namespace orvane
