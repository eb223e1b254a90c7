#include "cases/inc/form.h"

#include "runtime/numbers.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"

namespace orm {
namespace {
constexpr std::string_view kLettere = "gil";
}

FrmIncDati::FrmIncDati(DatiInc& dati, double massimoCompensi)
    : Form("frmINC_Dati", "INGEGNERE CAPO : DATI GENERALI", "dati generali") {
  SetContent(Column({Group(Frame1, {Decreti}), Group(Frame2, {Row({Option1, Option2})}),
                     lblCompensi, Buttons({Command1})}));
  Decreti.Mostra(dati.PeriodoTariffario);
  certificato.Choose(dati.CertificatoRegolareEsecuzione == "SI" ? 0 : 1);
  lblCompensi.SetText("COMPENSI ACCESSORI max " + FormattaCopia(massimoCompensi, 5) + " %");
  Command1.onPress = [this, &dati] {
    Decreti.Prendi(dati.PeriodoTariffario);
    dati.CertificatoRegolareEsecuzione = Option1.Value() ? "SI" : "NO";
    Esci(Uscita::Conferma);
  };
}

FrmIncPrestazioni::FrmIncPrestazioni(const QuoteInc& quote, LottoInc& lotto)
    : Form("frmINC_Prestazioni", "PRESTAZIONI DELL'INGEGNERE CAPO", "prestazioni") {
  const std::array quota = {quote.direzione, quote.assistenza, quote.liquidazione};
  std::vector<Layout> linee;
  for (std::size_t i = 0; i < kLettere.size(); ++i) {
    Check[i].SetValue(lotto.Prestazioni.find(kLettere[i]) != std::string::npos);
    linee.push_back(aliquote.Riga(Check[i],
                                  AliquotaTabellaB(lotto.Classe, lotto.Categoria, kLettere[i]),
                                  {.quota = quota[i]}));
  }
  linee.push_back(aliquote.Piede());
  linee.push_back(Buttons({Command1}));
  SetContent(Column(std::move(linee)));
  aliquote.Segui();
  Command1.onPress = [this, &lotto] {
    lotto.Prestazioni.clear();
    for (std::size_t i = 0; i < kLettere.size(); ++i)
      if (Check[i].Value())
        lotto.Prestazioni += (lotto.Prestazioni.empty() ? "" : "+") + std::string(1, kLettere[i]);
    Esci(Uscita::Conferma);
  };
}

}  // namespace orm
