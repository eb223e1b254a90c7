#include "cases/geo/forms.h"

#include "dialogs/message_boxes.h"
#include "tariff/law/table_geotechnics.h"

namespace orm {

FrmGeoClassi::FrmGeoClassi(Player& player, const PostoLotto& posto, const std::string& sottoclasse)
    : Form("frmGEO_Classi", "SOTTOCLASSI GEOTECNICHE"),
      Classe(posto.Nuovo() ? "0" : sottoclasse),
      Label1(*this, "Label1", posto.Nuovo() ? "NUOVO GRUPPO" : DoveSiamo(posto, "GRUPPO"),
             Label::Style::Title),
      Frame1(*this, "Frame1", "SOTTOCLASSI"),
      Option{{{*this, "Option1", kSottoclassiGeotecniche[0], tipo},
              {*this, "Option2", kSottoclassiGeotecniche[1], tipo},
              {*this, "Option3", kSottoclassiGeotecniche[2], tipo},
              {*this, "Option4", kSottoclassiGeotecniche[3], tipo}}},
      Command2(*this, "Command2", "FINE INPUT SOTTOCLASSI"),
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  SetContent(Column({Label1, Group(Frame1, {Option[0], Option[1], Option[2], Option[3]}),
                     Buttons({Command1, Command2})}));
  const bool nota = sottoclasse.size() == 1 && sottoclasse >= "1" && sottoclasse <= "4";
  tipo.Choose(nota ? sottoclasse[0] - '1' : 0);
  Command1.onPress = [this, &player] {
    if (!Rifiuto.empty()) {
      player.Ask(Avviso(Rifiuto));
      return;
    }
    Classe = std::string(1, static_cast<char>('1' + tipo.Chosen()));
    Close();
  };
  Command2.onPress = [this] {
    Classe = "0";
    Close();
  };
}

FrmGeoTariffe::FrmGeoTariffe(Player& player, const TabelleGeo& tabelle, std::string dove,
                             int ultimo, const std::string& periodo, bool esiste)
    : FrmTariffe(player,
                 {"frmGEO_Tariffe", "PERIODI TARIFFARI PER PRESTAZIONI GEOTECNICHE", "PERIODI",
                  tabelle.NomePeriodo},
                 std::move(dove), ultimo, periodo, esiste) {}

FrmGeoImporti::FrmGeoImporti(RunState& stato, const std::string& tipo, std::string periodo,
                             const RigaGeo& riga, double altriProgetto, double altriDirezione)
    : Form("frmGEO_Importi", "PRESTAZIONI GEOTECNICHE"),
      Tipo(tipo),
      ImportoProgetto(riga.ImportoProgetto),
      ImportoDirezione(riga.ImportoDirezione),
      Frame1(*this, "Frame1", "Importi nel Periodo Tariffario"),
      Label6(*this, "Label6", std::move(periodo), Label::Style::Title),
      Image1(*this, "Image1", Image::Subject::Euro),
      Frame2(*this, "Frame2", "PROGETTAZIONE"),
      importo1(*this, stato, "Importo1", "Importo a base d'asta dei Lavori di progetto",
               ImportoBox::Segno::Libero),
      lblProgettazione(*this, "lblProgettazione", "VALE LA DATA DI ESPLETAMENTO DELL'INCARICO",
                       Label::Style::Note),
      Frame3(*this, "Frame3", "DIREZIONE LAVORI"),
      importo2(*this, stato, "Importo2",
               tipo == "CONSUNTIVA" ? "Importo consuntivo lordo" : "Importo dei Lavori diretti",
               ImportoBox::Segno::Libero),
      lblDirezione(*this, "lblDirezione", "VALE LA DATA DI EMISSIONE DEL S.A.L.",
                   Label::Style::Note),
      lblNegativo(*this, "lblNegativo", "Negativo per escluderlo dal calcolo dell'onorario",
                  Label::Style::Note),
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  SetContent(
      Column({Group(Frame1, {Row({Label6, Image1}),
                             Group(Frame2, {Fields({importo1.cd, importo1.ci}), lblProgettazione}),
                             Group(Frame3, {Fields({importo2.cd, importo2.ci}), lblDirezione}),
                             lblNegativo}),
              Buttons({Command1})}));
  Image1.SetVisible(!stato.ModoLire);
  importo1.SetValue(ImportoProgetto);
  importo2.SetValue(ImportoDirezione);
  Command1.onPress = [this, &stato, altriProgetto, altriDirezione] {
    std::string motivo = SommaEccessiva(importo1, altriProgetto);
    if (motivo.empty()) motivo = SommaEccessiva(importo2, altriDirezione);
    if (!motivo.empty()) {
      stato.player.Ask(Avviso(motivo));
      return;
    }
    ImportoProgetto = importo1.Value();
    ImportoDirezione = importo2.Value();
    Close();
  };
}

FrmGeoPrestazio::FrmGeoPrestazio(std::string dove, const RigaGeo& riga)
    : Form("frmGEO_Prestazio", "PRESTAZIONI GEOTECNICHE"),
      TipoDiPrestazione(riga.TipoDiPrestazione),
      StringaDellePrestazioni(riga.StringaDellePrestazioni),
      lblLotto(*this, "lblLotto", std::move(dove), Label::Style::Title),
      Frame1(*this, "Frame1", "PRESTAZIONI"),
      Option1(*this, "Option1", "COMPLETE", tipo),
      Option2(*this, "Option2", "PARZIALI", tipo),
      Frame2(*this, "Frame2", "PRESTAZIONI "),
      Check{{{*this, "Check1", kPrestazioniGeo[0]},
             {*this, "Check2", kPrestazioniGeo[1]},
             {*this, "Check3", kPrestazioniGeo[2]},
             {*this, "Check4", kPrestazioniGeo[3]},
             {*this, "Check5", kPrestazioniGeo[4]},
             {*this, "Check6", kPrestazioniGeo[5]}}},
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  SetContent(Column({lblLotto, Group(Frame1, {Row({Option1, Option2})}),
                     Group(Frame2, {Check[0], Check[1], Check[2], Check[3], Check[4], Check[5]}),
                     Buttons({Command1})}));
  const bool parziali = TipoDiPrestazione == "P";
  tipo.Choose(parziali ? 1 : 0);
  for (std::size_t i = 0; i < Check.size(); ++i)
    Check[i].SetValue(!parziali ||
                      StringaDellePrestazioni.find(kLettereGeo[i]) != std::string::npos);
  Frame2.SetEnabled(parziali);
  Option1.onChange = [this] { Frame2.SetEnabled(Option2.Value()); };
  Option2.onChange = Option1.onChange;
  Command1.onPress = [this] { Confirm(); };
}

void FrmGeoPrestazio::Confirm() {
  const bool complete = Option1.Value();
  TipoDiPrestazione = complete ? "T" : "P";
  StringaDellePrestazioni.clear();
  for (std::size_t i = 0; i < Check.size(); ++i)
    if (complete || Check[i].Value()) {
      if (!StringaDellePrestazioni.empty()) StringaDellePrestazioni += '+';
      StringaDellePrestazioni += kLettereGeo[i];
    }
  Close();
}

}  // namespace orm
