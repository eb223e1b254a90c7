#include "cases/pdl/form_services.h"

#include "tariff/law/table_b.h"

namespace orm {

FrmPdlPrestazio::FrmPdlPrestazio(std::string titolo, std::string dove, const std::string& tipo,
                                 const std::string& stringa, Modo modo)
    : Form("frmPDL_Prestazio", std::move(titolo)),
      TipoDiPrestazione(tipo),
      StringaDellePrestazioni(stringa),
      lblLotto(*this, "lblLotto", std::move(dove), Label::Style::Title),
      Frame1(*this, "Frame1", "PRESTAZIONI"),
      Option1(*this, "Option1", "COMPLETE", scelta),
      Option2(*this, "Option2", "PARZIALI", scelta),
      Frame2(*this, "Frame2", "PRESTAZIONI"),
      servizi{{{*this, "a", "a   PROGETTO DI MASSIMA"},
               {*this, "b", "b   PREVENTIVO SOMMARIO"},
               {*this, "c", "c   PROGETTO ESECUTIVO"},
               {*this, "d", "d   PREVENTIVO PARTICOLAREGGIATO"},
               {*this, "e", "e   PARTICOLARI COSTRUTTIVI E DECORATIVI"},
               {*this, "f", "f   CAPITOLATI E CONTRATTI"},
               {*this, "g", "g   DIREZIONE LAVORI"},
               {*this, "h", "h   PROVE DI OFFICINA"},
               {*this, "i", "i   ASSISTENZA AL COLLAUDO"},
               {*this, "l", "l   LIQUIDAZIONE"}}},
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  SetContent(Column({lblLotto, Group(Frame1, {Option1, Option2}),
                     Group(Frame2, {servizi.begin(), servizi.end()}), Buttons({Command1})}));
  for (std::size_t i = 0; i < servizi.size(); ++i) {
    const bool offerta = modo == Modo::Riga || i < kServiziProgettoTabellaB;
    servizi[i].SetVisible(offerta);
    servizi[i].SetValue(offerta && tipo != "T" &&
                        ("+" + stringa + "+").find("+" + servizi[i].Name() + "+") !=
                            std::string::npos);
  }
  Option2.onChange = [this] { Frame2.SetVisible(Option2.Value()); };
  scelta.Choose(tipo == "T" ? 0 : 1);
  Frame2.SetVisible(Option2.Value());
  Command1.onPress = [this] { Confirm(); };
}

void FrmPdlPrestazio::Confirm() {
  TipoDiPrestazione = Option1.Value() ? "T" : "P";
  StringaDellePrestazioni.clear();
  if (Option2.Value())
    for (const CheckBox& servizio : servizi)
      if (servizio.Value())
        StringaDellePrestazioni += (StringaDellePrestazioni.empty() ? "" : "+") + servizio.Name();
  Close();
}

}  // namespace orm
