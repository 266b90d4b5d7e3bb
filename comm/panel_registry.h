#pragma once

#include <QString>

#include <functional>
#include <map>

class QWidget;
class device_panel;

// Device type id -> model string and the factory of the panel that belongs to it. Filled once at
// start-up (see register_panels() in the panels library), read by every device afterwards. A type
// without an entry, or with an entry but no factory yet, creates no panel.
class panel_registry {
public:
    using factory = std::function<device_panel *(QWidget *parent)>;

    struct entry {
        QString model;
        factory create;  // empty while the panel class does not exist yet
    };

    // The program's registry.
    static panel_registry &instance();

    void add(int type_id, const QString &model, factory create);
    const entry *find(int type_id) const;
    // Creates the panel for `type_id` with its model string set, or returns null.
    device_panel *create(int type_id, QWidget *parent) const;
    std::size_t size() const { return entries_.size(); }
    const std::map<int, entry> &entries() const { return entries_; }

private:
    std::map<int, entry> entries_;
};

// The model strings of every known device type, each without a panel factory. Panel registration
// then fills in the factories of the classes that exist.
void register_device_types(panel_registry &registry);
