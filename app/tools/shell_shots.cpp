// Grabs the main window's pages to PNG files, for a look by eye at each brand variant:
//
//     lumivox_shell_shots <output directory> [brand ...]
//
// Runs in the working directory like the program (reads configs/config.ini there, never writes it)
// and needs no display with QT_QPA_PLATFORM=offscreen. Without brands it grabs the build's own.
#include "main_window.h"
#include "panel_registry.h"
#include "panels.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTest>

#include <cstdio>

int main(int argc, char *argv[]) {
    QApplication app(argc, argv);
    QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fputs("usage: lumivox_shell_shots <output directory> [brand ...]\n", stderr);
        return 2;
    }
    const QDir out(args.at(1));
    QDir().mkpath(out.path());
    QStringList brands = args.mid(2);
    if (brands.isEmpty()) {
        brands << QString::fromUtf8(build_info::brand);
    }
    register_panels(panel_registry::instance());

    const char *const pages[] = {"main_menu_butt", "main_menu_butt_2", "main_menu_butt_3"};
    const char *const page_names[] = {"main", "settings", "help"};
    for (const QString &brand : brands) {
        main_window window(brand);
        window.initialise_from_config();
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            return 1;
        }
        for (int i = 0; i < 3; ++i) {
            window.findChild<QPushButton *>(QString::fromLatin1(pages[i]))->click();
            QTest::qWait(50);  // let the layout settle before the grab
            const QString file =
                out.filePath(QStringLiteral("%1_%2.png").arg(brand.toLower(), page_names[i]));
            if (!window.grab().save(file)) {
                return 1;
            }
            std::printf("%s\n", qPrintable(file));
        }
        window.hide();  // no close: the configuration file stays as it was
    }
    return 0;
}
