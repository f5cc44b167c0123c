#pragma once

#include "listing/frmListing.h"

namespace karvenis {

class NumberField;

/// Lists a range of the combination list.
class frmCLPrint final : public frmListing {
  Q_OBJECT

 public:
  explicit frmCLPrint(Surroundings& around);

  void Form_Activate() override;

 private:
  void Text1_KeyPress();
  void Text2_KeyPress();
  void Command1_Click() override;

  QLabel* Label1;      // "Başlangıç :"
  NumberField* Text1;  // the first record's number
  QLabel* Label2;      // "Bitiş :"
  NumberField* Text2;  // the last record's number
};

}  // namespace karvenis
