#include "screen/layouts.h"

#include <set>

#include <QAccessible>
#include <QRegularExpression>

#include "canvas/qt_text.h"
#include "tests/screen/every_form.h"

namespace orvane::test {
namespace {

class Layouts : public EveryForm {
 protected:
  Layouts() { start(); }
};

// What a layout adds for its own sake: pages and boxes around controls, and the inner parts of Qt's widgets.
bool belongsToLayout(const QWidget& widget) {
  static const QRegularExpression own("^(tab_|box_|qt_|Scroll(Left|Right)Button$)");
  return widget.objectName().isEmpty() || own.match(widget.objectName()).hasMatch();
}

std::set<QString> controlNames(const Form& form) {
  std::set<QString> names{toQt(form.Name())};
  for (auto* control : form.controls()) names.insert(widgetName(*control));
  return names;
}

TEST_F(Layouts, GiveEachControlItsWidgetAndHoldNoOther) {
  forEach([](Form& form, QWidget& window) {
    const auto names = controlNames(form);
    std::multiset<QString> shown;
    for (auto* widget : window.findChildren<QWidget*>())
      if (!belongsToLayout(*widget)) shown.insert(widget->objectName());
    for (const auto& name : shown)
      EXPECT_TRUE(names.contains(name)) << form.Name() << ": no control for the widget " << name.toStdString();
    for (const auto& name : names) EXPECT_LE(shown.count(name), 1U) << name.toStdString();
  });
}

TEST_F(Layouts, LackingAWidgetIsAnError) {
  Form& character = newCharacter();
  QWidget window;
  layOut(character, window);
  delete window.findChild<QWidget*>("txtAge");
  EXPECT_THROW(FormView(character, window, windows.door()), std::logic_error);
  auto* wrong = new QWidget(&window);
  wrong->setObjectName("txtAge");
  EXPECT_THROW(FormView(character, window, windows.door()), std::logic_error);
}

bool isNameless(QAccessibleInterface& object) {
  const auto state = object.state();
  return state.focusable && !state.invisible && object.text(QAccessible::Name).trimmed().isEmpty();
}

void walk(QAccessibleInterface* object, const std::string& path, std::vector<std::string>& nameless) {
  if (!object || !object->isValid()) return;
  const std::string here =
      path + "/" + (object->object() ? object->object()->objectName().toStdString() : std::string("part"));
  if (isNameless(*object)) nameless.push_back(here);
  for (int i = 0; i < object->childCount(); ++i) walk(object->child(i), here, nameless);
}

TEST_F(Layouts, NameEveryControlToScreenReaders) {
  forEachPage([](Form& form, QWidget& window) {
    std::vector<std::string> nameless;
    walk(QAccessible::queryAccessibleInterface(&window), form.Name(), nameless);
    EXPECT_EQ(nameless, std::vector<std::string>());
  });
}

TEST_F(Layouts, TellPoolsAndRowsInWords) {
  auto& character = newCharacter();
  for (const auto* pool : {"txtLangRest", "txtCaractRest", "txtContactRest", "txtSkillRest", "txtMartialArtRest"}) {
    const auto* box = QAccessible::queryAccessibleInterface(&find<QWidget>(character, pool));
    EXPECT_FALSE((box->text(QAccessible::Description) + box->text(QAccessible::Name)).isEmpty()) << pool;
  }
  auto* list = QAccessible::queryAccessibleInterface(&find<QWidget>(character, "lvwSkillGen"));
  ASSERT_TRUE(list->tableInterface());
  const auto first = toQt(character.lvwSkillGen.ListItems(1)->Text());
  EXPECT_EQ(list->tableInterface()->cellAt(0, 0)->text(QAccessible::Name),
            first + ", niveau " + toQt(character.lvwSkillGen.ListItems(1)->SubItems(1)));
  auto* arts = QAccessible::queryAccessibleInterface(&find<QWidget>(character, "lvwMartialArt"));
  EXPECT_EQ(arts->tableInterface()->cellAt(1, 0)->text(QAccessible::Name),
            toQt(character.lvwMartialArt.ListItems(1)->Text()) + ", Défensif, niveau 0");
}

}  // namespace
}  // namespace orvane::test
