// The window itself: brand variants, the Help text, the polling cycle's round robin and emission
// indicator, wheel blocking on the device table and the translation search.
#include "build_info.h"
#include "test_app_support.h"
#include "translation.h"

const char *const three_devices =
    "[General]\nmini_usb_mode=false\ndevice_count=3\ndevice_0=11\ndevice_1=22\ndevice_2=33\n";

class test_main_window_shell : public QObject {
    Q_OBJECT

private slots:
    // Each named brand has a header colour and a logo of its own, drawn exactly the size of its
    // label; every other name (compared exactly) gets the generic look, the only one with the TTL
    // tester and a header of bounded height. The Help text names the brand and the full commit
    // hash, the version label its first six digits.
    void brand_variants() {
        const QString commit = QString::fromLatin1(build_info::commit);
        QVERIFY(QRegularExpression(QStringLiteral("^[0-9a-f]{40}$")).match(commit).hasMatch());
        QMap<QString, QPair<QRgb, QImage>> looks;  // header colour and logo, by brand
        for (const QString brand : {"Skarnova", "Quibrel", "Veltrano", "Bench", "veltrano"}) {
            const bool generic = brand == "Bench" || brand == "veltrano";
            scratch_dir dir;
            auto window = loaded_window(brand);
            window->show();
            QVERIFY(QTest::qWaitForWindowExposed(window.get()));
            QCOMPARE(widget<QPlainTextEdit>(*window, "help_text")->toPlainText(),
                     brand + "\nLumivox\n\nVersion \nSHA1 = " + commit + "\n");
            QCOMPARE(widget<QLabel>(*window, "version_label")->text(),
                     "v5." + commit.left(6) + " ");
            QWidget *header = widget(*window, "header_widget");
            const QImage painted = header->grab().toImage();
            QCOMPARE(header->maximumHeight() < QWIDGETSIZE_MAX, generic);
            QCOMPARE(widget(*window, "ttl_tester")->isVisible(), generic);
            auto *label = widget<QLabel>(*window, "logo_label");
            const QPixmap logo = label->pixmap(Qt::ReturnByValue);
            QVERIFY(!logo.isNull());
            QCOMPARE(label->maximumSize(), logo.size());
            QCOMPARE(label->minimumSize(), logo.size());
            looks.insert(
                brand, {painted.pixel(painted.width() - 3, painted.height() / 2), logo.toImage()});
        }
        QCOMPARE(looks.value("veltrano"), looks.value("Bench"));
        const QStringList distinct{"Skarnova", "Quibrel", "Veltrano", "Bench"};
        for (int i = 0; i < distinct.size(); ++i) {
            for (int j = i + 1; j < distinct.size(); ++j) {
                QVERIFY2(looks[distinct[i]].first != looks[distinct[j]].first &&
                             looks[distinct[i]].second != looks[distinct[j]].second,
                         qPrintable(distinct[i] + " and " + distinct[j]));
            }
        }
    }

    // Each tick serves the next device; after Apply left fewer rows the index wraps.
    void round_robin_data() {
        QTest::addColumn<int>("ticks_before");  // with the three loaded devices
        QTest::addColumn<int>("rows_applied");
        QTest::addColumn<QList<int>>("ticked");
        QTest::newRow("three devices") << 0 << 3 << QList<int>{11, 22, 33, 11, 22, 33, 11};
        QTest::newRow("one device left after Apply") << 2 << 1 << QList<int>{11, 11, 11};
        QTest::newRow("empty device list ticks nothing") << 1 << 0 << QList<int>{};
    }
    void round_robin() {
        QFETCH(int, ticks_before);
        QFETCH(int, rows_applied);
        QFETCH(QList<int>, ticked);
        scratch_dir dir(three_devices);
        auto window = loaded_window();
        for (int i = 0; i < ticks_before; ++i) {
            window->sl_tearing();
        }
        widget<QTableWidget>(*window, "device_table")->setRowCount(rows_applied);
        widget<QPushButton>(*window, "apply_pb")->click();
        QList<int> seen;
        for (device *dev : window->devices()) {
            connect(dev, &device::sig_send_command, this, [&seen, dev] { seen << dev->can_id(); });
        }
        for (int i = 0; i < qMax(ticked.size(), 3); ++i) {
            window->sl_tearing();
        }
        QCOMPARE(seen, ticked);
    }

    // Emission shows as on when the devices' states add up to at least 1.
    void emission_indicator_data() {
        QTest::addColumn<QList<int>>("states");
        QTest::addColumn<bool>("on");
        QTest::newRow("all off") << QList<int>{0, 0, 0} << false;
        QTest::newRow("one on") << QList<int>{0, 1, 0} << true;
        QTest::newRow("sum below 1") << QList<int>{-1, 1, 0} << false;
        QTest::newRow("state 2 counts") << QList<int>{0, 0, 2} << true;
    }
    void emission_indicator() {
        QFETCH(QList<int>, states);
        QFETCH(bool, on);
        scratch_dir dir(three_devices);
        auto window = loaded_window();
        // Start from the opposite display, so that the tick has to change it.
        for (int pass = 0; pass < 2; ++pass) {
            for (int i = 0; i < 3; ++i) {
                window->devices().at(i)->upd_emission_state(pass ? states.at(i) : int(!on));
            }
            window->sl_tearing();
        }
        QCOMPARE(widget<QLabel>(*window, "emission_label")->text(),
                 on ? QString("Emission: ON") : QString("Emission: OFF"));
        QCOMPARE(widget(*window, "emit_on")->isHidden(), !on);
        QCOMPARE(widget(*window, "emit_off")->isHidden(), on);
    }

    // The CAN ID boxes of loaded and added rows ignore the wheel.
    void wheel_events_are_swallowed() {
        scratch_dir dir("[General]\nmini_usb_mode=false\ndevice_count=1\ndevice_0=5\n");
        auto window = loaded_window();
        widget<QPushButton>(*window, "add_pb")->click();
        for (QSpinBox *spin : {can_id_spin(*window, 0), can_id_spin(*window, 1)}) {
            const int before = spin->value();
            QWheelEvent up(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                           Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(spin, &up);
            QCOMPARE(spin->value(), before);
        }
    }

    void translation_search_data() {
        QTest::addColumn<QStringList>("languages");
        QTest::addColumn<QString>("loaded");
        QTest::newRow("Australian English") << QStringList{"en-AU"} << "en_AU";
        QTest::newRow("first match wins") << QStringList{"de-DE", "en-AU", "en-US"} << "en_AU";
        QTest::newRow("unknown language") << QStringList{"fr-FR"} << "";
    }
    void translation_search() {
        QFETCH(QStringList, languages);
        QFETCH(QString, loaded);
        QTranslator translator;
        QCOMPARE(install_translation(*qApp, translator, languages), loaded);
        QCOMPARE(translator.translate("main_window", "Emission: ON").isEmpty(), loaded.isEmpty());
        // Either way the window shows the program's texts.
        QCOMPARE(widget<QPushButton>(main_window("Veltrano"), "apply_pb")->text(),
                 QString("Apply"));
        QCoreApplication::removeTranslator(&translator);
    }
};

QTEST_MAIN(test_main_window_shell)
#include "test_main_window_shell.moc"
