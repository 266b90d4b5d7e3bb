// The comm stack (serial link + device objects) against the simulator over a real pseudo-terminal:
// the program's own threads on one side, the simulated adapter and devices on the other.
#include "cross_thread.h"
#include "device.h"
#include "device_panel.h"
#include "device_profiles.h"
#include "panel_registry.h"
#include "serial_connector.h"
#include "sim_bus.h"
#include "sim_pty.h"

#include <QPointer>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>
#include <vector>

namespace {

// A panel that records the pairs it receives and, on each refresh, sends the next queued pair or
// else one read from its poll list, as the real panels pace themselves.
class recording_panel : public device_panel {
    Q_OBJECT
public:
    recording_panel(int type, QWidget *parent) : device_panel(parent), type_(type) {
        new QVBoxLayout(this);
    }
    int type() const { return type_; }
    QList<QPair<int, long>> received;
    QList<QPair<int, long>> queue;
    QList<int> poll;
    int refreshes = 0;

    void sl_refresh_state() override {
        ++refreshes;
        if (!queue.isEmpty()) {
            const auto pair = queue.takeFirst();
            emit sig_w_send_command(pair.first, pair.second);
        } else if (!poll.isEmpty()) {
            emit sig_w_send_command(poll.at(poll_index_++ % poll.size()), 0);
        }
    }
    void sl_parsed_data_received(int code, long value) override { received.append({code, value}); }
    bool got(int code, long value) const { return received.contains(qMakePair(code, value)); }

private:
    int type_;
    int poll_index_ = 0;
};

// The program's side: the serial link and one device object per configured CAN ID, wired as the
// main window wires them, with a registry that builds recording panels for every modelled type.
struct program_side {
    QWidget host;
    panel_registry registry;
    QList<int> built;  // the types panels were built for, in order
    serial_connector link;
    std::vector<std::unique_ptr<device>> devices;
    signal_log connected{&link, &serial_connector::sig_connected};
    signal_log disconnected{&link, &serial_connector::sig_disconnected};

    explicit program_side(const QList<int> &can_ids) {
        register_device_types(registry);
        for (int type : sim::modelled_types()) {
            registry.add(type, registry.find(type)->model, [this, type](QWidget *parent) {
                built.append(type);
                return new recording_panel(type, parent);
            });
        }
        for (int id : can_ids) {
            auto dev = std::make_unique<device>(&host, &registry);
            dev->set_can_id(id);
            dev->set_name(QStringLiteral("device %1").arg(id));
            QObject::connect(dev.get(), &device::sig_send_command, &link,
                             &serial_connector::sl_send_string);
            dev->listen_to(&link);
            // The window connects the refresh pulse when it places the panel.
            QObject::connect(dev.get(), &device::sig_change_ui_widget, &host, [](device *d, int) {
                QObject::connect(d, &device::sig_refresh_state, d->current_panel(),
                                 &device_panel::sl_refresh_state);
            });
            devices.push_back(std::move(dev));
        }
    }
    ~program_side() { devices.clear(); }

    bool open(const QString &port) {
        const int before = connected.count();
        post_to(&link, [this, port] { link.sl_init_connection(port); });
        return connected.wait_for(before + 1);
    }
    device &at(int index) { return *devices.at(static_cast<std::size_t>(index)); }
    recording_panel *panel(int index) {
        return qobject_cast<recording_panel *>(at(index).current_panel());
    }
};

// The simulator's side, served by this thread's event loop (QTRY_* runs it).
struct bus_side {
    sim_bus bus;
    sim_pty pty{bus};
    explicit bus_side(const QList<QPair<int, int>> &devices) {
        for (const auto &d : devices) {
            bus.add_device(d.first, d.second);
        }
        pty.open();
    }
    int answers() const {
        int n = 0;
        for (const auto &d : bus.devices()) {
            n += d->answers();
        }
        return n;
    }
};

// Ticks `dev` until it knows its type and has built the panel for it.
bool bring_up(device &dev) {
    dev.tick();
    if (!QTest::qWaitFor([&dev] { return dev.type_id() != -1; }, 5000)) {
        return false;
    }
    dev.tick();
    return dev.current_panel() != nullptr;
}

}  // namespace

class test_comm_sim : public QObject {
    Q_OBJECT

private slots:
    void every_modelled_type_is_found_and_gets_its_panel() {
        QList<QPair<int, int>> on_bus;
        QList<int> ids;
        int id = 1;
        for (int type : sim::modelled_types()) {
            on_bus << qMakePair(id, type);
            ids << id++;
        }
        bus_side sim(on_bus);
        QVERIFY(sim.pty.is_open());
        program_side program(ids);
        QVERIFY(program.open(sim.pty.slave_path()));
        QTRY_COMPARE(sim.pty.adapter().bit_rate_code(), 6);
        QVERIFY(sim.pty.adapter().channel_open());

        // One round of ticks asks every address for its type.
        for (auto &dev : program.devices) {
            dev->tick();
        }
        for (int i = 0; i < on_bus.size(); ++i) {
            QTRY_COMPARE(program.at(i).type_id(), on_bus.at(i).second);
        }
        for (auto &dev : program.devices) {
            dev->tick();
        }
        QList<int> expected;
        for (int i = 0; i < on_bus.size(); ++i) {
            expected << on_bus.at(i).second;
            recording_panel *panel = program.panel(i);
            QVERIFY(panel);
            QCOMPARE(panel->type(), on_bus.at(i).second);
            QCOMPARE(panel->type_name(), program.registry.find(panel->type())->model);
            QCOMPARE(panel->live_can_id(), on_bus.at(i).first);
        }
        QCOMPARE(program.built, expected);
        // Every frame the program wrote was well formed.
        QCOMPARE(sim.pty.adapter().refused(), 0);
        QCOMPARE(sim.pty.adapter().frames_passed(), on_bus.size());  // one type request each
    }

    void confirmed_writes_reach_the_device_registers_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("code");
        QTest::addColumn<long>("value");
        QTest::newRow("CW max current row") << 14 << 37 << 12345L;
        QTest::newRow("CW temperature set point") << 14 << 18 << 215L;
        QTest::newRow("picosecond rate") << 20 << 25 << 2500000L;
        QTest::newRow("comb bias voltage, negative") << 17 << 24 << -250L;
        QTest::newRow("synchronised nanosecond sync delay, negative") << 29 << 72 << -4L;
        QTest::newRow("high power coef. I") << 18 << 19 << 250L;
    }
    void confirmed_writes_reach_the_device_registers() {
        QFETCH(int, type);
        QFETCH(int, code);
        QFETCH(long, value);
        bus_side sim({{0x12, type}});
        program_side program({0x12});
        QVERIFY(program.open(sim.pty.slave_path()));
        QVERIFY(bring_up(program.at(0)));
        sim_device *dev = sim.bus.find(0x12);
        const bool follower = dev->profile().find_follower(code) != nullptr;

        program.panel(0)->queue << qMakePair(code, value);
        program.at(0).tick();
        if (follower) {
            QTRY_COMPARE(long(dev->set_point(code)), value);
        } else {
            QTRY_COMPARE(long(dev->value(code)), value);
            // Read back through the whole chain, two's complement and all.
            program.panel(0)->queue << qMakePair(code + 128, 0L);
            program.at(0).tick();
            QTRY_VERIFY(program.panel(0)->got(code + 128, value));
        }
    }

    void silent_or_garbled_device_is_lost_and_comes_back_data() {
        QTest::addColumn<bool>("garbage");
        QTest::newRow("silent") << false;
        QTest::newRow("garbage") << true;
    }
    void silent_or_garbled_device_is_lost_and_comes_back() {
        QFETCH(bool, garbage);
        bus_side sim({{7, 20}});
        program_side program({7});
        QVERIFY(program.open(sim.pty.slave_path()));
        device &dev = program.at(0);
        QVERIFY(bring_up(dev));
        QPointer<device_panel> panel = dev.current_panel();
        program.panel(0)->poll = {160, 152, 146, 153};
        // The last answer arrives after the last tick: the silence count starts from zero.
        dev.tick();
        QTRY_COMPARE(dev.no_answer_counter(), 0);

        sim_device *simulated = sim.bus.find(7);
        if (garbage) {
            simulated->set_garbage(true);
        } else {
            simulated->set_silent(true);
        }
        const int requests = simulated->requests();
        const int answers = simulated->answers();
        for (int i = 0; i < 51; ++i) {
            dev.tick();
        }
        // Every tick's poll reached the device; it answered each with noise, or not at all, and
        // none of that was taken.
        QTRY_COMPARE(simulated->requests(), requests + 51);
        QCOMPARE(simulated->answers() - answers, garbage ? 51 : 0);
        QCOMPARE(dev.type_id(), 20);
        QVERIFY(!panel.isNull());
        dev.tick();
        QCOMPARE(dev.type_id(), -1);
        QVERIFY(panel.isNull());

        simulated->set_garbage(false);
        simulated->set_silent(false);
        QVERIFY(bring_up(dev));
        QCOMPARE(dev.type_id(), 20);
        QCOMPARE(program.built, (QList<int>{20, 20}));
    }
};

QTEST_MAIN(test_comm_sim)
#include "test_comm_sim.moc"
