// Names of the nine classes of works and of their categories, as the dialogs show them.
//
// Source: art. 14 of Legge 2-3-1949 n. 143 (Gazzetta Ufficiale 19-4-1949 n. 90).
// Oddities: the texts are kept letter by letter as users know them, with their spacing and their
// misspellings.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace orm {

struct NomiClasse {
  std::string_view nome;
  std::span<const std::string_view> categorie;  // "a" first; none in classes 5 and 8
};

inline constexpr std::array<std::string_view, 7> kCategorieClasse1 = {
    "a - Costruzioni  informate a grande semplicita', fabbricati rurali, magazzini , edifici "
    "industriali semplici e senza particolari esigenze tecniche, capannoni, baracche , edifici "
    "provvisori senza importanza e simili. Solai in  cemento armato o solettoni in laterizi per "
    "case di abitazione appogiate su muraturea ordinarie per portate normali fino a 5 metri.",
    "b - Edifici industriali di importanza costruttiva corrente. Edifici rurali di importanza "
    "speciale. Scuole, piccoli ospedali, case popolari prigioni, macelli,cimiteri,mercati, "
    "stazioni e simili qualora siano di media importanza, organismi costruttivi in metallo.",
    "c - Edifici di cui alla lettera b) quando siano di importanza maggiore, scuole importanti ed "
    "istituti superiori, bagni e costruzioni di caratere  sportivo, edifici di abitazione civile e "
    "di commercio, villini semplici e simili.",
    "d - Palazzi e case signorili , ville e villini signorili, giardini, palazzi pubblici "
    "importanti, teatri, cinema, chiese, banche,alberghi, edifici provvisori di carattere "
    "decorativo , serre ornamentali, ed in genere tutti gli edifici di  rilevante importanza "
    "tecnica ed architettonica. Costruzioni industriali con caratteristiche speciali e di "
    "peculiare importanza tecnica. Restauri artistici e piani regolatori parziali.",
    "e - Costruzioni di carattere prettamente artistico e monumentale. Chioschi ,padiglioni, "
    "fontane, altari, monumenti commemorativi, costruzioni funerarie. Decorazione esterna o "
    "interna ed arredamento di edifici  e di ambienti. Disegno di mobili, opere artistiche in "
    "metallo, in vetro, ecc.",
    "f - Struture o parti di strutture complesse in cemento armato.",
    "g - Strutture o parti di strutture in  cemento armato  richiedente speciale studio tecnico, "
    "ivi comprese le strutture antisismiche."};

inline constexpr std::array<std::string_view, 3> kCategorieClasse2 = {
    "a - Impianti per le industrie molitorie, cartarie ,alimentari, delle fibbre tessili naturali, "
    "del legno del cuoio e simili.",
    "b - Impianti dell'industria chimica inorganica, della preparazione e distillazione  dei "
    "combustibili, impianti siderurgici, officine meccaniche , cantieri navali , fabbriche di "
    "cemento, calce, laterizi, vetrerie e ceramiche, impinti per l'industria della fermentazione, "
    "chimico alimentari , tintorie.",
    "c - Impianti  dell'industria chimica  organica , della piccola industria chimica speciale, "
    "impianti di metallurgia ( esclusi  quelli relativi al ferro ), impianti per la preparazione "
    "ed il trattamento dei minerali perla sistemazione e coltivazione di cave e miniere."};

inline constexpr std::array<std::string_view, 3> kCategorieClasse3 = {
    "a - Impianti  per la produzione e distribuzione del vapore, dell'energia elettrica e della "
    "forza motrice, per l'approviggionamento, la preparazione e la distribuzione di acqua  "
    "nell'interno di edifici o per scopi industriali, impianti sanitari, impianti di fognatura "
    "domestica od industriale ed opere relative al trattamento delle acque di rifiuto.",
    "b - Impianti per la produzione e la  distribuzione del freddo , dell' aria compressa, del "
    "vuoto impianti di riscaldamento, di inumidimento e ventilazione , trasporti meccanici.",
    "c - Impianti di illuminazione, telefoni, segnalazioni, controlli, ecc."};

inline constexpr std::array<std::string_view, 3> kCategorieClasse4 = {
    "a - Impianti termoelettrici , impianti dell'eletrochimica e della elettrometallurgia.",
    "b - Centrali idroelettriche, stazioni di trasformazione e di  conversione,impianti di "
    "trazione elettrica.",
    "c - Impianti di  linee e reti  per trasmissione e distribuzione di energia elettrica, "
    "telegrafia, telefonia, radiotelegrafia e radiotelefonia."};

inline constexpr std::array<std::string_view, 2> kCategorieClasse6 = {
    "a - Strade ordinarie , linee tramviarie e strade ferrate in pianura e collina, escluse le "
    "opere d'arte di importanza da compensarsi a parte.",
    "b - Strade ordinarie, linee tramviarie e ferrovie di montagna o comunque con  particolari "
    "difficolta' di studio, escluse le opere d'arte di importanza e le stazioni di tipi speciali, "
    "da compensarsi a parte. Impianti teleferici e funicolari."};

inline constexpr std::array<std::string_view, 3> kCategorieClasse7 = {
    "a - Bonifiche ed irrigazioni e deflusso naturale , sistemazione  di corsi d'acqua e di bacini "
    "montani.",
    "b - Bonifiche ed irrigazioni con sollevamento meccanico di acqua( esclusi i macchinari). "
    "Derivazioni di acqua per forza motrice, e produzione di energia elettrica.\"",
    "c - Opere di navigazione interna e portuali."};

inline constexpr std::array<std::string_view, 3> kCategorieClasse9 = {
    "a - Ponti di muratura o di legname, costruzioni ed edifici per opere idrauliche, strutture in "
    "legno o metallo di tipo ordinari.",
    "b - Dighe, conche. elevatori.  Ponti di ferro.  Opere  metalliche  di tipo speciale di "
    "notevole im[ortanza costruttiva e richiedenti calcolazioni particolari.",
    "c - Gallerie, opere sotterranee e subacquee, fondazioni speciali."};

// Class "1" first.
inline constexpr std::array<NomiClasse, 9> kNomiClassi = {{
    {"1 - COSTRUZIONI RURALI , INDUSTRIALI , CIVILI , ARTISTICHE E DECORATIVE.", kCategorieClasse1},
    {"2 - IMPIANTI INDUSTRIALI COMPLETI e cioè macchinario , apparecchi,  servizi generali ed "
     "annessi, necessari allo svolgimento dell'industria  e  comprese i  fabbricati , quando  "
     "questi siano  parte  integrante del macchinario e dei dispositivi industriali.",
     kCategorieClasse2},
    {"3 - IMPIANTI DI SERVIZI GENERALI interni a stabilimenti industriali od a costruzioni o "
     "gruppi di costruzioni civili, e cioe' macchinario, apparecchi ed annessi non strettamente "
     "legati al diagramma tecnico e non facenti parti di opere complessivamente considerate nelle "
     "precedenti classi.",
     kCategorieClasse3},
    {"4 - IMPIANTI ELETTRICI.", kCategorieClasse4},
    {"5 - MACCHINE ISOLATE E LORO PARTI.", {}},
    {"6 - FERROVIE E STRADE.", kCategorieClasse6},
    {"7 - BONIFICHE, IRRIGAZIONI, IMPIANTI IDRAULICI per  produzione  di energia elettrica e per "
     "forza motrice, OPERE PORTUALI E DI NAVIGAZIONE INTERNA SISTEMAZIONE  DI CORSI  D'ACQUA E DI "
     "BACINI MONTANI , opere analoghe , escluse le opere d'arte di importanza da computarsi a "
     "parte.",
     kCategorieClasse7},
    {"8 - IMPIANTI PER PROVVISTA , CONDOTTA , DISTRIBUZIONE D'ACQUA -  FOGNATURE URBANE.", {}},
    {"9 - PONTI , MANUFATTI ISOLATI, STRUTTURE SPECIALI.", kCategorieClasse9},
}};

}  // namespace orm
