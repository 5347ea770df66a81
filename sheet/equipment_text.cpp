#include "sheet/equipment_text.h"

#include <array>
#include <string_view>

#include "sheet/line_marker.h"

namespace orvane {
namespace {

struct Piece {
  std::string_view text;
  int lineEnds;
};

constexpr std::array pieces{
    Piece{"Un uniforme d'intervention, un de cérémonie et un badge métallique du G.R.I.M., une radio scanner longue "
          "portée équipée d’un micro-cravate, une paire de menottes, un gilet pare-balles léger (PR 5) et un lourd (PR "
          "7), un casque en kevlar équipé d'une visière thermographique et d'une mini-caméra émettrice (PR 7).",
          2},
    Piece{"Une arme de poing au choix:", 1},
    Piece{"Magnum Typhon (BD +6 Res 2/2 Dif 0 Portée 100m Charges 18 TpA 3 PA -4)", 1},
    Piece{"ou Jackhammer 9mm (BD +6 Res 2/2 Dif 0 Portée 50m Charges 10 TpA 3 PA -6)", 1},
    Piece{"Un fusil à pompe Grifith (BD +9 Res 3 Dif 0 Portée 30m Charges 6 TpA 1 PA -6)", 1},
    Piece{"Un Tonfa (BD +2 Res 2/3 Dif 0 Note: bonus de +1N à la parade)", 2},
    Piece{"Pour le team, un patrouilleur électrique Pontiac-Isuku Gold (places: 2 + 2 à l'arrière).", 1},
    Piece{"Vit 230 Acc +15 Ner +1 Tr +1 PM/RM 6/2 Aut 500", 1},
    Piece{"Lecteur de Puce Davies (identification des armes à feu) et DéDé (détecteur d'empreintes digitales "
          "électronique portable)",
          0},
};

}  // namespace

std::string equipmentText() {
  std::string text;
  for (const auto& piece : pieces) {
    text += piece.text;
    for (int i = 0; i < piece.lineEnds; ++i) text += lineMarker;
  }
  return text;
}

}  // namespace orvane
