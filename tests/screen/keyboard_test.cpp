#include <QLabel>
#include <QMdiArea>
#include <QTabBar>
#include <QTreeWidget>

#include "tests/screen/desktop_fixture.h"

namespace orvane::test {
namespace {

class Keyboard : public DesktopFixture {
 protected:
  static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    turn();
  }
  static std::string focus() {
    const auto* widget = QApplication::focusWidget();
    if (!widget) return "nothing";
    return (qobject_cast<const QTabBar*>(widget) ? widget->parent() : widget)->objectName().toStdString();
  }
  // The names of all that the key reaches, from the focus back to it.
  static std::vector<std::string> round(Qt::Key key) {
    std::vector<std::string> names{focus()};
    while (names.size() < 60) {
      press(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
      if (focus() == names.front()) break;
      names.push_back(focus());
    }
    return names;
  }
};

std::string joined(const std::vector<std::string>& names) {
  std::string all;
  for (const auto& name : names) all += (all.empty() ? "" : " ") + name;
  return all;
}

TEST_F(Keyboard, TabFollowsReadingOrderOnEveryTab) {
  const char* const orders[] = {
      "txtPerso cmbSexe txtAge txtYeux txtTaille txtPoids txtCheveux cmbDistrict cmbEthnie cmbProfil cmbGrade "
      "cmbVehicle txtLangRest optLang_0 txtLang_0 optLang_1 txtLang_1 optLang_2 cmdLangModif_0 cmdLangModif_1 "
      "txtOtherLang txtLang_2",
      ("optCaract_0 optCaract_1 optCaract_2 optCaract_3 optCaract_4 optCaract_5 optCaract_6 optCaract_7 "
       "cmdCaractModif_0 cmdCaractModif_1 lblSecondCaract_0 lblSecondCaract_1 lblSecondCaract_2"),
      "lstContact cmdContactNew optContact_0 optContact_1 txtContactDescro",
      "lvwSkillGen txtSkillRest cmdSkillGenModif_0 cmdSkillGenModif_1",
      "lvwMartialArt cmdMartialArtModif_0 cmdMartialArtModif_1 lvwMartialTechnic",
      "chkMuta cmbMutaCateg cmbMutaName cmdMutaRandomChoice txtParticulSign"};
  start("15000", "10500");
  auto& character = newCharacter();
  for (int tab = 0; tab < 6; ++tab) {
    pickTab(character, tab);
    find<QWidget>(character, "txtJoueur").setFocus(Qt::TabFocusReason);
    auto names = round(Qt::Key_Tab);
    EXPECT_EQ(joined(names),
              "txtJoueur SSTabPerso " + std::string(orders[tab]) + " txtAllDescro cmdPrintPreview cmdHelp cmdClose");
    std::reverse(names.begin() + 1, names.end());
    EXPECT_EQ(joined(round(Qt::Key_Backtab)), joined(names));
  }
}

// A button that a mnemonic presses is seen to go down before it clicks.
TEST_F(Keyboard, MnemonicsPressTheButtonsOfTheActiveWindowOnly) {
  start("15000", "10500");
  auto& first = newCharacter();
  auto& second = newCharacter();
  const auto activeSoon = [this](const std::string& name) {
    return QTest::qWaitFor([&] { return run.desktop().activeChild()->Name() == name; }, 2000);
  };
  find<QWidget>(second, "txtPerso").setFocus();
  press(Qt::Key_A, Qt::AltModifier);
  EXPECT_TRUE(activeSoon("FrmReadMe"));
  press(Qt::Key_Escape);
  turn();
  ASSERT_EQ(run.desktop().activeChild(), &second);
  find<QWidget>(second, "txtPerso").setFocus();
  press(Qt::Key_C, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return run.desktop().activeChild() == &first; }, 2000));
  EXPECT_EQ(run.desktop().activationOrder().size(), 1U);
}

// Qt knows keys of its own for it, and a letter of a disabled button would fall through to the one that closes.
TEST_F(Keyboard, NoKeyClosesAWindowByAccident) {
  start("15000", "10500");
  auto& character = newCharacter();
  pickTab(character, 2);
  find<QWidget>(character, "lstContact").setFocus();
  press(Qt::Key_W, Qt::ControlModifier);
  press(Qt::Key_F4, Qt::ControlModifier);
  press(Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(focus(), "optContact_0");
  QTest::qWait(200);
  EXPECT_TRUE(character.isLoaded());
}

// On the next tab, in another window, or in another program.
TEST_F(Keyboard, ANameThatIsBeingEditedCountsWhateverTakesItAway) {
  start("15000", "10500");
  auto& other = newCharacter();
  auto& character = newCharacter();
  auto& list = find<QTreeWidget>(character, "lvwSkillGen");
  const int row = list.indexOfTopLevelItem(list.findItems("Connaissance", Qt::MatchStartsWith).value(0)) + 1;
  ASSERT_GT(row, 0);
  int number = 0;
  const std::function<void()> leavings[] = {
      [&] { press(Qt::Key_PageDown, Qt::ControlModifier); }, [&] { press(Qt::Key_Tab, Qt::ControlModifier); },
      [&] { QTest::mouseClick(&find<QWidget>(other, "txtJoueur"), Qt::LeftButton); }};
  for (const auto& leave : leavings) {
    pickTab(character, 3);
    perform([&] { user.row(character.lvwSkillGen, row); });
    list.setFocus(Qt::TabFocusReason);
    press(Qt::Key_F2);
    const std::string name = "Chant " + std::to_string(++number);
    QTest::keyClicks(QApplication::focusWidget(), name.c_str());
    leave();
    turn();
    EXPECT_EQ(character.lvwSkillGen.ListItems(row)->Text(), name);
    mainWindow().area().setActiveSubWindow(windows.childOf(character));
    turn();
    EXPECT_EQ(focus(), number == 1 ? "lvwMartialArt" : "lvwSkillGen");
  }
}

// As the arrow buttons do, and the form knows of it by the same events.
TEST_F(Keyboard, PlusAndMinusStepWhatHasTheFocus) {
  start("15000", "10500");
  auto& character = newCharacter();
  const auto after = [&](int tab, const char* name, const std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>>& keys,
                         const std::function<std::string()>& value) {
    pickTab(character, tab);
    find<QWidget>(character, name).setFocus(Qt::TabFocusReason);
    for (const auto& [key, modifiers] : keys) press(key, modifiers);
    EXPECT_EQ(focus(), name);
    return value();
  };
  const auto plus = std::pair(Qt::Key_Plus, Qt::KeyboardModifiers(Qt::NoModifier));
  const auto minus = std::pair(Qt::Key_Minus, Qt::KeyboardModifiers(Qt::NoModifier));
  const auto right = std::pair(Qt::Key_Right, Qt::KeyboardModifiers(Qt::ControlModifier));
  const auto left = std::pair(Qt::Key_Left, Qt::KeyboardModifiers(Qt::ControlModifier));
  EXPECT_EQ(after(0, "optLang_1", {plus, right}, [&] { return character.txtLang(1).Text(); }), "2");
  EXPECT_EQ(after(1, "optCaract_2", {minus, plus, left}, [&] { return character.txtCaract(2).Text(); }), "-1");
  auto& skills = find<QTreeWidget>(character, "lvwSkillGen");
  const auto stepped = character.lvwSkillGen.ListItems(1);
  const double before = std::stod(stepped->SubItems(1));
  skills.scrollToBottom();
  EXPECT_EQ(after(3, "lvwSkillGen", {plus}, [&] { return stepped->SubItems(1); }),
            std::to_string(static_cast<int>(before) + 1));
  EXPECT_TRUE(skills.viewport()->rect().contains(skills.visualItemRect(skills.topLevelItem(0)).center()));
}

TEST_F(Keyboard, CtrlTabGoesRoundTheWindowsBothWays) {
  start("15000", "10500");
  Form* opened[] = {&newCharacter(), &newCharacter(), &newCharacter()};
  const auto back = Qt::ControlModifier | Qt::ShiftModifier;
  const std::pair<Qt::KeyboardModifiers, int> steps[] = {
      {Qt::ControlModifier, 0}, {Qt::ControlModifier, 1}, {back, 0}, {back, 2}};
  for (const auto& [modifiers, active] : steps) {
    QTest::keyClick(&mainWindow(), Qt::Key_Tab, modifiers);
    turn();
    EXPECT_EQ(run.desktop().activeChild(), opened[active]);
  }
}

TEST_F(Keyboard, LabelsThatTellSomethingAreReachedToo) {
  start("15000", "10500");
  auto& character = newCharacter();
  pickTab(character, 1);
  auto& reaction = find<QLabel>(character, "lblSecondCaract_1");
  reaction.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(reaction.font().underline());
  const std::string before = character.txtAllDescro.Text();
  press(Qt::Key_Space);
  EXPECT_NE(character.txtAllDescro.Text(), before);
  press(Qt::Key_Tab);
  EXPECT_FALSE(reaction.font().underline());
}

TEST_F(Keyboard, EnterAndEscapeCloseAbout) {
  start("15000", "10500");
  for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
    onceOpen<DialogWindow>([&](DialogWindow& about) {
      EXPECT_LE((about.geometry().center() - about.screen()->availableGeometry().center()).manhattanLength(), 2);
      QTest::keyClick(&about, key);
    });
    menu("mnuHelpAbout");
    turn();
    EXPECT_FALSE(run.desktop().modal());
  }
}

TEST_F(Keyboard, TheFocusComesIntoSight) {
  start("6500", "6500");
  auto& character = newCharacter();
  mainWindow().resize(433, 433);
  find<QWidget>(character, "txtJoueur").setFocus(Qt::TabFocusReason);
  const auto* sight = mainWindow().area().viewport();
  for (const auto& name : round(Qt::Key_Tab)) {
    auto* widget = QApplication::focusWidget();
    const QRect place(widget->mapTo(sight, QPoint()), widget->size());
    EXPECT_TRUE(sight->rect().contains(place.topLeft())) << name;
    press(Qt::Key_Tab);
  }
}

}  // namespace
}  // namespace orvane::test
