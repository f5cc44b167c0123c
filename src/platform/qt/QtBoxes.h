#pragma once

#include <functional>

#include "platform/Boxes.h"
#include "platform/qt/Bell.h"

class QWidget;

namespace karvenis {

/// Boxes on the screen: application-modal, plain text, Turkish buttons whatever the system's
/// language.
class QtBoxes final : public Boxes {
 public:
  /// Runs before a box opens.
  std::function<void()> beforeBox;
  /// The window that a box belongs to; null: the one that has the focus.
  std::function<QWidget*()> owner;

  void message(const std::string& text, const std::string& title, Icon icon) override;
  bool ask(const std::string& text, const std::string& title) override;
  std::string input(const std::string& prompt, const std::string& title,
                    const std::string& preset) override;
  void beep() override;
  void pointer(Pointer shape) override;

 private:
  QWidget* prepare() const;

  Bell bell_;
};

}  // namespace karvenis
