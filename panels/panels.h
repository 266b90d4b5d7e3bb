#pragma once

class panel_registry;

// Registers every device type with its model string and, where the panel class exists, its factory.
void register_panels(panel_registry &registry);
