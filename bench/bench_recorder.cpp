// What recording and the trend window cost. Not a test: nothing is asserted, figures are printed.
//
// Recording: eight CW panels take their poll replies at the program's full rate (one reply per
// 10 ms tick, round robin, so 100 a second in all), every value a little different from the last
// so that every sample is written. The CPU time of the whole process (the recorder's thread
// included) is compared with and without the recorder, over a minute of replies taken as fast as
// they come, and over seconds of real time driven by a 10 ms timer as in the program.
//
// Trends: a live trend window holding an hour of eight devices' currents at that full rate (one
// report per device every 80 ms, 45 000 points a series) is redrawn and painted; the time of one
// redraw is printed for one chart of eight series and for three charts of eight.
//
//     bench_recorder [seconds of real time, 10 by default]
#include "bench_panels.h"
#include "observation_hub.h"
#include "recorder.h"
#include "trend_window.h"

#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

namespace {

// CPU milliseconds for `replies` replies taken back to back, recording into `dir` or not.
double burst_ms(int replies, const QString &dir) {
    bench_bus bus;
    observation_hub hub;
    bus.watch(hub);
    recorder rec;
    if (!dir.isEmpty()) {
        QObject::connect(&hub, &observation_hub::sig_sample, &rec, &recorder::take);
        rec.start(dir);
    }
    const double start = cpu_ms();
    for (int i = 0; i < replies; ++i) {
        bus.reply();
    }
    rec.stop();  // the rest is handed over, written and flushed
    return cpu_ms() - start;
}

// CPU milliseconds over `seconds` of replies driven by a 10 ms timer.
double real_time_ms(int seconds, const QString &dir) {
    bench_bus bus;
    observation_hub hub;
    bus.watch(hub);
    recorder rec;
    if (!dir.isEmpty()) {
        QObject::connect(&hub, &observation_hub::sig_sample, &rec, &recorder::take);
        rec.start(dir);
    }
    QTimer tick;
    tick.setTimerType(Qt::PreciseTimer);
    QObject::connect(&tick, &QTimer::timeout, [&bus] { bus.reply(); });
    const double start = cpu_ms();
    tick.start(tick_ms);
    QEventLoop loop;
    QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
    loop.exec();
    tick.stop();
    rec.stop();
    return cpu_ms() - start;
}

// Milliseconds of one redraw and paint of a window holding `quantities` charts of eight series.
double redraw_ms(int quantities) {
    trend_window window;
    window.resize(1400, 400 + 250 * quantities);
    window.show();
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    constexpr int period_ms = devices * tick_ms;  // one report per device per round
    constexpr int points = 3600 * 1000 / period_ms;
    const char *const names[] = {"Current", "Temperature", "Power"};
    std::mt19937 noise(5);
    std::normal_distribution<double> wobble(0, 2);
    for (int p = 0; p < points; ++p) {
        for (int d = 0; d < devices; ++d) {
            for (int q = 0; q < quantities; ++q) {
                device_sample s;
                s.ms = now - 3600 * 1000 + qint64(p) * period_ms + d * tick_ms;
                s.can_id = d + 1;
                s.device = QStringLiteral("Bench %1").arg(d + 1);
                s.quantity = QString::fromLatin1(names[q]);
                s.unit = QStringLiteral("u");
                s.value = 100 * (d + 1) + 50 * std::sin(p / 2000.0) + wobble(noise);
                window.take(s);
            }
        }
    }
    window.set_span(3600 * 1000);
    window.repaint();
    constexpr int rounds = 20;
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer clock;
        clock.start();
        window.redraw();
        window.repaint();
        times.push_back(clock.nsecsElapsed() / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace

int main(int argc, char *argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    const int seconds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 10;
    QTemporaryDir dir;

    // A minute of replies; the best of five runs each way.
    const int replies = 60 * replies_per_second;
    double without = 1e9, with = 1e9;
    for (int run = 0; run < 5; ++run) {
        without = std::min(without, burst_ms(replies, {}));
        with = std::min(with, burst_ms(replies, dir.path()));
    }
    const double per_reply_us = (with - without) * 1000.0 / replies;
    std::printf("recording, %d devices at full rate (%d replies/s), a minute back to back:\n",
                devices, replies_per_second);
    std::printf(
        "  %.1f ms CPU without, %.1f ms with the recorder: %.2f us a reply, %.3f %% of a "
        "core (target below 0.3 %%)\n",
        without, with, per_reply_us, per_reply_us * replies_per_second / 1e4);

    const double base = real_time_ms(seconds, {});
    const double recording = real_time_ms(seconds, dir.path());
    std::printf(
        "recording in real time, %d s each way: %.1f ms CPU without, %.1f ms with: "
        "%.3f %% of a core more\n",
        seconds, base, recording, (recording - base) / (seconds * 10.0));

    for (int quantities : {1, 3}) {
        const double ms = redraw_ms(quantities);
        std::printf(
            "trend window, %d chart(s) of 8 series holding an hour at full rate (%d points "
            "each): %.2f ms a redraw (target below 10 ms), %.2f %% of a core at %d "
            "redraws a second\n",
            quantities, 3600 * 1000 / (devices * tick_ms), ms,
            ms * (1000.0 / trend_window::redraw_ms) / 10.0, 1000 / trend_window::redraw_ms);
    }
    return 0;
}
