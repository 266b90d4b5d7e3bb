#include "settings_actions.h"

#include "config_dialog.h"
#include "message_route.h"
#include "panel_base.h"
#include "settings_compare_dialog.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>

namespace settings_actions {

QVector<device_settings::row> device_rows(const panel_base &panel) {
    QVector<device_settings::row> rows;
    for (const parameter_record &record : panel.parameters()) {
        rows.append({record.code, record.label, record.decimals, record.wire});
    }
    return rows;
}

device_settings::snapshot snapshot_of(const panel_base &panel) {
    device_settings::snapshot settings;
    settings.program = device_settings::program_version();
    settings.saved = QDateTime::currentDateTime();
    settings.type_id = panel.type_id();
    settings.model = panel.type_name();
    settings.name = panel.display_name();
    settings.rows = device_rows(panel);
    // The address the device answers at; a panel without a device names the CAN ID row's value.
    settings.can_id = panel.live_can_id();
    if (settings.can_id < 0) {
        settings.can_id = 0;
        for (const device_settings::row &row : qAsConst(settings.rows)) {
            if (row.code == device_settings::can_id_code) {
                settings.can_id = static_cast<int>(row.wire);
            }
        }
    }
    return settings;
}

bool save(const panel_base &panel, const QString &path, QString *error) {
    if (!panel.all_parameters_known()) {
        *error = QCoreApplication::translate("settings_actions",
                                             "not every row has been reported yet");
        return false;
    }
    return device_settings::write_file(path, snapshot_of(panel), error);
}

QString read_for(const panel_base &panel, const QString &path, device_settings::snapshot *file) {
    const device_settings::read_result read = device_settings::read_file(path);
    if (!read.settings) {
        return read.error;
    }
    const QString refused =
        device_settings::refusal(panel.type_id(), panel.type_name(), *read.settings);
    if (!refused.isEmpty()) {
        return refused;
    }
    *file = *read.settings;
    return {};
}

settings_compare_dialog *load(panel_base *panel, const QString &path, QWidget *parent) {
    device_settings::snapshot file;
    const QString refused = read_for(*panel, path, &file);
    if (!refused.isEmpty()) {
        inform(parent, QCoreApplication::translate("settings_actions", "Load settings"),
               QCoreApplication::translate("settings_actions",
                                           "%1 cannot be loaded: %2. Nothing was written.")
                   .arg(QDir::toNativeSeparators(path), refused));
        return nullptr;
    }
    auto *dialog = new settings_compare_dialog(panel, path, file, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (auto *config = qobject_cast<config_dialog *>(parent)) {
        // After a restore the configuration window's spin boxes show what the device now holds,
        // so that its "Write" does not put the old values back. Setting them sends nothing.
        QObject::connect(dialog, &settings_compare_dialog::sig_finished, config, [panel, config] {
            const parameter_list &rows = panel->parameters();
            const QList<QDoubleSpinBox *> &spins = config->spin_boxes();
            for (int i = 0; i < spins.size() && i < rows.size(); ++i) {
                const QSignalBlocker quiet(spins[i]);
                spins[i]->setValue(rows[i].value);
            }
        });
    }
    dialog->show();
    return dialog;
}

void attach(panel_base *panel, config_dialog *dialog) {
    QObject::connect(dialog->save_button(), &QPushButton::clicked, dialog, [panel, dialog] {
        const QString suggested =
            QDir::current().filePath(device_settings::file_name(snapshot_of(*panel)));
        const QString path = QFileDialog::getSaveFileName(
            dialog, QCoreApplication::translate("settings_actions", "Save settings"), suggested,
            QCoreApplication::translate("settings_actions", "Settings files (*.json)"));
        if (path.isEmpty()) {
            return;
        }
        QString error;
        if (save(*panel, path, &error)) {
            dialog->file_status()->setText(
                QCoreApplication::translate("settings_actions", "Saved to %1")
                    .arg(QFileInfo(path).fileName()));
            dialog->file_status()->setToolTip(QDir::toNativeSeparators(path));
            dialog->file_status()->show();
        } else {
            inform(dialog, QCoreApplication::translate("settings_actions", "Save settings"),
                   QCoreApplication::translate("settings_actions", "%1 could not be written: %2")
                       .arg(QDir::toNativeSeparators(path), error));
        }
    });
    QObject::connect(dialog->load_button(), &QPushButton::clicked, dialog, [panel, dialog] {
        const QString path = QFileDialog::getOpenFileName(
            dialog, QCoreApplication::translate("settings_actions", "Load settings"),
            QDir::currentPath(),
            QCoreApplication::translate("settings_actions", "Settings files (*.json);;All files (*)"));
        if (!path.isEmpty()) {
            load(panel, path, dialog);
        }
    });
}

}  // namespace settings_actions
