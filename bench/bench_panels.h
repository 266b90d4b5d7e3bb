#pragma once

// Eight panels taking their poll replies at the program's full rate, for the benchmarks of what
// listens to their observations (recorder, publisher), and the CPU time of the process.
#include "observation_hub.h"
#include "panel_base.h"
#include "panel_registry.h"
#include "panels.h"

#include <memory>
#include <random>
#include <vector>

#include <sys/resource.h>

constexpr int devices = 8;
constexpr int tick_ms = 10;
constexpr int replies_per_second = 1000 / tick_ms;

// CPU time of the process, every thread, in milliseconds.
inline double cpu_ms() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1e3 +
           (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e3;
}

// Eight panels of the CW driver as the devices build them, and the replies they poll for.
struct bench_bus {
    panel_registry registry;
    std::vector<std::unique_ptr<panel_base>> panels;
    std::vector<int> position;
    std::mt19937 noise{17};
    int next = 0;

    bench_bus() {
        register_panels(registry);
        for (int i = 0; i < devices; ++i) {
            panels.emplace_back(dynamic_cast<panel_base *>(registry.create(14, nullptr)));
            panels.back()->set_display_name(QStringLiteral("Bench %1").arg(i + 1));
            position.push_back(0);
        }
    }
    // One tick: the next device's next poll code answered with a value near 5000.
    void reply() {
        panel_base &panel = *panels[std::size_t(next)];
        const QVector<int> &codes = panel.plan().read_codes;
        int &at = position[std::size_t(next)];
        int code = poll_plan::silent;
        while (code == poll_plan::silent) {
            code = codes[at];
            at = (at + 1) % codes.size();
        }
        std::uniform_int_distribution<int> wobble(-20, 20);
        panel.sl_parsed_data_received(code, 5000 + wobble(noise));
        next = (next + 1) % devices;
    }
    void watch(observation_hub &hub) {
        for (int i = 0; i < devices; ++i) {
            hub.watch(i + 1, panels[std::size_t(i)]->display_name(), panels[std::size_t(i)].get());
        }
    }
};
