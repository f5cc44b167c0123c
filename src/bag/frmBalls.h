#pragma once

#include <array>

#include "bag/BagActions.h"
#include "platform/qt/Form.h"

class QFrame;
class QLabel;
class QPushButton;

namespace karvenis {

class BallCell;

/// The bag window: the user marks the balls that columns are drawn from. Marks change nothing until
/// they are applied or saved.
class frmBalls final : public Form, private BallButtons {
 public:
  frmBalls(Surroundings& around, Forms& forms);

  void Form_Activate() override;

 protected:
  void Form_KeyDown(int KeyCode, int Shift) override;

 private:
  void buildMenus();
  void buildCells();
  void buildCell(int index);
  QWidget* buildCommands();
  void step(int from, int columns, int rows);
  void takeTabStop(int index);

  void cmdBall_Click(int Index);
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void mnuHepsi_Click();
  void mnuHicbiri_Click();
  void mnuUygula_Click();
  void mnuYukle_Click();
  void mnuKayitla_Click();
  void mnuKapat_Click();
  void mnuFunctionKeys_Click();
  void mnuNasil_Click();

  bool isMarked(int ball) const override;
  void setMarked(int ball, bool marked) override;

  Surroundings& around_;
  int tabStop_ = 1;  // the ball that Tab leads to

  QFrame* Frame1 = nullptr;                         // holds the ball buttons
  std::array<BallCell*, ballsInAll + 1> cmdBall{};  // 1..49: the balls; 0: a template, never shown
  QPushButton* Command1 = nullptr;                  // "Uygula": the marked balls become the bag
  QPushButton* Command2 = nullptr;                  // "Kapat": closes the window
  QPushButton* Command3 = nullptr;                  // "Yükle": loads the bag from its file
  QPushButton* Command4 = nullptr;                  // "Kayıtla": saves the marked balls
  QLabel* Label2 = nullptr;                         // "F10= Yardım"
};

}  // namespace karvenis
