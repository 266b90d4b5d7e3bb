#include "panel_registry.h"

#include "device_panel.h"

panel_registry &panel_registry::instance() {
    static panel_registry registry;
    return registry;
}

void panel_registry::add(int type_id, const QString &model, factory create) {
    entries_[type_id] = entry{model, std::move(create)};
}

const panel_registry::entry *panel_registry::find(int type_id) const {
    const auto it = entries_.find(type_id);
    return it == entries_.end() ? nullptr : &it->second;
}

device_panel *panel_registry::create(int type_id, QWidget *parent) const {
    const entry *e = find(type_id);
    if (!e || !e->create) {
        return nullptr;
    }
    device_panel *panel = e->create(parent);
    if (panel) {
        panel->set_type_name(e->model);
        panel->set_type_id(type_id);
    }
    return panel;
}

void register_device_types(panel_registry &registry) {
    static const struct {
        int type_id;
        const char *model;
    } types[] = {
        {4, "Heater"},
        {5, "Pulse Picker"},
        {14, "VTR-CW-1800"},
        {15, "VTR-CW-1800H precision"},
        {17, "COMB driver"},
        {18, "ZEMA-1200"},
        {19, "VTR-NS-GSS"},
        {20, "VTR-PS"},
        {23, "VTR-NS"},
        {24, "ORVIK_1200_T2_ZIF"},
        {25, "ZEMA-240"},
        {26, "VTR-PS-BOX"},
        {27, "ZEMA-120 driver"},
        {28, "VTR-PS-SYNC"},
        {29, "VTR-NS-SYNC"},
        {31, "VTR-NS-GSS-TR"},
        {33, "VTR-PS-STB"},
        {34, "VTR-CW-250-9V"},
        {35, "KSO-PS-640"},
        {36, "VTR_SNS"},
        {38, "VTR-CW-450-DIL"},
        {39, "KSO-PS-1310SH"},
        {40, "KSO-NS-450"},
    };
    for (const auto &t : types) {
        if (!registry.find(t.type_id)) {
            registry.add(t.type_id, QString::fromUtf8(t.model), {});
        }
    }
}
