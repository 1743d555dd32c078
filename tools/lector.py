"""The client of lector.sh: a screen reader that writes down what it would say."""

import accesible
from accesible import Atspi, buscar, esperar, hijos, oido, pasar, programa, teclas


def debe(condicion, que):
    accesible.debe(condicion, que)
    print("ok:", que)


def dice(comienzo):
    return any(suceso.startswith(comienzo) for suceso in oido)


accesible.escuchar()
esperar("the program on the bus", programa)
esperar("the start-up screen", lambda: hijos(programa()))
pasar(1)
teclas("space")  # the start-up screen goes
tablero = esperar("the board", lambda: buscar(programa(), "panel", "Board"))
partes = hijos(tablero)
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
