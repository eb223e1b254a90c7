// How the figures of the report came about: found anew when text or data have changed, shown beside
// the page, sought, copied and printed.
#include <QSplitter>

#include "desktop/export/subject.h"
#include "desktop/find_bar.h"
#include "desktop/qt_text.h"
#include "desktop/viewer/messages.h"
#include "desktop/viewer/parts/explanation_panel.h"
#include "desktop/viewer/parts/page.h"
#include "desktop/viewer/print.h"
#include "desktop/viewer/window.h"

namespace orm {

void ViewerWindow::BuildExplanations() {
  explanations_->hide();
  side_->addWidget(explanations_);
  explanations_->left = [this] { ShowExplanations(false); };
  explanations_->print = [this] { Print(true); };
  page_->escaped = [this] { ShowExplanations(false); };
  page_->markClicked = [this](int line) {
    page_->GoToLine(line);
    if (!ExplanationsShown()) ShowExplanations(true);
  };
  FurtherText further;
  further.count = [this](const QString& words, Qt::CaseSensitivity letters) {
    found_ = {words, letters, {}};
    if (ExplanationsShown()) found_.places = explanations_->PlacesOf(words, letters);
    return static_cast<int>(found_.places.size());
  };
  further.show = [this](int match) {
    const auto& place = found_.places[static_cast<std::size_t>(match)];
    page_->GoToLine(static_cast<int>(place.line));
    explanations_->Select(found_.words, found_.letters, place.at);
  };
  further.remark = QStringLiteral("nelle spiegazioni");
  find_->SeekAlsoIn(further);
}

void ViewerWindow::Explain() {
  QString text = page_->Visible();
  text.replace(QChar::LineSeparator, '\n').remove(ToQt(kLoneReturn));
  explained_ = SpiegaReport(place_.folder, place_.name, FromQt(text));
  std::vector<int> lines;
  for (const auto& [line, chain] : explained_.righe) lines.push_back(static_cast<int>(line));
  page_->SetMarks(lines);
  explanations_->Take(explained_);
  find_->SeekAnew();
  ShowState();
}

void ViewerWindow::ShowExplanations(bool on) {
  if (on == ExplanationsShown()) return;
  ExplainEdits();
  ShowBeside(*explanations_, on);
  page_->setFocus();  // the line is chosen there
  page_->ShowMarkedLine(on);
  find_->SeekAnew();
}

bool ViewerWindow::ExplanationsShown() const { return !explanations_->isHidden(); }

void ViewerWindow::ExplainEdits() {
  if (!edited_->isActive()) return;
  edited_->stop();
  Explain();
}

void ViewerWindow::GoToExplained(bool backward) {
  ExplainEdits();
  const auto here = static_cast<std::size_t>(page_->LineOfCursor());
  const auto& lines = explained_.righe;
  auto there = backward ? lines.lower_bound(here) : lines.upper_bound(here);
  if (backward ? there == lines.begin() : there == lines.end()) return;
  page_->GoToLine(static_cast<int>((backward ? --there : there)->first));
}

void ViewerWindow::CopyExplanation() { explanations_->Copy(); }

PrintedReport ViewerWindow::Printed(bool explained) const {
  PrintedReport report{page_->Visible(), DocumentTitle(page_->Visible(), Title()), {}};
  if (explained) report.notes = NotesOf(explained_.righe);
  return report;
}

bool ViewerWindow::HasExplanations() {
  ExplainEdits();
  if (!explained_.righe.empty()) return true;
  Tell(this, QMessageBox::Information, QStringLiteral("Non ci sono spiegazioni da stampare."),
       WhyNothing(explained_));
  return false;
}

void ViewerWindow::Print(bool explained) {
  if (!explained || HasExplanations()) PrintReport(Printed(explained), this);
}

void ViewerWindow::Preview() { PreviewReport(Printed(false), this); }

bool ViewerWindow::AskExplainedPdf() {
  if (!HasExplanations()) return false;
  const QString name = NameBySubject(page_->Visible(), Title()) + QStringLiteral(" (spiegazioni)");
  const QString path = AskName(NameOfCopy(CopyKind::Pdf, name));
  return !path.isEmpty() && SaveCopy(CopyKind::Pdf, path.toStdString(), true);
}

}  // namespace orm
