#include <array>
#include <sys/stat.h>

#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
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
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      about = box.windowTitle().toStdString() + "|" + box.text().toStdString() + "|" + std::to_string(box.icon());
      for (auto* button : box.buttons())
        about += "|" + button->text().toStdString() + (button == box.defaultButton() ? "*" : "");
      QTest::mouseClick(box.button(press), Qt::LeftButton);
    });
    const Answer answer = dialogs.MsgBox("<b>un</b>\r\ndeux", style, "Tessaly");
    return about + " -> " + std::to_string(static_cast<int>(answer));
  }
};

TEST_F(ScreenBoxes, HaveTheIconAndButtonsOfTheirStyle) {
  const std::string text = "Tessaly|<b>un</b>\ndeux|";
  EXPECT_EQ(shown(BoxStyle::Plain, QMessageBox::Ok), text + "0|OK -> 1");
  EXPECT_EQ(shown(BoxStyle::Information, QMessageBox::Ok), text + "1|OK -> 1");
  EXPECT_EQ(shown(BoxStyle::Exclamation, QMessageBox::Ok), text + "2|OK -> 1");
  EXPECT_EQ(shown(BoxStyle::Critical, QMessageBox::Ok), text + "3|OK -> 1");
  EXPECT_EQ(shown(BoxStyle::OkCancel, QMessageBox::Cancel), text + "4|OK|Annuler -> 2");
  EXPECT_EQ(shown(BoxStyle::YesNo, QMessageBox::Yes), text + "4|&Oui|&Non* -> 6");
  EXPECT_EQ(shown(BoxStyle::YesNo, QMessageBox::No), text + "4|&Oui|&Non* -> 7");
}

TEST_F(ScreenBoxes, TheContactDialogBlocksAndTakesEnterAndEscape) {
  auto& character = newCharacter();
  pickTab(character, 2);
  const auto contactsAfter = [&](const std::function<void(DialogWindow&)>& deed) {
    onceOpen<DialogWindow>(deed);
    QTest::mouseClick(&find<QPushButton>(character, "cmdContactNew"), Qt::LeftButton);
    turn();
    EXPECT_FALSE(run.desktop().modal());
    EXPECT_FALSE(QGuiApplication::overrideCursor());
    return find<QListWidget>(character, "lstContact").count();
  };
  const auto fillIn = [&](DialogWindow& dialog) {
    EXPECT_EQ(run.desktop().modal()->Name(), "frmContact");
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
    // The windows behind take nothing.
    EXPECT_FALSE(windows.door().act([&](User& own) { own.focus(character.txtJoueur); }));
    auto* name = dialog.findChild<QLineEdit*>("txtContactName");
    name->setFocus();
    QTest::keyClicks(name, "Max");
    QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtContactDescro"), "Indic");
    QTest::keyClick(name, Qt::Key_Return);
  };
  EXPECT_EQ(contactsAfter(fillIn), 1);
  EXPECT_EQ(contactsAfter([](DialogWindow& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }), 1);
  EXPECT_EQ(contactsAfter([](DialogWindow& dialog) { dialog.QWidget::close(); }), 1);
}

// HOME, XDG_CONFIG_HOME, and where the settings then lie below the folder of the test; "" for nowhere.
TEST(SettingsOnDisk, AreKeptInAFolderOfTheUsersOrNowhere) {
  const QTemporaryDir folder;
  const QByteArray path = folder.path().toUtf8();
  const std::string former[] = {qgetenv("HOME").toStdString(), qgetenv("XDG_CONFIG_HOME").toStdString()};
  for (const auto& [home, configuration, kept] :
       std::initializer_list<std::array<QByteArray, 3>>{{path, path + "/own", "/own"},
                                                        {path, "relative", "/.config"},
                                                        {path, "", "/.config"},
                                                        {"", "", ""},
                                                        {"", "relative", ""},
                                                        {"/", "", ""},
                                                        {".", "", ""},
                                                        {path + "/absent", "", ""}}) {
    qputenv("HOME", home);
    qputenv("XDG_CONFIG_HOME", configuration);
    EXPECT_EQ(settingsFolder(), kept.isEmpty() ? QString() : QString(path + kept)) << home.toStdString();
    QtSettings().SaveSetting("Tessaly", "Settings", "MainLeft", "123.5");
    EXPECT_EQ(QtSettings().GetSetting("Tessaly", "Settings", "MainLeft", "1000"), kept.isEmpty() ? "1000" : "123.5");
  }
  qputenv("HOME", former[0].c_str());
  qputenv("XDG_CONFIG_HOME", former[1].c_str());
}

// By a lock that its program left behind, or by a pipe in the place of the store.
TEST(SettingsOnDisk, HoldNobodyUp) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("Tessaly.ini");
  ASSERT_EQ(::mkfifo(qPrintable(file), 0600), 0);
  ASSERT_TRUE(QDir().mkdir(file + ".lock"));
  QtSettings settings(folder.path());
  EXPECT_EQ(settings.GetSetting("Tessaly", "Settings", "MainTop", "1000"), "1000");
  for (const char* key : {"MainLeft", "MainTop"}) settings.SaveSetting("Tessaly", "Settings", key, "15");
  for (const char* key : {"MainLeft", "MainTop"})
    EXPECT_EQ(settings.GetSetting("Tessaly", "Settings", key, "1000"), "15");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("Tessaly.ini"));
}

}  // namespace
}  // namespace orvane::test
