#include "shell/game_list_editor.h"

#include <QFontMetrics>
#include <QRegularExpression>

namespace tindra {

GameListEditor::GameListEditor(QWidget* parent) : QPlainTextEdit(parent) {
  setPlaceholderText(QStringLiteral("org.supertuxproject.SuperTux"));
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setTabChangesFocus(true);
  // Room for a few identifiers; more scroll.
  setFixedHeight(fontMetrics().lineSpacing() * 5 + 2 * frameWidth() + 8);
}

QString GameListEditor::asLines(const QString& text) {
  // The separators the notch's own reading of the list knows, Unicode's spaces among them.
  static const QRegularExpression separators(QStringLiteral("[\\s,;]+"),
                                             QRegularExpression::UseUnicodePropertiesOption);
  return text.split(separators, Qt::SkipEmptyParts).join(u'\n');
}

void GameListEditor::setStored(const QString& stored) {
  shown_ = asLines(stored);
  if (toPlainText() != shown_) setPlainText(shown_);
}

void GameListEditor::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  if (stored() != shown_) {
    shown_ = stored();
    emit edited();
  }
}

}  // namespace tindra
