#pragma once
// What the panel tests share: the program's registry, a scripted answerer for message boxes, a
// catcher for warnings, and ticking a panel while recording what it sends.

#include "message_route.h"
#include "panel_base.h"
#include "panel_registry.h"
#include "panels.h"

#include <QMessageBox>
#include <QSignalSpy>
#include <QStringList>
#include <QVector>
#include <QtTest>

#include <memory>

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

// The panel's widget called `name`; a missing one ends the test run.
template <class W>
W *child(panel_base &panel, const QString &name) {
    W *widget = panel.findChild<W *>(name);
    if (!widget) {
        qFatal("no %s in the panel", qPrintable(name));
    }
    return widget;
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

// Records warnings (and worse) while it exists; every message still reaches the previous handler,
// so Qt Test's expectations on messages keep working.
class warning_catcher {
public:
    warning_catcher() : previous_(qInstallMessageHandler(&handle)) { active_ = this; }
    ~warning_catcher() {
        qInstallMessageHandler(previous_);
        active_ = nullptr;
    }
    warning_catcher(const warning_catcher &) = delete;
    warning_catcher &operator=(const warning_catcher &) = delete;

    QStringList warnings;

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text) {
        if (!active_) {
            return;
        }
        if (type != QtDebugMsg && type != QtInfoMsg) {
            active_->warnings.append(text);
        }
        if (active_->previous_) {
            active_->previous_(type, context, text);
        }
    }

    static inline warning_catcher *active_ = nullptr;
    QtMessageHandler previous_;
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
