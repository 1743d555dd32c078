// Any bytes as a help file, and the real help file (looked for beside this program) with some bytes
// changed or cut off. What is not exactly a sealed help file is never handed to the toolkit.
#include <QFileInfo>

#include "desktop/help_file.h"
#include "robustez/entrada.h"
#include "robustez/fuzz_archivo.h"

namespace {

using namespace corvanda;

std::string buena;  // the bytes of the real file

void Abrir(const std::string& bytes) {
    const HelpFile ayuda(Archivo_Con(bytes));
    using Condition = HelpFile::Condition;
    Exigir(ayuda.State() != Condition::Missing, "a file that is there is not missing");
    const bool es_buena = ayuda.State() == Condition::Good;
    Exigir(es_buena == (bytes == buena), "good is the sealed file and nothing else");
    Exigir(es_buena != ayuda.Contents().empty(), "a damaged file has no contents, a good one has");
    for (const Integer contexto : {Integer{0}, Integer{1}, Integer{2}, Integer{-7}}) {
        const QString tema = ayuda.TopicOf(contexto);
        Exigir(!es_buena || ayuda.Has(tema), "every context number has a topic");
        ayuda.ReadText(tema);
    }
}

std::string Estropeada(Entrada& entrada) {
    std::string bytes = buena;
    while (!entrada.Vacia() && !bytes.empty()) {
        const std::size_t lejos = entrada.Byte() | entrada.Byte() << 8 | entrada.Byte() << 16;
        const std::size_t donde = lejos % bytes.size();
        if (entrada.Hasta(16) == 0) {
            bytes.resize(donde);
        } else {
            bytes[donde] = static_cast<char>(entrada.Byte());
        }
    }
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** argv) {
    QFile archivo(QFileInfo(QString::fromLocal8Bit((*argv)[0])).dir().filePath("corvanda.HLP"));
    Exigir(archivo.open(QIODevice::ReadOnly), "the help file stands beside this program");
    buena = archivo.readAll().toStdString();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    Entrada entrada(datos, cuantos);
    Abrir(entrada.Hasta(2) == 0 ? entrada.Resto() : Estropeada(entrada));
    return 0;
}
