// The opening panel and the About box: the program's title, its version and a
// reference line over its picture. Neither holds the user up: each closes
// with a click, a key or after a while by itself.
#pragma once

#include <QWidget>

class QTimer;

namespace ss {

class TextosVentana;

class FormAcerca final : public QWidget {
 public:
  // The opening panel is a frameless splash; the About box a small window of
  // the main window. `ms`: how long it stays.
  enum class Modo { Apertura, Acerca };
  FormAcerca(Modo modo, TextosVentana& textos, const QString& carpetaDatos, int ms,
             QWidget* parent = nullptr);

 protected:
  void mousePressEvent(QMouseEvent* e) override;
  void keyPressEvent(QKeyEvent* e) override;
  void paintEvent(QPaintEvent* e) override;

 private:
  QTimer* reloj_;
};

}  // namespace ss
