// The report on the screen: a sheet of fixed columns on a darker table.
#pragma once

#include <QPlainTextEdit>
#include <functional>
#include <string>
#include <vector>

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

  // Lines that carry a mark in the margin, counted from 1 with those that a line feed alone ends.
  // An edit hides the marks until they are set again. `markClicked` gets the line.
  void SetMarks(const std::vector<int>& lines);
  int LineOfCursor() const;
  void GoToLine(int line);
  // The marked line of the cursor stands out while this is on.
  void ShowMarkedLine(bool on);
  std::function<void(int line)> markClicked;
  std::function<void()> escaped;  // by Esc

  // Width of the whole sheet at the present zoom, in pixels.
  int SheetWidth() const;
  bool ShowsWholeSheet() const { return SheetWidth() <= Room(); }

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void PlaceSheet();
  void Enlarge(int percent);
  int SheetWidthAt(int percent) const;
  void FitToWidth();
  int Room() const;
  QRectF PlaceOfLine(int line) const;
  int MarkAt(QPoint point) const;
  void UpdateColours();
  int zoom_ = 100;
  bool fits_ = false;
  int columns_;
  // Of the text at its revision, when the marks were set: where each line begins, and which have
  // one.
  std::vector<int> starts_, marked_;
  int markedRevision_ = -1;
  bool showMarked_ = false;
};

}  // namespace orm
