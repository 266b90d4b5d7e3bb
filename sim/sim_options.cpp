#include "sim_options.h"

#include "device_profiles.h"
#include "sim_bus.h"

#include <QCommandLineParser>

#include <algorithm>
#include <set>

namespace {

constexpr int max_can_id = 0x7FF;

// A number written in decimal or, with "0x", in hexadecimal.
bool read_number(const QString &text, qint64 *out) {
    bool ok = false;
    const QString t = text.trimmed();
    const qint64 v = t.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)
                         ? t.mid(2).toLongLong(&ok, 16)
                         : t.toLongLong(&ok, 10);
    if (ok && v >= 0) {
        *out = v;
    }
    return ok && v >= 0;
}

// Splits "a:b:c" into between `min` and `max` non-negative numbers; missing trailing ones keep
// the defaults already in `values`.
bool read_fields(const QString &text, int min, int max, std::vector<qint64> &values) {
    const QStringList parts = text.split(QLatin1Char(':'));
    if (parts.size() < min || parts.size() > max) {
        return false;
    }
    for (int i = 0; i < parts.size(); ++i) {
        if (!read_number(parts.at(i), &values[static_cast<std::size_t>(i)])) {
            return false;
        }
    }
    return true;
}

QString type_list() {
    QStringList names;
    for (int type : sim::modelled_types()) {
        names << QString::number(type);
    }
    return names.join(QLatin1String(", "));
}

struct reader {
    QString *error;

    bool fail(const QString &option, const QString &value, const QString &why) const {
        *error = QStringLiteral("--%1 %2: %3").arg(option, value, why);
        return false;
    }
    bool check_id(const QString &option, const QString &value, qint64 id) const {
        return id <= max_can_id || fail(option, value, QStringLiteral("CAN ID above 0x7FF"));
    }
    bool check_type(const QString &option, const QString &value, qint64 type) const {
        return sim::find_profile(static_cast<int>(type)) ||
               fail(option, value,
                    QStringLiteral("type %1 is not modelled (modelled: %2)")
                        .arg(type)
                        .arg(type_list()));
    }
};

}  // namespace

bool parse_sim_options(const QStringList &arguments, sim_options *options, QString *error) {
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QString());
    const QCommandLineOption device(QStringLiteral("device"), QString(), QStringLiteral("ID:TYPE"));
    const QCommandLineOption every(QStringLiteral("every-type"), QString());
    const QCommandLineOption link(QStringLiteral("link"), QString(), QStringLiteral("PATH"));
    const QCommandLineOption trace(QStringLiteral("trace"), QString());
    const QCommandLineOption steady(QStringLiteral("steady"), QString());
    const QCommandLineOption silent(QStringLiteral("silent"), QString(),
                                    QStringLiteral("ID[:AFTER[:FOR]]"));
    const QCommandLineOption garbage(QStringLiteral("garbage"), QString(),
                                     QStringLiteral("ID[:AFTER[:FOR]]"));
    const QCommandLineOption change(QStringLiteral("change-type"), QString(),
                                    QStringLiteral("ID:TYPE[:AFTER]"));
    const QCommandLineOption alarm(QStringLiteral("alarm"), QString(),
                                   QStringLiteral("ID:BITS[:AFTER]"));
    const QCommandLineOption hangup(QStringLiteral("hangup-after"), QString(),
                                    QStringLiteral("MS[:FOR]"));
    parser.addOptions(
        {help, device, every, link, trace, steady, silent, garbage, change, alarm, hangup});
    const QCommandLineOption replay(QStringLiteral("replay"), QString(), QStringLiteral("FILE"));
    parser.addOption(replay);
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return false;
    }
    if (!parser.positionalArguments().isEmpty()) {
        *error = QStringLiteral("unexpected argument %1").arg(parser.positionalArguments().first());
        return false;
    }
    sim_options o;
    o.help = parser.isSet(help);
    o.trace = parser.isSet(trace);
    o.steady = parser.isSet(steady);
    o.link = parser.value(link);
    const reader r{error};

    std::set<int> ids;
    for (const QString &v : parser.values(device)) {
        std::vector<qint64> f{0, 0};
        if (!read_fields(v, 2, 2, f)) {
            return r.fail(QStringLiteral("device"), v, QStringLiteral("expected ID:TYPE"));
        }
        if (!r.check_id(QStringLiteral("device"), v, f[0]) ||
            !r.check_type(QStringLiteral("device"), v, f[1])) {
            return false;
        }
        if (!ids.insert(static_cast<int>(f[0])).second) {
            return r.fail(QStringLiteral("device"), v, QStringLiteral("CAN ID given twice"));
        }
        o.devices.push_back({static_cast<int>(f[0]), static_cast<int>(f[1])});
    }
    if (parser.isSet(every)) {
        int next = 1;
        for (int type : sim::modelled_types()) {
            while (ids.count(next)) {
                ++next;
            }
            ids.insert(next);
            o.devices.push_back({next, type});
        }
    }

    const auto windows = [&](const QCommandLineOption &option,
                             std::vector<sim_options::window> &out) {
        const QString name = option.names().first();
        for (const QString &v : parser.values(option)) {
            std::vector<qint64> f{0, 0, -1};
            if (!read_fields(v, 1, 3, f)) {
                return r.fail(name, v, QStringLiteral("expected ID[:AFTER_MS[:FOR_MS]]"));
            }
            if (!r.check_id(name, v, f[0])) {
                return false;
            }
            out.push_back({static_cast<int>(f[0]), f[1], f[2]});
        }
        return true;
    };
    if (!windows(silent, o.silent) || !windows(garbage, o.garbage)) {
        return false;
    }
    for (const QString &v : parser.values(change)) {
        std::vector<qint64> f{0, 0, 0};
        if (!read_fields(v, 2, 3, f)) {
            return r.fail(QStringLiteral("change-type"), v,
                          QStringLiteral("expected ID:TYPE[:AFTER_MS]"));
        }
        if (!r.check_id(QStringLiteral("change-type"), v, f[0]) ||
            !r.check_type(QStringLiteral("change-type"), v, f[1])) {
            return false;
        }
        o.type_changes.push_back({static_cast<int>(f[0]), static_cast<int>(f[1]), f[2]});
    }
    for (const QString &v : parser.values(alarm)) {
        std::vector<qint64> f{0, 0, 0};
        if (!read_fields(v, 2, 3, f) || f[1] > 0xFFFF || f[1] == 0) {
            return r.fail(QStringLiteral("alarm"), v,
                          QStringLiteral("expected ID:BITS[:AFTER_MS], BITS 1 to 0xFFFF"));
        }
        o.alarms.push_back({static_cast<int>(f[0]), static_cast<quint32>(f[1]), f[2]});
    }
    if (parser.isSet(hangup)) {
        std::vector<qint64> f{0, -1};
        if (!read_fields(parser.value(hangup), 1, 2, f)) {
            return r.fail(QStringLiteral("hangup-after"), parser.value(hangup),
                          QStringLiteral("expected MS[:FOR_MS]"));
        }
        o.hangup_after_ms = f[0];
        o.replug_after_ms = f[1];
    }
    o.replay = parser.value(replay);
    if (!o.replay.isEmpty() && !o.devices.empty()) {
        *error = QStringLiteral("--replay plays the log alone: no --device or --every-type with it");
        return false;
    }
    *options = o;
    return true;
}

bool populate_bus(const sim_options &options, sim_bus &bus, QString *error) {
    for (const auto &d : options.devices) {
        if (!bus.add_device(d.can_id, d.type_id)) {
            *error =
                QStringLiteral("cannot put a device of type %1 at %2").arg(d.type_id).arg(d.can_id);
            return false;
        }
    }
    const auto missing = [error](const char *option, int id) {
        *error = QStringLiteral("--%1: no device at CAN ID %2").arg(QLatin1String(option)).arg(id);
        return false;
    };
    for (const auto &w : options.silent) {
        if (!bus.schedule_silence(w.can_id, w.after_ms, w.length_ms)) {
            return missing("silent", w.can_id);
        }
    }
    for (const auto &w : options.garbage) {
        if (!bus.schedule_garbage(w.can_id, w.after_ms, w.length_ms)) {
            return missing("garbage", w.can_id);
        }
    }
    for (const auto &c : options.type_changes) {
        if (!bus.schedule_type_change(c.can_id, c.type_id, c.after_ms)) {
            return missing("change-type", c.can_id);
        }
    }
    for (const auto &a : options.alarms) {
        if (!bus.schedule_alarm(a.can_id, a.bits, a.after_ms)) {
            *error =
                QStringLiteral("--alarm: no device with an alarm word at CAN ID %1").arg(a.can_id);
            return false;
        }
    }
    return true;
}

QString sim_help_text() {
    return QStringLiteral(
               "Usage: lumivox-sim [options]\n"
               "\n"
               "Plays the other side of Lumivox's serial cable: a USB-to-CAN adapter with the\n"
               "devices on its bus. Creates a pseudo-terminal in raw mode and prints the path of\n"
               "its slave end on the first line of standard output; give that path (or the --link\n"
               "path) to Lumivox as its serial port. Runs until Ctrl-C (SIGINT) or SIGTERM, then\n"
               "exits with status 0.\n"
               "\n"
               "The adapter answers \"O\", \"C\" and \"S0\"..\"S8\" with a carriage return, "
               "passes\n"
               "frames to the bus once the channel is open and answers anything else with a bell.\n"
               "Each device answers the type request (0xD0) with its type, the identity request\n"
               "(0xD1) with its CAN ID and every read of a register it has; it stores writes, "
               "ramps\n"
               "its drive after emission is switched on, settles its temperature towards the set\n"
               "point and keeps its configuration rows once told to store them.\n"
               "\n"
               "Bus:\n"
               "  --device ID:TYPE        a device of type TYPE at CAN ID ID (repeatable).\n"
               "  --every-type            one device of every modelled type, at the lowest free\n"
               "                          CAN IDs from 1 up, in the order of the type ids.\n"
               "  --link PATH             also make PATH a symbolic link to the slave end (an "
               "older\n"
               "                          link there is replaced; removed again on exit).\n"
               "  --trace                 print every request and answer on standard error.\n"
               "  --steady                measured readings exactly as modelled: without the "
               "small\n"
               "                          noise, the slow temperature wander and the drift of\n"
               "                          optical power with temperature that they have by "
               "default.\n"
               "  --replay FILE           play a candump log (as Lumivox's bus monitor exports it)\n"
               "                          instead of devices: once Lumivox opens the CAN channel,\n"
               "                          the frames the log has Lumivox receive are written at\n"
               "                          the recorded pace (those it sent are left out); then the\n"
               "                          line stays open and silent. No --device with it.\n"
               "\n"
               "Faults (times in milliseconds from start; numbers in decimal or 0x hex):\n"
               "  --silent ID[:AFTER[:FOR]]\n"
               "                          the device at ID stops answering anything AFTER ms in\n"
               "                          (default 0), and answers again FOR ms later (default:\n"
               "                          never). Lumivox loses it after 52 of its ticks.\n"
               "  --garbage ID[:AFTER[:FOR]]\n"
               "                          the device answers with 25 characters of noise instead "
               "of\n"
               "                          frames, in the same window form as --silent.\n"
               "  --change-type ID:TYPE[:AFTER]\n"
               "                          the device at ID becomes a device of TYPE (fresh\n"
               "                          registers of that type, same CAN ID) AFTER ms in.\n"
               "  --alarm ID:BITS[:AFTER] the device raises the alarm bits BITS in its alarm word\n"
               "                          AFTER ms in; bits 1 to 3 (interlock, over-temperature,\n"
               "                          over-current) also switch emission off until cleared.\n"
               "  --hangup-after MS[:FOR] the adapter hangs up MS ms in: the pseudo-terminal's\n"
               "                          master end is closed and Lumivox sees its port vanish.\n"
               "                          With FOR, a new pseudo-terminal comes up FOR ms later\n"
               "                          (its path printed, the link moved to it); without, the\n"
               "                          simulator exits.\n"
               "\n"
               "  -h, --help              this text.\n"
               "\n"
               "Modelled types: %1.\n"
               "Example: lumivox-sim --device 1:14 --device 2:20 --silent 2:5000:3000 --link "
               "/tmp/lumivox\n")
        .arg(type_list());
}
