#pragma once

#include "device_settings.h"

#include <QString>
#include <QVector>

class QWidget;
class config_dialog;
class panel_base;
class settings_compare_dialog;

// What the configuration dialog's "Save to file..." and "Load from file..." do, apart from the
// file choosers (so that tests and the window-less service run them on paths of their own).
namespace settings_actions {

// The panel's rows as the device reported them.
QVector<device_settings::row> device_rows(const panel_base &panel);
// The panel's rows with what identifies its device, stamped now. Every row must be known.
device_settings::snapshot snapshot_of(const panel_base &panel);

// Writes the panel's rows to `path`; false with `error` saying why.
bool save(const panel_base &panel, const QString &path, QString *error);

// Why `path` may not be put on the panel's device (a file that cannot be read or is not a settings
// file, one of another device type), or an empty text with `file` filled.
QString read_for(const panel_base &panel, const QString &path, device_settings::snapshot *file);

// Reads `path` and shows its comparison with the panel's device. A refusal is told to the operator
// in a box (nothing is written) and gives null. When `parent` is the panel's configuration window,
// its spin boxes take the device's values after a restore.
settings_compare_dialog *load(panel_base *panel, const QString &path, QWidget *parent);

// Connects the dialog's file buttons: each asks for a file, then runs the above.
void attach(panel_base *panel, config_dialog *dialog);

}  // namespace settings_actions
