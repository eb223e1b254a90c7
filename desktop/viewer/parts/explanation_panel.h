// How a figure of the report came about, beside the page.
#pragma once

#include <QWidget>
#include <functional>

#include "interchange/explained_report.h"

class QLabel;
class QPushButton;
class QTextEdit;

namespace orm {

// Why a line of the report has no explanation, in words for its reader.
QString WhyNothing(const ReportSpiegato& report);

class ExplanationPanel : public QWidget {
 public:
  explicit ExplanationPanel(QWidget* parent = nullptr);

  // The explanations from which the panel shows; they live as long.
  void Take(const ReportSpiegato& report);
  // Shows the chain of a line counted from 1, or why there is none.
  void ShowLine(std::size_t line);

  // The text of what is shown, as "Copia" takes it.
  QString Shown() const;
  void Copy();

  // ---- for the find bar: the words in the explanations of all lines
  struct Place {
    std::size_t line = 0;
    int at = 0;  // which of the matches of its line
  };
  std::vector<Place> PlacesOf(const QString& words, Qt::CaseSensitivity letters) const;
  // Selects a match of the line that is shown.
  void Select(const QString& words, Qt::CaseSensitivity letters, int at);

  std::function<void()> left;   // by Esc
  std::function<void()> print;  // asked for: the report with all its explanations

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Fill();

  const ReportSpiegato* report_ = nullptr;
  std::size_t line_ = 0;
  QLabel* heading_;
  QTextEdit* text_;
  QPushButton *copy_, *print_;
};

}  // namespace orm
