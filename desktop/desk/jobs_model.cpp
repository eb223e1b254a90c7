#include "desktop/desk/jobs_model.h"

#include <QDateTime>
#include <algorithm>

#include "desktop/qt_text.h"
#include "runtime/failure.h"

namespace orm {
JobsModel::JobsModel(const std::string& root) : jobs_(root) {}

bool JobsModel::Look() {
  if (!jobs_.Guarda()) return false;
  beginResetModel();
  Fill();
  endResetModel();
  return true;
}

void JobsModel::Seek(const QString& words) {
  words_ = words;
  beginResetModel();
  Fill();
  endResetModel();
}

void JobsModel::Fill() {
  search_.reset();
  taken_ = 0;
  const std::vector<VoceLavoro>& all = jobs_.Voci();
  const Richiesta sought(FromQt(words_));
  rows_.clear();
  for (std::size_t i = 0; i < all.size(); ++i)
    if (sought.Vuota() || sought.TrovaNome(all[i].nome)) rows_.push_back(i);
  if (!sought.Vuota()) search_ = std::make_unique<Ricerca>(jobs_, FromQt(words_));
}

bool JobsModel::GoOn(std::chrono::milliseconds time) {
  if (search_ == nullptr) return true;
  const bool ended = search_->Prosegui(time);
  for (; taken_ < search_->Trovati().size(); ++taken_) Add(search_->Trovati()[taken_].nome);
  return ended;
}

void JobsModel::Add(const std::string& name) {
  const std::vector<VoceLavoro>& all = jobs_.Voci();
  const auto job = std::find_if(all.begin(), all.end(),
                                [&name](const VoceLavoro& one) { return one.nome == name; });
  const auto place = static_cast<std::size_t>(job - all.begin());
  const auto before = std::lower_bound(rows_.begin(), rows_.end(), place);
  if (job == all.end() || (before != rows_.end() && *before == place)) return;
  const int row = static_cast<int>(before - rows_.begin());
  beginInsertRows({}, row, row);
  rows_.insert(before, place);
  endInsertRows();
}

QString JobsModel::NameAt(int row) const {
  if (row < 0 || row >= rowCount()) return {};
  return ToQt(jobs_.Voci()[rows_[static_cast<std::size_t>(row)]].nome);
}

int JobsModel::RowOf(const QString& name) const {
  for (int row = 0; row < rowCount(); ++row)
    if (NameAt(row) == name) return row;
  return -1;
}

std::vector<std::size_t> JobsModel::FoundIn(const QString& name) const {
  if (search_ != nullptr)
    for (const LavoroTrovato& found : search_->Trovati())
      if (found.nome == FromQt(name)) return found.parcelle;
  return {};
}

int JobsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int JobsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Columns;
}

// Its notes; of a folder that cannot be read nothing is known.
QString JobsModel::HowMany(const VoceLavoro& job) const {
  try {
    return QString::number(jobs_.DettagliGiaVisti(job.nome).parcelle.size());
  } catch (const RuntimeFailure&) {
    return {};
  }
}

QVariant JobsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const VoceLavoro& job = jobs_.Voci()[rows_[static_cast<std::size_t>(index.row())]];
  if (role == Qt::ToolTipRole) return ToQt(jobs_.CartellaDi(job.nome));
  if (role == Qt::TextAlignmentRole && index.column() == Notes) return Qt::AlignCenter;
  if (role != Qt::DisplayRole) return {};
  if (index.column() == Name) return ToQt(job.nome);
  if (index.column() == Notes) return HowMany(job);
  return QDateTime::fromMSecsSinceEpoch(job.cambiato / kNanosecondsInMillisecond)
      .toString(QStringLiteral("dd/MM/yyyy"));
}

QVariant JobsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole && section == Notes) return Qt::AlignCenter;
  if (role != Qt::DisplayRole) return {};
  const QString captions[] = {"Lavoro", "Parcelle", "Ultima modifica"};
  return captions[section];
}

}  // namespace orm
