// The report on the screen: a sheet of fixed columns on a darker table.
#pragma once

#include <QPlainTextEdit>
#include <functional>
#include <string>

namespace orm {

class ViewerPage : public QPlainTextEdit {
 public:
  explicit ViewerPage(QWidget* parent = nullptr);

  // The text as DecodeText gives it and EncodeText takes it. SetText clears the mark of a change
  // and the history, and keeps the place that is looked at.
  void SetText(const std::string& text);
  std::string Text() const;
  QString Visible() const { return QString::fromStdString(Text()); }

  int Zoom() const { return zoom_; }  // per cent
  void SetZoom(int percent);
  void ZoomBy(int steps);
  // While it fits, the zoom follows the width of the window; a zoom that is set ends that.
  void SetFit(bool on);
  bool Fits() const { return fits_; }
  std::function<void()> zoomChanged;

  // Width of the whole sheet at the present zoom, in pixels.
  int SheetWidth() const;

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
  void changeEvent(QEvent* event) override;

 private:
  void PlaceSheet();
  void Enlarge(int percent);
  int SheetWidthAt(int percent) const;
  void FitToWidth();
  int Room() const;
  void UpdateColours();
  int zoom_ = 100;
  bool fits_ = false;
  int columns_;
};

}  // namespace orm
