#include "bag/frmSelection.h"

#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace karvenis {

frmSelection::frmSelection(Surroundings& around, const char* name)
    : Form(around.windows, name), around_(around) {}

QMenu* frmSelection::buildChoiceMenu() {
  QMenu* choice = menuHead("mnuSecim", u"Seçim"_s);
  menuEntry(choice, "mnuUygula", u"Seçimi Uygula"_s, [this] { mnuUygula_Click(); });
  return choice;
}

QMenu* frmSelection::buildOtherMenus(QMenu* choice, const char* line) {
  choice->addSeparator()->setObjectName(QLatin1String(line));
  menuEntry(choice, "mnuKapat", u"Kapat"_s, [this] { mnuKapat_Click(); });

  QMenu* file = menuHead("mnuDosya", u"Dosya"_s);
  menuEntry(file, "mnuYukle", u"Dosyadan Yükle"_s, [this] { mnuYukle_Click(); });
  menuEntry(file, "mnuKayitla", u"Dosyaya Kayıtla"_s, [this] { mnuKayitla_Click(); });

  QMenu* help = menuHead("mnuYardim", u"Yardım"_s);
  menuEntry(help, "mnuFunctionKeys", u"Fonksiyon Tuşları"_s, [this] { mnuFunctionKeys_Click(); });
  return help;
}

QLayout* frmSelection::buildCommands() {
  Command1 = command("Command1", u"Uygula", u"Uygula", [this] { Command1_Click(); });
  Command3 = command("Command3", u"Yükle", u"Dosyadan Yükle", [this] { Command3_Click(); });
  Command4 = command("Command4", u"Kayıtla", u"Dosyaya Kayıtla", [this] { Command4_Click(); });
  Command2 = command("Command2", u"Kapat", u"Çıkış", [this] { Command2_Click(); });
  auto* row = new QHBoxLayout;
  for (QPushButton* button : {Command1, Command3, Command4, Command2}) row->addWidget(button, 1);
  return row;
}

void frmSelection::Form_KeyDown(int KeyCode, int) {
  switch (KeyCode) {
    case keyEscape:
      return unload();
    case keyF1:
      return Command1_Click();
    case keyF2:
      return Command3_Click();
    case keyF3:
      return Command4_Click();
    case keyF10:
      return mnuFunctionKeys_Click();
    default:
      return ownKey(KeyCode);
  }
}

void frmSelection::Command2_Click() { unload(); }
void frmSelection::mnuUygula_Click() { Command1_Click(); }
void frmSelection::mnuYukle_Click() { Command3_Click(); }
void frmSelection::mnuKayitla_Click() { Command4_Click(); }
void frmSelection::mnuKapat_Click() { unload(); }

}  // namespace karvenis
