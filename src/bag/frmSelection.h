#pragma once

#include "core/Surroundings.h"
#include "platform/qt/Form.h"

class QLayout;
class QPushButton;

namespace karvenis {

/// The base of the bag and the banko window, which apply, load and save a selection.
class frmSelection : public Form {
  Q_OBJECT

 protected:
  frmSelection(Surroundings& around, const char* name);

  void Form_KeyDown(int KeyCode, int Shift) override;
  /// A key that has a meaning of its own in this window.
  virtual void ownKey(int KeyCode) = 0;

  /// Begins the menu "Seçim".
  QMenu* buildChoiceMenu();
  /// Ends `choice` behind a line and adds the menus "Dosya" and "Yardım"; returns the latter.
  QMenu* buildOtherMenus(QMenu* choice, const char* line);
  QLayout* buildCommands();

  virtual void Command1_Click() = 0;
  void Command2_Click();
  virtual void Command3_Click() = 0;
  virtual void Command4_Click() = 0;
  void mnuUygula_Click();
  void mnuYukle_Click();
  void mnuKayitla_Click();
  void mnuKapat_Click();
  virtual void mnuFunctionKeys_Click() = 0;

  Surroundings& around_;

  QPushButton* Command1 = nullptr;  // "Uygula": applies the selection
  QPushButton* Command2 = nullptr;  // "Kapat": closes the window
  QPushButton* Command3 = nullptr;  // "Yükle": loads the selection from its file
  QPushButton* Command4 = nullptr;  // "Kayıtla": saves the selection
};

}  // namespace karvenis
