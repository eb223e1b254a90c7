// The verifications under real keys: what they say of their results, their loads, their windows.
#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <random>

#include "desktop/player/message_window.h"
#include "desktop/qt_text.h"
#include "dialogs/data_forms/form_file.h"
#include "dialogs/data_forms/result_form.h"
#include "dialogs/drawing/dxf.h"
#include "dialogs/drawing/svg.h"
#include "dialogs/lavagna.h"
#include "shell/commands.h"
#include "structures/loads/form_permanent.h"
#include "structures/truss_slab/form_truss_slab.h"
#include "tests/desktop/test_player.h"
#include "tests/temporary_folder.h"

namespace orm {
namespace {

QWidget* FieldOf(FormDialog& dialog, const char* name) {
  return dialog.ViewOf(*dialog.Model().Find(name)).Field();
}

void Press(FormDialog& dialog, const char* name) {
  QWidget* field = FieldOf(dialog, name);
  QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(8, field->height() / 2));
}

void Write(FormDialog& dialog, const char* name, const char* text) {
  QWidget* field = FieldOf(dialog, name);
  field->setFocus(Qt::TabFocusReason);
  QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(field, text);
}

void DesignSlab(FormDialog& dialog) {
  Write(dialog, "cdLuce", "5");
  Write(dialog, "cdCR(3)", "200");
  QTest::keyClick(&dialog, Qt::Key_Return);
}

// Data with which most verifications can be calculated.
void Fill(FormDialog& dialog) {
  if (auto* option = dialog.findChild<QAbstractButton*>("Option2")) option->click();
  for (const Control* control : dialog.Model().Controls())
    if (control->IsShown() && control->TakesFocus() && control->ShownText() == "0")
      Write(dialog, control->Name().c_str(), "3");
}

// What the form was calculated from: all that a person gives, but for the choice of a view.
FormValues::Values DataOf(const Form& form) {
  FormValues::Values data = FormValues(form).All();
  std::erase_if(data, [](const auto& entry) { return entry.first.starts_with("optVisualizza"); });
  return data;
}

// Presses keys at random in a form and in those that it opens, and looks after each.
class Keys {
 public:
  Keys(unsigned seed, TestPlayer& player) : random_(seed) {
    player.onForm = [this](FormDialog& dialog) { Play(dialog); };
    player.onMessage = [this](QMessageBox& shown) {
      QTest::keyClick(&shown, Below(2) == 0 ? Qt::Key_Return : Qt::Key_Escape);
    };
  }

 private:
  int Below(int most) { return std::uniform_int_distribution<int>(0, most - 1)(random_); }

  void Play(FormDialog& dialog) {
    Form& form = dialog.Model();
    FormValues::Values reckoned;
    std::map<std::string, double> confirmed;
    for (Control* control : form.Controls())
      if (auto* button = dynamic_cast<Button*>(control)) Watch(*button, reckoned, confirmed);
    const bool first = depth_++ == 0;
    if (first) Fill(dialog);
    for (int i = first ? 150 : 25; i > 0 && form.IsOpen(); --i) {
      Key(dialog, first);
      QCoreApplication::processEvents();
      Look(dialog, reckoned, confirmed);
    }
    --depth_;
    for (Control* control : form.Controls())  // a dialog that is kept forgets the watcher
      if (auto* button = dynamic_cast<Button*>(control); button != nullptr && own_[button])
        button->onPress = std::exchange(own_[button], nullptr);
  }

  void Watch(Button& button, FormValues::Values& reckoned,
             std::map<std::string, double>& confirmed) {
    const Form& form = button.Owner();
    const std::string& name = button.Name();
    const bool reckons = form.Find("lblEsito") != nullptr &&
                         QString(name.c_str()).contains("calco", Qt::CaseInsensitive) &&
                         button.GetRole() == Button::Role::Default;
    const bool panel = name.starts_with("Commando("), clears = name.starts_with("cmdAzzera");
    if (!reckons && !panel && !clears) return;
    own_[&button] = button.onPress;
    button.onPress = [&, reckons, panel, own = button.onPress] {
      own();
      if (reckons) reckoned = DataOf(button.Owner());
      if (!reckons) confirmed.clear();
      if (panel)
        for (int i = 0; i < 7; ++i) {
          const std::string field = "cdCarico(" + std::to_string(i) + ")";
          confirmed[field] = static_cast<FloatBox*>(button.Owner().Find(field))->Value();
        }
    };
  }

  void Key(FormDialog& dialog, bool first) {
    static const std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>> kKeys = {
        {Qt::Key_Tab, {}},
        {Qt::Key_Tab, {}},
        {Qt::Key_Tab, {}},
        {Qt::Key_Tab, {}},
        {Qt::Key_Down, {}},
        {Qt::Key_Up, {}},
        {Qt::Key_Space, {}},
        {Qt::Key_Return, {}},
        {Qt::Key_C, Qt::AltModifier},
        {Qt::Key_1, {}},
        {Qt::Key_5, {}},
        {Qt::Key_9, {}},
        {Qt::Key_Comma, {}},
        {Qt::Key_Backspace, {}},
        {Qt::Key_Backtab, Qt::ShiftModifier},
        {Qt::Key_Escape, {}},
        {Qt::Key_R, Qt::AltModifier}};
    const auto& [key, modifier] = kKeys[static_cast<std::size_t>(Below(kKeys.size()))];
    if (key == Qt::Key_Escape && first) return;
    QWidget* focus = dialog.focusWidget();
    const QString text = key < 0x80 && !modifier ? QString(QChar(key)) : QString();
    QTest::sendKeyEvent(QTest::Click, focus != nullptr ? focus : &dialog, key, text, modifier);
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
  }

  static void Look(FormDialog& dialog, const FormValues::Values& reckoned,
                   const std::map<std::string, double>& confirmed) {
    const Form& form = dialog.Model();
    EXPECT_TRUE(dialog.screen()->availableGeometry().contains(dialog.frameGeometry()))
        << form.Name();
    if (const auto* result = dynamic_cast<const FormDiCalcolo*>(&form)) {
      const std::string& says = result->lblEsito.Text();
      const bool verdict =
          says != FormDiCalcolo::kDatiCambiati && says != FormDiCalcolo::kDaCalcolare;
      EXPECT_TRUE(!verdict || DataOf(form) == reckoned) << form.Name() << ": " << says;
      EXPECT_EQ(result->cmdSPIEGA.OwnEnabled(), verdict) << form.Name();
      const auto* drawing = dynamic_cast<const Lavagna*>(form.Find("Lavagna"));
      const bool judged = drawing != nullptr && drawing->HasVerdict();
      EXPECT_TRUE(!judged || drawing->Notice().empty() == verdict) << form.Name();
      if (judged && !verdict) {
        for (const std::string& file : {SvgOf(*drawing), DxfOf(*drawing)})
          EXPECT_NE(file.find(FormDiCalcolo::kDatiCambiati), std::string::npos) << form.Name();
      }
    }
    const auto* list = dynamic_cast<const FrmStruttureCarichiPermanenti*>(&form);
    if (list == nullptr || !list->fraSovraccarichi.IsShown()) return;
    for (const auto& [name, load] : confirmed)
      EXPECT_EQ(static_cast<FloatBox*>(form.Find(name))->Value(), load) << name;
  }

  std::mt19937 random_;
  int depth_ = 0;
  std::map<Button*, std::function<void()>> own_;
};

class Checks : public testing::Test {
 protected:
  TemporaryFolder folder_;
  TestPlayer player_;
  RunState stato_{player_, folder_.Folder()};
  // Shows a verification and lets the test act on it.
  void Show(const char* command, const std::function<void(FormDialog&)>& act) {
    player_.onForm = act;
    RunCommand(stato_, command);
  }
};

constexpr std::array kCommands = {
    "VER_ST1",      "ver_SC1",     "VER_SOLAIO_T",           "VER_SOLAIO_P",
    "VER_SBALZI_P", "VER_BALCONE", "INAR_PENSIONE_INARCASSA"};

TEST_F(Checks, NoKeyLeavesAStaleVerdictALostLoadOrAWindowOffTheScreen) {
  for (const char* command : kCommands)
    for (unsigned seed = 1; seed <= ORM_RANDOM_HANDS && !HasFailure(); ++seed) {
      SCOPED_TRACE(std::string(command) + " " + std::to_string(seed));
      Keys keys(seed, player_);
      RunCommand(stato_, command);
    }
}

TEST_F(Checks, DataComeBackFromTheirFileAsTheyWere) {
  for (const char* command : kCommands)
    Show(command, [&](FormDialog& dialog) {
      const Form& form = dialog.Model();
      const FormValues fresh(form);
      Fill(dialog);
      DataWriter file;
      ScriviDatiForm(file, form);
      DataReader reader = DataReader::OfBytes("x.VER", file.Bytes());
      EXPECT_EQ(LeggiDatiForm(reader, form, fresh).All(), FormValues(form).All()) << form.Name();
      reader.ExpectEnd();
    });
}

TEST_F(Checks, NothingSizesTheWindowAtACalculationOrAnotherView) {
  for (const bool maximised : {false, true})
    Show("VER_SOLAIO_T", [&](FormDialog& dialog) {
      if (maximised) dialog.showMaximized();
      const QSize size = dialog.size();
      DesignSlab(dialog);
      EXPECT_TRUE(FieldOf(dialog, "Lavagna")->isVisible());
      for (const char* view : {"optVisualizza(2)", "optVisualizza(4)", "optVisualizza(3)"}) {
        Press(dialog, view);
        EXPECT_EQ(dialog.size(), size) << view;
      }
      EXPECT_EQ(dialog.isMaximized(), maximised);
    });
}

TEST_F(Checks, ASlabIsDrawnAsWideAsItsPlace) {
  Show("VER_SOLAIO_T", [](FormDialog& dialog) {
    dialog.resize(1600, dialog.height());
    DesignSlab(dialog);
    const QImage seen = FieldOf(dialog, "Lavagna")->grab().toImage();
    const QPoint support(seen.width() * 4 / 138, seen.height() * 11 / 30);
    EXPECT_EQ(seen.pixelColor(support), QColor(200, 200, 200));
  });
}

TEST_F(Checks, TablesOfASlabStandInColumns) {
  Show("VER_SOLAIO_T", [](FormDialog& dialog) {
    DesignSlab(dialog);
    Press(dialog, "optVisualizza(2)");
    const auto left = [&](const char* name) {
      return FieldOf(dialog, name)->mapTo(&dialog, QPoint(0, 0)).x();
    };
    EXPECT_EQ(left("lblDiametri(0)") - left("cdLunghezze(0)"),
              left("lblDiametri(3)") - left("cdLunghezze(3)"));
    Press(dialog, "optVisualizza(4)");
    for (const QLabel* caption : dialog.findChildren<QLabel*>()) {
      if (!caption->isVisible() || !caption->text().startsWith("INCASTRO")) continue;
      const QImage seen = const_cast<QLabel*>(caption)->grab().toImage();
      int ink = 0;  // of its closing bracket
      for (int x = seen.width() - 5; x < seen.width(); ++x)
        for (int y = 0; y < seen.height(); ++y) ink += seen.pixel(x, y) != seen.pixel(x, 0);
      EXPECT_GT(ink, 0) << FromQt(caption->text());
    }
  });
}

// From wherever the focus is, also from a list, which opens with that key otherwise.
TEST_F(Checks, F4TellsHowResultsCameAboutAsATextToCopy) {
  int told = 0;
  Show("VER_SOLAIO_T", [&](FormDialog& dialog) {
    if (dialog.Model().Name() == "frmGEN_Spiega") {
      ++told;
      auto* text = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget());
      ASSERT_NE(text, nullptr);
      QTest::keyClick(text, Qt::Key_PageDown);
      EXPECT_GT(text->verticalScrollBar()->value(), 0);
      Press(dialog, "cmdCOPIA");
      EXPECT_EQ(QApplication::clipboard()->text(), text->toPlainText());
      text->setFocus(Qt::TabFocusReason);
      QTest::keyClick(text, Qt::Key_Return);
      EXPECT_FALSE(dialog.Model().IsOpen());
      return;
    }
    DesignSlab(dialog);
    QWidget* list = FieldOf(dialog, "cmbTipoDiCls");
    list->setFocus(Qt::TabFocusReason);
    QTest::keyClick(list, Qt::Key_F4);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  });
}

// Compressed steel of these sections is held against nothing. A stress of other data has no mark.
TEST_F(Checks, AStressHasItsLimitBesideItAndAMarkBeyondIt) {
  Show("VER_ST1", [](FormDialog& dialog) {
    Press(dialog, "Option1");
    Write(dialog, "CD_12", "200");
    QTest::keyClick(&dialog, Qt::Key_Return);
    const auto told = [&](const char* name) {
      const std::string said = FromQt(FieldOf(dialog, name)->accessibleDescription());
      return dialog.Model().Find(name)->Unit() + " " + said;
    };
    EXPECT_EQ(told("cdOUT(2)"), "< 97,5 ");
    EXPECT_EQ(told("cdOUT(4)"), "esclusa ");
    EXPECT_EQ(told("cdOUT(5)"), "≥ 200 Valore oltre il limite");
    const QColor weight = FieldOf(dialog, "cdOUT(2)")->palette().color(QPalette::Text);
    Write(dialog, "CD_12", "300");
    for (const char* name : {"cdOUT(2)", "cdOUT(5)"})
      EXPECT_NE(FieldOf(dialog, name)->palette().color(QPalette::Text), weight) << name;
    EXPECT_EQ(told("cdOUT(5)"), "< 300 Valore da calcolare");
    EXPECT_NE(dialog.Model().Find("cdOUT(5)")->ShownText(), "0");
  });
}

TEST_F(Checks, TheProgramsDiameterIsThePersonsOnceItIsChosen) {
  Show("VER_SOLAIO_T", [&](FormDialog& dialog) {
    DesignSlab(dialog);
    auto* list = static_cast<ComboBox*>(dialog.Model().Find("cmbFERRI(1)"));
    ASSERT_TRUE(list->IsAutomatic());
    auto* combo = static_cast<QComboBox*>(FieldOf(dialog, "cmbFERRI(1)"));
    EXPECT_NE(combo->palette().buttonText(), QComboBox().palette().buttonText());
    const QString shown = combo->currentText();
    combo->showPopup();
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_FALSE(list->IsAutomatic());
    EXPECT_EQ(combo->currentText(), shown);
  });
}

// In an open panel Enter is its own button, Escape the way back to the list, which keeps what other
// panels had confirmed.
TEST_F(Checks, PanelsOfLoadsHaveKeysOfTheirOwn) {
  player_.onForm = [&](FormDialog& dialog) {
    auto& form = static_cast<FrmStruttureCarichiPermanenti&>(dialog.Model());
    const QRect screen = dialog.screen()->availableGeometry();
    dialog.move(screen.bottomRight() - QPoint(dialog.width(), dialog.height()));
    Press(dialog, "cmdSpecifica(0)");
    EXPECT_TRUE(screen.contains(dialog.frameGeometry()));
    Press(dialog, "optPavimento(3)");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(form.fraSovraccarichi.IsShown() && form.IsOpen());
    // Enter is not the button that was pressed last, in another panel.
    Press(dialog, "cmdSpecifica(4)");
    Press(dialog, "cmdAzzera(4)");
    Press(dialog, "Commando(4)");
    Press(dialog, "cmdSpecifica(6)");
    Press(dialog, "optSoffitto(0)");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(form.fraSovraccarichi.IsShown());
    EXPECT_EQ(form.Totale(), 100);
    Press(dialog, "cmdSpecifica(5)");
    Write(dialog, "cdSpessore", "4");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(form.fraSovraccarichi.IsShown() && form.IsOpen());
    EXPECT_EQ(form.Totale(), 100);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(form.IsOpen());
    EXPECT_EQ(form.Totale(), 100);
  };
  player_.Show(CarichiPermanenti(stato_));
}

TEST(MessageWindow, IsAsWideAsItsLongestLineAndNoWiderThanTheScreen) {
  for (const int letters : {70, 900}) {
    const std::string line(static_cast<std::size_t>(letters), 'm');
    const auto shown = BuildMessageWindow(
        {"", "corta\n" + line, MessageBox::Icon::Exclamation, MessageBox::Buttons::Ok}, nullptr);
    shown->show();
    const auto* text = shown->findChild<QLabel*>("qt_msgbox_label");
    const int room = shown->screen()->availableSize().width();
    EXPECT_LE(shown->width(), room);
    EXPECT_GE(text->width(),
              std::min(text->fontMetrics().horizontalAdvance(ToQt(line)), room - 160));
  }
}

TEST(Lists, PopupsAreAsWideAsTheirItemsAndNoWiderThanTheScreen) {
  Form form("frmLista", "Lista");
  ComboBox list(form, "lista", "Voce");
  form.SetContent(Column({Fields({list})}));
  std::string sentence;
  for (int i = 0; i < 60; ++i) sentence += "parole lunghe ";
  list.SetItems({"corta", sentence});
  TestPlayer player;
  player.onForm = [&](FormDialog& dialog) {
    auto* combo = static_cast<QComboBox*>(dialog.ViewOf(list).Field());
    combo->showPopup();
    const QWidget& popup = *combo->view()->window();
    EXPECT_LE(popup.width(), dialog.screen()->availableSize().width());
    EXPECT_GT(combo->view()->sizeHintForRow(1), combo->view()->sizeHintForRow(0));
    combo->hidePopup();
  };
  player.Show(form);
}

}  // namespace
}  // namespace orm
