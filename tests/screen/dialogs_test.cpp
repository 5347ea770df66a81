#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>

#include "screen/qt_settings.h"
#include "screen/screen_dialogs.h"
#include "tests/screen/desktop_fixture.h"

namespace orvane::test {
namespace {

class ScreenBoxes : public DesktopFixture {
 protected:
  ScreenBoxes() { start(); }
  // Shows a box, presses a button of it, and tells all about it.
  std::string shown(BoxStyle style, QMessageBox::StandardButton press) {
    std::string about;
    onceOpen<QMessageBox>([&](QMessageBox& box) {
      about = box.windowTitle().toStdString() + "|" + box.text().toStdString() + "|" + std::to_string(box.icon());
      for (auto* button : box.buttons()) about += "|" + button->text().toStdString();
      QTest::mouseClick(box.button(press), Qt::LeftButton);
    });
    const Answer answer = dialogs.MsgBox("<b>un</b>\r\ndeux", style, "Tessaly");
    return about + " -> " + std::to_string(static_cast<int>(answer));
  }
  frmPersonnage& onContacts() {
    auto& character = newCharacter();
    windows.acts().perform([&](User& user) { user.pick(character.SSTabPerso, "Contacts"); });
    turn();
    return character;
  }
};

TEST_F(ScreenBoxes, HaveTheIconAndButtonsOfTheirStyle) {
  const std::string text = "Tessaly|<b>un</b>\ndeux|";
  EXPECT_EQ(shown(BoxStyle::Plain, QMessageBox::Ok), text + "0|OK -> 1");
  EXPECT_EQ(shown(BoxStyle::Information, QMessageBox::Ok), text + "1|OK -> 1");
  EXPECT_EQ(shown(BoxStyle::Exclamation, QMessageBox::Ok), text + "2|OK -> 1");
  EXPECT_EQ(shown(BoxStyle::Critical, QMessageBox::Ok), text + "3|OK -> 1");
  EXPECT_EQ(shown(BoxStyle::OkCancel, QMessageBox::Cancel), text + "4|OK|Annuler -> 2");
  EXPECT_EQ(shown(BoxStyle::YesNo, QMessageBox::Yes), text + "4|&Oui|&Non -> 6");
  EXPECT_EQ(shown(BoxStyle::YesNo, QMessageBox::No), text + "4|&Oui|&Non -> 7");
}

TEST_F(ScreenBoxes, TheContactDialogBlocksAndTakesEnterAndEscape) {
  auto& character = onContacts();
  auto& newContact = find<QPushButton>(character, "cmdContactNew");
  onceOpen<DialogWindow>([&](DialogWindow& dialog) {
    EXPECT_EQ(run.desktop().modal()->Name(), "frmContact");
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
    // The windows behind take nothing.
    EXPECT_FALSE(windows.acts().perform([&](User& user) { user.focus(character.txtJoueur); }));
    auto* name = dialog.findChild<QLineEdit*>("txtContactName");
    name->setFocus();
    QTest::keyClicks(name, "Max");
    QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtContactDescro"), "Indic");
    QTest::keyClick(name, Qt::Key_Return);
  });
  QTest::mouseClick(&newContact, Qt::LeftButton);
  settle();
  EXPECT_FALSE(QGuiApplication::overrideCursor());
  EXPECT_EQ(find<QListWidget>(character, "lstContact").count(), 1);
  onceOpen<DialogWindow>([](DialogWindow& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  QTest::mouseClick(&newContact, Qt::LeftButton);
  settle();
  EXPECT_EQ(find<QListWidget>(character, "lstContact").count(), 1);
  onceOpen<DialogWindow>([](DialogWindow& dialog) { dialog.QWidget::close(); });
  QTest::mouseClick(&newContact, Qt::LeftButton);
  settle();
  EXPECT_FALSE(run.desktop().modal());
}

TEST_F(ScreenBoxes, AboutIsTheSplashWithAButton) {
  onceOpen<DialogWindow>([&](DialogWindow& about) {
    EXPECT_EQ(about.form().Name(), "frmSplash");
    auto* close = about.findChild<QPushButton*>("cmdClose");
    EXPECT_TRUE(close->isVisible());
    QTest::mouseClick(close, Qt::LeftButton);
  });
  menu("mnuHelpAbout");
  EXPECT_FALSE(run.desktop().modal());
}

TEST(SettingsOnDisk, KeepTextsBetweenRuns) {
  needApplication();
  const QTemporaryDir folder;
  EXPECT_EQ(QtSettings(folder.path()).GetSetting("Tessaly", "Settings", "MainLeft", "1000"), "1000");
  QtSettings(folder.path()).SaveSetting("Tessaly", "Settings", "MainLeft", "123.5");
  EXPECT_EQ(QtSettings(folder.path()).GetSetting("Tessaly", "Settings", "MainLeft", "1000"), "123.5");
}

}  // namespace
}  // namespace orvane::test
