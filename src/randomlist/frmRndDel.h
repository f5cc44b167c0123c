#pragma once

#include "core/Surroundings.h"
#include "platform/qt/Form.h"
#include "randomlist/ColumnDeletion.h"

class QLabel;
class QPushButton;

namespace karvenis {

class NumberField;

/// The dialog that deletes one random column by its number. The list behind it stays usable, so
/// that the user can look the number up.
class frmRndDel final : public Form {
  Q_OBJECT

 public:
  explicit frmRndDel(Surroundings& around);

  void Form_Load() override;

 protected:
  void Form_KeyPress(int KeyAscii) override;

 private:
  void buildLayout();
  void Text1_KeyPress();
  void Command1_Click();
  void Command2_Click();

  ColumnDeletion deletion_;

  QLabel* Label1;         // "Silmek istediğiniz kolon numarasını girin."
  NumberField* Text1;     // the column's number
  QPushButton* Command1;  // "Tamam": deletes the column and closes
  QPushButton* Command2;  // "İptal": closes
};

}  // namespace karvenis
