// The interface images the panels draw with: each family's files load at the size they are drawn
// for, are not blank, and every state of a control looks different from the others.
#include <QDirIterator>
#include <QImage>
#include <QtTest>

class test_app_resources : public QObject {
    Q_OBJECT

private slots:
    void interface_images_data() {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("count");
        QTest::addColumn<double>("min_cover");  // share of pixels that are not transparent
        QTest::newRow("slide switch") << "switch_btn_*_80x25.*" << QSize(80, 25) << 2 << 0.8;
        QTest::newRow("wide switch") << "switch_btn_*_108x25.*" << QSize(108, 25) << 4 << 0.8;
        QTest::newRow("round switch") << "round_button_switch*" << QSize(48, 48) << 6 << 0.6;
        QTest::newRow("configuration icon") << "conf_icon*" << QSize(32, 32) << 3 << 0.4;
        QTest::newRow("emission lamp") << "emission_*" << QSize(32, 32) << 2 << 0.4;
        QTest::newRow("program icon") << "lumivox_*" << QSize(64, 64) << 1 << 0.8;
    }
    void interface_images() {
        QFETCH(QString, pattern);
        QFETCH(QSize, size);
        QFETCH(int, count);
        QFETCH(double, min_cover);
        QMap<QString, QImage> family;  // by name without the suffix: the .ico repeats the .png
        int files = 0;
        for (QDirIterator it(":/interface", {pattern}); it.hasNext(); ++files) {
            const QString state = it.next().section('/', -1).section('.', 0, 0);
            const QImage image = QImage(it.filePath()).convertToFormat(QImage::Format_ARGB32);
            QCOMPARE(image.size(), size);
            int opaque = 0;
            for (int i = 0; i < size.width() * size.height(); ++i) {
                opaque += qAlpha(image.pixel(i % size.width(), i / size.width())) > 0;
            }
            QVERIFY2(opaque >= min_cover * size.width() * size.height(), qPrintable(state));
            for (auto other = family.cbegin(); other != family.cend(); ++other) {
                QVERIFY2(other.key() == state || *other != image, qPrintable(state));
            }
            family.insert(state, image);
        }
        QCOMPARE(files, count);
    }
};

QTEST_MAIN(test_app_resources)
#include "test_app_resources.moc"
