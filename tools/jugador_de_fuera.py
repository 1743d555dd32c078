"""The client of jugador_de_fuera.sh: plays a whole game as a person would, with one hand alone.

The accessible tree only tells what there is and where; whatever is done is done by xdotool, with
keys or with the mouse. After each move the board has to be what the rules say."""

import os
import re
import subprocess
import sys
import time
from collections import Counter

import accesible
from accesible import Atspi, buscar, debe, esperar, fallar, hijos, pasar, programa
from posicion import despues, leer, mejor, revisar, turno

MENUS = {"computer": ["Game", "vs. Computer"], "two": ["Game", "vs. Player"],
         "pass": ["Options", "Pass"], "level": ["Options", "Level", "Advanced"],
         "sound": ["Options", "Sound"], "speed": ["Options", "Speed..."], "exit": ["Exit"]}
TECLAS = {"computer": ["ctrl+c"], "two": ["ctrl+j"], "pass": ["F9"],
          "level": ["alt+o", "Down", "Right", "a"], "sound": ["alt+o", "s"],
          "speed": ["alt+o", "Up", "Return"], "exit": ["alt+x"]}


# What is seen

def caja():
    """The box or dialog that is open, None where there is none."""
    ventanas = [uno for uno in hijos(programa()) if uno.get_role_name() in ("alert", "dialog")]
    return ventanas[-1] if ventanas else None


def textos(ventana):
    return " ".join(uno.get_name() for uno in hijos(ventana) if uno.get_role_name() == "label")


def con_estado(de, estado):
    return de.get_state_set().contains(getattr(Atspi.StateType, estado))


def marcado(entrada):
    return con_estado(buscar(programa(), "menu item", entrada), "CHECKED")


def area(de):
    """In pixels of the screen: x, y, width, height."""
    donde = de.get_extents(Atspi.CoordType.SCREEN)
    return [round(valor * escala) for valor in (donde.x, donde.y, donde.width, donde.height)]


# The two hands

def xdotool(*orden):
    subprocess.run(["xdotool", *map(str, orden)], check=True)


class Teclado:
    def arrancar(self, _ventana):
        self.teclas("space")

    def teclas(self, *nombres):
        xdotool("key", "--delay", 25, *nombres)

    def menu(self, que):
        for tecla in TECLAS[que]:
            self.teclas(tecla)
            pasar(0.25)

    def boton(self, ventana, nombre):
        boton = buscar(ventana, "push button", nombre)
        debe(con_estado(boton, "IS_DEFAULT"), f"Return is not for {nombre!r}")
        self.teclas("Return")

    def mas_rapido(self, _barra):
        self.teclas("Prior")

    def ir(self, lugar):
        """Along the rows: a tray and a bar come before the points, one of each colour in each."""
        abajo = lugar in ("White's tray", "Brown's bar")
        columna = 1 if str(lugar).endswith("bar") else 0
        if isinstance(lugar, int):
            abajo = lugar > 12
            columna = 1 + (25 - lugar if abajo else lugar)
        self.teclas("Home", "Down" if abajo else "Up", *["Right"] * columna)
        esperar(f"the focus on {lugar}", lambda: leer(tablero).elegido == lugar)

    def tomar(self, lugar):
        for _ in range(29):  # Tab goes to each chip that may be taken
            if leer(tablero).elegido == lugar:
                break
            self.teclas("Tab")
            pasar(0.03)
        else:
            fallar(f"Tab does not lead to {lugar}; focus on {leer(tablero).elegido}")
        self.teclas("space")

    def soltar(self, lugar):
        self.ir(lugar)
        self.teclas("Return")


class Raton:
    def arrancar(self, ventana):
        self.pulsar(ventana)

    def a(self, x, y):
        xdotool("mousemove", x, y)

    def pulsar(self, que):
        x, y, ancho, alto = area(que)
        debe(ancho > 0 and alto > 0, f"{que.get_name()!r} has no size")
        self.a(x + ancho // 2, y + alto // 2)
        xdotool("click", 1)

    def menu(self, que):
        for nombre in MENUS[que]:
            self.pulsar(esperar(f"the entry {nombre}", lambda: self.entrada(nombre)))
            pasar(0.25)

    def entrada(self, nombre):
        hallada = buscar(programa(), "menu item", nombre)
        return hallada if hallada and con_estado(hallada, "VISIBLE") else None

    def boton(self, ventana, nombre):
        self.pulsar(buscar(ventana, "push button", nombre))

    def mas_rapido(self, barra):
        x, y, _, alto = area(barra)
        self.a(x + 5, y + alto // 2)
        xdotool("mousedown", 1)
        pasar(0.5)
        xdotool("mouseup", 1)

    def sobre(self, lugar):
        """Onto the base of the point, where chips stand; the dice may lie over the tips."""
        x, y, ancho, alto = area(leer(tablero).sitios[lugar])
        if isinstance(lugar, int):
            y += 0 if lugar <= 12 else alto - ancho
            alto = ancho
        self.a(x + ancho // 2, y + alto // 2)

    def tomar(self, lugar):
        self.sobre(lugar)
        xdotool("mousedown", 1)

    def soltar(self, lugar):
        self.sobre(lugar)
        xdotool("mouseup", 1)


# The game

def foto(nombre):
    if carpeta:
        pasar(0.3)
        subprocess.run(["import", "-window", "root", f"{carpeta}/{nombre}.png"], check=True)


def arrancar():
    """Starts the program, sends the start-up screen away, and tells how large a unit is."""
    global juego, tablero, escala
    juego = subprocess.Popen([orden])
    esperar("the program on the bus", programa, 60)
    Atspi.Accessible.set_cache_mask(programa(), Atspi.Cache.NONE)
    escala = 1
    inicio = esperar("the start-up screen", lambda: next(iter(hijos(programa())), None))
    pasar(1)
    mano.arrancar(inicio)
    tablero = esperar("the board", lambda: buscar(programa(), "panel", "Board"))
    pasar(1)
    ventana = subprocess.run(["xdotool", "getactivewindow", "getwindowgeometry", "--shell"],
                             capture_output=True, text=True, check=True).stdout
    marco = buscar(programa(), "frame", "Corvanda").get_extents(Atspi.CoordType.SCREEN)
    escala = int(re.search(r"WIDTH=(\d+)", ventana)[1]) / marco.width


def velocidad():
    """Opens the dialog, tells the speed, makes it the fastest, and leaves by Ok."""
    mano.menu("speed")
    dialogo = esperar("the speed dialog", caja)
    barra = buscar(dialogo, "scroll bar")
    antes = Atspi.Value.get_current_value(barra)
    boton = buscar(dialogo, "push button", "Ok")
    esperar("the button Ok", lambda: con_estado(boton, "ENABLED"))
    while Atspi.Value.get_current_value(barra) > 1:
        mano.mas_rapido(barra)
        pasar(0.1)
    mano.boton(dialogo, "Ok")
    esperar("the end of the speed dialog", lambda: caja() is None)
    return int(antes)


def cerrar_caja(nombre="OK"):
    ventana = esperar("a box", caja)
    texto = textos(ventana)
    mano.boton(ventana, nombre)
    esperar(f"the end of {texto!r}", lambda: caja() is None or textos(caja()) != texto)
    return texto


def empezar(rival):
    mano.menu(rival)
    esperar("the throw for the start", lambda: buscar(programa(), "dialog", "Player to Start"))
    for _ in range(60):
        dialogo = buscar(programa(), "dialog", "Player to Start")
        if dialogo is None:
            return
        mano.boton(dialogo, "")
        pasar(0.6)
    fallar("the throw for the start does not end")


def a_jugar(antes=None):
    """Waits until a person may play and the board is not the one before; answers what comes up."""
    def como():
        ventana = caja()
        if ventana:
            texto = textos(ventana)
            if re.search(r" [Ww]on$", texto):
                return texto
            debe(antes is None or texto.endswith(" passed"), f"a box says {texto!r}")
            cajas[texto] += 1
            cerrar_caja()
        p = leer(tablero)
        otra = antes is None or (p.fichas, p.dados) != antes
        return p if p.tomables and p.dados and otra else None

    return esperar("the next move", como, 60)


def pasar_turno(p):
    """Asks to pass and waits for the next dice, which may be the same."""
    mano.menu("pass")
    texto = cerrar_caja()
    debe(texto.endswith(" passed") and turno(p).lower() in texto, f"{texto!r}, but no move in {p}")
    cajas[texto] += 1
    pasar(0.1)


def mover(p, desde, hasta, llamada):
    lado = turno(p)
    mano.tomar(desde)
    esperar(f"the chip of {desde} in the hand", lambda: leer(tablero).en_la_mano == desde)
    if llamada:
        foto(llamada)
    mano.soltar(hasta)
    fichas, dados = despues(p, desde, hasta)
    nueva = a_jugar((p.fichas, p.dados))
    if isinstance(nueva, str):
        # The computer may win in the turn that this move has given it.
        gana = fichas.get(lado + "'s tray", (lado, 0))[1] == 15
        debe(gana if lado in nueva else rival == "computer", f"{nueva!r} after {fichas}")
    elif rival == "two" or dados:
        son, deben = (nueva.fichas, dados and nueva.dados), (fichas, dados)
        debe(son == deben, f"{desde} to {hasta} left {son}, not {deben}")
    return nueva


def jugar():
    """Plays to the winner's box; tells how many moves there were, and who won."""
    p = a_jugar()
    foto("1_first_board")
    movidas = 0
    while not isinstance(p, str):
        revisar(p)
        jugada = mejor(p)
        if jugada:
            movidas += 1
            p = mover(p, *jugada, {2: "2_chip_in_hand", 40: "4_chip_in_hand"}.get(movidas))
        else:
            pasar_turno(p)
            p = a_jugar()
        if movidas == 30 and jugada:
            foto("3_middle")
            for que in CAMBIOS:
                mano.menu(que)
                pasar(0.3)
    foto("5_winner")
    return movidas, re.search("White|Brown", cerrar_caja())[0]


def salir():
    mano.menu("exit")
    texto = cerrar_caja("Yes")
    debe("quit" in texto, f"asked to leave, it says {texto!r}")
    try:
        debe(juego.wait(30) == 0, "the program ends with an error")
    except subprocess.TimeoutExpired:
        fallar("the program does not end")
    esperar("the program to leave the bus", lambda: programa() is None)


mano = {"keyboard": Teclado, "mouse": Raton}[sys.argv[1]]()
rival, orden = sys.argv[2:]
# In a game of two people a choice of the level gives Brown to the computer.
CAMBIOS = ["sound", "level"] if rival == "computer" else ["sound"]
carpeta = os.environ.get("CORVANDA_CAPTURAS")
cajas = Counter()
escala, juego, tablero = 1, None, None

try:
    accesible.escuchar()
    arrancar()
    sonaba, era = marcado("Sound"), marcado("Advanced")
    debe(velocidad() != 1, "the speed was the fastest already, so nothing could be told from it")
    comienzo = time.monotonic()
    empezar(rival)
    cuantas, quien = jugar()
    segundos = time.monotonic() - comienzo
    salir()
    arrancar()
    debe(velocidad() == 1, "the speed was not kept")
    debe(marcado("Sound") != sonaba, "the sound was not kept")
    debe(marcado("Advanced") == (era or rival == "computer"), "the level was not kept")
    salir()
finally:
    if juego and juego.poll() is None:
        juego.kill()
print(f"played {cuantas} moves in {segundos:.0f} s, won by {quien}; boxes answered: {dict(cajas)}")
