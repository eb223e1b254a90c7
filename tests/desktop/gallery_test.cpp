// Every kind of control in its states, as pictures and under the rules for forms.
#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTest>

#include "tests/desktop/gallery_form.h"
#include "tests/stage/form_lint.h"

namespace orm {
namespace {

std::string Joined(const std::vector<std::string>& faults) {
  std::string all;
  for (const std::string& fault : faults) all += fault + "\n";
  return all;
}

void MeetGallery(const std::function<void(GalleryForm&, FormDialog&)>& meet) {
  GalleryForm form;
  TestPlayer player;
  player.onForm = [&](FormDialog& dialog) { meet(form, dialog); };
  player.Show(form);
}

TEST(Gallery, HoldsTheRulesForForms) {
  MeetGallery([](GalleryForm&, FormDialog& dialog) {
    KeepPicture(dialog, "galleria");
    EXPECT_EQ(Joined(LintForm(dialog)), "");
  });
}

TEST(Gallery, TellsWhatIsNotTaken) {
  MeetGallery([](GalleryForm& form, FormDialog& dialog) {
    QWidget* pieces = dialog.ViewOf(form.ciPezzi).Field();
    pieces->setFocus();
    QTest::keyClick(pieces, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(pieces, "35");
    KeepPicture(dialog, "obiezione");
    EXPECT_EQ(Joined(LintForm(dialog)), "");
  });
}

TEST(Gallery, GrowsAndShrinksWithAFrame) {
  MeetGallery([](GalleryForm& form, FormDialog& dialog) {
    const QSize before = dialog.size();
    form.fraNascosto.SetVisible(true);
    form.lblClasse.SetVisible(false);
    form.comClasse.SetVisible(false);
    KeepPicture(dialog, "riquadro");
    EXPECT_EQ(Joined(LintForm(dialog)), "");
    form.fraNascosto.SetVisible(false);
    form.lblClasse.SetVisible(true);
    form.comClasse.SetVisible(true);
    EXPECT_EQ(dialog.size(), before);
  });
}

TEST(Gallery, ATextThatComesLaterIsSeenWhole) {
  MeetGallery([](GalleryForm& form, FormDialog& dialog) {
    form.lblClasse.SetText("Una riga\nun'altra\n\ne una quarta, più lunga di quelle di prima");
    form.cdRisultato.SetValue(99999.99);
    QCoreApplication::processEvents();
    EXPECT_EQ(Joined(LintForm(dialog)), "");
  });
}

TEST(Gallery, MessageBoxes) {
  using Icon = MessageBox::Icon;
  using Buttons = MessageBox::Buttons;
  const std::vector<MessageBox> boxes = {
      {"  ATTENZIONE !! ", "VALORE NON ACCETTABILE : importo nullo !\n<b>Letterale</b> & così",
       Icon::Exclamation, Buttons::Ok},
      {"  INFORMAZIONE ", "DA USARE PER IL CALCOLO DELL'ONORARIO\nA FINE LAVORI   ",
       Icon::Information, Buttons::OkCancel},
      {"DOMANDA", "Si vuole continuare ?", Icon::Question, Buttons::YesNo},
      {"ERRORE", "Il file non si può scrivere.", Icon::Critical, Buttons::YesNoCancel}};
  TestPlayer player;
  int number = 0;
  player.onMessage = [&](QMessageBox& shown) {
    KeepPicture(shown, "messaggio" + std::string(1, static_cast<char>('1' + number++)));
  };
  for (const MessageBox& box : boxes) player.Ask(box);
  EXPECT_EQ(number, 4);
}

}  // namespace
}  // namespace orm
