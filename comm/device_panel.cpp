#include "device_panel.h"

device_panel::device_panel(QWidget *parent) : QWidget(parent) {}

void device_panel::set_display_name(const QString &name) { display_name_ = name; }

void device_panel::set_type_name(const QString &name) { type_name_ = name; }
