#pragma once

#include <QDialog>
#include <QPointer>
#include <functional>

#include "platform/Boxes.h"
#include "platform/qt/Bell.h"

class QWidget;

namespace karvenis {

/// Boxes on the screen: application-modal, plain text, Turkish buttons whatever the system's
/// language.
class QtBoxes final : public Boxes {
 public:
  QtBoxes() = default;
  ~QtBoxes() override;
  QtBoxes(const QtBoxes&) = delete;
  QtBoxes& operator=(const QtBoxes&) = delete;

  /// Runs before a box opens. Returns the window that the box belongs to, or null.
  std::function<QWidget*()> beforeOpening;
  /// Runs when a box has closed.
  std::function<void()> afterClosing;

  void message(const std::string& text, const std::string& title, Icon icon) override;
  bool ask(const std::string& text, const std::string& title) override;
  std::string input(const std::string& prompt, const std::string& title, const std::string& preset,
                    const std::string& example) override;
  void beep() override;
  void pointer(Pointer shape) override;

 private:
  QWidget* announceOpening() const;
  int serve(QDialog* box);

  Bell bell_;
  QPointer<QDialog> last_;  // the box that was answered last; its owner may delete it
};

}  // namespace karvenis
