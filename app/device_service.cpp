#include "device_service.h"

#include "device.h"
#include "device_settings.h"
#include "main_window.h"
#include "panel_base.h"
#include "program.h"
#include "serial_connector.h"
#include "settings_actions.h"
#include "settings_file.h"
#include "settings_restore.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTimer>

#include <cstdio>
#include <cstring>
#include <functional>
#include <optional>

namespace device_service {

namespace {

QString tr(const char *text) {
    return QCoreApplication::translate("device_service", text);
}

void say(const QString &line) {
    std::fprintf(stdout, "%s\n", qPrintable(line));
    std::fflush(stdout);
}

void complain(const QString &line) {
    std::fprintf(stderr, "%s\n", qPrintable(line));
}

// The program's own debug chatter (connection and panel notes) is not what a service script reads;
// warnings and the wire log (when asked for) still go to standard error.
QtMessageHandler previous_handler = nullptr;
void quiet_debug(QtMsgType type, const QMessageLogContext &context, const QString &text) {
    if (type == QtDebugMsg && context.category && std::strcmp(context.category, "default") == 0) {
        return;
    }
    previous_handler(type, context, text);
}

// Runs the event loop until `ready()` holds (checked every 50 ms) or `timeout_s` have passed.
bool wait_until(const std::function<bool()> &ready, int timeout_s) {
    if (ready()) {
        return true;
    }
    QEventLoop loop;
    QTimer check;
    QElapsedTimer waited;
    waited.start();
    QObject::connect(&check, &QTimer::timeout, &loop, [&] {
        if (ready() || waited.elapsed() >= qint64(timeout_s) * 1000) {
            loop.quit();
        }
    });
    check.start(50);
    loop.exec();
    return ready();
}

// The device's panel once every configuration row has been reported, or null.
panel_base *complete_panel(const device *dev) {
    auto *panel = dynamic_cast<panel_base *>(dev->current_panel());
    return panel && panel->all_parameters_known() ? panel : nullptr;
}

QString device_name(const device *dev) {
    return tr("CAN ID %1 \"%2\"").arg(dev->can_id()).arg(dev->name());
}

// Why a device has not given every row.
QString why_incomplete(const device *dev) {
    const auto *panel = dynamic_cast<const panel_base *>(dev->current_panel());
    if (dev->type_id() < 0) {
        return tr("not found (no answer)");
    }
    if (!panel) {
        return tr("device type %1 has no configuration rows this program knows").arg(dev->type_id());
    }
    int reported = 0;
    for (const parameter_record &record : panel->parameters()) {
        reported += panel->plan().is_unknown(record.value) ? 0 : 1;
    }
    return tr("incomplete: %1 of %2 rows reported").arg(reported).arg(panel->parameters().size());
}

// The window with the configured devices, connected; null (after saying why) when there is no
// configuration to connect with.
struct device_set {
    std::unique_ptr<main_window> window;
    QString port;
};

bool open_device_set(device_set *set) {
    const QString config = main_window::config_file;
    if (!QFileInfo(config).isFile()) {
        complain(tr("There is no %1 in %2: run where the program's configuration is.")
                     .arg(config, QDir::currentPath()));
        return false;
    }
    const settings_file::contents stored = settings_file::read(config);
    set->port = stored.prev_port;
    set->window = std::make_unique<main_window>();
    set->window->initialise_from_config();
    if (!stored.autoconnection_mode) {
        set->window->on_connect_button_clicked();  // "as configured" includes the port
    }
    return true;
}

void say_port_state(const device_set &set) {
    if (!set.window->serial_link()->polling_ready()) {
        complain(tr("The serial port \"%1\" did not open.").arg(set.port));
    }
}

int backup(const program_options &options) {
    const QString dir = QFileInfo(options.backup_dir).absoluteFilePath();
    if (!QDir().mkpath(dir) || !QFileInfo(dir).isWritable()) {
        complain(tr("%1 cannot be written: nothing saved.").arg(dir));
        return refused;
    }
    device_set set;
    if (!open_device_set(&set)) {
        return usage;
    }
    const QList<device *> &devices = set.window->devices();
    wait_until(
        [&devices] {
            for (const device *dev : devices) {
                if (!complete_panel(dev)) {
                    return false;
                }
            }
            return true;
        },
        options.timeout_s);

    int missing = 0;
    for (const device *dev : devices) {
        const panel_base *panel = complete_panel(dev);
        if (!panel) {
            complain(tr("%1: %2").arg(device_name(dev), why_incomplete(dev)));
            ++missing;
            continue;
        }
        const device_settings::snapshot settings = settings_actions::snapshot_of(*panel);
        const QString path = QDir(dir).filePath(device_settings::file_name(settings));
        QString error;
        if (!device_settings::write_file(path, settings, &error)) {
            complain(tr("%1: %2 could not be written: %3").arg(device_name(dev), path, error));
            return refused;
        }
        say(tr("saved %1 (%2, %3)")
                .arg(path, dev->name(), device_settings::row_count(settings.rows.size())));
    }
    if (missing > 0) {
        say_port_state(set);
        complain(tr("%1 of %2 devices not saved.").arg(missing).arg(devices.size()));
        return not_found;
    }
    return done;
}

void print_comparison(const device_settings::comparison &compared) {
    int width = 3;
    for (const device_settings::compared_row &row : compared.rows) {
        width = qMax(width, row.label.size());
    }
    say(QStringLiteral("  %1 %2 %3").arg(tr("Row"), -width).arg(tr("Device"), 14).arg(tr("File"), 14));
    for (const device_settings::compared_row &row : compared.rows) {
        QString mark;
        if (!row.in_file()) {
            mark = tr("not in the file: left as it is");
        } else if (row.differs() && row.is_can_id()) {
            mark = tr("differs: the CAN ID row is never written here");
        } else if (row.differs()) {
            mark = tr("changed");
        }
        say(QStringLiteral("%1 %2 %3 %4  %5")
                .arg(row.differs() && !row.is_can_id() ? QStringLiteral("*") : QStringLiteral(" "))
                .arg(row.label, -width)
                .arg(device_settings::shown_value(row.device_wire, row.decimals), 14)
                .arg(row.in_file() ? device_settings::shown_value(*row.file_wire, row.decimals)
                                   : QStringLiteral("-"),
                     14)
                .arg(mark)
                .remove(QRegularExpression(QStringLiteral("\\s+$"))));
    }
    for (const QString &label : compared.only_in_file) {
        say(tr("  %1: in the file, not in this device: not written").arg(label));
    }
}

int restore(const program_options &options) {
    const device_settings::read_result read = device_settings::read_file(options.restore_file);
    if (!read.settings) {
        complain(tr("%1 cannot be loaded: %2. Nothing was written.")
                     .arg(options.restore_file, read.error));
        return refused;
    }
    const device_settings::snapshot &file = *read.settings;
    device_set set;
    if (!open_device_set(&set)) {
        return usage;
    }
    const device *dev = nullptr;
    for (const device *candidate : set.window->devices()) {
        if (candidate->can_id() == options.can_id) {
            dev = candidate;
        }
    }
    if (!dev) {
        complain(tr("CAN ID %1 is not in the device table of %2.")
                     .arg(options.can_id)
                     .arg(main_window::config_file));
        return usage;
    }
    if (!wait_until([dev] { return complete_panel(dev) != nullptr; }, options.timeout_s)) {
        complain(tr("%1: %2. Nothing was written.").arg(device_name(dev), why_incomplete(dev)));
        say_port_state(set);
        return not_found;
    }
    panel_base *panel = complete_panel(dev);
    const QString refusal =
        device_settings::refusal(panel->type_id(), panel->type_name(), file);
    if (!refusal.isEmpty()) {
        complain(tr("%1 cannot be loaded: %2.").arg(options.restore_file, refusal));
        return refused;
    }

    const device_settings::comparison compared =
        device_settings::compare(settings_actions::device_rows(*panel), file);
    say(tr("%1, %2 (type %3), and %4 (saved %5 from CAN ID %6 \"%7\"):")
            .arg(device_name(dev), panel->type_name())
            .arg(panel->type_id())
            .arg(options.restore_file, file.saved.toString(Qt::ISODate))
            .arg(file.can_id)
            .arg(file.name));
    print_comparison(compared);
    const int differing = compared.to_write(false).size();
    if (differing == 0) {
        say(tr("The device already holds the file's values: nothing to write."));
        return done;
    }
    if (!options.yes) {
        say(tr("%1 to write; nothing was written (--yes writes them).")
                .arg(device_settings::row_count(differing)));
        return differs;
    }

    settings_restore run(panel, compared, false);
    std::optional<settings_restore::outcome> finished;
    QEventLoop loop;
    QObject::connect(&run, &settings_restore::sig_finished, &loop,
                     [&](const settings_restore::outcome &outcome) {
                         finished = outcome;
                         loop.quit();
                     });
    run.start();
    if (run.running()) {
        loop.exec();  // also left when a signal ends the program
    }
    if (!finished) {
        complain(tr("Interrupted: the rows written so far were neither checked nor stored."));
        return not_found;
    }
    const settings_restore::outcome &result = *finished;
    say(settings_restore::describe(result));
    if (!result.complete) {
        return not_found;
    }
    return result.ok() ? done : rows_not_taken;
}

}  // namespace

const char *exit_code_help() {
    return "Exit codes of --backup and --restore:\n"
           "  0  done: every device saved; the device holds the file's values\n"
           "  1  --restore --yes: written and stored, but rows did not take (listed)\n"
           "  2  wrong command line, or no usable configs/config.ini here\n"
           "  3  the file cannot be read, is not a settings file, is damaged, cut short or of\n"
           "     another device type (nothing written); or DIR cannot be written\n"
           "  4  --restore without --yes: rows differ, nothing written\n"
           "  5  devices not found or not complete within --timeout (--backup saves the\n"
           "     others), or the device was lost during a restore";
}

bool requested(const program_options &options) {
    return !options.backup_dir.isEmpty() || !options.restore_file.isEmpty();
}

void prefer_offscreen(int argc, char *argv[]) {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        return;
    }
    for (int i = 1; i < argc; ++i) {
        const QByteArray arg(argv[i]);
        if (arg == "--backup" || arg == "--restore" || arg.startsWith("--backup=") ||
            arg.startsWith("--restore=")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            return;
        }
    }
}

int run(const program_options &options) {
    previous_handler = qInstallMessageHandler(quiet_debug);
    const int code = options.restore_file.isEmpty() ? backup(options) : restore(options);
    qInstallMessageHandler(previous_handler);
    return code;
}

}  // namespace device_service
