// FerriBox: bars as text, their area beside.
#include "desktop/controls/entry_view.h"
#include "desktop/controls/views.h"
#include "desktop/qt_text.h"
#include "dialogs/bars.h"

namespace orm {
namespace {

class BarsView : public EntryView {
 public:
  BarsView(FerriBox& box, FormHost& host)
      : EntryView(box, host), box_(box), area_(new QLabel(host.Window())) {
    SetCharacters(18);
    UseField(&Line());
    AddBehind(area_);
    area_->setMinimumWidth(area_->fontMetrics().horizontalAdvance("9999,99 cmq"));
    area_->setAccessibleName("Area");
  }
  void Refresh() override {
    EntryView::Refresh();
    area_->setText(ToQt(box_.AreaText()));
  }

 protected:
  std::string Admit(QString& text, int&, const QString& inserted) override {
    if (inserted.size() > 1) text = text.simplified();
    return box_.Objection(FromQt(text));
  }
  // A draft has no area yet; whether it is complete is asked when the person goes on.
  Verdict Take(const std::string& text) override {
    box_.Type(text);
    return {IsBarsText(text) ? std::string() : FerriBox::Writing()};
  }
  void TakeBack() override {}
  bool Means(const std::string& text) const override { return text == box_.Text(); }
  std::string RestingText() const override { return box_.Text(); }

 private:
  FerriBox& box_;
  QLabel* area_;
};

}  // namespace

std::unique_ptr<ControlView> MakeBarsView(FerriBox& box, FormHost& host) {
  return std::make_unique<BarsView>(box, host);
}

}  // namespace orm
