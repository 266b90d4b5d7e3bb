#include "command_session.h"

#include "scpi_syntax.h"

#include <cmath>

namespace {

enum class op {
    identify,
    operation_complete,
    clear_status,
    next_error,
    remote,
    bus_state,
    device_list,
    device_identify,
    reading_list,
    reading,
    reading_age,
    setpoint_list,
    setpoint_write,
    setpoint_query,
    output_write,
    output_query,
    parameter_list,
    parameter_query,
    parameter_write,
    parameter_store,
};

struct node_def {
    const char *name = nullptr;  // long form, short form in upper case
    bool optional = false;
    bool suffix = false;  // takes the device's CAN id
};

constexpr node_def device_node{"DEVice", false, true};

QByteArray number_text(int value) {
    return QByteArray::number(value);
}

bool printable_ascii(const QByteArray &line) {
    for (const char c : line) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte < 0x20 && c != '\t') || byte >= 0x7F) {
            return false;
        }
    }
    return true;
}

// Text from outside in an error message: short, and only its printable part.
QByteArray excerpt(const QByteArray &text) {
    constexpr int longest = 40;
    return text.size() <= longest ? text : text.left(longest) + "...";
}

QByteArray key_of(const QString &key) {
    return key.toUtf8().toLower();
}

}  // namespace

struct command_session::command_def {
    const char *common;  // "IDN" for *IDN, or null for a header path
    node_def nodes[3];
    int count;
    bool query;
    int arguments;
    op what;
};

struct command_session::result {
    int error = scpi::no_error;
    QByteArray detail;
    bool answered = false;
    QByteArray answer;

    static result answer_with(const QByteArray &text) { return {scpi::no_error, {}, true, text}; }
    static result done() { return {}; }
    static result failed(int code, const QByteArray &detail = {}) {
        return {code, detail, false, {}};
    }
};

namespace {

using command_def = command_session::command_def;

// The whole command tree. Optional nodes are in brackets in the documentation
// ("SYSTem:ERRor[:NEXT]?").
const command_def commands[] = {
    {"IDN", {}, 0, true, 0, op::identify},
    {"OPC", {}, 0, true, 0, op::operation_complete},
    {"CLS", {}, 0, false, 0, op::clear_status},
    {nullptr, {{"SYSTem"}, {"ERRor"}, {"NEXT", true}}, 3, true, 0, op::next_error},
    {nullptr, {{"SYSTem"}, {"REMote"}}, 2, true, 0, op::remote},
    {nullptr, {{"BUS"}, {"STATe"}}, 2, true, 0, op::bus_state},
    {nullptr, {{"DEVice"}, {"LIST"}}, 2, true, 0, op::device_list},
    {nullptr, {device_node, {"IDN"}}, 2, true, 0, op::device_identify},
    {nullptr, {device_node, {"READing"}, {"LIST"}}, 3, true, 0, op::reading_list},
    {nullptr, {device_node, {"READing"}}, 2, true, 1, op::reading},
    {nullptr, {device_node, {"READing"}, {"AGE"}}, 3, true, 1, op::reading_age},
    {nullptr, {device_node, {"SETPoint"}, {"LIST"}}, 3, true, 0, op::setpoint_list},
    {nullptr, {device_node, {"SETPoint"}}, 2, false, 2, op::setpoint_write},
    {nullptr, {device_node, {"SETPoint"}}, 2, true, 1, op::setpoint_query},
    {nullptr, {device_node, {"OUTPut"}, {"STATe", true}}, 3, false, 1, op::output_write},
    {nullptr, {device_node, {"OUTPut"}, {"STATe", true}}, 3, true, 0, op::output_query},
    {nullptr, {device_node, {"PARameter"}, {"LIST"}}, 3, true, 0, op::parameter_list},
    {nullptr, {device_node, {"PARameter"}}, 2, true, 1, op::parameter_query},
    {nullptr, {device_node, {"PARameter"}}, 2, false, 2, op::parameter_write},
    {nullptr, {device_node, {"PARameter"}, {"STORe"}}, 3, false, 0, op::parameter_store},
};

bool is_write(op what) {
    return what == op::setpoint_write || what == op::output_write || what == op::parameter_write ||
           what == op::parameter_store;
}

// Whether `typed` from position `t` names the definition's nodes from `d` on; the CAN id of the
// device node goes to `device_id`.
bool match(const QVector<scpi::node> &typed, int t, const command_def &def, int d, int *device_id) {
    if (d == def.count) {
        return t == typed.size();
    }
    const node_def &expected = def.nodes[d];
    if (t < typed.size() && scpi::names(typed[t].mnemonic, expected.name) &&
        (expected.suffix ? typed[t].suffix >= 0 : typed[t].suffix < 0)) {
        int id = expected.suffix ? typed[t].suffix : *device_id;
        if (match(typed, t + 1, def, d + 1, &id)) {
            *device_id = id;
            return true;
        }
    }
    return expected.optional && match(typed, t, def, d + 1, device_id);
}

const command_def *resolve(const scpi::unit &u, const QVector<scpi::node> &path, int *device_id) {
    for (const command_def &def : commands) {
        if (def.query != u.query || (def.common != nullptr) != u.common) {
            continue;
        }
        if (def.common) {
            if (scpi::names(path.value(0).mnemonic, def.common)) {
                return &def;
            }
        } else if (match(path, 0, def, 0, device_id)) {
            return &def;
        }
    }
    return nullptr;
}

}  // namespace

command_session::command_session(instrument &target) : target_(target) {}

void command_session::push_error(int code, const QByteArray &detail) {
    QByteArray text = scpi::error_text(code);
    if (!detail.isEmpty()) {
        text += ';' + detail;
    }
    const QByteArray entry = number_text(code) + ',' + scpi::quoted(text);
    if (errors_.size() < error_queue_size) {
        errors_.append(entry);
    } else {
        errors_.last() = number_text(scpi::queue_overflow) + ',' +
                         scpi::quoted(scpi::error_text(scpi::queue_overflow));
    }
}

QByteArray command_session::run(const QByteArray &line) {
    if (!printable_ascii(line)) {
        push_error(scpi::invalid_character, "only printable ASCII is read");
        return {};
    }
    QList<QByteArray> answers;
    QVector<scpi::node> current;  // where a command after ';' continues from
    for (const QByteArray &text : scpi::split_units(line)) {
        scpi::unit u;
        scpi::syntax_error syntax;
        if (!scpi::parse_unit(text, &u, &syntax)) {
            push_error(syntax.code, syntax.detail);
            break;
        }
        int device_id = -1;
        const command_def *def = nullptr;
        QVector<scpi::node> path = u.path;
        // From the deepest node the previous header went through up to the root.
        for (int depth = (u.common || u.absolute) ? 0 : current.size(); depth >= 0 && !def;
             --depth) {
            path = current.mid(0, depth) + u.path;
            def = resolve(u, path, &device_id);
        }
        if (!def) {
            push_error(scpi::undefined_header, excerpt(text.trimmed().split(' ').value(0)));
            break;
        }
        if (!u.common) {
            current = path;
            current.removeLast();
        }
        if (u.arguments.size() < def->arguments) {
            push_error(scpi::missing_parameter);
            break;
        }
        if (u.arguments.size() > def->arguments) {
            push_error(scpi::parameter_not_allowed);
            break;
        }
        QVector<QByteArray> args;
        QVector<bool> quoted;
        for (const scpi::argument &a : qAsConst(u.arguments)) {
            args.append(a.text);
            quoted.append(a.quoted);
        }
        const result r = execute(*def, device_id, args, quoted);
        if (r.error != scpi::no_error) {
            push_error(r.error, r.detail);
            break;
        }
        if (r.answered) {
            answers.append(r.answer);
        }
    }
    if (answers.isEmpty()) {
        return {};
    }
    return answers.join(';') + '\n';
}

command_session::result command_session::execute(const command_def &def, int device_id,
                                                 const QVector<QByteArray> &args,
                                                 const QVector<bool> &quoted) {
    // Numbers may not come as strings; keys may come either way.
    const auto number_slot = [&def](int index) {
        return (def.what == op::setpoint_write && index == 1) || (def.what == op::output_write) ||
               (def.what == op::parameter_query) || (def.what == op::parameter_write);
    };
    for (int i = 0; i < quoted.size(); ++i) {
        if (quoted[i] && number_slot(i)) {
            return result::failed(scpi::data_type_error, "a number, not a string");
        }
    }
    switch (def.what) {
        case op::identify:
            return result::answer_with(target_.identity().toUtf8());
        case op::operation_complete:
            // Every command before it on this line and the earlier ones is already in its
            // device's queue: commands are queued as they are run.
            return result::answer_with("1");
        case op::clear_status:
            errors_.clear();
            return result::done();
        case op::next_error:
            if (errors_.isEmpty()) {
                return result::answer_with("0," + scpi::quoted(scpi::error_text(scpi::no_error)));
            }
            return result::answer_with(errors_.takeFirst());
        case op::remote:
            return result::answer_with(target_.writes_allowed() ? "1" : "0");
        case op::bus_state:
            return result::answer_with(target_.bus_connected() ? "CONNECTED" : "DISCONNECTED");
        case op::device_list: {
            QList<QByteArray> ids;
            for (int id : target_.device_ids()) {
                ids.append(number_text(id));
            }
            return result::answer_with(ids.join(','));
        }
        default:
            break;
    }

    if (is_write(def.what) && !target_.writes_allowed()) {
        return result::failed(scpi::settings_conflict, "remote writes are not allowed");
    }
    const std::optional<instrument::device_info> info = target_.device(device_id);
    if (!info) {
        return result::failed(scpi::hardware_missing,
                              "no device " + number_text(device_id) + " in the table");
    }
    if (def.what == op::device_identify) {
        static const char *const states[] = {"FOUND", "LOST", "UNKNOWN"};
        return result::answer_with(
            scpi::quoted(info->name.toUtf8()) + ',' + scpi::quoted(info->model.toUtf8()) + ',' +
            number_text(info->type_id) + ',' + states[static_cast<int>(info->state)]);
    }
    if (info->state != instrument::presence::found) {
        return result::failed(scpi::hardware_missing,
                              "device " + number_text(device_id) + " not found on the bus");
    }
    return is_write(def.what) ? device_write(def, device_id, args)
                              : device_query(def, device_id, args);
}

command_session::result command_session::device_query(const command_def &def, int id,
                                                      const QVector<QByteArray> &args) {
    switch (def.what) {
        case op::reading_list: {
            QList<QByteArray> items;
            for (const instrument::quantity &q : target_.readings(id)) {
                items << scpi::quoted(q.key.toUtf8()) << scpi::quoted(q.unit.toUtf8());
            }
            return result::answer_with(items.join(','));
        }
        case op::reading:
        case op::reading_age: {
            const QByteArray key = args.value(0).toLower();
            bool known = false;
            for (const instrument::quantity &q : target_.readings(id)) {
                known = known || key_of(q.key) == key;
            }
            if (!known) {
                return result::failed(scpi::illegal_parameter_value,
                                      "no reading " + excerpt(args.value(0)));
            }
            const std::optional<instrument::sample> s = target_.reading(id, QString::fromUtf8(key));
            const double nothing = std::nan("");
            const double value =
                !s ? nothing : (def.what == op::reading ? s->value : s->age_seconds);
            return result::answer_with(scpi::format_number(value));
        }
        case op::setpoint_list: {
            QList<QByteArray> items;
            for (const instrument::setpoint_info &s : target_.setpoints(id)) {
                items << scpi::quoted(s.key.toUtf8()) << scpi::quoted(s.unit.toUtf8())
                      << scpi::format_number(s.minimum) << scpi::format_number(s.maximum);
            }
            return result::answer_with(items.join(','));
        }
        case op::setpoint_query: {
            const QByteArray key = args.value(0).toLower();
            const std::optional<double> value = target_.setpoint_value(id, QString::fromUtf8(key));
            if (!value) {
                return result::failed(scpi::illegal_parameter_value,
                                      "no set-point " + excerpt(args.value(0)));
            }
            return result::answer_with(scpi::format_number(*value));
        }
        case op::output_query: {
            const std::optional<bool> on = target_.output(id);
            if (!on) {
                return result::failed(scpi::settings_conflict,
                                      "device " + number_text(id) + " has no emission switch");
            }
            return result::answer_with(*on ? "1" : "0");
        }
        case op::parameter_list: {
            QList<QByteArray> items;
            for (const instrument::parameter_info &p : target_.parameters(id)) {
                items << number_text(p.code) << scpi::quoted(p.label.toUtf8())
                      << scpi::format_number(p.value ? *p.value : std::nan(""));
            }
            return result::answer_with(items.join(','));
        }
        case op::parameter_query: {
            const std::optional<double> code = scpi::parse_number(args.value(0));
            if (!code || std::floor(*code) != *code) {
                return result::failed(scpi::data_type_error, "a parameter code is an integer");
            }
            for (const instrument::parameter_info &p : target_.parameters(id)) {
                if (p.code == *code) {
                    return result::answer_with(
                        scpi::format_number(p.value ? *p.value : std::nan("")));
                }
            }
            return result::failed(scpi::illegal_parameter_value,
                                  "no parameter " + excerpt(args.value(0)));
        }
        default:
            return result::failed(scpi::undefined_header);
    }
}

command_session::result command_session::device_write(const command_def &def, int id,
                                                      const QVector<QByteArray> &args) {
    switch (def.what) {
        case op::setpoint_write: {
            const QByteArray key = args.value(0).toLower();
            std::optional<instrument::setpoint_info> chosen;
            for (const instrument::setpoint_info &s : target_.setpoints(id)) {
                if (key_of(s.key) == key) {
                    chosen = s;
                }
            }
            if (!chosen) {
                return result::failed(scpi::illegal_parameter_value,
                                      "no set-point " + excerpt(args.value(0)));
            }
            std::optional<double> value;
            if (scpi::names(args.value(1), "MINimum")) {
                value = chosen->minimum;
            } else if (scpi::names(args.value(1), "MAXimum")) {
                value = chosen->maximum;
            } else {
                value = scpi::parse_number(args.value(1));
            }
            if (!value) {
                return result::failed(scpi::data_type_error, "not a number");
            }
            switch (target_.write_setpoint(id, chosen->key, *value)) {
                case instrument::outcome::queued:
                    return result::done();
                case instrument::outcome::out_of_range:
                    return result::failed(scpi::data_out_of_range,
                                          chosen->key.toUtf8() + " from " +
                                              scpi::format_number(chosen->minimum) + " to " +
                                              scpi::format_number(chosen->maximum) + ' ' +
                                              chosen->unit.toUtf8());
                case instrument::outcome::not_allowed:
                    return result::failed(scpi::settings_conflict,
                                          chosen->key.toUtf8() + " cannot be set now");
                case instrument::outcome::unknown_key:
                    break;
            }
            return result::failed(scpi::illegal_parameter_value,
                                  "no set-point " + excerpt(args.value(0)));
        }
        case op::output_write: {
            bool not_a_boolean = false;
            const std::optional<bool> on = scpi::parse_boolean(args.value(0), &not_a_boolean);
            if (!on) {
                return result::failed(
                    not_a_boolean ? scpi::data_type_error : scpi::data_out_of_range,
                    "ON, OFF, 1 or 0");
            }
            if (!target_.set_output(id, *on)) {
                return result::failed(scpi::settings_conflict,
                                      "device " + number_text(id) + " has no emission switch");
            }
            return result::done();
        }
        case op::parameter_write: {
            const std::optional<double> code = scpi::parse_number(args.value(0));
            const std::optional<double> value = scpi::parse_number(args.value(1));
            if (!code || std::floor(*code) != *code || !value) {
                return result::failed(scpi::data_type_error, "an integer code and a number");
            }
            const bool in_int = std::fabs(*code) < 1e9;
            switch (in_int ? target_.write_parameter(id, static_cast<int>(*code), *value)
                           : instrument::outcome::unknown_key) {
                case instrument::outcome::queued:
                    return result::done();
                case instrument::outcome::out_of_range:
                    return result::failed(scpi::data_out_of_range);
                case instrument::outcome::not_allowed:
                    return result::failed(scpi::settings_conflict,
                                          "the configuration cannot be written now");
                case instrument::outcome::unknown_key:
                    break;
            }
            return result::failed(scpi::illegal_parameter_value,
                                  "no parameter " + excerpt(args.value(0)));
        }
        case op::parameter_store:
            if (!target_.store_parameters(id)) {
                return result::failed(scpi::settings_conflict,
                                      "the configuration cannot be written now");
            }
            return result::done();
        default:
            return result::failed(scpi::undefined_header);
    }
}
