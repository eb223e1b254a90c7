// The percentages of the tariff on screen.
#include "utilities/form_percentages.h"

#include <initializer_list>

#include "tariff/forms/amount_box.h"
#include "tariff/law/table_classes.h"
#include "tariff/law/table_periods.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"
#include "utilities/percentage_curve.h"

namespace orm {

void MostraPercentuali(RunState& run) {
  FrmUtiPercentuali form(run);
  run.player.Show(form);
}

FrmUtiPercentuali::FrmUtiPercentuali(RunState& run)
    : Form("frmUTI_PERCENTUALI", "PERCENTUALI A VIDEO"),
      ciImporto(*this, "ciImporto", "IMPORTO DEI LAVORI", kLavori.lire),
      cdImporto(*this, "cdImporto", "IMPORTO DEI LAVORI", kLavori.euro),
      picCurva(*this, "picCurva", kLarghezzaCurva, kAltezzaCurva),
      run_(run) {
  std::vector<std::string> classi, periodi;
  for (const NomiClasse& classe : kNomiClassi) classi.emplace_back(classe.nome);
  for (int periodo = 1; periodo <= kPeriodo2001; ++periodo)
    periodi.push_back(NomePeriodoTariffario(periodo));
  comClasse.SetItems(std::move(classi));
  comClasse.SetIndex(0);
  comPeriodo.SetItems(std::move(periodi));
  comPeriodo.SetIndex(kPeriodo1987 - 1);
  valuta.Choose(run.ModoLire ? 0 : 1);
  MostraCategorie();

  comClasse.onChange = [this] { MostraCategorie(); };
  for (Control* dato : std::initializer_list<Control*>{&comCategoria, &comPeriodo, &optValuta1,
                                                       &optValuta2, &ciImporto, &cdImporto})
    dato->onChange = [this] { Aggiorna(); };
  cmdESCI.onPress = [this] { Close(); };
  SetContent(Disposizione());
}

Layout FrmUtiPercentuali::Disposizione() {
  return Column(
      {Fields({comClasse, comCategoria, comPeriodo}),
       Row({Group(fraValuta, {Row({optValuta1, optValuta2})}), Fields({ciImporto, cdImporto})}),
       Row({Fields({Text1}), Fields({Text2}), Fields({Text3})}), picCurva, Buttons({cmdESCI})});
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
  r.periodo = comPeriodo.Index() + 1;
  r.lire = optValuta1.Value();
  r.importo = r.lire ? ciImporto.Value() : cdImporto.Value();
  return r;
}

void FrmUtiPercentuali::Aggiorna() {
  const RichiestaPercentuali r = Richiesta();
  ciImporto.SetVisible(r.lire);
  cdImporto.SetVisible(!r.lire);
  const Percentuali percentuali = CalcolaPercentuali(r, run_.criteri);
  Text1.SetText(percentuali.tabellaA);
  Text2.SetText(percentuali.tabellaC);
  Text3.SetText(percentuali.nuova);
  DisegnaCurva(picCurva, r, r.lire ? r.importo : EuroInLire(r.importo));
}

}  // namespace orm
