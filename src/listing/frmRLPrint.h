#pragma once

#include "listing/frmListing.h"

namespace karvenis {

/// Lists all random columns.
class frmRLPrint final : public frmListing {
  Q_OBJECT

 public:
  explicit frmRLPrint(Surroundings& around);

 private:
  void Command1_Click() override;
};

}  // namespace karvenis
