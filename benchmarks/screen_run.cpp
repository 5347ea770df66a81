#include "benchmarks/screen_run.h"

#include <algorithm>
#include <iostream>
#include <map>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>

namespace orvane::bench {
namespace {

template <class Widget>
QWidget* make(QWidget* parent) {
  return new Widget(parent);
}

const std::map<std::string_view, QWidget* (*)(QWidget*)> makers = {
    {"QCheckBox", make<QCheckBox>},     {"QComboBox", make<QComboBox>},
    {"QFrame", make<QFrame>},           {"QGroupBox", make<QGroupBox>},
    {"QLabel", make<QLabel>},           {"QLineEdit", make<QLineEdit>},
    {"QListWidget", make<QListWidget>}, {"QPlainTextEdit", make<QPlainTextEdit>},
    {"QPushButton", make<QPushButton>}, {"QRadioButton", make<QRadioButton>},
    {"QTabWidget", make<QTabWidget>},   {"QToolButton", make<QToolButton>},
    {"QTreeWidget", make<QTreeWidget>}, {"QWidget", make<QWidget>}};

// What Qt makes inside its own widgets is made with them.
std::vector<QWidget*> ownWidgets(const QWidget& window) {
  std::vector<QWidget*> found;
  for (auto* widget : window.findChildren<QWidget*>())
    if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_")) found.push_back(widget);
  return found;
}

}  // namespace

Answer QuietDialogs::MsgBox(const std::string&, BoxStyle style, const std::string&) {
  return style == BoxStyle::YesNo ? Answer::Yes : Answer::OK;
}

void QuietDialogs::failure(const std::string& description) { throw std::runtime_error(description); }

void showAll() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

ScreenRun::ScreenRun(const Path& folder)
    : run_({dialogs_, clock_, settings_, files_, pictures_}), user_(run_.desktop()), windows_(run_.desktop(), user_) {
  const Inside inside(folder);
  run_.Main();
  showAll();
}

void ScreenRun::act(const Deed& deed) {
  if (!windows_.door().act(deed)) throw std::runtime_error("an act was refused");
  showAll();
}

frmPersonnage& ScreenRun::openCharacter() {
  act([&](User& user) { user.click(run_.mainWindow()->mnuFileNewPJ); });
  return *run_.globals().frmCurrentPerso;
}

void ScreenRun::close(Form& form) {
  act([&](User& user) { user.close(form); });
}

BareWindow::BareWindow(const QWidget& model) : place_(model.geometry()), area_(new QMdiArea) {
  const auto widgets = ownWidgets(model);
  for (const auto* widget : widgets) {
    const auto holder = std::find_if(widgets.rbegin(), widgets.rend(),
                                     [&](const auto* other) { return other != widget && other->isAncestorOf(widget); });
    QWidget* above = holder == widgets.rend() ? const_cast<QWidget*>(&model) : *holder;
    const auto* combo = qobject_cast<const QComboBox*>(widget);
    pieces_.push_back({widget->metaObject()->className(),
                       combo && combo->isEditable(),
                       static_cast<int>(std::distance(holder, widgets.rend())) - 1,
                       {widget->mapTo(above, QPoint()), widget->size()},
                       widget->isVisibleTo(&model)});
  }
  frame_.setCentralWidget(area_);
  frame_.resize(model.window()->size());
  frame_.show();
  showAll();
}

void BareWindow::open() {
  window_ = new QMdiSubWindow;
  auto* pane = new QWidget;
  window_->setWidget(pane);
  std::vector<QWidget*> made;
  for (const auto& [kind, editable, parent, place, visible] : pieces_) {
    auto* widget = made.emplace_back(makers.at(kind)(parent < 0 ? pane : made[static_cast<std::size_t>(parent)]));
    if (editable) qobject_cast<QComboBox*>(widget)->setEditable(true);
    widget->setGeometry(place);
    widget->setVisible(visible);
  }
  area_->addSubWindow(window_);
  window_->setGeometry(place_);
  window_->show();
  showAll();
}

void BareWindow::close() {
  area_->removeSubWindow(window_);
  delete window_;
  showAll();
}

}  // namespace orvane::bench
