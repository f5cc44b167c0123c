#pragma once

#include "core/Surroundings.h"
#include "listing/Listing.h"
#include "platform/qt/Form.h"

class QGridLayout;
class QLabel;
class QPushButton;
class QRadioButton;

namespace karvenis {

/// The base of the two listing dialogs, which write a column list to the text file or print it.
class frmListing : public Form {
  Q_OBJECT

 protected:
  frmListing(Surroundings& around, const Listing& listing);

  void Form_KeyDown(int KeyCode, int Shift) override;
  /// Lists what the dialog is set to.
  virtual void Command1_Click() = 0;

  Output output() const;
  /// Lays out the controls below what the dialog has put into the grid's first rows.
  void layOut(QGridLayout* grid);

  Surroundings& around_;

  QLabel* Label3;         // "Çıktı:"
  QRadioButton* Option1;  // "Text Dosyası": the list goes to the text file
  QRadioButton* Option2;  // "Printer": the list is printed
  QPushButton* Command1;  // "Yaz" or "Bas": lists
  QPushButton* Command2;  // "Kapat": closes

 private:
  void Option1_Click();
  void Option2_Click();
  void Command2_Click();
};

}  // namespace karvenis
