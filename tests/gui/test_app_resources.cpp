// The compiled-in resources: every interface image the program and its panels name, at the size
// it is drawn for, not blank, and each state of a control different from the others.
#include <QIcon>
#include <QImage>
#include <QtTest>

namespace {

// Share of pixels that are not fully transparent.
double coverage(const QImage &image) {
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    int opaque = 0;
    for (int y = 0; y < argb.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x) {
            opaque += qAlpha(line[x]) > 0 ? 1 : 0;
        }
    }
    return double(opaque) / (argb.width() * argb.height());
}

}  // namespace

class test_app_resources : public QObject {
    Q_OBJECT

private slots:
    void interface_images_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("min_coverage");
        const QSize off(80, 25);
        const QSize on(108, 25);
        const QSize round(48, 48);
        QTest::newRow("switch off") << "switch_btn_off_80x25.png" << off << 0.8;
        QTest::newRow("switch off hover") << "switch_btn_off_hover_80x25.png" << off << 0.8;
        QTest::newRow("switch on") << "switch_btn_on_108x25.png" << on << 0.8;
        QTest::newRow("switch on hover") << "switch_btn_on_hover_108x25.png" << on << 0.8;
        QTest::newRow("switch on disabled") << "switch_btn_on_disabled_108x25.png" << on << 0.8;
        QTest::newRow("switch off disabled") << "switch_btn_off_disabled_108x25.png" << on << 0.8;
        QTest::newRow("round") << "round_button_switch.png" << round << 0.6;
        QTest::newRow("round hover") << "round_button_switch_hover.png" << round << 0.6;
        QTest::newRow("round on") << "round_button_switch_on.png" << round << 0.6;
        QTest::newRow("round on hover") << "round_button_switch_on_hover.png" << round << 0.6;
        QTest::newRow("round on disabled") << "round_button_switch_on_disabled.png" << round << 0.6;
        QTest::newRow("round disabled") << "round_button_switch_disabled.png" << round << 0.6;
        QTest::newRow("configuration") << "conf_icon.png" << QSize(32, 32) << 0.4;
        QTest::newRow("configuration, icon file") << "conf_icon.ico" << QSize(32, 32) << 0.4;
        QTest::newRow("configuration disabled") << "conf_icon_disabled.png" << QSize(32, 32) << 0.4;
        QTest::newRow("emission on") << "emission_on.png" << QSize(32, 32) << 0.4;
        QTest::newRow("emission off") << "emission_off.png" << QSize(32, 32) << 0.4;
        QTest::newRow("Skarnova logo") << "SkarN_logo.png" << QSize(273, 60) << 0.1;
        QTest::newRow("Quibrel logo") << "quibrel_logo_PNG.png" << QSize(215, 60) << 0.1;
        QTest::newRow("Veltrano logo") << "veltrano.png" << QSize(273, 35) << 0.1;
        QTest::newRow("generic logo") << "power_version.png" << QSize(128, 95) << 0.1;
    }
    void interface_images() {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        QFETCH(double, min_coverage);
        const QImage image(QStringLiteral(":/interface/") + name);
        QVERIFY2(!image.isNull(), qPrintable(name));
        QCOMPARE(image.size(), size);
        QVERIFY2(coverage(image) >= min_coverage, qPrintable(QString::number(coverage(image))));
    }

    void states_look_different_data() {
        QTest::addColumn<QStringList>("family");
        QTest::newRow("slide switch")
            << QStringList{"switch_btn_off_80x25.png", "switch_btn_off_hover_80x25.png",
                           "switch_btn_on_108x25.png", "switch_btn_on_hover_108x25.png",
                           "switch_btn_on_disabled_108x25.png",
                           "switch_btn_off_disabled_108x25.png"};
        QTest::newRow("round switch")
            << QStringList{"round_button_switch.png", "round_button_switch_hover.png",
                           "round_button_switch_on.png", "round_button_switch_on_hover.png",
                           "round_button_switch_on_disabled.png",
                           "round_button_switch_disabled.png"};
        QTest::newRow("configuration") << QStringList{"conf_icon.png", "conf_icon_disabled.png"};
        QTest::newRow("emission") << QStringList{"emission_on.png", "emission_off.png"};
    }
    void states_look_different() {
        QFETCH(QStringList, family);
        for (int i = 0; i < family.size(); ++i) {
            const QImage a = QImage(":/interface/" + family.at(i))
                                 .convertToFormat(QImage::Format_ARGB32);
            for (int j = i + 1; j < family.size(); ++j) {
                const QImage b = QImage(":/interface/" + family.at(j))
                                     .convertToFormat(QImage::Format_ARGB32);
                QVERIFY2(a != b, qPrintable(family.at(i) + " equals " + family.at(j)));
            }
        }
    }

    void icon_file_is_an_icon() {
        const QIcon icon(QStringLiteral(":/interface/conf_icon.ico"));
        QVERIFY(!icon.isNull());
        QVERIFY(!icon.pixmap(32, 32).isNull());
    }
};

QTEST_MAIN(test_app_resources)
#include "test_app_resources.moc"
