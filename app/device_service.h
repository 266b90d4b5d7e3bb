#pragma once

struct program_options;

// The window-less runs for service scripts and production lines: the device set is built as the
// main window builds it (configs/config.ini in the working directory, its port and device table),
// but the window is never shown.
//
//   lumivox --backup DIR [--timeout S]   every configured device's rows into DIR, one file each
//   lumivox --restore FILE --can-id N [--yes] [--timeout S]
//                                        compare FILE with the device at N; with --yes write the
//                                        rows that differ (never the CAN ID row), check, store
namespace device_service {

// Exit codes of both runs (also in --help and the README).
enum exit_code {
    done = 0,           // every device saved; restored and checked (or nothing differed)
    rows_not_taken = 1, // --restore --yes: written and stored, but rows did not take (listed)
    usage = 2,          // wrong command line, or no usable configs/config.ini here
    refused = 3,        // the file cannot be read, is not a settings file, damaged, cut short or
                        // of another device type; or DIR cannot be written (nothing written)
    differs = 4,        // --restore without --yes: rows differ, nothing written
    not_found = 5,      // devices not found or not complete within the timeout (or lost during
                        // a restore); --backup saves the others
};

// The exit codes in words, for --help.
const char *exit_code_help();

// Whether the command line asks for a window-less run.
bool requested(const program_options &options);

// Before the application object exists: a window-less run without a chosen platform (no
// QT_QPA_PLATFORM) uses the offscreen one, so it needs no display.
void prefer_offscreen(int argc, char *argv[]);

// Runs it (the application object exists) and returns the exit code.
int run(const program_options &options);

}  // namespace device_service
