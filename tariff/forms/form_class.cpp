#include "tariff/forms/form_class.h"

#include "tariff/law/table_classes.h"
#include "tariff/law/tariff_tables.h"

namespace orm {

FrmGenClasse::FrmGenClasse(RunState& stato, const PostoRiga& posto, std::string& Classe,
                           std::string& Categoria, const TestiClasse& testi,
                           const ImportoChiesto& chiesto)
    : FormRiga(stato, "frmGEN_Classe",
               testi.titolo.empty() ? "CLASSE E CATEGORIA per il " + ConNumero(posto, "LOTTO")
                                    : testi.titolo,
               "classe e categoria", posto, kLotto, cmdFINE),
      Classe_(Classe),
      Categoria_(Categoria),
      chiedeImporto_(chiesto.posto != nullptr) {
  SetContent(
      Column({Row({Label1, Image1}),
              Fields({comClasse, lblClasse, comCategoria, lblCategoria, importo.ci, importo.cd}),
              Fondo(cmdCONFERMA)}));
  if (posto.Nuova() || testi.etichetta) Label1.SetText(Etichetta(posto, "LOTTO"));
  std::vector<std::string> nomi;
  for (const NomiClasse& classe : kNomiClassi) nomi.emplace_back(classe.nome);
  comClasse.SetItems(std::move(nomi));
  comClasse.onChange = [this] { MostraCategorie(); };
  comCategoria.onChange = [this] { lblCategoria.SetText(comCategoria.ShownText()); };
  importo.Chiedi(chiesto);

  // A class without categories shows none, whatever the lot has.
  const bool proposta = posto.Nuova() && testi.proposta;
  comClasse.SetIndex(proposta ? 0 : posto.Nuova() || Classe.empty() ? -1 : Classe[0] - '1');
  MostraCategorie();
  if (!posto.Nuova()) comCategoria.SetIndex(Categoria.empty() ? -1 : Categoria[0] - 'a');
  cmdCONFERMA.onPress = [this] { Conferma(); };
}

void FrmGenClasse::MostraCategorie() {
  lblClasse.SetText(comClasse.ShownText());
  std::vector<std::string> testi;
  if (comClasse.Index() >= 0)
    for (const std::string_view categoria :
         kNomiClassi[static_cast<std::size_t>(comClasse.Index())].categorie)
      testi.emplace_back(categoria);
  const bool alcune = !testi.empty();
  comCategoria.SetItems(std::move(testi));
  comCategoria.SetVisible(alcune);
  lblCategoria.SetVisible(alcune);
  lblCategoria.SetText("");
  comCategoria.SetIndex(0);
}

void FrmGenClasse::Conferma() {
  const bool manca =
      comClasse.Index() < 0 || (!comCategoria.Items().empty() && comCategoria.Index() < 0);
  if (RifiutaRiga(posto_.rifiuto)) return;
  if (manca && RifiutaRiga("SCEGLIERE LA CLASSE E LA CATEGORIA.")) return;
  if (chiedeImporto_ && RifiutaNullo(importo.Value(), "VALORE NON ACCETTABILE : importo nullo !"))
    return;
  if (Rifiuta(importo.Eccesso())) return;
  importo.Prendi();
  Classe_ = std::string(1, static_cast<char>('1' + comClasse.Index()));
  Categoria_ = comCategoria.Index() < 0
                   ? std::string()
                   : std::string(1, static_cast<char>('a' + comCategoria.Index()));
  Esci(Uscita::Conferma);
}

bool ChiediClasse(RunState& stato, const PostoRiga& posto, std::string& Classe,
                  std::string& Categoria, const TestiClasse& testi) {
  return FrmGenClasse(stato, posto, Classe, Categoria, testi).Chiedi();
}

std::vector<std::string> DoveSiamo(const PostoRiga& posto, std::string_view Classe,
                                   std::string_view Categoria) {
  return {DoveSiamo(posto, kLotto), StringaClasseCategoria(Classe, Categoria)};
}

}  // namespace orm
