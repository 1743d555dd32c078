"""The board as the accessible tree tells it, and the rules of the game over that."""

import re
from collections import namedtuple

from accesible import Atspi, debe, hijos

DADO = re.compile(r"(?:Left|Right) die: (?:played|not thrown|(\d)(?:, for (\d) moves)?)$")
PUNTO = re.compile(r"Point (\d+), (?:empty|(\d+) (white|brown) chips?)$")
AL_LADO = re.compile(r"((White|Brown)'s (?:bar|tray)), (?:empty|closed|(\d+) chips?)$")

# A place is the number of a point, or "White's bar" and so on. fichas tells whose chips stand on
# which place and how many, dados has a number for each move that is left, sitios are the parts.
Posicion = namedtuple("Posicion", "fichas dados cerradas tomables elegido en_la_mano sitios")


def leer(tablero):
    fichas, dados, cerradas, sitios, estados = {}, [], set(), {}, {}
    for parte in hijos(tablero):
        nombre = parte.get_name()
        dado, punto, lado = DADO.match(nombre), PUNTO.match(nombre), AL_LADO.match(nombre)
        debe(dado or punto or lado, f"a part of the board is called {nombre!r}")
        if dado:
            dados += [int(dado[1])] * int(dado[2] or 1) if dado[1] else []
            continue
        lugar = int(punto[1]) if punto else lado[1]
        bando, cuantas = (punto[3], punto[2]) if punto else (lado[2], lado[3])
        if cuantas:
            fichas[lugar] = (bando.title(), int(cuantas))
        if nombre.endswith("closed"):
            cerradas.add(lugar)
        sitios[lugar] = parte
        estados[lugar] = parte.get_state_set()

    def con(estado):
        return {lugar for lugar in sitios if estados[lugar].contains(estado)}

    elegidos, tomadas = con(Atspi.StateType.FOCUSED), con(Atspi.StateType.SELECTED)
    debe(len(elegidos) < 2 and len(tomadas) < 2, f"focused {elegidos}, in hand {tomadas}")
    return Posicion(fichas, sorted(dados), cerradas, con(Atspi.StateType.SELECTABLE),
                    next(iter(elegidos), None), next(iter(tomadas), None), sitios)


def turno(p):
    bandos = {p.fichas[lugar][0] for lugar in p.tomables}
    debe(len(bandos) == 1, f"chips of {bandos} may be taken")
    return bandos.pop()


def que_hay(p, lugar):
    return p.fichas.get(lugar, (None, 0))


def faltan(lado, lugar):
    """How many steps lead from the place to the tray."""
    if lugar == lado + "'s tray":
        return 0
    return 25 if lugar == lado + "'s bar" else 25 - lugar if lado == "White" else lugar


def punto_a(lado, pasos):
    return lado + "'s tray" if pasos <= 0 else 25 - pasos if lado == "White" else pasos


def dado_de(p, lado, desde, hasta):
    """Which die pays the move, None where the rules forbid it."""
    pasos = faltan(lado, desde) - faltan(lado, hasta)
    dueno, cuantas = que_hay(p, hasta)
    if isinstance(hasta, int):
        return pasos if pasos in p.dados and (dueno in (lado, None) or cuantas == 1) else None
    if hasta in p.cerradas or pasos > 6:
        return None
    atras = any(que_hay(p, punto_a(lado, n))[1] for n in range(pasos + 1, 7))
    mayor = max(p.dados)
    return pasos if pasos in p.dados else mayor if mayor > pasos and not atras else None


def jugadas(p):
    lado = turno(p)
    for desde in p.tomables:
        for hasta in {punto_a(lado, faltan(lado, desde) - dado) for dado in p.dados}:
            if dado_de(p, lado, desde, hasta):
                yield desde, hasta


def despues(p, desde, hasta):
    """The chips and dice that a move must leave."""
    lado, fichas, dados = turno(p), dict(p.fichas), list(p.dados)
    dados.remove(dado_de(p, lado, desde, hasta))
    dueno, cuantas = que_hay(p, hasta)
    if dueno not in (lado, None):
        barra = dueno + "'s bar"
        fichas[barra] = (dueno, que_hay(p, barra)[1] + 1)
        cuantas = 0
    fichas[hasta] = (lado, cuantas + 1)
    queda = fichas.pop(desde)[1] - 1
    if queda:
        fichas[desde] = (lado, queda)
    return fichas, dados


def mejor(p):
    """Chips that are off come first, then hits, then few lone chips, then the hindmost chip."""
    lado = turno(p)

    def valor(jugada):
        desde, hasta = jugada
        fichas, _ = despues(p, desde, hasta)
        solas = sum(1 for lugar, ficha in fichas.items() if ficha == (lado, 1) and lugar != hasta)
        golpe = que_hay(p, hasta)[0] not in (lado, None)
        return not isinstance(hasta, int), golpe, -solas, faltan(lado, desde)

    return max(jugadas(p), key=valor, default=None)


def revisar(p):
    """What holds of any position in which somebody may play."""
    lado = turno(p)
    for bando in ("White", "Brown"):
        cuantas = sum(ficha[1] for ficha in p.fichas.values() if ficha[0] == bando)
        debe(cuantas == 15, f"{bando} has {cuantas} chips: {p.fichas}")
    barra = lado + "'s bar"
    suyas = {lugar for lugar in p.fichas if que_hay(p, lugar)[0] == lado} - {lado + "'s tray"}
    debe(p.tomables == ({barra} if barra in suyas else suyas),
         f"{p.tomables} may be taken of {suyas}")
    debe(1 <= len(p.dados) <= 4 and p.en_la_mano is None, f"dice {p.dados}, in hand {p.en_la_mano}")
