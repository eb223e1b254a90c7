#include "desktop/controls/rich_text_document.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <cmath>

#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr double kTwipsAPixel = 15;  // at 96 pixels an inch
// The setting as it came, beside its pixels: what the screen rounds is not lost.
constexpr int kLeft = QTextFormat::UserProperty + 1;
constexpr int kRight = kLeft + 1;
constexpr int kFirst = kLeft + 2;
constexpr int kBefore = kLeft + 3;
constexpr int kAfter = kLeft + 4;
constexpr int kTabs = kLeft + 5;

using Alignment = RichSetting::Alignment;

Qt::Alignment SideInQt(Alignment alignment) {
  switch (alignment) {
    case Alignment::Left:
      return Qt::AlignLeft;
    case Alignment::Centre:
      return Qt::AlignHCenter;
    case Alignment::Right:
      return Qt::AlignRight;
    case Alignment::Justified:
      return Qt::AlignJustify;
  }
  return Qt::AlignLeft;
}

Alignment SideOf(Qt::Alignment alignment) {
  if (alignment & Qt::AlignHCenter) return Alignment::Centre;
  if (alignment & Qt::AlignRight) return Alignment::Right;
  if (alignment & Qt::AlignJustify) return Alignment::Justified;
  return Alignment::Left;
}

QTextBlockFormat FormatOf(const RichSetting& setting) {
  QTextBlockFormat format;
  format.setAlignment(SideInQt(setting.alignment));
  // A bullet stands in the indent that its list makes.
  format.setLeftMargin(setting.bullet ? 0 : setting.left / kTwipsAPixel);
  format.setTextIndent(setting.bullet ? 0 : setting.first / kTwipsAPixel);
  format.setRightMargin(setting.right / kTwipsAPixel);
  format.setTopMargin(setting.before / kTwipsAPixel);
  format.setBottomMargin(setting.after / kTwipsAPixel);
  QList<QTextOption::Tab> stops;
  QVariantList twips;
  for (const int tab : setting.tabs) {
    stops.append(QTextOption::Tab(tab / kTwipsAPixel, QTextOption::LeftTab));
    twips.append(tab);
  }
  format.setTabPositions(stops);
  format.setProperty(kLeft, setting.left);
  format.setProperty(kRight, setting.right);
  format.setProperty(kFirst, setting.first);
  format.setProperty(kBefore, setting.before);
  format.setProperty(kAfter, setting.after);
  format.setProperty(kTabs, twips);
  return format;
}

RichSetting SettingOf(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  RichSetting setting;
  setting.alignment = SideOf(format.alignment());
  setting.left = format.intProperty(kLeft);
  setting.right = format.intProperty(kRight);
  setting.first = format.intProperty(kFirst);
  setting.before = format.intProperty(kBefore);
  setting.after = format.intProperty(kAfter);
  for (const QVariant& tab : format.property(kTabs).toList()) setting.tabs.push_back(tab.toInt());
  setting.bullet = block.textList() != nullptr;
  return setting;
}

RichStyle StyleOf(const QTextCharFormat& format) {
  RichStyle style;
  const QStringList families = format.fontFamilies().toStringList();
  if (!families.isEmpty()) style.font = FromQt(families.first());
  if (format.fontPointSize() > 0)
    style.halfPoints = static_cast<int>(std::lround(format.fontPointSize() * 2));
  style.bold = format.fontWeight() >= QFont::DemiBold;
  style.italic = format.fontItalic();
  style.underline = format.fontUnderline();
  if (format.hasProperty(QTextFormat::ForegroundBrush)) {
    const QColor colour = format.foreground().color();
    style.colour = Colour{colour.red(), colour.green(), colour.blue()};
  }
  return style;
}

}  // namespace

QTextCharFormat FormatOf(const RichStyle& style) {
  QTextCharFormat format;
  format.setFontFamilies({ToQt(style.font)});
  format.setFontPointSize(style.halfPoints / 2.0);
  format.setFontWeight(style.bold ? QFont::Bold : QFont::Normal);
  format.setFontItalic(style.italic);
  format.setFontUnderline(style.underline);
  if (style.colour)
    format.setForeground(QColor(style.colour->red, style.colour->green, style.colour->blue));
  return format;
}

void FillDocument(QTextDocument& shown, const RichDocument& document) {
  shown.clear();
  QTextCursor cursor(&shown);
  bool first = true;
  RichStyle style;
  for (const RichParagraph& paragraph : document.paragraphs) {
    if (!paragraph.runs.empty()) style = paragraph.runs.front().style;
    const QTextBlockFormat block = FormatOf(paragraph.setting);
    if (first) {
      cursor.setBlockFormat(block);
      cursor.setBlockCharFormat(FormatOf(style));
    } else {
      cursor.insertBlock(block, FormatOf(style));
    }
    first = false;
    if (paragraph.setting.bullet) {
      cursor.createList(QTextListFormat::ListDisc);
    } else if (QTextList* list = cursor.currentList()) {
      list->remove(cursor.block());
      cursor.setBlockFormat(block);
    }
    for (const RichRun& run : paragraph.runs)
      cursor.insertText(ToQt(run.text).replace('\n', QChar(QChar::LineSeparator)),
                        FormatOf(run.style));
  }
  shown.clearUndoRedoStacks();
  shown.setModified(false);
}

RichDocument ReadDocument(const QTextDocument& shown, const RichDocument& before) {
  RichDocument document;
  document.page = before.page;
  for (QTextBlock block = shown.begin(); block.isValid(); block = block.next()) {
    RichParagraph paragraph;
    paragraph.setting = SettingOf(block);
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextFragment fragment = at.fragment();
      QString text = fragment.text();
      text.replace(QChar::LineSeparator, '\n').remove(QChar::ObjectReplacementCharacter);
      if (!text.isEmpty()) paragraph.Append(FromQt(text), StyleOf(fragment.charFormat()));
    }
    document.paragraphs.push_back(std::move(paragraph));
  }
  return document;
}

}  // namespace orm
