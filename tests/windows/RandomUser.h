#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "platform/qt/QtBoxes.h"
#include "windows/WholeProgram.h"

namespace karvenis {

/// Somebody who presses and clicks whatever comes to hand in a program that serves him from its
/// own event loop, and who answers every box at random.
class RandomUser {
 public:
  RandomUser(WholeProgram& program, std::mt19937& random, std::function<void()> afterStep);

  /// Works until the program ends or `steps` are done, then closes every window by its frame.
  /// Returns the program's exit status.
  int work(int& steps);
  /// What was done last.
  const std::string& last() const { return last_; }
  /// How many boxes came.
  int boxes() const { return boxes_; }
  /// Faults that the program told.
  const std::vector<std::string>& faults() const { return faults_; }

 private:
  void turn();
  void act();
  void leave();
  void answer(QWidget* box);
  void answerInput(QWidget* box);
  void disturb();

  void key();
  void type();
  void clickAnywhere();
  void clickControl();
  void chooseEntry();
  void resize();
  void closeByFrame();
  void letTimePass();

  std::size_t below(std::size_t count) { return random_() % count; }
  bool oneIn(std::size_t count) { return below(count) == 0; }
  std::vector<Form*> windows() const;
  Form* anyWindow();
  Form* bringToFront();
  QString anyText();
  void note(std::string what) { last_ = std::move(what); }

  WholeProgram& program_;
  std::mt19937& random_;
  std::function<void()> afterStep_;
  QTimer next_;
  int* steps_ = nullptr;
  bool acting_ = false;
  const QWidget* box_ = nullptr;        // the box that waits
  const QWidget* answering_ = nullptr;  // the one that is being answered
  int turnsOfBox_ = 0;
  int boxes_ = 0;
  std::string last_;
  std::vector<std::string> faults_;
};

}  // namespace karvenis
