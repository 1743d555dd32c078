#!/usr/bin/env python3
"""Judges the tests: plants a fault, builds what it touches, and runs what could see it.

    tools/juez.py                          every row of tools/faltas/*.txt
    tools/juez.py core/ packaging.txt      the rows whose file, table or author has such a part
    tools/juez.py --comprobar              only asks whether every row still applies, in no time
    tools/juez.py --sortear 150 core/ computer/    150 one-token changes, drawn with --semilla

tools/faltas/LEEME says how a row is written. A drawn change is a comparison turned into another,
+ into - or back, && into || or back, a whole number made one larger, a truth value turned round, a
call statement left out, or the condition of an if negated; core/validez.cpp is drawn from only when
it is named, since it is what the tests judge positions by and no part of play.

Everything happens in copies of the tree and of its release build in a temporary folder, one for each
of --tareas; of the tree only build/log is written to. A test that fails, crashes or does not end has caught the
fault; the one that is likeliest to comes first, and the first that catches it is the last that runs.
Ends with 1 where a row no longer applies or no longer compiles; what survives is only told.
"""

import argparse
import collections
import concurrent.futures
import json
import os
import pathlib
import queue
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from typing import NamedTuple

RAIZ = pathlib.Path(__file__).resolve().parent.parent
SIN_SORTEAR = {"core/validez.cpp"}
MEMORIA_DE_UNA_PRUEBA = 4 << 30
APUNTES = RAIZ / "build/log/juez.json"  # who caught what the last time
MEMORIA = json.loads(APUNTES.read_text()) if APUNTES.is_file() else {}
# A build folder knows its place by name: in a mount namespace of its own the copy stands there.
EN_COPIA = ["unshare", "-rm", "sh", "-c", 'mount --bind "$0" "$1" && cd "$1" && shift && exec "$@"']


class Falta(NamedTuple):
    sitio: str  # of the row in its table, or of the drawn change
    archivo: str
    quien: str
    nota: str
    viejo: str
    nuevo: str
    desde: int = -1  # where the old text begins; else it stands in the file only once

    def aplica(self):
        ruta = RAIZ / self.archivo
        return self.desde >= 0 or ruta.is_file() and ruta.read_text(encoding="utf-8").count(self.viejo) == 1

    def aplicada(self, texto):
        desde = self.desde if self.desde >= 0 else texto.index(self.viejo)
        return texto[:desde] + self.nuevo + texto[desde + len(self.viejo):]


def leer_tabla(hoja):
    """The rows of a table: blocks of lines with nothing between them but blank lines."""
    lineas = hoja.read_text(encoding="utf-8").splitlines() + [""]
    bloque = []
    for numero, linea in enumerate(lineas, 1):
        if linea.startswith("#"):
            continue
        if linea:
            bloque.append(linea)
            continue
        if bloque:
            sitio = f"{hoja.name}:{numero - len(bloque)}"
            cabeza = re.fullmatch(r"(\S+) (with|without)", bloque[0])
            partes = {signo: [b[2:] for b in bloque[1:] if b[:1] == signo] for signo in "-+"}
            nota = " ".join(b for b in bloque[1:] if b[:1] not in "-+")
            if not (cabeza and nota and partes["-"]):
                raise SystemExit(f"{sitio}: a row is 'FILE with' or 'FILE without', what one sees, - old, + new")
            yield Falta(sitio, *cabeza.groups(), nota, *("\n".join(partes[s]) for s in "-+"))
        bloque = []


# Comments, texts and preprocessor lines are no code to draw from.
AJENO = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\''
                   r'|^[ \t]*#[^\n]*', re.S | re.M)
CAMBIOS = {"<": ("<=", ">="), ">": (">=", "<="), "<=": ("<", ">"), ">=": (">", "<"),
           "==": ("!=",), "!=": ("==",), "+": ("-",), "-": ("+",), "+=": ("-=",), "-=": ("+=",),
           "&&": ("||",), "||": ("&&",), "++": ("--",), "--": ("++",),
           "true": ("false",), "false": ("true",), "True": ("False",), "False": ("True",)}
SORTEOS = (  # what is looked for, and what may stand in its place
    # Between blanks a < is a comparison and a - a subtraction: the formatter sees to that.
    (r"(?<=\s)(?:<=|>=|==|!=|<|>|\+=|-=|\+|-|&&|\|\|)(?=\s)|\+\+|--", CAMBIOS.get),
    (r"\b(?:true|false|True|False)\b", CAMBIOS.get),
    (r"(?<![\w.])\d+(?![\w.'])", lambda numero: (str(int(numero) + 1),)),
    (r"(?m)^[ \t]+((?!return\b)[\w.:]+(?:->[\w.]+)*\([^;{}]*\);)[ \t]*$", lambda _: (";",)),
    # A condition, with brackets in it up to three deep.
    (r"\bif (\((?:[^()]|\((?:[^()]|\((?:[^()]|\([^()]*\))*\))*\))*\))", lambda si: (f"(!{si})",)),
)


def sortear(lugares, cuantas, semilla):
    """Drawn changes of the files, or of the folders' sources; of core/ and computer/ without any."""
    halladas = []
    rutas = [RAIZ / lugar for lugar in lugares or ("core", "computer")]
    for ruta in sorted(r for l in rutas for r in ([l] if l.is_file() else l.glob("*.cpp"))):
        archivo = str(ruta.relative_to(RAIZ))
        if archivo in SIN_SORTEAR and archivo not in lugares:
            continue
        texto = ruta.read_text(encoding="utf-8")
        codigo = AJENO.sub(lambda hallado: re.sub(r"[^\n]", " ", hallado.group()), texto)
        for patron, cambiar in SORTEOS:
            for hallado in re.finditer(patron, codigo):
                desde, hasta = hallado.span(hallado.lastindex or 0)
                viejo = texto[desde:hasta]
                linea = texto.count("\n", 0, desde) + 1
                for nuevo in cambiar(viejo):
                    nota = " ".join(f"{viejo}  ->  {nuevo}".split())
                    halladas.append(Falta(f"{archivo}:{linea}:{desde - texto.rfind(chr(10), 0, desde)}",
                                          archivo, "drawn", nota, viejo, nuevo, desde))
    random.Random(semilla).shuffle(halladas)
    return sorted(halladas[:cuantas], key=lambda f: (f.archivo, f.desde))


class Prueba:
    """A test of CTest; all cases of one GoogleTest program together are one."""

    def __init__(self, descrita):
        propiedades = {p["name"]: p["value"] for p in descrita.get("properties", ())}
        self.orden = descrita["command"]
        self.entorno = [e.split("=", 1) for e in propiedades.get("ENVIRONMENT", ())]
        self.programa = pathlib.Path(self.orden[0]).name
        self.nombre = descrita["name"]
        if "--gtest_also_run_disabled_tests" in self.orden:
            self.nombre, self.orden = self.programa, self.orden[:1]
        if any(o.startswith("--gtest_filter") for o in self.orden) or self.nombre == self.programa:
            self.orden = self.orden + ["--gtest_fail_fast", "--gtest_brief=1"]
        self.guion = self.programa.endswith((".sh", ".py"))

    def quien_falla(self, obra, limite, casos=""):
        """What fails, or nothing; of a GoogleTest program perhaps those of its cases alone."""
        solo = ["--gtest_filter=" + casos] if casos else []
        estado, salida = obra.correr(self.orden + solo, limite, self.entorno)
        if estado == 0:
            return ""
        caida = re.search(r"\[  FAILED  \] (\S+)", salida)
        return f"{self.nombre}: " + (caida.group(1) if caida else "no end" if estado is None else f"status {estado}")


class Obra:
    """A copy of the tree with a build of its own, in which one fault at a time stands."""

    def __init__(self, carpeta):
        self.carpeta = carpeta
        fuera = {"build": lambda n: n != "release", "": lambda n: n == ".git"}
        shutil.copytree(RAIZ, carpeta, symlinks=True, ignore=lambda de, nombres: {
            n for n in nombres if fuera.get(os.path.relpath(de, RAIZ).strip("."), lambda _: False)(n)})
        configurar = [] if (carpeta / "build/release/build.ninja").is_file() else [["cmake", "--preset", "release"]]
        for orden in (*configurar, ["ninja", "-C", "build/release"]):
            estado, salida = self.correr(orden)
            if estado != 0:
                raise SystemExit(f"the build fails before anything is planted:\n{salida[-2000:]}")
        descritas = json.loads(self.correr(["ctest", "--preset", "release", "--show-only=json-v1"])[1])["tests"]
        self.pruebas = {p.nombre: p for p in map(Prueba, descritas)}

    def correr(self, orden, limite=None, entorno=()):
        """Status and output of a command, for which the copy stands where the tree is; no status where
        it did not end in time."""
        def apartar():
            os.setsid()
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            resource.setrlimit(resource.RLIMIT_AS, (MEMORIA_DE_UNA_PRUEBA, MEMORIA_DE_UNA_PRUEBA))
        proceso = subprocess.Popen([*EN_COPIA, str(self.carpeta), str(RAIZ), *orden],
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT, text=True, errors="replace",
                                   env={**os.environ, **dict(entorno)}, preexec_fn=apartar)
        try:
            salida = proceso.communicate(timeout=limite)[0]
            return proceso.returncode, salida
        except subprocess.TimeoutExpired:
            return None, ""
        finally:
            try:
                os.killpg(proceso.pid, signal.SIGKILL)  # what it started ends with it
            except ProcessLookupError:
                pass

    def siempre_falla(self, prueba, limite, casos):
        """What fails twice, or nothing: on a busy machine a case may fail once by itself."""
        sin = ""
        while caida := prueba.quien_falla(self, limite, casos + sin):
            caso = caida.partition(": ")[2]
            if "." not in caso or prueba.quien_falla(self, limite, caso):
                return caida
            sin += (":" if "-" in casos + sin else "-") + caso
        return ""

    def ninja(self, *que):
        return self.correr(["ninja", "-C", "build/release", *que])

    def hecho_de(self, programas):
        """For each program the files that it is made of or waits for, by ninja's own account."""
        def llano(nombre):
            return os.path.relpath(os.path.normpath(RAIZ / "build/release" / nombre), RAIZ)
        incluidos, objeto = {}, ""
        for linea in self.ninja("-t", "deps")[1].splitlines():
            if ": #deps" in linea:
                objeto = linea.split(":")[0]
                incluidos[objeto] = set()
            elif linea.startswith("  ") and not linea.startswith("    /usr"):
                incluidos[objeto].add(llano(linea.strip()))
        hecho = {}
        for programa in programas:
            entradas = self.ninja("-t", "inputs", programa)[1].splitlines()
            hecho[programa] = {llano(e) for e in entradas}.union(*(incluidos.get(e, ()) for e in entradas))
        return hecho

    def planear(self, archivos):
        """For each file the tests that could see a change of it, each with the time that it takes."""
        hecho = self.hecho_de({p.programa for p in self.pruebas.values() if not p.guion})
        ven = {a: [p for p in self.pruebas.values()
                   if p.guion or a in hecho[p.programa] or a.endswith("CMakeLists.txt")] for a in archivos}
        segundos, casos = {}, {}
        for prueba in {p for pruebas in ven.values() for p in pruebas}:
            antes, sin = time.monotonic(), ""
            while caida := self.siempre_falla(prueba, 300, sin):
                print(f"not asked, because it fails before anything is planted: {caida}", flush=True)
                if "." not in (caso := caida.partition(": ")[2]):
                    raise SystemExit(1)
                sin += (":" if sin else "-") + caso
            segundos[prueba], casos[prueba] = time.monotonic() - antes, sin

        def tarde(archivo, prueba):  # the likeliest first, then the quickest
            codigo = archivo.endswith((".cpp", ".h"))
            return prueba.guion == codigo, prueba.programa != "test_" + archivo.split("/")[0], segundos[prueba]
        return {archivo: [(p.nombre, segundos[p], casos[p]) for p in sorted(pruebas, key=lambda p: tarde(archivo, p))]
                for archivo, pruebas in ven.items()}

    def juzgar(self, falta, plan):
        """How it ended, and who says so."""
        ruta = self.carpeta / falta.archivo
        texto = ruta.read_text(encoding="utf-8")
        ruta.write_text(falta.aplicada(texto), encoding="utf-8")
        try:
            for nombre, segundos, casos in recordar(falta, plan[falta.archivo]) + plan[falta.archivo]:
                prueba = self.pruebas[nombre]
                hacer = ["corvanda", "datos"] if prueba.guion else [prueba.programa]
                estado, salida = self.ninja(*hacer)
                if estado != 0:
                    return "DOES NOT COMPILE", next(iter(re.findall(".*error:.*", salida)), salida[-200:])
                if caida := self.siempre_falla(prueba, 20 + 5 * segundos, casos):
                    return "caught", caida
            return "SURVIVED", ""
        finally:
            ruta.write_text(texto, encoding="utf-8")


def recordar(falta, plan):
    """The test and case that caught the fault the last time, when that is worth a run of its own."""
    nombre, _, caso = MEMORIA.get(falta.nota, "").partition(": ")
    return [(n, s, caso) for n, s, _ in plan if n == nombre and "." in caso]


def juzgar_todas(faltas, tareas):
    with tempfile.TemporaryDirectory(prefix="juez.") as carpeta, \
            concurrent.futures.ThreadPoolExecutor(tareas) as grupo:
        obras = list(grupo.map(Obra, (pathlib.Path(carpeta, str(i)) for i in range(tareas))))
        plan = obras[0].planear({f.archivo for f in faltas})
        libres = queue.SimpleQueue()
        for obra in obras:
            libres.put(obra)

        def una(falta):
            obra, antes = libres.get(), time.monotonic()
            try:
                return falta, *obra.juzgar(falta, plan), time.monotonic() - antes
            finally:
                libres.put(obra)
        yield from grupo.map(una, faltas)


def contar(juicios):
    """Tells each judgement and their sum; whether every row could be judged."""
    cuentas = collections.Counter()
    for falta, fin, quien, segundos in juicios:
        print(f"{fin}  {falta.sitio} {falta.archivo}: {falta.nota}\n    {segundos:.0f} s {quien}", flush=True)
        cuentas[fin, falta.quien] += 1
        if fin == "caught":
            MEMORIA[falta.nota] = quien
            APUNTES.parent.mkdir(parents=True, exist_ok=True)
            APUNTES.write_text(json.dumps(MEMORIA, indent=1))
    for quien in sorted({q for _, q in cuentas}):
        bien, mal = cuentas["caught", quien], cuentas["SURVIVED", quien]
        print(f"{quien}: caught {bien} of {bien + mal} ({100 * bien / max(bien + mal, 1):.1f} %)")
    return not any(fin == "DOES NOT COMPILE" for fin, quien in cuentas if quien != "drawn")


def main():
    partes = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    partes.add_argument("partes", nargs="*", help="parts of 'TABLE:LINE FILE AUTHOR', or files to draw from")
    partes.add_argument("--comprobar", action="store_true", help="only ask whether the rows apply")
    partes.add_argument("--sortear", type=int, metavar="N", help="N one-token changes in place of the rows")
    partes.add_argument("--semilla", type=int, default=1, help="seed of the draw")
    partes.add_argument("--tareas", type=int, default=1, help="how many at the same time")
    args = partes.parse_args()
    if args.sortear:
        faltas = sortear(args.partes, args.sortear, args.semilla)
    else:
        faltas = [f for hoja in sorted((RAIZ / "tools/faltas").glob("*.txt")) for f in leer_tabla(hoja)
                  if not args.partes or any(p in f"{f.sitio} {f.archivo} {f.quien}" for p in args.partes)]
    viejas = [f for f in faltas if not f.aplica()]
    for falta in viejas:
        print(f"NO LONGER APPLIES  {falta.sitio}: its old text has to stand in {falta.archivo} exactly once")
    todo = True
    if not args.comprobar:
        todo = contar(juzgar_todas([f for f in faltas if f not in viejas], args.tareas))
    return 0 if todo and faltas and not viejas else 1


if __name__ == "__main__":
    sys.exit(main())
