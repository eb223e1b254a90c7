// The jobs as the list on the left shows them: newest first, narrowed to what is sought.
#pragma once

#include <cstdint>

#include <QAbstractTableModel>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "jobs/job_list.h"
#include "jobs/job_search.h"

namespace orm {

// Times of files are in nanoseconds, those of Qt in milliseconds.
inline constexpr std::int64_t kNanosecondsInMillisecond = 1'000'000;

class JobsModel : public QAbstractTableModel {
 public:
  enum Column { Name, Notes, Day, Columns };

  explicit JobsModel(const std::string& root);

  Lavori& Jobs() { return jobs_; }

  // Looks again at the root; true when the list has changed. A root that cannot be read is a
  // RuntimeFailure.
  bool Look();

  // Narrows the list to the jobs whose name has these words; GoOn adds those whose notes have them,
  // a slice at each call, and is true when it has gone through all.
  void Seek(const QString& words);
  bool GoOn(std::chrono::milliseconds time);
  bool IsSeeking() const { return search_ != nullptr; }
  std::size_t Searched() const { return search_ == nullptr ? 0 : search_->Esaminati(); }

  QString NameAt(int row) const;
  int RowOf(const QString& name) const;  // -1: the list does not show it
  // The places of the notes of this job that are sought; empty where the job itself was.
  std::vector<std::size_t> FoundIn(const QString& name) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void Fill();
  void Add(const std::string& name);
  QString HowMany(const VoceLavoro& job) const;

  mutable Lavori jobs_;  // reads a job when one of its cells is shown
  QString words_;
  std::vector<std::size_t> rows_;  // places among the jobs, in their order
  std::unique_ptr<Ricerca> search_;
  std::size_t taken_ = 0;  // of what the search has found
};

}  // namespace orm
