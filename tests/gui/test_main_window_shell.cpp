// The window itself: brand variants, texts, pages, the Help text, the polling cycle's round robin
// and emission indicator, panel placement, wheel blocking and the translation search.
#include "build_info.h"
#include "cross_thread.h"
#include "device_panel.h"
#include "main_window.h"
#include "panel_registry.h"
#include "test_app_support.h"
#include "translation.h"

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTranslator>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest>

#include <memory>

namespace {

// A panel that counts the polling pulses it gets.
class counting_panel : public device_panel {
    Q_OBJECT
public:
    explicit counting_panel(QWidget *parent) : device_panel(parent) { new QVBoxLayout(this); }
    int refreshes = 0;
    void sl_refresh_state() override { ++refreshes; }
    void sl_parsed_data_received(int, long) override {}
};

constexpr int fake_type = 14;

const char *const red_menu_style =
    "QPushButton{color: rgb(200, 0, 0);text-align: center;border: 0px solid gray;vertical-align: "
    "bottom;} QPushButton:hover{text-align: center;color: rgb(120, 0, 0);border: 0px solid "
    "gray;vertical-align: bottom;}";
const char *const black_menu_style =
    "QPushButton{color: rgb(0, 0, 0);text-align: center;border: 0px solid gray;vertical-align: "
    "bottom;} QPushButton:hover{text-align: center;color: rgb(120, 0, 0);border: 0px solid "
    "gray;vertical-align: bottom;}";

const char *const three_devices =
    "[General]\nmini_usb_mode=false\ndevice_count=3\ndevice_0=11\ndevice_1=22\ndevice_2=33\n";

}  // namespace

class test_main_window_shell : public QObject {
    Q_OBJECT

    panel_registry registry;

    std::unique_ptr<main_window> loaded_window(const QString &brand = QStringLiteral("Veltrano")) {
        auto window = std::make_unique<main_window>(brand, &registry);
        window->set_port_lister(fixed_ports({}));
        window->initialise_from_config();
        return window;
    }

private slots:
    void initTestCase() {
        register_device_types(registry);
        registry.add(fake_type, QStringLiteral("Counting"),
                     [](QWidget *parent) { return new counting_panel(parent); });
    }

    void brand_variants_data() {
        QTest::addColumn<QString>("brand");
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("logo");
        QTest::addColumn<QSize>("logo_size");
        QTest::addColumn<int>("header_max_height");
        QTest::addColumn<bool>("ttl_shown");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("Skarnova") << "Skarnova"
                                  << "QWidget {\n\tbackground-color: rgb(67, 55, 121);\n}"
                                  << ":/interface/SkarN_logo.png" << QSize(273, 60)
                                  << QWIDGETSIZE_MAX << false << QColor(67, 55, 121);
        QTest::newRow("Quibrel") << "Quibrel"
                                 << "QWidget {\n\tbackground-color: rgb(60, 145, 136);\n}"
                                 << ":/interface/quibrel_logo_PNG.png" << QSize(215, 60)
                                 << QWIDGETSIZE_MAX << false << QColor(60, 145, 136);
        QTest::newRow("Veltrano") << "Veltrano"
                                  << "QWidget {\n\tbackground-color: rgb(35, 39, 215);\n}"
                                  << ":/interface/veltrano.png" << QSize(273, 35)
                                  << QWIDGETSIZE_MAX << false << QColor(35, 39, 215);
        QTest::newRow("any other") << "Bench"
                                   << "QWidget {\n\tbackground-color: rgb(76, 109, 128);\n}"
                                   << ":/interface/power_version.png" << QSize(128, 95) << 107
                                   << true << QColor(76, 109, 128);
        QTest::newRow("names compare exactly") << "veltrano"
                                               << "QWidget {\n\tbackground-color: rgb(76, 109, "
                                                  "128);\n}"
                                               << ":/interface/power_version.png"
                                               << QSize(128, 95) << 107 << true
                                               << QColor(76, 109, 128);
    }
    void brand_variants() {
        QFETCH(QString, brand);
        QFETCH(QString, style);
        QFETCH(QString, logo);
        QFETCH(QSize, logo_size);
        QFETCH(int, header_max_height);
        QFETCH(bool, ttl_shown);
        QFETCH(QColor, colour);
        main_window window(brand, &registry);
        QCOMPARE(window.brand(), brand);
        auto *header = widget<QWidget>(window, "header_widget");
        QCOMPARE(header->styleSheet(), style);
        QCOMPARE(header->maximumHeight(), header_max_height);
        auto *logo_label = widget<QLabel>(window, "logo_label");
        const QPixmap shown = logo_label->pixmap(Qt::ReturnByValue);
        QVERIFY(!shown.isNull());
        const QImage expected = QImage(logo).convertToFormat(QImage::Format_ARGB32);
        QVERIFY(!expected.isNull());
        QCOMPARE(shown.toImage().convertToFormat(QImage::Format_ARGB32), expected);
        QCOMPARE(logo_label->minimumSize(), logo_size);
        QCOMPARE(logo_label->maximumSize(), logo_size);
        QCOMPARE(!widget<QGroupBox>(window, "ttl_tester")->isHidden(), ttl_shown);
        // Every variant starts with emission shown as off.
        QVERIFY(widget<QLabel>(window, "emit_on")->isHidden());
        QVERIFY(!widget<QLabel>(window, "emit_off")->isHidden());
        // The header shows the colour on screen, not only in its style sheet.
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QImage painted = header->grab().toImage();
        QCOMPARE(painted.pixelColor(painted.width() - 3, painted.height() / 2), colour);
        // The Help text names the brand.
        QVERIFY(widget<QPlainTextEdit>(window, "help_text")->toPlainText().startsWith(brand + "\n"));
    }

    void form_texts_data() {
        QTest::addColumn<QString>("object");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QString>("text");
        QTest::newRow("window title") << "main_window" << QByteArray("windowTitle") << "lumivox v5";
        QTest::newRow("page button 1") << "main_menu_butt" << QByteArray("text") << "Main";
        QTest::newRow("page button 2") << "main_menu_butt_2" << QByteArray("text") << "Settings";
        QTest::newRow("page button 3") << "main_menu_butt_3" << QByteArray("text") << "Help";
        QTest::newRow("TTL group") << "ttl_tester" << QByteArray("title") << "TTL";
        QTest::newRow("frequency button") << "pushButton" << QByteArray("text") << "Set Frequency";
        QTest::newRow("width button") << "pushButton_2" << QByteArray("text") << "Set Pulse Width";
        QTest::newRow("start/stop") << "pushButton_3" << QByteArray("text") << "START";
        QTest::newRow("COM group") << "com_settings" << QByteArray("title") << "COM settings";
        QTest::newRow("hint")
            << "hint_label" << QByteArray("text")
            << "To be able to configure device CAN ID in the device parameters window please make "
               "sure that your PC is connected directly to driver board via mini-USB cable, and "
               "\"mini USB mode\" is set below.";
        QTest::newRow("mini USB") << "mini_usb_mode_checkbox" << QByteArray("text")
                                  << "mini USB mode";
        QTest::newRow("auto") << "autoconnection_checkbox" << QByteArray("text")
                              << "Auto connection";
        QTest::newRow("connect") << "connect_button" << QByteArray("text") << "Connect";
        QTest::newRow("add") << "add_pb" << QByteArray("text") << "Add";
        QTest::newRow("delete") << "delete_row_pb" << QByteArray("text") << "Delete selected rows";
        QTest::newRow("apply") << "apply_pb" << QByteArray("text") << "Apply";
        QTest::newRow("help title") << "help_title_label" << QByteArray("text") << "Lumivox v5\n";
        QTest::newRow("version title") << "software_version_title" << QByteArray("text")
                                       << "Software version:";
        QTest::newRow("version") << "version_label" << QByteArray("text") << "Software version ";
        QTest::newRow("status") << "connection_status_label" << QByteArray("text")
                                << "Connection status: DISCONNECTED";
        QTest::newRow("emission") << "emission_label" << QByteArray("text") << "Emission: OFF";
    }
    void form_texts() {
        QFETCH(QString, object);
        QFETCH(QByteArray, property);
        QFETCH(QString, text);
        main_window window(QStringLiteral("Bench"), &registry);
        QObject *target =
            object == QLatin1String("main_window") ? &window : window.findChild<QObject *>(object);
        QVERIFY(target);
        QCOMPARE(target->property(property.constData()).toString(), text);
    }

    void help_text_and_version_label() {
        const QString commit = QString::fromLatin1(build_info::commit);
        QVERIFY(QRegularExpression(QStringLiteral("^[0-9a-f]{40}$")).match(commit).hasMatch());
        scratch_dir dir;
        auto window = loaded_window(QStringLiteral("Quibrel"));
        QCOMPARE(widget<QPlainTextEdit>(*window, "help_text")->toPlainText(),
                 QStringLiteral("Quibrel\nLumivox\n\nVersion \nSHA1 = ") + commit +
                     QStringLiteral("\n"));
        QCOMPARE(widget<QLabel>(*window, "version_label")->text(),
                 QStringLiteral("v5.") + commit.left(6) + QStringLiteral(" "));
    }

    void page_buttons_data() {
        QTest::addColumn<int>("page");
        QTest::newRow("Settings") << 1;
        QTest::newRow("Help") << 2;
        QTest::newRow("Main") << 0;
    }
    void page_buttons() {
        QFETCH(int, page);
        main_window window(QStringLiteral("Veltrano"), &registry);
        const char *const names[] = {"main_menu_butt", "main_menu_butt_2", "main_menu_butt_3"};
        // Start elsewhere, so that each row shows a change.
        widget<QPushButton>(window, names[(page + 1) % 3])->click();
        widget<QPushButton>(window, names[page])->click();
        QCOMPARE(widget<QStackedWidget>(window, "stackedWidget")->currentIndex(), page);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(widget<QPushButton>(window, names[i])->styleSheet(),
                     QString::fromLatin1(i == page ? red_menu_style : black_menu_style));
        }
    }

    void round_robin_over_three_devices() {
        scratch_dir dir;
        dir.write_config(three_devices);
        auto window = loaded_window();
        QCOMPARE(window->devices().size(), 3);
        QList<int> ticked;
        QStringList frames;
        for (device *dev : window->devices()) {
            connect(dev, &device::sig_send_command, this, [&ticked, &frames, dev](QString frame) {
                ticked << dev->can_id();
                frames << frame;
            });
        }
        for (int i = 0; i < 7; ++i) {
            window->sl_tearing();
        }
        QCOMPARE(ticked, (QList<int>{11, 22, 33, 11, 22, 33, 11}));
        // Devices of unknown type ask for it on their tick.
        QCOMPARE(frames.at(1), frame_codec::compose(22, 0xD0, 0));

        // Fewer devices after Apply: the index wraps instead of pointing past the list.
        device_table(*window)->removeRow(2);
        device_table(*window)->removeRow(1);
        widget<QPushButton>(*window, "apply_pb")->click();
        ticked.clear();
        connect(window->devices().first(), &device::sig_send_command, this,
                [&ticked] { ticked << 11; });
        window->sl_tearing();
        window->sl_tearing();
        QCOMPARE(ticked, (QList<int>{11, 11}));
    }

    void empty_device_list_ticks_nothing() {
        scratch_dir dir;
        auto window = loaded_window();
        device_table(*window)->setRowCount(0);
        widget<QPushButton>(*window, "apply_pb")->click();
        QVERIFY(window->devices().isEmpty());
        for (int i = 0; i < 5; ++i) {
            window->sl_tearing();
        }
        QCOMPARE(widget<QLabel>(*window, "emission_label")->text(), QStringLiteral("Emission: OFF"));
        // A device added afterwards is the first to be ticked.
        widget<QCheckBox>(*window, "mini_usb_mode_checkbox")->setChecked(false);
        widget<QPushButton>(*window, "add_pb")->click();
        widget<QPushButton>(*window, "apply_pb")->click();
        QSignalSpy sent(window->devices().first(), &device::sig_send_command);
        window->sl_tearing();
        QCOMPARE(sent.count(), 1);
    }

    void emission_indicator_data() {
        QTest::addColumn<QList<int>>("states");
        QTest::addColumn<bool>("on");
        QTest::newRow("all off") << QList<int>{0, 0, 0} << false;
        QTest::newRow("one on") << QList<int>{0, 1, 0} << true;
        QTest::newRow("two on") << QList<int>{1, 1, 0} << true;
        QTest::newRow("sum below 1") << QList<int>{-1, 1, 0} << false;
        QTest::newRow("state 2 counts") << QList<int>{0, 0, 2} << true;
    }
    void emission_indicator() {
        QFETCH(QList<int>, states);
        QFETCH(bool, on);
        scratch_dir dir;
        dir.write_config(three_devices);
        auto window = loaded_window();
        // Start from the opposite display, so that the tick has to change it.
        for (int i = 0; i < 3; ++i) {
            window->devices().at(i)->upd_emission_state(on ? 0 : 1);
        }
        window->sl_tearing();
        for (int i = 0; i < 3; ++i) {
            window->devices().at(i)->upd_emission_state(states.at(i));
        }
        window->sl_tearing();
        QCOMPARE(widget<QLabel>(*window, "emit_on")->isHidden(), !on);
        QCOMPARE(widget<QLabel>(*window, "emit_off")->isHidden(), on);
        QCOMPARE(widget<QLabel>(*window, "emission_label")->text(),
                 on ? QStringLiteral("Emission: ON") : QStringLiteral("Emission: OFF"));
    }

    void panel_is_placed_into_its_container() {
        scratch_dir dir;
        dir.write_config(three_devices);
        auto window = loaded_window();
        device *second = window->devices().at(1);
        run_in(second, [second] { second->sl_d_data_received(answer_line(22, 0xD0, fake_type)); });
        QCOMPARE(second->type_id(), fake_type);

        QTest::ignoreMessage(QtDebugMsg, "popped 22");
        window->sl_tearing();  // device 0
        window->sl_tearing();  // device 1 builds its panel
        auto *panel = qobject_cast<counting_panel *>(second->current_panel());
        QVERIFY(panel);
        QWidget *container = window->containers().at(1);
        QCOMPARE(panel->parentWidget(), container);
        QCOMPARE(container->layout()->count(), 1);
        QCOMPARE(container->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(container->layout()->spacing(), 0);
        auto *line = qobject_cast<QFrame *>(
            panel->layout()->itemAt(panel->layout()->count() - 1)->widget());
        QVERIFY(line);
        QCOMPARE(line->frameShape(), QFrame::HLine);
        QCOMPARE(window->containers().at(0)->layout()->count(), 0);
        QCOMPARE(window->containers().at(2)->layout()->count(), 0);

        // From now on each of its ticks is one polling pulse for the panel.
        QCOMPARE(panel->refreshes, 0);
        for (int i = 0; i < 6; ++i) {
            window->sl_tearing();
        }
        QCOMPARE(panel->refreshes, 2);
    }

    void wheel_events_are_swallowed_data() {
        QTest::addColumn<int>("row");
        QTest::newRow("CAN ID of row 0") << 0;
        QTest::newRow("CAN ID of an added row") << 1;
        QTest::newRow("the table itself") << -1;
    }
    void wheel_events_are_swallowed() {
        QFETCH(int, row);
        scratch_dir dir;
        dir.write_config("[General]\nmini_usb_mode=false\ndevice_count=1\ndevice_0=5\n");
        auto window = loaded_window();
        widget<QPushButton>(*window, "add_pb")->click();
        QWidget *target = row < 0 ? static_cast<QWidget *>(device_table(*window))
                                  : can_id_spin(*window, row);
        const int before = row < 0 ? 0 : can_id_spin(*window, row)->value();

        QWheelEvent up(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
        // The same event changes a spin box that nobody filters.
        QSpinBox free_spin;
        free_spin.setRange(1, 255);
        free_spin.setValue(5);
        QApplication::sendEvent(&free_spin, &up);
        QCOMPARE(free_spin.value(), 6);

        QTest::ignoreMessage(QtDebugMsg, "Wheel event blocked");
        QWheelEvent again(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &again);
        if (row >= 0) {
            QCOMPARE(can_id_spin(*window, row)->value(), before);
        }
    }

    void translation_search_data() {
        QTest::addColumn<QStringList>("languages");
        QTest::addColumn<QString>("loaded");
        QTest::newRow("Australian English") << QStringList{"en-AU"} << "en_AU";
        QTest::newRow("first match wins") << QStringList{"de-DE", "en-AU", "en-US"} << "en_AU";
        QTest::newRow("no match") << QStringList{"fr-FR", "en-US"} << "";
        QTest::newRow("no language") << QStringList{} << "";
    }
    void translation_search() {
        QFETCH(QStringList, languages);
        QFETCH(QString, loaded);
        QTranslator translator;
        QCOMPARE(install_translation(*qApp, translator, languages), loaded);
        QCOMPARE(translator.isEmpty(), loaded.isEmpty());
        if (!loaded.isEmpty()) {
            // Every text of the window is in it; Australian English keeps them as they are.
            for (const char *text : {"lumivox v5", "Main", "Settings", "Help", "COM settings",
                                     "mini USB mode", "Connect", "Disconnect", "Lumivox v5\n",
                                     "Connection status: CONNECTED", "Emission: ON"}) {
                QCOMPARE(translator.translate("main_window", text), QString::fromUtf8(text));
            }
            main_window window(QStringLiteral("Veltrano"), &registry);
            QCOMPARE(widget<QPushButton>(window, "apply_pb")->text(), QStringLiteral("Apply"));
            QCoreApplication::removeTranslator(&translator);
        }
    }
};

QTEST_MAIN(test_main_window_shell)
#include "test_main_window_shell.moc"
