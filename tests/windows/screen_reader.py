#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Reads and works the program as a screen reader does: over the accessibility bus, by the names that it tells.
Usage: screen_reader.py <program>   in a session of its own, with a screen (screen_reader.sh makes both)"""
import re
import subprocess
import sys
import time

from gi.repository import GLib

# The program is started first, as a bus that is there before it is not joined.
PROGRAM = subprocess.Popen([sys.argv[1]])
subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", "Quintra"], stdout=subprocess.DEVNULL, check=True)
import pyatspi  # noqa: E402

PATIENCE = 30  # seconds


def until(found, what):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):  # what changed comes as events
            pass
        try:
            result = found()
        except Exception:  # what is asked for may go while it is looked at
            result = None
        if result:
            return result
        time.sleep(0.05)
    sys.exit("not found: " + what)


def application():
    desktop = pyatspi.Registry.getDesktop(0)
    desktop.clearCache()
    return next((app for app in desktop if app and app.name == "Quintra"), None)


def all_below(thing):
    for child in thing:
        if child is not None:
            yield child
            yield from all_below(child)


def find(role, name):
    """The shown object with this role, and a name that matches."""
    def shown():
        return next((thing for thing in all_below(application())
                     if thing.getRole() == role and re.fullmatch(name, thing.name)
                     and thing.getState().contains(pyatspi.STATE_SHOWING)), None)
    thing = until(shown, name)
    print("read:", thing.getRoleName(), "|", thing.name, "|", thing.description.split("\n")[0])
    return thing


def act(thing, action):
    actions = thing.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    actions.doAction(names.index(action))


def main():
    until(application, "the program")
    # The first start.
    find(pyatspi.ROLE_PUSH_BUTTON, "Impostazioni di default")
    act(find(pyatspi.ROLE_PUSH_BUTTON, "OK"), "Press")
    # The main window: the verdict, a page, its cells.
    find(pyatspi.ROLE_IMAGE, "Impostazioni corrette")
    act(find(pyatspi.ROLE_PUSH_BUTTON, "Aggiungi pagine"), "Press")
    find(pyatspi.ROLE_LABEL, "Numero di pagine della cartella 1")
    find(pyatspi.ROLE_TABLE_CELL, "blocco 1, riga 1, colonna 1, (vuota|numero [0-9]+)")
    find(pyatspi.ROLE_TABLE_CELL, "blocco 2, riga 3, colonna 9, (vuota|numero [0-9]+)")
    # The editor: a cell is ticked.
    act(find(pyatspi.ROLE_CHECK_BOX, "Mappatura manuale"), "Toggle")
    act(find(pyatspi.ROLE_PUSH_BUTTON, "Aggiungi pagine"), "Press")
    cell = find(pyatspi.ROLE_CHECK_BOX, "riga 2, colonna 3, vuota, non spuntata")
    act(cell, "Toggle")
    cell = find(pyatspi.ROLE_CHECK_BOX, "riga 2, colonna 3, vuota, spuntata")
    if not cell.getState().contains(pyatspi.STATE_CHECKED):
        sys.exit("the cell does not say that it is ticked")
    PROGRAM.terminate()
    PROGRAM.wait()
    print("everything was read")


main()
