#include "tests/desktop/gallery_form.h"

#include <QCoreApplication>
#include <QMessageBox>

#include "desktop/qt_text.h"

namespace orm {

std::string galleryFolder;

void KeepPicture(QWidget& widget, const std::string& name) {
  QCoreApplication::processEvents();
  if (!galleryFolder.empty()) widget.grab().save(ToQt(galleryFolder + "/" + name + ".png"));
}

void TestPlayer::Run(FormDialog& dialog) {
  dialog.open();
  QCoreApplication::processEvents();
  if (onForm) onForm(dialog);
  dialog.hide();
}

void TestPlayer::Run(QMessageBox& shown, const MessageBox&) {
  shown.open();
  QCoreApplication::processEvents();
  if (onMessage) onMessage(shown);
  shown.hide();
}

namespace {

// A section with its stress diagram: lines, an arc, a filled shape, texts.
void DrawSample(Lavagna& panel) {
  panel.SetColour({90, 90, 90});
  panel.SetWidth(2);
  panel.DrawPolygon({{20, 20}, {70, 20}, {70, 130}, {20, 130}});
  panel.SetColour({198, 40, 40});
  for (const double x : {30, 45, 60}) panel.DrawArc(x, 30, 4);
  panel.SetColour({21, 101, 192});
  panel.DrawPolygon({{120, 130}, {95, 130}, {120, 85}}, true);
  panel.SetColour({0, 0, 0});
  panel.SetWidth(1);
  panel.DrawLine(120, 20, 120, 130);
  panel.SetStroke(DrawOperation::Stroke::Dashed);
  panel.DrawLine(10, 85, 130, 85);
  panel.SetFont(10, true);
  panel.DrawText(128, 128, "σc = 85,0 kg/cmq");
  panel.SetFont(9);
  panel.DrawText(128, 92, "x = 14,3 cm");
}

}  // namespace

GalleryForm::GalleryForm()
    : Form("frmGalleria", "        GALLERIA DEI CONTROLLI & ALTRO"),
      title(*this, "lblTitolo", "Dati della sezione", Label::Style::Title),
      warning(*this, "lblAvviso", "Tensione oltre il limite", Label::Style::Warning),
      note(*this, "lblNota",
           "Una nota lunga va a capo da sola e resta leggibile: spiega che cosa chiedono i campi "
           "qui sotto, senza allargare la finestra oltre il necessario.",
           Label::Style::Note),
      fraTesti(*this, "fraTesti", "Testi & note"),
      txtNome(*this, "txtNome", "Cognome e Nome", {.longest = 40, .width = 30}),
      txtFisso(*this, "txtFisso", "Codice", {.longest = 8, .readOnly = true, .width = 8}),
      txtNote(*this, "txtNote", "NOTE", {.longest = 200, .lines = 2, .width = 40}),
      fraNumeri(*this, "fraNumeri", "Numeri"),
      cdImporto(*this, "cdImporto", "IMPORTO", {.trailingZeros = true, .unit = "€"}),
      cdRisultato(*this, "cdRisultato", "Area del calcestruzzo compresso",
                  {.most = 99999, .decimals = 2, .unit = "[cmq]"}),
      cdTensione(*this, "cdTensione", "Tensione massima",
                 {.most = 99999, .decimals = 1, .unit = "[kg/cmq]"}),
      ciPezzi(*this, "ciPezzi", "Numero di pezzi", {.most = 30, .unit = "max 30"}),
      ciSpento(*this, "ciSpento", "Numero degli addetti alla direzione dei lavori e contabilità",
               {.most = 99}),
      ferri(*this, "CasellaFerri", "Armatura"),
      fraScelte(*this, "fraScelte", "Scelte"),
      optUno(*this, "Option1", "PREVENTIVA e IN CORSO D'OPERA", scelte),
      cmdAiuto1(*this, "Help1", "HELP"),
      optDue(*this, "Option2", "CONSUNTIVA a Fine Lavori", scelte),
      cmdAiuto2(*this, "Help2", "HELP"),
      optTre(*this, "Option3", "Prog. & D.L.", scelte),
      cmdAiuto3(*this, "Help3", "HELP"),
      chkStampa(*this, "chkStampa", "Stampa "),
      chkSpento(*this, "chkSpento", "Contr. INARCASSA"),
      fraListe(*this, "fraListe", "Liste"),
      comClasse(*this, "comClasse", "CLASSE",
                {"1 - Costruzioni edilizie", "2 - Impianti industriali"}),
      lblClasse(*this, "lblClasse", "Costruzioni informate a grande semplicità."),
      lstProfili(*this, "lstProfili", "Profilo", {"NP 80", "NP 100", "NP 120", "NP 140"}),
      data(*this, "data", "Data di inizio", {1990, 1, 1}, {2029, 12, 31}),
      cursore(*this, "cursore", "Tensione", 10, 20),
      fraNascosto(*this, "fraNascosto", "Solo a volte"),
      cdNascosto(*this, "cdNascosto", "Valore"),
      Image1(*this, "Image1", Image::Subject::Euro),
      disegno(*this, "disegno", 200, 150, 520),
      cmdOK(*this, "cmdOK", "&O.K.", Button::Role::Default),
      cmdAnnulla(*this, "cmdAnnulla", "&FINE", Button::Role::Close) {
  SetContent(Column(
      {Row({title, warning}), note,
       Row({Column({Group(fraTesti, {Row({txtNome, txtFisso}), txtNote}),
                    Group(fraNumeri, {Row({cdImporto, Image1}), cdRisultato, cdTensione, ciPezzi,
                                      ciSpento, ferri}),
                    disegno}),
            Column({Group(fraScelte, {Row({optUno, cmdAiuto1}), Row({optDue, cmdAiuto2}),
                                      Row({optTre, cmdAiuto3}), Row({chkStampa, chkSpento})}),
                    Group(fraListe, {comClasse, lblClasse, lstProfili, data, cursore}),
                    Group(fraNascosto, {cdNascosto})})}),
       Buttons({cmdOK, cmdAnnulla})}));
  txtNome.SetText("Rossi Mario");
  txtFisso.SetText("PPE");
  txtNote.SetText("Prima riga\nseconda riga");
  cdImporto.SetValue(1234567.5);
  cdRisultato.SetReadOnly(true);
  cdRisultato.SetValue(1450.25);
  cdTensione.SetReadOnly(true);
  cdTensione.SetValue(112.4);
  cdTensione.SetWarning(true);
  ciSpento.SetEnabled(false);
  ferri.SetText("3D16");
  scelte.Choose(0);
  chkStampa.SetValue(true);
  chkSpento.SetEnabled(false);
  comClasse.SetIndex(0);
  lstProfili.SetIndex(1);
  data.SetValue({2002, 3, 15});
  cursore.SetValue(14);
  fraNascosto.SetVisible(false);
  DrawSample(disegno);
  cmdOK.onPress = [this] { Close(); };
  cmdAnnulla.onPress = [this] { Close(); };
}

}  // namespace orm
