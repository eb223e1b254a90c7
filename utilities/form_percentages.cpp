// The percentages of the tariff on screen.
#include "utilities/form_percentages.h"

#include <initializer_list>

#include "tariff/law/table_classes.h"
#include "tariff/money.h"

namespace orm {

FrmUtiPercentuali::FrmUtiPercentuali(RunState& stato)
    : Form("frmUTI_PERCENTUALI", "PERCENTUALI A VIDEO"), stato_(stato), lavori(*this, stato) {
  std::vector<std::string> classi;
  for (const NomiClasse& classe : kNomiClassi) classi.emplace_back(classe.nome);
  comClasse.SetItems(std::move(classi));
  comClasse.SetIndex(0);
  MostraCategorie();

  comClasse.onChange = [this] { MostraCategorie(); };
  for (Control* dato :
       std::initializer_list<Control*>{&comCategoria, &lavori.comPeriodo, &lavori.optValuta1,
                                       &lavori.optValuta2, &lavori.ciImporto, &lavori.cdImporto})
    dato->onChange = [this] { Aggiorna(); };
  cmdESCI.onPress = [this] { Close(); };
  SetContent(Disposizione());
}

Layout FrmUtiPercentuali::Disposizione() {
  return Column({Fields({comClasse, comCategoria, lavori.comPeriodo}),
                 Row({Group(lavori.fraValuta, {Row({lavori.optValuta1, lavori.optValuta2})}),
                      Fields({lavori.ciImporto, lavori.cdImporto})}),
                 Row({Fields({Text1}), Fields({Text2}), Fields({Text3})}), picCurva,
                 Buttons({cmdSPIEGA, cmdESCI})});
}

void FrmUtiPercentuali::MostraCategorie() {
  std::vector<std::string> testi;
  for (const std::string_view categoria :
       kNomiClassi[static_cast<std::size_t>(comClasse.Index())].categorie)
    testi.emplace_back(categoria);
  comCategoria.SetVisible(!testi.empty());
  comCategoria.SetItems(std::move(testi));
  comCategoria.SetIndex(0);
  Aggiorna();
}

RichiestaPercentuali FrmUtiPercentuali::Richiesta() const {
  RichiestaPercentuali r;
  r.classe = std::string(1, static_cast<char>('1' + comClasse.Index()));
  r.categoria =
      comCategoria.Index() < 0 ? "" : std::string(1, static_cast<char>('a' + comCategoria.Index()));
  r.periodo = lavori.Periodo();
  r.lire = lavori.Lire();
  r.importo = lavori.Importo();
  return r;
}

void FrmUtiPercentuali::Aggiorna() {
  const RichiestaPercentuali r = Richiesta();
  lavori.MostraImporto();
  const Percentuali percentuali = CalcolaPercentuali(r, stato_.criteri);
  Text1.SetText(percentuali.tabellaA);
  Text2.SetText(percentuali.tabellaC);
  Text3.SetText(percentuali.nuova);
  cmdSPIEGA.Di(percentuali.perche);
  DisegnaCurva(picCurva, r, r.lire ? r.importo : EuroInLire(r.importo));
}

}  // namespace orm
