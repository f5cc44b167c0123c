#include "platform/qt/SurfaceAccessible.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <map>

#include "platform/qt/Surface.h"

namespace karvenis {
namespace {

/// One printed line. The first one has the focus of its list.
class LineAccessible final : public QAccessibleInterface {
 public:
  LineAccessible(Surface* surface, int index) : surface_(surface), index_(index) {}

  bool isValid() const override {
    return surface_ != nullptr && static_cast<std::size_t>(index_) < surface_->lines().size();
  }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(surface_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name || !isValid()) return {};
    return surface_->spokenLine(static_cast<std::size_t>(index_));
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    if (!isValid()) return {};
    const QRect line = surface_->lineRect(static_cast<std::size_t>(index_));
    return {surface_->mapToGlobal(line.topLeft()), line.size()};
  }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.readOnly = true;
    state.focusable = true;
    state.focused = index_ == 0 && surface_ != nullptr && surface_->hasFocus();
    return state;
  }

 private:
  QPointer<Surface> surface_;
  int index_;
};

class SurfaceAccessible final : public QAccessibleWidget {
 public:
  explicit SurfaceAccessible(Surface* surface)
      : QAccessibleWidget(surface, QAccessible::List), surface_(surface) {}
  ~SurfaceAccessible() override { forget(); }

  int childCount() const override { return static_cast<int>(surface_->lines().size()); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    if (timesCleared_ != surface_->timesCleared()) forget();
    timesCleared_ = surface_->timesCleared();
    const auto known = lines_.find(index);
    if (known != lines_.end()) return QAccessible::accessibleInterface(known->second);
    auto* line = new LineAccessible(surface_, index);
    lines_[index] = QAccessible::registerAccessibleInterface(line);
    return line;
  }
  int indexOfChild(const QAccessibleInterface* wanted) const override {
    for (const auto& [index, id] : lines_) {
      if (QAccessible::accessibleInterface(id) == wanted) return index;
    }
    return -1;
  }

 private:
  void forget() const {
    for (const auto& [index, id] : lines_) QAccessible::deleteAccessibleInterface(id);
    lines_.clear();
  }

  Surface* surface_;
  mutable std::map<int, QAccessible::Id> lines_;
  mutable int timesCleared_ = 0;
};

}  // namespace

QAccessibleInterface* makeSurfaceAccessible(Surface* surface) {
  return new SurfaceAccessible(surface);
}

}  // namespace karvenis
