#pragma once

#include "platform/qt/Form.h"
#include "platform/qt/Surface.h"

namespace karvenis {

/// The base of the windows that page through a list. Such a window has no controls: it prints a
/// page of text, answers keys, and goes a page on when it is clicked. The white page keeps its size
/// and stands in the upper middle of its window, which is never smaller and shows its whole title.
class PageForm : public Form {
  Q_OBJECT

 protected:
  /// `lines` are those of a full page.
  PageForm(Windows& windows, const char* name, int lines);

  void Form_KeyDown(int KeyCode, int Shift) override;
  void Form_Click() override;
  void paintEvent(QPaintEvent* event) override;

  /// Runs the command of a key that does not close the window. Returns whether the page must be
  /// redrawn.
  virtual bool command(int KeyCode) = 0;
  /// Goes a page on, without drawing it.
  virtual void nextPage() = 0;
  /// Prints the current page.
  virtual void redraw() = 0;

  /// Gives the page its size and its place; the measures are those of Surface::fix().
  void fix(double margin, double right);
  Surface& surface() const { return *surface_; }

 private:
  Surface* surface_;  // the page
};

}  // namespace karvenis
