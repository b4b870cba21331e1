#pragma once
// The interface language: one process-wide translator holding cn.qm, en.qm
// or de.qm from the resources.
#include <QString>

class QTranslator;

namespace Translations {

QTranslator &translator();

// Resource file of a language code (0 Chinese, 1 English, 2 German); "" otherwise.
QString fileFor(int code);

// Chooses the start-up language from the settings file, falling back to the
// locale's first two letters (code -1), and writes an automatic choice back
// so it is made only once. Loads it into translator(); the caller installs it.
// Returns the code whose file was loaded, or -1 when none was.
int loadStartupLanguage(const QString &localeName);

// Loads code 0..2 and installs the translator again; other codes do nothing.
bool setLanguage(int code);

} // namespace Translations
