// Image: a picture known by its subject.
#include <QPainter>

#include "desktop/controls/views.h"
#include "desktop/pictures.h"

namespace orm {
namespace {

class ImageWidget : public QWidget {
 public:
  ImageWidget(Image::Subject subject, QWidget* parent) : QWidget(parent), subject_(subject) {
    const int line = fontMetrics().height();
    const bool euro = subject == Image::Subject::Euro;
    const int side = euro ? line * 5 / 2 : line * 5;
    setFixedSize(side, side);
    setAccessibleName(euro ? "Euro" : "ORM2002");
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (subject_ == Image::Subject::Euro)
      PaintEuro(painter, width());
    else
      ProgramIcon().paint(&painter, rect());
  }

 private:
  Image::Subject subject_;
};

class ImageView : public ControlView {
 public:
  ImageView(Image& image, FormHost& host) : ControlView(image, host) {
    UseBare(new ImageWidget(image.GetSubject(), host.Window()));
  }
  std::string Shown() const override { return {}; }
};

}  // namespace

std::unique_ptr<ControlView> MakeImageView(Image& image, FormHost& host) {
  return std::make_unique<ImageView>(image, host);
}

}  // namespace orm
