#include "slcan_adapter.h"

#include "sim_bus.h"
#include "sim_frame.h"

namespace {

const QByteArray ok = QByteArrayLiteral("\r");
const QByteArray bell = QByteArrayLiteral("\a");

}  // namespace

QByteArray slcan_adapter::feed(const QByteArray &bytes) {
    QByteArray out;
    for (const char c : bytes) {
        if (c != '\r' && c != '\n') {
            if (pending_.size() < max_command_length) {
                pending_.append(c);
            } else {
                overflow_ = true;
            }
            continue;
        }
        if (overflow_) {
            // An overlong line is no command at all.
            ++refused_;
            out.append(bell);
        } else if (!pending_.isEmpty()) {
            out.append(command(pending_));
        }
        pending_.clear();
        overflow_ = false;
    }
    return out;
}

QByteArray slcan_adapter::command(const QByteArray &line) {
    if (line == "O") {
        open_ = true;
        return ok;
    }
    if (line == "C") {
        open_ = false;
        return ok;
    }
    if (line.size() == 2 && line.at(0) == 'S' && line.at(1) >= '0' && line.at(1) <= '8') {
        bit_rate_ = line.at(1) - '0';
        return ok;
    }
    if (line.startsWith('t') && open_) {
        if (const auto frame = sim_frame::parse_request(line)) {
            ++frames_;
            return bus_.deliver(*frame);
        }
    }
    ++refused_;
    return bell;
}
