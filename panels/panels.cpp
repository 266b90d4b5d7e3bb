#include "panels.h"

#include "cw_panel.h"
#include "panel_registry.h"
#include "vtr_cw_1800_zif.h"
#include "zema120_panel.h"
#include "zema240_panel.h"
#include "zema_panel.h"

#include <QVector>

namespace {

// The CW driver types served by `cw_panel`: which model string of its list they show, which
// parameter positions they lack (removed in this order), and whether they have operating modes.
struct cw_variant {
    int type_id;
    int model_index;
    QVector<int> removed_positions;
    bool has_modes;
};

const cw_variant cw_variants[] = {
    {14, 0, {}, true},
    {34, 1, {3, 3}, false},  // no power limits: "Max power, mW", then "Min power, mW"
    {38, 2, {9}, true},      // no "Max tec current, A"
};

}  // namespace

void register_panels(panel_registry &registry) {
    register_device_types(registry);

    for (const cw_variant &variant : cw_variants) {
        registry.add(variant.type_id, cw_panel::model_list().at(variant.model_index),
                     [variant](QWidget *parent) -> device_panel * {
                         auto *panel = new cw_panel(parent);
                         for (int position : variant.removed_positions) {
                             panel->remove_parameter(position);
                         }
                         panel->set_mode_widgets_visible(variant.has_modes);
                         return panel;
                     });
    }
    registry.add(15, vtr_cw_1800_zif::model_name(),
                 [](QWidget *parent) -> device_panel * { return new vtr_cw_1800_zif(parent); });
    registry.add(18, zema_panel::model_name(),
                 [](QWidget *parent) -> device_panel * { return new zema_panel(parent); });
    registry.add(25, zema240_panel::model_name(),
                 [](QWidget *parent) -> device_panel * { return new zema240_panel(parent); });
    registry.add(27, zema120_panel::model_name(),
                 [](QWidget *parent) -> device_panel * { return new zema120_panel(parent); });
}
