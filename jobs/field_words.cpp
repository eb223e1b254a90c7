#include "jobs/field_words.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

#include "runtime/numbers.h"
#include "tariff/law/table_building_surveys.h"
#include "tariff/law/table_geotechnics.h"
#include "tariff/law/table_land_surveys.h"
#include "tariff/law/tariff_tables.h"
#include "tariff/money.h"

namespace orm {
namespace {

// How forms show a value that the file has as a code.
enum class Modo : std::uint8_t { Proprio, Periodo, Scelta, Contrario, Voce };

struct ParolaCampo {
  std::string_view nome, parole;
  Modo modo = Modo::Proprio;
  std::span<const char* const> voci = {};  // of a number from 1
};

constexpr std::array<const char*, 2> kTipiCollaudo = {"COLLAUDO AMMINISTRATIVO",
                                                      "CERTIFICATO REGOLARE ESECUZIONE"};
constexpr std::array<const char*, 3> kRiduzioneSu = {"Onorari e Compensi Accessori", "solo Onorari",
                                                     "solo Compensi Accessori"};
constexpr auto kTipiElaborato = [] {
  std::array<const char*, kElaboratiRim.size()> nomi{};
  std::ranges::transform(kElaboratiRim, nomi.begin(), &TipoElaboratoRim::nome);
  return nomi;
}();

constexpr ParolaCampo kParole[] = {
    {"COMMITTENTE", "Committente"},
    {"OGGETTO", "Oggetto"},
    {"DOCUMENTI DI INCARICO", "Documenti di incarico"},
    {"NOTE", "Note"},
    {"PercDiRiduzione", "Percentuale di riduzione"},
    {"Acconti", "Acconti ricevuti"},
    {"TipoRiduzione", "Riduzione", Modo::Scelta},
    {"ApplicazioneRiduzione", "Applicazione della riduzione", Modo::Voce, kRiduzioneSu},
    // of lots and rows
    {"Classe", "Classe"},
    {"Categoria", "Categoria"},
    {"Importo", "Importo"},
    {"Tariffa", "Periodo tariffario", Modo::Periodo},
    {"Periodo", "Periodo tariffario", Modo::Periodo},
    {"PeriodoTariffario", "Periodo tariffario", Modo::Periodo},
    {"ImportoProgetto", "Importo dei lavori di progetto"},
    {"ImportoProgettazione", "Importo dei lavori di progetto"},
    {"ImportoDirezione", "Importo dei lavori diretti"},
    {"ImportoDirezioneLavori", "Importo dei lavori diretti"},
    {"ImportoEspropri", "Espropri"},
    {"ImportoSuppletivi", "Importo lavori suppletivi"},
    {"ImportoEsproPerizie", "Espropri in perizie"},
    {"ImportoEsecuzione", "Importo dei lavori in esecuzione"},
    {"ImportoVerificato", "Importo delle strutture verificate"},
    {"TipoPrestazione", "Prestazioni complete o parziali", Modo::Scelta},
    {"TipoDiPrestazione", "Prestazioni complete o parziali", Modo::Scelta},
    {"Prestazioni", "Prestazioni"},
    {"StringaDellePrestazioni", "Prestazioni"},
    {"PrestazioniBase", "Prestazioni della Tabella B"},
    {"PrestazioniIntegrative", "Prestazioni della Tabella B1"},
    {"NumeroAddetti", "Numero addetti"},
    {"MisureContabilita", "Misure e contabilità", Modo::Scelta},
    {"CoefficienteContabilita", "Coefficiente della contabilità"},
    {"FlagSorveglianza", "Sorveglianza", Modo::Scelta},
    {"FlagContabilita", "Misure e contabilità", Modo::Scelta},
    {"FlagRevisione", "Revisione prezzi", Modo::Scelta},
    {"FlagPerizie", "Perizie di variante", Modo::Scelta},
    {"LavoriSuppletivi", "Importo lavori suppletivi"},
    {"LavoriVariati", "Importo lavori variati"},
    {"EsproPerizia", "Importo espropri in perizia"},
    {"TipoPerizia", "Tipo di perizia"},
    {"TipoPrestazioneVariati", "Prestazioni dei lavori variati", Modo::Scelta},
    {"PrestazioniVariati", "Prestazioni parziali dei lavori variati"},
    {"Sottoclasse", "Sottoclasse", Modo::Voce, kSottoclassiGeotecniche},
    {"StringaPrestazioni", "Prestazioni scelte"},
    {"StringaMaggiorazioni", "Maggiorazioni scelte"},
    {"StringaIncrementi", "Incrementi scelti"},
    {"Descrizione", "Descrizione del bene"},
    {"Valore", "Valore stimato"},
    {"PercentualeTabellaF", "Percentuale della Tabella F"},
    {"TipoElaborato", "Tipo", Modo::Voce, kTipiElaborato},
    {"Scala", "Scala", Modo::Voce, kScaleRim},
    {kScalaTerreno, "Scala", Modo::Voce, kScaleRpa},
    {"Quantita", "Superficie o volume"},
    {"Numero", "Numero"},
    {"Terreno", "Terreni", Modo::Voce, kTerreniRpa},
    {"Giacitura", "Giacitura", Modo::Voce, kGiacitureRpa},
    {"Ettari", "Estensione in ettari"},
    {"Attivita", "Descrizione"},
    {"Aliquota", "Aliquota della Tabella B6"},
    // of whole notes
    {"TipoParcella", "Tipo di parcella", Modo::Scelta},
    {"TipoDiParcella", "Tipo di parcella", Modo::Scelta},
    {"IncaricoParziale", "Incarico parziale (art. 18)", Modo::Scelta},
    {"MaggiorazioneParziale", "Incarico parziale (art. 18)", Modo::Scelta},
    {"CertificatoRegolare", "Certificato di regolare esecuzione", Modo::Scelta},
    {"CertificatoRegolareEsecuzione", "Certificato di regolare esecuzione", Modo::Scelta},
    {"PeriodoMassimo", "Periodo tariffario del certificato", Modo::Periodo},
    {"CostoIndagini", "Costo delle indagini e prove"},
    {"TipoDiAggiornamento", "Aggiornamento eseguito in base a"},
    {"EsecutoreDellAggiornamento", "Aggiornamento eseguito dallo stesso progettista",
     Modo::Contrario},
    {"PeriodoCollaudo", "Periodo tariffario", Modo::Periodo},
    {"ImportoCollaudo", "Importo dei lavori collaudati"},
    {"TipoCollaudo", "Tipologia di collaudo", Modo::Voce, kTipiCollaudo},
    {"MaggiorazioneCollaudo", "Maggiorazione per collaudo in corso d'opera"},
    {"NumeroFacciate", "Numero facciate dei documenti contabili revisionati"},
    {"ImportoTotaleCS", "Importo collaudato, totale"},
    {"ImportoCS(1)", "Importo collaudato nel primo periodo"},
    {"ImportoCS(2)", "Importo collaudato nel secondo periodo"},
    {"ImportoCS(3)", "Importo collaudato nel terzo periodo"},
    {"ImportoCS(4)", "Importo collaudato nel quarto periodo"},
    {"ImportoCS(5)", "Importo collaudato nel quinto periodo"},
    {"Maggiorazione(1)", "Prima maggiorazione o riduzione"},
    {"Maggiorazione(2)", "Seconda maggiorazione o riduzione"},
    {"Maggiorazione(3)", "Terza maggiorazione o riduzione"},
    {"Maggiorazione(4)", "Quarta maggiorazione o riduzione"},
    {"Maggiorazione(5)", "Quinta maggiorazione o riduzione"},
    {"RevisioneCalcoli", "Revisione dei calcoli", Modo::Scelta},
    {"NumPartite", "Numero partite catastali"},
    {"NumParticelle", "Numero particelle catastali"},
    {"NumParticelleVerbale", "Verbale di consistenza, numero delle particelle catastali"},
    {"NumFabbricati", "Verbale di consistenza, numero fabbricati"},
    {"NumFrazionamenti", "Numero dei frazionamenti"},
    {"RilievoStrutture", "Rilievo delle strutture", Modo::Scelta},
    {"RilievoImpianti", "Impianti tecnici complessi", Modo::Scelta},
    {"EdificioVincolato", "Edificio vincolato", Modo::Scelta},
    {"OreProfessionista", "Ore del professionista"},
    {"OreAiutoIscritto", "Ore dell'aiuto iscritto all'albo"},
    {"OreAiutoConcetto", "Ore dell'aiuto di concetto"},
    {"ParticellePiccole", "Particelle inferiori a 500 mq"},
    {"ParticelleGrandi", "Particelle oltre 500 mq"},
    {"Superficie", "Superficie interessata dall'incarico"},
    {"NumeroPartite", "Numero delle partite"},
    {"NumeroMappali", "Numero dei mappali"},
    {"VolumeAbitazioni", "Costruzioni adibite ad abitazioni od uffici"},
    {"SuperficieAgricola", "Costruzioni adibite ad uso agricolo"},
    {"AnnoPrestazione", "Anno della prestazione"},
    {"MesePrestazione", "Mese della prestazione"},
    {"Maggiorazione", "Maggiorazione per fronti stradali in allargamento"},
};

// What lots repeat of their rows.
constexpr std::string_view kRipetuti[] = {
    "UltimaRiga",    "UltimaRigaCS",     "UltimoLottoDelGruppo", "PeriodoDelLotto",
    "PeriodoRigaCS", "TariffaDelGruppo", "TariffaDelLotto"};

struct Scelta {
  std::string_view codice, parole;
};
constexpr Scelta kScelte[] = {{"S", "SI"},
                              {"N", "NO"},
                              {"T", "COMPLETE"},
                              {"P", "PARZIALI"},
                              {"NORMALE", "PREVENTIVA e IN CORSO D'OPERA"},
                              {"CONSUNTIVA", "CONSUNTIVA a Fine Lavori"},
                              {"INTERROTTA", "INTERROTTA per risoluzione Incarico"},
                              {"SCISSA", "A Percentuali distinte per Prog. e D.L."},
                              {"CONCORDATA", "Concordata"}};
constexpr const char* kRiduzioneDiLegge = "Ex Art. 4 comma 12bis L. 155/89";

const ParolaCampo* Trova(std::string_view nome) {
  const auto* trovata = std::ranges::find(kParole, nome, &ParolaCampo::nome);
  return trovata == std::end(kParole) ? nullptr : trovata;
}

std::string NumeroInParole(double numero) {
  std::string testo = NumberText(numero);
  std::ranges::replace(testo, '.', ',');
  return testo;
}

// The number that a field of either kind holds; 0 where it holds none.
int Codice(const CampoLetto& campo) {
  const double numero =
      campo.tipo == CampoLetto::Tipo::Testo ? ParseNumber(campo.testo).value_or(0) : campo.numero;
  return numero >= 0 && numero <= 99 ? static_cast<int>(numero) : 0;
}

std::string Testo(const CampoLetto& campo, bool lire) {
  switch (campo.tipo) {
    case CampoLetto::Tipo::Testo:
      return campo.testo;
    case CampoLetto::Tipo::Importo:
      return (lire ? "L. " : "€ ") + FormattaCopia(campo.numero, lire ? 0 : -2);
    case CampoLetto::Tipo::Booleano:
      return campo.numero != 0 ? "SI" : "NO";
    default:
      return NumeroInParole(campo.numero);
  }
}

}  // namespace

bool HaParole(std::string_view nome) { return Trova(nome) != nullptr; }

std::string ParoleDelCampo(std::string_view nome) {
  if (const ParolaCampo* parola = Trova(nome)) return std::string(parola->parole);
  std::string testo;
  for (const char c : nome) {
    const bool alta = c >= 'A' && c <= 'Z' && !testo.empty();
    if (alta) testo += ' ';
    testo += alta ? static_cast<char>(c + ('a' - 'A')) : c;
  }
  return testo;
}

bool SiMostra(const CampoLetto& campo) {
  return campo.tipo != CampoLetto::Tipo::Conto && std::ranges::count(kRipetuti, campo.nome) == 0;
}

std::string ValoreInParole(const CampoLetto& campo, bool lire) {
  const ParolaCampo* parola = Trova(campo.nome);
  const Modo modo = parola == nullptr ? Modo::Proprio : parola->modo;
  const int codice = Codice(campo);
  if (modo == Modo::Periodo && codice >= 1 && codice <= 6) return NomePeriodoTariffario(codice);
  if (modo == Modo::Voce && codice >= 1 && static_cast<std::size_t>(codice) <= parola->voci.size())
    return parola->voci[static_cast<std::size_t>(codice - 1)];
  if (campo.nome == "TipoRiduzione" && campo.testo.empty()) return kRiduzioneDiLegge;
  if (modo == Modo::Contrario) return campo.testo == "SI" ? "NO" : "SI";
  if (modo == Modo::Scelta)
    for (const Scelta& scelta : kScelte)
      if (campo.testo == scelta.codice) return std::string(scelta.parole);
  return Testo(campo, lire);
}

}  // namespace orm
