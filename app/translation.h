#pragma once

#include <QString>
#include <QStringList>

class QCoreApplication;
class QTranslator;

// Loads into `translator` the first of ":/i18n/lumivox_v5_<locale name>" for the given UI languages
// (in order) and installs it. Returns the locale name that loaded, or an empty string when none
// did, which leaves the program's own texts.
QString install_translation(QCoreApplication &app, QTranslator &translator,
                            const QStringList &ui_languages);
