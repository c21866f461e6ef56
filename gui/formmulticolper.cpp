#include "gui/formmulticolper.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "gui/dialogos.h"
#include "gui/marcos.h"
#include "output/grupo.h"
#include "problems/texto.h"
#include "worksheet/ajustes.h"
#include "worksheet/colfile.h"
#include "worksheet/coleccion.h"

namespace ss {
namespace {

const QString kSeccion = QStringLiteral("Alumnos"), kClave = QStringLiteral("ListFile");

}  // namespace

FormMultiColPer::FormMultiColPer(EntornoGrupo entorno, QWidget* parent) : QDialog(parent), e_(std::move(entorno)) {
  setObjectName(QStringLiteral("FormMultiColPer"));
  TextosVentana& t = e_.textos;
  setWindowTitle(TextoW(t, "StudentWorksheets"));
  auto* raiz = new QVBoxLayout(this);

  QString instrucciones;
  for (const char* clave : {"Instruction0", "Instruction1", "Instruction2", "Instruction3", "Instruction4", "Instruction5"})
    instrucciones += TextoW(t, clave) + u' ';
  auto* texto = new QLabel(instrucciones.trimmed(), this);
  texto->setWordWrap(true);
  raiz->addWidget(texto);

  // One line for each problem, numbered as the worksheet numbers it; all chosen at first.
  const ColeccionCab& cab = e_.col.cab;
  list1_ = new QListWidget(this);
  list1_->setObjectName(QStringLiteral("List1"));
  list1_->setSelectionMode(QAbstractItemView::MultiSelection);
  for (std::size_t k = 0; k < e_.col.problemas.size(); ++k) {
    auto* fila = new QListWidgetItem(DeTexto(cab.PROPRE) +
                                         QString::number(cab.PROINI + static_cast<int>(k)) +
                                         DeTexto(cab.PROSUF),
                                     list1_);
    fila->setSelected(true);
  }
  raiz->addWidget(list1_, 1);
  auto* seleccion = new QHBoxLayout;
  auto* lblSel = new QLabel(TextoW(t, "Select"), this);
  lblSel->setObjectName(QStringLiteral("Lbl_SEL"));
  seleccion->addWidget(lblSel);
  const char* claves[3] = {"All_prob", "None_prob", "Invert_Sel"};
  for (int k = 0; k < 3; ++k) {
    auto* b = new QPushButton(TextoW(t, claves[k]), this);
    b->setObjectName(QStringLiteral("Cmd_SEL%1").arg(k));
    connect(b, &QPushButton::clicked, this, [this, k] { Cmd_SEL(k); });
    seleccion->addWidget(b);
  }
  seleccion->addStretch(1);
  raiz->addLayout(seleccion);
  pista_ = new QLabel(this);
  pista_->setObjectName(QStringLiteral("LblHint"));
  pista_->setWordWrap(true);
  raiz->addWidget(pista_);
  connect(list1_, &QListWidget::itemSelectionChanged, this, [this] { ActualizaPista(); });

  // The list file and the new folder.
  lista_ = e_.almacen.Lee(kSeccion, kClave, QString());
  if (lista_.isEmpty()) lista_ = QDir(e_.carpetaDatos).filePath(TextoW(t, "StudentListDef_FileName"));
  padre_ = e_.carpetaInicial;
  if (padre_.isEmpty()) padre_ = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  if (padre_.isEmpty() || !QFileInfo(padre_).isDir()) padre_ = QDir::homePath();
  nombre_ = NombreCarpetaGrupo(QDateTime::currentDateTime());

  auto* g = new QGridLayout;
  g->addWidget(new QLabel(TextoW(t, "StudentList"), this), 0, 0);
  lblAlumFile_ = new QLabel(this);
  lblAlumFile_->setObjectName(QStringLiteral("LblALUMFILE"));
  auto* buscar = new QPushButton(TextoW(t, "Search", true), this);
  buscar->setObjectName(QStringLiteral("Command1"));
  g->addWidget(lblAlumFile_, 0, 1);
  g->addWidget(buscar, 0, 2);
  g->addWidget(new QLabel(TextoW(t, "TargetFolder"), this), 1, 0);
  lblFolder_ = new QLabel(this);
  lblFolder_->setObjectName(QStringLiteral("LblFOLDER"));
  auto* cambiar = new QPushButton(TextoW(t, "Change", true), this);
  cambiar->setObjectName(QStringLiteral("Command2"));
  g->addWidget(lblFolder_, 1, 1);
  g->addWidget(cambiar, 1, 2);
  g->setColumnStretch(1, 1);
  raiz->addLayout(g);
  for (QLabel* l : {lblAlumFile_, lblFolder_}) {
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    l->setFrameShape(QFrame::StyledPanel);
    l->setMinimumWidth(360);
  }
  connect(buscar, &QPushButton::clicked, this, [this] {
    const QString filtro = TextoW(e_.textos, "TextFiles") + QStringLiteral(" (*.txt);;") +
                           TextoW(e_.textos, "AllFiles") + QStringLiteral(" (*)");
    const QString f = e_.dialogos.FicheroAbrir(this, TextoW(e_.textos, "StudentList"),
                                               QFileInfo(lista_).absolutePath(), filtro);
    if (!f.isEmpty()) lista_ = f;
    MuestraRutas();
  });
  connect(cambiar, &QPushButton::clicked, this, [this] {
    const QString c = e_.dialogos.Carpeta(this, TextoW(e_.textosCarpeta, "Select_place_New_Folder"), padre_);
    if (!c.isEmpty()) padre_ = c;
    MuestraRutas();
  });

  auto* botones = new QDialogButtonBox(this);
  auto* ok = botones->addButton(QDialogButtonBox::Ok);
  ok->setObjectName(QStringLiteral("CmdOK"));
  auto* cancelar = botones->addButton(QDialogButtonBox::Cancel);
  cancelar->setObjectName(QStringLiteral("CmdCancel"));
  connect(ok, &QPushButton::clicked, this, [this] { CmdOK(); });
  connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
  raiz->addWidget(botones);

  MuestraRutas();
  ActualizaPista();
  resize(560, 520);
}

FormMultiColPer::~FormMultiColPer() { e_.almacen.Escribe(kSeccion, kClave, lista_); }

QString FormMultiColPer::Destino() const { return QDir(padre_).filePath(nombre_); }

void FormMultiColPer::MuestraRutas() {
  lblAlumFile_->setText(QDir::toNativeSeparators(lista_));
  lblFolder_->setText(QDir::toNativeSeparators(Destino()));
}

void FormMultiColPer::Cmd_SEL(int como) {
  EligeFilas(list1_, como);
  ActualizaPista();
}

void FormMultiColPer::ActualizaPista() {
  const qsizetype elegidos = list1_->selectedItems().size();
  QString pista;
  if (elegidos == list1_->count())
    pista = TextoW(e_.textos, "ModifyAllProb1") + u' ' + TextoW(e_.textos, "ModifyAllProb2");
  else if (elegidos == 0)
    pista = TextoW(e_.textos, "ModifyNoneProb1") + u' ' + TextoW(e_.textos, "ModifyNoneProb2");
  pista_->setText(pista);
}

void FormMultiColPer::CmdOK() {
  distintos_.assign(static_cast<std::size_t>(list1_->count()), false);
  for (int i = 0; i < list1_->count(); ++i) distintos_[static_cast<std::size_t>(i)] = list1_->item(i)->isSelected();
  QFile fichero(lista_);
  if (lista_.isEmpty() || !QFileInfo(lista_).isFile() || !fichero.open(QIODevice::ReadOnly))
    return e_.dialogos.Aviso(this, TextoW(e_.textos, "Error_NoStudentsFile"));
  std::vector<QString> alumnos = LeeListaAlumnos(fichero.read(kMaxTamanoColeccion));
  if (alumnos.empty()) return e_.dialogos.Aviso(this, TextoW(e_.textos, "Error_InvalidStudentsFile"));
  if (alumnos.size() > static_cast<std::size_t>(kAlumnosSinPreguntar) &&
      !e_.dialogos.Confirma(this, TextoW(e_.textos, "VeryLargeStudentFile") + u'\n' + TextoW(e_.textos, "DoYouContinue")))
    return;
  alumnos_ = std::move(alumnos);
  resultado_ = true;
  accept();
}

}  // namespace ss
