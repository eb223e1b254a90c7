#include "desktop/export/subject.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

namespace orm {
namespace {

constexpr int kLongestName = 60, kLongestTitle = 200;  // characters

// Cut behind a word where one ends in the second half.
QString Cut(const QString& text, int longest) {
  if (text.size() <= longest) return text;
  const auto blank = text.lastIndexOf(' ', longest);
  return text.left(blank > longest / 2 ? blank : longest).trimmed();
}

}  // namespace

QString SubjectOf(const QString& text) {
  QString plain = text.left(20'000);  // the heading is at the top
  const QStringList lines = plain.replace(QChar::LineSeparator, '\n').split('\n');
  // "dovute da : ...", "all' Ingegnere ...", "per le prestazioni ... relative a :", the subject.
  const QString marks[] = {QStringLiteral("dovute da : "), QStringLiteral("all' ")};
  std::size_t found = 0;
  for (qsizetype i = 0; i + 1 < lines.size() && !lines[i].startsWith(QLatin1String("===")); ++i) {
    if (found < std::size(marks))
      found += lines[i].startsWith(marks[found]) ? 1 : 0;
    else if (lines[i].trimmed().endsWith(':'))
      return lines[i + 1].startsWith(QLatin1String("===")) ? QString() : lines[i + 1].simplified();
  }
  return {};
}

QString DocumentTitle(const QString& text, const QString& fileName) {
  const QString subject = SubjectOf(text);
  return subject.isEmpty() ? fileName : Cut(subject, kLongestTitle);
}

QString NameBySubject(const QString& text, const QString& fileName) {
  static const QRegularExpression unfit(QStringLiteral("[\"<>|*?\\\\\\x00-\\x1F\\x7F]"));
  QString report = QFileInfo(fileName).completeBaseName();
  QString name = SubjectOf(text).remove(unfit).replace('/', '-').replace(':', '-').simplified();
  name = Cut(name, kLongestName);
  // A point at its end would be lost on some systems, one before it would hide the file.
  while (name.endsWith('.') || name.endsWith(' ') || name.endsWith(',')) name.chop(1);
  while (name.startsWith('.') || name.startsWith('-')) name.remove(0, 1);
  if (name.trimmed().isEmpty()) return report;
  QString code = report;
  return name.trimmed() + QStringLiteral(" - ") +
         code.remove(QRegularExpression(QStringLiteral("^OUT_")));
}

}  // namespace orm
