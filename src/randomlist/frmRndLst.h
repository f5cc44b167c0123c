#pragma once

#include "core/ListPage.h"
#include "core/Surroundings.h"
#include "platform/qt/Form.h"

namespace karvenis {

class Surface;

/// The list of random columns: pages through the file and carries the commands on all of it. It has
/// no controls; it prints on its own surface.
class frmRndLst final : public Form {
  Q_OBJECT

 public:
  explicit frmRndLst(Surroundings& around);

  void Form_Activate() override;

 protected:
  void Form_KeyDown(int KeyCode, int Shift) override;
  void Form_Click() override;
  void Form_Resize() override;

 private:
  void runCommand(int KeyCode);
  void showFirstPage();
  void redraw();

  Surroundings& around_;
  Surface* surface_;
  ListPage page_;
};

}  // namespace karvenis
