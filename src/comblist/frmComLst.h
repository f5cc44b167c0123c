#pragma once

#include "comblist/Filters.h"
#include "core/ListPage.h"
#include "core/Surroundings.h"
#include "platform/qt/PageForm.h"

namespace karvenis {

/// The combination list: pages through the file and carries the commands that thin it out.
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
  void runFilter(Filter filter);

  Surroundings& around_;
  ListPage page_;
};

}  // namespace karvenis
