// Notes that travel as JSON and as CSV.
#include "interchange/interchange.h"

#include <nlohmann/json.hpp>

#include "runtime/failure.h"
#include "runtime/generations.h"
#include "runtime/text.h"
#include "shell/personal/settings.h"
#include "tests/unit/cases/random_files.h"

namespace orm {
namespace {

using Json = nlohmann::ordered_json;
constexpr Date kOggi{2002, 3, 15};

class Viaggio : public TutteLeNote {
 protected:
  Viaggio() {
    nota.utente.Citta = "Forlì \"centro\" €";
    ScriviDatiProfessionista(stato.folder, nota.utente);
    for (const char* file : {"CAC.CFG", "CS1.CFG", "CS2.CFG", "GEO.CFG", "INC.CFG", "IND.CFG"})
      altra.Replace(file, stato.folder.Read(file));
  }
  std::string InJson(const char* codice) {
    return ParcellaInJson(stato.folder, codice, stato.ModoLire, kOggi);
  }
  // A small note and its JSON.
  Json Piccola() {
    Prepara("PPE", "2,5,3,1,1\r\n20,1000000,\"\",1\r\n");
    return Json::parse(InJson("PPE"));
  }
  void Torna(const Json& json) { ScriviDaJson(altra, "nota.json", json.dump()); }

  TemporaryFolder seconda;
  WorkFolder altra{seconda.Path()};
};

// Files byte for byte, the report with them, and a JSON that says the same.
TEST_F(Viaggio, FilesComeBackAsTheyWere) {
  for (const Prova& prova : kProve)
    for (unsigned seme = 0; seme < 6; ++seme) {
      CasoNote caso(seme, stato.ModoLire = seme % 2 == 0);
      ScriviCriteri(stato.folder, caso.CriteriDiCalcolo());
      Prepara(prova.codice, prova.bytes(caso));
      const std::string json = InJson(prova.codice);
      const auto nomi = ScriviDaJson(altra, "nota.json", json);
      ASSERT_EQ(nomi.size(), 4U);
      for (const std::string& nome : nomi)
        ASSERT_EQ(altra.Read(nome), stato.folder.Read(nome)) << prova.codice << ' ' << seme;
      ASSERT_EQ(
          CalcolaDaCartella(altra, prova.codice, stato.ModoLire, kOggi).uscita.Contents(),
          CalcolaDaCartella(stato.folder, prova.codice, stato.ModoLire, kOggi).uscita.Contents());
      ASSERT_EQ(ParcellaInJson(altra, prova.codice, stato.ModoLire, kOggi), json);
    }
}

// A text of a user's own hand says what ours would: it comes back as long as the fields agree.
TEST_F(Viaggio, AnotherHandsFilesComeBackToo) {
  const std::string aMano = " 2 ,5,3\n1,1\r\n20,1E6,,1\r\n\r\n";
  Prepara("PPE", aMano);
  ScriviUtentePredefinito(stato.folder);
  Json json = Json::parse(InJson("PPE"));
  Torna(json);
  EXPECT_EQ(altra.Read("INP_PPE.DAP"), aMano);
  EXPECT_EQ(altra.Read("UTENTE.DAG"), stato.folder.Read("UTENTE.DAG"));
  json["dati"][0]["NumPartite"] = 7;
  json.erase("professionista");
  Torna(json);
  EXPECT_EQ(altra.Read("INP_PPE.DAP"), "7,5,3,1,1\r\n20,1000000,\"\",1\r\n");
  ASSERT_EQ(Generazioni(altra, "INP_PPE.DAP").size(), 1U);
  EXPECT_EQ(LeggiGenerazione(altra, Generazioni(altra, "INP_PPE.DAP")[0]), aMano);
  EXPECT_TRUE(Generazioni(altra, "UTENTE.DAG").empty());
}

TEST_F(Viaggio, WhatIsWrongIsToldWithItsPlaceAndWritesNothing) {
  const Json buona = Piccola();
  using Guasto = void (*)(Json&);
  const std::pair<Guasto, const char*> guasti[] = {
      {[](Json& j) { j = Json::array(); }, "di un oggetto"},
      {[](Json& j) { j.erase("formato"); }, "Campo : formato"},
      {[](Json& j) { j["formato"] = "altro"; }, "\"altro\""},
      {[](Json& j) { j["versione"] = 2; },
       "della versione 1, che questo programma legge, c'è \"2\""},
      {[](Json& j) { j["caso"] = "XYZ"; }, "Codice sconosciuto: XYZ"},
      {[](Json& j) { j["valuta"] = "USD"; }, "Campo : valuta"},
      {[](Json& j) { j.erase("dati"); }, "Manca questo campo.\nFile : nota.json\nCampo : dati"},
      {[](Json& j) { j["dati"] = 3; }, "di un elenco"},
      {[](Json& j) { j["dati"][0] = 3; }, "Campo : dati, linea 1"},
      {[](Json& j) { j["dati"][0]["NumPartite"] = "due"; }, "Al posto di un numero c'è \"due\"."},
      {[](Json& j) { j["dati"][0]["NumPartite"] = 2.5; }, "deve essere intero"},
      {[](Json& j) { j["dati"][0]["NumPartite"] = 40000; }, "overflow"},
      {[](Json& j) { j["dati"][0].erase("NumPartite"); }, "Campo : dati, linea 1, NumPartite"},
      {[](Json& j) { j["dati"][1]["Sconto"] = 1; }, "Campo : dati, linea 2, Sconto"},
      {[](Json& j) { j["dati"].erase(1); }, "Campo : dati, linea 2"},
      {[](Json& j) { j["dati"].push_back(Json::object()); }, "Campo : dati, linea 3"},
      {[](Json& j) { j["intestazione"]["NOTE"] = nullptr; }, "Campo : intestazione, NOTE"},
      {[](Json& j) { j["intestazione"]["NOTE"] = "漢"; }, "Campo : intestazione, NOTE"},
      {[](Json& j) { j["criteri"]["Altro"] = 1; }, "Campo : criteri, Altro"},
      {[](Json& j) { j["criteri"]["DecimaliTabelle"] = 300; }, "Campo : criteri, DecimaliTabelle"}};
  const auto messaggio = [this](const std::string& json) {
    try {
      ScriviDaJson(altra, "nota.json", json);
    } catch (const RuntimeFailure& failure) {
      return failure.Text();
    }
    return std::string("nessun messaggio");
  };
  for (const auto& [guasto, atteso] : guasti) {
    Json cattiva = buona;
    guasto(cattiva);
    const std::string detto = messaggio(cattiva.dump());
    EXPECT_NE(detto.find(atteso), std::string::npos) << atteso << '\n' << detto;
    EXPECT_NE(detto.find("File : nota.json"), std::string::npos) << detto;
  }
  const std::string profondo(100000, '[');
  Json largo = buona;
  for (int i = 0; i < 200; ++i) largo["dati"][0]["altro " + std::to_string(i)] = i;
  for (const auto& [testo, atteso] :
       {std::pair<std::string, const char*>{"{\n \"caso\": PPE }", "Riga : 2"},
        {"{\"caso\": \"PPE\"", "finisce a metà"},
        {"{\"caso\": \"\xE0\"}", "UTF-8"},
        {"{\"a\": 1, \"b\": {\"a\": 1}, \"a\": 2}", "due volte"},
        {"{\"a\": 1e999}", "fuori da ogni limite"},
        {largo.dump(), "più campi di quanti"},
        {profondo, "annidati"}})
    EXPECT_NE(messaggio(testo).find(atteso), std::string::npos) << messaggio(testo);
  for (const std::string& nome : altra.Names()) EXPECT_TRUE(nome.ends_with(".CFG")) << nome;
}

// A list of a case knows its lots: a line of theirs is told by its number.
TEST_F(Viaggio, CountsAndListsOfACaseHold) {
  DatiPdl pdl;
  pdl.Righe.resize(2);
  pdl.Righe[0].Classe = pdl.Righe[1].Classe = "5";
  pdl.Righe[0].PeriodoTariffario = pdl.Righe[1].PeriodoTariffario = "5";
  pdl.Lotti = {{1, {5}}, {2, {5}}};
  Prepara("PDL", Bytes(pdl, {}));
  Json json = Json::parse(InJson("PDL"));
  json["dati"][2]["UltimaRiga"] = 1;
  try {
    Torna(json);
    ADD_FAILURE() << "a lot without its rows was taken";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.Field(), "dati, linea 3, UltimaRiga");
  }
}

// Lines and totals are the report's: fees by their lines, the net amount in both currencies.
TEST_F(Viaggio, LinesAndTotalsAreThoseOfTheReport) {
  nota.intestazione.Oggetto = "Lavori per L.     1.000.000";  // no amount of ours
  ScriviIntestazione(stato.folder, "INT.DAP", nota.intestazione);
  const Json json = Piccola();
  for (const Json& riga : json["righe"]) {
    const std::string testo = json["relazione"][riga["riga"].get<std::size_t>() - 1];
    EXPECT_EQ(Centesimi(testo), std::llround(riga["importo"].get<double>() * 100)) << testo;
  }
  EXPECT_EQ(json["righe"][0]["descrizione"], "Onorario in funzione delle Partite");
  EXPECT_EQ(json["righe"].size(), 10U);
  EXPECT_TRUE(json["righe"][0]["regole"][0].get<std::string>().starts_with("Legge 143/1949"));
  EXPECT_EQ(json["totali"].dump(),
            R"({"totale":2587000,"riduzione":517400,"totaleRidotto":2069600,"acconti":1000000,)"
            R"("competenze":1069600,"competenzeInEuro":552.4})");
}

TEST_F(Viaggio, TablesHaveItalianMarksOrPlainOnes) {
  Piccola();
  const std::string italiana = ParcellaInCsv(stato.folder, "PPE", true, MarchiCsv::Italiani, kOggi),
                    semplice = ParcellaInCsv(stato.folder, "PPE", true, MarchiCsv::Semplici, kOggi);
  EXPECT_TRUE(italiana.starts_with("\xEF\xBB\xBFriga;sezione;"));
  EXPECT_TRUE(italiana.ends_with(";\"ed in EURO\";552,40;EUR;onorari\r\n")) << italiana;
  EXPECT_TRUE(semplice.ends_with(",\"ed in EURO\",552.40,EUR,onorari\r\n")) << semplice;
  // What a person has typed is a text, whatever it begins with.
  stato.ModoLire = false;
  DatiSup sup;
  sup.Attivita = {{"=1+1", 0.5}};
  sup.Lotti = {{"1", "c", 100000}};
  Prepara("SUP", Bytes(sup, {}));
  const std::string tabella = ParcellaInCsv(stato.folder, "SUP", false, MarchiCsv::Semplici, kOggi);
  EXPECT_EQ(tabella.find("\"="), std::string::npos) << tabella;
  EXPECT_NE(tabella.find("=1+1"), std::string::npos) << tabella;
}

}  // namespace
}  // namespace orm
