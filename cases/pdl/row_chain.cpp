#include "cases/pdl/row_chain.h"

#include <algorithm>
#include <span>

#include "cases/pdl/form_reports.h"
#include "cases/pdl/form_services.h"
#include "dialogs/message_boxes.h"
#include "runtime/numbers.h"
#include "tariff/forms/form_amounts.h"
#include "tariff/forms/form_pdl_extras.h"

namespace orm {
namespace {

class CatenaRiga {
 public:
  CatenaRiga(RunState& run, const PostoPdl& posto, const std::vector<RigaPdl>& altreRighe,
             RigaPdl& rigaDelLotto)
      : stato(run), qui(posto), altre(altreRighe), riga(rigaDelLotto) {}

  void ChiediImporti();
  void ChiediPrestazioni();
  void ChiediAggiuntive();
  void ChiediContabilita();
  void ChiediPerizie();

 private:
  std::string RifiutoDiContabilita() const;
  void ChiediPerizia(std::size_t j);
  std::vector<PeriziaPdl> AltrePerizie(std::size_t j) const;  // all but the j-th of the row

  RunState& stato;
  const PostoPdl& qui;
  const std::vector<RigaPdl>& altre;
  RigaPdl& riga;
};

void CatenaRiga::ChiediImporti() {
  const auto chiesto = [this](double RigaPdl::*importo) {
    return Chiesto(riga, importo, altre, {qui.lotto, "GLI ALTRI LOTTI E PERIODI"});
  };
  FrmPdlImporti form(
      stato, "PARCELLA PROGETTAZIONE E D.L.ante D.M. 4-4-01 : IMPORTI DEI LAVORI NEL LOTTO ",
      {chiesto(&RigaPdl::ImportoProgetto), chiesto(&RigaPdl::ImportoEspropri),
       chiesto(&RigaPdl::ImportoSuppletivi), chiesto(&RigaPdl::ImportoEsproPerizie),
       chiesto(&RigaPdl::ImportoDirezione)});
  stato.player.Show(form);
}

void CatenaRiga::ChiediPrestazioni() {
  FrmPdlPrestazio form("PRESTAZIONI DI TABELLA B EFFETTUATE", riga, riga.TipoPrestazione,
                       riga.Prestazioni, FrmPdlPrestazio::Modo::Riga);
  stato.player.Show(form);
}

// Accounting is paid on supervision alone.
std::string CatenaRiga::RifiutoDiContabilita() const {
  return RifiutoContabilita(static_cast<std::size_t>(std::ranges::count_if(
      altre, [](const RigaPdl& r) { return r.FlagContabilita == "S" && r.ImportoDirezione > 0; })));
}

// Without supervision nothing is asked, and the flags stay as they are.
void CatenaRiga::ChiediAggiuntive() {
  if (riga.ImportoDirezione <= 0) return;
  const std::string rifiuto = RifiutoDiContabilita();
  PrestazioniAggiuntive chieste{riga.FlagSorveglianza == "S", riga.FlagContabilita == "S",
                                riga.FlagRevisione == "S", riga.FlagPerizie == "S"};
  FrmPdlAltri form(stato, "LAVORI PRIVATI e LL.PP. ante D.M. 4-4-2001", rifiuto, chieste);
  // Works of variations are nothing without the variations.
  if (riga.ImportoSuppletivi != 0 || riga.ImportoEsproPerizie != 0) form.Check4.SetValue(true);
  stato.player.Show(form);
  if (form.Confermato()) {
    const auto flag = [](bool scelta) { return scelta ? "S" : "N"; };
    riga.FlagSorveglianza = flag(chieste.Sorveglianza);
    riga.FlagContabilita = flag(chieste.Contabilita);
    riga.FlagRevisione = flag(chieste.Revisione);
    riga.FlagPerizie = flag(chieste.Perizie);
  }
  if (riga.FlagContabilita != "S" || rifiuto.empty()) return;
  stato.player.Ask(Avviso(rifiuto));
  riga.FlagContabilita = riga.FlagRevisione = "N";
}

void CatenaRiga::ChiediContabilita() {
  riga.CoefficienteContabilita =
      riga.FlagContabilita == "S"
          ? ChiediCoefficienteContabilita(stato.player, riga.Classe, riga.CoefficienteContabilita)
          : 0;
}

void CatenaRiga::ChiediPerizie() {
  if (riga.FlagPerizie != "S") {
    riga.NumeroPerizie = 0;
    return;
  }
  FrmPdlPerizie form(stato, riga.NumeroPerizie);
  stato.player.Show(form);
  // The ten that a new row begins with are a proposal.
  if (!form.Confermato() && qui.nuova) riga.NumeroPerizie = 0;
  for (std::size_t j = 0; j < static_cast<std::size_t>(riga.NumeroPerizie); ++j) ChiediPerizia(j);
}

std::vector<PeriziaPdl> CatenaRiga::AltrePerizie(std::size_t j) const {
  const auto perizieDi = [](const RigaPdl& r) {
    return std::span(r.Perizie).first(
        r.FlagPerizie == "S" ? static_cast<std::size_t>(r.NumeroPerizie) : 0);
  };
  std::vector<PeriziaPdl> perizie;
  for (const RigaPdl& r : altre)
    perizie.insert(perizie.end(), perizieDi(r).begin(), perizieDi(r).end());
  const auto sue = perizieDi(riga);
  for (std::size_t k = 0; k < sue.size(); ++k)
    if (k != j) perizie.push_back(sue[k]);
  return perizie;
}

void CatenaRiga::ChiediPerizia(std::size_t j) {
  const std::string numero = "perizia " + NumberText(static_cast<double>(j + 1));
  const PartOfWay nellaPerizia(stato.player.place,
                               {numero + " di " + NumberText(riga.NumeroPerizie)});
  const Drafts::Subject parla(stato.player.DraftsOfRun(), numero);
  PeriziaPdl& perizia = riga.Perizie[j];
  FrmPdlImpPer importi(stato, perizia, AltrePerizie(j));
  stato.player.Show(importi);
  if (perizia.LavoriVariati == 0) {
    perizia.TipoPrestazioneVariati = "T";
    perizia.PrestazioniVariati.clear();
    return;
  }
  FrmPdlPrestazio form("PRESTAZIONI DI TABELLA B SUI LAVORI VARIATI", riga,
                       perizia.TipoPrestazioneVariati, perizia.PrestazioniVariati,
                       FrmPdlPrestazio::Modo::Perizia);
  stato.player.Show(form);
}

}  // namespace

void ChiediRiga(RunState& stato, const PostoPdl& posto, const std::vector<RigaPdl>& altre,
                RigaPdl& riga) {
  CatenaRiga catena(stato, posto, altre, riga);
  catena.ChiediImporti();
  catena.ChiediPrestazioni();
  catena.ChiediAggiuntive();
  catena.ChiediContabilita();
  catena.ChiediPerizie();
}

}  // namespace orm
