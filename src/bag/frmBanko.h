#pragma once

#include <array>

#include "bag/BankoActions.h"
#include "platform/qt/Form.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace karvenis {

/// The banko window: how many bankos there are, and which. What is typed counts when it is applied
/// or saved.
class frmBanko final : public Form, private BankoBoxes {
 public:
  frmBanko(Surroundings& around, Forms& forms);

  void Form_Activate() override;

 protected:
  void Form_KeyDown(int KeyCode, int Shift) override;

 private:
  void buildMenus();
  QWidget* buildOptions();
  QWidget* buildBoxes();
  QWidget* buildCommands();

  void Option_Click(int count);
  void Text1_Change(int Index);
  void Text1_Enter(int Index);
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void mnuSil_Click();
  void mnuUygula_Click();
  void mnuYukle_Click();
  void mnuKayitla_Click();
  void mnuKapat_Click();
  void mnuFunctionKeys_Click();
  void mnuBankoNedir_Click();

  int count() const override;
  void chooseCount(int count) override;
  std::string text(int index) const override;
  void setText(int index, const std::string& text) override;

  Surroundings& around_;

  QLabel* Label1 = nullptr;                            // "Banko Top Sayısı:"
  std::array<QRadioButton*, mostBankos + 1> Option{};  // Option1..Option6: 0..5 bankos
  QLabel* Label2 = nullptr;                            // the caption over the boxes
  std::array<QLineEdit*, mostBankos> Text1{};          // the banko numbers
  QLabel* Label3 = nullptr;                            // the credit line
  QLabel* Label4 = nullptr;                            // "F10= Yardım"
  QPushButton* Command1 = nullptr;  // "Uygula": the typed numbers become the bankos
  QPushButton* Command2 = nullptr;  // "Kapat": closes the window
  QPushButton* Command3 = nullptr;  // "Yükle": loads the bankos from their file
  QPushButton* Command4 = nullptr;  // "Kayıtla": applies and saves the bankos
};

}  // namespace karvenis
