#include "main_window.h"
#include "panel_registry.h"
#include "panels.h"
#include "translation.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

int main(int argc, char *argv[]) {
    QApplication app(argc, argv);
    QTranslator translator;
    install_translation(app, translator, QLocale().uiLanguages());

    // Every device created from now on finds its panel class here.
    register_panels(panel_registry::instance());

    main_window window;
    window.initialise_from_config();
    window.show();
    return app.exec();
}
