#pragma once

#include "core/ListPage.h"
#include "core/Surroundings.h"
#include "platform/qt/PageForm.h"

namespace karvenis {

/// The combination list: shows it page by page and runs the commands on it.
class frmComLst final : public PageForm {
  Q_OBJECT

 public:
  explicit frmComLst(Surroundings& around);

  void Form_Activate() override;

 protected:
  bool command(int KeyCode) override;
  void nextPage() override { page_.click(); }
  void redraw() override;

 private:
  Surroundings& around_;
  ListPage page_;
};

}  // namespace karvenis
