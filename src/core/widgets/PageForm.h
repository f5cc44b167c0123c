#pragma once

#include "core/ListPage.h"
#include "platform/qt/Form.h"
#include "platform/qt/Surface.h"

namespace karvenis {

/// The base of the windows that page through a column list. Such a window has no controls: it
/// prints a page of text, answers keys, and goes a page on when it is clicked. The white page keeps
/// its size and stands in the upper middle of its window, which is never smaller and shows its
/// whole title.
class PageForm : public Form {
  Q_OBJECT

 protected:
  explicit PageForm(Windows& windows);

  void Form_KeyDown(int KeyCode, int Shift) override;
  void Form_Click() override;
  void paintEvent(QPaintEvent* event) override;

  /// Does what the key asks for; Esc does not come here. Returns whether the page must be redrawn.
  virtual bool answerKey(int KeyCode) = 0;
  /// Fits page_ to the list, prints it on the surface, and shows its title.
  virtual void printPage(TextSurface& surface) = 0;

  /// Prints the page, and lets a screen reader know if it is another one.
  void redraw();

  ListPage page_;

 private:
  Surface* surface_;  // the page
};

}  // namespace karvenis
