#include "tests/ui/vigilante.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QTest>

namespace corvanda::pruebas {

namespace {

constexpr const char* VISTA = "vista_por_el_vigilante";
constexpr int PACIENCIA = 30000;  // milliseconds that a window may stay open

}  // namespace

Vigilante::Vigilante() {
    QObject::connect(&reloj, &QTimer::timeout, [this] { Mirar(); });
    reloj.start(1);
}

// The hand works outside the timer's own handler, or a window that it opens would not be seen.
void Vigilante::Mirar() {
    QWidget* ventana = QApplication::activeModalWidget();
    if (ventana == nullptr || !ventana->isVisible() || ventana->property(VISTA).toBool()) return;
    ventana->setProperty(VISTA, true);
    QTimer::singleShot(PACIENCIA, ventana, [ventana] {
        ADD_FAILURE() << "stayed open: " << ventana->windowTitle().toStdString();
        ventana->close();
    });
    if (const std::string caja = Caja_De(*ventana); !caja.empty()) cajas.push_back(caja);
    Mano mano = siempre;
    if (!manos.empty()) {
        mano = std::move(manos.front());
        manos.pop_front();
    }
    QTimer::singleShot(0, ventana, [ventana, mano] {
        if (mano) return mano(*ventana);
        ADD_FAILURE() << "nobody expected " << ventana->windowTitle().toStdString() << ": "
                      << Caja_De(*ventana);
        ventana->close();
    });
}

void Pulsar(QWidget& ventana, const QString& boton) {
    for (auto* uno : ventana.findChildren<QAbstractButton*>()) {
        if (uno->text() == boton) return QTest::mouseClick(uno, Qt::LeftButton);
    }
    ADD_FAILURE() << "no button " << boton.toStdString();
    ventana.close();
}

Vigilante::Mano Pulsa(const QString& boton) {
    return [boton](QWidget& ventana) { Pulsar(ventana, boton); };
}

void Sortear(QWidget& dialogo) {
    const QPointer<QWidget> abierto(&dialogo);
    auto* boton = dialogo.findChild<QAbstractButton*>("Btn");
    ASSERT_NE(boton, nullptr);
    while (abierto && abierto->isVisible()) QTest::mouseClick(boton, Qt::LeftButton);
}

std::string Caja_De(const QWidget& ventana) {
    const auto* caja = qobject_cast<const QMessageBox*>(&ventana);
    if (caja == nullptr) return {};
    int estilo = 0;
    if (caja->icon() == QMessageBox::Critical) estilo = 16;
    if (caja->icon() == QMessageBox::Question) estilo = 36;
    if (caja->icon() == QMessageBox::Warning) estilo = 48;
    if (caja->icon() == QMessageBox::Information) estilo = 64;
    return "caja " + std::to_string(estilo) + " [" + caja->windowTitle().toStdString() + "] " +
           caja->text().toStdString();
}

}  // namespace corvanda::pruebas
