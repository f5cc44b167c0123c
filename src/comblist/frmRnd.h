#pragma once

#include "comblist/Generator.h"
#include "core/Surroundings.h"
#include "platform/qt/Form.h"

class QFrame;
class QLabel;
class QLayout;
class QPushButton;
class QRadioButton;

namespace karvenis {

class NumberField;

/// The generator: writes a new combination list of random columns, or columns behind the existing
/// ones.
class frmRnd final : public Form {
  Q_OBJECT

 public:
  explicit frmRnd(Surroundings& around);

  void Form_Activate() override;

 protected:
  void Form_KeyDown(int KeyCode, int Shift) override;

 private:
  QLayout* buildCount();
  QLayout* buildOptions();
  QLayout* buildCommands();
  void onOption(QRadioButton* option, void (frmRnd::*procedure)());
  void Option1_Click();
  void Option2_Click();
  void Command1_Click();
  void Command2_Click();

  QLabel* Label1 = nullptr;         // "Kolon Sayısı:"
  NumberField* Text1 = nullptr;     // how many columns to write
  QRadioButton* Option1 = nullptr;  // "Yeni Liste": makes a new list
  QRadioButton* Option2 = nullptr;  // "Mevcut Listeye Ekle": appends to the existing list
  QPushButton* Command1 = nullptr;  // "Oluştur": writes the columns
  QPushButton* Command2 = nullptr;  // "Kapat"
  QFrame* Line1 = nullptr;          // between the choices and the note
  QLabel* Label2 = nullptr;         // the file that the columns go to
  Boxes& boxes_;
  Generator generator_;
};

}  // namespace karvenis
