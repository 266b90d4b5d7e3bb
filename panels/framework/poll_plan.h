#pragma once

#include "parameter_record.h"

#include <QVector>

#include <optional>

// What a panel reads when its command queue is empty: a fixed list of read codes by position
// (some positions deliberately send nothing), then one read of each configuration parameter that
// is still unknown, one per position, starting at `unknown_rows_from`. A parameter is unknown
// while its value equals `unknown_mark` exactly.
struct poll_plan {
    static constexpr int silent = -1;  // a position of the fixed list that sends nothing

    QVector<int> read_codes;
    // Position of the first unknown parameter's read; -1: right after the fixed list. A value past
    // the end of the fixed list makes the positions in between silent.
    int unknown_rows_from = -1;
    double unknown_mark = -1.0;

    int first_unknown_position() const;
    bool is_unknown(double value) const { return value == unknown_mark; }
};

// One poll tick: the read code to request with value 0 (none on a silent tick), and `index` moved
// to the next position. Unknown parameters are counted from the position before the first unknown
// one; when the count reaches `index` that parameter is read. The index wraps to 0 once it has
// passed the last counted position, so a parameter leaves the cycle as soon as it is reported, and
// an index left past the end by a parameter that became known sends nothing and wraps.
std::optional<int> poll_step(const poll_plan &plan, const parameter_list &parameters, int &index);
