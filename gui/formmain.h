// The main window. For now it holds the one document and the files named on
// the command line; pages, menus and toolbar come with the document view.
#pragma once

#include <QMainWindow>
#include <QStringList>

#include "worksheet/coleccion.h"

namespace ss {

class FormMain : public QMainWindow {
 public:
  explicit FormMain(const QStringList& ficherosAbrir, QWidget* parent = nullptr);

  Documento& documento() { return doc_; }
  const QStringList& ficherosAbrir() const { return ficherosAbrir_; }

 private:
  Documento doc_;
  QStringList ficherosAbrir_;
};

}  // namespace ss
