#include "panels.h"

#include "panel_registry.h"

void register_panels(panel_registry &registry) { register_device_types(registry); }
