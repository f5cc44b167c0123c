#pragma once

#include "bag/BagActions.h"
#include "bag/frmSelection.h"
#include "platform/qt/ControlArray.h"

class QFrame;
class QLabel;

namespace karvenis {

class BallCell;

/// The bag window: the user marks the balls that columns are drawn from. Marks change nothing until
/// they are applied or saved.
class frmBalls final : public frmSelection, private BallButtons {
  Q_OBJECT

 public:
  explicit frmBalls(Surroundings& around);

  void Form_Activate() override;

 protected:
  void ownKey(int KeyCode) override;

 private:
  void buildMenus();
  void buildCells();
  void buildCell(int index);
  void step(int from, int columns, int rows);
  void takeTabStop(int index);

  void cmdBall_Click(int Index);
  void Command1_Click() override;
  void Command3_Click() override;
  void Command4_Click() override;
  void mnuHepsi_Click();
  void mnuHicbiri_Click();
  void mnuFunctionKeys_Click() override;
  void mnuNasil_Click();

  bool isMarked(int ball) const override;
  void setMarked(int ball, bool marked) override;

  int tabStop_ = 1;  // the ball that Tab leads to
  int markedBalls_ = 0;

  QFrame* Frame1 = nullptr;                        // holds the ball buttons
  ControlArray<BallCell, ballsInAll + 1> cmdBall;  // 1..49: the balls; 0: a template, never shown
  QLabel* Label1 = nullptr;                        // how many balls are marked
  QLabel* Label2 = nullptr;                        // "F10= Yardım"
};

}  // namespace karvenis
