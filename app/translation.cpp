#include "translation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

QString install_translation(QCoreApplication &app, QTranslator &translator,
                            const QStringList &ui_languages) {
    for (const QString &language : ui_languages) {
        const QString locale_name = QLocale(language).name();
        if (translator.load(QStringLiteral("lumivox_v5_") + locale_name,
                            QStringLiteral(":/i18n/"))) {
            app.installTranslator(&translator);
            return locale_name;
        }
    }
    return QString();
}
