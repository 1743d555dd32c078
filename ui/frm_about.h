// The start-up screen, which is also the window behind "About...": black over the whole screen, two
// pictures, a film played again and again, and who made the game.
//
// Made anew for each showing and shown once: with show() at start-up, with exec() from the menu. A
// click, a key that types a character or the close of the window's frame ends it, and so does the
// tick that brings Veces to 30. However it ends that way, the main window is shown.
#pragma once

#include <QDialog>
#include <QTimer>
#include <functional>
#include <string>

#include "runtime/ports.h"
#include "ui/escala.h"
#include "ui/letrero.h"

namespace corvanda {

class FrmAbout final : public QDialog {
    Q_OBJECT

  public:
    /// What the window needs of the desktop; everything must outlive it.
    struct Servicios_De_Acerca {
        MediaControl& Medios;
        MousePointer& Puntero;
        const App& Programa;
    };

    /// Loads the window. `ventana` may be missing. `Veces` counts the ticks of all showings and
    /// lives as long as the program. `imagenes` is the folder of the pictures, `principal` shows
    /// the main window.
    FrmAbout(QWidget* ventana, Integer& Veces, const Servicios_De_Acerca& servicios, Escala escala,
             const QString& imagenes, std::function<void()> principal);

    /// The scale at which the lowest text fits a screen of which so many logical pixels can be
    /// used.
    static Escala Escala_Para(QSizeF usable);
    /// Unloads the window if it is still loaded, without showing the main window.
    ~FrmAbout() override;

    /// Makes the web address visible.
    void Mostrar_Direccion();

    void Timer1_Timer();
    void Close_About();

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

  private:
    void Poner_Imagenes(const QString& imagenes);
    void Poner_Textos();
    Letrero* Poner_Texto(const char* nombre, const char* texto, const QColor& color);
    void Centrar(int ancho);
    bool Recibe_Clics(QPoint punto) const;
    void Form_Load();
    void Form_KeyPress(const QString& caracter);
    void Form_Unload();

    void Open_Avi(const std::string& nombre, const QWidget& Ventana);
    void Replay(const std::string& nombre);
    void Close_Avi(const std::string& nombre);
    void Mandar(const std::string& orden);

    Integer& Veces;
    const Servicios_De_Acerca servicios;
    const Escala escala;
    std::function<void()> principal;

    QWidget* Image1 = nullptr;
    QWidget* Picture1 = nullptr;
    QWidget* Image2 = nullptr;
    Letrero* Label1 = nullptr;
    Letrero* Label5 = nullptr;
    Letrero* lblDisp1 = nullptr;
    Letrero* lblDisp2 = nullptr;
    QTimer Timer1{this};

    std::string Archivo;
    std::string respuesta;  ///< what the last command answered
    bool pulsada = false;   ///< the button went down where a click counts
    bool descargada = false;
};

}  // namespace corvanda
