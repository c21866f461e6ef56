#include "gui/dialogos.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
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

QString DialogosQt::Carpeta(QWidget* padre, const QString& titulo, const QString& carpeta) {
  QString elegida = QFileDialog::getExistingDirectory(padre, titulo, carpeta);
  // The folder without a closing "/", but "/" itself stays.
  while (elegida.size() > 1 && elegida.endsWith(u'/')) elegida.chop(1);
  return elegida;
}

void DialogosQt::ConfiguraImpresora(QWidget* padre, QPrinter& impresora) {
  QPrintDialog dialogo(&impresora, padre);
  dialogo.setOption(QAbstractPrintDialog::PrintPageRange, false);
  dialogo.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
  dialogo.setOption(QAbstractPrintDialog::PrintSelection, false);
  dialogo.setOption(QAbstractPrintDialog::PrintCollateCopies, false);
  dialogo.setOption(QAbstractPrintDialog::PrintShowPageSize, true);
  dialogo.exec();
  impresora.setCopyCount(1);
}

namespace {

class AvanceQt final : public Avance {
 public:
  AvanceQt(QWidget* padre, const QString& titulo, int total) : dialogo_(padre) {
    dialogo_.setWindowTitle(titulo);
    dialogo_.setWindowModality(Qt::WindowModal);
    dialogo_.setRange(0, total);
    dialogo_.setMinimumDuration(1000);
    dialogo_.setAutoReset(false);
    dialogo_.setAutoClose(false);
    dialogo_.setValue(0);
  }
  bool Paso(int hecho, const QString& texto) override {
    dialogo_.setLabelText(texto);
    dialogo_.setValue(hecho);
    QCoreApplication::processEvents();
    return !dialogo_.wasCanceled();
  }

 private:
  QProgressDialog dialogo_;
};

}  // namespace

std::unique_ptr<Avance> DialogosQt::EmpiezaAvance(QWidget* padre, const QString& titulo, int total) {
  return std::make_unique<AvanceQt>(padre, titulo, total);
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
