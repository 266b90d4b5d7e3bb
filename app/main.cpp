#include "main_window.h"
#include "program.h"

#include <QApplication>
#include <QTranslator>

int main(int argc, char *argv[]) {
    QApplication app(argc, argv);
    read_command_line(app);
    QTranslator translator;
    prepare_program(app, translator);

    main_window window;
    window.initialise_from_config();
    window.show();
    return app.exec();
}
