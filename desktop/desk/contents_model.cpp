#include "desktop/desk/contents_model.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QPalette>

#include "desktop/desk/jobs_model.h"
#include "desktop/dress/look.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {
QString NoteText(const ParcellaDelLavoro& note, int column) {
  switch (column) {
    case ContentsModel::Case:
      return ToQt(note.codice + "  " + note.nome);
    case ContentsModel::Currency:
      return ToQt(ValutaDi(note));
    case ContentsModel::Client:
      return ToQt(note.danno.empty() ? note.committente : note.danno);
    case ContentsModel::Subject:
      return ToQt(note.oggetto);
    case ContentsModel::Presence:
      return ToQt(CheCosaCE(note)).replace("intestazione, dati", "dati");  // these go together
    case ContentsModel::Day:
      return note.giorno ? ToQt(ShortDate(*note.giorno)) : QString();
    default:
      return note.netto ? ToQt(note.netto->testo) : QString();
  }
}

}  // namespace

void ContentsModel::Show(const Lavoro& job) {
  beginResetModel();
  job_ = job;
  endResetModel();
}

const ParcellaDelLavoro* ContentsModel::NoteAt(int row) const {
  const auto place = static_cast<std::size_t>(row);
  return row < 0 || place >= job_.parcelle.size() ? nullptr : &job_.parcelle[place];
}

const TestoDelLavoro* ContentsModel::TextAt(int row) const {
  const auto place = static_cast<std::size_t>(row) - job_.parcelle.size();
  return row < 0 || place >= job_.testi.size() ? nullptr : &job_.testi[place];
}

std::string ContentsModel::FileAt(int row) const {
  if (const ParcellaDelLavoro* note = NoteAt(row))
    return note->relazione ? note->file.Report : std::string();
  const TestoDelLavoro* text = TextAt(row);
  return text == nullptr ? std::string() : text->file;
}

std::string ContentsModel::NameOf(int row) const {
  if (const ParcellaDelLavoro* note = NoteAt(row))
    return note->codice + (note->lire ? "" : " Euro");
  const TestoDelLavoro* text = TextAt(row);
  return text == nullptr ? std::string() : text->file.substr(0, text->file.rfind('.'));
}

int ContentsModel::RowOf(const std::string& name) const {
  for (int row = 0; row < rowCount(); ++row)
    if (NameOf(row) == name) return row;
  return -1;
}

int ContentsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(job_.parcelle.size() + job_.testi.size());
}

int ContentsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Columns;
}

QString ContentsModel::TextOf(int row, int column) const {
  if (const ParcellaDelLavoro* note = NoteAt(row)) return NoteText(*note, column);
  const TestoDelLavoro& text = *TextAt(row);
  if (column == Case) return ToQt(text.descrizione);
  if (column == Presence) return ToQt(text.file);
  if (column != Day) return {};
  return QDateTime::fromMSecsSinceEpoch(text.cambiato / kNanosecondsInMillisecond)
      .toString(QStringLiteral("dd/MM/yyyy"));
}

QVariant ContentsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const ParcellaDelLavoro* note = NoteAt(index.row());
  const bool warns = note != nullptr && ((index.column() == Client && !note->danno.empty()) ||
                                         (index.column() == Presence && note->vecchia));
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return TextOf(index.row(), index.column());
    case Qt::TextAlignmentRole:
      return QVariant::fromValue<Qt::Alignment>(Qt::AlignVCenter |
                                                (index.column() == Net        ? Qt::AlignRight
                                                 : index.column() == Currency ? Qt::AlignHCenter
                                                                              : Qt::AlignLeft));
    case Qt::ForegroundRole:
      return warns ? QVariant(WarningText(QGuiApplication::palette())) : QVariant();
    default:
      return {};
  }
}

QVariant ContentsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole)
    return QVariant::fromValue<Qt::Alignment>(Qt::AlignVCenter |
                                              (section == Net        ? Qt::AlignRight
                                               : section == Currency ? Qt::AlignHCenter
                                                                     : Qt::AlignLeft));
  if (role != Qt::DisplayRole) return {};
  const QString captions[] = {"Parcella o testo", "Valuta",       "Committente",  "Oggetto",
                              "Che cosa c'è",     "Calcolata il", "Importo netto"};
  return captions[section];
}

}  // namespace orm
