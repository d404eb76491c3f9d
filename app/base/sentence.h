// Sentence: one sentence for a person, kept in English for the log and bug reports, and in the
// user's language for the windows. It is made where its words are marked for translation:
//   Sentence(QT_TR_NOOP("UPower went away"), tr)   in a Q_OBJECT class, translated in its context
//   Sentence::in("Backends", QT_TRANSLATE_NOOP("Backends", "no system bus"))
// and arg() fills its %1, %2… in both.
#pragma once

#include <QString>

namespace tindra {

class Sentence {
 public:
  // A class's tr(): its translation context.
  using Translate = QString (*)(const char* source, const char* disambiguation, int n);

  Sentence() = default;
  Sentence(const char* source, Translate translate)
      : english_(QString::fromUtf8(source)), translated_(translate(source, nullptr, -1)) {}
  // With a count for %n and the language's plural forms.
  Sentence(const char* source, Translate translate, int n)
      : english_(QString::fromUtf8(source).replace(QLatin1String("%n"), QString::number(n))),
        translated_(translate(source, nullptr, n)) {}
  // Marked with QT_TRANSLATE_NOOP in `context`.
  static Sentence in(const char* context, const char* source);
  // Words that are not Tindra's to translate: a service's own error message, a path.
  static Sentence verbatim(const QString& text) { return {text, text}; }

  template <class... Values>
  Sentence arg(const Values&... values) const {
    return {english_.arg(values...), translated_.arg(values...)};
  }
  // Another sentence inside this one, in the same language.
  Sentence arg(const Sentence& inner) const {
    return {english_.arg(inner.english_), translated_.arg(inner.translated_)};
  }

  // This sentence, `separator`, then `next`: "calendar.ics: not read yet; 3 events".
  Sentence followedBy(const Sentence& next, const QString& separator = QStringLiteral("; ")) const {
    return {english_ + separator + next.english_, translated_ + separator + next.translated_};
  }

  const QString& english() const { return english_; }
  const QString& translated() const { return translated_; }
  bool isEmpty() const { return english_.isEmpty(); }

  friend bool operator==(const Sentence& a, const Sentence& b) { return a.english_ == b.english_; }

 private:
  Sentence(QString english, QString translated)
      : english_(std::move(english)), translated_(std::move(translated)) {}

  QString english_;
  QString translated_;
};

}  // namespace tindra
