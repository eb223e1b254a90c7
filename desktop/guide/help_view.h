// The page of the help that is shown.
#pragma once

#include <QTextBrowser>
#include <vector>

#include "shell/help/help_books.h"

namespace orm {

class HelpView : public QTextBrowser {
 public:
  // The books outlive the view.
  explicit HelpView(const std::vector<HelpBook>& books, QWidget* parent = nullptr);

  // Shows a page; with a section its heading comes to the top.
  void Open(const QString& file, const QString& section = {});
  const QString& File() const { return file_; }  // "manuale/coa.md"
  const HelpPage* Page() const;

  // Marks every place where one of the words stands.
  void Mark(const QString& words);

  static constexpr int kLeastZoom = 60, kMostZoom = 240;
  int Zoom() const { return zoom_; }
  void SetZoom(int percent);

  void Print();

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Dress();
  void GoTo(const QString& section);
  void LayAnew();
  int PictureRoom() const;
  double BodyPoints() const;

  const std::vector<HelpBook>& books_;
  QString file_;
  int zoom_ = 100;
  QString words_;
};

}  // namespace orm
