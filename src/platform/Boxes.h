#pragma once

#include <string>

namespace karvenis {

enum class Icon { none, exclamation, question, critical };
enum class Pointer { normal, hourglass };

/// The title of every box and of the main window if nothing else is said.
inline constexpr char standardTitle[] = " KARVENIS 2005 Randomizer";
/// The title of a box that carries the application's own name only.
inline constexpr char defaultTitle[] = "KARVENIS";
inline constexpr char errorTitle[] = "! HATA !";
inline constexpr char functionKeysTitle[] = " FONKSİYON TUŞLARI";

/// The door to the user's attention: modal boxes, the beep and the pointer's shape. Texts are
/// UTF-8; character 13 in a text is a line break.
class Boxes {
 public:
  virtual ~Boxes() = default;
  /// A box with the button "Tamam"; returns when it is closed.
  virtual void message(const std::string& text, const std::string& title = standardTitle,
                       Icon icon = Icon::none) = 0;
  /// A box with the buttons "Evet" (first, default) and "Hayır" and the question icon; true for
  /// Yes. Esc or closing it is No.
  virtual bool ask(const std::string& text, const std::string& title = standardTitle) = 0;
  /// A box with one line to type into, which holds `preset` at first; while it is empty it shows
  /// `example` in grey. Returns the line, or an empty text when the user cancelled.
  virtual std::string input(const std::string& prompt, const std::string& title,
                            const std::string& preset, const std::string& example) = 0;
  virtual void beep() = 0;
  virtual void pointer(Pointer shape) = 0;

  /// A warning as every window gives it: the beep, then the box with the exclamation icon.
  void warn(const std::string& text, const std::string& title = standardTitle) {
    beep();
    message(text, title, Icon::exclamation);
  }
};

}  // namespace karvenis
