#pragma once

#include "listing/frmListing.h"

namespace karvenis {

/// Lists all random columns.
class frmRLPrint final : public frmListing {
 public:
  frmRLPrint(Surroundings& around, Forms& forms);

 private:
  void Command1_Click() override;
};

}  // namespace karvenis
