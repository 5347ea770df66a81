#include <QAbstractItemView>
#include <QAccessible>
#include <QMetaProperty>

#include "sheet/frmFeuille.h"
#include "tests/screen/desktop_fixture.h"

namespace orvane::test {
namespace {

// All texts that anything of a window holds: properties, entries, what a screen reader is told.
class Texts {
 public:
  explicit Texts(const QWidget& window) {
    addProperties(window);
    for (const auto* object : window.findChildren<QObject*>()) addProperties(*object);
    for (const auto* view : window.findChildren<QAbstractItemView*>()) addEntries(*view->model());
    addSpoken(QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&window)));
  }

  // Whatever the widgets made of its blanks and line ends.
  bool hold(const QString& text) const {
    const QString sought = text.simplified();
    return std::any_of(texts_.begin(), texts_.end(),
                       [&](const auto& one) { return one.simplified().contains(sought); });
  }

 private:
  void addProperties(const QObject& object) {
    for (int i = 0; i < object.metaObject()->propertyCount(); ++i)
      texts_ << object.metaObject()->property(i).read(&object).toString();
    for (const auto& name : object.dynamicPropertyNames()) texts_ << object.property(name).toString();
  }
  void addEntries(const QAbstractItemModel& model) {
    for (int row = 0; row < model.rowCount(); ++row)
      for (int column = 0; column < model.columnCount(); ++column)
        for (const auto& value : model.itemData(model.index(row, column))) texts_ << value.toString();
  }
  void addSpoken(QAccessibleInterface* object) {
    if (!object || !object->isValid()) return;
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help})
      texts_ << object->text(kind);
    for (int i = 0; i < object->childCount(); ++i) addSpoken(object->child(i));
  }

  QStringList texts_;
};

class Secrecy : public DesktopFixture {
 protected:
  Secrecy() {
    start();
    character = &newCharacter();
    pickTab(*character, 5);
  }
  Texts shown() { return Texts(mainWindow()); }
  // Behind the number and the blank.
  QString powerName(int index) const { return QString::fromStdString(character->cmbMutaName.List(index)).mid(4); }
  QString description(int index) const {
    return QString::fromStdString(run.data().colMutation(character->cmbMutaName.ItemData(index))->sDescro);
  }
  // Answers both boxes of a draw and looks at all texts while the second one waits.
  void draw() {
    onceOpen<QMessageBox>([this](QMessageBox& box) {
      onceOpen<QMessageBox>([this](QMessageBox& told) {
        QTimer::singleShot(20, &told, [this, &told] {
          expectSecret("while the box waits");
          told.button(QMessageBox::Ok)->click();
        });
      });
      box.button(QMessageBox::Ok)->click();
    });
    click("cmdMutaRandomChoice");
  }
  void click(const char* button) {
    QTest::mouseClick(&find<QWidget>(*character, button), Qt::LeftButton);
    turn();
  }
  // With a name of its own for all that needs one.
  void makeValid() {
    pickTab(*character, 0);
    perform([&] { user.type(character->txtPerso, "Anne"); });
    pickTab(*character, 3);
    for (const auto& row : character->lvwSkillGen.rows())
      if (row->Text().find("préciser") != std::string::npos)
        perform([&] { user.edit(character->lvwSkillGen, row->Index(), "Cuisine"); });
    pickTab(*character, 5);
  }
  void expectSecret(const char* when) {
    const int drawn = character->cmbMutaName.ListIndex();
    const Texts texts = shown();
    EXPECT_FALSE(texts.hold(powerName(drawn))) << when;
    EXPECT_FALSE(texts.hold(description(drawn))) << when;
  }

  frmPersonnage* character = nullptr;
};

TEST_F(Secrecy, NothingOnTheScreenTellsADrawnPower) {
  perform([&] { user.pick(character->cmbMutaName, 1); });
  EXPECT_TRUE(shown().hold(powerName(1)) && shown().hold(description(1))) << "what is chosen is shown";
  draw();
  const int drawn = character->cmbMutaName.ListIndex();
  ASSERT_NE(drawn, 1) << "the draw gave what was chosen before: move the clock of this test";
  expectSecret("after the draw");
  for (int tab = 0; tab < 6; ++tab) {
    pickTab(*character, tab);
    expectSecret("on another tab");
  }
}

TEST_F(Secrecy, TheSheetDoesNotTellItEither) {
  makeValid();
  draw();
  QTimer answers;
  QObject::connect(&answers, &QTimer::timeout, [] {
    if (auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget())) box->buttons().front()->click();
  });
  answers.start(1);
  click("cmdPrintPreview");
  answers.stop();
  ASSERT_TRUE(globals().frmCurrentFeuille);
  expectSecret("beside the sheet");
  const auto name = powerName(character->cmbMutaName.ListIndex()).toStdString();
  for (const auto& print : globals().frmCurrentFeuille->log.printed)
    EXPECT_EQ(print.text.find(name), std::string::npos);
}

}  // namespace
}  // namespace orvane::test
