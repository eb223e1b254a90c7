// The versions of a note: what each held, how two of them differ, and bringing one back.
#pragma once

#include <QDialog>
#include <QTimer>
#include <string>
#include <vector>

#include "jobs/note_versions.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace orm {

class VersionsWindow : public QDialog {
 public:
  VersionsWindow(QWidget* parent, std::string folder, const ParcellaDelLavoro& note);

 private:
  void Build();
  void List();
  void Reckon();  // the next net amount that is not known yet
  void Compare();
  void BringBack();
  const VersioneParcella* Chosen() const;

  const std::string folder_;
  ParcellaDelLavoro note_;
  std::vector<VersioneParcella> versions_;
  QTableWidget *list_, *differences_;
  QComboBox* other_;
  QLabel *said_, *compared_;
  QPushButton* back_;
  QTimer reckoning_;
  std::size_t reckoned_ = 0;
};

}  // namespace orm
