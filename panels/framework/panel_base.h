#pragma once

#include "device_panel.h"
#include "parameter_record.h"
#include "poll_plan.h"
#include "reading.h"

#include <QHash>
#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>

#include <atomic>
#include <functional>
#include <optional>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QToolButton;
class config_dialog;

// One command for the device: write (code, value), or read (code + 128, 0).
struct panel_command {
    int code = 0;
    long value = 0;
    bool operator==(const panel_command &other) const {
        return code == other.code && value == other.value;
    }
};

// What every panel shares. A panel class describes itself with tables (poll plan, parameter list,
// set-point and reply bindings, emission and alarm wiring) and adds only the behaviour that is its
// own; this class then runs the command queue, the poll cycle, the read-back of parameters, the
// configuration dialog, the Enter confirmation, wheel blocking, the alarm box, the collapsible
// header and the first load of the set-points.
//
// Every panel form carries the header widgets `laser_tab_button`, `alt_but_widget` with
// `start_stop_button_alt`, `laser_name_label` and `toolButton`; the slots below that the form
// loader connects by name rely on them. Emission switches named `on_off_button` or `pb_on_off`,
// every progress bar and a frame named `groupBox` get the common look.
//
// A panel's constructor, in this order: ui->setupUi(this); set_poll_plan(); set_parameters();
// the bind_...() calls for its replies, set-points, emission, TEC and alarm; the set_...() calls
// where its dialog differs (store commands, live change, hint); finish_setup(body). It overrides
// refresh_display(), load_setpoints() and header_summary(), and declares the by-name slots of
// its own widgets, each a line that calls into the services below.
class panel_base : public device_panel {
    Q_OBJECT
public:
    ~panel_base() override;

    void set_display_name(const QString &name) override;
    void set_type_name(const QString &name) override;

    // The description, read by the device set-up and by tests.
    const poll_plan &plan() const { return plan_; }
    const parameter_list &parameters() const { return parameters_; }
    // Every configuration value has been reported (the first sync can run).
    bool all_parameters_known() const;
    // Removes the parameter at `position` (device types that lack one).
    void remove_parameter(int position);
    // Commands that "Write" appends after the writes and read requests.
    const QVector<panel_command> &store_commands() const { return store_commands_; }
    bool has_configuration_dialog() const { return dialog_available_; }
    // What a dialog row shows for a parameter not yet reported.
    QString dialog_unknown_text() const { return dialog_unknown_text_; }
    config_dialog *configuration_dialog() const;
    // Widgets on which Return/Enter asks for confirmation and, on Yes, sends (the enabled ones).
    QList<QWidget *> setpoint_widgets() const;
    // Widgets whose wheel events are swallowed.
    QList<QWidget *> wheel_blocked_widgets() const { return watched_; }
    int queued_commands() const { return queue_.size(); }
    bool body_shown() const;
    bool emission_on() const { return emission_on_; }
    // Every reading the panel shows, as described by its constructor.
    const QVector<reading_spec> &readings() const { return readings_; }
    // What the write command `code` sets, as described for observers (describe_command()): the
    // quantity, its unit, and the wire value's scale and offset. False when it is not described.
    bool command_description(int code, QString *quantity, QString *unit, double *scale,
                             double *offset) const {
        const auto found = command_names_.constFind(code);
        if (found == command_names_.constEnd()) {
            return false;
        }
        *quantity = found->quantity;
        *unit = found->unit;
        *scale = found->scale;
        *offset = found->offset;
        return true;
    }

    // --- Set-points and emission for callers without widgets (scripts, restores) -----------------
    // A set-point the operator can send with Enter, named by a stable key.
    struct setpoint_entry {
        QString key;       // e.g. "current", "temperature", "frequency"
        QString widget;    // object name of the widget the operator types into
        QString quantity;  // as the panel names it
        QString unit;      // the unit the value is given in (the widget's at the moment)
        double minimum = 0;
        double maximum = 0;
        int decimals = 0;
    };
    // The keyed set-points, in binding order (disabled ones included).
    QVector<setpoint_entry> setpoints() const;
    enum class setpoint_result { queued, unknown_key, out_of_range, not_allowed };
    // Sends `value` as the operator would by typing it into the set-point widget named `key` and
    // confirming with Yes: the widget's limits and decimals apply, then the same code, scale and
    // truncation. Nothing is queued unless the result is `queued`; a disabled widget is
    // `not_allowed`, a value outside the widget's limits `out_of_range`.
    setpoint_result write_setpoint(const QString &key, double value);
    // The value the set-point widget named `key` holds; none for an unknown key.
    std::optional<double> setpoint_value(const QString &key) const;
    // Whether the panel has an emission switch; request_emission() clicks it as the operator
    // would (false when there is none).
    bool has_emission() const { return !emission_write_codes_.isEmpty(); }
    bool request_emission(bool on);

    // --- Configuration parameters for callers without widgets (scripts) ------------------------
    // Writes the parameter with `code` as the configuration dialog does, then reads it back: the
    // dialog's decimals and range apply, then the same scale and truncation. `not_allowed` while
    // the operator could not open the dialog (the panel has none, a row is not yet reported, or
    // emission or the TEC is on); `unknown_key` for a code that is not a row of the panel.
    setpoint_result write_parameter(int code, double value);
    // Whether write_parameter() and store_parameters() may send now.
    bool parameters_writable() const;
    // Queues the store commands that the dialog's "Write" ends with; false when not allowed.
    bool store_parameters();

    // The note shown in the configuration dialog unless the panel gives its own: how to reach a
    // device for changing its CAN id.
    static QString usb_can_id_hint();
    // Names of alarm bits 0 to 9 of the drivers' common alarm word (the raw flag names are shown
    // as the devices name them).
    static QStringList driver_alarm_texts();

    // --- Configuration rows as the device's integers (backup and restore of its memory) --------
    // Each goes through the command queue as the dialog's own changes do, without the checks of
    // write_parameter() and store_parameters(): the caller has made its own. Writes (code, wire),
    // then asks for the row back with (code + 128, 0), as a live change of a dialog row does.
    void write_parameter_wire(int code, qint64 wire);
    // Asks for the row again: (code + 128, 0).
    void read_parameter(int code) { queue_read(code); }
    // Queues the store command(s) that the dialog's "Write" ends with.
    void queue_store_commands();

signals:
    // After every report the panel takes and every set-point it sends (see panel_observation).
    void sig_observed(const panel_observation &observation);
    // A configuration row was reported, after its record took the value: the row's write code and
    // the integer on the wire.
    void sig_parameter_reported(int code, qint64 wire);

public slots:
    void sl_refresh_state() override;
    void sl_parsed_data_received(int code, long value) override;
    // The configuration dialog's "Write": every row written, every row read back, then the store
    // commands.
    void close_prefs_dialog();
    void on_toolButton_clicked();
    void on_laser_tab_button_clicked();
    void on_start_stop_button_alt_clicked(bool checked);

public:
    // A configuration dialog spin box changed: write that parameter and read it back. Connected
    // with a typed connection (the form loader would look for an object called "pref").
    void on_pref_changed(double value);

protected:
    explicit panel_base(QWidget *parent);

    // --- Description, given by the panel's constructor -----------------------------------------
    // Both mark every parameter unknown with the plan's mark, whichever comes first.
    void set_poll_plan(const poll_plan &plan);
    void set_parameters(const parameter_list &parameters);
    // The store command(s) after "Write" (default (82, 0)); live change off: dialog values are
    // sent only by "Write".
    void set_store_commands(const QVector<panel_command> &commands) { store_commands_ = commands; }
    void set_live_change(bool on) { live_change_ = on; }
    void set_dialog_available(bool available) { dialog_available_ = available; }
    void set_dialog_hint(const QString &hint) { dialog_hint_ = hint; }
    void set_dialog_unknown_text(const QString &text) { dialog_unknown_text_ = text; }

    // Reply `reading.code` stores value / divisor into `field` and, when given, shows it in `label`
    // (sized once for the reading's widest text). The description also names the reading for the
    // recorder and the trend window.
    void bind_reading(const reading_spec &reading, double *field, QLabel *label = nullptr);
    // Reply `code` stores the value as it is; a named state is also observed, shown as
    // `text(value)` when that is given.
    void bind_state(int code, int *field, const QString &key = {}, const QString &quantity = {},
                    std::function<QString(int)> text = {});
    // Names what a write command sets, for observers: (value on the wire - offset) / scale, in
    // `unit`. Set-points bound with a code and scale are described from the reading reported
    // under code + 128 when there is one.
    void describe_command(int code, const QString &key, const QString &quantity,
                          const QString &unit, double scale, double offset = 0);
    // Reply `code` runs `handler` (after the stored fields of the same code).
    void bind_reply(int code, std::function<void(long)> handler);

    // An on/off state: reply `report_code` stores it in `state`, sets `state_label` to `on_text`
    // or `off_text` and checks the `switches` without sending. What a switch click sends is the
    // panel's own.
    void bind_switch(int report_code, bool *state, QLabel *state_label,
                     QList<QAbstractButton *> switches, const QString &key, const QString &quantity,
                     const QString &on_text, const QString &off_text);
    // Emission: an on/off state (bind_switch, "ON"/"OFF") that also emits send_emission(); a
    // switch click queues (code, on) for each of `write_codes` in order.
    void bind_emission(int report_code, QLabel *state_label, QList<QAbstractButton *> switches,
                       QVector<int> write_codes);
    // TEC on/off: reply `report_code` checks `box`; clicking it queues (write_code, on). A TEC
    // that is on keeps the configuration closed.
    void bind_tec(int write_code, int report_code, QCheckBox *box);
    // Alarm word: reply `report_code`; `widgets` are shown while the word is non-zero; bit i is
    // named by texts[i] in the details box.
    void bind_alarm(int report_code, const QStringList &texts, QList<QWidget *> widgets,
                    int initial_word = 0);

    // Return/Enter on `widget` asks "Send command on <name>?"; on Yes `on_yes` runs (empty: the
    // box is asked and nothing is sent). A disabled widget asks nothing. Wheel events on `widget`
    // are swallowed. A double spin box given a `key` can also be sent by write_setpoint(); `unit`
    // tells what its value is in at the moment.
    void bind_setpoint(QWidget *widget, std::function<void()> on_yes, const QString &key = {},
                       const QString &quantity = {}, std::function<QString()> unit = {});
    // The common case: on Yes queue (code, value × scale) and keep the value's text with
    // `text_decimals` decimals in `kept_text` (when given).
    void bind_setpoint(QDoubleSpinBox *spin, int code, double scale, QString *kept_text = nullptr,
                       int text_decimals = 1);
    // Only swallow wheel events on `widget`.
    void block_wheel(QWidget *widget);

    // Looks up the header widgets, applies the common look, and shows the initial state. The
    // panel's constructor calls it last, with the widget that the header button collapses.
    void finish_setup(QWidget *body);

    // --- Behaviour the panel supplies -----------------------------------------------------------
    // Labels, limits, indicators: everything of the refresh that is the panel's own.
    virtual void refresh_display() {}
    // First sync: load the set-point widgets from the reported values; true when every one was
    // known (the load is then never repeated).
    virtual bool load_setpoints() { return true; }
    // Text between the brackets of the collapsed header; empty: the display name alone.
    virtual QString header_summary() const { return {}; }
    // Whether the configuration may be opened beside every parameter being known.
    virtual bool configuration_allowed() const;
    // An emission switch was clicked.
    virtual void emission_switch_clicked(bool checked);

    // --- Services -------------------------------------------------------------------------------
    void queue_command(int code, long value);
    void queue_read(int code) { queue_command(code + 128, 0); }
    void queue_tec(bool on);
    // Value of the parameter at `position`, or the unknown mark when there is none.
    double parameter_value(int position) const;
    // Value of the parameter with `code`, or the unknown mark when there is none.
    double parameter_by_code(int code) const;
    bool is_known(double value) const { return !plan_.is_unknown(value); }
    void mark_parameters_unknown();
    int alarm_word() const { return alarm_word_; }
    int tec_state() const { return tec_state_; }
    // The texts of the alarm word's set bits 0 to 15; bits without a text are skipped.
    QStringList alarm_text() const;
    // The alarm details box: alarm_text(), one per line.
    void show_alarm_details();
    // Gives `widget` a style sheet of its own, keeping the form's font.
    static void apply_style(QWidget *widget, const QString &sheet);
    // Sets the label's text only when it changes (see widget_update).
    static void show_text(QLabel *label, const QString &text);
    // Sizes a value label once for the widest text it shows, so later texts repaint it alone.
    static void reserve_text(QLabel *label, const QString &widest);
    // Sets the spin box's limits and the limit labels when both values are known.
    void show_limits(QDoubleSpinBox *spin, QLabel *max_label, QLabel *min_label, double high,
                     double low, int decimals) const;
    // Sets an indicator bar to the truncated percentage of `value` between `low` and `high`;
    // an unknown value or a zero span leaves the bar empty.
    void show_indicator(QProgressBar *bar, double value, double low, double high) const;
    // Runs the whole display refresh.
    void refresh();
    // The header button text for the current collapsed state.
    void refresh_header();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct command_name {
        QString key;
        QString quantity;
        QString unit;
        double scale = 1;
        double offset = 0;
    };

    void take_parameter_report(int code, long value);
    // Whether sig_observed has receivers. Qt's own check takes a lock that the serial link's
    // thread holds while it queues an answer for this panel, so asking it on every report often
    // put the GUI thread to sleep; the answer is kept until a connection of the signal changes.
    bool observed() const;
    void connectNotify(const QMetaMethod &signal) override;
    void disconnectNotify(const QMetaMethod &signal) override;
    void observe(panel_observation::kind_t kind, const QString &key, const QString &quantity,
                 double value, const QString &unit, const QString &text = {});
    void observe_sent(const panel_command &command);

    mutable std::atomic<int> observed_state_{-1};  // -1: ask Qt, else 0 or 1
    poll_plan plan_;
    parameter_list parameters_;
    QVector<panel_command> queue_;
    int poll_index_ = 0;
    QVector<panel_command> store_commands_{{82, 0}};
    bool live_change_ = true;
    bool dialog_available_ = true;
    QString dialog_hint_ = usb_can_id_hint();
    QString dialog_unknown_text_ = QStringLiteral("N/A");
    QPointer<config_dialog> dialog_;

    QHash<int, QVector<std::function<void(long)>>> reply_handlers_;  // in binding order
    QVector<reading_spec> readings_;
    QHash<int, command_name> command_names_;
    QHash<QString, double> last_observed_;  // by key

    QVector<int> emission_write_codes_;
    bool emission_on_ = false;

    QCheckBox *tec_box_ = nullptr;
    int tec_write_code_ = -1;
    int tec_state_ = -1;

    QStringList alarm_texts_;
    QList<QWidget *> alarm_widgets_;
    int alarm_word_ = 0;

    QHash<QWidget *, std::function<void()>> setpoints_;
    struct setpoint_name {
        QString key;
        QString quantity;
        std::function<QString()> unit;
    };
    QHash<QWidget *, setpoint_name> setpoint_names_;
    QList<QWidget *> setpoint_order_;
    QList<QWidget *> watched_;

    bool first_sync_pending_ = true;
    QWidget *body_ = nullptr;
    QPushButton *tab_button_ = nullptr;
    QLabel *name_label_ = nullptr;
    QToolButton *tool_button_ = nullptr;
};
