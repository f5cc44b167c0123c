#pragma once

#include <string>

namespace karvenis {

enum class Icon { none, exclamation, question, critical };  ///< of a box
enum class Pointer { normal, hourglass };                   ///< shapes of the mouse pointer

/// The title of the main window and of every box that has none of its own.
inline constexpr char standardTitle[] = " KARVENIS 2005 Randomizer";
/// The application's bare name, the title of one box.
inline constexpr char bareTitle[] = "KARVENIS";
inline constexpr char errorTitle[] = "! HATA !";
inline constexpr char functionKeysTitle[] = " FONKSİYON TUŞLARI";

/// The door to the user: modal boxes, the beep and the shape of the pointer. Texts are UTF-8;
/// character 13 in a text is a line break. Nothing here fails.
class Boxes {
 public:
  virtual ~Boxes() = default;
  /// Shows a box with the button "Tamam". Returns when it is closed.
  virtual void message(const std::string& text, const std::string& title = standardTitle,
                       Icon icon = Icon::none) = 0;
  /// Shows a box with the buttons "Evet" (the first and the default one) and "Hayır" and the
  /// question icon. Returns true for Yes. Esc and closing the box mean No.
  [[nodiscard]] virtual bool ask(const std::string& text,
                                 const std::string& title = standardTitle) = 0;
  /// Shows a box with one line to type into. The line holds `preset` at first; while it is empty,
  /// it shows `example` in grey. Returns the line, or an empty text if the user cancels.
  [[nodiscard]] virtual std::string input(const std::string& prompt, const std::string& title,
                                          const std::string& preset,
                                          const std::string& example) = 0;
  /// Gives one beep, and does not wait for its end.
  virtual void beep() = 0;
  /// Shows the pointer in `shape` over all windows of the program, until the next call.
  virtual void pointer(Pointer shape) = 0;

  /// Warns as every window does: the beep, then the box with the exclamation icon.
  void warn(const std::string& text, const std::string& title = standardTitle) {
    beep();
    message(text, title, Icon::exclamation);
  }
};

}  // namespace karvenis
