#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QStyleOption>
#include <QTabBar>
#include <QTreeWidget>

#include "tests/screen/every_form.h"

namespace orvane::test {
namespace {

// Whether all that is to be read fits its widget, with the fonts that users choose. The scale factor is that of the
// environment: the suite runs these tests with several.
class Fitting : public EveryForm, public ::testing::WithParamInterface<double> {
 protected:
  Fitting() {
    former_ = QApplication::font();
    QFont larger = former_;
    larger.setPointSizeF(former_.pointSizeF() * GetParam());
    QApplication::setFont(larger);
    start();
  }
  ~Fitting() override { QApplication::setFont(former_); }

 private:
  QFont former_;
};

INSTANTIATE_TEST_SUITE_P(Fonts, Fitting, ::testing::Values(1.0, 1.25, 1.6));

std::string named(const QWidget& widget) { return widget.objectName().toStdString(); }

void expectRoom(const QWidget& widget, const QSize& needed) {
  EXPECT_GE(widget.width(), needed.width()) << named(widget);
  EXPECT_GE(widget.height(), needed.height()) << named(widget);
}

void checkLabel(const QLabel& label) {
  if (label.wordWrap())
    expectRoom(label, QSize(0, label.heightForWidth(label.width())));
  else
    expectRoom(label, label.sizeHint());
}

void checkCombo(const QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  option.editable = combo.isEditable();
  const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
  for (int i = 0; i < combo.count(); ++i)
    EXPECT_GE(field.width(), combo.fontMetrics().horizontalAdvance(combo.itemText(i)))
        << named(combo) << " " << combo.itemText(i).toStdString();
}

void checkLine(const QLineEdit& edit) {
  constexpr int margins = 8;
  EXPECT_GE(edit.width(), edit.fontMetrics().horizontalAdvance(edit.text()) + margins) << named(edit);
  EXPECT_GE(edit.height(), edit.fontMetrics().height() + 4) << named(edit);
}

void checkColumns(const QTreeWidget& tree) {
  for (int column = 0; column < tree.columnCount(); ++column) {
    if (tree.isColumnHidden(column)) continue;
    for (int row = 0; row < tree.topLevelItemCount(); ++row) {
      const auto* item = tree.topLevelItem(row);
      const QFontMetrics measures(item->data(column, Qt::FontRole).value<QFont>());
      EXPECT_GE(tree.columnWidth(column), measures.horizontalAdvance(item->text(column)) + 6)
          << named(tree) << " " << item->text(column).toStdString();
    }
  }
}

void check(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) checkLabel(*label);
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) checkCombo(*combo);
  if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) checkLine(*edit);
  if (const auto* tree = qobject_cast<const QTreeWidget*>(&widget)) checkColumns(*tree);
  if (qobject_cast<const QAbstractButton*>(&widget)) expectRoom(widget, widget.minimumSizeHint());
  if (qobject_cast<const QTabBar*>(&widget)) expectRoom(widget, QSize(widget.sizeHint().width(), 0));
}

bool isPartOfQt(const QWidget& widget) {
  return widget.objectName().startsWith("qt_") && !qobject_cast<const QTabBar*>(&widget);
}

TEST_P(Fitting, NoTextIsClipped) {
  forEachPage([](Form&, QWidget& window) {
    for (const auto* widget : window.findChildren<QWidget*>())
      if (widget->isVisibleTo(&window) && !isPartOfQt(*widget)) check(*widget);
  });
}

TEST_F(EveryForm, FitsASmallScreen) {
  start();
  const QSize menuAndFrames(0, 30);
  forEach([&](Form& form, QWidget& window) {
    if (form.Name() == "frmFeuille") return;  // takes what there is
    if (auto* child = windows.childOf(form)) child->measure({1280, 690 - menuAndFrames.height()});
    const QSize needed = window.isWindow() ? window.size() : window.parentWidget()->size() + menuAndFrames;
    EXPECT_LE(needed.width(), 1280) << form.Name();
    EXPECT_LE(needed.height(), 690) << form.Name();
  });
}

}  // namespace
}  // namespace orvane::test
