#pragma once

#include <QMessageBox>

class QLabel;
class QScrollArea;

namespace karvenis {

/// A box with a text of any length. Lines are broken at a width that reads well. If the text is
/// then too high for the screen, it takes the screen's width; if it still is, it is scrolled. The
/// buttons are always visible.
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
