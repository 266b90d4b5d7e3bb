#pragma once
// What the panel tests share: the program's registry, a scripted answerer for message boxes,
// ticking a panel while recording what it sends, and a script runner for operator and device
// actions.

#include "config_dialog.h"
#include "message_route.h"
#include "panel_base.h"
#include "panel_registry.h"
#include "panels.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStringList>
#include <QVector>
#include <QtTest>

#include <memory>
#include <type_traits>

namespace panel_test {

// A registry filled the way the program fills its own.
inline const panel_registry &registry() {
    static panel_registry filled = [] {
        panel_registry r;
        register_panels(r);
        return r;
    }();
    return filled;
}

// Every device type that has a panel.
inline QList<int> panel_types() {
    QList<int> types;
    for (const auto &entry : registry().entries()) {
        if (entry.second.create) {
            types.append(entry.first);
        }
    }
    return types;
}

// The panel of `type` as the device builds it, named as a device would name it.
inline std::unique_ptr<panel_base> make_panel(int type,
                                              const QString &name = QStringLiteral("Seed"),
                                              QWidget *host = nullptr) {
    device_panel *created = registry().create(type, host);
    auto *panel = dynamic_cast<panel_base *>(created);
    if (!panel) {
        delete created;
        return nullptr;
    }
    panel->set_display_name(name);
    return std::unique_ptr<panel_base>(panel);
}

// The panel's widget called `name`. A missing one (renamed in the form) fails the test row that
// asks for it and stands in as a hidden widget of its own, so the other rows still run.
template <class W>
W *child(panel_base &panel, const QString &name) {
    if (W *widget = panel.findChild<W *>(name)) {
        return widget;
    }
    QTest::qFail(qPrintable(QStringLiteral("the panel has no %1 called %2")
                                .arg(QLatin1String(W::staticMetaObject.className()), name)),
                 __FILE__, __LINE__);
    auto *stand_in = new std::conditional_t<std::is_abstract_v<W>, QPushButton, W>(&panel);
    stand_in->setObjectName(name);
    stand_in->hide();
    return stand_in;
}

// Answers the boxes the panels ask, in the order the test expects them. A box that nobody
// expected is answered with no button (nothing confirmed) and recorded, and the test's cleanup
// fails on it.
class box_answerer {
public:
    box_answerer() {
        previous_ = set_message_answerer(
            [this](const message_request &request) { return answer(request); });
    }
    ~box_answerer() { set_message_answerer(previous_); }
    box_answerer(const box_answerer &) = delete;
    box_answerer &operator=(const box_answerer &) = delete;

    void expect(const QString &title, QMessageBox::StandardButton reply) {
        expected_.append({title, reply});
    }
    int pending() const { return expected_.size(); }

    QList<message_request> shown;  // every box asked, in order
    QStringList unexpected;        // title and text of each box nobody expected

    // For a test's cleanup(): fails on a box nobody expected and on an expected box that never
    // came.
    void verify_all_answered() const {
        QVERIFY2(unexpected.isEmpty(), qPrintable(unexpected.join(QStringLiteral(" | "))));
        QCOMPARE(pending(), 0);
    }

private:
    struct expectation {
        QString title;
        QMessageBox::StandardButton reply;
    };

    QMessageBox::StandardButton answer(const message_request &request) {
        shown.append(request);
        if (expected_.isEmpty() || expected_.first().title != request.title) {
            unexpected.append(request.title + QStringLiteral(": ") + request.text);
            return QMessageBox::NoButton;
        }
        return expected_.takeFirst().reply;
    }

    QList<expectation> expected_;
    message_answerer previous_;
};

// The base of the panel tests: each test function answers boxes through `boxes`, and fails on a
// box nobody expected or an expected one that never came.
class boxed_test : public QObject {
    Q_OBJECT

protected:
    std::unique_ptr<box_answerer> boxes;

private slots:
    void init() { boxes = std::make_unique<box_answerer>(); }
    void cleanup() {
        boxes->verify_all_answered();
        boxes.reset();
    }
};

// Marks a tick that sent nothing, and a tick that sent more than one pair.
inline constexpr panel_command nothing{-1, -1};
inline constexpr panel_command several{-2, -2};

// Runs `count` ticks and returns what each sent.
inline QVector<panel_command> run_ticks(panel_base &panel, int count) {
    QSignalSpy spy(&panel, &device_panel::sig_w_send_command);
    QVector<panel_command> sent;
    for (int i = 0; i < count; ++i) {
        const int before = spy.count();
        panel.sl_refresh_state();
        if (spy.count() == before) {
            sent.append(nothing);
        } else if (spy.count() == before + 1) {
            sent.append({spy.last().at(0).toInt(), spy.last().at(1).value<long>()});
        } else {
            sent.append(several);
        }
    }
    return sent;
}

// "(144,0) (145,0) - (148,0)": readable in a failed comparison; "-" is a silent tick.
inline QString text_of(const QVector<panel_command> &commands) {
    QStringList parts;
    for (const panel_command &c : commands) {
        if (c == nothing) {
            parts.append(QStringLiteral("-"));
        } else if (c == several) {
            parts.append(QStringLiteral("MANY"));
        } else {
            parts.append(QStringLiteral("(%1,%2)").arg(c.code).arg(c.value));
        }
    }
    return parts.join(QLatin1Char(' '));
}

// Reports every parameter with the raw wire value `raw(position)`.
template <class Raw>
void report_parameters(panel_base &panel, Raw raw) {
    const parameter_list parameters = panel.parameters();
    for (int i = 0; i < parameters.size(); ++i) {
        panel.sl_parsed_data_received(parameters[i].code + 128, raw(i));
    }
}

// Runs an operator and device script on `panel`, steps separated by spaces: "CODE=VALUE" a report;
// "rows" every configuration row, raw values from `raw` by code; "fill" the rows and every polled
// code the script does not give (as 0), so that the first fill runs; "yes", "no", "ok" answer the
// next box; "ret:W" Return on W; "click:W"; "type:W=TEXT" types TEXT into W; "up:N" the up arrow
// on row N of the configuration dialog; "write" the dialog's "Write" (both open the dialog unless
// it is open); "W=V" picks item V of a combo box as the operator does, or sets a spin box;
// "W.PROPERTY=V" sets a property.
inline void run_script(panel_base &panel, box_answerer &boxes, const QString &script,
                       const QMap<int, long> &raw) {
    const QMap<QString, QMessageBox::StandardButton> answers{
        {"yes", QMessageBox::Yes}, {"no", QMessageBox::No}, {"ok", QMessageBox::Ok}};
    for (const QString &step : script.split(' ', Qt::SkipEmptyParts)) {
        const QString name = step.section(':', -1).section('=', 0, 0);
        const QString value = step.section('=', 1);
        if (step == QLatin1String("rows") || step == QLatin1String("fill")) {
            for (int code : panel.plan().read_codes) {
                if (step == QLatin1String("fill") && code != poll_plan::silent &&
                    !script.contains(QString::number(code) + '=')) {
                    panel.sl_parsed_data_received(code, 0);
                }
            }
            const parameter_list rows = panel.parameters();
            report_parameters(panel, [&](int i) { return raw.value(rows[i].code); });
        } else if (step.at(0).isDigit()) {
            panel.sl_parsed_data_received(name.toInt(), value.toLong());
        } else if (answers.contains(step)) {
            boxes.expect(step == "ok" ? "WARNING" : "Conformation", answers[step]);
        } else if (step.startsWith(QLatin1String("ret:"))) {
            QTest::keyClick(child<QWidget>(panel, name), Qt::Key_Return);
        } else if (step.startsWith(QLatin1String("click:"))) {
            child<QAbstractButton>(panel, name)->click();
        } else if (step == QLatin1String("write") || step.startsWith(QLatin1String("up:"))) {
            if (!panel.configuration_dialog()) {
                panel.on_toolButton_clicked();
            }
            config_dialog *dialog = panel.configuration_dialog();
            if (step == QLatin1String("write")) {
                dialog->write_button()->click();
            } else {
                QTest::keyClick(dialog->spin_boxes().at(name.toInt()), Qt::Key_Up);
            }
        } else if (step.startsWith(QLatin1String("type:"))) {
            auto *spin = child<QAbstractSpinBox>(panel, name);
            spin->clear();
            QTest::keyClicks(spin, value);
        } else if (auto *combo =
                       qobject_cast<QComboBox *>(child<QWidget>(panel, name.section('.', 0, 0)))) {
            combo->setCurrentIndex(value.toInt());
            emit combo->activated(combo->currentIndex());
        } else {
            const QString property = name.section('.', 1);
            child<QWidget>(panel, name.section('.', 0, 0))
                ->setProperty(property.isEmpty() ? "value" : qPrintable(property),
                              value.toDouble());
        }
    }
}

// What `key` shows: "box" the last box's text; "rows" the parameters as code/decimals/step;
// "labels" their labels; "W.hidden"; "W.exists"; "W.item<i>" (can combo item i be chosen);
// otherwise "W.PROPERTY".
inline QString script_state(panel_base &panel, const box_answerer &boxes, const QString &key) {
    const QString property = key.section('.', 1);
    if (key == QLatin1String("box")) {
        return boxes.shown.isEmpty() ? QString() : boxes.shown.last().text;
    }
    if (key == QLatin1String("rows") || key == QLatin1String("labels")) {
        QStringList rows;
        for (const parameter_record &r : panel.parameters()) {
            rows << (key == QLatin1String("labels")
                         ? r.label
                         : QStringLiteral("%1/%2/%3").arg(r.code).arg(r.decimals).arg(r.step));
        }
        return rows.join(key == QLatin1String("labels") ? '|' : ' ');
    }
    if (property == QLatin1String("exists")) {
        return QVariant(panel.findChild<QWidget *>(key.section('.', 0, 0)) != nullptr).toString();
    }
    QWidget *w = child<QWidget>(panel, key.section('.', 0, 0));
    if (property.startsWith(QLatin1String("item"))) {
        auto *items = static_cast<QStandardItemModel *>(static_cast<QComboBox *>(w)->model());
        return QVariant(items->item(property.mid(4).toInt())->isEnabled()).toString();
    }
    return property == QLatin1String("hidden") ? QVariant(w->isHidden()).toString()
                                               : w->property(qPrintable(property)).toString();
}

// A script table: each row names a device `type`, a `script` for run_script() and the `checks`.
inline void script_columns() {
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("checks");
}
inline void script_row(const char *name, int type, const QString &script, const QString &checks) {
    QTest::newRow(name) << type << script << checks;
}

// Runs the current row of a script table: a panel of its type runs the script, then each of the
// checks (separated by ";") holds: "sent=..." the ticks that follow, or "KEY=VALUE" for
// script_state(). Nothing is left queued.
inline void check_script(box_answerer &boxes, const QMap<int, long> &raw) {
    QFETCH(int, type);
    QFETCH(QString, script);
    QFETCH(QString, checks);
    auto panel = make_panel(type);
    QVERIFY2(panel, qPrintable(QStringLiteral("no panel for type %1").arg(type)));
    run_script(*panel, boxes, script, raw);
    for (const QString &check : checks.split(';', Qt::SkipEmptyParts)) {
        const QString key = check.section('=', 0, 0);
        const QString got = key == QLatin1String("sent")
                                ? text_of(run_ticks(*panel, check.count(' ') + 1))
                                : script_state(*panel, boxes, key);
        QCOMPARE(key + '=' + got, check);
    }
    QCOMPARE(panel->queued_commands(), 0);
}

// One wheel notch over `widget`: up (towards larger spin box values and earlier combo items) for
// a positive `notches`, down for a negative one.
inline void turn_wheel(QWidget *widget, int notches) {
    const QPointF centre(widget->width() / 2.0, widget->height() / 2.0);
    QWheelEvent wheel(centre, QPointF(widget->mapToGlobal(centre.toPoint())), QPoint(),
                      QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(widget, &wheel);
}

}  // namespace panel_test
