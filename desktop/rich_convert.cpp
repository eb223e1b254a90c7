#include "desktop/rich_convert.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

#include "desktop/qt_text.h"

namespace orm {
namespace {

constexpr double kTwipsPerPixel = 15;
// A bullet stands in the indent of its own; the file's indent of the first line is kept for it.
constexpr int kFirstOfBullet = QTextFormat::UserProperty + 1;

double Pixels(int twips) { return twips / kTwipsPerPixel; }
int Twips(double pixels) { return qRound(pixels * kTwipsPerPixel); }

constexpr std::pair<RichSetting::Alignment, Qt::AlignmentFlag> kAlignments[] = {
    {RichSetting::Alignment::Left, Qt::AlignLeft},
    {RichSetting::Alignment::Centre, Qt::AlignHCenter},
    {RichSetting::Alignment::Right, Qt::AlignRight},
    {RichSetting::Alignment::Justified, Qt::AlignJustify}};

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

RichStyle StyleOf(const QTextCharFormat& format) {
  RichStyle style;
  if (const QStringList families = format.fontFamilies().toStringList(); !families.isEmpty())
    style.font = FromQt(families[0]);
  if (format.fontPointSize() > 0) style.halfPoints = qRound(format.fontPointSize() * 2);
  style.bold = format.fontWeight() >= QFont::DemiBold;
  style.italic = format.fontItalic();
  style.underline = format.fontUnderline();
  if (format.hasProperty(QTextFormat::ForegroundBrush)) {
    const QColor colour = format.foreground().color();
    style.colour = Colour{colour.red(), colour.green(), colour.blue()};
  }
  return style;
}

QTextBlockFormat FormatOf(const RichSetting& setting) {
  QTextBlockFormat format;
  for (const auto& [alignment, flag] : kAlignments)
    if (alignment == setting.alignment) format.setAlignment(flag);
  format.setLeftMargin(Pixels(setting.left));
  format.setRightMargin(Pixels(setting.right));
  format.setTextIndent(setting.bullet ? 0 : Pixels(setting.first));
  if (setting.bullet) format.setProperty(kFirstOfBullet, setting.first);
  format.setTopMargin(Pixels(setting.before));
  format.setBottomMargin(Pixels(setting.after));
  QList<QTextOption::Tab> tabs;
  for (const int tab : setting.tabs) tabs.append({Pixels(tab), QTextOption::LeftTab});
  format.setTabPositions(tabs);
  return format;
}

RichSetting SettingOf(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  RichSetting setting;
  for (const auto& [alignment, flag] : kAlignments)
    if (format.alignment() & flag) setting.alignment = alignment;
  setting.bullet = block.textList() != nullptr;
  setting.left = Twips(format.leftMargin());
  setting.right = Twips(format.rightMargin());
  setting.first = setting.bullet ? format.intProperty(kFirstOfBullet) : Twips(format.textIndent());
  setting.before = Twips(format.topMargin());
  setting.after = Twips(format.bottomMargin());
  for (const QTextOption::Tab& tab : format.tabPositions())
    setting.tabs.push_back(Twips(tab.position));
  return setting;
}

}  // namespace

void WriteInto(QTextDocument& editor, const RichDocument& document) {
  editor.clear();
  QTextCursor cursor(&editor);
  for (const RichParagraph& paragraph : document.paragraphs) {
    const QTextCharFormat format =
        FormatOf(paragraph.runs.empty() ? RichStyle{} : paragraph.runs.front().style);
    const bool first = &paragraph == &document.paragraphs.front();
    if (!first) cursor.insertBlock();
    if (QTextList* list = cursor.currentList(); list != nullptr && !paragraph.setting.bullet)
      list->remove(cursor.block());
    cursor.setBlockFormat(FormatOf(paragraph.setting));
    cursor.setBlockCharFormat(format);
    if (paragraph.setting.bullet && cursor.currentList() == nullptr) {
      QTextListFormat bullets;
      bullets.setStyle(QTextListFormat::ListDisc);
      bullets.setIndent(0);
      cursor.createList(bullets);
    }
    for (const RichRun& run : paragraph.runs)
      cursor.insertText(ToQt(run.text).replace('\n', QChar::LineSeparator), FormatOf(run.style));
  }
}

RichDocument ReadFrom(const QTextDocument& editor, const RichDocument& before) {
  RichDocument document;
  document.page = before.page;
  for (QTextBlock block = editor.begin(); block.isValid(); block = block.next()) {
    RichParagraph& paragraph = document.paragraphs.emplace_back();
    paragraph.setting = SettingOf(block);
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextFragment fragment = at.fragment();
      QString text = fragment.text();
      text.replace(QChar::LineSeparator, '\n').remove(QChar::ObjectReplacementCharacter);
      paragraph.Append(FromQt(text), StyleOf(fragment.charFormat()));
    }
  }
  return document;
}

}  // namespace orm
