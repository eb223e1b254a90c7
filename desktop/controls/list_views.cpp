// Lists, folded and open.
#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>
#include <QScreen>
#include <QStyle>
#include <QStylePainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "desktop/controls/views.h"
#include "desktop/dress/look.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr int kWidest = 46;  // characters shown of an item; a longer one is seen whole as a tip
constexpr int kOpened = 90;  // characters of the widest open list
constexpr int kLeast = 8;    // letters
constexpr int kLeastRows = 5, kMostRows = 8, kNarrowest = 24;  // of an open list

int Characters(const std::vector<std::string>& items) {
  qsizetype longest = kLeast;
  for (const std::string& item : items) longest = std::max(longest, ToQt(item).size());
  return static_cast<int>(std::min<qsizetype>(longest, kWidest));
}

// Shows by "…" that an item is longer than the field.
class FoldedList : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText =
        fontMetrics().elidedText(option.currentText, Qt::ElideRight, room.width() - 4);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
  }
};

// Items on as many lines as a width asks for.
class WrappedItems : public QStyledItemDelegate {
 public:
  WrappedItems(int width, QObject* parent) : QStyledItemDelegate(parent), width_(width) {}
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize line = QStyledItemDelegate::sizeHint(option, index);
    const QRect text = option.fontMetrics.boundingRect(QRect(0, 0, width_, QWIDGETSIZE_MAX),
                                                       Qt::TextWordWrap, index.data().toString());
    return {width_, line.height() + text.height() - option.fontMetrics.height()};
  }

 private:
  int width_;
};

class ComboView : public ControlView {
 public:
  ComboView(ComboBox& combo, FormHost& host)
      : ControlView(combo, host), combo_(combo), box_(new FoldedList(host.Window())) {
    box_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box_->setMaxVisibleItems(12);
    box_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    UseField(box_);
    connect(box_, &QComboBox::currentIndexChanged, this, [this](int index) {
      if (!refreshing_) host_.Act([this, index] { combo_.SetIndex(index); });
    });
    // The item that the program had chosen, chosen by the person.
    connect(box_, &QComboBox::activated, this, [this](int index) {
      if (combo_.IsAutomatic()) host_.Act([this, index] { combo_.SetIndex(index); });
    });
  }
  void Refresh() override {
    ControlView::Refresh();
    refreshing_ = true;
    if (items_ != combo_.Items() || box_->count() == 0) Fill();
    box_->setCurrentIndex(combo_.Index());
    refreshing_ = false;
    if (box_->currentText().size() > kWidest) box_->setToolTip(box_->currentText());
    ShowChoice();
  }
  std::string Shown() const override { return FromQt(box_->currentText()); }

 private:
  void Fill() {
    items_ = combo_.Items();
    box_->clear();
    for (const std::string& item : items_) {
      box_->addItem(ToQt(item));
      box_->setItemData(box_->count() - 1, ToQt(item), Qt::ToolTipRole);
    }
    // Lists that are refilled keep the greatest width, so that nothing jumps.
    const int letter = box_->fontMetrics().horizontalAdvance('X');  // by which a combo measures
    const int longest = LongestItem(), shown = std::min(longest, CharactersWide(*box_, kWidest));
    box_->setMinimumContentsLength(
        std::max({kLeast, box_->minimumContentsLength(), (shown + letter - 1) / letter}));
    if (longest > shown) UseMoreRoom(longest);
    WidenPopup();
  }
  // A window that is wider for other reasons shows more of items that are too long.
  void UseMoreRoom(int longest) {
    const int around = box_->sizeHint().width() - CharactersWide(*box_, kWidest);
    box_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    box_->setMaximumWidth(longest + around);
  }
  int LongestItem() const {
    int longest = 0;
    for (const std::string& item : items_)
      longest = std::max(longest, box_->fontMetrics().horizontalAdvance(ToQt(item)));
    return longest;
  }
  // As wide as the longest item; one that is longer than a line that can be read, or wider than the
  // screen, is wrapped.
  void WidenPopup() {
    const int longest = LongestItem();
    const int around = box_->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 24;
    const int room = std::min(CharactersWide(*box_, kOpened),
                              box_->screen()->availableSize().width() - 2 * around);
    auto* list = qobject_cast<QListView*>(box_->view());
    list->setMinimumWidth(std::min(longest, room) + around);
    if (longest <= room) return;
    list->setWordWrap(true);
    list->setTextElideMode(Qt::ElideNone);
    list->setItemDelegate(new WrappedItems(room, list));
  }
  void ShowChoice() {
    QPalette palette;
    if (combo_.IsAutomatic()) palette.setColor(QPalette::ButtonText, AutomaticText(palette));
    box_->setPalette(palette);
    box_->setAccessibleDescription(combo_.IsAutomatic() ? "Scelto dal programma" : "");
  }
  ComboBox& combo_;
  QComboBox* box_;
  std::vector<std::string> items_;
  bool refreshing_ = false;
};

class ListWidget : public QListWidget {
 public:
  using QListWidget::QListWidget;
  QSize sizeHint() const override { return minimumSize(); }
};

class ListView : public ControlView {
 public:
  ListView(ListBox& list, FormHost& host)
      : ControlView(list, host), list_(list), box_(new ListWidget(host.Window())) {
    box_->setSelectionMode(QAbstractItemView::SingleSelection);
    box_->setUniformItemSizes(true);
    box_->setSpacing(1);
    box_->setTextElideMode(Qt::ElideRight);
    box_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    UseField(box_);
    connect(box_, &QListWidget::currentRowChanged, this, [this](int index) {
      if (!refreshing_) host_.Act([this, index] { list_.SetIndex(index); });
    });
  }
  bool Grows() const override { return true; }
  void Refresh() override {
    ControlView::Refresh();
    refreshing_ = true;
    if (items_ != list_.Items() || box_->count() == 0) Fill();
    box_->setCurrentRow(list_.Index());
    refreshing_ = false;
  }
  std::string Shown() const override {
    return box_->currentItem() == nullptr ? std::string() : FromQt(box_->currentItem()->text());
  }

 private:
  void Fill() {
    items_ = list_.Items();
    box_->clear();
    for (const std::string& item : items_) {
      auto* row = new QListWidgetItem(ToQt(item), box_);
      if (row->text().size() > kWidest) row->setToolTip(row->text());
    }
    const int rows = std::clamp(static_cast<int>(items_.size()), kLeastRows, kMostRows);
    const int rowHeight = std::max(box_->sizeHintForRow(0), box_->fontMetrics().height());
    box_->setMinimumHeight(
        std::max(box_->minimumHeight(), rows * (rowHeight + 2) + 2 * box_->frameWidth()));
    const int letters = std::max(kNarrowest, Characters(items_));
    box_->setMinimumWidth(std::max(box_->minimumWidth(), CharactersWide(*box_, letters) + 30));
  }
  ListBox& list_;
  QListWidget* box_;
  std::vector<std::string> items_;
  bool refreshing_ = false;
};

}  // namespace

std::unique_ptr<ControlView> MakeComboView(ComboBox& combo, FormHost& host) {
  return std::make_unique<ComboView>(combo, host);
}

std::unique_ptr<ControlView> MakeListView(ListBox& list, FormHost& host) {
  return std::make_unique<ListView>(list, host);
}

}  // namespace orm
