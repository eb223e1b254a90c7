#include "cases/pdl/form_services.h"

#include "tariff/law/table_b.h"
#include "tariff/law/tariff_tables.h"

namespace orm {

FrmPdlPrestazio::FrmPdlPrestazio(std::string titolo, const RigaPdl& riga, std::string& tipo,
                                 std::string& stringa, Modo modo)
    : Form("frmPDL_Prestazio", std::move(titolo), "prestazioni"), tipo_(tipo), stringa_(stringa) {
  std::vector<Layout> linee;
  for (CheckBox& servizio : servizi)
    linee.push_back(
        aliquote.Riga(servizio, AliquotaTabellaB(riga.Classe, riga.Categoria, servizio.Name()[0])));
  linee.push_back(aliquote.Piede());
  SetContent(Column(
      {Group(Frame1, {Option1, Option2}), Group(Frame2, std::move(linee)), Buttons({Command1})}));
  for (std::size_t i = 0; i < servizi.size(); ++i) {
    const bool offerta = modo == Modo::Riga || i < kServiziProgettoTabellaB;
    servizi[i].SetVisible(offerta);
    servizi[i].SetValue(offerta && tipo != "T" &&
                        ("+" + stringa + "+").find("+" + servizi[i].Name() + "+") !=
                            std::string::npos);
  }
  Option2.onChange = [this] {
    Frame2.SetVisible(Option2.Value());
    aliquote.Somma();
  };
  scelta.Choose(tipo == "T" ? 0 : 1);
  Frame2.SetVisible(Option2.Value());
  aliquote.Segui();
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
