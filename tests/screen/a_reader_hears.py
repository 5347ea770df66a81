"""PROGRAM FOLDER: starts the program in the folder and reads it over the accessibility bus, as a screen reader does.

Windows are driven by the actions that they offer there; keys are sent for what has no such action.
"""

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 10  # seconds, for a busy machine
SPACE, PLUS, TAB = 0x20, 0x2B, 0xFF09

heard = []  # (kind of event, role of its source, text or value), in the order in which they came
faults = []


def listen(event):
    try:
        role = event.source.get_role_name()
        said = event.source.get_description() if "description" in event.type else event.detail1
        heard.append((event.type.split(":")[2], role, said))
    except GLib.Error:
        pass  # its source has gone since


def turn():
    while GLib.MainContext.default().iteration(False):
        pass


def wait_for(look):
    """What look() gives once that is something, or None when patience is at its end."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        turn()
        try:
            found = look()
        except GLib.Error:
            found = None
        if found:
            return found
        time.sleep(0.02)
    return None


def expect(what, look):
    found = wait_for(look)
    print("ok    " if found else "FAILED", what, flush=True)
    if not found:
        faults.append(what)
    return found


def children(one):
    return [child for child in map(one.get_child_at_index, range(one.get_child_count())) if child]


def everything(root):
    """But not the rows of lists, which are many."""
    yield root
    if root.get_role_name() not in ("tree", "combo box", "list"):
        for child in children(root):
            yield from everything(child)


def find(root, role, name, state=None):
    return next((one for one in everything(root) if one.get_role_name() == role and one.get_name() == name and
                 (not state or has(one, state))), None)


def need(root, role, name, state="SHOWING"):
    found = wait_for(lambda: find(root, role, name, state))
    if not found:
        sys.exit(f"FAILED: there is no {role} “{name}”")
    return found


def press(one):
    Atspi.Action.do_action(one, 0)


def keys(start, *symbols):
    """From the control that is given the keyboard first."""
    Atspi.Component.grab_focus(start)
    for symbol in symbols:
        Atspi.generate_keyboard_event(symbol, None, Atspi.KeySynthType.SYM)


def has(one, state):
    return one.get_state_set().contains(getattr(Atspi.StateType, state))


def expect_said(what, kind, text):
    if not expect(f"{what}: “{text}”", lambda: any(said[0] == kind and said[2] == text for said in heard)):
        print("       heard instead:", heard)
    heard.clear()


def open_character(program):
    desktop = Atspi.get_desktop(0)
    own = wait_for(lambda: next((one for one in children(desktop) if one.get_process_id() == program.pid), None))
    if not own:
        sys.exit("FAILED: the program is not on the bus")
    frame = need(own, "frame", "Orvane")
    Atspi.Component.grab_focus(frame)
    press(need(frame, "menu item", "New PJ", "ENABLED"))
    need(frame, "frame", "(sans nom)")
    return frame


def pick_tab(frame, caption):
    """A tab may say more than its caption."""
    tab = wait_for(lambda: next((one for one in everything(frame) if one.get_role_name() == "page tab" and
                                 one.get_name().startswith(caption)), None))
    press(tab)


def check_roles_and_names(frame):
    for name in ("Anglais", "Corps", "Information"):
        expect(f"{name} is a radio button", lambda: find(frame, "radio button", name))
    expect("the power is a check box that is checked", lambda: has(find(frame, "check box", "Avec pouvoir mutant"), "CHECKED"))
    nameless = [one for one in everything(frame) if one.get_role_name() in ("frame", "radio button", "check box",
                                                                           "push button", "page tab", "text", "tree")
                and not one.get_name()]
    expect("nothing that one works with is nameless", lambda: not nameless)


def check_rows_of_skills(frame):
    rows = need(frame, "tree", "Compétences", "ENABLED")
    cells = [one.get_name() for one in children(rows) if one.get_role_name() == "table cell"]
    row = cells.index("Acrobatie, niveau 0")
    expect("a level says what it is, the hidden key is silent",
           lambda: cells[row + 1:row + 4] == ["niveau 0", "", "base 0"])
    expect("a skill of the profile says so", lambda: "Armes de poing, compétence du profil, niveau 1" in cells)


def check_steps(frame):
    more = need(frame, "push button", "Un degré de plus")
    expect("an arrow says what a step costs", lambda: "0 à 5, 1 point par degré" in more.get_description())
    press(more)
    expect_said("a step is told", "accessible-description", "Anglais 1, reste 8")
    pick_tab(frame, "Caractéristiques")
    less = need(frame, "push button", "Un point de moins")
    for value in ("Corps -1, reste 11", "Corps -2, reste 12", "Refusé : Corps -2, reste 12 (-2 à 3, 1 point par pas)"):
        press(less)
        expect_said("a step is told", "accessible-description", value)
    pick_tab(frame, "Compétences")
    keys(need(frame, "text", "Nom Joueur"), TAB, TAB, PLUS)
    expect_said("a step in a list is told", "accessible-description", "Acrobatie 1, reste 61")


def check_dialog(frame):
    own = frame.get_application()
    pick_tab(frame, "Contacts")
    press(need(frame, "push button", "Nouveau"))
    dialog = need(own, "dialog", "Nouveau contact")
    expect("the dialog is filled in", lambda: find(dialog, "text", "Nom", "SHOWING"))
    press(need(dialog, "push button", "Cancel"))
    expect("it goes", lambda: not find(own, "dialog", "Nouveau contact", "SHOWING"))


def check_ticks(frame):
    pick_tab(frame, "Arts Martiaux")
    more = need(frame, "push button", "Un point de plus")
    press(more)
    expect_said("a step of an art is told", "accessible-description", "Méthode G.R.I.M. Offensif 1, reste 9")
    keys(more, TAB, SPACE)
    expect_said("a tick is told", "checked", 1)
    keys(more, TAB, SPACE)
    expect_said("and its end", "checked", 0)


def check_marks(frame):
    """The name of the character is missing, and much else."""
    press(need(frame, "push button", "Visualiser"))
    expect("the tab is marked in words", lambda: find(
        frame, "page tab", "Etat Civil / Langues, contrainte essentielle non respectée"))
    name = need(frame, "text", "Nom Personnage", "ENABLED")
    expect("so is the field", lambda: name.get_description() == "contrainte essentielle non respectée")


def main():
    Atspi.init()
    listener = Atspi.EventListener.new(listen)
    for kind in ("object:property-change:accessible-description", "object:state-changed:checked"):
        listener.register(kind)
    program = subprocess.Popen([sys.argv[1]], cwd=sys.argv[2])
    try:
        frame = open_character(program)
        for check in (check_roles_and_names, check_rows_of_skills, check_steps, check_dialog, check_ticks, check_marks):
            check(frame)
    finally:
        program.terminate()
        program.wait(PATIENCE)
    sys.exit(1 if faults else 0)


main()
