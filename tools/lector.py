"""The client of lector.sh: a screen reader that writes down what it would say."""

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

oido = []


def oir(suceso):
    try:
        nombre = suceso.source.get_name()
        papel = suceso.source.get_role_name()
    except GLib.GError:  # it is gone already
        return
    if suceso.type == "object:state-changed:focused" and suceso.detail1:
        oido.append("focus " + nombre)
    elif suceso.type.startswith("object:property-change:accessible-name") and papel != "notification":
        oido.append("name " + nombre)
    elif suceso.type == "object:state-changed:showing" and papel == "notification":
        oido.append("says " + nombre)


def pasar(segundos):
    fin = time.monotonic() + segundos
    while time.monotonic() < fin:
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.01)


def esperar(que, como):
    for _ in range(300):
        hallado = como()
        if hallado:
            return hallado
        pasar(0.05)
    sys.exit(f"lector: waited in vain for {que}; heard {oido}")


def buscar(de, papel, nombre):
    if de is None:
        return None
    if de.get_role_name() == papel and de.get_name().startswith(nombre):
        return de
    for i in range(de.get_child_count()):
        hallado = buscar(de.get_child_at_index(i), papel, nombre)
        if hallado:
            return hallado
    return None


def programa():
    escritorio = Atspi.get_desktop(0)
    for i in range(escritorio.get_child_count()):
        if escritorio.get_child_at_index(i).get_name().lower() == "corvanda":
            return escritorio.get_child_at_index(i)
    return None


def teclas(*nombres):
    subprocess.run(["xdotool", "key", "--delay", "60", *nombres], check=True)
    pasar(0.4)


def debe(condicion, que):
    if not condicion:
        sys.exit(f"lector: {que}; heard {oido}")
    print("ok:", que)


def dice(comienzo):
    return any(suceso.startswith(comienzo) for suceso in oido)


for tipo in ("object:state-changed:focused", "object:property-change:accessible-name",
             "object:state-changed:showing"):
    Atspi.EventListener.new(oir).register(tipo)
esperar("the program on the bus", programa)
teclas("space")  # the start-up screen goes
tablero = esperar("the board", lambda: buscar(programa(), "panel", "Board"))
partes = [tablero.get_child_at_index(i) for i in range(tablero.get_child_count())]
nombres = [parte.get_name() for parte in partes]
debe(len(partes) == 30, "the board has 30 parts")
debe(nombres[5] == "Point 6, 5 brown chips", "a point tells its number and its chips")
debe(nombres[26] == "White's tray, closed", "a tray tells that it is closed")
area = partes[5].get_extents(Atspi.CoordType.SCREEN)
en = tablero.get_accessible_at_point(area.x + 5, area.y + 40, Atspi.CoordType.SCREEN)
debe(en is not None and en.get_name() == nombres[5], "a pixel leads to its point")

teclas("ctrl+j")
esperar("the start-player dialog", lambda: buscar(programa(), "dialog", "Player to Start"))
debe(buscar(programa(), "push button", "White Chips") is not None, "the dialog's button has a name")
for _ in range(9):
    teclas("Return")
    if buscar(programa(), "dialog", "Player to Start") is None:
        break
debe(dice("says White throws ") and dice("says Brown throws "), "the throws for the start are said")
debe(any("'s dice: " in suceso for suceso in oido), "the first throw is said")

oido.clear()
teclas("Tab", "Tab")
debe(dice("focus Point "), "the keyboard's place has the focus")
teclas("space")
debe(dice("says Chip in hand."), "a chip in the hand is told of")
teclas("Escape")
debe(dice("says The chip is put back."), "a chip that is put back is told of")

# As an assistive device plays: without keys, by the action of a place.
oido.clear()
dado = int([nombre[-1] for nombre in (partes[28].get_name(), partes[29].get_name())
            if nombre[-1].isdigit()][0])
blanca = partes[0].get_state_set().contains(Atspi.StateType.SELECTABLE)
caminos = [(p, p + dado) for p in (0, 11, 16, 18)] if blanca else [(p, p - dado) for p in (23, 12, 7, 5)]
mueve = next((camino for camino in caminos if 0 <= camino[1] < 24
              and partes[camino[1]].get_name().endswith("empty")), None)
debe(mueve is not None, "there is a move to an empty point")
for lugar in mueve:
    Atspi.Action.do_action(partes[lugar], 0)
    pasar(0.4)
debe(dice(f"name Point {mueve[1] + 1}, 1 "), "the new name of a point is told")
debe(any(" moves from point " in suceso for suceso in oido), "the move is said")
print("\n".join("    " + suceso for suceso in oido))
