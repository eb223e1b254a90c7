#include "cases/geo/forms.h"

namespace orm {

FrmGeoClassi::FrmGeoClassi(RunState& stato, const PostoRiga& posto, std::string& sottoclasse)
    : FormRiga(stato, "frmGEO_Classi", "SOTTOCLASSI GEOTECNICHE", "sottoclasse", posto, kGruppo,
               Command2) {
  SetContent(Column(
      {Label1, Group(Frame1, {Option[0], Option[1], Option[2], Option[3]}), Fondo(Command1)}));
  Label1.SetText(Etichetta(posto, "GRUPPO"));
  const bool nota = sottoclasse.size() == 1 && sottoclasse >= "1" && sottoclasse <= "4";
  tipo.Choose(nota ? sottoclasse[0] - '1' : 0);
  Command1.onPress = [this, &sottoclasse] {
    if (Rifiuta(posto_.rifiuto)) return;
    sottoclasse = std::string(1, static_cast<char>('1' + tipo.Chosen()));
    Esci(Uscita::Conferma);
  };
}

TestiTariffe TestiGeoTariffe(const TabelleGeo& tabelle) {
  return {"frmGEO_Tariffe", "PERIODI TARIFFARI PER PRESTAZIONI GEOTECNICHE", "PERIODI",
          tabelle.NomePeriodo};
}

FrmGeoImporti::FrmGeoImporti(RunState& stato, const std::string& tipo, std::string periodo,
                             const ImportoChiesto& progetto, const ImportoChiesto& direzione)
    : FormInput(stato, "frmGEO_Importi", "PRESTAZIONI GEOTECNICHE", "importi") {
  SetContent(Column(
      {Group(Frame1,
             {Row({Label6, Image1}), Group(Frame2, {AmountFields({importo[0]}), lblProgettazione}),
              Group(Frame3, {AmountFields({importo[1]}), lblDirezione}), lblNegativo}),
       Buttons({Command1})}));
  Label6.SetText(std::move(periodo));
  if (tipo == "CONSUNTIVA") importo[1].SetCaption("Importo consuntivo lordo");
  importo[0].Chiedi(progetto);
  importo[1].Chiedi(direzione);
  Command1.onPress = [this] { Conferma(importo); };
}

FrmGeoPrestazio::FrmGeoPrestazio(RigaGeo& riga)
    : Form("frmGEO_Prestazio", "PRESTAZIONI GEOTECNICHE", "prestazioni"), riga_(riga) {
  const auto& quote = kQuoteGeo[static_cast<std::size_t>(riga.Sottoclasse[0] - '1')];
  std::vector<Layout> linee;
  for (std::size_t i = 0; i < Check.size(); ++i) linee.push_back(aliquote.Riga(Check[i], quote[i]));
  linee.push_back(aliquote.Piede());
  SetContent(Column({Group(Frame1, {Row({Option1, Option2})}), Group(Frame2, std::move(linee)),
                     Buttons({Command1})}));
  const bool parziali = riga.TipoDiPrestazione == "P";
  tipo.Choose(parziali ? 1 : 0);
  for (std::size_t i = 0; i < Check.size(); ++i)
    Check[i].SetValue(!parziali ||
                      riga.StringaDellePrestazioni.find(kLettereGeo[i]) != std::string::npos);
  Frame2.SetEnabled(parziali);
  Option1.onChange = [this] { Frame2.SetEnabled(Option2.Value()); };
  Option2.onChange = Option1.onChange;
  aliquote.Segui();
  Command1.onPress = [this] { Conferma(); };
}

void FrmGeoPrestazio::Conferma() {
  const bool complete = Option1.Value();
  std::string& stringa = riga_.StringaDellePrestazioni;
  riga_.TipoDiPrestazione = complete ? "T" : "P";
  stringa.clear();
  for (std::size_t i = 0; i < Check.size(); ++i)
    if (complete || Check[i].Value()) {
      if (!stringa.empty()) stringa += '+';
      stringa += kLettereGeo[i];
    }
  Esci(Uscita::Conferma);
}

}  // namespace orm
