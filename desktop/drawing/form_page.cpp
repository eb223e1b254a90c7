// What a form shows, beside its drawing on one sheet.
#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>
#include <algorithm>

#include "desktop/drawing/drawing_files.h"
#include "desktop/drawing/paint_drawing.h"
#include "desktop/qt_text.h"
#include "dialogs/fittings.h"
#include "dialogs/form.h"

namespace orm {
namespace {

using Kind = Control::Kind;

constexpr double kUpright = 700;        // pixels: a wider drawing wants a sheet that lies
constexpr double kGap = 14;             // pixels between title, drawing and data
constexpr double kMostOfThePage = 0.5;  // that the drawing takes
constexpr double kTitlePoints = 11, kTextPoints = 9;

QString Html(const std::string& text) {
  return ToQt(text).toHtmlEscaped().trimmed().replace('\n', "<br>");
}

// What stands in a control, with its unit; nothing for one that is no datum.
QString ValueOf(const Control& control) {
  if (!control.OwnVisible()) return {};
  switch (control.GetKind()) {
    case Kind::Label:
    case Kind::TextBox:
    case Kind::NumberBox:
    case Kind::BarsBox:
    case Kind::Combo:
    case Kind::List:
    case Kind::Date: {
      const QString value = Html(control.ShownText());
      return value.isEmpty() || control.Unit().empty() ? value : value + " " + Html(control.Unit());
    }
    case Kind::Option:
    case Kind::Check:
      return control.ShownText() == "on" ? Html(control.Caption()) : QString();
    default:
      return {};
  }
}

bool IsField(const Layout& part) {
  if (part.kind != Layout::Kind::Item) return false;
  const Kind kind = part.control->GetKind();
  return kind == Kind::TextBox || kind == Kind::NumberBox || kind == Kind::BarsBox ||
         kind == Kind::Combo || kind == Kind::List || kind == Kind::Date;
}

// The text of a form, laid out as the form is.
class FormText {
 public:
  explicit FormText(const std::vector<const Frame*>& views) : views_(views) {}

  QString PartsHtml(const std::vector<Layout>& parts) const {
    QString out;
    for (const Layout& part : parts) out += PartHtml(part);
    return out;
  }

  // The labels over a table, whose first column has the captions of the lines.
  static bool IsHeading(const std::vector<Layout>& cells) {
    return std::all_of(cells.begin(), cells.end(), [](const Layout& cell) {
      return cell.kind == Layout::Kind::Item && cell.control->GetKind() == Kind::Label;
    });
  }

  // A line of fields: the caption of the first, and the values. A row whose first field is empty,
  // as of a layer without bars, is left out.
  QString LineHtml(const std::vector<Layout>& cells) const {
    QString out;
    if (IsHeading(cells)) {
      for (const Layout& cell : cells)
        out += (out.isEmpty() ? "<td>" : "<td align=right style='padding-left:10px'>") +
               ValueOf(*cell.control) + "</td>";
    } else if (!IsField(cells[0])) {
      for (const Layout& cell : cells) out += PartHtml(cell);
      if (!out.isEmpty()) out = "<td colspan=4>" + out + "</td>";
    } else {
      const Control& first = *cells[0].control;
      if (!first.OwnVisible() || (cells.size() > 1 && ValueOf(first).isEmpty())) return {};
      out = "<td>" + Html(first.Caption()) + "</td>";
      for (const Layout& cell : cells)
        if (cell.kind == Layout::Kind::Item)
          out += "<td align=right style='padding-left:10px'>" + ValueOf(*cell.control) + "</td>";
    }
    return out.isEmpty() ? out : "<tr>" + out + "</tr>";
  }

  QString TableHtml(const std::vector<Layout>& lines) const {
    QString out;
    bool onlyHeading = true;
    for (const Layout& line : lines) {
      const auto cells = line.kind == Layout::Kind::Row ? line.children : std::vector{line};
      const QString html = LineHtml(cells);
      onlyHeading = onlyHeading && (html.isEmpty() || IsHeading(cells));
      out += html;
    }
    return onlyHeading ? QString() : "<table cellspacing=0 cellpadding=1>" + out + "</table>";
  }

  QString PartHtml(const Layout& part) const {
    switch (part.kind) {
      case Layout::Kind::Item: {
        if (IsField(part)) return TableHtml({part});
        const QString value = ValueOf(*part.control);
        return value.isEmpty() ? value : "<p style='margin-top:2px'>" + value + "</p>";
      }
      case Layout::Kind::Column:
      case Layout::Kind::Views:
        return PartsHtml(part.children);
      case Layout::Kind::Row: {
        if (IsField(part.children[0])) return TableHtml({part});
        QString cells;
        for (const Layout& child : part.children)
          if (const QString inside = PartHtml(child); !inside.isEmpty())
            cells += "<td style='padding-right:24px'>" + inside + "</td>";
        return cells.isEmpty() ? cells : "<table cellspacing=0><tr>" + cells + "</tr></table>";
      }
      case Layout::Kind::Group: {
        const auto& frame = static_cast<const Frame&>(*part.control);
        const QString inside = PartsHtml(part.children);
        if (inside.isEmpty() || !Printed(frame)) return {};
        return "<p style='margin-bottom:1px; margin-top:6px'><b>" + Html(frame.Caption()) +
               "</b></p>" + inside;
      }
      case Layout::Kind::Fields:
        return TableHtml(part.children);
      case Layout::Kind::Buttons:
        return {};
    }
    return {};
  }

 private:
  bool Printed(const Frame& frame) const {
    return frame.OwnVisible() || std::find(views_.begin(), views_.end(), &frame) != views_.end();
  }
  const std::vector<const Frame*>& views_;
};

// Fills `room` from its upper edge, smaller where the text needs more.
void PaintText(QPainter& painter, const QString& html, double points, const QRectF& room) {
  QTextDocument document;
  document.documentLayout()->setPaintDevice(nullptr);
  QFont font = painter.font();
  font.setPixelSize(qRound(points * 96 / 72));
  document.setDefaultFont(font);
  document.setDocumentMargin(0);
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  document.setDefaultTextOption(option);
  document.setHtml(html);
  document.setTextWidth(room.width());
  const QSizeF size(std::max(document.idealWidth(), 1.0), std::max(document.size().height(), 1.0));
  const double zoom = std::min({1.0, room.width() / size.width(), room.height() / size.height()});
  painter.save();
  painter.translate(room.topLeft());
  painter.scale(zoom, zoom);
  document.drawContents(&painter);
  painter.restore();
}

}  // namespace

QPageLayout::Orientation SheetOf(const Lavagna& drawing) {
  return DrawingSize(drawing).width() > kUpright ? QPageLayout::Landscape : QPageLayout::Portrait;
}

void PaintFormPage(QPainter& painter, const QSizeF& page, const Lavagna& drawing) {
  const Form& form = drawing.Owner();
  const double title = 2.4 * kTitlePoints * 96 / 72;
  PaintText(painter, "<b>" + Html(form.Title()) + "</b>", kTitlePoints,
            {0, 0, page.width(), title});
  const QSizeF size = DrawingSize(drawing).scaled(page.width(), kMostOfThePage * page.height(),
                                                  Qt::KeepAspectRatio);
  const QRectF picture(QPointF(0, title), size);
  PaintDrawing(painter, drawing, picture);
  painter.setPen(QPen(Qt::gray, 1));
  painter.drawRect(picture);
  painter.setPen(Qt::black);
  const double top = picture.bottom() + kGap;
  PaintText(painter, FormText(drawing.OtherViews()).PartHtml(form.Content()), kTextPoints,
            {0, top, page.width(), page.height() - top});
}

}  // namespace orm
