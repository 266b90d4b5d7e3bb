// Renders every registered panel, expanded and collapsed, with plausible device reports fed in,
// plus its configuration dialog, to PNG files for a look by eye. Not a test: it asserts nothing.
//
//   QT_QPA_PLATFORM=offscreen lumivox_panel_shots [output directory, default /tmp/panel_renders]
#include "config_dialog.h"
#include "panel_base.h"
#include "panel_registry.h"
#include "panels.h"
#include "scaling.h"
#include "settings_actions.h"
#include "settings_compare_dialog.h"

#include <QApplication>
#include <QDir>
#include <QMap>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtDebug>

namespace {

// Plausible physical values of the common configuration parameters, by code.
const QMap<int, double> parameter_values{{81, 5},   {37, 1000}, {38, 100},   {66, 50},   {67, 1},
                                         {55, 30},  {54, 15},   {22, 10000}, {21, 3950}, {51, 1.5},
                                         {23, 2.0}, {68, 0.1},  {69, 0.02},  {70, 0}};

// Where a family keeps other quantities under the same codes (the picosecond drivers bound their
// drive voltage with 37 and 38), or has rows of its own.
const QMap<int, double> picosecond_values{{37, 30},    {38, 0},   {55, 40},  {54, 15}, {56, 0.001},
                                          {57, -0.02}, {58, 2.5}, {59, 1.0}, {61, 10}};
// Physical values of the parameters whose meaning differs by type, by type and code.
const QMap<int, double> ns_current_values{{37, 50}, {38, 0.5}, {55, 40}, {54, 15}, {56, 2.5}};
const QMap<int, QMap<int, double>> type_parameter_values{
    {20, picosecond_values},
    {26, picosecond_values},
    {28, picosecond_values},
    {35, picosecond_values},
    {19, ns_current_values},
    {23, ns_current_values},
    {29, ns_current_values},
    {31, {{37, 30}, {38, 0}, {55, 40}, {54, 15}}},
    {36, {{37, 10000}, {36, 3950}, {32, 2.5}, {24, 1.2}, {23, 5}, {21, 2}, {25, 1.5}}},
    {25, {{37, 240}, {24, 0.5}, {19, 0.05}, {25, 0}}},
    {27, {{37, 120}, {24, 0.5}, {19, 0.05}, {25, 0}}},
    {18, {{37, 1200}, {24, 0.5}, {19, 0.05}, {25, 0}}},
};

// What the nanosecond drivers report in common: emission on, 10 kHz, 10 ns, TEC on.
const QVector<QPair<int, long>> ns_common{{160, 1},   {146, 251}, {153, 10000},
                                          {163, 100}, {180, 5},   {161, 1}};

// Device reports (code, raw value) per panel type, as a running device would send them.
const QMap<int, QVector<QPair<int, long>>> readings{
    {23, ns_common + QVector<QPair<int, long>>{{152, 1234}, {181, 0}, {164, 0}}},
    {19, ns_common + QVector<QPair<int, long>>{{152, 850}, {181, 3}, {164, 0}, {185, 500}}},
    {29, ns_common +
             QVector<QPair<int, long>>{
                 {152, 2010}, {181, 0}, {164, 1}, {201, 1}, {200, -12}, {199, 4}}},
    {31, ns_common +
             QVector<QPair<int, long>>{
                 {152, 125}, {181, 0}, {164, 2}, {184, 300}, {199, 410}, {200, 25}}},
    {36,
     {{144, 1},
      {146, 301},
      {147, 1000000},
      {149, 20},
      {151, 50},
      {161, 1},
      {152, 1200},
      {153, 150},
      {162, 5},
      {160, 250},
      {176, 0x004}}},
    {14, {{144, 1}, {145, 5123}, {146, 251}, {148, 245}, {164, 0}, {161, 1}, {176, 0x101}}},
    {34, {{144, 0}, {145, 1500}, {146, 224}, {148, 88}, {164, 0}, {161, 1}, {176, 0}}},
    {38, {{144, 1}, {145, 800}, {146, 199}, {148, 31}, {164, 3}, {161, 0}, {176, 0}}},
    {15, {{144, 1}, {145, 5123456}, {146, 251234}, {148, 245}, {164, 0}, {161, 1}}},
    {4, {{161, 1}, {146, 874}}},
    {5, {{149, 250000}, {145, 2048}, {146, 4}, {147, 1}, {148, 1}, {144, 2}, {150, 1000000}}},
    {17,
     {{144, 1},
      {145, 1523},
      {146, 251},
      {148, 87},
      {164, 0},
      {161, 1},
      {153, 42},
      {160, 1},
      {152, -250},
      {180, 2140}}},
    {20,
     {{160, 1}, {152, 215}, {146, 251}, {153, 2500000}, {180, 5}, {181, 2}, {164, 0}, {161, 1}}},
    {26,
     {{160, 1},
      {152, 180},
      {146, 249},
      {153, 100000},
      {180, 1},
      {181, 0},
      {164, 2},
      {161, 1},
      {188, 57}}},
    {28,
     {{160, 0},
      {152, 0},
      {146, 230},
      {153, 20000},
      {180, 1},
      {181, 0},
      {164, 1},
      {161, 1},
      {201, 2},
      {200, 12},
      {199, -35}}},
    {35, {{162, 1}, {152, 240}, {146, 250}, {153, 40000000}, {164, 0}, {161, 1}, {176, 0x201}}},
    {18, {{144, 1}, {145, 51234}, {146, 287}, {164, 0}, {176, 0x100}, {148, 480}, {166, 312}}},
    {25,
     {{144, 1}, {145, 182507}, {146, 250}, {164, 1}, {176, 0}, {148, 480}, {166, 254}, {168, 291}}},
    {27, {{144, 0}, {145, 0}, {146, 231}, {176, 0}, {148, 240}, {166, 0}}},
};

void feed(panel_base &panel, int type) {
    const parameter_list parameters = panel.parameters();
    for (const parameter_record &record : parameters) {
        const double value = type_parameter_values.value(type).value(
            record.code, parameter_values.value(record.code, 1.0));
        panel.sl_parsed_data_received(record.code + 128,
                                      scaling::to_wire(value, scaling::pow10(record.decimals)));
    }
    for (const auto &reading : readings.value(type)) {
        panel.sl_parsed_data_received(reading.first, reading.second);
    }
}

// Lays the window out at the main window's width and the height its contents ask for.
void fit(QWidget *host) {
    for (int pass = 0; pass < 2; ++pass) {
        QApplication::processEvents();
        host->layout()->activate();
        host->resize(980, host->sizeHint().height());
    }
}

void save(QWidget *widget, const QString &path) {
    QApplication::processEvents();
    if (!widget->grab().save(path)) {
        qWarning() << "could not write" << path;
    } else {
        qInfo().noquote() << path << widget->size();
    }
}

}  // namespace

int main(int argc, char *argv[]) {
    QApplication app(argc, argv);
    const QString out =
        argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("/tmp/panel_renders");
    QDir().mkpath(out);

    panel_registry registry;
    register_panels(registry);
    for (const auto &entry : registry.entries()) {
        if (!entry.second.create) {
            continue;
        }
        const int type = entry.first;
        // A window of the main window's width holding the panel, as the device list does.
        QWidget host;
        auto *layout = new QVBoxLayout(&host);
        layout->setContentsMargins(0, 0, 0, 0);
        auto *panel = dynamic_cast<panel_base *>(registry.create(type, &host));
        if (!panel) {
            continue;
        }
        layout->addWidget(panel);
        // As the device object sets it when it places a panel.
        panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        panel->set_display_name(QStringLiteral("Laser diode %1").arg(type));
        host.show();

        const QString base = QStringLiteral("%1/type_%2").arg(out).arg(type);
        fit(&host);
        save(&host, base + QStringLiteral("_fresh.png"));
        feed(*panel, type);
        fit(&host);
        save(&host, base + QStringLiteral("_expanded.png"));
        panel->findChild<QPushButton *>(QStringLiteral("laser_tab_button"))->click();
        fit(&host);
        save(&host, base + QStringLiteral("_collapsed.png"));

        if (panel->has_configuration_dialog()) {
            panel->on_toolButton_clicked();
            config_dialog *dialog = panel->configuration_dialog();
            dialog->adjustSize();
            save(dialog, base + QStringLiteral("_dialog.png"));

            // A settings file from another device of the type: its CAN ID, two rows changed and
            // the last row missing, compared with this device.
            device_settings::snapshot file = settings_actions::snapshot_of(*panel);
            file.can_id = 7;
            file.name = QStringLiteral("Line 7");
            for (device_settings::row &row : file.rows) {
                if (row.code == device_settings::can_id_code) {
                    row.wire = 7;
                }
            }
            if (file.rows.size() > 3) {
                file.rows[1].wire += 15;
                file.rows[2].wire -= 3;
                file.rows.removeLast();
            }
            QTemporaryDir scratch;
            const QString path = scratch.filePath(device_settings::file_name(file));
            QString error;
            if (device_settings::write_file(path, file, &error)) {
                if (auto *compare = settings_actions::load(panel, path, dialog)) {
                    // The window asks for every row again: send the requests, answer them.
                    while (panel->queued_commands() > 0) {
                        panel->sl_refresh_state();
                    }
                    feed(*panel, type);
                    compare->adjustSize();
                    save(compare, base + QStringLiteral("_compare.png"));
                    compare->close();
                }
            }
            dialog->close();
        }
    }
    return 0;
}
