#include "panels.h"

#include "comb_laser.h"
#include "cw_panel.h"
#include "heater.h"
#include "kso_ps_640_panel.h"
#include "ns23_panel.h"
#include "ns29_panel.h"
#include "ns_gss_id19.h"
#include "ns_gss_triangle_panel.h"
#include "panel_registry.h"
#include "ps20_panel.h"
#include "ps26_panel.h"
#include "ps28_panel.h"
#include "pulse_picker.h"
#include "vtr_cw_1800_zif.h"
#include "vtr_sns_panel.h"
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

// A panel class that serves one device type, under the model name it gives itself.
template <class Panel>
void add_single(panel_registry &registry, int type_id) {
    registry.add(type_id, Panel::model_name(),
                 [](QWidget *parent) -> device_panel * { return new Panel(parent); });
}

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
    add_single<heater>(registry, 4);
    add_single<pulse_picker>(registry, 5);
    add_single<comb_laser>(registry, 17);
    add_single<vtr_cw_1800_zif>(registry, 15);
    add_single<ps20_panel>(registry, 20);
    add_single<ps26_panel>(registry, 26);
    add_single<ps28_panel>(registry, 28);
    add_single<kso_ps_640_panel>(registry, 35);
    add_single<ns_gss_id19>(registry, 19);
    add_single<ns23_panel>(registry, 23);
    add_single<ns29_panel>(registry, 29);
    add_single<ns_gss_triangle_panel>(registry, 31);
    add_single<vtr_sns_panel>(registry, 36);
    add_single<zema_panel>(registry, 18);
    add_single<zema240_panel>(registry, 25);
    add_single<zema120_panel>(registry, 27);
}
