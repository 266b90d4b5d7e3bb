#include "poll_plan.h"

int poll_plan::first_unknown_position() const {
    return unknown_rows_from < 0 ? read_codes.size() : unknown_rows_from;
}

std::optional<int> poll_step(const poll_plan &plan, const parameter_list &parameters, int &index) {
    std::optional<int> request;
    if (index >= 0 && index < plan.read_codes.size() &&
        plan.read_codes[index] != poll_plan::silent) {
        request = plan.read_codes[index];
    }
    int count = plan.first_unknown_position() - 1;
    for (const parameter_record &record : parameters) {
        if (plan.is_unknown(record.value)) {
            ++count;
            if (count == index) {
                request = record.code + 128;
            }
        }
    }
    ++index;
    if (index > count) {
        index = 0;
    }
    return request;
}
