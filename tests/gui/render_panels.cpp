// Renders every registered panel, expanded and collapsed, with plausible device reports fed in,
// plus its configuration dialog, to PNG files for a look by eye. Not a test: it asserts nothing.
//
//   QT_QPA_PLATFORM=offscreen render_panels [output directory, default /tmp/panel_renders]
#include "config_dialog.h"
#include "panel_base.h"
#include "panel_registry.h"
#include "panels.h"
#include "scaling.h"

#include <QApplication>
#include <QDir>
#include <QMap>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtDebug>

namespace {

// Plausible physical values of the common configuration parameters, by code.
const QMap<int, double> parameter_values{{81, 5},   {37, 1000}, {38, 100},   {66, 50},   {67, 1},
                                         {55, 30},  {54, 15},   {22, 10000}, {21, 3950}, {51, 1.5},
                                         {23, 2.0}, {68, 0.1},  {69, 0.02},  {70, 0}};

// Where a type's configuration differs from the common values above: (code, physical value).
const QMap<int, QMap<int, double>> parameter_overrides{
    {25, {{37, 240}, {24, 0.5}, {19, 0.05}, {25, 0}}},
    {27, {{37, 120}, {24, 0.5}, {19, 0.05}, {25, 0}}},
    {18, {{37, 1200}, {24, 0.5}, {19, 0.05}, {25, 0}}},
};

// Device reports (code, raw value) per panel type, as a running device would send them.
const QMap<int, QVector<QPair<int, long>>> readings{
    {14, {{144, 1}, {145, 5123}, {146, 251}, {148, 245}, {164, 0}, {161, 1}, {176, 0x101}}},
    {34, {{144, 0}, {145, 1500}, {146, 224}, {148, 88}, {164, 0}, {161, 1}, {176, 0}}},
    {38, {{144, 1}, {145, 800}, {146, 199}, {148, 31}, {164, 3}, {161, 0}, {176, 0}}},
    {15, {{144, 1}, {145, 5123456}, {146, 251234}, {148, 245}, {164, 0}, {161, 1}}},
    {18, {{144, 1}, {145, 51234}, {146, 287}, {164, 0}, {176, 0x100}, {148, 480}, {166, 312}}},
    {25,
     {{144, 1}, {145, 182507}, {146, 250}, {164, 1}, {176, 0}, {148, 480}, {166, 254}, {168, 291}}},
    {27, {{144, 0}, {145, 0}, {146, 231}, {176, 0}, {148, 240}, {166, 0}}},
};

void feed(panel_base &panel, int type) {
    const parameter_list parameters = panel.parameters();
    for (const parameter_record &record : parameters) {
        const double value = parameter_overrides.value(type).value(
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
            dialog->close();
        }
    }
    return 0;
}
