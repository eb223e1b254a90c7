#include "shell/personal/form_program_choice.h"

namespace orm {

FrmGenListaFile::FrmGenListaFile(Player& player, std::string inizio)
    : Form("frmGEN_LISTAFILE", "SELEZIONE DEL PROGRAMMA DA USARE") {
  SetContent(Column({Row({Fields({File1}), cmdCerca}), Buttons({cmdOK})}));
  File1.SetText(std::move(inizio));
  cmdCerca.onPress = [this, &player] {
    if (const auto path = player.ChooseFile({Title(), File1.Text(), ""})) File1.SetText(*path);
  };
  cmdOK.onPress = [this] { Esci(Uscita::Conferma); };
}

}  // namespace orm
