#include "cases/rpa/form.h"

#include "runtime/numbers.h"
#include "tariff/unit_rate.h"

namespace orm {
namespace {
constexpr NomeRiga kTerreno = {"terreno", "il terreno", "i terreni"};
}

FrmRpaDati::FrmRpaDati(DatiRpa& dati)
    : Form("frmRPA_Dati", "RILIEVI PLANO ALTIMETRICI : DATI GENERALI", "dati generali"),
      dati_(dati) {
  SetContent(
      Column({Group(Frame1, {Fields({cdOre[0], cdOre[1], cdOre[2]})}),
              Group(Frame2, {Fields({ciParticelle[0], ciParticelle[1]})}), Buttons({Command1})}));
  cdOre[0].SetValue(dati.OreProfessionista);
  cdOre[1].SetValue(dati.OreAiutoIscritto);
  cdOre[2].SetValue(dati.OreAiutoConcetto);
  ciParticelle[0].SetValue(dati.ParticellePiccole);
  ciParticelle[1].SetValue(dati.ParticelleGrandi);
  Command1.onPress = [this] { Conferma(); };
}

void FrmRpaDati::Conferma() {
  dati_.OreProfessionista = cdOre[0].Value();
  dati_.OreAiutoIscritto = cdOre[1].Value();
  dati_.OreAiutoConcetto = cdOre[2].Value();
  dati_.ParticellePiccole = CheckedInt32(ciParticelle[0].Value());
  dati_.ParticelleGrandi = CheckedInt32(ciParticelle[1].Value());
  Esci(Uscita::Conferma);
}

FrmRpaTerreno::FrmRpaTerreno(RunState& stato, const PostoRiga& posto, TerrenoRpa& terreno)
    : FormRiga(stato, "frmRPA_Terreno", "TERRENI RILEVATI", "misure", posto, kTerreno, Command2),
      terreno_(terreno) {
  SetContent(
      Column({Label1, Fields({comTerreno, comGiacitura, comScala, Row({cdEttari, lblTariffa})}),
              Fondo(Command1)}));
  Label1.SetText(Etichetta(posto, "TERRENO"));
  comTerreno.SetIndex(terreno.Terreno - 1);
  comGiacitura.SetIndex(terreno.Giacitura - 1);
  comScala.SetIndex(terreno.Scala - 1);
  cdEttari.SetValue(terreno.Ettari);
  comTerreno.onChange = comGiacitura.onChange = comScala.onChange = [this] { MostraTariffa(); };
  MostraTariffa();
  Command1.onPress = [this] { Conferma(); };
}

TerrenoRpa FrmRpaTerreno::Mostrato() const {
  const auto voce = [](const ComboBox& lista) {
    return static_cast<std::int16_t>(lista.Index() + 1);
  };
  return {voce(comTerreno), voce(comGiacitura), voce(comScala), cdEttari.Value()};
}

void FrmRpaTerreno::MostraTariffa() {
  lblTariffa.SetText("x " + CifraInValuta(Mostrato().Tariffa(), stato_.ModoLire).testo +
                     (stato_.ModoLire ? " Lire" : " Euro"));
}

void FrmRpaTerreno::Conferma() {
  if (RifiutaRiga(posto_.rifiuto) ||
      RifiutaNullo(cdEttari.Value(), "ESTENSIONE NON ACCETTABILE : nulla !"))
    return;
  terreno_ = Mostrato();
  Esci(Uscita::Conferma);
}

}  // namespace orm
