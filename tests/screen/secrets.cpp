#include "tests/screen/secrets.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QMetaProperty>

#include "canvas/qt_text.h"
#include "editor/frmPersonnage.h"
#include "tests/screen/likeness.h"

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

}  // namespace

std::string toldSecrets(const Desktop& desktop, const Windows& windows) {
  std::string told;
  for (const auto& form : desktop.Forms()) {
    const auto* perso = dynamic_cast<const frmPersonnage*>(form.get());
    const bool drawn = perso && perso->cmbMutaName.ListIndex() >= 0 && !perso->cmbMutaName.Visible();
    if (!drawn) continue;
    const QString name = toQt(perso->cmbMutaName.Text()).mid(4);  // behind the number and the blank
    const auto look = [&](const QWidget& window) {
      const Texts texts(window);
      if (texts.hold(name) || texts.hold(toQt(perso->selectedPower()->sDescro))) told += name.toStdString() + "\n";
      return texts.hold(toQt(perso->txtSkillRest.Text()));
    };
    EXPECT_TRUE(look(*windowOf(windows, *form))) << "all other texts can be found";
    if (const auto* box = QApplication::activeModalWidget()) look(*box);
  }
  return told;
}

}  // namespace orvane::test
