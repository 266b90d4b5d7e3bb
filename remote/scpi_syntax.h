#pragma once

#include <QByteArray>
#include <QVector>

#include <optional>

// The text of the command language, without meaning: a line cut into program units at ';', each
// unit's header (nodes with their numeric suffixes, a query mark) and its arguments, numbers in
// every form the language allows, and the answers' number and string forms. Pure functions on
// bytes; the caller has already checked that the line holds printable ASCII only.
namespace scpi {

// Error codes and their standard texts.
enum error_code {
    no_error = 0,
    command_error = -100,
    invalid_character = -101,
    data_type_error = -104,
    parameter_not_allowed = -108,
    missing_parameter = -109,
    undefined_header = -113,
    settings_conflict = -221,
    data_out_of_range = -222,
    too_much_data = -223,
    illegal_parameter_value = -224,
    hardware_missing = -241,
    queue_overflow = -350,
};
const char *error_text(int code);

// One node of a header as typed: "DEV12" is the mnemonic "DEV" with suffix 12.
struct node {
    QByteArray mnemonic;
    int suffix = -1;  // none
};

struct argument {
    QByteArray text;  // a quoted string without its quotes (doubled quotes made single)
    bool quoted = false;
};

// One program unit: a common command ("*IDN?": `common`, one node "IDN") or a header path.
struct unit {
    bool common = false;
    bool absolute = false;  // the header starts with ':'
    QVector<node> path;
    bool query = false;
    QVector<argument> arguments;
};

struct syntax_error {
    int code = command_error;
    QByteArray detail;
};

// The units of a line: its parts between ';' outside quoted strings, blank ones left out. A quote
// left open makes the rest of the line one unit (which then fails to parse).
QVector<QByteArray> split_units(const QByteArray &line);

// Reads one unit; false with `error` set when it does not follow the syntax.
bool parse_unit(const QByteArray &text, unit *out, syntax_error *error);

// Whether the typed mnemonic names `pattern`, given in the long form with the short form in
// upper case ("DEVice"): either form exactly, in any case.
bool names(const QByteArray &typed, const char *pattern);

// A number in any of the language's forms: decimal with optional sign, point and exponent
// ("12", "-1.5", ".5", "2E3"), based integers ("#H1F", "#Q17", "#B101"), INF, NINF and NAN.
std::optional<double> parse_number(const QByteArray &text);

// ON, OFF, or a number that rounds to 1 or 0. `not_a_boolean` is set when the text is neither a
// boolean word nor a number (a number that rounds to something else leaves it clear).
std::optional<bool> parse_boolean(const QByteArray &text, bool *not_a_boolean);

// A value as answered: plain decimals without exponent, trailing zeros dropped ("21.5", "100",
// "-0.25"); NAN, INF and NINF for what is not a finite number.
QByteArray format_number(double value);
// A string as answered: in double quotes, inner double quotes doubled.
QByteArray quoted(const QByteArray &text);

}  // namespace scpi
