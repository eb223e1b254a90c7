#include "cases/pdl/form_services.h"

#include "tariff/law/table_b.h"

namespace orm {

FrmPdlPrestazio::FrmPdlPrestazio(std::string titolo, std::string dove, std::string& tipo,
                                 std::string& stringa, Modo modo)
    : Form("frmPDL_Prestazio", std::move(titolo)), tipo_(tipo), stringa_(stringa) {
  SetContent(Column({lblLotto, Group(Frame1, {Option1, Option2}),
                     Group(Frame2, {servizi.begin(), servizi.end()}), Buttons({Command1})}));
  lblLotto.SetText(std::move(dove));
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
  Command1.onPress = [this] { Conferma(); };
}

void FrmPdlPrestazio::Conferma() {
  tipo_ = Option1.Value() ? "T" : "P";
  stringa_.clear();
  if (Option2.Value())
    for (const CheckBox& servizio : servizi)
      if (servizio.Value()) stringa_ += (stringa_.empty() ? "" : "+") + servizio.Name();
  Esci(Uscita::Conferma);
}

}  // namespace orm
