#pragma once

#include <QMessageBox>

class QLabel;
class QScrollArea;

namespace karvenis {

/// A box with a text of any length. A line has its full width up to what reads well; a text that is
/// too high then takes the screen's width, and what is still too high is scrolled, so that the
/// buttons are always to be seen.
class MessageBox final : public QMessageBox {
  Q_OBJECT

 public:
  MessageBox(const QString& text, const QString& title, QMessageBox::Icon icon, QWidget* owner);

 protected:
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void layOut();
  void sizeText(const QSize& room, int least);
  int heightAt(int width) const;

  QLabel* label_;          // the text
  QScrollArea* scroller_;  // holds it
  bool wraps_ = false;     // the text has lines that are broken
};

}  // namespace karvenis
