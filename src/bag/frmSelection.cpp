#include "bag/frmSelection.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace karvenis {

frmSelection::frmSelection(Surroundings& around) : Form(around.windows), around_(around) {}

QMenu* frmSelection::buildChoiceMenu() {
  QMenu* choice = addMenu("mnuSecim", u"Seçim"_s);
  addMenuEntry(choice, "mnuUygula", u"Seçimi Uygula"_s, [this] { mnuUygula_Click(); });
  return choice;
}

QMenu* frmSelection::buildOtherMenus(QMenu* choice, const char* separator) {
  choice->addSeparator()->setObjectName(QLatin1String(separator));
  addMenuEntry(choice, "mnuKapat", u"Kapat"_s, [this] { mnuKapat_Click(); });

  QMenu* file = addMenu("mnuDosya", u"Dosya"_s);
  addMenuEntry(file, "mnuYukle", u"Dosyadan Yükle"_s, [this] { mnuYukle_Click(); });
  addMenuEntry(file, "mnuKayitla", u"Dosyaya Kayıtla"_s, [this] { mnuKayitla_Click(); });

  QMenu* help = addMenu("mnuYardim", u"Yardım"_s);
  addMenuEntry(help, "mnuFunctionKeys", u"Fonksiyon Tuşları"_s,
               [this] { mnuFunctionKeys_Click(); });
  return help;
}

QWidget* frmSelection::buildFoot(QLabel* left, QLabel* right) {
  auto* holder = new QWidget(this);
  auto* column = new QVBoxLayout(holder);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(buildCommands());
  auto* foot = new QHBoxLayout;
  foot->addWidget(left);
  foot->addStretch();
  foot->addWidget(right);
  column->addLayout(foot);
  return holder;
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
