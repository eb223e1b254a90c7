// A form with every kind of control in its states, and a player that hands it to a test.
#pragma once

#include <functional>
#include <string>

#include "desktop/player/desktop_player.h"
#include "desktop/player/form_dialog.h"
#include "dialogs/form.h"
#include "dialogs/lavagna.h"

namespace orm {

extern std::string galleryFolder;  // where pictures go; empty: none are made

// Keeps a picture of what the widget shows.
void KeepPicture(QWidget& widget, const std::string& name);

// Shows forms and message boxes, lets the test act on them, and closes what it left open.
class TestPlayer : public DesktopPlayer {
 public:
  TestPlayer() : DesktopPlayer(".") {}
  std::function<void(FormDialog&)> onForm;
  std::function<void(QMessageBox&)> onMessage;

 protected:
  void Run(FormDialog& dialog) override;
  void Run(QMessageBox& shown, const MessageBox& box) override;
};

class GalleryForm : public Form {
 public:
  GalleryForm();
  Label title, warning, note;
  Frame fraTesti;
  TestoBox txtNome, txtFisso, txtNote;
  Frame fraNumeri;
  FloatBox cdImporto, cdRisultato, cdTensione;
  InterBox ciPezzi, ciSpento;
  FerriBox ferri;
  Frame fraScelte;
  OptionGroup scelte;
  OptionButton optUno;
  Button cmdAiuto1;
  OptionButton optDue;
  Button cmdAiuto2;
  OptionButton optTre;
  Button cmdAiuto3;
  CheckBox chkStampa, chkSpento;
  Frame fraListe;
  ComboBox comClasse;
  Label lblClasse;
  ListBox lstProfili;
  DatePicker data;
  Slider cursore;
  Frame fraNascosto;
  FloatBox cdNascosto;
  Image Image1;
  Lavagna disegno;
  Button cmdOK, cmdAnnulla;
};

}  // namespace orm
