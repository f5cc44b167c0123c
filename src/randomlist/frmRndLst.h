#pragma once

#include "core/ListPage.h"
#include "core/Surroundings.h"
#include "platform/qt/PageForm.h"

namespace karvenis {

/// The list of random columns: shows it page by page and runs the commands on it.
class frmRndLst final : public PageForm {
  Q_OBJECT

 public:
  explicit frmRndLst(Surroundings& around);

  void Form_Activate() override;

 protected:
  void Form_Resize() override;
  bool command(int KeyCode) override;
  void nextPage() override { page_.click(); }
  void redraw() override;

 private:
  void runCommand(int KeyCode);
  void showFirstPage();

  Surroundings& around_;
  ListPage page_;
};

}  // namespace karvenis
