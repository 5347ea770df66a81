#include <QLineEdit>
#include <QTabBar>
#include <QTreeWidget>

#include "tests/screen/desktop_fixture.h"

namespace orvane::test {
namespace {

// What the program says of itself beyond its captions, to eyes and to screen readers.
class Telling : public DesktopFixture {
 protected:
  frmPersonnage& started() {
    start("15000", "10500");
    return newCharacter();
  }

  frmPersonnage& character = started();
};

TEST_F(Telling, EachTabWithAFaultBearsItsMark) {
  onceOpen<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); });
  perform([&] { user.click(character.cmdPrintPreview); });
  auto& bar = *find<QTabWidget>(character, "SSTabPerso").tabBar();
  EXPECT_EQ(bar.tabToolTip(0), "contrainte essentielle non respectée");
  EXPECT_EQ(bar.accessibleTabName(0), "Etat Civil / Langues, contrainte essentielle non respectée");
  EXPECT_EQ(bar.tabToolTip(1), "contrainte accessoire non respectée");
  const auto outline = [&](int tab) { return bar.tabIcon(tab).pixmap(32).toImage().createAlphaMask(); };
  EXPECT_NE(outline(0), outline(1)) << "told apart by their shape";
  EXPECT_EQ(outline(1), outline(2));
  EXPECT_TRUE(bar.tabIcon(5).isNull());
  EXPECT_EQ(bar.accessibleTabName(5), "");
}

TEST_F(Telling, HintsSayWhatAStepCostsOrWhyThereIsNone) {
  const auto hint = [&](const char* name) { return find<QWidget>(character, name).toolTip(); };
  EXPECT_EQ(hint("txtLangRest"), "0 à 5, 1 point par degré");
  EXPECT_EQ(hint("cmdCaractModif_1"), "Un point de plus, -2 à 3, 1 point par pas");
  EXPECT_EQ(hint("cmdContactModif_1"), "Un point de plus. Choisir d'abord un contact");
  const auto* bar = find<QTabWidget>(character, "SSTabPerso").tabBar();
  EXPECT_EQ(bar->tabToolTip(4), "");
  perform([&] { user.pick(character.cmbProfil, 4); });
  EXPECT_EQ(bar->tabToolTip(4), "Il faut un niveau dans la compétence Arts martiaux");
}

TEST_F(Telling, AStepSaysItsValueWhatIsLeftOrThatItWasRefused) {
  auto& more = find<QWidget>(character, "cmdLangModif_1");
  click(more);
  EXPECT_EQ(more.accessibleDescription(), "Anglais 1, reste 8");
  for (int i = 0; i < 5; ++i) click(more);
  EXPECT_EQ(more.accessibleDescription(), "Refusé : Anglais 5, reste 4 (0 à 5, 1 point par degré)");
}

TEST_F(Telling, ANameInAListTakesNoMoreThanItKeeps) {
  pickTab(character, 3);
  auto& list = find<QTreeWidget>(character, "lvwSkillGen");
  auto* row = list.findItems("Connaissance", Qt::MatchStartsWith).value(0);
  ASSERT_TRUE(row);
  perform([&] { user.row(character.lvwSkillGen, list.indexOfTopLevelItem(row) + 1); });
  list.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&list, Qt::Key_F2);
  auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_TRUE(editor);
  QTest::keyClicks(editor, QString(30, 'n'));
  EXPECT_EQ(editor->text(), QString(25, 'n'));
  QTest::keyClick(editor, Qt::Key_Return);
  turn();
  EXPECT_TRUE(QTest::qWaitFor([&] { return row->text(0) == QString(25, 'n'); }));
}

}  // namespace
}  // namespace orvane::test
