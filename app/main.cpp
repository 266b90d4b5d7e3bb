#include "device_service.h"
#include "main_window.h"
#include "program.h"
#include "publish_window.h"
#include "publisher.h"
#include "recorder.h"
#include "trend_window.h"
#include "working_place.h"

#include <QApplication>
#include <QSettings>
#include <QTranslator>

#include <memory>

int main(int argc, char *argv[]) {
    if (const int code = answer_help(argc, argv); code >= 0) {
        return code;
    }
    device_service::prefer_offscreen(argc, argv);
    if (headless_requested(argc, argv)) {
        // Nothing is drawn without a window: Qt's offscreen platform needs no display.
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    QTranslator translator;
    prepare_program(app, translator);
    program_options options;
    const std::unique_ptr<QSettings> settings(open_program_settings());
    if (const int code = take_command_line(app.arguments(), *settings, &options); code >= 0) {
        return code;
    }
    if (device_service::requested(options)) {
        return device_service::run(options);
    }
    // Outlives the window: the simulator of a demo runs until the window has closed.
    demo_run demo;
    if (const int code = start_demo(options, demo); code >= 0) {
        return code;
    }

    if (!options.trends_file.isEmpty()) {
        trend_window trends;
        trends.show();
        trends.open_file(options.trends_file);
        return app.exec();
    }
    main_window window;
    window.initialise_from_config();
    recorder rec;
    if (!options.record_dir.isEmpty()) {
        record_window(window, rec, options.record_dir);
    }
    publisher pub;
    if (!options.mqtt_url.isEmpty()) {
        publish_window(window, pub, options, *settings);
    }
    std::unique_ptr<remote_service> remote;
    if (!options.listen.isEmpty()) {
        remote = serve_window(window, options, *settings);
    }
    if (options.headless) {
        const int code = app.exec();
        // A signal closes the windows on show; this one never was, so it is closed here, which
        // saves the configuration as closing the window does.
        window.close();
        return code;
    }
    window.show();
    if (options.trends) {
        window.open_trends();
    }
    if (options.monitor) {
        window.open_monitor();
    }
    return app.exec();
}
