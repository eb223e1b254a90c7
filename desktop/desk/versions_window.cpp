#include "desktop/desk/versions_window.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/desk/desk_view.h"
#include "desktop/desk/questions.h"
#include "desktop/dress/look.h"
#include "desktop/qt_text.h"
#include "desktop/viewer/messages.h"
#include "runtime/failure.h"

namespace orm {
namespace {

QTableWidget* Table(const char* name, const QString& accessible, const QStringList& captions) {
  auto* table = new QTableWidget(0, static_cast<int>(captions.size()));
  DressDeskTable(*table, name, accessible);
  table->setHorizontalHeaderLabels(captions);
  return table;
}

void SetCell(QTableWidget& table, int row, int column, const std::string& text,
             Qt::Alignment align = Qt::AlignLeft) {
  auto* item = new QTableWidgetItem(ToQt(text));
  item->setToolTip(ToQt(text));
  item->setTextAlignment(align | Qt::AlignVCenter);
  table.setItem(row, column, item);
}

}  // namespace

VersionsWindow::VersionsWindow(QWidget* parent, std::string folder, const ParcellaDelLavoro& note)
    : QDialog(parent),
      folder_(std::move(folder)),
      note_(note),
      list_(Table("versions", QStringLiteral("Versioni della parcella"),
                  {QStringLiteral("Com'era fino a"), QStringLiteral("Importo netto")})),
      differences_(Table("differences", QStringLiteral("Differenze tra le due versioni"),
                         {QStringLiteral("Dove"), QStringLiteral("Dato"),
                          QStringLiteral("Nella versione"), QStringLiteral("Nell'altra")})),
      other_(new QComboBox),
      said_(DeskLabel("said")),
      compared_(DeskLabel("compared")),
      back_(new QPushButton(QStringLiteral("&Riporta questa"))) {
  setWindowTitle(QStringLiteral("Versioni - %1 %2").arg(ToQt(note_.codice), ToQt(ValutaDi(note_))));
  Build();
  connect(list_, &QTableWidget::itemSelectionChanged, this, [this] { Compare(); });
  connect(other_, &QComboBox::currentIndexChanged, this, [this] { Compare(); });
  connect(back_, &QPushButton::clicked, this, [this] { BringBack(); });
  connect(&reckoning_, &QTimer::timeout, this, [this] { Reckon(); });
  List();
}

void VersionsWindow::Build() {
  list_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  list_->horizontalHeaderItem(1)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  list_->setColumnWidth(1, CharactersWide(*list_, 18));
  list_->setMinimumWidth(CharactersWide(*list_, 44));
  for (const int column : {1, 2, 3})
    differences_->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
  differences_->setColumnWidth(0, CharactersWide(*differences_, 18));
  other_->setObjectName(QStringLiteral("other"));
  auto* with = new QLabel(QStringLiteral("&Confronta con:"));
  with->setBuddy(other_);
  auto* left = new QVBoxLayout;
  left->addWidget(list_, 1);
  auto* choice = new QHBoxLayout;
  choice->addWidget(with);
  choice->addWidget(other_, 1);
  auto* right = new QVBoxLayout;
  right->addLayout(choice);
  right->addWidget(differences_, 1);
  right->addWidget(compared_);
  auto* tables = new QHBoxLayout;
  tables->addLayout(left, 2);
  tables->addLayout(right, 5);
  auto* buttons = new QDialogButtonBox;
  buttons->addButton(back_, QDialogButtonBox::ActionRole);
  buttons->addButton(QStringLiteral("C&hiudi"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  back_->setObjectName(QStringLiteral("back"));
  back_->setDefault(true);
  QLabel* head = DeskLabel("head");
  head->setText(
      Foldable(ToQt(note_.nome + "\n" + note_.committente + "\n" + note_.oggetto).trimmed()));
  auto* column = new QVBoxLayout(this);
  column->addWidget(head);
  column->addLayout(tables, 1);
  column->addWidget(said_);
  column->addWidget(buttons);
  resize(QSize(CharactersWide(*this, 150), 460).boundedTo(screen()->availableSize() * 0.9));
}

void VersionsWindow::List() {
  versions_ = VersioniDi(folder_, note_);
  const QSignalBlocker quiet(list_), quietToo(other_);
  other_->clear();
  list_->setRowCount(static_cast<int>(versions_.size()));
  for (std::size_t i = 0; i < versions_.size(); ++i) {
    const std::string when = QuandoInParole(versions_[i]);
    SetCell(*list_, static_cast<int>(i), 0, when);
    SetCell(*list_, static_cast<int>(i), 1, "...", Qt::AlignRight);
    other_->addItem(ToQt(when));
  }
  if (!versions_.empty())
    list_->selectRow(static_cast<int>(VersioneDaOffrire(folder_, note_, versions_)));
  reckoned_ = 0;
  reckoning_.start(0);
  list_->setFocus();
  Compare();
}

void VersionsWindow::Reckon() {
  if (reckoned_ >= versions_.size()) return reckoning_.stop();
  VersioneParcella& version = versions_[reckoned_];
  CalcolaNetto(folder_, note_, version);
  const int row = static_cast<int>(reckoned_++);
  SetCell(*list_, row, 1, version.netto ? version.netto->testo : "non si calcola", Qt::AlignRight);
  if (!version.motivo.empty()) list_->item(row, 1)->setToolTip(ToQt(version.motivo));
}

const VersioneParcella* VersionsWindow::Chosen() const {
  const int row = list_->currentRow();
  return row < 0 ? nullptr : &versions_[static_cast<std::size_t>(row)];
}

void VersionsWindow::Compare() {
  const VersioneParcella* chosen = Chosen();
  back_->setEnabled(chosen != nullptr && !chosen->Attuale());
  differences_->setRowCount(0);
  compared_->clear();
  if (versions_.size() < 2) {
    compared_->setText(QStringLiteral("Di questa parcella non ci sono versioni di prima."));
    return;
  }
  if (chosen == nullptr || other_->currentIndex() < 0) return;
  try {
    const std::vector<Differenza> found = Confronta(
        folder_, note_, *chosen, versions_[static_cast<std::size_t>(other_->currentIndex())]);
    differences_->setRowCount(static_cast<int>(found.size()));
    // Only a note of rows or lots says where.
    differences_->setColumnHidden(
        0, std::ranges::all_of(found, [](const Differenza& one) { return one.dove.empty(); }));
    for (int row = 0; row < differences_->rowCount(); ++row) {
      const Differenza& one = found[static_cast<std::size_t>(row)];
      SetCell(*differences_, row, 0, one.dove);
      SetCell(*differences_, row, 1, one.campo);
      SetCell(*differences_, row, 2, one.prima);
      SetCell(*differences_, row, 3, one.dopo);
    }
    if (found.empty()) compared_->setText(QStringLiteral("Nessuna differenza."));
  } catch (const RuntimeFailure& failure) {
    compared_->setText(Foldable(ToQt(failure.Text())));
  }
}

void VersionsWindow::BringBack() {
  const VersioneParcella* chosen = Chosen();
  if (chosen == nullptr || chosen->Attuale()) return;
  const QString when = ToQt(QuandoInParole(*chosen));
  reckoning_.stop();
  if (!Try(this, QStringLiteral("La versione non è stata riportata."),
           [&] { RiportaVersione(folder_, note_, *chosen); }))
    return;
  note_.vecchia = note_.relazione;  // it is of other data by now
  List();
  said_->setText(QStringLiteral("Riportata la versione del %1. Quella che c'era è ora tra le "
                                "versioni: si riporta allo stesso modo.")
                     .arg(when));
}

}  // namespace orm
