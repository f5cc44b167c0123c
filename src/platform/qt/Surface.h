#pragma once

#include <QWidget>
#include <vector>

#include "platform/TextSurface.h"
#include "platform/qt/Letters.h"

namespace karvenis {

/// A widget that text is printed on. It keeps what was printed and replays it when it must be
/// painted. Assistive technology reads its lines, in the order they were printed, as its children.
class Surface final : public QWidget, public TextSurface {
  Q_OBJECT

 public:
  /// A surface for letters of `textPixels` (device independent). The letters grow with the
  /// desktop's own, and all lengths in twips with them, as far as the screen has room for `lines`
  /// lines of text and their margins.
  Surface(QWidget* parent, int lines, int textPixels = designedLetters);

  void cls() override;
  double currentX() const override { return x_; }
  void currentX(double twips) override { x_ = twips; }
  void currentY(double twips) override { y_ = twips; }
  void foreColor(QBColor colour) override { colour_ = colour; }
  void letterWidth(int percent) override;
  void print(const std::string& text) override;
  void printLine(const std::string& text) override;

  struct Line {
    QString text;
    double top;  // twips
  };
  const std::vector<Line>& lines() const { return lines_; }
  /// Sets which page of a list has been printed; if it is another one, a screen reader hears it.
  void setPage(int number);
  /// Line `index` as it is spoken. Precondition: `index` is below lines().size().
  [[nodiscard]] QString spokenLine(std::size_t index) const;
  /// How often the surface has been cleared.
  [[nodiscard]] int timesCleared() const { return timesCleared_; }
  /// Where line `index` stands on the widget. Precondition: `index` is below lines().size().
  [[nodiscard]] QRect lineRect(std::size_t index) const;
  /// Pixels (device independent) of a length in twips (see Twips.h).
  [[nodiscard]] double pixels(double twips) const;
  /// Twips of one line of text.
  [[nodiscard]] double lineHeight() const;
  /// Gives the surface a fixed size: `right` + `margin` wide, and as high as its lines with
  /// `margin` above and below. `right` is where the longest line ends. All in twips.
  void fixSize(double margin, double right);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Run {
    double x, y;  // twips, the upper left corner
    QBColor colour;
    QString text;
  };
  void note(const QString& text);
  void tellFirstLine();

  double twips(double pixels) const;

  int linesOfPage_;
  double zoom_ = 1;
  double x_ = 0;
  double y_ = 0;
  QBColor colour_ = QBColor::blue;
  std::vector<Run> runs_;
  std::vector<Line> lines_;
  bool lineOpen_ = false;
  int timesCleared_ = 0;
  int page_ = 0;
  QString heading_;  // what is spoken before the first line
};

}  // namespace karvenis
