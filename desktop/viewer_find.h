// The find bar under the page: it marks every match and walks through them.
#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace orm {

class ViewerPage;

class FindBar : public QWidget {
 public:
  FindBar(ViewerPage& page, QWidget* parent = nullptr);

  void Open();   // with the selected words, if any, as what is sought
  void Close();  // and gives the keyboard back to the page
  void Next() { Step(false); }
  void Previous() { Step(true); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Typed();  // seeks anew from the start of the present match
  void Step(bool backward);
  void MarkMatches();
  void ShowCount(const QString& remark = {});

  ViewerPage& page_;
  QLineEdit* field_;
  QCheckBox* case_;
  QLabel* count_;
  QList<int> matches_;  // their positions, in order
};

}  // namespace orm
