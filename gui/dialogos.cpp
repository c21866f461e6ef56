#include "gui/dialogos.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QProcess>
#include <QUrl>

#include <cstdlib>

#include "gui/forminiopt.h"

namespace ss {
namespace {

const QString kTitulo = QStringLiteral("Sheetsmith - Chemistry");

}  // namespace

void DialogosQt::Aviso(QWidget* padre, const QString& texto) {
  QMessageBox::warning(padre, kTitulo, texto);
}

void DialogosQt::Critico(QWidget* padre, const QString& texto) {
  QMessageBox::critical(padre, kTitulo, texto);
}

Respuesta DialogosQt::Pregunta(QWidget* padre, const QString& texto) {
  switch (QMessageBox::question(padre, kTitulo, texto,
                                QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes)) {
    case QMessageBox::Yes:
      return Respuesta::Si;
    case QMessageBox::No:
      return Respuesta::No;
    default:
      return Respuesta::Cancelar;
  }
}

bool DialogosQt::Confirma(QWidget* padre, const QString& texto) {
  return QMessageBox::warning(padre, kTitulo, texto, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
         QMessageBox::Yes;
}

QString DialogosQt::FicheroAbrir(QWidget* padre, const QString& titulo, const QString& carpeta,
                                 const QString& filtro) {
  return QFileDialog::getOpenFileName(padre, titulo, carpeta, filtro);
}

QString DialogosQt::FicheroGuardar(QWidget* padre, const QString& titulo, const QString& propuesta,
                                   const QString& filtro) {
  return QFileDialog::getSaveFileName(padre, titulo, propuesta, filtro);
}

RespuestaPanel DialogosQt::PanelInicio(FormIniOpt& panel) {
  panel.exec();
  return {panel.ComandoInicio(), panel.Mostrar()};
}

void DialogosQt::Modal(QDialog& dialogo) { dialogo.exec(); }

bool DialogosQt::LanzaPrograma(const QString& ruta) {
  return QProcess::startDetached(QCoreApplication::applicationFilePath(), {ruta});
}

bool DialogosQt::AbreConEscritorio(const QUrl& url) { return QDesktopServices::openUrl(url); }

void DialogosQt::TerminaYa() { std::_Exit(0); }

}  // namespace ss
