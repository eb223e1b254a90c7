#include "structures/sections/form_bending.h"

#include <cstddef>
#include <vector>

#include "runtime/numbers.h"
#include "structures/numbered_controls.h"

namespace orm {
namespace {

// A long heading stands in two lines.
std::string Heading(std::string text) {
  constexpr std::size_t kLongest = 20;
  if (text.size() > kLongest) text[text.rfind(' ', kLongest)] = '\n';
  return text;
}

// Room for any result that a section in use gives.
NumberLimits ResultLimits() { return {.least = -99999.99, .most = 99999.99, .decimals = 2}; }

}  // namespace

// Below 0 too: the check itself says that the measures are not acceptable.
NumberLimits LimitiLunghezza() { return {.least = -99999.99, .most = 99999.99, .decimals = 2}; }
NumberLimits LimitiMomento() { return {.least = -99999999.99, .most = 99999999.99, .decimals = 2}; }
NumberLimits LimitiTensione() { return {.most = 99999.99, .decimals = 2}; }

PannelloCarichi::PannelloCarichi(Form& form)
    : fraSollecitazioni(form, "fraSollecitazioni", "SOLLECITAZIONI"),
      CD_01(form, "CD_01", "Momento flettente [Kgxml.]", LimitiMomento()),
      fraMateriali(form, "fraMateriali", "MATERIALI"),
      CD_12(form, "CD_12", "Tens. amm. acciaio [Kg/cmq]", LimitiTensione()),
      CD_13(form, "CD_13", "Tens. amm. cls [Kg/cmq]", LimitiTensione()) {}

Layout PannelloCarichi::Contents() {
  return Column(
      {Group(fraSollecitazioni, {Fields({CD_01})}), Group(fraMateriali, {Fields({CD_12, CD_13})})});
}

PannelloForme::PannelloForme(Form& form, std::initializer_list<const char*> nomi)
    : fraTipo(form, "fraTipo", "Tipo di sezione") {
  for (const char* nome : nomi)
    Option.emplace_back(form, "Option" + NumberText(static_cast<double>(Option.size()) + 1), nome,
                        gruppo);
}

Layout PannelloForme::Contents() { return Group(fraTipo, {Row({Option.begin(), Option.end()})}); }

void PannelloCarichi::ScriviEsempio(double momento) {
  CD_12.SetValue(TensioneAcciaioEsempio);
  CD_13.SetValue(TensioneClsEsempio);
  CD_01.SetValue(momento);
}

RigaArmatura::RigaArmatura(Form& form, std::size_t indice, const std::string& riga,
                           const char* distanza)
    : CasellaFerri(form, NomeIndicizzato("CasellaFerri", indice), riga),
      Distanza(form, NomeIndicizzato("Distanza", indice), distanza, LimitiLunghezza()) {}

PannelloArmature::PannelloArmature(Form& form, std::size_t primo, std::size_t quante,
                                   const char* riga, const char* distanza)
    : lblRiga(form, NomeIndicizzato("lblRiga", primo), riga),
      lblFerri(form, NomeIndicizzato("lblFerri", primo), "Ferri"),
      lblDistanza(form, NomeIndicizzato("lblDistanza", primo), Heading(distanza)) {
  for (std::size_t i = 0; i < quante; ++i)
    righe.emplace_back(form, primo + i, NumberText(static_cast<int>(i) + 1), distanza);
}

Layout PannelloArmature::Contents() {
  std::vector<Layout> lines{Row({lblRiga, lblFerri, lblDistanza})};
  for (RigaArmatura& riga : righe) lines.push_back(Row({riga.CasellaFerri, riga.Distanza}));
  return {Layout::Kind::Fields, nullptr, std::move(lines)};
}

PannelloRisultati::PannelloRisultati(Form& form)
    : fraRisultati(form, "fraRisultati", "RISULTATI"),
      cdOUT{{{form, "cdOUT(1)", "Distanza Asse neutro da bordo superiore [cm.]", ResultLimits()},
             {form, "cdOUT(2)", "Tens. cls.  bordo superiore [Kg/cmq]", ResultLimits()},
             {form, "cdOUT(3)", "Tens. cls.  bordo inferiore [Kg/cmq]", ResultLimits()},
             {form, "cdOUT(4)", "Tens. acciaio più vicino bordo sup.  [Kg/cmq]", ResultLimits()},
             {form, "cdOUT(5)", "Tens. acciaio più vicino bordo inf.  [kg/cmq]", ResultLimits()}}},
      fraNote(form, "fraNote", "NOTE"),
      Label_NOTA(form, "Label_NOTA", "", Label::Style::Note) {
  for (FloatBox& box : cdOUT) box.SetReadOnly(true);
}

Layout PannelloRisultati::Valori() {
  return Group(fraRisultati, {Fields({cdOUT[0], cdOUT[1], cdOUT[2], cdOUT[3], cdOUT[4]})});
}

Layout PannelloRisultati::Note() { return Group(fraNote, {Label_NOTA}); }

void PannelloRisultati::Mostra(const std::array<double, 5>& valori) {
  for (std::size_t i = 0; i < cdOUT.size(); ++i) {
    cdOUT[i].SetValue(valori[i]);
    cdOUT[i].SetShown(FormatPattern(valori[i], i == 0 ? "###0.00" : "###0.0"));
  }
}

void PannelloRisultati::Azzera() {
  for (FloatBox& box : cdOUT) box.SetValue(0);
}

}  // namespace orm
