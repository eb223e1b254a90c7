// The sections of a report, beside its page.
#pragma once

#include <QListWidget>
#include <functional>
#include <vector>

namespace orm {

// A heading: "=== ONORARI ===", "== CARICHI ==", "Solaio n. : 2" or, one step in, "1 - ...".
struct Section {
  QString title;
  int line = 0;  // from 0
  int depth = 0;
  bool operator==(const Section&) const = default;
};
std::vector<Section> SectionsOf(const QString& text);

class SectionList : public QListWidget {
 public:
  explicit SectionList(QWidget* parent = nullptr);

  void Fill(const QString& text);
  // Marks the section in which the line stands, and moves nothing.
  void Follow(int line);
  // The line of the heading before or behind a line; -1 when there is none.
  int LineBeyond(int line, bool backward) const;

  std::function<void(int line)> chosen;
  std::function<void()> left;  // by Enter or Esc: the keyboard goes back to the page

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::vector<Section> sections_;
};

}  // namespace orm
