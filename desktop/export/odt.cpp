// The parts of a text document: its text, its page and its list of contents.
#include "desktop/export/odt.h"

#include <QRegularExpression>
#include <algorithm>

#include "desktop/export/pages.h"
#include "desktop/export/zip.h"

namespace orm {
namespace {

constexpr qreal kTextWidth = 170 / 25.4 * 72;  // points: A4 less 20 mm on each side
constexpr qreal kLetterWidth = 0.602;          // of a letter, in parts of its size
constexpr const char* kMimeType = "application/vnd.oasis.opendocument.text";

constexpr const char* kNamespaces =
    " xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\""
    " xmlns:style=\"urn:oasis:names:tc:opendocument:xmlns:style:1.0\""
    " xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\""
    " xmlns:svg=\"urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0\""
    " xmlns:fo=\"urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0\""
    " office:version=\"1.2\"";

constexpr const char* kManifest =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<manifest:manifest xmlns:manifest=\"urn:oasis:names:tc:opendocument:xmlns:manifest:1.0\""
    " manifest:version=\"1.2\">"
    "<manifest:file-entry manifest:full-path=\"/\""
    " manifest:media-type=\"application/vnd.oasis.opendocument.text\"/>"
    "<manifest:file-entry manifest:full-path=\"content.xml\" manifest:media-type=\"text/xml\"/>"
    "<manifest:file-entry manifest:full-path=\"styles.xml\" manifest:media-type=\"text/xml\"/>"
    "<manifest:file-entry manifest:full-path=\"meta.xml\" manifest:media-type=\"text/xml\"/>"
    "</manifest:manifest>\n";

// A line is a paragraph; a section's title is a heading, by which programs that read aloud and
// lists of contents find their way. A paragraph swallows blanks at its start and behind another
// blank: those are counted in an element.
QString Paragraph(const QString& line) {
  static const QRegularExpression title(QStringLiteral("^=+ .*[^ =].* =+$"));
  const bool heading = title.match(line).hasMatch();
  QString out = heading
                    ? QStringLiteral("<text:h text:style-name=\"Title\" text:outline-level=\"1\">")
                    : QStringLiteral("<text:p text:style-name=\"Standard\">");
  for (qsizetype i = 0; i < line.size();) {
    qsizetype blanks = 0;
    while (i < line.size() && line[i] == ' ') ++blanks, ++i;
    if (blanks > 0 && i > blanks) out += ' ', --blanks;
    if (blanks > 0) out += QStringLiteral("<text:s text:c=\"%1\"/>").arg(blanks);
    if (i < line.size()) out += QString(line[i++]).toHtmlEscaped();
  }
  return out + (heading ? QStringLiteral("</text:h>\n") : QStringLiteral("</text:p>\n"));
}

QString Content(const QStringList& lines) {
  QString out = QStringLiteral(
                    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<office:document-content%1>"
                    "<office:body><office:text>\n")
                    .arg(kNamespaces);
  for (const QString& line : lines) out += Paragraph(line);
  return out + QStringLiteral("</office:text></office:body></office:document-content>\n");
}

// Half points, the largest at which all columns fit, 11 at most.
QString PointSize(int columns) {
  const int halves = static_cast<int>(kTextWidth / columns / kLetterWidth * 2);
  return QString::number(std::min(halves, 22) / 2.0);
}

QString Styles(int columns, const QString& fontFamily) {
  return QStringLiteral(
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<office:document-styles%1>"
             "<office:font-face-decls><style:font-face style:name=\"Report\""
             " svg:font-family=\"'%2'\" style:font-family-generic=\"modern\""
             " style:font-pitch=\"fixed\"/></office:font-face-decls>"
             "<office:styles><style:style style:name=\"Standard\" style:family=\"paragraph\""
             " style:class=\"text\"><style:paragraph-properties fo:margin-top=\"0mm\""
             " fo:margin-bottom=\"0mm\"/><style:text-properties style:font-name=\"Report\""
             " fo:font-size=\"%3pt\" fo:language=\"it\" fo:country=\"IT\"/></style:style>"
             "<style:style style:name=\"Title\" style:family=\"paragraph\""
             " style:parent-style-name=\"Standard\" style:default-outline-level=\"1\">"
             "<style:paragraph-properties fo:keep-with-next=\"always\"/></style:style>"
             "</office:styles><office:automatic-styles><style:page-layout style:name=\"A4\">"
             "<style:page-layout-properties fo:page-width=\"210mm\" fo:page-height=\"297mm\""
             " style:print-orientation=\"portrait\" fo:margin-top=\"18mm\""
             " fo:margin-bottom=\"18mm\" fo:margin-left=\"20mm\" fo:margin-right=\"20mm\"/>"
             "</style:page-layout></office:automatic-styles><office:master-styles>"
             "<style:master-page style:name=\"Standard\" style:page-layout-name=\"A4\"/>"
             "</office:master-styles></office:document-styles>\n")
      .arg(QString::fromLatin1(kNamespaces), fontFamily.toHtmlEscaped(), PointSize(columns));
}

QString Meta(const QString& title) {
  return QStringLiteral(
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<office:document-meta"
             " xmlns:dc=\"http://purl.org/dc/elements/1.1/\"%1><office:meta><dc:title>%2</dc:title>"
             "<dc:language>it-IT</dc:language></office:meta></office:document-meta>\n")
      .arg(QString::fromLatin1(kNamespaces), title.toHtmlEscaped());
}

}  // namespace

std::string OdtOf(const QStringList& lines, const QString& title, const QString& fontFamily) {
  ZipArchive archive;
  archive.Add("mimetype", kMimeType);  // first, as readers look for it there
  archive.Add("content.xml", Content(lines).toStdString());
  archive.Add("styles.xml", Styles(PaperColumns(lines), fontFamily).toStdString());
  archive.Add("meta.xml", Meta(title).toStdString());
  archive.Add("META-INF/manifest.xml", kManifest);
  return archive.Finish();
}

}  // namespace orm
