#pragma once

#include <array>

namespace orvane {

// A box of the form that the program prints into: name, then left, top, width and height in twips.
struct FormBox {
  const char* name;
  int left, top, width, height;
};

inline constexpr std::array kRectoBoxes = {
    FormBox{"shpJoueur", 2640, 1215, 4800, 285},
    FormBox{"shpPerso", 1635, 1605, 2550, 270},
    FormBox{"shpEthnie", 5115, 1605, 2310, 270},
    FormBox{"shpSexe", 1290, 1980, 240, 270},
    FormBox{"shpTaillePoids", 3690, 1965, 1050, 255},
    FormBox{"shpYeux", 5820, 1965, 1605, 270},
    FormBox{"shpDistrict", 1290, 2340, 2220, 270},
    FormBox{"shpAge", 4275, 2355, 435, 255},
    FormBox{"shpCheveux", 5820, 2340, 1620, 270},
    FormBox{"shpProfil", 1290, 2700, 2310, 270},
    FormBox{"shpGrade", 4830, 2700, 2595, 270},
    FormBox{"shpCaract(0)", 360, 3990, 435, 255},
    FormBox{"shpCaract(1)", 360, 4740, 435, 255},
    FormBox{"shpCaract(2)", 360, 5445, 435, 255},
    FormBox{"shpCaract(3)", 360, 6180, 435, 255},
    FormBox{"shpCaract(4)", 1845, 3990, 435, 255},
    FormBox{"shpCaract(5)", 1845, 4725, 435, 255},
    FormBox{"shpCaract(6)", 1845, 5445, 435, 255},
    FormBox{"shpCaract(7)", 1845, 6180, 435, 255},
    FormBox{"shpEV", 3210, 3990, 435, 255},
    FormBox{"shpR", 3210, 4725, 435, 255},
    FormBox{"shpSF", 3210, 5445, 435, 255},
    FormBox{"shpMutaCateg", 2805, 7050, 3285, 315},
    FormBox{"shpMutaName", 1125, 7455, 4965, 315},
    FormBox{"shpMutaDescro", 240, 7800, 5850, 1245},
    FormBox{"shpParticulSign", 6375, 7440, 3270, 1605},
    FormBox{"shpContact", 2760, 9270, 6930, 1500},
    FormBox{"shpLangValue(0)", 1560, 9720, 270, 255},
    FormBox{"shpLangValue(1)", 1560, 10080, 270, 255},
    FormBox{"shpLangValue(2)", 1560, 10485, 270, 255},
    FormBox{"shpOtherLang", 300, 10500, 1095, 255},
};

inline constexpr std::array kVersoBoxes = {
    FormBox{"shpValues(0)", 60, 1350, 480, 6330},    FormBox{"shpNames(0)", 1065, 1350, 2280, 6330},
    FormBox{"shpValues(1)", 3225, 1080, 480, 6600},  FormBox{"shpNames(1)", 4230, 1080, 2280, 6600},
    FormBox{"shpValues(2)", 6405, 1080, 480, 6600},  FormBox{"shpNames(2)", 7410, 1080, 2280, 6600},
    FormBox{"shpMartialArt", 720, 7935, 8955, 1710}, FormBox{"shpMatos", 3690, 10215, 5985, 3765},
};

}  // namespace orvane
