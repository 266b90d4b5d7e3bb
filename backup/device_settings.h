#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QtGlobal>

#include <optional>

// A device's configuration rows as a file: what a service engineer saves, compares with a device,
// puts back, or copies onto another device of the same type. Pure data and text, no widgets, so
// that the reader can be fuzzed on its own.
//
// The file is JSON, one row per line, in the device's own row order:
//
//   {
//     "format": "lumivox-device-settings",
//     "format_version": 1,
//     "program": "lumivox v5.1a2b3c",
//     "saved": "2025-03-14T09:26:53+01:00",
//     "device": {"type_id": 14, "model": "VTR-CW-1800", "can_id": 1, "name": "Bench 0"},
//     "rows": [
//       {"code": 81, "label": "CAN ID", "decimals": 0, "wire": 1, "value": "1"},
//       {"code": 37, "label": "Max current, mA", "decimals": 1, "wire": 18000, "value": "1800.0"}
//     ]
//   }
//
// "wire" is the integer the device reported, exactly; "value" is the same number as the dialog
// shows it (wire / 10^decimals), kept for the reader of the file. The two must agree: a file whose
// "value" was edited without its "wire" is refused rather than guessed at.
namespace device_settings {

inline constexpr int format_version = 1;
inline constexpr const char *format_name = "lumivox-device-settings";
// Bounds for reading a file from outside: no real device keeps more rows or longer texts.
inline constexpr qint64 max_file_bytes = 1024 * 1024;
inline constexpr int max_rows = 512;
inline constexpr int max_text_length = 200;
inline constexpr int max_decimals = 9;
// The row that holds the device's own address: a restore leaves it alone unless asked.
inline constexpr int can_id_code = 81;

// One configuration row: the code that writes it (the device reports it under code + 128), its
// label, its decimals and the device's integer.
struct row {
    int code = 0;
    QString label;
    int decimals = 0;
    qint64 wire = 0;
};

struct snapshot {
    QString program;  // the program version that wrote the file
    QDateTime saved;
    int type_id = 0;
    QString model;
    int can_id = 0;
    QString name;
    QVector<row> rows;
};

// The wire value as the dialog shows it: wire / 10^decimals with exactly `decimals` decimals,
// computed on the integer (no rounding).
QString shown_value(qint64 wire, int decimals);

// "1 row", "2 rows".
QString row_count(int rows);

// The program's version as it names itself ("lumivox v5." and the first six digits of its commit).
QString program_version();

QByteArray to_text(const snapshot &settings);

struct read_result {
    std::optional<snapshot> settings;  // none: refused, `error` says why
    QString error;
};

// Reads the text of a settings file; anything else is refused with a sentence an operator can act
// on (not a settings file, damaged where, ends early, made by a newer program, a row that does not
// add up).
read_result from_text(const QByteArray &text);
// The same from a file, read no further than max_file_bytes.
read_result read_file(const QString &path);
// Writes the file whole or not at all (an existing file is replaced only by a complete new one).
bool write_file(const QString &path, const snapshot &settings, QString *error);

// "can001-VTR-CW-1800-20250314-092653.json": CAN id, model (characters that do not belong in a
// file name become "_") and the time of the snapshot.
QString file_name(const snapshot &settings);

// --- Comparison with a device -----------------------------------------------------------------

struct compared_row {
    int code = 0;
    QString label;
    int decimals = 0;
    qint64 device_wire = 0;
    std::optional<qint64> file_wire;  // none: the file lacks the row

    bool in_file() const { return file_wire.has_value(); }
    bool differs() const { return file_wire && *file_wire != device_wire; }
    bool is_can_id() const { return code == can_id_code; }
};

struct comparison {
    QVector<compared_row> rows;  // the device's rows, in its order
    QStringList only_in_file;    // labels of file rows this device does not have (not written)

    // Rows a restore writes: those that differ, the CAN id row only when `with_can_id`.
    QVector<compared_row> to_write(bool with_can_id) const;
    // Rows a restore reads back and checks: every row the file holds, the CAN id row only when
    // `with_can_id`.
    QVector<compared_row> to_check(bool with_can_id) const;
    QStringList missing_from_file() const;
};

// Why the file must not be put on a device of `device_type` (empty: it may).
QString refusal(int device_type, const QString &device_model, const snapshot &file);

comparison compare(const QVector<row> &device_rows, const snapshot &file);

}  // namespace device_settings
