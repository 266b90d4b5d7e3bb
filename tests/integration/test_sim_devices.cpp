// The simulated devices seen through the adapter with the program's own frame codec: every modelled
// type answers what its panel asks, stores writes, moves like hardware and misbehaves on request.
#include "device_profiles.h"
#include "frame_codec.h"
#include "panel_base.h"
#include "panel_registry.h"
#include "panels.h"
#include "sim_bus.h"
#include "sim_device.h"
#include "slcan_adapter.h"

#include <QtTest>

#include <optional>
#include <tuple>

namespace QTest {
// Failure messages show what a read answered.
template <>
char *toString(const std::optional<long> &v) {
    return v ? qstrdup(QByteArray::number(qlonglong(*v)).constData()) : qstrdup("no answer");
}
}  // namespace QTest

namespace {

using pair_list = QList<QPair<int, long>>;

// The program's panels, by device type.
const panel_registry &panels() {
    static const panel_registry filled = [] {
        panel_registry r;
        register_panels(r);
        return r;
    }();
    return filled;
}

// What the panel of `type` reads: its poll list and its configuration rows (read as code + 128).
struct type_reads {
    QList<int> polled;
    QList<int> rows;
};

type_reads reads_of(int type) {
    std::unique_ptr<device_panel> created(panels().create(type, nullptr));
    auto *panel = dynamic_cast<panel_base *>(created.get());
    type_reads reads;
    if (!panel) {
        // Fails the test that asks, which then finds nothing to read; the other types go on.
        QTest::qFail(qPrintable(QStringLiteral("no panel for type %1").arg(type)), __FILE__,
                     __LINE__);
        return reads;
    }
    for (int code : panel->plan().read_codes) {
        if (code != poll_plan::silent) {
            reads.polled << code;
        }
    }
    for (const parameter_record &record : panel->parameters()) {
        reads.rows << record.code;
    }
    return reads;
}

// One answer as the program would receive it, checked character by character.
struct answer {
    QByteArray text;
    frame_codec::parsed_line frame;
    QString problem;  // empty when the text is a well-formed device answer
};

answer check_answer(const QByteArray &text) {
    answer a{text, {}, {}};
    if (text.size() != 26 || !text.endsWith('\r')) {
        a.problem = QStringLiteral("not one 25-character line ending in CR: %1")
                        .arg(QString::fromLatin1(text.toPercentEncoding()));
        return a;
    }
    const QByteArray body = text.left(25);
    if (body != body.toLower()) {
        a.problem = QStringLiteral("upper-case hex in %1").arg(QString::fromLatin1(body));
        return a;
    }
    const quint16 crc = frame_codec::crc16_modbus(body.constData(), 21);
    if (body.mid(21, 4).toUShort(nullptr, 16) != crc) {
        a.problem = QStringLiteral("bad checksum in %1").arg(QString::fromLatin1(body));
        return a;
    }
    if (body.mid(9, 4) != "0000") {
        a.problem = QStringLiteral("reserved bytes not zero in %1").arg(QString::fromLatin1(body));
        return a;
    }
    a.frame = frame_codec::parse(QString::fromLatin1(body));
    if (!a.frame.is_frame) {
        a.problem = QStringLiteral("not a frame: %1").arg(QString::fromLatin1(body));
    }
    return a;
}

// A bus behind an open adapter; requests are the program's own frame texts with the writer's
// extra line end.
struct rig {
    sim_bus bus;
    slcan_adapter adapter{bus};

    rig() { adapter.feed("O\r\r\nS6\r\r\n"); }

    sim_device *add(int id, int type) { return bus.add_device(id, type); }

    QByteArray send(int id, int code, long value = 0) {
        const QString frame = frame_codec::compose(id, code, frame_codec::to_wire(value));
        return adapter.feed(frame.toLatin1() + "\r\n");
    }
    // Reads `code` (a read code, bit 7 set) from the device at `id`.
    answer read(int id, int code) { return check_answer(send(id, code)); }
    // The value a read of `code` answers, or nothing when the answer is missing or malformed.
    std::optional<long> value(int id, int code) {
        const answer a = read(id, code);
        if (!a.problem.isEmpty() || a.frame.code != code || a.frame.sender != id) {
            return std::nullopt;
        }
        return a.frame.value;
    }
};

void add_type_rows() {
    QTest::addColumn<int>("type");
    for (int type : sim::modelled_types()) {
        QTest::newRow(qPrintable(QStringLiteral("type %1").arg(type))) << type;
    }
}

// Ramp-driven types: emission switch, drive code, a set point inside the limits and the reading
// it gives.
struct drive_case {
    int type;
    int emission;
    int drive;
    long set;
    long reading;
};

const QList<drive_case> drive_cases{
    {14, 16, 17, 5000, 5000},   {15, 16, 17, 50000, 5000000}, {17, 16, 17, 3000, 3000},
    {18, 16, 17, 50000, 50000}, {19, 32, 24, 1000, 1000},     {20, 32, 24, 150, 150},
    {23, 32, 24, 1000, 1000},   {25, 16, 17, 100000, 100000}, {26, 32, 60, 50, 50},
    {27, 16, 17, 5000, 5000},   {28, 32, 24, 150, 150},       {29, 32, 24, 1000, 1000},
    {31, 32, 24, 150, 150},     {34, 16, 17, 2000, 2000},     {35, 34, 24, 150, 150},
    {38, 16, 17, 4000, 4000},
};

}  // namespace

class test_sim_devices : public QObject {
    Q_OBJECT

private slots:
    void every_type_with_a_panel_is_modelled() {
        QList<int> with_panels;
        for (const auto &entry : panels().entries()) {
            if (entry.second.create) {
                with_panels << entry.first;
            }
        }
        QList<int> modelled;
        for (int t : sim::modelled_types()) {
            modelled << t;
        }
        std::sort(modelled.begin(), modelled.end());
        QCOMPARE(modelled, with_panels);
    }

    void answers_every_read_its_panel_makes_data() { add_type_rows(); }
    void answers_every_read_its_panel_makes() {
        QFETCH(int, type);
        rig r;
        const int id = 0x2A;
        sim_device *dev = r.add(id, type);
        QVERIFY(dev);
        const type_reads reads = reads_of(type);
        QList<int> codes = reads.polled;
        for (int row : reads.rows) {
            codes << row + 128;
        }
        for (int code : codes) {
            const answer a = r.read(id, code);
            QVERIFY2(a.problem.isEmpty(),
                     qPrintable(QStringLiteral("code %1: %2").arg(code).arg(a.problem)));
            QCOMPARE(a.frame.sender, id);
            QCOMPARE(a.frame.code, code);
            QCOMPARE(long(a.frame.value), long(dev->value(code - 128)));
        }
        QCOMPARE(r.value(id, 0xD0), std::optional<long>(type));
        QCOMPARE(r.value(id, 0xD1), std::optional<long>(id));
        // Every answer names the device in byte 1; the frame's own id is the device's too.
        QVERIFY(r.read(id, 0xD0).text.startsWith("t02a8d02a"));
    }

    void limit_rows_make_sense_data() { add_type_rows(); }
    void limit_rows_make_sense() {
        QFETCH(int, type);
        rig r;
        QVERIFY(r.add(5, type));
        const QList<int> rows = reads_of(type).rows;
        for (const auto &pair : {qMakePair(37, 38), qMakePair(55, 54), qMakePair(66, 67)}) {
            if (rows.contains(pair.first) && rows.contains(pair.second)) {
                QVERIFY(*r.value(5, pair.first + 128) > *r.value(5, pair.second + 128));
            }
        }
        if (rows.contains(22)) {
            QVERIFY(*r.value(5, 22 + 128) > 0);  // thermistor resistance at 25 °C
        }
    }

    void reads_of_codes_the_device_lacks_go_unanswered() {
        rig r;
        QVERIFY(r.add(3, 14));
        QVERIFY(r.send(3, 0x80 + 0x7E).isEmpty());
        QVERIFY(r.send(4, 0xD0).isEmpty());  // nobody at 4
    }

    // Every register but the measured ones, the CAN ID (it moves the device, see
    // can_id_change_takes_effect_after_reset) and those that follow a set point: writes are not
    // acknowledged, and a read gives the value back.
    void registers_are_stored_and_read_back_data() { add_type_rows(); }
    void registers_are_stored_and_read_back() {
        QFETCH(int, type);
        rig r;
        sim_device *dev = r.add(9, type);
        QVERIFY(dev);
        int checked = 0;
        for (const sim::reg_def &reg : dev->profile().registers) {
            if (reg.kind == sim::reg_kind::read_only || reg.code == sim::can_id_code ||
                dev->profile().find_follower(reg.code)) {
                continue;
            }
            for (long v : {long(reg.code) * 3 + 1, -250L, 0L}) {
                QVERIFY(r.send(9, reg.code, v).isEmpty());
                QCOMPARE(r.value(9, reg.code + 128), std::optional<long>(v));
            }
            ++checked;
        }
        QVERIFY(checked > 0);
    }

    // Writes, waits and reads on one device: "C=V" writes V to code C, "+N" lets N ms pass, "reset"
    // restarts the device, "alarm=B" raises alarm bits B, "clear" clears them, "rC=V" reads V from
    // code C ("rC=-": no answer), "rC>V" and "rC<V" a value above or below V.
    void scripted_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("script");
        const auto row = [](const char *name, int type, const char *script) {
            QTest::newRow(name) << type << script;
        };
        row("measured registers ignore writes", 14, "80=20 48=1023 r208=14 r176=0");
        // The drive is held to the configured maximum ("Max current" row, code 37).
        row("CW, 0.1 mA", 14, "37=10000 17=15000 16=1 +60000 r145=10000 r176=0");
        row("precision CW, 0.01 mA set, 0.0001 mA reported", 15,
            "37=20000 17=30000 16=1 +60000 r145=2000000 r176=-");
        row("nanosecond, 0.01 A", 23, "37=800 24=1200 32=1 +60000 r152=800 r176=-");
        row("high power, 0.01 A, power close to MAX", 18,
            "37=2000 17=3000 16=1 +60000 r145=2000 r176=512");
        row("high power with TEC, mA against a 0.01 A row", 25,
            "37=2000 17=30000 16=1 +60000 r145=20000 r176=512");
        row("compact high power, 94 % of the maximum: no warning", 27,
            "37=2000 17=1880 16=1 +60000 r145=1880 r176=0");
        row("constant power mode regulates the power, 400.0 mW", 14,
            "36=3 65=40000 16=1 +60000 r148=4000 36=0 17=1000 +60000 r145=1000 r148<4000");
        row("module warns near its maximum voltage", 35,
            "24=290 34=1 +60000 r176=512 24=200 +60000 r176=0");
        // The comb's bias voltage is negative on the wire; its TEC current is reported in mA
        // offset by 2500, heating towards 30 °C, then settled.
        row("comb bias and TEC current", 17,
            "24=-250 r152=-250 r153=0 32=1 r153>0 r180=2500 18=300 33=1 +100 r180>2500 +120000 "
            "r180=2500");
        // The energy-calibrated driver's voltage comes from its energy through the calibration
        // rows: 0.001·E³ - 0.02·E² + a1·E + 1 V (a1 = 2.5: 13.125 V), held to the 30.0 V maximum.
        row("energy calibration", 26,
            "60=50 32=1 +60000 r188=50 r152=131 58=3000000 r152=156 58=8000000 r152=300 32=0 "
            "r152=0");
        // The nanosecond drivers keep the pulse within 2 % of the period (100 ns under an
        // external trigger); a synchronised one pulses without bursts or external trigger while
        // it is master or slave, and keeps its sync settings once stored.
        row("cut to 2 % at 1 kHz", 23, "25=1000 35=300000 r163=200000");
        row("cut by a higher rate", 19, "35=1000 25=1000000 r163=200");
        row("within 2 %", 31, "25=1000 35=5000 r163=5000");
        row("external: 100 ns", 23, "35=1500 36=2 r163=1000");
        row("master: no burst", 29, "53=5 73=1 r181=0");
        row("slave: no external", 29, "73=2 36=2 r164=0");
        row("normal: burst", 29, "53=5 r181=5");
        row("sync mode stored", 29, "73=1 82=0 reset r201=1");
        row("sync mode not stored", 29, "73=1 reset r201=0");
        // The pulse picker's output rate from its 1 MHz seed: open, closed, divided, in bursts.
        row("picker open", 5, "r150=1000000 16=0 r149=1000000");
        row("picker closed", 5, "16=1 r149=0");
        row("picker divides by 4", 5, "18=4 16=2 r149=250000");
        row("picker bursts of 1 in 3", 5, "19=1 20=2 16=3 r149=333333");
        // A ramp-driven output stays at zero while emission is off, then ramps to its set point
        // (report units differ from set units on the precision driver) and back to zero.
        for (const drive_case &c : drive_cases) {
            QTest::addRow("type %d ramps", c.type)
                << c.type
                << QStringLiteral(
                       "%1=%2 +5000 r%3=0 %4=1 r%5=1 +10 r%3>0 r%3<%6 +60000 r%3=%6 %4=0 "
                       "+60000 r%3=0")
                       .arg(c.drive)
                       .arg(c.set)
                       .arg(c.drive + 128)
                       .arg(c.emission)
                       .arg(c.emission + 128)
                       .arg(c.reading);
        }
        // Warnings (rebooted, output voltage advice) leave the output on; an interlock turns it
        // off until the alarm is cleared (on the high-power family by command 41).
        const std::tuple<int, int, const char *> alarms[] = {
            {14, 16, "clear"}, {34, 16, "clear"}, {38, 16, "clear"}, {35, 34, "clear"},
            {18, 16, "41=1"},  {25, 16, "41=1"},  {27, 16, "41=1"}};
        for (const auto &[type, emission, clear] : alarms) {
            QTest::addRow("type %d alarm word", type)
                << type
                << QStringLiteral(
                       "r176=0 %1=1 alarm=257 r176=257 r%2=1 alarm=2 r176=259 r%2=0 %1=1 "
                       "r%2=0 %3 r176=0 %1=1 r%2=1")
                       .arg(emission)
                       .arg(emission + 128)
                       .arg(clear);
        }
    }
    void scripted() {
        QFETCH(int, type);
        QFETCH(QString, script);
        rig r;
        sim_device *dev = r.add(1, type);
        QVERIFY(dev);
        for (const QString &step : script.split(' ')) {
            if (step == QLatin1String("reset")) {
                dev->reset();
            } else if (step == QLatin1String("clear")) {
                dev->clear_alarm();
            } else if (step.startsWith(QLatin1String("alarm="))) {
                QVERIFY(dev->raise_alarm(step.mid(6).toInt()));
            } else if (step.startsWith('+')) {
                r.bus.advance(step.mid(1).toInt());
            } else if (!step.startsWith('r')) {
                r.send(1, step.section('=', 0, 0).toInt(), step.section('=', 1).toLong());
            } else {
                const int at = step.indexOf(QRegularExpression(QStringLiteral("[=<>]")));
                const std::optional<long> got = r.value(1, step.mid(1, at - 1).toInt());
                const QString seen = got ? QString::number(*got) : QStringLiteral("-");
                const long limit = step.mid(at + 1).toLong();
                if (step.at(at) == '=') {
                    QCOMPARE(step.left(at + 1) + seen, step);
                } else {
                    QVERIFY2(got && (step.at(at) == '>' ? *got > limit : *got < limit),
                             qPrintable(step + QStringLiteral(": ") + seen));
                }
            }
        }
    }

    void temperature_settles_towards_its_set_point_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("tec");  // switch code, -1: always regulating
        QTest::addColumn<long>("set");
        QTest::addColumn<long>("reading");  // -1: the "Max temperature" row
        QTest::newRow("CW") << 14 << 33 << 200L << 200L;
        QTest::newRow("CW above its maximum") << 14 << 33 << 500L << -1L;
        QTest::newRow("precision CW, 0.0001 °C") << 15 << 33 << 200000L << 200000L;
        QTest::newRow("comb") << 17 << 33 << 300L << 300L;
        QTest::newRow("picosecond") << 20 << 33 << 180L << 180L;
        QTest::newRow("nanosecond") << 23 << 33 << 250L << 250L;
        QTest::newRow("SNS") << 36 << 33 << 300L << 300L;
        QTest::newRow("heater") << 4 << 33 << 800L << 800L;
        QTest::newRow("high power with TEC") << 25 << -1 << 200L << 200L;
    }
    void temperature_settles_towards_its_set_point() {
        QFETCH(int, type);
        QFETCH(int, tec);
        QFETCH(long, set);
        QFETCH(long, reading);
        rig r;
        QVERIFY(r.add(6, type));
        if (reading < 0) {
            reading = *r.value(6, 55 + 128);
        }
        const long start = *r.value(6, 146);
        r.send(6, 18, set);
        if (tec >= 0) {
            r.bus.advance(30000);
            QCOMPARE(r.value(6, 146), std::optional<long>(start));  // TEC off: stays put
            r.send(6, tec, 1);
            QCOMPARE(r.value(6, tec + 128), std::optional<long>(1));
        }
        r.bus.advance(500);
        const long moving = *r.value(6, 146);
        QVERIFY2((moving - start) * (reading - start) > 0 &&
                     qAbs(moving - start) < qAbs(reading - start),
                 qPrintable(QStringLiteral("%1 -> %2 -> %3").arg(start).arg(moving).arg(reading)));
        r.bus.advance(120000);
        QCOMPARE(r.value(6, 146), std::optional<long>(reading));
        if (tec >= 0) {
            r.send(6, tec, 0);
            r.bus.advance(120000);
            QCOMPARE(r.value(6, 146), std::optional<long>(start));
        }
    }

    // Lively readings: a measured value carries a little noise and drift, the same for the same
    // CAN ID every time, near the exact value of a steady device; a switched-off output is zero.
    void lively_readings_move_a_little_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<pair_list>("writes");
        QTest::addColumn<int>("read");
        QTest::addColumn<bool>("moves");
        const pair_list cw_on{{17, 5000}, {16, 1}};
        QTest::newRow("CW current") << 14 << cw_on << 145 << true;
        QTest::newRow("CW power, drifting with temperature") << 14 << cw_on << 148 << true;
        QTest::newRow("CW current, emission off") << 14 << pair_list{} << 145 << false;
        QTest::newRow("precision CW temperature") << 15 << pair_list{} << 146 << true;
        QTest::newRow("heater temperature") << 4 << pair_list{{18, 800}, {33, 1}} << 146 << true;
    }
    void lively_readings_move_a_little() {
        QFETCH(int, type);
        QFETCH(pair_list, writes);
        QFETCH(int, read);
        QFETCH(bool, moves);
        rig steady, lively, again;
        QVERIFY(steady.add(3, type));
        lively.add(3, type)->set_lively(true);
        again.add(3, type)->set_lively(true);
        QList<long> seen, seen_again;
        for (rig *r : {&steady, &lively, &again}) {
            for (const auto &w : writes) {
                r->send(3, w.first, w.second);
            }
            r->bus.advance(60000);
        }
        for (int i = 0; i < 50; ++i) {
            const long exact = *steady.value(3, read);
            seen.append(*lively.value(3, read));
            seen_again.append(*again.value(3, read));
            QVERIFY2(qAbs(seen.last() - exact) <= qAbs(exact) / 100 + 2,
                     qPrintable(QStringLiteral("%1 near %2").arg(seen.last()).arg(exact)));
            for (rig *r : {&steady, &lively, &again}) {
                r->bus.advance(1000);
            }
        }
        QCOMPARE(seen_again, seen);
        QCOMPARE(std::count(seen.begin(), seen.end(), seen.first()) < seen.size(), moves);
    }

    void store_keeps_configuration_over_a_reset_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("store");
        QTest::addColumn<long>("store_value");
        for (int type : sim::modelled_types()) {
            int store = 82;
            long value = 0;
            if (type == 18 || type == 25 || type == 27) {
                store = 51;
                value = 1;
            } else if (type == 4 || type == 5) {
                continue;  // the CAN ID is their only row: can_id_change_takes_effect_after_reset
            }
            QTest::newRow(qPrintable(QStringLiteral("type %1").arg(type)))
                << type << store << value;
        }
    }
    void store_keeps_configuration_over_a_reset() {
        QFETCH(int, type);
        QFETCH(int, store);
        QFETCH(long, store_value);
        rig r;
        sim_device *dev = r.add(12, type);
        QVERIFY(dev);
        const QList<int> rows = reads_of(type).rows;
        QVERIFY(!rows.isEmpty());
        const int row = rows.last();
        const long old = *r.value(12, row + 128);
        const long changed = old + 7;
        r.send(12, row, changed);
        QCOMPARE(r.value(12, row + 128), std::optional<long>(changed));
        dev->reset();
        QCOMPARE(r.value(12, row + 128), std::optional<long>(old));  // not stored: lost
        r.send(12, row, changed);
        r.send(12, store, store_value);
        r.send(12, row, changed + 1);  // after the store: lost again on reset
        dev->reset();
        QCOMPARE(r.value(12, row + 128), std::optional<long>(changed));
    }

    void can_id_change_takes_effect_after_reset_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("store");  // -1: the row is kept as soon as it is written
        QTest::addColumn<long>("store_value");
        QTest::newRow("picosecond, store 82") << 20 << 82 << 0L;
        QTest::newRow("high power, store 51") << 18 << 51 << 1L;
        QTest::newRow("heater, kept on write") << 4 << -1 << 0L;
        QTest::newRow("pulse picker, kept on write") << 5 << -1 << 0L;
    }
    void can_id_change_takes_effect_after_reset() {
        QFETCH(int, type);
        QFETCH(int, store);
        QFETCH(long, store_value);
        rig r;
        sim_device *dev = r.add(0x10, type);
        r.send(0x10, 81, 0x33);
        QCOMPARE(r.value(0x10, 0xD1), std::optional<long>(0x33));  // the row shows the new id
        QVERIFY(r.send(0x33, 0xD0).isEmpty());
        if (store >= 0) {
            dev->reset();  // not stored: the device comes back at its old address
            QCOMPARE(r.value(0x10, 0xD1), std::optional<long>(0x10));
            r.send(0x10, 81, 0x33);
            r.send(0x10, store, store_value);
        }
        dev->reset();
        QVERIFY(r.send(0x10, 0xD0).isEmpty());
        QCOMPARE(r.value(0x33, 0xD0), std::optional<long>(type));
        QCOMPARE(r.value(0x33, 0xD1), std::optional<long>(0x33));
    }

    void high_power_family_also_answers_at_fa_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("answers");
        QTest::newRow("ZEMA-1200") << 18 << true;
        QTest::newRow("ZEMA-240") << 25 << true;
        QTest::newRow("ZEMA-120") << 27 << true;
        QTest::newRow("CW") << 14 << false;
        QTest::newRow("picosecond") << 20 << false;
    }
    void high_power_family_also_answers_at_fa() {
        QFETCH(int, type);
        QFETCH(bool, answers);
        rig r;
        QVERIFY(r.add(0x21, type));
        const QByteArray text = r.send(0xFA, 0xD1);
        QCOMPARE(!text.isEmpty(), answers);
        if (answers) {
            const answer a = check_answer(text);
            QVERIFY2(a.problem.isEmpty(), qPrintable(a.problem));
            QCOMPARE(a.frame.sender, 0x21);  // the device still names itself
            QCOMPARE(long(a.frame.value), 0x21L);
        }
    }

    void types_without_alarm_word_refuse_alarms() {
        for (int type : {4, 5, 15, 17, 20, 23, 36}) {
            sim_bus bus;
            QVERIFY(!bus.add_device(1, type)->raise_alarm(1));
            QVERIFY(!bus.schedule_alarm(1, 1, 0));
        }
    }

    void silent_device_answers_nothing_for_its_window() {
        rig r;
        sim_device *dev = r.add(2, 23);
        QVERIFY(r.add(3, 14));
        QVERIFY(r.bus.schedule_silence(2, 100, 200));
        r.bus.advance(99);
        QVERIFY(r.value(2, 0xD0));
        r.bus.advance(1);
        QVERIFY(dev->silent());
        const int before = dev->requests();
        QVERIFY(r.send(2, 0xD0).isEmpty());
        QVERIFY(r.send(2, 0xD1).isEmpty());
        r.send(2, 32, 1);  // writes are not taken either
        QCOMPARE(dev->requests(), before + 3);
        QVERIFY(r.value(3, 0xD0));  // the other device is not affected
        r.bus.advance(200);
        QCOMPARE(r.value(2, 0xD0), std::optional<long>(23));
        QCOMPARE(r.value(2, 160), std::optional<long>(0));
    }

    void garbage_is_never_taken_for_a_frame() {
        rig r;
        QVERIFY(r.add(2, 20));
        QVERIFY(r.bus.schedule_garbage(2, 0, 1000));
        r.bus.advance(0);
        for (int code : {0xD0, 0xD1, 146, 160}) {
            const QByteArray text = r.send(2, code);
            QCOMPARE(text.size(), 26);
            QVERIFY(text.endsWith('\r'));
            QVERIFY(!text.left(25).contains('\r') && !text.contains('\n'));
            QVERIFY(!frame_codec::parse(QString::fromLatin1(text.left(25))).is_frame);
        }
        r.bus.advance(1000);
        QCOMPARE(r.value(2, 0xD0), std::optional<long>(20));
    }

    void type_change_gives_the_new_type_registers() {
        rig r;
        QVERIFY(r.add(5, 17));
        QVERIFY(r.bus.schedule_type_change(5, 20, 300));
        QVERIFY(!r.bus.schedule_type_change(5, 99, 300));  // not modelled
        QVERIFY(r.value(5, 145));                          // the comb's drive current
        QVERIFY(!r.value(5, 181));
        r.bus.advance(300);
        QCOMPARE(r.value(5, 0xD0), std::optional<long>(20));
        QCOMPARE(r.value(5, 0xD1), std::optional<long>(5));
        QVERIFY(r.value(5, 181));   // the picosecond driver's cut count
        QVERIFY(!r.value(5, 145));  // gone with the comb
    }

    void events_see_the_bus_at_their_time() {
        // An event at 400 ms sees the drive where a device left alone for 400 ms has it.
        rig r;
        rig reference;
        for (rig *each : {&r, &reference}) {
            QVERIFY(each->add(1, 14));
            each->send(1, 17, 5000);
            each->send(1, 16, 1);
        }
        sim_device *dev = r.bus.find(1);
        long at_event = -1;
        r.bus.schedule(400, [&] { at_event = dev->value(17); });
        r.bus.advance(1000);
        reference.bus.advance(400);
        QCOMPARE(at_event, long(reference.bus.find(1)->value(17)));
        QVERIFY(at_event > 0 && at_event < 5000);
        QCOMPARE(long(dev->value(17)), 5000L);
        QCOMPARE(r.bus.pending_events(), std::size_t(0));
    }
};

QTEST_MAIN(test_sim_devices)
#include "test_sim_devices.moc"
