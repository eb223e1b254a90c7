// Makes a technical note: the script beside the text plays its example, checks the figures that the
// text states, and gives the drawings.
#include <CLI/CLI.hpp>
#include <QPainter>
#include <iostream>

#include "desktop/desktop_app.h"
#include "desktop/drawing/paint_drawing.h"
#include "desktop/notes/note_pages.h"
#include "desktop/screen.h"
#include "runtime/failure.h"
#include "runtime/folder.h"
#include "script/run_scripts.h"

namespace {

QPicture PictureOf(const orm::Lavagna& lavagna) {
  QPicture picture;
  const QRectF room(QPointF(0, 0), orm::DrawingSize(lavagna));
  QPainter painter(&picture);
  orm::PaintDrawing(painter, lavagna, room);
  painter.end();
  picture.setBoundingRect(room.toAlignedRect());
  return picture;
}

// What the script shows at a `picture`: the drawing of the form.
void TakeDrawings(const orm::Form& form, const std::string& name, orm::NoteDrawings& drawings) {
  for (const orm::Control* control : form.Controls())
    if (const auto* lavagna = dynamic_cast<const orm::Lavagna*>(control))
      drawings[QString::fromStdString(name)] = PictureOf(*lavagna);
}

int MakeNote(const std::string& folder, const std::string& name, const std::string& output) {
  orm::NoteDrawings drawings;
  const auto take = [&](orm::Form& form, const std::string& picture) {
    TakeDrawings(form, picture, drawings);
  };
  const std::string script = folder + "/" + name + ".copione";
  if (const auto mismatch = orm::RunScript(script, orm::PlainStageWithPictures(take), {})) {
    std::cerr << script << ":" << mismatch->line << ": " << mismatch->text << std::endl;
    return 1;
  }
  const std::string text = orm::WorkFolder(folder).Read(name + ".md");
  const std::filesystem::path path(output);
  orm::WorkFolder(path.parent_path().string())
      .Replace(path.filename().string(), orm::NotePdf(QString::fromStdString(text), drawings));
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::string folder, name, output;
  CLI::App app("Compone una nota tecnica in PDF", "orm2002-nota");
  app.add_option("cartella", folder, "dove stanno testo e copione")->required();
  app.add_option("nome", name, "il loro nome, senza estensione")->required();
  app.add_option("pdf", output, "il file da scrivere, con la sua cartella")->required();
  CLI11_PARSE(app, argc, argv);
  const orm::PlatformChoice platform(false);
  QApplication application(argc, argv);
  orm::DressApplication(application);
  try {
    return MakeNote(folder, name, output);
  } catch (const orm::RuntimeFailure& failure) {
    std::cerr << failure.Text() << std::endl;
    return 1;
  }
}
