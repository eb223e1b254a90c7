#include "desktop/viewer/parts/explanation_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTextBlock>
#include <QTextEdit>
#include <QVBoxLayout>

#include "desktop/qt_text.h"

namespace orm {
namespace {

using Esito = ReportSpiegato::Esito;

// The steps of a chain, a paragraph each.
QString Steps(const Spiegazione& spiegazione) {
  const QStringList lines = ToQt(TestoSpiegazione(spiegazione)).split('\n', Qt::SkipEmptyParts);
  QStringList steps;
  for (const QString& line : lines.mid(1)) steps += line.trimmed();
  return steps.join('\n');
}

}  // namespace

QString WhyNothing(const ReportSpiegato& report) {
  switch (report.esito) {
    case Esito::DatiCambiati:
      return QStringLiteral(
          "I dati sono cambiati dopo questo calcolo: le cifre della pagina non sono più quelle che "
          "i dati danno oggi.\nPer averne le spiegazioni occorre calcolare di nuovo la "
          "parcella.");
    case Esito::NonRiuscito:
      return QStringLiteral("Il calcolo, rifatto per spiegare le cifre, non è riuscito.\n") +
             ToQt(report.motivo);
    case Esito::SenzaDati:
      return QStringLiteral(
          "Si spiegano le cifre di una parcella che sta accanto ai suoi dati, con il nome che le "
          "dà "
          "il calcolo (OUT_PPE.DOC).\nVerifiche e utilità spiegano i loro risultati nella "
          "propria "
          "finestra.");
    case Esito::Inspiegato:
      return QStringLiteral("Il calcolo di questa parcella non dà spiegazioni delle sue cifre.");
    case Esito::InParte:
      return QStringLiteral(
          "La riga non porta una cifra calcolata, o è stata modificata a mano: sono spiegate le "
          "righe rimaste come il calcolo le ha scritte, che hanno un segno nel margine.");
    default:
      return QStringLiteral(
          "La riga non porta una cifra calcolata.\nLe righe spiegate hanno un segno nel margine: "
          "le mostrano un clic e le frecce; Alt+Giù e Alt+Su passano dall'una all'altra.");
  }
}

ExplanationPanel::ExplanationPanel(QWidget* parent)
    : QWidget(parent),
      heading_(new QLabel(this)),
      text_(new QTextEdit(this)),
      copy_(new QPushButton(QStringLiteral("C&opia"), this)),
      print_(new QPushButton(QStringLiteral("&Stampa con le spiegazioni..."), this)) {
  setObjectName(QStringLiteral("explanations"));
  heading_->setObjectName(QStringLiteral("explanationHeading"));
  heading_->setTextFormat(Qt::PlainText);
  heading_->setWordWrap(true);
  QFont bold = heading_->font();
  bold.setBold(true);
  heading_->setFont(bold);
  text_->setObjectName(QStringLiteral("explanationText"));
  text_->setAccessibleName(QStringLiteral("Spiegazione della riga"));
  text_->setReadOnly(true);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  text_->setFrameShape(QFrame::NoFrame);
  text_->setTabChangesFocus(true);
  copy_->setObjectName(QStringLiteral("copyExplanation"));
  copy_->setToolTip(QStringLiteral("Copia la spiegazione della riga (Ctrl+Maiusc+C)"));
  connect(copy_, &QPushButton::clicked, this, [this] { Copy(); });
  connect(print_, &QPushButton::clicked, this, [this] { print(); });
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(copy_);
  buttons->addWidget(print_);
  buttons->addStretch(1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(10, 10, 10, 10);
  column->addWidget(heading_);
  column->addWidget(text_, 1);
  column->addLayout(buttons);
}

void ExplanationPanel::Take(const ReportSpiegato& report) {
  report_ = &report;
  Fill();
}

void ExplanationPanel::ShowLine(std::size_t line) {
  if (line == line_) return;
  line_ = line;
  Fill();
}

QString ExplanationPanel::Shown() const {
  if (report_ == nullptr) return {};
  const auto found = report_->righe.find(line_);
  return found == report_->righe.end() ? QString() : ToQt(TestoSpiegazione(found->second));
}

void ExplanationPanel::Fill() {
  if (report_ == nullptr) return;
  const auto found = report_->righe.find(line_);
  const bool explained = found != report_->righe.end();
  heading_->setText(explained ? ToQt(found->second.testo) : QStringLiteral("Nessuna spiegazione"));
  copy_->setEnabled(explained);
  print_->setEnabled(!report_->righe.empty());
  text_->setPlainText(explained ? Steps(found->second) : WhyNothing(*report_));
  // Room between the steps, and their numbers in a column of their own.
  const bool many = explained && found->second.passi.size() > 9;
  const qreal number = QFontMetricsF(text_->font()).horizontalAdvance(many ? "10. " : "1. ");
  QTextBlockFormat paragraph;
  paragraph.setBottomMargin(QFontMetricsF(text_->font()).height() / 2);
  if (explained) {
    paragraph.setLeftMargin(number);
    paragraph.setTextIndent(-number);
  }
  QTextCursor all(text_->document());
  all.select(QTextCursor::Document);
  all.mergeBlockFormat(paragraph);
}

void ExplanationPanel::Copy() { QApplication::clipboard()->setText(Shown()); }

std::vector<ExplanationPanel::Place> ExplanationPanel::PlacesOf(const QString& words,
                                                                Qt::CaseSensitivity letters) const {
  std::vector<Place> places;
  if (report_ == nullptr || words.isEmpty()) return places;
  for (const auto& [line, spiegazione] : report_->righe) {
    const QString steps = Steps(spiegazione);
    int at = 0;
    for (auto i = steps.indexOf(words, 0, letters); i >= 0;
         i = steps.indexOf(words, i + words.size(), letters))
      places.push_back({line, at++});
  }
  return places;
}

void ExplanationPanel::Select(const QString& words, Qt::CaseSensitivity letters, int at) {
  QTextDocument::FindFlags flags;
  if (letters == Qt::CaseSensitive) flags |= QTextDocument::FindCaseSensitively;
  QTextCursor found(text_->document());
  for (; at >= 0 && !found.isNull(); --at) found = text_->document()->find(words, found, flags);
  if (found.isNull()) return;
  text_->setTextCursor(found);
  text_->ensureCursorVisible();
}

void ExplanationPanel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && left) return left();
  QWidget::keyPressEvent(event);
}

void ExplanationPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  // What the find bar has selected is as strong while the bar has the keyboard.
  QPalette colours = text_->palette();
  for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
    colours.setBrush(QPalette::Inactive, role, palette().brush(QPalette::Active, role));
  text_->setPalette(colours);
}

}  // namespace orm
