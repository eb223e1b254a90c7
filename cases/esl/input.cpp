#include <algorithm>

#include "cases/esl/data.h"
#include "cases/esl/esl.h"
#include "cases/esl/form_services.h"
#include "dialogs/message_boxes.h"
#include "tariff/forms/form_amounts.h"
#include "tariff/forms/form_class.h"
#include "tariff/forms/form_kind.h"
#include "tariff/forms/form_pdl_extras.h"
#include "tariff/forms/form_question.h"
#include "tariff/forms/input_step.h"

namespace orm {
namespace {

// The dialogs of a lot, one after the other.
class CatenaLotto {
 public:
  CatenaLotto(RunState& run, const PostoRiga& posto, const std::vector<LottoEsl>& altriLotti,
              LottoEsl& lottoDelCaso)
      : stato(run), numero(ConNumero(posto, "LOTTO")), altri(altriLotti), lotto(lottoDelCaso) {}

  void Chiedi();

 private:
  void ChiediImporti();
  void ChiediPrestazioni();
  void ChiediContabilita();
  std::string RifiutoDiContabilita() const;

  RunState& stato;
  const std::string numero;
  const std::vector<LottoEsl>& altri;
  LottoEsl& lotto;
};

// A lot without positive amounts stays, with whatever it had before.
void CatenaLotto::Chiedi() {
  ChiediImporti();
  if (lotto.ImportoProgettazione > 0 || lotto.ImportoDirezioneLavori > 0) {
    ChiediPrestazioni();
    ChiediContabilita();
  }
  const std::string rifiuto = RifiutoDiContabilita();
  if (lotto.MisureContabilita != "SI" || rifiuto.empty()) return;
  stato.player.Ask(Avviso(rifiuto));
  lotto.MisureContabilita = "NO";
  lotto.CoefficienteContabilita = 0;
}

void CatenaLotto::ChiediImporti() {
  FrmPdlImporti form(stato, "PARCELLA PROGETTAZIONE e D.L. D.M. 4-4-01 : IMPORTI LAVORI nel LOTTO",
                     {Chiesto(lotto, &LottoEsl::ImportoProgettazione, altri, {numero}),
                      {},
                      {},
                      {},
                      Chiesto(lotto, &LottoEsl::ImportoDirezioneLavori, altri, {numero})});
  stato.player.Show(form);
}

void CatenaLotto::ChiediPrestazioni() {
  FrmEslPrestazioniBase base(lotto);
  stato.player.Show(base);
  FrmEslPrestazioniIntegrative integrative(lotto);
  stato.player.Show(integrative);
}

std::string CatenaLotto::RifiutoDiContabilita() const {
  return RifiutoContabilita(
      static_cast<std::size_t>(std::ranges::count(altri, "SI", &LottoEsl::MisureContabilita)));
}

void CatenaLotto::ChiediContabilita() {
  PrestazioniAggiuntive chieste;
  if (lotto.ImportoDirezioneLavori != 0) {
    chieste.Contabilita = lotto.MisureContabilita == "SI";
    FrmPdlAltri form(stato, "LAVORI PUBBLICI D.M. 4-4-2001", RifiutoDiContabilita(), chieste);
    form.SoloContabilita();
    stato.player.Show(form);
  }
  lotto.MisureContabilita = chieste.Contabilita ? "SI" : "NO";
  lotto.CoefficienteContabilita =
      chieste.Contabilita
          ? ChiediCoefficienteContabilita(stato.player, lotto.Classe, lotto.CoefficienteContabilita)
          : 0;
}

}  // namespace

void InputEsl(RunState& stato) {
  DatiEsl dati;
  if (IniziaInput(stato, dati) == Inizio::Rinuncia) return;
  if (!ChiediTipologia(stato.player, dati.TipoParcella, false)) return;
  ChiediElenco(stato, dati.Lotti, AlMassimo(kLottiMassimi, "LOTTI"),
               [&](const PostoRiga& posto, LottoEsl& lotto, const std::vector<LottoEsl>& altri) {
                 if (!ChiediClasse(stato, posto, lotto.Classe, lotto.Categoria)) return false;
                 const PartOfWay qui(stato.player.place,
                                     DoveSiamo(posto, lotto.Classe, lotto.Categoria));
                 CatenaLotto(stato, posto, altri, lotto).Chiedi();
                 return true;
               });
  const bool conDirezione = std::ranges::any_of(
      dati.Lotti, [](const LottoEsl& lotto) { return lotto.ImportoDirezioneLavori != 0; });
  dati.CertificatoRegolare = ChiediCertificato(stato.player, "ULTERIORI PRESTAZIONI", conDirezione,
                                               dati.CertificatoRegolare);
  ConcludiInput(stato, dati);
}

}  // namespace orm
