#include "main/frmLoto.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "bag/MainWindowLoads.h"
#include "core/Draw.h"
#include "core/Numbers.h"
#include "main/NewColumn.h"
#include "main/Settings.h"
#include "main/Texts.h"
#include "main/widgets/Picture.h"
#include "platform/Twips.h"
#include "platform/qt/Text.h"
#include "platform/qt/WindowPlace.h"
#include "randomlist/RandomColumnFile.h"

// The window's event procedures; frmLotoBuild.cpp builds and paints it.

namespace karvenis {

void frmLoto::Form_Load() {
  const auto place = readPlace(around_.files);
  if (!place) return;
  place_ = *place;
  moveFrame(*this, {place_.left / twipsPerPixel, place_.top / twipsPerPixel});
}

void frmLoto::Form_Activate() { around_.chance.seedFrom(around_.clock); }

void frmLoto::Form_KeyDown(int KeyCode, int Shift) {
  if (Shift != 0 || !isFunctionKey(KeyCode)) return;
  entries_[KeyCode - keyF1]->trigger();
}

void frmLoto::Form_KeyPress(int KeyAscii) {
  if (KeyAscii == keyEscape) around_.windows.end();
}

void frmLoto::Form_DblClick() { around_.windows.end(); }
void frmLoto::closeRequested() { around_.windows.end(); }

void frmLoto::Command1_Click() {
  showBackground();
  cover_.noteUse(around_.clock.minute());
  if (Option1->isChecked()) {
    newColumnFromBag();
  } else {
    newColumnFromList();
  }
  hideOpening();
}

void frmLoto::newColumnFromBag() {
  if (!drawFromBag(around_, Check1->isChecked())) return;
  setCaption(standardTitle);
  animation_.start();
}

void frmLoto::newColumnFromList() {
  if (const auto pick = PickFromList(around_)) {
    ShowColumn();
    setCaption(pickTitle(*pick));
    around_.windows.announce("Kayıt" + withBlank(pick->record) + ": " + drawnNumbers());
  }
}

void frmLoto::Command2_Click() {
  if (desktopTellsPlaces()) {
    place_ = {static_cast<float>(y() * twipsPerPixel), static_cast<float>(x() * twipsPerPixel)};
  }
  writePlace(around_.files, place_);
  around_.windows.end();
}

void frmLoto::Check1_Click() {
  if (!Check1->isChecked()) return;
  SortColumn(around_.state.Drawn);
  ShowColumn();
  const bool rolling = Label1[copyLabel(ballsInColumn)]->isHidden();
  if (!rolling && Picture0->isHidden()) announceColumn();
}

void frmLoto::Timer_Timer(int ball) {
  animation_.tick(ball);
  const bool last = ball == ballsInColumn && !Timer[ballsInColumn]->isActive();
  if (last) announceColumn();
}

/// Has a screen reader say the numbers; those of a finished draw also if the opening picture has
/// come back over them in the meantime.
void frmLoto::announceColumn() { around_.windows.announce("Kolon: " + drawnNumbers()); }

std::string frmLoto::drawnNumbers() const { return listed(around_.state.Drawn); }

void frmLoto::Picture0_Click() {
  around_.boxes.beep();
  hideOpening();
  cover_.noteUse(around_.clock.minute());
}

/// Hides the opening picture. If it has the focus, the button of the next draw gets it.
void frmLoto::hideOpening() {
  if (focusWidget() == Picture0) Command1->setFocus();
  Picture0->hide();
}

void frmLoto::Label1_MouseMove(int Index) {
  QLabel* number = Label1[Index];
  number->setToolTip(number->text());
}

void frmLoto::Timer0_Timer() {
  Label2->setText(toQt(around_.clock.date()));
  Label3->setText(toQt(around_.clock.time()));
  if (Picture0->isHidden() && cover_.isDue(around_.clock.minute())) Picture0->show();
  banner_.tick();
  placeBanner();
}

void frmLoto::ShowColumn() { showNumbers(*this, around_.state.Drawn); }

void frmLoto::mnuSaveRndColumn_Click() { saveRndColumn(around_, *this, Check1->isChecked()); }
void frmLoto::mnuShowRndList_Click() { showRndList(around_, *this); }
void frmLoto::mnuChangeRndFile_Click() { changeRndFile(around_, *this); }
void frmLoto::mnuDeleteRndFile_Click() { deleteRndFile(around_, *this); }
void frmLoto::mnuShowBag_Click() { around_.windows.show("frmBalls"); }
void frmLoto::mnuLoadBag_Click() { loadBagInMainWindow(around_); }
void frmLoto::mnuShowBanko_Click() { around_.windows.show("frmBanko"); }
void frmLoto::mnuLoadBanko_Click() { loadBankoInMainWindow(around_); }
void frmLoto::mnuShow8Columns_Click() { around_.windows.show("frmList"); }
void frmLoto::mnuCreateRndCList_Click() { around_.windows.show("frmRnd"); }
void frmLoto::mnuShowClist_Click() { around_.windows.show("frmComLst"); }
void frmLoto::mnuFKeys_Click() { around_.boxes.message(keyList, keyListTitle); }

void frmLoto::mnuAbout_Click() {
  around_.boxes.beep();
  around_.boxes.message(aboutText(around_.files.currentFolder()), aboutTitle);
}

void frmLoto::showImage(int index, bool visible) { Image1[index]->setVisible(visible); }

void frmLoto::showLabel(int index, bool visible) { Label1[index]->setVisible(visible); }

void frmLoto::setLabel(int index, const std::string& caption) {
  Label1[index]->setText(toQt(caption));
  nameLabel(index);
}

std::string frmLoto::label(int index) const { return fromQt(Label1[index]->text()); }

void frmLoto::enableTimer(int timer, bool enabled) {
  QTimer* ballTimer = Timer[timer];
  if (enabled) {
    ballTimer->start();
  } else {
    ballTimer->stop();
  }
}

void frmLoto::beep() { around_.boxes.beep(); }

}  // namespace karvenis
