#include "ui/frm_principal.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>
#include <algorithm>

#include "ui/estuche_accesible.h"
#include "ui/form1.h"
#include "ui/frm_volado.h"

namespace corvanda {

namespace {

constexpr double ANCHO = 10215;  // twips, inside the frame and below the menus
constexpr double ALTO = 6495;
constexpr Integer TECLA_F1 = 112;
constexpr double SOMBRA = 300;       // twips that the shadow of the case reaches
constexpr int AIRE_DEL_TITULO = 12;  // logical pixels a title bar has above and below its letters

// Before anything is told of the board, or it would be described as any other control.
Estuche* Hacer_Estuche(const Partida& partida, Escala escala, Estampas& estampas, Fondo& fondo) {
    EstucheAccesible::Instalar();
    auto* estuche = new Estuche(partida, escala, estampas, &fondo);
    fondo.Poner(*estuche, qRound(escala.Pixeles(SOMBRA)));
    return estuche;
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
      fondo(new Fondo(this)),
      estuche(Hacer_Estuche(partida, escala, estampas, *fondo)),
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
    estuche->Sentar(juego);
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

// Start-up

void FrmPrincipal::Form_Load() {
    const App& programa = servicios.Programa;
    archivo_de_ayuda = programa.Path() + "\\" + programa.EXEName() + ".HLP";
    servicios.Azar.Randomize();
    partida.Dobles = 0;
    juego.Cargar_Controles();
    juego.Ordenar();
    Mostrar_Ventana();
    servicios.Eventos.DoEvents();
    if (juego.Cerrando()) return;
    juego.Vestir_Tablero();
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
    FrmVolado dialogo(this, partida, servicios.Azar, servicios.Eventos, escala, estampas,
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
    Form1 dialogo(this, partida, servicios.Eventos, escala, estampas);
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
