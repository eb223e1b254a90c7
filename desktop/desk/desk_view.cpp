#include "desktop/desk/desk_view.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>

#include "desktop/dress/look.h"

namespace orm {
namespace {

class ColumnWithRoom : public QObject {
 public:
  ColumnWithRoom(QTableView& table, int column, int characters)
      : QObject(&table), table_(table), column_(column), characters_(characters) {
    table.installEventFilter(this);
  }
  bool eventFilter(QObject* /*table*/, QEvent* event) override {
    if (event->type() == QEvent::Resize)
      table_.setColumnHidden(column_, table_.width() < CharactersWide(table_, characters_));
    return false;
  }

 private:
  QTableView& table_;
  int column_, characters_;
};

}  // namespace

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
  table.horizontalHeader()->setTextElideMode(Qt::ElideRight);
  table.horizontalHeader()->setHighlightSections(false);
  table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void ShowWithRoom(QTableView& table, int column, int characters) {
  new ColumnWithRoom(table, column, characters);
}

}  // namespace orm
