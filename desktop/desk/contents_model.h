// What is in a job, as the table on the right shows it: its notes, then its other texts.
#pragma once

#include <QAbstractTableModel>
#include <string>
#include <vector>

#include "jobs/job.h"

namespace orm {

class ContentsModel : public QAbstractTableModel {
 public:
  enum Column { Case, Currency, Client, Subject, Presence, Day, Net, Columns };

  explicit ContentsModel(QObject* parent) : QAbstractTableModel(parent) {}

  void Show(const Lavoro& job);

  // Nothing where the row is another text.
  const ParcellaDelLavoro* NoteAt(int row) const;
  // The file that the row can show; empty where its report is not there.
  std::string FileAt(int row) const;
  int RowOf(const std::string& name) const;  // of a row by its first two columns; -1: none
  std::string NameOf(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const TestoDelLavoro* TextAt(int row) const;
  QString TextOf(int row, int column) const;
  Lavoro job_;
};

}  // namespace orm
