#include "base/sentence.h"

#include <QCoreApplication>

namespace tindra {

Sentence Sentence::in(const char* context, const char* source) {
  return {QString::fromUtf8(source), QCoreApplication::translate(context, source)};
}

}  // namespace tindra
