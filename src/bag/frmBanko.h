#pragma once

#include "bag/BankoActions.h"
#include "bag/frmSelection.h"
#include "platform/qt/ControlArray.h"

class QLabel;
class QRadioButton;

namespace karvenis {

class NumberField;

/// The banko window: how many bankos there are, and which. What is typed counts when it is applied
/// or saved.
class frmBanko final : public frmSelection, private BankoFields {
  Q_OBJECT

 public:
  explicit frmBanko(Surroundings& around);

  void Form_Activate() override;

 protected:
  void ownKey(int KeyCode) override;

 private:
  void buildMenus();
  QWidget* buildOptions();
  QWidget* buildFields();
  QWidget* buildField(int index);

  void Option1_Click() { showFields(0); }
  void Option2_Click() { showFields(1); }
  void Option3_Click() { showFields(2); }
  void Option4_Click() { showFields(3); }
  void Option5_Click() { showFields(4); }
  void Option6_Click() { showFields(5); }
  void showFields(int count);
  void focusFirstEmptyField();
  void tellCount();
  void Text1_Change(int Index);
  void Text1_KeyPress(int Index);  // Enter; no other character has a meaning
  void Command1_Click() override;
  void Command3_Click() override;
  void Command4_Click() override;
  void mnuSil_Click();
  void mnuFunctionKeys_Click() override;
  void mnuBankoNedir_Click();

  int count() const override;
  void chooseCount(int count) override;
  std::string text(int index) const override;
  void setText(int index, const std::string& text) override;

  QLabel* Label1 = nullptr;                           // "Banko Top Sayısı:"
  ControlArray<QRadioButton, mostBankos + 1> Option;  // Option1..Option6: 0..5 bankos
  QLabel* Label2 = nullptr;                           // the caption over the fields
  ControlArray<NumberField, mostBankos> Text1;        // the banko numbers
  QLabel* Label3 = nullptr;                           // the credit line
  QLabel* Label4 = nullptr;                           // "F10= Yardım"
};

}  // namespace karvenis
