#pragma once

#include "core/Surroundings.h"
#include "platform/qt/Form.h"

class QLabel;
class QLayout;
class QPushButton;

namespace karvenis {

/// The base of the bag and the banko window, which apply, load and save a selection.
class frmSelection : public Form {
  Q_OBJECT

 protected:
  explicit frmSelection(Surroundings& around);

  void Form_KeyDown(int KeyCode, int Shift) override;
  /// A key that has a meaning of its own in this window.
  virtual void ownKey(int KeyCode) = 0;

  /// Begins the menu "Seçim".
  QMenu* buildChoiceMenu();
  /// Adds a separator with the object name `separator` and "Kapat" to the menu `choice`, then makes
  /// the menus "Dosya" and "Yardım". Returns "Yardım".
  QMenu* buildOtherMenus(QMenu* choice, const char* separator);
  /// Makes the window's lower part: the buttons, and below them `left` and `right`.
  QWidget* buildFoot(QLabel* left, QLabel* right);

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

 private:
  QLayout* buildCommands();
};

}  // namespace karvenis
