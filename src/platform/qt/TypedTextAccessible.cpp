#include "platform/qt/TypedTextAccessible.h"

#include <QAccessibleWidget>
#include <QFontMetrics>
#include <QLineEdit>

namespace karvenis {
namespace {

class TypedTextAccessible final : public QAccessibleWidget,
                                  public QAccessibleTextInterface,
                                  public QAccessibleEditableTextInterface {
 public:
  explicit TypedTextAccessible(QLineEdit* box)
      : QAccessibleWidget(box, QAccessible::EditableText), box_(box) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface) {
      return static_cast<QAccessibleEditableTextInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.selectableText = true;
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return box_->text();
    const QString told = QAccessibleWidget::text(kind);
    return kind == QAccessible::Description && told.isEmpty() ? box_->placeholderText() : told;
  }
  void setText(QAccessible::Text kind, const QString& text) override {
    if (kind != QAccessible::Value) return QAccessibleWidget::setText(kind, text);
    box_->setText(text);
  }

  // What is selected, of which there is one piece at most

  int selectionCount() const override { return box_->hasSelectedText() ? 1 : 0; }
  void selection(int, int* start, int* end) const override {
    *start = box_->hasSelectedText() ? box_->selectionStart() : 0;
    *end = *start + box_->selectionLength();
  }
  void addSelection(int start, int end) override { setSelection(0, start, end); }
  void removeSelection(int) override { box_->deselect(); }
  void setSelection(int, int start, int end) override { box_->setSelection(start, end - start); }

  int cursorPosition() const override { return box_->cursorPosition(); }
  void setCursorPosition(int position) override { box_->setCursorPosition(position); }

  // The text

  QString text(int start, int end) const override { return box_->text().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(box_->text().size()); }
  QString attributes(int, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }
  void deleteText(int start, int end) override { replaceText(start, end, {}); }
  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override {
    box_->setText(box_->text().replace(start, end - start, text));
  }

  // Where it stands

  QRect characterRect(int offset) const override {
    const QFontMetrics metrics = box_->fontMetrics();
    const auto left = [&](int place) {
      return metrics.horizontalAdvance(box_->text().left(place));
    };
    QRect place = box_->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    place.setLeft(place.center().x() + left(offset) - left(box_->cursorPosition()));
    place.setWidth(left(offset + 1) - left(offset));
    return {box_->mapToGlobal(place.topLeft()), place.size()};
  }
  int offsetAtPoint(const QPoint& point) const override {
    return box_->cursorPositionAt(box_->mapFromGlobal(point));
  }
  void scrollToSubstring(int start, int end) override {
    box_->setCursorPosition(end);
    box_->setCursorPosition(start);
  }

 private:
  QLineEdit* box_;
};

}  // namespace

QAccessibleInterface* makeTypedTextAccessible(QLineEdit* box) {
  return new TypedTextAccessible(box);
}

}  // namespace karvenis
