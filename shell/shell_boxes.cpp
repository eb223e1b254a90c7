#include "shell/shell_boxes.h"

namespace orm {

MessageBox AvvisoRisoluzione() {
  return {"ATTENZIONE",
          "La risoluzione dello schermo non permette una corretta visione della procedura\n"
          "Si prega di impostare la risoluzione ad almeno 1024x768\n"
          "e poi far ripartire la procedura",
          MessageBox::Icon::Information, MessageBox::Buttons::Ok};
}

MessageBox AvvisoNotaConfigurazione() {
  return {"NOTA SUI FILE DI CONFIGURAZIONE",
          "I file di configurazione, necessari al calcolo di alcune tipologie di parcelle, \n"
          "possono essere personalizzati seguendo le indicazioni contenute negli stessi    \n"
          "file forniti come esempio assieme alla procedura ed editabili dal presente menù.",
          MessageBox::Icon::Information, MessageBox::Buttons::Ok};
}

MessageBox AvvisoFileIntestazioneAssente() {
  return Avviso(
      "NON ESISTE IL FILE DEI DATI DI INTESTAZIONE DELLA PARCELLA\n"
      "INSERIRE TALI DATI RICHIAMANDO L'APPOSITA                 \n"
      "OPZIONE DEL MENÚ PARCELLE                                 ");
}

MessageBox AvvisoFileDatiAssente() {
  return Avviso(
      "NON ESISTE IL FILE DEI DATI DELLA PARCELLA\n"
      "INSERIRE TALI DATI RICHIAMANDO L'APPOSITA     \n"
      "OPZIONE DEL MENÚ PARCELLE                                 ");
}

MessageBox AvvisoFileInstallatiAssenti(const std::string& nomi) {
  return Avviso(
      "NELLA CARTELLA DI LAVORO MANCANO DEI FILE CHE NON SONO\n"
      "NEPPURE TRA QUELLI INSTALLATI CON IL PROGRAMMA :\n" +
      nomi +
      "\n"
      "INSTALLARE DI NUOVO ORM2002");
}

MessageBox AvvisoBozze() {
  return {kAttenzione,
          "L'ULTIMA VOLTA IL PROGRAMMA È STATO INTERROTTO MENTRE SI SCRIVEVA\n"
          "QUELLO CHE NON ERA CONFERMATO SI RIPRENDE, APRENDO LA STESSA FINESTRA,\n"
          "CON IL BOTTONE \"RIPRENDI I DATI\"",
          MessageBox::Icon::Information, MessageBox::Buttons::Ok};
}

MessageBox AvvisoVersioneNonConservata(const std::string& perche) {
  return {kAttenzione,
          "I DATI SONO SALVATI, MA QUELLI DI PRIMA NON SI SONO POTUTI CONSERVARE\n"
          "NELLA CARTELLA storico\n" +
              perche,
          MessageBox::Icon::Information, MessageBox::Buttons::Ok};
}

}  // namespace orm
