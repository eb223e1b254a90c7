#include "structures/truss_slab/truss_slab.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

#include "runtime/explanation/steps.h"
#include "runtime/numbers.h"
#include "structures/truss_slab/bar_lengths.h"
#include "tariff/money.h"

namespace orm {
namespace {

using Esito = EsitoSolaioT;

class Progetto {
 public:
  explicit Progetto(const DatiSolaioT& dati) : d_(dati) {}

  RisultatiSolaioT Esegui() {
    r_.esito = Passi();
    return r_;
  }

 private:
  // The steps in order; the first that fails ends the design.
  Esito Passi() {
    if (d_.ferri[3] == 0.0 && d_.ferri[4] == 0.0) return Esito::SenzaMonconi;
    r_.ammissibili = TensioniAmmissibiliSolaio(d_);
    Sollecitazioni();
    if (const Esito e = ArmaturaCampata(); e != Esito::Verificato) return e;
    LunghezzeCampata();
    ScegliMonconi();
    ZonaPienaIniziale();
    if (const Esito e = CercaZonePiene(r_.sinistra, Esito::SinistraCls, Esito::SinistraAcciaio);
        e != Esito::Verificato)
      return e;
    if (const Esito e = CercaZonePiene(r_.destra, Esito::DestraCls, Esito::DestraAcciaio);
        e != Esito::Verificato)
      return e;
    if (const Esito e = VerificaTaglio(); e != Esito::Verificato) return e;
    LunghezzeMonconi(r_.sinistra);
    LunghezzeMonconi(r_.destra);
    return Esito::Verificato;
  }

  void Sollecitazioni() {
    const Conto luce = Conto(d_.luce) * kRapportoLuci;
    Lc_ = luce;
    Annota(r_.carico, "Luce di calcolo, L = 1,05 x luce netta", luce, "m");
    r_.q = Annota(
        r_.carico, "Carico di un modulo, permanente + accidentale + peso proprio, q",
        (Conto(d_.permanente) + d_.accidentale + d_.pesoProprio) * (Conto(d_.modulo.b) / 100),
        "Kg/ml");
    r_.taglio =
        Tagliato(r_.passiTaglio, "Taglio massimo, V = L q / 2", Conto(Lc_) * r_.q * 0.5, "Kg");
    r_.sinistra.momento = Momento(r_.sinistra.passiMomento, "all'incastro sinistro", d_.cSin);
    r_.destra.momento = Momento(r_.destra.passiMomento, "all'incastro destro", d_.cDex);
    r_.momentoMezzeria = Momento(r_.passiMezzeria, "in mezzeria", d_.cMez);
  }

  double Momento(Catena& passi, const char* dove, double c) const {
    return Tagliato(passi, std::string("Momento ") + dove + ", M = L² q / " + CifraEsatta(c),
                    (Conto(Lc_) * Lc_) * r_.q / c, "Kg x m");
  }

  // What is shown is what is reckoned with from here on.
  double Tagliato(Catena& passi, std::string regola, const Conto& conto, const char* unita) const {
    double valore = conto;
    const std::string cifra = FormattaNumero(valore, 2);
    passi = r_.carico;
    passi.push_back({.regola = std::move(regola),
                     .conto = conto.Testo(),
                     .risultato = conto,
                     .unita = unita,
                     .tagli = {{TipoTaglio::Decimali, 2, conto, valore}},
                     .cifra = cifra});
    return valore;
  }

  // ------------------------------------------------------------ sections

  double Strato1() const {
    const double n = d_.modulo.n;
    return n * campata_[0] + n * kAreaTraliccio + n * campata_[1];
  }
  double Strato2() const { return d_.modulo.n * campata_[2]; }

  // A section with the lower bars that are kept, and `superiore` above; M in kg x cm. Ribs under
  // the upper slab, or solid over the whole module.
  SezioneVerificata Sezione(bool nervata, double superiore, double M) const {
    const double anima = nervata ? d_.modulo.b0 : d_.modulo.b;
    const DatiSezione s{.B = d_.modulo.b,
                        .b = anima,
                        .Bi = anima,
                        .H = d_.H(),
                        .s = nervata ? d_.solettina : 0,
                        .strati = {{{superiore, kCopriferroSuperiore},
                                    {Strato2(), d_.H() - kDistanzaSecondoStrato},
                                    {Strato1(), d_.H() - kCopriferroInferiore}}},
                        .M = M};
    SezioneVerificata verificata{s, {}};
    VerificaSezioneT(s, verificata.risultati);
    return verificata;
  }

  // ------------------------------------------------------------ span

  Esito ArmaturaCampata() {
    for (int k = 1; k <= kTentativiCampata; ++k) {
      campata_ = {AreaFerro(kFerroAggiuntivo, d_.ferri[0], k),
                  AreaFerro(kFerroIntegrativo1, d_.ferri[1], k),
                  AreaFerro(kFerroIntegrativo2, d_.ferri[2], k)};
      r_.mezzeria = Sezione(true, 0, r_.momentoMezzeria * 100);
      r_.clsMezzeria = std::fabs(r_.mezzeria.risultati.clsSup);
      r_.acciaioMezzeria = r_.mezzeria.risultati.massimo;
      if (r_.clsMezzeria <= r_.ammissibili.cls && r_.acciaioMezzeria <= r_.ammissibili.acciaio) {
        for (std::size_t i = 0; i < campata_.size(); ++i)
          r_.campata[i].diametro = DiametroDaArea(campata_[i]);
        return Esito::Verificato;
      }
    }
    return r_.clsMezzeria > r_.ammissibili.cls ? Esito::MezzeriaCls : Esito::MezzeriaAcciaio;
  }

  // The steel that the shear wants at the support runs there, at least the first kind; the rest
  // stops where the moment allows, the later kinds before the earlier ones.
  void LunghezzeCampata() {
    const double n = d_.modulo.n;
    const double Amin = r_.taglio / r_.ammissibili.acciaio;
    Conto A = Conto(kAreaTraliccio) * n;
    bool primo = true;
    std::array<bool, 3> corre{};
    for (std::size_t i = 0; i < campata_.size(); ++i) {
      if (campata_[i] == 0) continue;
      corre[i] = primo || A < Amin;
      if (corre[i]) A += Conto(n) * campata_[i];
      primo = false;
    }
    const Conto braccio1 = Conto(0.9) * (Conto(d_.H()) - kCopriferroInferiore);
    const Conto braccio2 = Conto(0.9) * (Conto(d_.H()) - kDistanzaSecondoStrato);
    const Conto totale = Conto(Strato1()) * braccio1 + Conto(Strato2()) * braccio2;
    Conto a;
    for (std::size_t i = campata_.size(); i-- > 0;) {
      Barra& barra = r_.campata[i];
      if (campata_[i] == 0) continue;
      if (corre[i]) {
        MisuraFerroCheCorre(barra, A, d_, r_);
      } else {
        a += Conto(n) * campata_[i] * (i == 2 ? braccio2 : braccio1);
        MisuraFerroInterrotto(barra, a, totale, d_, r_);
      }
    }
  }

  // ------------------------------------------------------------ supports

  double Monconi() const { return d_.modulo.n * (lungo_ + corto_); }

  void VerificaPiena(Appoggio& appoggio) const {
    appoggio.piena = Sezione(false, Monconi(), -appoggio.momento * 100);
    appoggio.clsPiena = std::fabs(appoggio.piena.risultati.clsInf);
    appoggio.acciaioPiena = appoggio.piena.risultati.massimo;
  }

  void VerificaNervata(Appoggio& appoggio) const {
    const double z = r_.zonaPiena * 100;
    const Conto M = Conto(-appoggio.momento) * 100 - (Conto(z) * z) * (Conto(r_.q) / 100 * 0.5) +
                    Conto(z) * r_.taglio;
    appoggio.passiNervata = appoggio.passiMomento;
    Annota(appoggio.passiNervata,
           "Momento dei travetti in fondo alla zona piena, lunga z = " + CifraEsatta(z) +
               " cm: M' = - 100 M - z² q / 200 + z V",
           M, "Kg x cm");
    appoggio.nervata = Sezione(true, Monconi(), M);
    const RisultatiSezione& nervata = appoggio.nervata.risultati;
    appoggio.clsNervata = std::fabs(nervata.clsInf);
    appoggio.acciaioNervata = nervata.massimo;
    appoggio.asse = nervata.asse;
  }

  bool Regge(double cls, double acciaio) const {
    return cls <= r_.ammissibili.cls && acciaio <= r_.ammissibili.acciaio;
  }

  // Stubs left free grow until the solid section holds at both supports.
  void ScegliMonconi() {
    for (int k = 1; k <= kTentativiMonconi; ++k) {
      lungo_ = AreaFerro(kMonconeLungo, d_.ferri[3], k);
      corto_ = AreaFerro(kMonconeCorto, d_.ferri[4], k);
      bool reggono = true;
      for (Appoggio* appoggio : {&r_.sinistra, &r_.destra}) {
        VerificaPiena(*appoggio);
        reggono = reggono && Regge(appoggio->clsPiena, appoggio->acciaioPiena);
        appoggio->lungo.diametro = DiametroDaArea(lungo_);
        appoggio->corto.diametro = DiametroDaArea(corto_);
      }
      if (reggono) return;
    }
  }

  // The blocks are 25 cm long: what they leave of the span is shared by both ends.
  void ZonaPienaIniziale() {
    const double resto = (d_.luce - Int(d_.luce / 0.25) * 0.25) / 2;
    r_.zonaPiena = Int(resto * 1000 + 0.5) / 1000;
  }

  // Lengthens the zones on both sides; false when they reach their limit.
  bool AllungaZonePiene() {
    r_.zonaPiena += kPassoZonePiene;
    return r_.zonaPiena < kLimiteZonePiene;
  }

  Esito CercaZonePiene(Appoggio& appoggio, Esito cls, Esito acciaio) {
    bool regge = false;
    for (int tentativo = 1; !regge && tentativo <= kTentativiZonePiene; ++tentativo) {
      VerificaPiena(appoggio);
      VerificaNervata(appoggio);
      regge = Regge(appoggio.clsPiena, appoggio.acciaioPiena) &&
              Regge(appoggio.clsNervata, appoggio.acciaioNervata);
      if (!regge && !AllungaZonePiene()) break;
    }
    if (appoggio.clsPiena > r_.ammissibili.cls) return cls;
    if (appoggio.acciaioPiena > r_.ammissibili.acciaio) return acciaio;
    return regge ? Esito::Verificato : Esito::ZonePieneMomenti;
  }

  Conto Tau(const Appoggio& appoggio) const {
    const double x = appoggio.asse;
    return (Conto(r_.taglio) - Conto(r_.q) * r_.zonaPiena / 2) /
           ((2 * (Conto(d_.H()) - x) / 3 + (Conto(x) - kCopriferroSuperiore)) * d_.modulo.b0);
  }

  Esito VerificaTaglio() {
    Conto tau;
    for (;;) {
      for (Appoggio* appoggio : {&r_.sinistra, &r_.destra}) {
        VerificaPiena(*appoggio);
        VerificaNervata(*appoggio);
      }
      tau = std::max(Tau(r_.sinistra), Tau(r_.destra));
      r_.tau = tau;
      if (r_.tau <= r_.ammissibili.taglio) break;
      if (!AllungaZonePiene()) return Esito::ZonePieneTaglio;
    }
    // Compared whole, shown cut.
    r_.tau = Tagliato(
        r_.passiTau,
        "Tensione tangenziale in fondo alla zona piena, τ = (V - q z / 2) / ((2 (H - x) / 3 "
        "+ x - 2) b0)",
        tau, "Kg/cmq");
    return Esito::Verificato;
  }

  // A stub stops where the steel of the other one is enough, the long one where the moment ends.
  void LunghezzeMonconi(Appoggio& appoggio) const {
    const Conto M = appoggio.momento;
    MisuraMoncone(appoggio.lungo, M, appoggio, r_);
    MisuraMoncone(appoggio.corto, M * corto_ / (lungo_ + corto_), appoggio, r_);
  }

  const DatiSolaioT& d_;
  RisultatiSolaioT r_;
  double Lc_ = 0;                    // calculation span, m
  std::array<double, 3> campata_{};  // areas of one bar of each kind
  double lungo_ = 0, corto_ = 0;
};

}  // namespace

Ammissibili TensioniAmmissibiliSolaio(const DatiSolaioT& dati) {
  const ParametriCls cls = ParametriDiCls(dati.classeCls);
  const double acciaio = TensioneDiFerro(dati.tipoFerro);
  return {acciaio, dati.solettina <= kSolettinaSottile ? cls.ridotta : cls.novanta,
          cls.tauc0 * (acciaio > kTensioneFerriLisci ? 3.0 : 1.5), cls.tauc0};
}

RisultatiSolaioT ProgettaSolaioT(const DatiSolaioT& dati) { return Progetto(dati).Esegui(); }

}  // namespace orm
