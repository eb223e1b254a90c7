#include "desktop/desk/desk_view.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>

namespace orm {

QLabel* DeskLabel(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(QString::fromLatin1(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

void DressDeskTable(QTableView& table, const char* name, const QString& accessible) {
  table.setObjectName(QString::fromLatin1(name));
  table.setAccessibleName(accessible);
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setSelectionMode(QAbstractItemView::SingleSelection);
  table.setEditTriggers(QAbstractItemView::NoEditTriggers);
  table.setTabKeyNavigation(false);
  table.setShowGrid(false);
  table.setAlternatingRowColors(true);
  table.setWordWrap(false);
  table.verticalHeader()->hide();
  // One height for all: ten thousand rows are not measured.
  table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 8);
  table.horizontalHeader()->setHighlightSections(false);
  table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

}  // namespace orm
