#include "player/prints.h"

#include <cmath>

#include "surface/combo_box.h"
#include "surface/list_box.h"
#include "surface/list_view.h"
#include "surface/picture_box.h"

namespace orvane {
namespace {

std::string position(const Control& control, int number) { return control.id() + "[" + std::to_string(number) + "]"; }

void printEntries(Transcript& transcript, const ComboBox& box) {
  for (int i = 0; i < box.ListCount(); ++i)
    transcript.line(position(box, i) + " " + quoted(box.List(i)) + " " + std::to_string(box.ItemData(i)));
}

void printEntries(Transcript& transcript, const ListBox& box) {
  for (int i = 0; i < box.ListCount(); ++i) transcript.line(position(box, i) + " " + quoted(box.List(i)));
}

std::string shownColour(const char* name, Colour colour) {
  return colour == Colour::WindowText ? std::string() : std::string(" ") + name + "=" + colourText(colour);
}

std::string shownRow(const ListItem& row) {
  std::string shown = quoted(row.Text());
  for (int i = 1; i <= row.subItemCount(); ++i) shown += " " + quoted(row.SubItems(i));
  if (row.Bold()) shown += " bold";
  if (row.Checked()) shown += " checked";
  if (row.Selected()) shown += " selected";
  shown += shownColour("fore", row.ForeColor());
  if (row.subItemCount() > 0) shown += shownColour("fore1", row.ListSubItems(1).ForeColor());
  return shown;
}

void printRows(Transcript& transcript, const ListView& view) {
  int number = 0;
  for (const auto& row : view.rows()) transcript.line(position(view, ++number) + " " + shownRow(*row));
}

// The log of the pictures of a sheet; none on other forms.
const PrintLog* printLog(const Form& form) {
  for (const auto* control : form.controls())
    if (const auto* picture = dynamic_cast<const PictureBox*>(control); picture && picture->log())
      return picture->log();
  return nullptr;
}

}  // namespace

void printList(Transcript& transcript, const Control& control) {
  if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) return printEntries(transcript, *combo);
  if (const auto* box = dynamic_cast<const ListBox*>(&control)) return printEntries(transcript, *box);
  if (const auto* view = dynamic_cast<const ListView*>(&control)) return printRows(transcript, *view);
  throw Refusal{control.idAndKind() + " n'a pas d'entrées."};
}

void printState(Transcript& transcript, const Form& form) {
  for (const auto* control : form.controls()) {
    std::string shown;
    for (const auto& [name, value] : control->properties()) shown += " " + std::string(name) + "=" + shownValue(value);
    if (!shown.empty()) transcript.line(control->id() + shown);
  }
}

void printWindows(Transcript& transcript, const Desktop& desktop) {
  const Form* active = desktop.modal() ? desktop.modal() : desktop.activeChild();
  int number = 0;
  for (const auto& form : desktop.Forms())
    transcript.line("window " + std::to_string(number++) + " " + form->Name() + " " + quoted(form->Caption()) +
                    (form.get() == active ? " active" : ""));
}

void printPrinted(Transcript& transcript, const Control& control) {
  const auto* picture = dynamic_cast<const PictureBox*>(&control);
  if (!picture) throw Refusal{control.idAndKind() + " n'est pas une image."};
  if (!picture->log()) return;
  for (const auto& entry : picture->log()->printed)
    if (entry.picture == picture)
      transcript.line(control.id() + " " + std::to_string(std::lround(entry.x)) + " " +
                      std::to_string(std::lround(entry.y)) + " " + shownValue(entry.points) + " " + quoted(entry.text));
}

void printLost(Transcript& transcript, const Form& form) {
  const PrintLog* log = printLog(form);
  if (!log) throw Refusal{"La fenêtre « " + form.title() + " » n'est pas une feuille."};
  for (const auto& [shape, words] : log->lost) transcript.line("lost " + shape + " " + quoted(words));
}

}  // namespace orvane
