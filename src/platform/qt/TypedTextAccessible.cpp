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
  explicit TypedTextAccessible(QLineEdit* field)
      : QAccessibleWidget(field, QAccessible::EditableText), field_(field) {}

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
    if (kind == QAccessible::Value) return field_->text();
    const QString told = QAccessibleWidget::text(kind);
    return kind == QAccessible::Description && told.isEmpty() ? field_->placeholderText() : told;
  }
  void setText(QAccessible::Text kind, const QString& text) override {
    if (kind != QAccessible::Value) return QAccessibleWidget::setText(kind, text);
    field_->setText(text);
  }

  // The selection: one range at most

  int selectionCount() const override { return field_->hasSelectedText() ? 1 : 0; }
  void selection(int, int* start, int* end) const override {
    *start = field_->hasSelectedText() ? field_->selectionStart() : 0;
    *end = *start + field_->selectionLength();
  }
  void addSelection(int start, int end) override { field_->setSelection(start, end - start); }
  void removeSelection(int) override { field_->deselect(); }
  void setSelection(int, int start, int end) override { addSelection(start, end); }

  int cursorPosition() const override { return field_->cursorPosition(); }
  void setCursorPosition(int position) override { field_->setCursorPosition(position); }

  // The text

  QString text(int start, int end) const override { return field_->text().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(field_->text().size()); }
  QString attributes(int, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }
  void deleteText(int start, int end) override { replaceText(start, end, {}); }
  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override {
    field_->setText(field_->text().replace(start, end - start, text));
  }

  // Positions on the screen

  QRect characterRect(int offset) const override {
    const QFontMetrics metrics = field_->fontMetrics();
    const auto left = [&](int place) {
      return metrics.horizontalAdvance(field_->text().left(place));
    };
    QRect place = field_->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    place.setLeft(place.center().x() + left(offset) - left(field_->cursorPosition()));
    place.setWidth(left(offset + 1) - left(offset));
    return {field_->mapToGlobal(place.topLeft()), place.size()};
  }
  int offsetAtPoint(const QPoint& point) const override {
    return field_->cursorPositionAt(field_->mapFromGlobal(point));
  }
  void scrollToSubstring(int start, int end) override {
    field_->setCursorPosition(end);
    field_->setCursorPosition(start);
  }

 private:
  QLineEdit* field_;
};

}  // namespace

QAccessibleInterface* makeTypedTextAccessible(QLineEdit* field) {
  return new TypedTextAccessible(field);
}

}  // namespace karvenis
