// The demo's look without a display: runs the program in the working directory as `lumivox` does
// (configuration file, automatic connection, polling), waits until every configured device has
// told its type and the panels have had time to fill, saves a picture of the main window (as tall
// as its whole panel list) and closes it as the user would (the configuration file is saved).
//
// Given a second picture, the trend window follows the devices from the start; after the first
// picture every panel is operated as an operator would (set-points raised and confirmed, the TEC
// and emission switched on), and once the devices have had time to ramp and settle the trend
// window is saved too.
//
// Given a directory as well, everything is recorded there as `lumivox --record` does.
//
//     lumivox_demo_shot <picture.png> [seconds, 20 by default] [trends.png] [recording directory]
//
// Run it with QT_QPA_PLATFORM=offscreen. Exit code 0 when the picture was saved.
#include "main_window.h"
#include "message_route.h"
#include "panel_base.h"
#include "program.h"
#include "recorder.h"
#include "trend_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QScrollArea>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <cstdio>

namespace {

// Every device has told its type and every panel has its configuration values, so the panels
// have loaded their set-points.
bool every_panel_filled(const main_window &window) {
    const QList<device *> &devices = window.devices();
    return std::all_of(devices.begin(), devices.end(), [](const device *dev) {
        const auto *panel = qobject_cast<const panel_base *>(dev->current_panel());
        return dev->type_id() >= 0 && (!panel || panel->all_parameters_known());
    });
}

// What an operator does to make the readings move: the main set-point to 40 % of its range, a
// temperature set-point four degrees from what its box shows, each confirmed, then the TEC and
// the emission on.
void operate(const main_window &window) {
    set_message_answerer([](const message_request &) { return QMessageBox::Yes; });
    for (const device *dev : window.devices()) {
        auto *panel = qobject_cast<panel_base *>(dev->current_panel());
        if (!panel) {
            continue;
        }
        bool main_setpoint = true;
        for (QWidget *widget : panel->setpoint_widgets()) {
            auto *spin = qobject_cast<QDoubleSpinBox *>(widget);
            if (spin && main_setpoint) {
                spin->setValue(spin->minimum() + 0.4 * (spin->maximum() - spin->minimum()));
                QTest::keyClick(spin, Qt::Key_Return);
            } else if (spin && spin->value() >= 10 && spin->value() <= 50) {
                // A temperature set-point: four degrees above what the box shows.
                spin->setValue(spin->value() + 4);
                QTest::keyClick(spin, Qt::Key_Return);
            }
            main_setpoint = false;
        }
        for (const char *name : {"chb_tec", "on_off_button", "pb_on_off"}) {
            auto *button = panel->findChild<QAbstractButton *>(QLatin1String(name));
            if (button && button->isEnabled() && !button->isChecked()) {
                button->click();
            }
        }
    }
    set_message_answerer({});
}

// Makes the window tall enough for the whole panel list, so the picture shows every panel rather
// than the first few above the scroll area's fold.
void show_every_panel(main_window &window) {
    auto *area = window.findChild<QScrollArea *>(QStringLiteral("devices_scroll"));
    if (!area || !area->widget()) {
        return;
    }
    const int hidden = area->widget()->sizeHint().height() - area->viewport()->height();
    if (hidden > 0) {
        window.resize(window.width(), window.height() + hidden);
        QTest::qWait(300);  // a few poll cycles repaint what the resize uncovered
    }
}

}  // namespace

int main(int argc, char *argv[]) {
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fputs(
            "usage: lumivox_demo_shot <picture.png> [seconds] [trends.png] [recording directory]\n",
            stderr);
        return 2;
    }
    const QString picture = args.at(1);
    const int limit_ms = (args.size() > 2 ? args.at(2).toInt() : 20) * 1000;
    const QString trend_picture = args.value(3);
    const QString recording = args.value(4);
    // Long enough for the drive to ramp and the temperatures to settle on the new set-points.
    constexpr int operate_ms = 15000;
    // After the last panel is filled, a few poll cycles show the loaded set-points.
    constexpr int fill_ms = 1500;

    QTranslator translator;
    prepare_program(app, translator);
    main_window window;
    window.initialise_from_config();
    window.resize(window.width(), 900);  // room for a few panels below the header
    recorder rec;
    if (!recording.isEmpty()) {
        record_window(window, rec, recording);
    }
    window.show();
    trend_window *trends = trend_picture.isEmpty() ? nullptr : window.open_trends();

    QElapsedTimer clock;
    clock.start();
    while (!every_panel_filled(window) && clock.elapsed() < limit_ms - fill_ms) {
        QTest::qWait(100);
    }
    if (!every_panel_filled(window)) {
        std::fputs("lumivox_demo_shot: not every panel filled; the picture shows what did\n",
                   stderr);
    }
    QTest::qWait(fill_ms);
    show_every_panel(window);
    bool saved = window.grab().save(picture);
    if (trends) {
        operate(window);
        QTest::qWait(operate_ms);
        trends->set_span(60 * 1000);
        saved = trends->grab().save(trend_picture) && saved;
    }
    window.close();
    if (!saved) {
        std::fprintf(stderr, "lumivox_demo_shot: cannot write %s\n", qPrintable(picture));
        return 1;
    }
    return 0;
}
