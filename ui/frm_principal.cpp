#include "ui/frm_principal.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>
#include <algorithm>

#include "ui/form1.h"
#include "ui/frm_volado.h"
#include "ui/paleta.h"

namespace corvanda {

namespace {

constexpr double ANCHO = 10215;  // twips, inside the frame and below the menus
constexpr double ALTO = 6495;
constexpr Integer TECLA_F1 = 112;
constexpr int CICLO = 10;             // milliseconds of one cycle of the computer's pause
constexpr int VUELO_MAS_LARGO = 200;  // milliseconds
constexpr int PAUSA_SIN_VUELO = 60;   // a shorter pause leaves no time to follow a chip
constexpr int AIRE_DEL_TITULO = 12;   // logical pixels a title bar has above and below its letters

QWidget* Hacer_Fondo(QWidget* ventana) {
    auto* fondo = new QWidget(ventana);
    QPalette colores = fondo->palette();
    colores.setColor(QPalette::Window, paleta::ROJO_OSCURO);
    fondo->setPalette(colores);
    fondo->setAutoFillBackground(true);
    return fondo;
}

// What the desktop puts around a window that fills the screen: a title bar, and at the sides a line
// at most. What is wrong with the guess, panels that the desktop does not tell of among it, comes
// out of the margin around the case.
QSize Marco_Supuesto() {
    const int letras = QFontMetrics(QApplication::font()).height() + AIRE_DEL_TITULO;
    return {2, std::max(letras, QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight))};
}

int Alto_De_La_Barra(double ancho) {
    QMenuBar barra;
    barra.setNativeMenuBar(false);  // one of the desktop's own would be seen
    const Menus menus(barra);
    return barra.heightForWidth(static_cast<int>(ancho));
}

Puertos Puertos_De(const Servicios& servicios, Pantalla& tablero) {
    return {servicios.Mensajes,
            servicios.Eventos,
            servicios.Puntero,
            servicios.Azar,
            servicios.Sonidos,
            servicios.Programa,
            tablero};
}

}  // namespace

Escala FrmPrincipal::Escala_Para(QSizeF usable) {
    const QSizeF alrededor = Marco_Supuesto() + QSize(0, Alto_De_La_Barra(usable.width()));
    return Escala::Que_Quepan({ANCHO, ALTO}, usable - alrededor);
}

FrmPrincipal::FrmPrincipal(Partida& partida, const Servicios& servicios, Escala escala,
                           Estampas& estampas, Oponente* computadora)
    : partida(partida),
      servicios(servicios),
      escala(escala),
      estampas(estampas),
      fondo(Hacer_Fondo(this)),
      estuche(new Estuche(partida, escala, estampas, fondo)),
      voz(new Voz(fondo)),
      locutor(*estuche, *voz),
      menus(*menuBar()),
      ajustes(servicios.Almacen, servicios.Programa),
      juego(partida, Puertos_De(servicios, *estuche), computadora) {
    setObjectName("FrmPrincipal");
    setWindowTitle("Corvanda");
    setCentralWidget(fondo);
    fondo->installEventFilter(this);
    estuche->setFocus();
    Conectar_Menus();
    Conectar_Tablero();
}

void FrmPrincipal::Conectar_Menus() {
    const auto conectar = [this](QAction* entrada, void (FrmPrincipal::*manejador)()) {
        connect(entrada, &QAction::triggered, this, manejador);
    };
    conectar(menus.mnuNew, &FrmPrincipal::mnuNew_Click);
    conectar(menus.mnuVs, &FrmPrincipal::mnuVs_Click);
    conectar(menus.mnuSonido, &FrmPrincipal::mnuSonido_Click);
    conectar(menus.mnuVel, &FrmPrincipal::mnuVel_Click);
    conectar(menus.mnuCont, &FrmPrincipal::mnuCont_Click);
    conectar(menus.mnuIndice, &FrmPrincipal::mnuIndice_Click);
    conectar(menus.mnuAcerca, &FrmPrincipal::mnuAcerca_Click);
    conectar(menus.mnuSalir, &FrmPrincipal::mnuSalir_Click);
    connect(menus.mnuPasar, &QAction::triggered, this, [this] { juego.mnuPasar_Click(); });
    for (std::size_t fila = 0; fila < NIVELES.size(); ++fila) {
        const Integer marca = Marca_De(fila);
        QAction* entrada = menus.mnuLev.at(static_cast<std::size_t>(marca));
        connect(entrada, &QAction::triggered, this, [this, marca] { mnuLev_Click(marca); });
    }
}

void FrmPrincipal::Conectar_Tablero() {
    connect(estuche, &Estuche::presionada, this, [this](Control ficha, Integer boton) {
        if (ficha.Nombre == Arreglo::Blanca) {
            juego.Blanca_MouseDown(ficha.Index, boton);
        } else {
            juego.Cafe_MouseDown(ficha.Index, boton);
        }
    });
    connect(estuche, &Estuche::soltada, this, [this](Control destino, Control fuente) {
        switch (destino.Nombre) {
            case Arreglo::Triangle:
                return juego.Triangle_DragDrop(destino.Index, fuente);
            case Arreglo::Blanca:
                return juego.Blanca_DragDrop(destino.Index, fuente);
            case Arreglo::Cafe:
                return juego.Cafe_DragDrop(destino.Index, fuente);
            case Arreglo::Adios:
                return juego.Adios_DragDrop(destino.Index, fuente);
            default:
                break;  // the board halves and the dice take no drops
        }
    });
    estuche->Preguntar({[this](Control ficha) { return juego.Se_Puede_Tomar(ficha); },
                        [this](Control ficha) { return Vuelo_De(ficha); }});
}

// A chip that the computer moves glides, so that the person can follow it: never longer than half
// the pause before the next move.
int FrmPrincipal::Vuelo_De(Control ficha) const {
    if (!juego.Computadora_Juega() || ficha.Nombre != Arreglo::Cafe) return 0;
    const int pausa = partida.Velocidad * CICLO;
    if (pausa < PAUSA_SIN_VUELO) return 0;
    return std::min(VUELO_MAS_LARGO, pausa / 2);
}

// Start-up

void FrmPrincipal::Form_Load() {
    const App& programa = servicios.Programa;
    archivo_de_ayuda = programa.Path() + "\\" + programa.EXEName() + ".HLP";
    servicios.Azar.Randomize();
    partida.Dobles = 0;
    juego.Cargar_Controles();
    juego.Ordenar();
    estuche->hide();  // there is no board to see before it is dressed
    Mostrar_Ventana();
    servicios.Eventos.DoEvents();
    juego.Vestir_Tablero();
    estuche->show();
    partida.Jugando = False;
    ajustes.Leer(menus, partida);
    partida.Sonido = menus.mnuSonido->isChecked() ? True : False;
    const bool hay_sonido = servicios.Sonidos.waveOutGetNumDevs() > 0;
    menus.mnuSonido->setEnabled(hay_sonido);
    if (!hay_sonido) partida.Sonido = False;
    Poner_Icono();
}

// Shown at its design size where nobody can maximise it.
void FrmPrincipal::Mostrar_Ventana() {
    const QSize dentro = escala.Tamano(ANCHO, ALTO);
    resize(dentro + QSize(0, menuBar()->sizeHint().height()));
    QRect con_marco({}, size() + Marco_Supuesto());
    con_marco.moveCenter(screen()->availableGeometry().center());
    move(con_marco.topLeft());
    showMaximized();
}

void FrmPrincipal::Poner_Icono() {
    QIcon icono;
    for (const int lado : {16, 22, 24}) {  // each drawn for its pixels
        icono.addPixmap(estampas.Suelta(QString("corvanda_%1").arg(lado), lado, 1));
    }
    for (const int lado : {32, 48, 128}) icono.addPixmap(estampas.Suelta("corvanda", lado, 1));
    QGuiApplication::setWindowIcon(icono);  // the help has no window of this program above it
}

bool FrmPrincipal::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == fondo && evento->type() == QEvent::Resize) Form_Resize();
    return QMainWindow::eventFilter(objeto, evento);
}

void FrmPrincipal::Form_Resize() {
    const double ancho = escala.Twips(fondo->width());
    const double alto = escala.Twips(fondo->height());
    estuche->move(
        escala.Lugar(ancho / 2 - Estuche::ANCHO / 2, (alto - Estuche::ALTO) * 0.5, 0, 0).topLeft());
}

bool FrmPrincipal::event(QEvent* evento) {
    const auto tipo = evento->type();
    if (tipo == QEvent::WindowBlocked || tipo == QEvent::WindowDeactivate) estuche->Interrumpir();
    return QMainWindow::event(evento);
}

// The menus

void FrmPrincipal::mnuNew_Click() {
    contexto_de_ayuda = 2;
    juego.Empezar(DOS_PERSONAS, *this);
}

void FrmPrincipal::mnuVs_Click() {
    contexto_de_ayuda = 1;
    juego.Empezar(menus.Nivel_Marcado().nivel, *this);
}

void FrmPrincipal::Mostrar() {
    FrmVolado dialogo(this, partida, servicios.Azar, escala, estampas,
                      [this] { Form_KeyDown(TECLA_F1); });
    dialogo.exec();
}

void FrmPrincipal::mnuLev_Click(Integer Index) {
    menus.Marcar_Nivel(Index);
    partida.Nivel = menus.Nivel_Marcado().nivel;
}

void FrmPrincipal::mnuSonido_Click() {
    partida.Sonido = static_cast<Boolean>(~partida.Sonido);
    menus.mnuSonido->setChecked(partida.Sonido != False);
}

void FrmPrincipal::mnuVel_Click() {
    Form1 dialogo(this, partida, escala, estampas);
    dialogo.exec();
}

void FrmPrincipal::mnuCont_Click() {
    Pedir_Ayuda(help::Contents);
}

void FrmPrincipal::mnuIndice_Click() {
    Pedir_Ayuda(help::Key);
}

void FrmPrincipal::mnuAcerca_Click() {
    acerca();
}

void FrmPrincipal::mnuSalir_Click() {
    Descargar(razon::Programa);
}

void FrmPrincipal::Pedir_Ayuda(Integer comando) {
    servicios.Ayuda.WinHelp(archivo_de_ayuda, comando, contexto_de_ayuda);
}

void FrmPrincipal::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_F1) {
        Form_KeyDown(TECLA_F1);
    } else if (evento->key() == Qt::Key_Escape && estuche->Arrastrando()) {
        estuche->Cancelar_Arrastre();
    } else {
        QMainWindow::keyPressEvent(evento);
    }
}

void FrmPrincipal::Form_KeyDown(Integer KeyCode) {
    if (KeyCode == TECLA_F1) Pedir_Ayuda(help::Context);
}

// Closing

void FrmPrincipal::closeEvent(QCloseEvent* evento) {
    evento->ignore();
    Descargar(razon::Marco);
}

void FrmPrincipal::Descargar(Integer motivo) {
    if (juego.Cerrando()) return;
    Boolean quedarse = False;
    Form_QueryUnload(quedarse, motivo);
    if (quedarse != False || juego.Cerrando()) return;
    juego.Cerrar();
    emit terminada();
}

void FrmPrincipal::Form_QueryUnload(Boolean& Cancel, Integer UnloadMode) {
    if (UnloadMode != razon::Marco && UnloadMode != razon::Programa) return;
    Cancel = True;
    if (preguntando) return;
    const Mientras pregunta(preguntando);
    const Integer boton = servicios.Mensajes.MsgBox("¿ Are you sure you want to quit ?",
                                                    style::QuestionYesNo, "¿ Exit ?");
    if (boton != button::Yes || juego.Cerrando()) return;
    const std::string fallo = ajustes.Guardar(menus, partida);
    if (!fallo.empty()) servicios.Mensajes.MsgBox(fallo, style::Exclamation, "Corvanda");
    Cancel = False;
}

}  // namespace corvanda
