// The device object: type learning, panel dispatch through the registry, silence, identity.
#include "cross_thread.h"
#include "device.h"
#include "device_panel.h"
#include "frame_codec.h"
#include "panel_registry.h"
#include "pty_pair.h"
#include "serial_connector.h"

#include <QFrame>
#include <QSignalSpy>
#include <QThread>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// A panel that records what the device gives it.
class recording_panel : public device_panel {
    Q_OBJECT
public:
    explicit recording_panel(QWidget *parent) : device_panel(parent) { new QVBoxLayout(this); }
    QList<QPair<int, long>> received;
    int refreshes = 0;
    void sl_refresh_state() override { ++refreshes; }
    void sl_parsed_data_received(int code, long value) override { received.append({code, value}); }
};

// Emits answer lines from another thread, as the serial link does.
class feeder : public QObject {
    Q_OBJECT
signals:
    void line(QString text);
};

// A device answer line from `sender`.
QString answer(int sender, int code, long value) {
    return frame_codec::compose(sender, code, frame_codec::to_wire(value))
        .left(25)
        .replace(7, 2, QStringLiteral("%1").arg(sender, 2, 16, QLatin1Char('0')));
}

// Delivers a line into the device's thread, as the serial link's queued signal does, and waits
// until the device has handled it.
void deliver(device &dev, const QString &line) {
    run_in(&dev, [&dev, line] { dev.sl_d_data_received(line); });
}

// Opens `link` on the pseudo-terminal, as the window's connect request does.
bool open_on(serial_connector &link, const pty_pair &pty) {
    signal_log connected(&link, &serial_connector::sig_connected);
    const QString path = pty.slave_path();
    post_to(&link, [&link, path] { link.sl_init_connection(path); });
    return connected.wait_for(1);
}

bool is_type_request(const QString &frame, int can_id) {
    return frame == frame_codec::compose(can_id, 0xD0, 0);
}

}  // namespace

class test_device : public QObject {
    Q_OBJECT

    panel_registry registry;
    QList<int> asked_types;
    QWidget host;

private slots:
    void initTestCase() {
        register_device_types(registry);
        for (int type : {14, 17, 20}) {
            registry.add(type, registry.find(type)->model, [this, type](QWidget *parent) {
                asked_types.append(type);
                return new recording_panel(parent);
            });
        }
    }
    void init() { asked_types.clear(); }

    void type_learned_builds_the_registered_panel() {
        device dev(&host, &registry);
        dev.set_can_id(5);
        dev.set_name(QStringLiteral("Seed laser"));
        dev.set_slot(2);
        QSignalSpy sent(&dev, &device::sig_send_command);
        QSignalSpy placed(&dev, &device::sig_change_ui_widget);

        dev.tick();
        QCOMPARE(sent.count(), 1);
        QVERIFY(is_type_request(sent.at(0).at(0).toString(), 5));
        QVERIFY(!dev.current_panel());

        deliver(dev, answer(5, 0xD0, 14));
        QCOMPARE(dev.type_id(), 14);
        dev.tick();
        QCOMPARE(asked_types, QList<int>{14});
        auto *panel = qobject_cast<recording_panel *>(dev.current_panel());
        QVERIFY(panel);
        QCOMPARE(panel->parentWidget(), &host);
        QCOMPARE(panel->type_name(), QStringLiteral("VTR-CW-1800"));
        QCOMPARE(panel->display_name(), QStringLiteral("Seed laser"));
        QCOMPARE(panel->live_can_id(), 5);
        QCOMPARE(placed.count(), 1);
        QCOMPARE(placed.at(0).at(1).toInt(), 2);
        // The separator line closes the panel's layout; the panel keeps its height.
        auto *line =
            qobject_cast<QFrame *>(panel->layout()->itemAt(panel->layout()->count() - 1)->widget());
        QVERIFY(line);
        QCOMPARE(line->frameShape(), QFrame::HLine);
        QCOMPARE(line->frameShadow(), QFrame::Sunken);
        QCOMPARE(panel->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
        // Known type: the tick polls the panel instead of asking for the type.
        sent.clear();
        dev.tick();
        QCOMPARE(sent.count(), 0);
        QCOMPARE(panel->refreshes, 0);  // the window connects sig_refresh_state when it places it
    }

    void answers_reach_the_panel_as_signed_values() {
        device dev(&host, &registry);
        dev.set_can_id(5);
        deliver(dev, answer(5, 0xD0, 20));
        dev.tick();
        auto *panel = qobject_cast<recording_panel *>(dev.current_panel());
        QVERIFY(panel);
        deliver(dev, answer(5, 0x92, -250));
        deliver(dev, answer(5, 0x92, -1));
        deliver(dev, answer(6, 0x92, 77));  // another device's answer
        deliver(dev, answer(5, 0xD0, 0));   // type 0: kept, still passed on
        QTRY_COMPARE(panel->received.size(), 3);
        QCOMPARE(panel->received.at(0), qMakePair(0x92, -250L));
        QCOMPARE(panel->received.at(1), qMakePair(0x92, -1L));
        QCOMPARE(panel->received.at(2), qMakePair(0xD0, 0L));
        QCOMPARE(dev.type_id(), 20);
    }

    void silence_marks_the_device_lost_data() {
        QTest::addColumn<int>("silent_ticks");
        QTest::addColumn<bool>("lost");
        QTest::newRow("51 silent ticks") << 51 << false;
        QTest::newRow("52 silent ticks") << 52 << true;
        QTest::newRow("60 silent ticks") << 60 << true;
    }
    void silence_marks_the_device_lost() {
        QFETCH(int, silent_ticks);
        QFETCH(bool, lost);
        device dev(&host, &registry);
        dev.set_can_id(5);
        deliver(dev, answer(5, 0xD0, 17));
        dev.tick();  // builds the panel; this tick counts as the first silent one
        QPointer<device_panel> panel = dev.current_panel();
        QVERIFY(panel);
        for (int i = 1; i < silent_ticks; ++i) {
            dev.tick();
        }
        QCOMPARE(dev.type_id(), lost ? -1 : 17);
        QCOMPARE(panel.isNull(), lost);
        QSignalSpy sent(&dev, &device::sig_send_command);
        dev.tick();
        // A lost device is asked for its type again on every tick.
        QCOMPARE(sent.count(), lost ? 1 : 0);
        if (lost) {
            QVERIFY(is_type_request(sent.at(0).at(0).toString(), 5));
            // It comes back when it answers again.
            deliver(dev, answer(5, 0xD0, 17));
            QCOMPARE(dev.no_answer_counter(), 0);
            dev.tick();
            QVERIFY(dev.current_panel());
        }
    }

    void new_type_at_the_same_address_rebuilds() {
        device dev(&host, &registry);
        dev.set_can_id(3);
        deliver(dev, answer(3, 0xD0, 17));
        dev.tick();
        QPointer<device_panel> first = dev.current_panel();
        QVERIFY(first);
        deliver(dev, answer(3, 0xD0, 20));
        dev.tick();
        QVERIFY(first.isNull());
        QVERIFY(dev.current_panel());
        QCOMPARE(dev.current_panel()->type_name(), QStringLiteral("VTR-PS"));
        QCOMPARE(asked_types, (QList<int>{17, 20}));
    }

    void types_without_a_panel_create_none_data() {
        QTest::addColumn<int>("type");
        QTest::newRow("registered, no panel class yet") << 24;
        QTest::newRow("not in the table") << 99;
    }
    void types_without_a_panel_create_none() {
        QFETCH(int, type);
        device dev(&host, &registry);
        dev.set_can_id(3);
        QSignalSpy placed(&dev, &device::sig_change_ui_widget);
        deliver(dev, answer(3, 0xD0, type));
        dev.tick();
        QCOMPARE(dev.type_id(), type);
        QVERIFY(!dev.current_panel());
        QCOMPARE(placed.count(), 0);
    }

    void identity_request_only_while_unknown() {
        device dev(&host, &registry);
        dev.set_can_id(7);
        deliver(dev, answer(7, 0xD0, 14));
        QSignalSpy sent(&dev, &device::sig_send_command);
        QSignalSpy refresh(&dev, &device::sig_refresh_state);
        dev.tick();
        QCOMPARE(sent.count(), 0);
        QCOMPARE(refresh.count(), 1);
        dev.set_identity_value(-1);
        dev.tick();
        QCOMPARE(sent.count(), 1);
        QCOMPARE(sent.at(0).at(0).toString(), frame_codec::compose(7, 0xD1, 0));
        QCOMPARE(refresh.count(), 1);
        deliver(dev, answer(7, 0xD1, 7));
        QCOMPARE(dev.identity_value(), 7);
        dev.tick();
        QCOMPARE(sent.count(), 1);
        QCOMPARE(refresh.count(), 2);
    }

    void sender_filter_data() {
        QTest::addColumn<int>("can_id");
        QTest::addColumn<bool>("accept_any");
        QTest::addColumn<bool>("takes_foreign");
        QTest::newRow("plain address") << 5 << false << false;
        QTest::newRow("mini USB mode") << 5 << true << true;
        QTest::newRow("address 0xFA") << 0xFA << false << true;
    }
    void sender_filter() {
        // Through a serial link, as in the program.
        QFETCH(int, can_id);
        QFETCH(bool, accept_any);
        pty_pair pty;
        serial_connector link;
        device dev(&host, &registry);
        dev.set_can_id(can_id);
        dev.set_accept_any_sender(accept_any);
        dev.listen_to(&link);
        signal_log lines(&link, &serial_connector::sig_parse_received_message);
        QVERIFY(open_on(link, pty));

        // The device (connected first) has handled each line by the time the link's signal
        // reaches this thread.
        QVERIFY(pty.write(answer(9, 0xD0, 14).toLatin1() + "\r"));
        QVERIFY(lines.wait_for(1));
        QTEST(dev.type_id() == 14, "takes_foreign");
        QVERIFY(pty.write(answer(can_id, 0xD0, 15).toLatin1() + "\r"));
        QVERIFY(lines.wait_for(2));
        QCOMPARE(dev.type_id(), 15);
    }

    void answers_and_ticks_run_concurrently() {
        // The serial link's thread feeds answers while the GUI thread ticks: the shared fields
        // must stay consistent (and the thread sanitizer build checks them for races).
        device dev(&host, &registry);
        dev.set_can_id(5);
        QThread feeder_thread;
        feeder_thread.start();
        feeder feed;
        feed.moveToThread(&feeder_thread);
        connect(&feed, &feeder::line, &dev, &device::sl_d_data_received);
        constexpr int answers = 300;
        post_to(&feed, [&feed] {
            for (int i = 0; i < answers; ++i) {
                emit feed.line(answer(5, i % 2 ? 0xD0 : 0x91, i % 2 ? 14 : i));
            }
        });
        for (int i = 0; i < 200; ++i) {
            dev.tick();
            QCOMPARE(dev.no_answer_counter() <= device::silence_limit + 1, true);
        }
        feeder_thread.quit();
        feeder_thread.wait();
        // Whether the ticks outran the answers (lost) or not, the next answer brings it back.
        deliver(dev, answer(5, 0xD0, 14));
        QCOMPARE(dev.type_id(), 14);
        dev.tick();
        QVERIFY(dev.current_panel());
    }

    void destroying_stops_the_thread_and_the_panel() {
        // Deleted while its serial link is busy with answers for it; the link carries on.
        pty_pair pty;
        serial_connector link;
        signal_log lines(&link, &serial_connector::sig_parse_received_message);
        QVERIFY(open_on(link, pty));
        auto *dev = new device(&host, &registry);
        dev->set_can_id(5);
        dev->listen_to(&link);
        QVERIFY(pty.write(answer(5, 0xD0, 14).toLatin1() + "\r"));
        QTRY_COMPARE(dev->type_id(), 14);
        dev->tick();
        QPointer<device_panel> panel = dev->current_panel();
        QVERIFY(panel);
        QVERIFY(pty.write(QByteArray(answer(5, 0x92, 1).toLatin1() + "\r").repeated(200)));
        delete dev;  // aborts with "destroyed while running" unless the thread was stopped
        QVERIFY(panel.isNull());
        QVERIFY(lines.wait_for(201));
    }
};

QTEST_MAIN(test_device)
#include "test_device.moc"
