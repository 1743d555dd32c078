"""What the clients over the accessibility bus share: waiting, looking into the program's tree, and
writing down what a screen reader would say."""

import os
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

oido = []


def fallar(que):
    sys.exit(f"{os.path.basename(sys.argv[0])}: {que}; last heard {oido[-12:]}")


def debe(condicion, que):
    if not condicion:
        fallar(que)


def escuchar():
    for tipo in ("object:state-changed:focused", "object:property-change:accessible-name",
                 "object:state-changed:showing"):
        Atspi.EventListener.new(oir).register(tipo)


def oir(suceso):
    try:
        nombre = suceso.source.get_name()
        papel = suceso.source.get_role_name()
    except GLib.GError:  # it is gone already
        return
    hablado = papel == "notification"
    if suceso.type == "object:state-changed:focused" and suceso.detail1:
        oido.append("focus " + nombre)
    elif suceso.type.startswith("object:property-change:accessible-name") and not hablado:
        oido.append("name " + nombre)
    elif suceso.type == "object:state-changed:showing" and hablado:
        oido.append("says " + nombre)


def pasar(segundos):
    fin = time.monotonic() + segundos
    while time.monotonic() < fin:
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.005)


def esperar(que, como, segundos=20):
    fin = time.monotonic() + segundos
    while time.monotonic() < fin:
        try:
            hallado = como()
        except GLib.GError:  # what was asked is gone already
            hallado = None
        if hallado:
            return hallado
        pasar(0.03)
    fallar(f"waited in vain for {que}")


def hijos(de):
    todos = [de.get_child_at_index(i) for i in range(de.get_child_count())] if de else []
    return [uno for uno in todos if uno is not None]


def buscar(de, papel, nombre=""):
    """The first part of that role below it whose name begins so, None where there is none."""
    if de and de.get_role_name() == papel and de.get_name().startswith(nombre):
        return de
    for hijo in hijos(de):
        hallado = buscar(hijo, papel, nombre)
        if hallado:
            return hallado
    return None


def programa():
    for uno in hijos(Atspi.get_desktop(0)):
        if uno.get_name().lower() == "corvanda":
            return uno
    return None


def teclas(*nombres, espera=0.4):
    subprocess.run(["xdotool", "key", "--delay", "60", *nombres], check=True)
    pasar(espera)
