// Recording and trends: what the panels report reaches the file, the file rotates at midnight and
// keeps steady values short, a directory that cannot be written warns and the program goes on,
// a recording opens in the trend window with the series it holds, and the command line.
#include "observation_hub.h"
#include "program.h"
#include "record_format.h"
#include "recorder.h"
#include "test_app_support.h"
#include "test_panel_support.h"
#include "trend_window.h"
#include "warning_log.h"

#include <optional>

namespace {

// Local midnight starting 2025-03-14: the day the rotation rows cross into.
const qint64 midnight = QDateTime(QDate(2025, 3, 14), QTime(0, 0)).toMSecsSinceEpoch();

// A sample `offset` ms after `midnight`.
device_sample sample(qint64 offset, double value,
                     panel_observation::kind_t kind = panel_observation::reading) {
    device_sample s;
    s.ms = midnight + offset;
    s.can_id = 3;
    s.device = QStringLiteral("Bench 3");
    s.kind = kind;
    s.quantity = QStringLiteral("Current");
    s.value = value;
    s.unit = QStringLiteral("mA");
    return s;
}

// The files of a run, oldest first, each as its records (the header included).
QList<QList<QList<QByteArray>>> recorded(const QString &dir, QStringList *names = nullptr) {
    QList<QList<QList<QByteArray>>> files;
    const QStringList found =
        QDir(dir).entryList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name);
    for (const QString &name : found) {
        QFile file(QDir(dir).filePath(name));
        file.open(QIODevice::ReadOnly);
        QList<QList<QByteArray>> records;
        record_format::read_records(file.readAll(), [&](const QList<QByteArray> &fields, int) {
            records.append(fields);
            return true;
        });
        files.append(records);
    }
    if (names) {
        *names = found;
    }
    return files;
}

// "time offset from midnight=value" of each data line of a file.
QString points_of(const QList<QList<QByteArray>> &records) {
    QStringList points;
    for (const QList<QByteArray> &fields : records.mid(1)) {
        device_sample s;
        points.append(record_format::read_sample(fields, &s)
                          ? QStringLiteral("%1=%2").arg(s.ms - midnight).arg(s.value)
                          : QStringLiteral("unreadable"));
    }
    return points.join(QLatin1Char(' '));
}

// "device/quantity/unit/kind: count, first..last" of each series a trend window holds.
QStringList series_of(const trend_window &window) {
    QStringList lines;
    for (const trend_series &s : window.store().series()) {
        lines.append(QStringLiteral("%1/%2/%3/%4: %5, %6..%7")
                         .arg(s.device, s.quantity, s.unit, record_format::kind_name(s.kind))
                         .arg(s.values.size())
                         .arg(s.values.first())
                         .arg(s.values.last()));
    }
    return lines;
}

bool load(trend_window &window, const QString &path) {
    QSignalSpy loaded(&window, &trend_window::sig_loaded);
    window.open_file(path);
    return loaded.wait(10000) && loaded.first().first().toBool();
}

}  // namespace

class test_recorder : public QObject {
    Q_OBJECT

private slots:
    // Every reading every panel type describes lands in the file with the time, the device's CAN
    // ID, name (quoted, for it holds a comma and quotes) and model, and its quantity, value, unit.
    void readings_reach_the_file_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("code");  // a reading reported as `raw` and recorded as `value`
        QTest::addColumn<long>("raw");
        QTest::addColumn<double>("value");
        // What the panels show for these reports: -1.5 °C on a CW driver, 12.3456 mA on the
        // precision driver (0.0001 mA), a comb's bias of -250 as 2.5 V.
        const QMap<int, std::tuple<int, long, double>> facts{
            {14, {146, -15, -1.5}}, {15, {145, 123456, 12.3456}}, {17, {152, -250, 2.5}}};
        for (int type : panel_test::panel_types()) {
            const auto [code, raw, value] = facts.value(type, {-1, 0L, 0.0});
            QTest::addRow("type %d", type) << type << code << raw << value;
        }
    }
    void readings_reach_the_file() {
        QFETCH(int, type);
        QFETCH(int, code);
        QFETCH(long, raw);
        QFETCH(double, value);
        QTemporaryDir dir;
        const qint64 now = midnight + 9 * 3600 * 1000 + 589;
        observation_hub hub([now] { return now; });
        recorder rec([now] { return now; });
        const QString name = QStringLiteral("Bench \"7\", left");
        auto panel = panel_test::make_panel(type);
        hub.watch(7, name, panel.get());
        connect(&hub, &observation_hub::sig_sample, &rec, &recorder::take);
        rec.start(dir.path());
        QVERIFY(!panel->readings().isEmpty());
        for (const reading_spec &reading : panel->readings()) {
            QVERIFY(!reading.quantity.isEmpty());
            panel->sl_parsed_data_received(reading.code, reading.code == code ? raw : -250);
        }
        rec.stop();

        const auto files = recorded(dir.path());
        QCOMPARE(files.size(), 1);
        QCOMPARE(files.first().first().join(','),
                 QByteArray("time,can_id,device,model,kind,quantity,value,unit,text"));
        // Local wall-clock time with milliseconds, and an offset that makes it the exact instant.
        const QString local =
            QDateTime::fromMSecsSinceEpoch(now).toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz"));
        for (const reading_spec &reading : panel->readings()) {
            const auto line =
                std::find_if(files.first().begin(), files.first().end(), [&](const auto &f) {
                    return f.value(4) == "reading" &&
                           QString::fromUtf8(f.value(5)) == reading.quantity;
                });
            QVERIFY2(line != files.first().end(), qPrintable(reading.quantity));
            const QString time = QString::fromLatin1(line->at(0));
            QVERIFY2(time.startsWith(local) && time.size() == local.size() + 6, qPrintable(time));
            QCOMPARE(QDateTime::fromString(time, Qt::ISODateWithMs).toMSecsSinceEpoch(), now);
            QCOMPARE(line->at(1), QByteArray("7"));
            QCOMPARE(QString::fromUtf8(line->at(2)), name);
            QCOMPARE(QString::fromUtf8(line->at(3)), panel->type_name());
            if (reading.code == code) {
                QCOMPARE(line->at(6).toDouble(), value);
            }
            QCOMPARE(QString::fromUtf8(line->at(7)), reading.unit);
        }
    }

    // Which samples are written, and to which file: steady values on change, every 10 s and the
    // last before a change; set-points every time; a new file from local midnight on.
    void what_is_written_data() {
        QTest::addColumn<QVector<device_sample>>("samples");
        QTest::addColumn<QStringList>("files");  // names after "lumivox-"
        QTest::addColumn<QStringList>("points");
        using kind = panel_observation;
        const qint64 s = 1000;
        QTest::newRow("steady reading")
            << QVector<device_sample>{sample(-60 * s, 1), sample(-59 * s, 1), sample(-55 * s, 1),
                                      sample(-50 * s, 1), sample(-48 * s, 1), sample(-47 * s, 2)}
            << QStringList{"20250313-235800.csv"}
            << QStringList{"-60000=1 -50000=1 -48000=1 -47000=2"};
        QTest::newRow("held value written at the end")
            << QVector<device_sample>{sample(-60 * s, 1), sample(-57 * s, 1)}
            << QStringList{"20250313-235800.csv"} << QStringList{"-60000=1 -57000=1"};
        QTest::newRow("set-points every time")
            << QVector<device_sample>{sample(-60 * s, 5, kind::setpoint),
                                      sample(-59 * s, 5, kind::setpoint)}
            << QStringList{"20250313-235800.csv"} << QStringList{"-60000=5 -59000=5"};
        QTest::newRow("across midnight")
            << QVector<device_sample>{sample(-3 * s, 1), sample(-1 * s, 1), sample(500, 1),
                                      sample(900, 2)}
            << QStringList{"20250313-235800.csv", "20250314-000000.csv"}
            << QStringList{"-3000=1 -1000=1", "500=1 900=2"};
        QTest::newRow("a day without samples")
            << QVector<device_sample>{sample(-1 * s, 1), sample(86400 * s + 5, 1)}
            << QStringList{"20250313-235800.csv", "20250315-000000.csv"}
            << QStringList{"-1000=1", "86400005=1"};
    }
    void what_is_written() {
        QFETCH(QVector<device_sample>, samples);
        QFETCH(QStringList, files);
        QFETCH(QStringList, points);
        QTemporaryDir dir;
        recorder rec([] { return midnight - 120 * 1000; });
        QSignalSpy started(&rec, &recorder::sig_file_started);
        rec.start(dir.path());
        for (const device_sample &s : samples) {
            rec.take(s);
        }
        rec.stop();
        QStringList names;
        const auto written = recorded(dir.path(), &names);
        QCOMPARE(names, QStringList(files).replaceInStrings(QRegularExpression("^"), "lumivox-"));
        QTRY_COMPARE(started.count(), files.size());
        QStringList got;
        for (const auto &file : written) {
            got.append(points_of(file));
        }
        QCOMPARE(got, points);
    }

    // A directory that cannot be made or written, or a full disk: recording stops, the window
    // says so in its status bar and in a box that waits for nobody, and goes on (it can record
    // again).
    void unwritable_directory_warns_data() {
        QTest::addColumn<QString>("where");  // under the scratch directory
        QTest::addColumn<int>("samples");
        QTest::newRow("under a file") << "plain/rec" << 0;
        QTest::newRow("is a file") << "plain" << 0;
        QTest::newRow("disk full") << "rec" << 400;
    }
    void unwritable_directory_warns() {
        QFETCH(QString, where);
        QFETCH(int, samples);
        scratch_dir scratch;
        QFile(QStringLiteral("plain")).open(QIODevice::WriteOnly);
        auto window = loaded_window();
        window->show();
        recorder rec;
        std::optional<file_size_limit> full_disk;
        if (samples > 0) {
            full_disk.emplace(4096);
        }
        record_window(*window, rec, QDir::current().filePath(where));
        for (int i = 0; i < samples; ++i) {
            rec.take(sample(i, i));
        }
        QTRY_VERIFY(!rec.recording());
        full_disk.reset();
        QTRY_VERIFY(window->statusBar()->currentMessage().contains(where));
        auto *box = window->findChild<QMessageBox *>();
        QVERIFY(box && box->isVisible());
        QCOMPARE(box->text(), window->statusBar()->currentMessage());
        QCOMPARE(QApplication::activeModalWidget(), nullptr);

        QSignalSpy started(&rec, &recorder::sig_file_started);
        rec.start(QDir::current().filePath(QStringLiteral("again")));
        QVERIFY(started.wait());
        QVERIFY(rec.recording());
    }

    // A recording opens in the trend window with the series it holds (quoted fields, Windows line
    // ends, a line of something else skipped); what the window exports opens again the same.
    void recording_opens_in_trends_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("series");
        QTest::addColumn<QStringList>("charts");
        const QByteArray head = "time,can_id,device,model,kind,quantity,value,unit,text\n";
        QTest::newRow("two devices")
            << head +
                   "2025-03-14T09:00:00.000+01:00,1,A,M,reading,Current,10,mA,\n"
                   "2025-03-14T09:00:01.000+01:00,2,B,M,reading,Current,20.5,mA,\n"
                   "2025-03-14T09:00:01.500+01:00,1,A,M,set-point,Current,12,mA,\n"
                   "2025-03-14T09:00:02.000+01:00,1,A,M,reading,Current,12,mA,\n"
                   "2025-03-14T09:00:02.000+01:00,1,A,M,reading,Temperature,25,°C,\n"
                   "2025-03-14T09:00:03.000+01:00,1,A,M,parameter,\"Max current, mA\",900,,\n"
            << QStringList{"A/Current/mA/reading: 2, 10..12", "B/Current/mA/reading: 1, 20.5..20.5",
                           "A/Current/mA/set-point: 1, 12..12",
                           "A/Temperature/°C/reading: 1, 25..25"}
            << QStringList{"Current, mA", "Temperature, °C"};
        QTest::newRow("quotes, CRLF, a stray line")
            << head +
                   "2025-03-14T09:00:00.000Z,4,\"Bench \"\"4\"\", left\",M,state,Emission,1,,ON\r\n"
                   "not a recording line\r\n"
                   "2025-03-14T09:00:05.000Z,4,\"Bench \"\"4\"\", "
                   "left\",M,state,Emission,0,,\"O\nFF\"\r\n"
            << QStringList{"Bench \"4\", left/Emission//state: 2, 1..0"} << QStringList{};
    }
    void recording_opens_in_trends() {
        QFETCH(QByteArray, file);
        QFETCH(QStringList, series);
        QFETCH(QStringList, charts);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("in.csv"));
        QFile out(path);
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write(file);
        out.close();
        trend_window window;
        window.show();
        QVERIFY(load(window, path));
        QCOMPARE(series_of(window), series);
        QCOMPARE(window.chart_titles(), charts);  // states are not shown until ticked

        for (int i = 0; i < series.size(); ++i) {
            window.show_series(i, true);
        }
        QVERIFY(window.export_png(dir.filePath(QStringLiteral("out.png"))));
        QVERIFY(!QImage(dir.filePath(QStringLiteral("out.png"))).isNull());
        QVERIFY(window.export_csv(dir.filePath(QStringLiteral("out.csv"))));
        trend_window again;
        QVERIFY(load(again, dir.filePath(QStringLiteral("out.csv"))));
        QCOMPARE(series_of(again), series);

        // A drag over a chart shows that range and pauses; "Reset zoom" shows the whole file.
        const double first = window.store().first_time(), last = window.store().last_time();
        window.zoom_to(first + 400, last - 400);
        QVERIFY(window.paused());
        QCOMPARE(window.shown_from(), first + 400);
        window.reset_zoom();
        QVERIFY(!window.paused());
        QCOMPARE(window.shown_from(), first);
        QCOMPARE(window.shown_to(), last);
    }

    // Ctrl+T in the main window opens the live trend window, which follows what placed panels
    // report from then on, and keeps it when closed and opened again.
    void shortcut_opens_live_trends() {
        scratch_dir scratch;
        auto window = loaded_window();
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        auto panel = panel_test::make_panel(14);
        window->observations()->watch(5, QStringLiteral("Pump"), panel.get());
        const auto shown_trends = [] {
            QList<trend_window *> found;
            for (QWidget *top : QApplication::topLevelWidgets()) {
                auto *trends = qobject_cast<trend_window *>(top);
                if (trends && trends->isVisible()) {
                    found.append(trends);
                }
            }
            return found;
        };
        QVERIFY(shown_trends().isEmpty());
        QTest::keyClick(window.get(), Qt::Key_T, Qt::ControlModifier);
        QCOMPARE(shown_trends().size(), 1);
        trend_window *trends = shown_trends().first();
        QVERIFY(trends->is_live());
        panel->sl_parsed_data_received(145, 120);  // the drive current, 12.0 mA
        trends->close();
        panel->sl_parsed_data_received(145, 130);
        QCOMPARE(window->open_trends(), trends);
        QCOMPARE(series_of(*trends), QStringList{"Pump/Current/mA/reading: 2, 12..13"});
    }

    // A live window holds the last four hours (and a few minutes) however long it runs, every
    // sample of them: five hours of one every ten seconds, on a clock of the test's own.
    void live_window_keeps_four_hours() {
        constexpr qint64 step = 10 * 1000, hour = 3600 * 1000;
        qint64 now = midnight;
        trend_window window(nullptr, [&now] { return now; });
        for (; now <= midnight + 5 * hour; now += step) {
            window.take(sample(now - midnight, double(now % 7)));
        }
        QCOMPARE(window.store().series().size(), std::size_t(1));
        const QVector<double> &times = window.store().series().front().times;
        QVERIFY(!times.isEmpty());
        QCOMPARE(times.last(), double(midnight + 5 * hour));
        const double kept = times.last() - times.first();
        QVERIFY2(kept >= 4 * hour && kept <= 4 * hour + 15 * 60 * 1000,
                 qPrintable(QString::number(kept)));
        QCOMPARE(times.size(), int(kept / step) + 1);
    }

    // Samples that arrive out of order (a clock set back) land in time order, with their values.
    void out_of_order_samples_land_in_order() {
        trend_store store;
        for (const double value : {3.0, 1.0, 2.0, 2.5, 4.0, 0.5}) {
            store.add(sample(qint64(value) * 1000, value));
        }
        QVector<double> times;
        for (double t : store.series().front().times) {
            times << t - midnight;
        }
        QCOMPARE(times, (QVector<double>{0, 1000, 2000, 2000, 3000, 4000}));
        QCOMPARE(store.series().front().values, (QVector<double>{0.5, 1, 2, 2.5, 3, 4}));
    }

    // A chart a few hundred pixels wide draws an hour of samples as a few points per pixel, and a
    // spike or a dip of a single sample still shows.
    void thinning_keeps_a_single_sample_spike() {
        trend_series s;
        for (int i = 0; i < 36000; ++i) {
            s.times.append(i * 100.0);
            s.values.append(i == 20001 ? 50 : i == 7777 ? -20 : 1);
        }
        const QVector<QPointF> points = trend_store::visible_points(s, 0, s.times.last(), 300);
        QVERIFY2(points.size() <= 4 * 300 + 2, qPrintable(QString::number(points.size())));
        QVERIFY(points.contains(QPointF(2000100, 50)));
        QVERIFY(points.contains(QPointF(777700, -20)));
        QVERIFY(std::is_sorted(points.begin(), points.end(),
                               [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); }));
    }

    // A panel that reported while nothing listened reports as soon as something does; a deleted
    // panel drops out of the hub.
    void hub_follows_listeners_and_panels() {
        observation_hub hub([] { return midnight; });
        auto kept = panel_test::make_panel(14);
        auto gone = panel_test::make_panel(14);
        hub.watch(1, QStringLiteral("Kept"), kept.get());
        hub.watch(2, QStringLiteral("Gone"), gone.get());
        kept->sl_parsed_data_received(145, 100);  // nobody listens yet
        gone.reset();
        QCOMPARE(hub.watched(), 1);
        warning_log warnings;
        QStringList heard;
        connect(&hub, &observation_hub::sig_sample, this, [&heard](const device_sample &s) {
            heard << s.device + '/' + s.quantity + '=' + QString::number(s.value);
        });
        kept->sl_parsed_data_received(145, 120);
        QCOMPARE(heard.filter("/Current="), QStringList{"Kept/Current=12"});
        QCOMPARE(warnings.lines(), QStringList());
    }

    // The command line, and the recording directory remembered between runs.
    void command_line_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("remembered");  // before the run
        QTest::addColumn<int>("exit");
        QTest::addColumn<QString>("record_dir");  // "/" stands for the scratch directory
        QTest::addColumn<QString>("trends");      // "live", a file or empty
        const auto row = [](const char *name, const QStringList &arguments, const char *remembered,
                            int exit, const char *record_dir, const char *trends) {
            QTest::newRow(name) << arguments << QString(remembered) << exit << QString(record_dir)
                                << QString(trends);
        };
        row("nothing", {}, "", -1, "", "");
        row("record", {"--record", "rec"}, "", -1, "/rec", "");
        row("remembered", {}, "/old", -1, "/old", "");
        row("record off", {"--record", "off"}, "/old", -1, "", "");
        row("live trends", {"--trends"}, "/old", -1, "/old", "live");
        row("recorded trends", {"--trends", "a.csv"}, "", -1, "", "a.csv");
        row("file without --trends", {"a.csv"}, "/old", 2, "/old", "");
        row("unknown option", {"--recrod", "x"}, "", 2, "", "");
        row("help", {"--help"}, "", 0, "", "");
    }
    void command_line() {
        QFETCH(QStringList, arguments);
        QFETCH(QString, remembered);
        QFETCH(int, exit);
        QFETCH(QString, record_dir);
        QFETCH(QString, trends);
        scratch_dir scratch;
        const QString here = QDir::currentPath();
        QSettings settings(QStringLiteral("lumivox.ini"), QSettings::IniFormat);
        if (!remembered.isEmpty()) {
            settings.setValue(QStringLiteral("record/directory"), here + remembered);
        }
        program_options options;
        QCOMPARE(take_command_line(QStringList{"lumivox"} + arguments, settings, &options), exit);
        const QString stored = settings.value(QStringLiteral("record/directory")).toString();
        QCOMPARE(stored, record_dir.isEmpty() ? QString() : here + record_dir);
        if (exit < 0) {
            QCOMPARE(options.record_dir, stored);
            QCOMPARE(options.trends, !trends.isEmpty());
            QCOMPARE(options.trends_file, trends == "live" ? QString() : trends);
        }
    }
};

QTEST_MAIN(test_recorder)
#include "test_recorder.moc"
