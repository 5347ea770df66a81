#include "editor/frmContact.h"
#include "tests/support/run_fixture.h"

namespace orvane::test {
namespace {

class Contacts : public RunFixture {
 protected:
  Contacts() { user.pick(perso->SSTabPerso, frmPersonnage::Contacts); }

  void fill(Form& form, const std::string& name, const std::string& description) {
    auto& dialog = static_cast<frmContact&>(form);
    user.type(dialog.txtContactName, name);
    user.type(dialog.txtContactDescro, description);
    user.click(dialog.OKButton);
  }
  void create(const std::string& name, const std::string& description = "x") {
    dialogs.modal = [=, this](Form& form) { fill(form, name, description); };
    user.click(perso->cmdContactNew);
  }
  // Steps up, or down where negative, on the chosen value of the selected contact.
  void step(int times) {
    for (int i = 0; i < std::abs(times); ++i) user.click(perso->cmdContactModif(times < 0 ? 0 : 1));
  }
  void choose(int value) { user.click(perso->optContact(value)); }

  // The records in order, as "NAME INFO/REACT DESCRIPTION", and the pool.
  std::string records() const {
    std::string text;
    for (const auto& contact : perso->colContact)
      text += contact->sName + " " + std::to_string(contact->iInfo) + "/" + std::to_string(contact->iReact) + " " +
              contact->sDescro + "; ";
    return text + "reste " + perso->txtContactRest.Text();
  }
  // The list, the selected entry in brackets, and the boxes.
  std::string shown() const {
    std::string text;
    for (int i = 0; i < perso->lstContact.ListCount(); ++i) {
      const auto& name = perso->lstContact.List(i);
      text += (i == perso->lstContact.ListIndex() ? "[" + name + "]" : name) + " ";
    }
    return text + "| " + std::to_string(perso->iContactSel) + " " + perso->txtContact(0).Text() + "/" +
           perso->txtContact(1).Text() + " " + perso->txtContactDescro.Text();
  }

  frmPersonnage* perso = open();
};

TEST_F(Contacts, TheRecordFollowsOnceTheArrowIsLeft) {
  create("Anne");
  create("Bob");
  user.pick(perso->lstContact, "Anne");
  step(2);
  EXPECT_EQ(records() + shown(), "Anne 0/0 x; Bob 0/0 x; reste 11[Anne] Bob | 1 2/0 x");
  choose(1);
  step(1);
  user.pick(perso->lstContact, "Bob");
  EXPECT_EQ(records(), "Anne 2/1 x; Bob 0/0 x; reste 10") << "of the contact that was selected";
  choose(0);
  step(2);
  create("Carl");
  EXPECT_EQ(records(), "Anne 2/1 x; Bob 2/0 x; Carl 0/0 x; reste 7");
  step(2);
  step(-1);
  EXPECT_EQ(records(), "Anne 2/1 x; Bob 2/0 x; Carl 2/0 x; reste 6") << "the other arrow too";
}

TEST_F(Contacts, DeletingGivesAllPointsBackAndSelectsTheFirst) {
  create("Zoe", "z");
  create("Anne", "a");
  create("Émile", "é");
  user.pick(perso->lstContact, "Anne");
  step(3);
  choose(1);
  step(2);
  EXPECT_EQ(shown(), "[Anne] Émile Zoe | 2 3/2 a");
  user.click(perso->cmdContactDel);
  EXPECT_EQ(shown(), "[Émile] Zoe | 2 0/0 é");
  EXPECT_EQ(records(), "Zoe 0/0 z; Émile 0/0 é; reste 14") << "also what the arrow had not saved before the click";
}

TEST_F(Contacts, DeletingTheLastOneLeavesNoneSelected) {
  create("Anne", "Au greffe.");
  step(2);
  user.click(perso->cmdContactDel);
  EXPECT_EQ(records(), "reste 14");
  EXPECT_EQ(shown(), "| 0 2/0 ") << "the value boxes keep their numbers";
  EXPECT_FALSE(perso->cmdContactDel.Enabled());
  user.focus(perso->txtContactDescro);
  user.focus(perso->cmdContactNew);
  EXPECT_EQ(boxes(), "");
  create("Bob");
  EXPECT_EQ(shown(), "[Bob] | 1 0/0 x");
}

TEST_F(Contacts, TheDialogRefusesAndStaysOpen) {
  create("Anne", "première");
  dialogs.modal = [&](Form& form) {
    EXPECT_EQ(form.Caption(), "Nouveau contact");
    for (const auto& [name, description] :
         {std::pair{"", "x"}, {"  ", ""}, {"Bob", ""}, {"Bob", "   "}, {"Anne", "x"}}) {
      fill(form, name, description);
      EXPECT_EQ(static_cast<frmContact&>(form).txtContactName.Text(), name);
      EXPECT_TRUE(form.isLoaded()) << name;
    }
    fill(form, " anne", "x");
  };
  user.click(perso->cmdContactNew);
  const std::string noName = "64|Tessaly|Le contact doit avoir un nom !\n";
  const std::string noDescription = "64|Tessaly|Le contact doit être décrit !\n";
  EXPECT_EQ(boxes(), noName + noName + noDescription + noDescription + "64|Tessaly|Ce contact existe déjà.\n");
  create("anne");
  create(" Anne");
  EXPECT_EQ(records(), "Anne 0/0 première;  anne 0/0 x; anne 0/0 x;  Anne 0/0 x; reste 14") << "case and blanks count";
  user.pick(perso->lstContact, "anne");
  EXPECT_EQ(perso->iContactSel, 3);
}

TEST_F(Contacts, AChangedNameKeepsItsPlaceAndTheTextSurvives) {
  create("Bob", "b");
  create("Carl", "c");
  user.pick(perso->lstContact, "Bob");
  step(1);
  dialogs.modal = [&](Form& form) { fill(form, "Zoe", "z"); };
  user.click(perso->cmdContactChange);
  EXPECT_EQ(shown(), "[Zoe] Carl | 1 1/0 z");
  user.focus(perso->txtContactDescro);
  user.focus(perso->cmdContactNew);
  EXPECT_EQ(records(), "Zoe 1/0 z; Carl 0/0 c; reste 13") << "the description box left behind nothing old";
  dialogs.modal = [&](Form& form) {
    auto& dialog = static_cast<frmContact&>(form);
    EXPECT_EQ(form.Caption() + "|" + dialog.txtContactName.Text() + "|" + dialog.txtContactDescro.Text(),
              "modification de contact|Zoe|z");
    fill(form, "Carl", "z");
    EXPECT_TRUE(form.isLoaded());
    fill(form, "Zoe", "sous le même nom");
  };
  user.click(perso->cmdContactChange);
  EXPECT_EQ(boxes(), "64|Tessaly|Ce contact existe déjà.\n");
  EXPECT_EQ(records(), "Zoe 1/0 sous le même nom; Carl 0/0 c; reste 13");
}

TEST_F(Contacts, CancellingANewOneLeavesNoneSelected) {
  create("Anne", "a");
  step(1);
  dialogs.modal = [&](Form& form) { user.click(static_cast<frmContact&>(form).CancelButton); };
  user.click(perso->cmdContactNew);
  EXPECT_EQ(shown(), "Anne | 0 1/0 a") << "the boxes still show the contact of before";
  user.click(perso->cmdContactChange);
  step(1);
  user.click(perso->cmdContactDel);
  user.focus(perso->txtContactDescro);
  user.focus(perso->lstContact);
  const std::string none = "48|Tessaly|Pas de contact à modifier.\n";
  EXPECT_EQ(boxes(), none + none);
  EXPECT_EQ(records(), "Anne 1/0 a; reste 13");
  user.pick(perso->lstContact, "Anne");
  EXPECT_EQ(shown(), "[Anne] | 1 1/0 a");
}

TEST_F(Contacts, WithoutPointsNoneIsMadeButStepsDownFreeSome) {
  create("Anne");
  step(1);
  perso->txtContactRest.setText("0");
  user.click(perso->cmdContactNew);
  EXPECT_EQ(perso->txtAllDescro.Text(), "!!! Plus de points de contact disponible !!!");
  EXPECT_EQ(shown(), "[Anne] | 1 1/0 x");
  step(-1);
  create("Dora");
  EXPECT_EQ(records(), "Anne 0/0 x; Dora 0/0 x; reste 1");
}

TEST_F(Contacts, AListThatDisagreesWithTheRecordsIsTold) {
  create("Anne");
  create("Bob");
  perso->colContact(1)->sName = "Anna";
  user.pick(perso->lstContact, "Anne");
  EXPECT_EQ(boxes(), "16|Tessaly|Problème de synchronisation entre la collection et la liste des contacts.\n");
  step(1);
  user.pick(perso->lstContact, "Bob");
  EXPECT_EQ(records(), "Anna 0/0 x; Bob 0/0 x; reste 13") << "no record is touched meanwhile";
  perso->colContact.Remove(1);
  perso->iContactSel = 1;
  user.click(perso->cmdContactDel);
  EXPECT_EQ(boxes(),
            "16|Tessaly|Problème de synchronisation entre la liste et la collection.\n"
            "16|Tessaly|Problème de synchronisation entre la collection et la liste des contacts.\n");
  EXPECT_EQ(records(), "reste 13") << "and the deletion went on";
}

TEST_F(Contacts, TheDescriptionIsKeptWhenItsBoxIsLeft) {
  create("Anne", "a");
  create("Bob", "b");
  perso->txtContactDescro.setText("c");
  user.focus(perso->txtContactDescro);
  user.pick(perso->lstContact, "Anne");
  EXPECT_EQ(records(), "Anne 0/0 a; Bob 0/0 c; reste 14");
}

TEST_F(Contacts, AValueWithoutAPriceFails) {
  create("Anne");
  perso->txtContact(0).setText("4");
  step(-1);
  EXPECT_EQ(boxes(), "failure|Un contact de valeur 4 n'a pas de prix.\n");
  EXPECT_EQ(perso->txtContactRest.Text(), "14");
}

}  // namespace
}  // namespace orvane::test
