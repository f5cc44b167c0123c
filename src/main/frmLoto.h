#pragma once

#include <QPixmap>

#include "core/Surroundings.h"
#include "main/Banner.h"
#include "main/DrawAnimation.h"
#include "main/IdleCover.h"
#include "main/Settings.h"
#include "platform/qt/Artwork.h"
#include "platform/qt/ControlArray.h"
#include "platform/qt/Form.h"

class QCheckBox;
class QFrame;
class QLabel;
class QPushButton;
class QRadioButton;
class QTimer;

namespace karvenis {

class Picture;
class PictureButton;

/// The main window: shows the drawn column and is the hub of all menus and function keys.
class frmLoto final : public Form, private BallStage {
  Q_OBJECT

 public:
  explicit frmLoto(Surroundings& around);

  void Form_Load() override;
  void Form_Activate() override;

 protected:
  void Form_KeyDown(int KeyCode, int Shift) override;
  void Form_KeyPress(int KeyAscii) override;
  void Form_DblClick() override;
  void closeRequested() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void buildMenus();
  void keyEntry(int number, QMenu* menu, const char* entry, QStringView text,
                std::function<void()> procedure);
  QWidget* buildBanner();
  QLayout* buildStage();
  void buildBall(int k);
  QLabel* buildLabel(int index, unsigned colour);
  QLayout* buildPanel();
  QWidget* buildChoices();
  QWidget* buildClock();
  void buildTimers();
  void grow(double growth);
  void placeBall(int k);
  void placeBanner();
  void showBackground();
  void hideOpening();
  void nameLabel(int index);

  void Command1_Click();
  void Command2_Click();
  void Check1_Click();
  void Picture0_Click();
  void Label1_MouseMove(int Index);
  void Timer0_Timer();
  void Timer_Timer(int ball);
  void mnuSaveRndColumn_Click();
  void mnuShowRndList_Click();
  void mnuChangeRndFile_Click();
  void mnuDeleteRndFile_Click();
  void mnuShowBag_Click();
  void mnuLoadBag_Click();
  void mnuShowBanko_Click();
  void mnuLoadBanko_Click();
  void mnuShow8Columns_Click();
  void mnuCreateRndCList_Click();
  void mnuShowClist_Click();
  void mnuFKeys_Click();
  void mnuAbout_Click();

  void newColumnFromBag();
  void newColumnFromList();
  void ShowColumn();
  void announceColumn();
  std::string drawnNumbers() const;

  void showImage(int index, bool visible) override;
  void showLabel(int index, bool visible) override;
  void setLabel(int index, const std::string& caption) override;
  std::string label(int index) const override;
  void enableTimer(int timer, bool enabled) override;
  void beep() override;

  Surroundings& around_;
  Artwork artwork_;
  DrawAnimation animation_;
  Banner banner_;
  IdleCover cover_;
  Place place_;                        // as the file held it at the start; 0, 0 without a file
  ControlArray<QAction, 12> entries_;  // what F1..F12 trigger
  double growth_ = 1;                  // how much larger than designed the pictures are
  QPixmap background_;                 // the picture of Picture2, from the first draw on

  QPushButton* Command1 = nullptr;    // "Kolon": draws a new column
  QPushButton* Command2 = nullptr;    // "Çıkış": saves the window's place and ends the program
  QRadioButton* Option1 = nullptr;    // "Torbadan Çek": columns come from the bag
  QRadioButton* Option2 = nullptr;    // "Listeden Çek": columns come from the combination list
  QCheckBox* Check1 = nullptr;        // "Numara Sırası": columns are sorted
  QFrame* Frame1 = nullptr;           // groups the options and the check box
  PictureButton* Picture0 = nullptr;  // the opening picture over the balls
  Picture* Picture1 = nullptr;        // the emblem beside the clock
  Picture* Picture2 = nullptr;        // never shown: its picture becomes the background
  Picture* Picture3 = nullptr;        // the banner, which moves from side to side
  Picture* Picture4 = nullptr;        // the strip below it, which moves with it
  QWidget* strip_ = nullptr;          // shows a part of the banner
  QWidget* stage_ = nullptr;          // holds the balls and their numbers
  ControlArray<Picture, 30> Image1;   // the balls' pictures; multiples of 5 belong to no ball
  ControlArray<QLabel, 12> Label1;    // two numbers for each ball position
  QLabel* Label2 = nullptr;           // today's date
  QLabel* Label3 = nullptr;           // the time
  // Timer0: the clock; Timer1, Timer2, Timer3, Timer4, Timer5, Timer6: the balls.
  ControlArray<QTimer, 7> Timer;
};

}  // namespace karvenis
