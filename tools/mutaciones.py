#!/usr/bin/env python3
"""Asks the tests whether they would notice: changes one token of the game at a time and runs them.

    tools/mutaciones.py                                  200 changes drawn with seed 1
    tools/mutaciones.py --cuantos 400 --semilla 7 --tareas 2
    tools/mutaciones.py core/pase.cpp --cuantos 50       of these files only
    tools/mutaciones.py --revisar core/pase.cpp:27       every change of that line, whatever its fate
    tools/mutaciones.py --revisar core/pase.cpp:27:14    the changes of that column only

A change is a comparison turned into another, + into - or back, && into || or back, a whole number
made one larger, a truth value turned round, a call statement left out, or the condition of an if
negated. Comments, texts, preprocessor lines and template brackets are left alone. For each change
the one source file is compiled, test_core and test_computer are linked and run in turn; a program
that fails, crashes or does not end in time has caught it. Every change that no program notices is
printed with its file, line and column, and the last line counts: "caught X of Y (Z %)". A change
that does not compile is replaced by another.

Everything happens in a temporary folder; the checkout is only read. Headers are not changed, as
each would rebuild everything. core/validez.cpp is left out: it is what the tests judge positions by
and no part of play, and it has its own table of faults that it must name
(tests/core/colocacion_test.cpp).
"""

import argparse
import concurrent.futures
import difflib
import pathlib
import random
import re
import resource
import shutil
import subprocess
import sys
import tempfile
import threading

RAIZ = pathlib.Path(__file__).resolve().parent.parent
SIN_MUTAR = {"core/validez.cpp"}
COPIAR = ("core", "computer", "runtime", "tests/apoyo", "tests/core", "tests/computer",
          "tests/runtime")
PROGRAMAS = {
    "test_core": ("core", "runtime", "tests/apoyo", "tests/core", "tests/runtime"),
    "test_computer": ("core", "computer", "runtime", "tests/apoyo", "tests/computer"),
}
CON_VENTANAS = {"tests/apoyo/qt_main.cpp"}
COMPILAR = ["c++", "-std=c++20", "-O1", "-DNDEBUG", "-w", "-c"]
MEMORIA = 2 << 30

AJENO = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\''
                   r'|^[ \t]*#[^\n]*', re.S | re.M)
# Between blanks a < is a comparison and a - a subtraction: the formatter sees to that.
PARES = re.compile(r"(?<=\s)(<=|>=|==|!=|<|>|\+=|-=|\+|-|&&|\|\|)(?=\s)")
CAMBIOS = {"<": ("<=", ">="), ">": (">=", "<="), "<=": ("<", ">"), ">=": (">", "<"),
           "==": ("!=",), "!=": ("==",), "+": ("-",), "-": ("+",), "+=": ("-=",), "-=": ("+=",),
           "&&": ("||",), "||": ("&&",)}
PASOS = re.compile(r"\+\+|--")
NUMERO = re.compile(r"(?<![\w.])\d+(?![\w.'])")
VERDAD = re.compile(r"\b(?:true|false|True|False)\b")
CONTRARIO = {"true": "false", "false": "true", "True": "False", "False": "True"}
LLAMADA = re.compile(r"^[ \t]+((?!return\b)[\w.:]+(?:->[\w.]+)*\([^;{}]*\);)[ \t]*$", re.M)
SI = re.compile(r"\bif \(")


class Mutacion:
    def __init__(self, archivo, texto, desde, hasta, nuevo):
        self.archivo, self.desde, self.hasta, self.nuevo = archivo, desde, hasta, nuevo
        self.linea = texto.count("\n", 0, desde) + 1
        self.columna = desde - (texto.rfind("\n", 0, desde) + 1) + 1

    def lugar(self):
        return f"{self.archivo}:{self.linea}:{self.columna}"

    def aplicada(self, texto):
        return texto[:self.desde] + self.nuevo + texto[self.hasta:]

    def descripcion(self, texto):
        viejo = " ".join(texto[self.desde:self.hasta].split())
        return f"{self.lugar()}: {viejo}  ->  {' '.join(self.nuevo.split()) or 'nothing'}"


def sin_lo_ajeno(texto):
    """The text with comments, texts and preprocessor lines blanked, every place kept."""
    return AJENO.sub(lambda hallado: re.sub(r"[^\n]", " ", hallado.group()), texto)


def cierre(texto, abre):
    hondo = 0
    for i in range(abre, len(texto)):
        hondo += {"(": 1, ")": -1}.get(texto[i], 0)
        if hondo == 0:
            return i
    raise ValueError("an open bracket")


def mutaciones_de(archivo, texto):
    codigo = sin_lo_ajeno(texto)
    halladas = []

    def agregar(desde, hasta, nuevo):
        halladas.append(Mutacion(archivo, texto, desde, hasta, nuevo))

    for par in PARES.finditer(codigo):
        for nuevo in CAMBIOS[par.group()]:
            agregar(par.start(), par.end(), nuevo)
    for paso in PASOS.finditer(codigo):
        agregar(paso.start(), paso.end(), "--" if paso.group() == "++" else "++")
    for numero in NUMERO.finditer(codigo):
        agregar(numero.start(), numero.end(), str(int(numero.group()) + 1))
    for verdad in VERDAD.finditer(codigo):
        agregar(verdad.start(), verdad.end(), CONTRARIO[verdad.group()])
    for llamada in LLAMADA.finditer(codigo):
        agregar(llamada.start(1), llamada.end(1), ";")
    for si in SI.finditer(codigo):
        abre = si.end() - 1
        fin = cierre(codigo, abre)
        agregar(abre, fin + 1, "(!" + texto[abre:fin + 1] + ")")
    return halladas


class Taller:
    """A copy of the sources, their objects, and a bench for each thread."""

    def __init__(self, carpeta, limite):
        self.carpeta = pathlib.Path(carpeta)
        self.limite = limite
        self.copia = self.carpeta / "copia"
        for nombre in COPIAR:
            shutil.copytree(RAIZ / nombre, self.copia / nombre)
        self.propio = threading.local()
        self.bancos = 0
        self.candado = threading.Lock()

    def fuentes(self):
        todas = []
        for nombre in COPIAR:
            todas += sorted(str(f.relative_to(self.copia)) for f in
                            (self.copia / nombre).glob("*.cpp"))
        return [f for f in todas if f not in CON_VENTANAS]

    def objeto(self, fuente):
        return self.carpeta / (fuente.replace("/", "_") + ".o")

    def compilar(self, fuente, objeto):
        orden = COMPILAR + ["-I", str(self.copia), f'-DCORVANDA_FUENTES="{self.copia}"',
                            str(fuente), "-o", str(objeto)]
        return subprocess.run(orden, capture_output=True, text=True)

    def compilar_todo(self, tareas):
        def una(fuente):
            hecho = self.compilar(self.copia / fuente, self.objeto(fuente))
            if hecho.returncode != 0:
                raise SystemExit(hecho.stderr)
        with concurrent.futures.ThreadPoolExecutor(tareas) as grupo:
            list(grupo.map(una, self.fuentes()))

    def banco(self):
        if not hasattr(self.propio, "banco"):
            with self.candado:
                self.propio.banco = self.carpeta / f"banco{self.bancos}"
                self.bancos += 1
            self.propio.banco.mkdir()
        return self.propio.banco

    def enlazar(self, programa, mudada, objeto, destino):
        objetos = [str(objeto if f == mudada else self.objeto(f)) for f in self.fuentes()
                   if any(f.rsplit("/", 1)[0] == c for c in PROGRAMAS[programa])]
        subprocess.run(["c++", *objetos, "-lgtest", "-lgtest_main", "-lpthread", "-o",
                        str(destino)], check=True, capture_output=True)

    def falla(self, programa):
        """What the program says when it fails, None when it passes."""
        def poner_limites():
            resource.setrlimit(resource.RLIMIT_AS, (MEMORIA, MEMORIA))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        try:
            hecho = subprocess.run([str(programa), "--gtest_fail_fast", "--gtest_brief=1"],
                                   capture_output=True, text=True, errors="replace",
                                   timeout=self.limite, preexec_fn=poner_limites)
        except subprocess.TimeoutExpired:
            return "no end"
        if hecho.returncode == 0:
            return None
        caida = re.search(r"\[  FAILED  \] (\S+)", hecho.stdout)
        return caida.group(1) if caida else f"status {hecho.returncode}"

    def probar(self, mutacion, texto):
        """'' when nobody notices, else who does; None when it does not compile."""
        banco = self.banco()
        fuente = banco / pathlib.Path(mutacion.archivo).name
        objeto = banco / "mudada.o"
        fuente.write_text(mutacion.aplicada(texto), encoding="utf-8")
        if self.compilar(fuente, objeto).returncode != 0:
            return None
        for programa, carpetas in PROGRAMAS.items():
            if mutacion.archivo.rsplit("/", 1)[0] not in carpetas:
                continue
            self.enlazar(programa, mutacion.archivo, objeto, banco / programa)
            falla = self.falla(banco / programa)
            if falla:
                return falla
        return ""


def elegir(todas, args):
    if not args.revisar:
        random.Random(args.semilla).shuffle(todas)
        return todas
    archivo, linea, *columna = args.revisar.split(":")
    return [m for m in todas if m.archivo == archivo and m.linea == int(linea)
            and (not columna or m.columna == int(columna[0]))]


def revisar(taller, elegidas, textos):
    for mutacion in elegidas:
        texto = textos[mutacion.archivo]
        falla = taller.probar(mutacion, texto)
        print(mutacion.descripcion(texto))
        for linea in list(difflib.unified_diff(texto.splitlines(),
                                               mutacion.aplicada(texto).splitlines(),
                                               lineterm="", n=0))[3:]:
            print("   ", linea)
        print("   ", "does not compile" if falla is None else f"caught: {falla}" if falla
              else "SURVIVES", flush=True)


def sortear(taller, elegidas, textos, args):
    probadas = atrapadas = 0
    with concurrent.futures.ThreadPoolExecutor(args.tareas) as grupo:
        while probadas < args.cuantos and elegidas:
            lote = elegidas[:args.cuantos - probadas]
            del elegidas[:len(lote)]
            fallas = grupo.map(lambda m: taller.probar(m, textos[m.archivo]), lote)
            for mutacion, falla in zip(lote, fallas):
                if falla is None:
                    continue
                probadas += 1
                atrapadas += bool(falla)
                if not falla:
                    print(mutacion.descripcion(textos[mutacion.archivo]), flush=True)
    print(f"caught {atrapadas} of {probadas} ({100 * atrapadas / max(probadas, 1):.1f} %)")


def main():
    partes = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    partes.add_argument("archivos", nargs="*", help="sources below core/ and computer/")
    partes.add_argument("--cuantos", type=int, default=200, help="how many changes to try")
    partes.add_argument("--semilla", type=int, default=1, help="seed of the draw")
    partes.add_argument("--tareas", type=int, default=2, help="how many at the same time")
    partes.add_argument("--limite", type=float, default=20, help="seconds for a test program")
    partes.add_argument("--revisar", metavar="FILE:LINE[:COLUMN]", help="try these changes only")
    args = partes.parse_args()

    if args.revisar:
        archivos = [args.revisar.split(":")[0]]
    else:
        archivos = args.archivos or sorted(str(f.relative_to(RAIZ)) for c in ("core", "computer")
                                           for f in (RAIZ / c).glob("*.cpp"))
        archivos = [a for a in archivos if a not in SIN_MUTAR]
    with tempfile.TemporaryDirectory(prefix="mutaciones.") as carpeta:
        taller = Taller(carpeta, args.limite)
        # Read from the copy: somebody may go on working in the checkout.
        textos = {a: (taller.copia / a).read_text(encoding="utf-8") for a in archivos}
        todas = [m for a in archivos for m in mutaciones_de(a, textos[a])]
        taller.compilar_todo(args.tareas)
        for programa in PROGRAMAS:
            destino = taller.carpeta / programa
            taller.enlazar(programa, "", None, destino)
            falla = taller.falla(destino)
            if falla:
                raise SystemExit(f"{programa} fails before anything is changed: {falla}")
        print(f"{len(todas)} possible changes in {len(archivos)} files", flush=True)
        elegidas = elegir(todas, args)
        if args.revisar:
            revisar(taller, elegidas, textos)
        else:
            sortear(taller, elegidas, textos, args)
    return 0


if __name__ == "__main__":
    sys.exit(main())
