#include "shell/personal/form_program_choice.h"

namespace orm {

FrmGenListaFile::FrmGenListaFile(Player& player, std::string inizio)
    : Form("frmGEN_LISTAFILE", "SELEZIONE DEL PROGRAMMA DA USARE"),
      File1(*this, "File1", "Nome Programma", {.width = 50}),
      cmdCerca(*this, "cmdCerca", "&Cerca in..."),
      cmdOK(*this, "cmdOK", "&O.K.", Button::Role::Default) {
  SetContent(Column({Row({Fields({File1}), cmdCerca}), Buttons({cmdOK})}));
  File1.SetText(std::move(inizio));
  cmdCerca.onPress = [this, &player] {
    if (const auto path = player.ChooseFile({Title(), File1.Text(), ""})) File1.SetText(*path);
  };
  cmdOK.onPress = [this] {
    Percorso = File1.Text();
    Close();
  };
}

}  // namespace orm
