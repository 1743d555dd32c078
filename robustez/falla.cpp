// A library to be loaded before all others (LD_PRELOAD): of the system calls that write below the
// folder FALLA_EN, the one with the number FALLA_N (from 1) fails with the error FALLA_ERRNO, and
// so do all that follow where FALLA_SIGUE is set. At the end these calls are told on stderr, in
// their order and with blanks between them.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

long llamadas = 0;
char nombres[PATH_MAX] = "calls";

long Numero(const char* nombre) {
    const char* texto = std::getenv(nombre);
    return texto == nullptr ? 0 : std::atol(texto);
}

bool Dentro(const char* ruta) {
    const char* carpeta = std::getenv("FALLA_EN");
    return carpeta != nullptr && ruta != nullptr &&
           std::strncmp(ruta, carpeta, std::strlen(carpeta)) == 0;
}

bool Dentro(int descriptor) {
    char enlace[64];
    char ruta[PATH_MAX];
    std::snprintf(enlace, sizeof enlace, "/proc/self/fd/%d", descriptor);
    const ssize_t largo = readlink(enlace, ruta, sizeof ruta - 1);
    if (largo < 0) return false;
    ruta[largo] = 0;
    return Dentro(ruta);
}

bool Falla(const char* nombre) {
    ++llamadas;
    std::strncat(nombres, " ", sizeof nombres - std::strlen(nombres) - 1);
    std::strncat(nombres, nombre, sizeof nombres - std::strlen(nombres) - 1);
    const long cual = Numero("FALLA_N");
    const bool sigue = std::getenv("FALLA_SIGUE") != nullptr;
    if (llamadas != cual && !(sigue && cual > 0 && llamadas > cual)) return false;
    errno = static_cast<int>(Numero("FALLA_ERRNO"));
    return true;
}

template <typename Funcion>
Funcion Verdadera(const char* nombre) {
    return reinterpret_cast<Funcion>(dlsym(RTLD_NEXT, nombre));
}

int Abrir(const char* nombre, const char* ruta, int modo, mode_t permisos) {
    const bool escribe = (modo & O_ACCMODE) != O_RDONLY;
    if (escribe && Dentro(ruta) && Falla(nombre)) return -1;
    return Verdadera<int (*)(const char*, int, ...)>(nombre)(ruta, modo, permisos);
}

struct Cuenta {
    ~Cuenta() {
        const std::string linea = std::string(nombres) + '\n';
        [[maybe_unused]] const auto escrito = Verdadera<ssize_t (*)(int, const void*, size_t)>(
            "write")(2, linea.data(), linea.size());
    }
} cuenta;

}  // namespace

extern "C" {

int open(const char* ruta, int modo, ...) {
    va_list resto;
    va_start(resto, modo);
    const auto permisos = static_cast<mode_t>(va_arg(resto, int));
    va_end(resto);
    return Abrir("open", ruta, modo, permisos);
}

int open64(const char* ruta, int modo, ...) {
    va_list resto;
    va_start(resto, modo);
    const auto permisos = static_cast<mode_t>(va_arg(resto, int));
    va_end(resto);
    return Abrir("open64", ruta, modo, permisos);
}

ssize_t write(int descriptor, const void* datos, size_t cuantos) {
    if (Dentro(descriptor) && Falla("write")) return -1;
    return Verdadera<ssize_t (*)(int, const void*, size_t)>("write")(descriptor, datos, cuantos);
}

int fsync(int descriptor) {
    if (Dentro(descriptor) && Falla("fsync")) return -1;
    return Verdadera<int (*)(int)>("fsync")(descriptor);
}

int rename(const char* de, const char* a) noexcept {
    if (Dentro(a) && Falla("rename")) return -1;
    return Verdadera<int (*)(const char*, const char*)>("rename")(de, a);
}

int renameat2(int carpeta_de, const char* de, int carpeta_a, const char* a,
              unsigned modo) noexcept {
    if (Dentro(a) && Falla("renameat2")) return -1;
    return Verdadera<int (*)(int, const char*, int, const char*, unsigned)>("renameat2")(
        carpeta_de, de, carpeta_a, a, modo);
}

int linkat(int carpeta_de, const char* de, int carpeta_a, const char* a, int modo) noexcept {
    if (Dentro(a) && Falla("linkat")) return -1;
    return Verdadera<int (*)(int, const char*, int, const char*, int)>("linkat")(
        carpeta_de, de, carpeta_a, a, modo);
}

int mkdir(const char* ruta, mode_t permisos) noexcept {
    if (Dentro(ruta) && Falla("mkdir")) return -1;
    return Verdadera<int (*)(const char*, mode_t)>("mkdir")(ruta, permisos);
}

int fchmod(int descriptor, mode_t permisos) noexcept {
    if (Dentro(descriptor) && Falla("fchmod")) return -1;
    return Verdadera<int (*)(int, mode_t)>("fchmod")(descriptor, permisos);
}

}  // extern "C"
