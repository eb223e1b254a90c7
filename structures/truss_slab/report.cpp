#include "structures/truss_slab/report.h"

#include <array>

#include "runtime/data_file.h"
#include "runtime/numbers.h"
#include "structures/structural_report.h"

namespace orm {
namespace {

constexpr const char* kKgCmq = "Kg/cmq";

constexpr int kColonnaDisegno = 34, kColonnaProduttore = 60;

void Riga(ReportPrinter& relazione) { relazione.Tab(2).Line(std::string(73, '-')); }

void RigaInsegna(ReportPrinter& relazione, const char* testo, const char* casa,
                 const std::string& produttore) {
  relazione.Text(testo).Tab(kColonnaDisegno).Text(casa);
  if (!produttore.empty()) relazione.Tab(kColonnaProduttore).Text(produttore);
  relazione.EndLine();
}

void Dati(ReportPrinter& r, int numero, const DatiSolaioT& dati) {
  r.Line();
  r.Text("Solaio n. :").Bare(numero).EndLine();
  r.Text("Tipo   : ").Text(dati.modulo.nomeRelazione).Line(" ");
  StampaDato(r, "Luce netta                            :  ", FormatPattern(dati.luce, kDueDecimali),
             " ml");
  StampaDato(r, "Altezza solettina                     :  ", NumberText(dati.solettina), "    cm");
  StampaDato(r, "Classe cls                            :  ", dati.classeCls, " Kg/cmq");
  StampaDato(r, "Tipo di acciaio                       :  ", dati.tipoFerro);
  StampaDato(r, "Tipo di laterizio                     :  ", dati.blocco);
  StampaDato(r, "Ferri inferiori traliccio             :  ", "2 Ø 5");
}

void Carichi(ReportPrinter& r, const DatiSolaioT& dati) {
  StampaSezione(r, "CARICHI RIPARTITI SUL SOLAIO");
  StampaValore(r, "Peso proprio", dati.pesoProprio, "###0", "Kg/mq");
  StampaValore(r, "Permanente", dati.permanente, "###0", "Kg/mq");
  StampaValore(r, "Accidentale", dati.accidentale, "###0", "Kg/mq");
}

void Sollecitazioni(ReportPrinter& r, const RisultatiSolaioT& risultati) {
  StampaSezione(r, "SOLLECITAZIONI TRAVETTI");
  StampaValore(r, "Taglio max", risultati.taglio, kDueDecimali, "Kg");
  StampaValore(r, "Momento incastro SIN", risultati.sinistra.momento, kDueDecimali, "Kg x ml");
  StampaValore(r, "Momento incastro DEX", risultati.destra.momento, kDueDecimali, "Kg x ml");
  StampaValore(r, "Momento mezzeria", risultati.momentoMezzeria, kDueDecimali, "Kg x ml");
}

void Tensione(ReportPrinter& r, const char* nome, double valore, double ammessa) {
  StampaValoreConLimite(r, nome, valore, kDueDecimali, kKgCmq, kAmmessa, ammessa);
}

void TensioniIncastro(ReportPrinter& r, const char* dove, const Appoggio& appoggio,
                      const Ammissibili& ammissibili) {
  r.Line(dove);
  Tensione(r, "Cls inf. sez. piena", appoggio.clsPiena, ammissibili.cls);
  Tensione(r, "Cls inf. travetto", appoggio.clsNervata, ammissibili.cls);
  Tensione(r, "Acciaio sup. sez. piena", appoggio.acciaioPiena, ammissibili.acciaio);
  Tensione(r, "Acciaio sup. travetto", appoggio.acciaioNervata, ammissibili.acciaio);
}

void Tensioni(ReportPrinter& r, const RisultatiSolaioT& risultati) {
  const Ammissibili& ammissibili = risultati.ammissibili;
  StampaSezione(r, "TENSIONI");
  TensioniIncastro(r, "IN CORRISPONDENZA DELL'INCASTRO SIN", risultati.sinistra, ammissibili);
  TensioniIncastro(r, "IN CORRISPONDENZA DELL'INCASTRO DEX", risultati.destra, ammissibili);
  r.Line("IN CORRISPONDENZA DELLA MEZZERIA");
  Tensione(r, "Tensione cls sup.", risultati.clsMezzeria, ammissibili.cls);
  Tensione(r, "Tensione acciaio inf.", risultati.acciaioMezzeria, ammissibili.acciaio);
  r.Line("TAGLIO");
  Tensione(r, "Tensione tangenziale max  cls", risultati.tau, ammissibili.taglio);
}

void InizioFerro(ReportPrinter& r, const char* nome, double diametro, double lunghezza) {
  r.Text(nome).Tab(kColonnaValore).Text("Ø = ").Text(FormatPattern(diametro, "###0"));
  r.Tab(kColonnaUnita).Text("Lun.: ").Text(FormatPattern(lunghezza, "#0.00")).Tab(54).Text("ml");
}

void StampaBarra(ReportPrinter& r, const char* nome, const Barra& barra) {
  if (barra.diametro == 0) return;
  InizioFerro(r, nome, barra.diametro, barra.lunghezza);
  r.EndLine();
}

void StampaMoncone(ReportPrinter& r, const char* nome, const Moncone& moncone) {
  if (moncone.diametro == 0) return;
  InizioFerro(r, nome, moncone.diametro, moncone.Lunghezza());
  r.Tab(57).Text("[cm ").Bare(moncone.incastro * 100).Text("inc.-");
  r.Bare(moncone.campata * 100).Line("camp.]");
}

void Armature(ReportPrinter& r, const RisultatiSolaioT& risultati) {
  StampaSezione(r, "ARMATURE");
  StampaBarra(r, "Ferro aggiuntivo in campata", risultati.campata[0]);
  StampaBarra(r, "Ferro integrativo n.1 in campata", risultati.campata[1]);
  StampaBarra(r, "Ferro integrativo n.2 in campata", risultati.campata[2]);
  StampaMoncone(r, "Moncone lungo superiore SIN", risultati.sinistra.lungo);
  StampaMoncone(r, "Moncone lungo superiore DEX", risultati.destra.lungo);
  StampaMoncone(r, "Moncone corto superiore SIN", risultati.sinistra.corto);
  StampaMoncone(r, "Moncone corto superiore DEX", risultati.destra.corto);
}

void ZonePiene(ReportPrinter& r, const RisultatiSolaioT& risultati) {
  StampaSezione(r, "ZONE PIENE");
  for (const char* nome : {"Lunghezza zona piena a SIN", "Lunghezza zona piena a DEX"})
    r.Text(nome).Tab(35).Text(FormatPattern(risultati.zonaPiena * 100, "##0.0")).Line("  cm");
}

}  // namespace

Produttore LeggiProduttore(const WorkFolder& folder) {
  Produttore produttore;
  if (!folder.Exists(kFileProduttore)) return produttore;
  DataReader file(folder, kFileProduttore);
  file.Line(Field("Stabilimento", produttore.Stabilimento), Field("Luogo", produttore.Luogo),
            Field("Telefono", produttore.Telefono));
  return produttore;
}

void StampaIntestazioneSolaioT(ReportPrinter& relazione, const Produttore& produttore) {
  RigaInsegna(relazione, "  QV srl", "    //\\\\", "");
  RigaInsegna(relazione, "  MANUFATTI IN CEMENTO", "  //    \\\\", produttore.Stabilimento);
  RigaInsegna(relazione, "   SOLAI TRALICCIATI", "//        \\\\", produttore.Luogo);
  RigaInsegna(relazione, "  LATERIZI", "  **    **", produttore.Telefono);
  relazione.Line();
  relazione.Line(" VERIFICA SICUREZZA SOLAIO A TRAVETTI TRALICCIATI E LATERIZI");
  Riga(relazione);
  relazione.Line("              CALCOLO STATICO AD USO ESCLUSIVO USO DEL");
  relazione.Line("                PROGETTISTA E/O DIRETTORE DEI LAVORI");
  Riga(relazione);
}

void StampaSolaioT(ReportPrinter& relazione, int numero, const DatiSolaioT& dati,
                   const RisultatiSolaioT& risultati) {
  Dati(relazione, numero, dati);
  Carichi(relazione, dati);
  Sollecitazioni(relazione, risultati);
  Tensioni(relazione, risultati);
  Armature(relazione, risultati);
  ZonePiene(relazione, risultati);
  relazione.Line();
  relazione.Line("ATTENZIONE");
  relazione.Line("Si ricorda che le armature riportate si riferiscono al singolo travetto.");
  if (dati.luce <= kLuceTravettoRipartizione) return;
  relazione.Line();
  relazione.Line("ATTENZIONE");
  relazione.Line("   Come da Norme, è bene prevedere un travetto di ripartizione in mezzeria, ");
  relazione.Line("perpendicolare alla tessitura del solaio, armato con 4 Ø 12 e staffe Ø 6/15 cm.");
}

}  // namespace orm
