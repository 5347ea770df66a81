#include "check/trial.h"

#include "editor/skill_rules.h"
#include "surface/failure.h"

namespace orvane {

Trial::Trial(ReferenceData data, Pictures& pictures)
    : data_(std::move(data)), desktop_(World{*this, clock_, settings_, files_, pictures}) {
  open();
}

void Trial::open() {
  window_ = std::make_shared<frmPersonnage>(globals_);
  globals_.frmCurrentPerso = window_.get();
  act([this] { window_->Show(); });
}

void Trial::apply(ReferenceData data) {
  if (isOpen()) act([this] { window_->cmbProfil.setListIndex(-1); });
  boxes_.clear();
  data_ = std::move(data);
  if (isOpen())
    act([this] { window_->cmbProfil.setListIndex(0); });
  else
    open();
}

void Trial::act(const std::function<void()>& act) {
  desktop_.perform(act);
  if (!failure_.empty()) throw Failure(failure_);
}

Answer Trial::MsgBox(const std::string&, BoxStyle style, const std::string&) {
  boxes_.push_back({style, window_->lvwSkillGen.Count()});
  return Answer::OK;
}

ReferenceData leastData() {
  ReferenceData data;
  data.colEthnie.Add({});
  clsProfil profil;
  profil.colSkillPro.Add(martialSkillKey);
  data.colProfil.Add(profil);
  data.colSkill.Add({.iKey = martialSkillKey, .sName = {}, .iStart = 0, .sDescro = {}});
  return data;
}

}  // namespace orvane
