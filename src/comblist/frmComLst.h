#pragma once

#include "core/Surroundings.h"
#include "core/widgets/PageForm.h"

namespace karvenis {

/// The combination list: shows it page by page and runs the commands on it.
class frmComLst final : public PageForm {
  Q_OBJECT

 public:
  explicit frmComLst(Surroundings& around);

  void Form_Activate() override;

 protected:
  bool answerKey(int KeyCode) override;
  void printPage(TextSurface& surface) override;

 private:
  Surroundings& around_;
};

}  // namespace karvenis
