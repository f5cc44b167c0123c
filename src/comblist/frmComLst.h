#pragma once

#include "comblist/Filters.h"
#include "core/ListPage.h"
#include "core/Surroundings.h"
#include "platform/qt/Form.h"

namespace karvenis {

class Surface;

/// The combination list: pages through the file and carries the commands that thin it out. It has
/// no controls; it prints on its own surface.
class frmComLst final : public Form {
  Q_OBJECT

 public:
  explicit frmComLst(Surroundings& around);

  void Form_Activate() override;

 protected:
  void Form_KeyDown(int KeyCode, int Shift) override;
  void Form_Click() override;

 private:
  bool runCommand(int KeyCode);
  void runFilter(Filter filter);
  void redraw();

  Surroundings& around_;
  Surface* surface_;
  ListPage page_;
};

}  // namespace karvenis
