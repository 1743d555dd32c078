// What the board, the windows and the help's pictures look like, beside approved pictures.
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPainter>
#include <QProxyStyle>
#include <QScreen>
#include <QStyleOption>
#include <QThreadPool>

#include "app/aplicacion.h"
#include "desktop/help_viewer.h"
#include "desktop/help_window.h"
#include "fuentes.h"
#include "tests/apoyo/retrato.h"
#include "tests/ui/ventana.h"
#include "tools/laminas/mesa.h"
#include "tools/laminas/ventanas.h"
#include "ui/form1.h"
#include "ui/frm_about.h"
#include "ui/frm_volado.h"

namespace corvanda::pruebas {
namespace {

/// Pictures that nobody but the tests look at keep fewer colours: that halves their files.
void Retratar_Aqui(const char* nombre, const QImage& imagen) {
    const auto menos = imagen.convertToFormat(QImage::Format_RGB16, Qt::AvoidDither);
    Retratar(QString("tests/retratos/") + nombre, menos.convertToFormat(QImage::Format_RGB32));
}

/// The board as it stands on the screen, which is not all painted anew.
void Retratar_Tablero(const char* nombre, Ventana& v) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return v.frm.Tablero().Quieto(); }));
    QCoreApplication::processEvents();
    const Estuche& tablero = v.frm.Tablero();
    const QRect lugar(tablero.mapTo(&v.frm, QPoint()), tablero.size());
    const QPixmap ventana = v.frm.screen()->grabWindow(v.frm.winId());
    Retratar_Aqui(nombre, ventana.copy(lugar).toImage());
}

TEST(Retratos, the_board) {
    constexpr std::pair<const char*, const char*> tabla[] = {
        {"board_bars", "B 11x5 16x4 18x4 bar2 | C 1x5 5x5 12x2 bar3 | dice 6 5"},
        {"board_trays", "B 23x2 22x3 21x1 | C 0x3 1x1 | turn C | dice 2 5"},
        {"board_doubles", "B 0x2 16x5 18x8 | C 12x6 7x7 23x2 | dice 4 4"},
    };
    Ventana v;
    v.Abrir();
    v.escritorio.Dados({6, 2, 3, 1});
    v.vigilante.Esperar(Sortear);
    v.frm.mnuNew_Click();
    Retratar_Tablero("board_start", v);
    for (const auto& [nombre, posicion] : tabla) {
        v.Poner(posicion);
        Retratar_Tablero(nombre, v);
    }
}

TEST(Retratos, tall_stacks_before_and_after_a_move) {
    Ventana v;
    v.Poner("B 2x7 16x8 | C 12x6 21x9 | turn C | dice 0 4");
    Retratar_Tablero("board_stacks", v);
    v.Poner("B 2x7 16x8 | C 12x6 21x9 | turn C | dice 3 3");
    v.raton.Arrastrar(v.Centro({Arreglo::Cafe, 14}), v.Base(18));
    v.raton.Arrastrar(v.Centro({Arreglo::Cafe, 5}), v.Base(9));
    v.raton.Ir({6, 6});
    Retratar_Tablero("board_moved", v);
}

TEST(Retratos, the_board_without_its_pictures) {
    Estampas estampas("/nonexistent");
    Ventana v;
    v.Poner("B 11x5 18x6 | C 0x3 5x2 23x2 | dice 6 5");
    Estuche& tablero = v.frm.Tablero();
    Pintura pintura(tablero.Medidas(), estampas);
    QImage hoja(tablero.size(), QImage::Format_RGB32);
    QPainter pintor(&hoja);
    pintura.Pintar(pintor, tablero.rect(), {}, {});
    Retratar_Aqui("board_plain", hoja);
}

TEST(Retratos, a_chip_in_the_hand_and_what_a_refusal_leaves) {
    Ventana v;
    v.Poner("dice 3 1");
    v.raton.Pulsar(v.Centro({Arreglo::Blanca, 1}));
    v.raton.Ir({2400, 2500});
    Retratar_Tablero("board_held", v);
    v.escritorio.Contestar();
    v.raton.Soltar(v.Base(23));
    ASSERT_TRUE(QTest::qWaitFor([&] { return v.Flotante().isHidden(); }));
    v.raton.Ir({6, 6});
    Retratar_Tablero("board_start", v);
    for (const auto tecla : {Qt::Key_Up, Qt::Key_Right, Qt::Key_Right})
        QTest::keyClick(&v.frm.Tablero(), tecla);
    Retratar_Tablero("board_frame", v);
}

/// Shows a window on the screen of this ratio and gives its inner part.
QImage Abierta(QWidget& ventana, int ratio = 1) {
    ventana.move(QGuiApplication::screens().at(ratio - 1)->geometry().topLeft() + QPoint(5, 5));
    ventana.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ventana.devicePixelRatioF() == ratio; }));
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    return ventana.grab().toImage();
}

class Dialogos : public testing::Test {
  protected:
    /// The start-player dialog after these throws, each by a press of its button.
    QImage Sorteo(std::initializer_list<int> tiros, int ratio = 1) {
        escritorio.Dados(tiros);
        FrmVolado dialogo(nullptr, modulo, escritorio, escritorio, escala, estampas, [] {});
        for (std::size_t i = 0; i < tiros.size(); ++i) dialogo.Btn_Click();
        return Abierta(dialogo, ratio);
    }
    /// The speed dialog once its chip has crossed it.
    QImage Velocidad(int ratio = 1) {
        Form1 dialogo(nullptr, modulo, escritorio, escala, estampas);
        Abierta(dialogo, ratio);
        const auto* aceptar = dialogo.findChild<QPushButton*>("BtnAceptar");
        EXPECT_TRUE(QTest::qWaitFor([&] { return aceptar->isEnabled(); }));
        return Abierta(dialogo, ratio);
    }

    Modulo1 modulo;
    Escritorio escritorio;
    const Escala escala;
    Estampas estampas{Carpeta_De_Imagenes()};
};

TEST_F(Dialogos, the_start_player_dialog_in_each_of_its_states) {
    Retratar_Aqui("start_fresh", Sorteo({}));
    Retratar_Aqui("start_white_thrown", Sorteo({4}));
    Retratar_Aqui("start_tie", Sorteo({2, 2}));
    Retratar_Aqui("start_white", Sorteo({6, 3}));
    Retratar_Aqui("start_brown", Sorteo({1, 5}));
    Retratar("ayuda/imagenes/startdialog", laminas::Enmarcada(Sorteo({5, 3}, 2)));
}

TEST_F(Dialogos, the_speed_dialog_before_and_after_its_slide) {
    modulo.Velocidad = 100;
    Form1 cerrado(nullptr, modulo, escritorio, escala, estampas);
    Retratar_Aqui("speed_before", cerrado.grab().toImage());
    Retratar_Aqui("speed_after", Velocidad());
    Retratar("ayuda/imagenes/speed", laminas::Enmarcada(Velocidad(2)));
}

/// A desktop's style that draws its buttons in its own colours.
struct Estilo_Oscuro final : QProxyStyle {
    Estilo_Oscuro() : QProxyStyle("Fusion") {}
    void drawControl(ControlElement parte, const QStyleOption* opcion, QPainter* pintor,
                     const QWidget* control) const override {
        if (parte == CE_PushButtonBevel) return pintor->fillRect(opcion->rect, QColor(0x303030));
        QProxyStyle::drawControl(parte, opcion, pintor, control);
    }
};

TEST_F(Dialogos, look_the_same_whatever_the_desktop_looks_like) {
    const QPalette antes = QApplication::palette();
    const QPalette negra(Qt::white, Qt::black, Qt::white, Qt::white, Qt::white, Qt::white,
                         Qt::black);
    modulo.Velocidad = 100;
    for (const bool propio : {false, true}) {
        if (propio) QApplication::setStyle(new Estilo_Oscuro);
        QApplication::setPalette(propio ? QPalette(QColor(0x353535)) : negra);
        Retratar_Aqui("start_white", Sorteo({6, 3}));
        Retratar_Aqui("speed_after", Velocidad());
    }
    QApplication::setStyle("Fusion");
    QApplication::setPalette(antes);
}

/// The start-up screen without its film, which may show any of its frames.
QImage Sin_Pelicula(QWidget& acerca) {
    QImage vista = Abierta(acerca);
    QPainter(&vista).fillRect(acerca.findChild<QWidget*>("Picture1")->geometry(), Qt::gray);
    return vista;
}

TEST(Retratos, the_start_up_screen_and_with_the_address_what_the_menu_shows) {
    Random azar(1);
    Aplicacion programa(azar);
    programa.Empezar();
    for (QWidget* ventana : QApplication::topLevelWidgets()) {
        if (qobject_cast<FrmAbout*>(ventana) == nullptr) continue;
        Retratar_Aqui("about", Sin_Pelicula(*ventana));
        ventana->close();
    }
    Vigilante vigilante;
    vigilante.Esperar([](QWidget& acerca) {
        Retratar_Aqui("about_address", Sin_Pelicula(acerca));
        acerca.close();
    });
    programa.Ventana().mnuAcerca_Click();
    EXPECT_TRUE(vigilante.Gastado());
}

TEST(Retratos, the_help_window) {
    Escritorio escritorio;
    const std::string carpeta = QFileInfo(CORVANDA_AYUDA).path().toStdString();
    QtHelpViewer ayuda(escritorio, carpeta, "Corvanda");
    const std::tuple<const char*, Integer, Integer> tabla[] = {
        {"help_contents", help::Contents, 0},
        {"help_topic", help::Context, 2},
        {"help_index", help::Key, 0},
    };
    for (const auto& [nombre, orden, contexto] : tabla) {
        ayuda.WinHelp(carpeta + "\\corvanda.HLP", orden, contexto);
        for (QWidget* ventana : QApplication::topLevelWidgets()) {
            if (qobject_cast<HelpWindow*>(ventana) == nullptr) continue;
            ventana->resize(720, 540);
            Retratar_Aqui(nombre, Abierta(*ventana));
        }
    }
}

/// Icons of boxes that tell which one it is and are the same in every version of the toolkit.
struct Iconos_Lisos final : QProxyStyle {
    Iconos_Lisos() : QProxyStyle("Fusion") {}
    int pixelMetric(PixelMetric medida, const QStyleOption* opcion,
                    const QWidget* control) const override {
        if (medida == PM_MessageBoxIconSize) return 32;
        return QProxyStyle::pixelMetric(medida, opcion, control);
    }
    QIcon standardIcon(StandardPixmap icono, const QStyleOption*, const QWidget*) const override {
        QPixmap liso(32, 32);
        liso.fill(QColor::fromHsv(40 * icono % 360, 255, 255));
        return liso;
    }
};

TEST(Retratos, the_message_boxes) {
    QApplication::setStyle(new Iconos_Lisos);
    const std::tuple<const char*, const char*, Integer> tabla[] = {
        {"box_critical", "You can't do that move", style::Critical},
        {"box_information", "You have to play the  6", style::Information},
        {"box_exclamation", "The player with White Chips Won", style::Exclamation},
        {"box_question", "¿ Are you sure you want to quit ?", style::QuestionYesNo},
    };
    Ventana v(Ventana::Cajas::Reales);
    for (const auto& [nombre, texto, estilo] : tabla) {
        v.vigilante.Esperar([nombre = nombre](QWidget& caja) {
            Retratar_Aqui(nombre, Abierta(caja));
            caja.close();
        });
        v.boxes.MsgBox(texto, estilo, "Corvanda");
    }
    QApplication::setStyle("Fusion");
}

/// The corner of the window in which its menus are, with those that are open.
QImage Esquina(Ventana& v) {
    QImage vista = v.frm.grab({0, 0, 420, 130}).toImage();
    QPainter pintor(&vista);
    for (auto* menu : v.frm.menuBar()->findChildren<QMenu*>()) {
        if (menu->isVisible())
            pintor.drawPixmap(v.frm.mapFromGlobal(menu->mapToGlobal(QPoint())), menu->grab());
    }
    return vista;
}

TEST(Retratos, the_window_with_each_menu_open) {
    Ventana v;
    v.Poner("dice 0 0");
    constexpr std::pair<const char*, const char*> tabla[] = {
        {"menu_game", "mnuGame"}, {"menu_options", "mnuOpciones"}, {"menu_help", "mnuAyuda"}};
    for (const auto& [nombre, cual] : tabla) {
        auto& menu = *v.frm.menuBar()->findChild<QMenu*>(cual);
        v.frm.menuBar()->setActiveAction(menu.menuAction());
        ASSERT_TRUE(QTest::qWaitFor([&] { return menu.isVisible(); }));
        if (auto* niveles = menu.findChild<QMenu*>("mnuLevel")) {
            menu.setActiveAction(niveles->menuAction());
            QTest::keyClick(&menu, Qt::Key_Right);
            ASSERT_TRUE(QTest::qWaitFor([&] { return niveles->isVisible(); }));
        }
        Retratar_Aqui(nombre, Esquina(v));
        menu.close();
    }
}

TEST(Laminas, are_as_the_board_is_drawn) {
    Estampas estampas(Carpeta_De_Imagenes());
    for (const laminas::Lamina& lamina : laminas::Tabla()) {
        Retratar(QString("ayuda/imagenes/") + lamina.nombre, laminas::Dibujar(lamina, estampas));
    }
    Retratar("ayuda/imagenes/dice", laminas::Frecuencias(estampas));
}

}  // namespace
}  // namespace corvanda::pruebas
