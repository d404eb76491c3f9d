// GameListEditor: the applications treated as games, one identifier a line. The setting keeps
// them as text with a line each; text written elsewhere with commas, semicolons or spaces
// between the identifiers is shown a line each too. What is typed is kept as typed, piece by
// piece, so nothing vanishes while editing; the notch ignores pieces that are no identifier.
#pragma once

#include <QPlainTextEdit>
#include <QString>

namespace tindra {

class GameListEditor : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit GameListEditor(QWidget* parent = nullptr);

  // Shows the stored text a piece a line.
  void setStored(const QString& stored);
  // The text to store: the pieces, a line each, without empty lines.
  QString stored() const { return asLines(toPlainText()); }
  static QString asLines(const QString& text);

 signals:
  // Left after a change.
  void edited();

 protected:
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QString shown_;
};

}  // namespace tindra
