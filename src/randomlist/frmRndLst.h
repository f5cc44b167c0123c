#pragma once

#include "core/Surroundings.h"
#include "core/widgets/PageForm.h"

namespace karvenis {

/// The list of random columns: shows it page by page and runs the commands on it.
class frmRndLst final : public PageForm {
  Q_OBJECT

 public:
  explicit frmRndLst(Surroundings& around);

  void Form_Activate() override;

 protected:
  void Form_Resize() override;
  bool answerKey(int KeyCode) override;
  void printPage(TextSurface& surface) override;

 private:
  void runCommand(int KeyCode);
  void showFirstPage();

  Surroundings& around_;
};

}  // namespace karvenis
