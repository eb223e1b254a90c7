#include "structures/structural_report.h"

#include <map>
#include <utility>

#include "dialogs/message_boxes.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {
// Elements printed in this run, by file.
struct ElementiStampati {
  std::map<std::string, int> quanti;
};
}  // namespace

void StampaSezione(ReportPrinter& relazione, std::string_view titolo) {
  relazione.Line();
  relazione.Text("== ").Text(titolo).Line(" ==");
}

void StampaDato(ReportPrinter& relazione, std::string_view etichetta, std::string_view valore,
                std::string_view unita) {
  relazione.Text(etichetta).Text(valore).Line(unita);
}

namespace {
void StampaInizio(ReportPrinter& relazione, std::string_view etichetta, double valore,
                  std::string_view modello, std::string_view unita) {
  const std::string testo = FormatPattern(valore, modello);
  // A value with no room before its unit begins further left, so that it keeps its line.
  const auto lunghezza = static_cast<int>(testo.size());
  const bool lungo = lunghezza > kColonnaUnita - kColonnaValore;
  relazione.Text(etichetta);
  const int inizio = lungo ? kColonnaUnita - 1 - lunghezza : kColonnaValore;
  if (inizio > relazione.Column())
    relazione.Tab(inizio).Text(testo);
  else
    relazione.Text(" ").Text(testo);
  if (relazione.Column() > kColonnaUnita)
    relazione.Text(" ").Text(unita);
  else
    relazione.Tab(kColonnaUnita).Text(unita);
}
}  // namespace

void StampaValore(ReportPrinter& relazione, std::string_view etichetta, double valore,
                  std::string_view modello, std::string_view unita) {
  StampaInizio(relazione, etichetta, valore, modello, unita);
  relazione.EndLine();
}

void StampaValoreConLimite(ReportPrinter& relazione, std::string_view etichetta, double valore,
                           std::string_view modello, std::string_view unita,
                           std::string_view limite, double ammesso) {
  StampaInizio(relazione, etichetta, valore, modello, unita);
  if (valore > ammesso) relazione.Tab(kColonnaOltre).Text(kOltre);
  relazione.Tab(kColonnaLimite).Text(limite).Text(FormatPattern(ammesso, modello));
  relazione.Tab(kColonnaUnitaLimite).Line(unita);
}

void StampaValoriOltre(ReportPrinter& relazione, bool oltre) {
  if (oltre) relazione.Line("ATTENZIONE : i valori segnati con > superano il loro limite.");
}

RelazioneStrutturale::RelazioneStrutturale(RunState& stato, std::string file)
    : stato_(stato), file_(std::move(file)) {}

int RelazioneStrutturale::Numero() const {
  return stato_.memoria.The<ElementiStampati>().quanti[file_] + 1;
}

bool RelazioneStrutturale::Accodata() const { return Numero() > 1 && stato_.folder.Exists(file_); }

void RelazioneStrutturale::Stampa(const StampaElemento& stampa, const char* avviso) {
  const bool accodata = Accodata();
  if (accodata && avviso != nullptr) stato_.player.Ask(Avviso(avviso));
  ReportPrinter testo;
  stampa(testo, !accodata, Numero());
  const std::string bytes =
      (accodata ? stato_.folder.Read(file_) : "") + ToWindows1252(testo.Contents());
  stato_.folder.Replace(file_, bytes);  // grown by hand: it is not made again
  ++stato_.memoria.The<ElementiStampati>().quanti[file_];
  stato_.player.StartProgram(stato_.editors.EditorTesti, file_);
}

}  // namespace orm
