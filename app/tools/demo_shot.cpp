// The demo's look without a display: runs the program in the working directory as `lumivox` does
// (configuration file, automatic connection, polling), waits until every configured device has
// told its type and the panels have had time to fill, saves a picture of the main window and
// closes it as the user would (the configuration file is saved).
//
//     lumivox_demo_shot <picture.png> [seconds to wait at most, 20 by default]
//
// Run it with QT_QPA_PLATFORM=offscreen. Exit code 0 when the picture was saved.
#include "main_window.h"
#include "program.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <cstdio>

namespace {

bool every_type_known(const main_window &window) {
    const QList<device *> &devices = window.devices();
    return std::all_of(devices.begin(), devices.end(),
                       [](const device *dev) { return dev->type_id() >= 0; });
}

}  // namespace

int main(int argc, char *argv[]) {
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fputs("usage: lumivox_demo_shot <picture.png> [seconds]\n", stderr);
        return 2;
    }
    const QString picture = args.at(1);
    const int limit_ms = (args.size() > 2 ? args.at(2).toInt() : 20) * 1000;
    // After the last type is known, the panels' first sync and a few poll cycles fill the values.
    constexpr int fill_ms = 4000;

    QTranslator translator;
    prepare_program(app, translator);
    main_window window;
    window.initialise_from_config();
    window.resize(window.width(), 900);  // room for a few panels below the header
    window.show();

    QElapsedTimer clock;
    clock.start();
    while (!every_type_known(window) && clock.elapsed() < limit_ms - fill_ms) {
        QTest::qWait(100);
    }
    if (!every_type_known(window)) {
        std::fputs("lumivox_demo_shot: not every device answered; the picture shows what did\n",
                   stderr);
    }
    QTest::qWait(fill_ms);
    const bool saved = window.grab().save(picture);
    window.close();
    if (!saved) {
        std::fprintf(stderr, "lumivox_demo_shot: cannot write %s\n", qPrintable(picture));
        return 1;
    }
    return 0;
}
