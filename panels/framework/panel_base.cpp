#include "panel_base.h"

#include "config_dialog.h"
#include "message_route.h"
#include "panel_style.h"
#include "scaling.h"
#include "settings_actions.h"
#include "widget_update.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QGroupBox>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMetaMethod>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>
#include <QtDebug>

#include <algorithm>
#include <cmath>

namespace {

// Readings (as opposed to parameters) are unknown while they hold -1.0 in every panel.
bool reading_known(double value) {
    return value != -1.0;
}

}  // namespace

panel_base::panel_base(QWidget *parent) : device_panel(parent) {}

void panel_base::apply_style(QWidget *widget, const QString &sheet) {
    // A widget given a style sheet of its own stops inheriting its parent's font; keep the form's.
    const QFont font = widget->font();
    widget->setStyleSheet(sheet);
    widget->setFont(font);
}

QString panel_base::usb_can_id_hint() {
    return tr(
        "To be able to configure device CAN ID in the device parameters window please make sure, "
        "that your PC is connected directly to driver board via mini-USB cable, and \"mini USB "
        "mode\" is set in Settings tab.");
}

QStringList panel_base::driver_alarm_texts() {
    return {
        QStringLiteral("flag_Rebooted"),
        QStringLiteral("flag_ALARM_INTERLOCK"),
        QStringLiteral("flag_Overtemp"),
        QStringLiteral("flag_OverCurrent"),
        QStringLiteral("flag_UnderVoltage_IN"),
        QStringLiteral("flag_OverVoltage_IN"),
        QStringLiteral("flag_UnderVoltage_OUT"),
        QStringLiteral("flag_OverCurrent_IND"),
        tr("Output voltage is higher than 80% of input voltage, \nSOLUTION: increase the input "
           "voltage"),
        tr("Output power is close to MAX"),
    };
}

panel_base::~panel_base() {
    delete dialog_.data();
}

void panel_base::set_display_name(const QString &name) {
    device_panel::set_display_name(name);
    refresh_header();
}

void panel_base::set_type_name(const QString &name) {
    device_panel::set_type_name(name);
    if (name_label_) {
        name_label_->setText(name);
    }
}

void panel_base::set_poll_plan(const poll_plan &plan) {
    plan_ = plan;
    mark_parameters_unknown();
}

void panel_base::set_parameters(const parameter_list &parameters) {
    parameters_ = parameters;
    mark_parameters_unknown();
}

void panel_base::remove_parameter(int position) {
    if (position >= 0 && position < parameters_.size()) {
        parameters_.remove(position);
    }
}

QList<QWidget *> panel_base::setpoint_widgets() const {
    QList<QWidget *> sending;
    for (QWidget *widget : setpoint_order_) {
        if (setpoints_.value(widget) && widget->isEnabled()) {
            sending.append(widget);
        }
    }
    return sending;
}

config_dialog *panel_base::configuration_dialog() const {
    return dialog_.data();
}

bool panel_base::body_shown() const {
    return body_ && !body_->isHidden();
}

// --- Sending ----------------------------------------------------------------------------------

void panel_base::queue_command(int code, long value) {
    queue_.append(panel_command{code, value});
}

void panel_base::sl_refresh_state() {
    if (!queue_.isEmpty()) {
        const panel_command head = queue_.takeFirst();
        emit sig_w_send_command(head.code, head.value);
        observe_sent(head);
        return;
    }
    if (const std::optional<int> code = poll_step(plan_, parameters_, poll_index_)) {
        emit sig_w_send_command(*code, 0);
    }
}

void panel_base::emission_switch_clicked(bool checked) {
    for (int code : emission_write_codes_) {
        queue_command(code, checked ? 1 : 0);
    }
}

void panel_base::on_start_stop_button_alt_clicked(bool checked) {
    emission_switch_clicked(checked);
}

void panel_base::queue_tec(bool on) {
    if (tec_write_code_ >= 0) {
        queue_command(tec_write_code_, on ? 1 : 0);
    }
}

// --- Receiving --------------------------------------------------------------------------------

void panel_base::bind_reading(const reading_spec &reading, double *field, QLabel *label) {
    readings_.append(reading);
    if (label) {
        reserve_text(label, reading.widest_text());
    }
    bind_reply(reading.code, [this, reading, field, label](long value) {
        *field = reading.value(value);
        if (label) {
            show_text(label, reading.text(*field));
        }
        observe(panel_observation::reading, reading.key, reading.quantity, *field, reading.unit);
    });
}

void panel_base::bind_state(int code, int *field, const QString &key, const QString &quantity,
                            std::function<QString(int)> text) {
    bind_reply(code, [this, field, key, quantity, text](long value) {
        *field = static_cast<int>(value);
        if (!key.isEmpty()) {
            observe(panel_observation::state, key, quantity, *field, {},
                    text ? text(*field) : QString());
        }
    });
}

void panel_base::describe_command(int code, const QString &key, const QString &quantity,
                                  const QString &unit, double scale, double offset) {
    command_names_.insert(code, command_name{key, quantity, unit, scale, offset});
}

void panel_base::bind_reply(int code, std::function<void(long)> handler) {
    reply_handlers_[code].append(std::move(handler));
}

void panel_base::bind_switch(int report_code, bool *state, QLabel *state_label,
                             QList<QAbstractButton *> switches, const QString &key,
                             const QString &quantity, const QString &on_text,
                             const QString &off_text) {
    bind_reply(report_code,
               [this, state, state_label, switches, key, quantity, on_text, off_text](long value) {
                   *state = value != 0;
                   if (state_label) {
                       show_text(state_label, *state ? on_text : off_text);
                   }
                   // setChecked() does not emit clicked(): reflecting the report sends nothing.
                   for (QAbstractButton *button : switches) {
                       button->setChecked(*state);
                   }
                   observe(panel_observation::state, key, quantity, *state ? 1 : 0, {},
                           *state ? on_text : off_text);
               });
}

void panel_base::bind_emission(int report_code, QLabel *state_label,
                               QList<QAbstractButton *> switches, QVector<int> write_codes) {
    emission_write_codes_ = std::move(write_codes);
    bind_switch(report_code, &emission_on_, state_label, std::move(switches),
                QStringLiteral("emission"), tr("Emission"), tr("ON"), tr("OFF"));
    bind_reply(report_code, [this](long) { emit send_emission(emission_on_ ? 1 : 0); });
    for (int code : emission_write_codes_) {
        describe_command(code, QStringLiteral("emission"), tr("Emission"), {}, 1);
    }
}

void panel_base::bind_tec(int write_code, int report_code, QCheckBox *box) {
    tec_box_ = box;
    tec_write_code_ = write_code;
    bind_reply(report_code, [this](long value) {
        tec_state_ = static_cast<int>(value);
        tec_box_->setChecked(tec_state_ != 0);
        observe(panel_observation::state, QStringLiteral("tec"), tr("TEC"), tec_state_ != 0 ? 1 : 0,
                {}, tec_state_ != 0 ? tr("ON") : tr("OFF"));
    });
    describe_command(write_code, QStringLiteral("tec"), tr("TEC"), {}, 1);
}

void panel_base::bind_alarm(int report_code, const QStringList &texts, QList<QWidget *> widgets,
                            int initial_word) {
    alarm_texts_ = texts;
    alarm_widgets_ = std::move(widgets);
    alarm_word_ = initial_word;
    bind_state(report_code, &alarm_word_, QStringLiteral("alarm"), tr("Alarm"),
               [this](int) { return alarm_text().join(QStringLiteral("; ")); });
}

void panel_base::sl_parsed_data_received(int code, long value) {
    const auto handlers = reply_handlers_.value(code);
    for (const auto &handler : handlers) {
        handler(value);
    }
    take_parameter_report(code, value);
    refresh();
}

void panel_base::take_parameter_report(int code, long value) {
    for (parameter_record &record : parameters_) {
        if (record.code + 128 == code) {
            record.value = static_cast<double>(value) / scaling::pow10(record.decimals);
            record.wire = value;
            observe(panel_observation::parameter, QString::number(record.code), record.label,
                    record.value, {});
            emit sig_parameter_reported(record.code, record.wire);
        }
    }
}

// --- Observers --------------------------------------------------------------------------------

bool panel_base::observed() const {
    int state = observed_state_.load();
    if (state < 0) {
        static const QMetaMethod signal = QMetaMethod::fromSignal(&panel_base::sig_observed);
        state = isSignalConnected(signal) ? 1 : 0;
        observed_state_.store(state);
    }
    return state == 1;
}

void panel_base::connectNotify(const QMetaMethod &signal) {
    if (signal == QMetaMethod::fromSignal(&panel_base::sig_observed)) {
        observed_state_.store(-1);
    }
}

void panel_base::disconnectNotify(const QMetaMethod &signal) {
    // An invalid method: every signal of the panel was disconnected at once.
    if (!signal.isValid() || signal == QMetaMethod::fromSignal(&panel_base::sig_observed)) {
        observed_state_.store(-1);
    }
}

void panel_base::observe(panel_observation::kind_t kind, const QString &key,
                         const QString &quantity, double value, const QString &unit,
                         const QString &text) {
    if (!observed()) {
        return;
    }
    panel_observation observation{kind, quantity, value, unit, text, true, key};
    if (kind != panel_observation::setpoint) {
        const auto last = last_observed_.constFind(key);
        observation.changed = last == last_observed_.constEnd() || *last != value;
        last_observed_.insert(key, value);
    }
    emit sig_observed(observation);
}

void panel_base::observe_sent(const panel_command &command) {
    if (command.code >= 128 || !observed()) {
        return;  // a read request
    }
    for (const parameter_record &record : qAsConst(parameters_)) {
        if (record.code == command.code) {
            observe(panel_observation::setpoint, QString::number(record.code), record.label,
                    command.value / scaling::pow10(record.decimals), {});
            return;
        }
    }
    const auto name = command_names_.constFind(command.code);
    if (name != command_names_.constEnd()) {
        observe(panel_observation::setpoint, name->key, name->quantity,
                (command.value - name->offset) / name->scale, name->unit);
    } else {
        observe(panel_observation::setpoint, QStringLiteral("command_%1").arg(command.code),
                tr("Command %1").arg(command.code), command.value, {});
    }
}

double panel_base::parameter_value(int position) const {
    if (position < 0 || position >= parameters_.size()) {
        return plan_.unknown_mark;
    }
    return parameters_[position].value;
}

double panel_base::parameter_by_code(int code) const {
    for (const parameter_record &record : parameters_) {
        if (record.code == code) {
            return record.value;
        }
    }
    return plan_.unknown_mark;
}

bool panel_base::all_parameters_known() const {
    for (const parameter_record &record : parameters_) {
        if (plan_.is_unknown(record.value)) {
            return false;
        }
    }
    return true;
}

void panel_base::mark_parameters_unknown() {
    for (parameter_record &record : parameters_) {
        record.value = plan_.unknown_mark;
    }
}

// --- Display ----------------------------------------------------------------------------------

bool panel_base::configuration_allowed() const {
    return !emission_on_ && (tec_box_ == nullptr || tec_state_ == 0);
}

void panel_base::refresh() {
    refresh_display();
    for (QWidget *widget : qAsConst(alarm_widgets_)) {
        widget->setVisible(alarm_word_ != 0);
    }
    if (tool_button_) {
        tool_button_->setEnabled(all_parameters_known() && configuration_allowed());
    }
    if (name_label_) {
        name_label_->setText(type_name());
    }
    if (first_sync_pending_ && all_parameters_known()) {
        first_sync_pending_ = !load_setpoints();
    }
    refresh_header();
    if (dialog_) {
        dialog_->show_values(parameters_);
    }
}

void panel_base::refresh_header() {
    if (!tab_button_) {
        return;
    }
    QString text = display_name();
    if (body_ && body_->isHidden()) {
        const QString summary = header_summary();
        if (!summary.isEmpty()) {
            text += QStringLiteral(" (") + summary + QLatin1Char(')');
        }
    }
    tab_button_->setText(text);
}

void panel_base::show_text(QLabel *label, const QString &text) {
    widget_update::set_text(label, text);
}

void panel_base::reserve_text(QLabel *label, const QString &widest) {
    widget_update::reserve_width(label, widest);
}

void panel_base::show_limits(QDoubleSpinBox *spin, QLabel *max_label, QLabel *min_label,
                             double high, double low, int decimals) const {
    if (is_known(high)) {
        // Limits reported the wrong way round end as the spin box makes them (both at the
        // minimum); aiming at that state keeps later refreshes from setting them again.
        widget_update::set_maximum(spin, is_known(low) ? std::max(high, low) : high);
        if (max_label) {
            show_text(max_label, QString::number(high, 'f', decimals));
        }
    }
    if (is_known(low)) {
        widget_update::set_minimum(spin, low);
        if (min_label) {
            show_text(min_label, QString::number(low, 'f', decimals));
        }
    }
}

void panel_base::show_indicator(QProgressBar *bar, double value, double low, double high) const {
    std::optional<int> share;
    if (reading_known(value) && is_known(low) && is_known(high)) {
        share = scaling::percent(value, low, high);
    }
    widget_update::set_bar(bar, share);
}

void panel_base::on_laser_tab_button_clicked() {
    if (body_) {
        body_->setHidden(!body_->isHidden());
    }
    refresh_header();
}

QStringList panel_base::alarm_text() const {
    QStringList set;
    for (int bit = 0; bit < 16; ++bit) {
        if ((alarm_word_ & (1 << bit)) && bit < alarm_texts_.size()) {
            set.append(alarm_texts_[bit]);
        }
    }
    return set;
}

void panel_base::show_alarm_details() {
    QString text;
    for (const QString &line : alarm_text()) {
        text += line + QLatin1Char('\n');
    }
    inform(this, tr("WARNING"), text);
}

// --- Set-points and wheel ---------------------------------------------------------------------

void panel_base::block_wheel(QWidget *widget) {
    if (!watched_.contains(widget)) {
        watched_.append(widget);
        widget->installEventFilter(this);
    }
}

void panel_base::bind_setpoint(QWidget *widget, std::function<void()> on_yes, const QString &key,
                               const QString &quantity, std::function<QString()> unit) {
    if (!key.isEmpty() && on_yes) {
        setpoint_names_.insert(widget, setpoint_name{key, quantity, std::move(unit)});
    }
    setpoints_.insert(widget, std::move(on_yes));
    setpoint_order_.append(widget);
    block_wheel(widget);
    if (qobject_cast<QAbstractSpinBox *>(widget)) {
        apply_style(widget, panel_style::setpoint());
    }
}

void panel_base::bind_setpoint(QDoubleSpinBox *spin, int code, double scale, QString *kept_text,
                               int text_decimals) {
    if (!command_names_.contains(code)) {
        for (const reading_spec &reading : qAsConst(readings_)) {
            if (reading.code == code + 128) {
                describe_command(code, reading.key, reading.quantity, reading.unit, scale);
            }
        }
    }
    const command_name name = command_names_.value(code);
    bind_setpoint(
        spin,
        [this, spin, code, scale, kept_text, text_decimals] {
            const double value = spin->value();
            if (kept_text) {
                *kept_text = QString::number(value, 'f', text_decimals);
            }
            queue_command(code, scaling::to_wire(value, scale));
        },
        name.key, name.quantity, [unit = name.unit] { return unit; });
}

QVector<panel_base::setpoint_entry> panel_base::setpoints() const {
    QVector<setpoint_entry> entries;
    for (QWidget *widget : setpoint_order_) {
        const auto name = setpoint_names_.constFind(widget);
        auto *spin = qobject_cast<QDoubleSpinBox *>(widget);
        if (name == setpoint_names_.constEnd() || !spin) {
            continue;
        }
        entries.append(setpoint_entry{name->key, spin->objectName(), name->quantity,
                                      name->unit ? name->unit() : QString(), spin->minimum(),
                                      spin->maximum(), spin->decimals()});
    }
    return entries;
}

std::optional<double> panel_base::setpoint_value(const QString &key) const {
    for (auto name = setpoint_names_.constBegin(); name != setpoint_names_.constEnd(); ++name) {
        if (name->key == key) {
            if (auto *spin = qobject_cast<QDoubleSpinBox *>(name.key())) {
                return spin->value();
            }
        }
    }
    return std::nullopt;
}

panel_base::setpoint_result panel_base::write_setpoint(const QString &key, double value) {
    for (QWidget *widget : qAsConst(setpoint_order_)) {
        const auto name = setpoint_names_.constFind(widget);
        auto *spin = qobject_cast<QDoubleSpinBox *>(widget);
        if (name == setpoint_names_.constEnd() || name->key != key || !spin) {
            continue;
        }
        if (!spin->isEnabled()) {
            return setpoint_result::not_allowed;
        }
        // The spin box keeps what it shows to its decimals, as it does with typed text; the limits
        // are checked on that value, as the spin box would clamp it.
        const double shown = QString::number(value, 'f', spin->decimals()).toDouble();
        if (!std::isfinite(value) || shown < spin->minimum() || shown > spin->maximum()) {
            return setpoint_result::out_of_range;
        }
        spin->setValue(shown);
        setpoints_.value(widget)();
        return setpoint_result::queued;
    }
    return setpoint_result::unknown_key;
}

bool panel_base::request_emission(bool on) {
    if (!has_emission()) {
        return false;
    }
    emission_switch_clicked(on);
    return true;
}

bool panel_base::parameters_writable() const {
    return dialog_available_ && all_parameters_known() && configuration_allowed();
}

panel_base::setpoint_result panel_base::write_parameter(int code, double value) {
    const auto record = std::find_if(parameters_.cbegin(), parameters_.cend(),
                                     [code](const parameter_record &r) { return r.code == code; });
    if (record == parameters_.cend()) {
        return setpoint_result::unknown_key;
    }
    if (!parameters_writable()) {
        return setpoint_result::not_allowed;
    }
    // The dialog's spin box: the row's decimals, from 0 to the largest unsigned 32-bit word.
    const double shown = QString::number(value, 'f', record->decimals).toDouble();
    if (!std::isfinite(value) || shown < 0 || shown > config_dialog::maximum_value) {
        return setpoint_result::out_of_range;
    }
    write_parameter_wire(code, scaling::to_wire(shown, scaling::pow10(record->decimals)));
    return setpoint_result::queued;
}

bool panel_base::store_parameters() {
    if (!parameters_writable()) {
        return false;
    }
    queue_store_commands();
    return true;
}

bool panel_base::eventFilter(QObject *watched, QEvent *event) {
    auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::Wheel && watched_.contains(widget)) {
        qDebug("Wheel event blocked");
        return true;
    }
    // A disabled set-point takes no keys from the operator; the filter sees them all the same.
    if (event->type() == QEvent::KeyPress && setpoints_.contains(widget) && widget->isEnabled()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            // Take what is typed so far, as the spin box itself does on Enter.
            if (auto *spin = qobject_cast<QAbstractSpinBox *>(widget)) {
                spin->interpretText();
            }
            if (confirm(this, tr("Conformation"),
                        tr("Send command on ") + display_name() + QLatin1Char('?'))) {
                if (const std::function<void()> action = setpoints_.value(widget)) {
                    action();
                }
            }
        }
        // The key press goes on to the widget either way.
    }
    return device_panel::eventFilter(watched, event);
}

// --- Configuration dialog ---------------------------------------------------------------------

void panel_base::on_toolButton_clicked() {
    if (!dialog_available_) {
        return;
    }
    delete dialog_.data();
    auto *dialog = new config_dialog(display_name(), parameters_, plan_.unknown_mark,
                                     dialog_unknown_text_, dialog_hint_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog_ = dialog;
    // Connected after the values are set, so building the dialog sends nothing.
    if (live_change_) {
        for (QDoubleSpinBox *spin : dialog->spin_boxes()) {
            connect(spin, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                    &panel_base::on_pref_changed);
        }
    }
    connect(dialog->write_button(), &QPushButton::clicked, this, &panel_base::close_prefs_dialog);
    settings_actions::attach(this, dialog);
    dialog->show();
}

void panel_base::on_pref_changed(double value) {
    const QObject *spin = sender();
    if (!spin) {
        return;
    }
    for (const parameter_record &record : qAsConst(parameters_)) {
        if (record.label == spin->objectName()) {
            queue_command(record.code, scaling::to_wire(value, scaling::pow10(record.decimals)));
            queue_read(record.code);
            return;
        }
    }
}

void panel_base::write_parameter_wire(int code, qint64 wire) {
    queue_command(code, static_cast<long>(wire));
    queue_read(code);
}

void panel_base::queue_store_commands() {
    for (const panel_command &command : qAsConst(store_commands_)) {
        queue_.append(command);
    }
}

void panel_base::close_prefs_dialog() {
    if (!dialog_) {
        return;
    }
    const QList<QDoubleSpinBox *> &spins = dialog_->spin_boxes();
    const int rows = qMin(spins.size(), parameters_.size());
    for (int i = 0; i < rows; ++i) {
        const parameter_record &record = parameters_[i];
        queue_command(record.code,
                      scaling::to_wire(spins[i]->value(), scaling::pow10(record.decimals)));
    }
    for (int i = 0; i < rows; ++i) {
        queue_read(parameters_[i].code);
    }
    queue_store_commands();
}

// --- Set-up -----------------------------------------------------------------------------------

void panel_base::finish_setup(QWidget *body) {
    body_ = body;
    tab_button_ = findChild<QPushButton *>(QStringLiteral("laser_tab_button"));
    name_label_ = findChild<QLabel *>(QStringLiteral("laser_name_label"));
    tool_button_ = findChild<QToolButton *>(QStringLiteral("toolButton"));
    auto *header_switch = findChild<QPushButton *>(QStringLiteral("start_stop_button_alt"));
    const struct {
        const char *name;
        const void *widget;
    } required[] = {{"laser_tab_button", tab_button_},
                    {"laser_name_label", name_label_},
                    {"toolButton", tool_button_},
                    {"start_stop_button_alt", header_switch},
                    {"body", body_}};
    for (const auto &item : required) {
        if (!item.widget) {
            qWarning("%s: the form has no %s", metaObject()->className(), item.name);
        }
    }

    if (tab_button_) {
        apply_style(tab_button_, panel_style::header_button());
    }
    if (header_switch) {
        apply_style(header_switch, panel_style::header_switch());
    }
    for (const char *name : {"on_off_button", "pb_on_off"}) {
        if (auto *button = findChild<QPushButton *>(QLatin1String(name))) {
            apply_style(button, panel_style::body_switch());
        }
    }
    for (QProgressBar *bar : findChildren<QProgressBar *>()) {
        apply_style(bar, panel_style::indicator());
    }
    if (auto *frame = findChild<QGroupBox *>(QStringLiteral("groupBox"))) {
        apply_style(frame, panel_style::panel_frame());
    }
    if (tool_button_) {
        QIcon icon;
        icon.addFile(QStringLiteral(":/interface/conf_icon.png"), QSize(), QIcon::Normal);
        icon.addFile(QStringLiteral(":/interface/conf_icon_disabled.png"), QSize(),
                     QIcon::Disabled);
        tool_button_->setIcon(icon);
        tool_button_->setVisible(dialog_available_);
    }
    refresh();
}
