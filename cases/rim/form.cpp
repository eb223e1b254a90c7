#include "cases/rim/form.h"

#include "runtime/numbers.h"
#include "tariff/unit_rate.h"

namespace orm {
namespace {
constexpr NomeRiga kElaborato = {"elaborato", "l'elaborato", "gli elaborati"};
}

FrmRimDati::FrmRimDati(DatiRim& dati)
    : Form("frmRIM_Dati", "RILIEVI MANUFATTI : DATI GENERALI", "dati generali") {
  SetContent(Column({Group(Frame1, {Check1, Check2, Check3}), Buttons({Command1})}));
  Check1.SetValue(dati.RilievoStrutture == "SI");
  Check2.SetValue(dati.RilievoImpianti == "SI");
  Check3.SetValue(dati.EdificioVincolato == "SI");
  Command1.onPress = [this, &dati] {
    dati.RilievoStrutture = Check1.Value() ? "SI" : "NO";
    dati.RilievoImpianti = Check2.Value() ? "SI" : "NO";
    dati.EdificioVincolato = Check3.Value() ? "SI" : "NO";
    Esci(Uscita::Conferma);
  };
}

FrmRimElaborato::FrmRimElaborato(RunState& stato, const PostoRiga& posto, ElaboratoRim& elaborato)
    : FormRiga(stato, "frmRIM_Elaborato", "ELABORATI DEL RILIEVO", "misure", posto, kElaborato,
               Command2),
      elaborato_(elaborato) {
  SetContent(Column({Label1, Fields({comTipo, comScala, Row({cdQuantita, lblTariffa}), ciNumero}),
                     Fondo(Command1)}));
  Label1.SetText(Etichetta(posto, "ELABORATO"));
  std::vector<std::string> tipi;
  for (const TipoElaboratoRim& tipo : kElaboratiRim) tipi.emplace_back(tipo.nome);
  comTipo.SetItems(std::move(tipi));
  comTipo.SetIndex(elaborato.TipoElaborato - 1);
  comScala.SetIndex(elaborato.Pianta() ? elaborato.Scala - 1 : 0);
  cdQuantita.SetValue(elaborato.Quantita);
  ciNumero.SetValue(elaborato.Numero);
  comTipo.onChange = comScala.onChange = [this] { MostraCampiDelTipo(); };
  MostraCampiDelTipo();
  Command1.onPress = [this] { Conferma(); };
}

ElaboratoRim FrmRimElaborato::Mostrato() const {
  ElaboratoRim e{.TipoElaborato = static_cast<std::int16_t>(comTipo.Index() + 1),
                 .Quantita = cdQuantita.Value()};
  e.Scala = static_cast<std::int16_t>(e.Pianta() ? comScala.Index() + 1 : 0);
  e.Numero = e.Sezione() ? std::int16_t{1} : CheckedInt16(ciNumero.Value());
  return e;
}

void FrmRimElaborato::MostraCampiDelTipo() {
  const ElaboratoRim e = Mostrato();
  comScala.SetVisible(e.Pianta());
  cdQuantita.SetCaption(e.Sezione() ? "VOLUME [mc]" : "SUPERFICIE [mq]");
  lblTariffa.SetText("x " + CifraInValuta(e.Tariffa(), stato_.ModoLire).testo +
                     (stato_.ModoLire ? " Lire" : " Euro"));
  ciNumero.SetCaption(e.Pianta() ? "NUMERO DEI PIANI" : "NUMERO DEI PROSPETTI");
  ciNumero.SetVisible(!e.Sezione());
}

void FrmRimElaborato::Conferma() {
  const ElaboratoRim e = Mostrato();
  if (RifiutaRiga(posto_.rifiuto) ||
      RifiutaNullo(e.Quantita, "QUANTITÀ NON ACCETTABILE : nulla !") ||
      RifiutaNullo(e.Numero, "NUMERO NON ACCETTABILE : nullo !"))
    return;
  elaborato_ = e;
  Esci(Uscita::Conferma);
}

}  // namespace orm
