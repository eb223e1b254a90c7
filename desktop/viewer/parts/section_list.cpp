#include "desktop/viewer/parts/section_list.h"

#include <QKeyEvent>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <algorithm>

namespace orm {
namespace {
constexpr std::size_t kMostSections = 10'000;  // of more nobody chooses one
}  // namespace

std::vector<Section> SectionsOf(const QString& text) {
  static const QRegularExpression section(QStringLiteral("^==+ ?(.*[^ =]) ?=*$"));
  static const QRegularExpression part(QStringLiteral("^(?:Solaio|Sbalzo) n\\. *: *\\d+"));
  static const QRegularExpression numbered(QStringLiteral("^ {0,4}\\d+ - .*\\S"));
  QString plain = text;
  const QStringList lines = plain.replace(QChar::LineSeparator, '\n').split('\n');
  std::vector<Section> sections;
  for (int i = 0; i < lines.size() && sections.size() < kMostSections; ++i) {
    const QString line = lines[i].trimmed();
    if (const auto found = section.match(line); found.hasMatch())
      sections.push_back({found.captured(1), i, 0});
    else if (part.match(line).hasMatch())
      sections.push_back({line.simplified(), i, 0});
    else if (numbered.match(lines[i]).hasMatch())
      sections.push_back({line.simplified(), i, 1});
  }
  return sections;
}

SectionList::SectionList(QWidget* parent) : QListWidget(parent) {
  setObjectName(QStringLiteral("sections"));
  setAccessibleName(QStringLiteral("Sezioni del documento"));
  setFrameShape(QFrame::NoFrame);
  setTextElideMode(Qt::ElideRight);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0 && chosen) chosen(sections_[static_cast<std::size_t>(row)].line);
  });
  // A click on the section that is marked already goes there too.
  connect(this, &QListWidget::itemClicked, this, [this] {
    if (chosen) chosen(sections_[static_cast<std::size_t>(currentRow())].line);
  });
}

void SectionList::Fill(const QString& text) {
  std::vector<Section> sections = SectionsOf(text);
  if (sections == sections_) return;  // a hand on the list keeps its place
  const QSignalBlocker quiet(this);
  clear();
  sections_ = std::move(sections);
  for (const Section& section : sections_) {
    // Complete before it is one of the list, which else looks for it at each change.
    auto* item = new QListWidgetItem(QString(qsizetype{3} * section.depth, ' ') + section.title);
    item->setToolTip(section.title);
    QFont font = item->font();
    font.setBold(section.depth == 0);
    item->setFont(font);
    addItem(item);
  }
}

void SectionList::Follow(int line) {
  const QSignalBlocker quiet(this);
  const auto behind = std::find_if(sections_.begin(), sections_.end(),
                                   [line](const Section& section) { return section.line > line; });
  setCurrentRow(static_cast<int>(behind - sections_.begin()) - 1);
}

int SectionList::LineBeyond(int line, bool backward) const {
  int found = -1;
  for (const Section& section : sections_) {
    if (backward ? section.line >= line : section.line > line)
      return backward ? found : section.line;
    if (backward) found = section.line;
  }
  return found;
}

void SectionList::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key != Qt::Key_Escape && key != Qt::Key_Return && key != Qt::Key_Enter)
    return QListWidget::keyPressEvent(event);
  if (left) left();
}

}  // namespace orm
