#include "cases/pdl/row_chain.h"

#include <algorithm>

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
  CatenaRiga(RunState& run, const std::string& luogo, const std::vector<RigaPdl>& righeFatte,
             RigaPdl& rigaDelLotto)
      : stato(run), dove(luogo), fatte(righeFatte), riga(rigaDelLotto) {}

  void ChiediImporti();
  void ChiediPrestazioni();
  void ChiediAggiuntive();
  void ChiediContabilita();
  void ChiediPerizie();

 private:
  std::string RifiutoDiContabilita() const;
  void ChiediPerizia(std::size_t j);
  AltrePerizie PerizieGiaDate(std::size_t j) const;

  RunState& stato;
  const std::string& dove;
  const std::vector<RigaPdl>& fatte;
  RigaPdl& riga;
};

void CatenaRiga::ChiediImporti() {
  const auto chiesto = [this](double RigaPdl::*importo) { return Chiesto(riga, importo, fatte); };
  FrmPdlImporti form(
      stato, "PARCELLA PROGETTAZIONE E D.L.ante D.M. 4-4-01 : IMPORTI DEI LAVORI NEL LOTTO ", dove,
      {chiesto(&RigaPdl::ImportoProgetto), chiesto(&RigaPdl::ImportoEspropri),
       chiesto(&RigaPdl::ImportoSuppletivi), chiesto(&RigaPdl::ImportoEsproPerizie),
       chiesto(&RigaPdl::ImportoDirezione)});
  stato.player.Show(form);
}

void CatenaRiga::ChiediPrestazioni() {
  FrmPdlPrestazio form("PRESTAZIONI DI TABELLA B EFFETTUATE", dove, riga.TipoPrestazione,
                       riga.Prestazioni, FrmPdlPrestazio::Modo::Riga);
  stato.player.Show(form);
}

// Accounting is paid on supervision alone.
std::string CatenaRiga::RifiutoDiContabilita() const {
  return RifiutoContabilita(static_cast<std::size_t>(std::ranges::count_if(
      fatte, [](const RigaPdl& r) { return r.FlagContabilita == "S" && r.ImportoDirezione > 0; })));
}

// Without supervision nothing is asked, and the flags stay as they are.
void CatenaRiga::ChiediAggiuntive() {
  if (riga.ImportoDirezione <= 0) return;
  const bool perizie = riga.ImportoSuppletivi != 0 || riga.ImportoEsproPerizie != 0;
  const std::string rifiuto = RifiutoDiContabilita();
  PrestazioniAggiuntive chieste{riga.FlagSorveglianza == "S", riga.FlagContabilita == "S",
                                riga.FlagRevisione == "S", perizie || riga.FlagPerizie == "S"};
  FrmPdlAltri form(stato, "LAVORI PRIVATI e LL.PP. ante D.M. 4-4-2001", dove, rifiuto, chieste);
  stato.player.Show(form);
  const auto flag = [](bool scelta) { return scelta ? "S" : "N"; };
  riga.FlagSorveglianza = flag(chieste.Sorveglianza);
  riga.FlagContabilita = flag(chieste.Contabilita);
  riga.FlagRevisione = flag(chieste.Revisione);
  riga.FlagPerizie = flag(chieste.Perizie);
  if (riga.FlagContabilita == "N" || rifiuto.empty()) return;
  stato.player.Ask(Avviso(rifiuto));
  riga.FlagContabilita = riga.FlagRevisione = "N";
}

void CatenaRiga::ChiediContabilita() {
  riga.CoefficienteContabilita =
      riga.FlagContabilita == "S" ? ChiediCoefficienteContabilita(stato.player, dove, riga.Classe,
                                                                  riga.CoefficienteContabilita)
                                  : 0;
}

void CatenaRiga::ChiediPerizie() {
  if (riga.FlagPerizie != "S") {
    riga.NumeroPerizie = 0;
    return;
  }
  FrmPdlPerizie form(stato, dove, riga.NumeroPerizie);
  stato.player.Show(form);
  for (std::size_t j = 0; j < static_cast<std::size_t>(riga.NumeroPerizie); ++j) ChiediPerizia(j);
}

AltrePerizie CatenaRiga::PerizieGiaDate(std::size_t j) const {
  AltrePerizie altri{};
  const auto somma = [&altri](const RigaPdl& r, std::size_t quante) {
    for (std::size_t k = 0; k < quante; ++k) {
      altri[0] += r.Perizie[k].LavoriSuppletivi;
      altri[1] += r.Perizie[k].EsproPerizia;
      altri[2] += r.Perizie[k].LavoriVariati;
    }
  };
  for (const RigaPdl& r : fatte) somma(r, static_cast<std::size_t>(r.NumeroPerizie));
  somma(riga, j);
  return altri;
}

void CatenaRiga::ChiediPerizia(std::size_t j) {
  const std::string quale = dove + "\nPERIZIA n° " + NumberText(static_cast<double>(j + 1)) +
                            " di " + NumberText(riga.NumeroPerizie);
  PeriziaPdl& perizia = riga.Perizie[j];
  FrmPdlImpPer importi(stato, quale, perizia, PerizieGiaDate(j));
  stato.player.Show(importi);
  if (perizia.LavoriVariati == 0) {
    perizia.TipoPrestazioneVariati = "T";
    perizia.PrestazioniVariati.clear();
    return;
  }
  FrmPdlPrestazio form("PRESTAZIONI DI TABELLA B SUI LAVORI VARIATI", quale,
                       perizia.TipoPrestazioneVariati, perizia.PrestazioniVariati,
                       FrmPdlPrestazio::Modo::Perizia);
  stato.player.Show(form);
}

}  // namespace

void ChiediRiga(RunState& stato, const std::string& dove, const std::vector<RigaPdl>& fatte,
                RigaPdl& riga) {
  CatenaRiga catena(stato, dove, fatte, riga);
  catena.ChiediImporti();
  catena.ChiediPrestazioni();
  catena.ChiediAggiuntive();
  catena.ChiediContabilita();
  catena.ChiediPerizie();
}

}  // namespace orm
