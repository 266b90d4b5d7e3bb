// Draws the interface images of Lumivox with QPainter. Run at build time:
//
//     draw_interface <output directory> <file name>...
//
// Every name given is drawn into the output directory; a name this program cannot draw is an error,
// so the list in resources/CMakeLists.txt and the drawings here cannot drift apart unnoticed.
// To change an image, change its function below and rebuild.

#include <QDir>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QTextStream>
#include <QtMath>

#include <functional>
#include <map>

namespace {

// Colours shared by the switch images.
const QColor track_off_top(0xe4, 0xe6, 0xea);
const QColor track_off_bottom(0xb9, 0xbd, 0xc4);
const QColor track_on_top(0x4c, 0xc7, 0x6a);
const QColor track_on_bottom(0x1f, 0x8f, 0x3e);
const QColor outline(0x6e, 0x74, 0x7c);
const QColor hover_glow(0x3d, 0x8b, 0xe0);

QImage blank(int w, int h) {
    QImage img(w, h, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    return img;
}

QFont ui_font(qreal pixel_size, int weight = QFont::Bold) {
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setStyleHint(QFont::SansSerif);
    f.setPixelSize(qRound(pixel_size));
    f.setWeight(weight);
    return f;
}

// Draws `text` centred on `centre`.
void centred_text(QPainter &p, const QPointF &centre, const QString &text) {
    const QFontMetricsF fm(p.font());
    const qreal w = fm.horizontalAdvance(text);
    p.drawText(QPointF(centre.x() - w / 2, centre.y() + (fm.ascent() - fm.descent()) / 2), text);
}

// ---- Slide switch (emission switch in a panel body) ----------------------------------------------

enum class look { normal, hover, disabled };

// A rounded track with a round knob: the knob sits left and "OFF" reads right when off; the track
// turns green, the knob moves right and "ON" reads left when on.
QImage slide_switch(int w, int h, bool on, look state) {
    QImage img = blank(w, h);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF track(0.5, 0.5, w - 1.0, h - 1.0);
    const qreal r = track.height() / 2;

    QColor top = on ? track_on_top : track_off_top;
    QColor bottom = on ? track_on_bottom : track_off_bottom;
    QColor edge = outline;
    QColor label = on ? QColor(Qt::white) : QColor(0x3a, 0x3f, 0x46);
    if (state == look::hover) {
        top = top.lighter(112);
        bottom = bottom.lighter(112);
        edge = hover_glow;
    } else if (state == look::disabled) {
        const auto grey = [](const QColor &c) {
            const int v = qGray(c.rgb());
            return QColor(v, v, v).lighter(125);
        };
        top = grey(top);
        bottom = grey(bottom);
        edge = QColor(0xb0, 0xb0, 0xb0);
        label = on ? QColor(0xf4, 0xf4, 0xf4) : QColor(0x9a, 0x9a, 0x9a);
    }

    QLinearGradient g(track.topLeft(), track.bottomLeft());
    g.setColorAt(0, top);
    g.setColorAt(1, bottom);
    p.setBrush(g);
    p.setPen(QPen(edge, state == look::hover ? 1.5 : 1.0));
    p.drawRoundedRect(track, r, r);

    // Knob.
    const qreal d = track.height() - 4;
    const qreal kx = on ? track.right() - 2 - d : track.left() + 2;
    const QRectF knob(kx, track.top() + 2, d, d);
    QRadialGradient kg(knob.center() - QPointF(d * 0.15, d * 0.2), d * 0.7);
    kg.setColorAt(0, state == look::disabled ? QColor(0xf2, 0xf2, 0xf2) : QColor(Qt::white));
    kg.setColorAt(1, state == look::disabled ? QColor(0xd0, 0xd0, 0xd0) : QColor(0xc9, 0xcd, 0xd3));
    p.setBrush(kg);
    p.setPen(QPen(state == look::disabled ? QColor(0xb8, 0xb8, 0xb8) : outline, 1.0));
    p.drawEllipse(knob);

    // Label in the free part of the track.
    p.setFont(ui_font(h * 0.48));
    p.setPen(label);
    const QRectF free_part = on ? QRectF(track.left() + r * 0.6, 0, kx - track.left() - r * 0.6, h)
                                : QRectF(knob.right(), 0, track.right() - r * 0.6 - knob.right(), h);
    centred_text(p, free_part.center(), on ? QStringLiteral("ON") : QStringLiteral("OFF"));
    return img;
}

// ---- Round switch (emission switch in a panel header) ---------------------------------------------

// The power symbol: an open ring with a bar through the gap at the top.
void power_symbol(QPainter &p, const QPointF &c, qreal radius, const QColor &colour, qreal width) {
    QPen pen(colour, width, Qt::SolidLine, Qt::RoundCap);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    const QRectF ring(c.x() - radius, c.y() - radius, 2 * radius, 2 * radius);
    // Qt angles: 1/16 degree, counter-clockwise from 3 o'clock; leave a 80 degree gap at the top.
    p.drawArc(ring, (90 + 40) * 16, (360 - 80) * 16);
    p.drawLine(QPointF(c.x(), c.y() - radius * 1.25), QPointF(c.x(), c.y() - radius * 0.15));
}

QImage round_switch(int size, bool on, look state) {
    QImage img = blank(size, size);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF c(size / 2.0, size / 2.0);
    const qreal outer = size / 2.0 - 1.0;

    // Bezel.
    QColor bezel_edge = state == look::hover ? hover_glow : outline;
    if (state == look::disabled) {
        bezel_edge = QColor(0xb8, 0xb8, 0xb8);
    }
    QLinearGradient bezel(0, 0, 0, size);
    bezel.setColorAt(0, QColor(0xfa, 0xfa, 0xfa));
    bezel.setColorAt(1, QColor(0xa8, 0xad, 0xb4));
    p.setBrush(bezel);
    p.setPen(QPen(bezel_edge, state == look::hover ? 2.0 : 1.0));
    p.drawEllipse(c, outer, outer);

    // Face: green and glowing when on, grey when off.
    const qreal face = outer * 0.78;
    QColor inner;
    QColor rim;
    QColor symbol;
    if (on) {
        inner = QColor(0x7d, 0xf0, 0x8c);
        rim = QColor(0x16, 0x8a, 0x33);
        symbol = Qt::white;
    } else {
        inner = QColor(0xee, 0xf0, 0xf2);
        rim = QColor(0x9c, 0xa2, 0xaa);
        symbol = QColor(0x4a, 0x50, 0x58);
    }
    if (state == look::hover) {
        inner = inner.lighter(108);
        rim = rim.lighter(115);
    } else if (state == look::disabled) {
        const auto washed = [](const QColor &col) {
            const int v = qGray(col.rgb());
            return QColor((v * 2 + 0xd8) / 3, (v * 2 + 0xd8) / 3, (v * 2 + 0xd8) / 3);
        };
        inner = washed(inner);
        rim = washed(rim);
        symbol = on ? QColor(0xf4, 0xf4, 0xf4) : QColor(0xa8, 0xa8, 0xa8);
    }
    QRadialGradient fg(c - QPointF(face * 0.25, face * 0.3), face * 1.3);
    fg.setColorAt(0, inner);
    fg.setColorAt(1, rim);
    p.setBrush(fg);
    p.setPen(QPen(rim.darker(120), 1.0));
    p.drawEllipse(c, face, face);

    power_symbol(p, c + QPointF(0, face * 0.08), face * 0.5, symbol, qMax(2.0, size / 12.0));
    return img;
}

// ---- Configuration icon ---------------------------------------------------------------------------

// A gear wheel with eight teeth and a hole.
QImage gear(int size, bool enabled) {
    QImage img = blank(size, size);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF c(size / 2.0, size / 2.0);
    const int teeth = 8;
    const qreal r_out = size * 0.47;
    const qreal r_in = size * 0.36;
    const qreal hole = size * 0.15;

    QPainterPath body;
    for (int i = 0; i < teeth * 4; ++i) {
        // Each tooth: rise, top, fall, root; a quarter of the pitch each.
        const qreal a = (i - 0.5) * 2 * M_PI / (teeth * 4);
        const bool top = (i % 4) == 1 || (i % 4) == 2;
        const qreal r = top ? r_out : r_in;
        const QPointF pt(c.x() + r * qCos(a), c.y() + r * qSin(a));
        if (i == 0) {
            body.moveTo(pt);
        } else {
            body.lineTo(pt);
        }
    }
    body.closeSubpath();
    body.addEllipse(c, hole, hole);
    body.setFillRule(Qt::OddEvenFill);

    QLinearGradient g(0, 0, 0, size);
    if (enabled) {
        g.setColorAt(0, QColor(0x6d, 0x7f, 0x99));
        g.setColorAt(1, QColor(0x2f, 0x3c, 0x52));
    } else {
        g.setColorAt(0, QColor(0xd4, 0xd4, 0xd4));
        g.setColorAt(1, QColor(0xb0, 0xb0, 0xb0));
    }
    p.setBrush(g);
    p.setPen(QPen(enabled ? QColor(0x1e, 0x28, 0x38) : QColor(0x9a, 0x9a, 0x9a), size / 32.0));
    p.drawPath(body);
    return img;
}

// ---- Emission indicator ---------------------------------------------------------------------------

// The laser warning sign: a triangle with a starburst and a beam. Yellow and lit when the emission
// is on, grey when it is off.
QImage emission(int size, bool on) {
    QImage img = blank(size, size);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    if (on) {
        QRadialGradient glow(QPointF(size / 2.0, size * 0.6), size * 0.6);
        glow.setColorAt(0, QColor(255, 80, 40, 150));
        glow.setColorAt(1, QColor(255, 80, 40, 0));
        p.setBrush(glow);
        p.setPen(Qt::NoPen);
        p.drawEllipse(QPointF(size / 2.0, size * 0.6), size * 0.6, size * 0.6);
    }
    const qreal m = size * 0.08;
    QPainterPath tri;
    tri.moveTo(size / 2.0, m);
    tri.lineTo(size - m, size - m * 1.4);
    tri.lineTo(m, size - m * 1.4);
    tri.closeSubpath();
    p.setBrush(on ? QColor(0xff, 0xd2, 0x00) : QColor(0xd6, 0xd8, 0xdb));
    p.setPen(QPen(on ? QColor(0x1a, 0x1a, 0x1a) : QColor(0x8a, 0x8e, 0x94), size / 14.0,
                  Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(tri);

    // Starburst and beam.
    const QColor ink = on ? QColor(0x1a, 0x1a, 0x1a) : QColor(0x8a, 0x8e, 0x94);
    const QPointF star(size * 0.42, size * 0.64);
    p.setPen(QPen(ink, qMax(1.0, size / 24.0), Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 8; ++i) {
        const qreal a = i * M_PI / 4;
        const qreal r1 = size * 0.05;
        const qreal r2 = (i % 2) ? size * 0.11 : size * 0.15;
        p.drawLine(star + QPointF(r1 * qCos(a), r1 * qSin(a)),
                   star + QPointF(r2 * qCos(a), r2 * qSin(a)));
    }
    p.setBrush(ink);
    p.setPen(Qt::NoPen);
    p.drawEllipse(star, size * 0.045, size * 0.045);
    p.setPen(QPen(on ? QColor(0xd0, 0x10, 0x10) : ink, qMax(1.0, size / 18.0), Qt::SolidLine,
                  Qt::RoundCap));
    p.drawLine(star + QPointF(size * 0.06, 0), QPointF(size * 0.74, size * 0.64));
    return img;
}

// ---- Brand logos ----------------------------------------------------------------------------------
// Each logo is drawn for the header colour of its variant (white artwork on a coloured band) and at
// exactly the size of the label that shows it.

// Largest pixel size at which `text` fits `box` in the given weight.
QFont fitting_font(const QString &text, const QSizeF &box, int weight, qreal spacing = 0) {
    qreal px = box.height();
    for (; px > 6; px -= 0.5) {
        QFont f = ui_font(px, weight);
        f.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
        const QFontMetricsF fm(f);
        if (fm.horizontalAdvance(text) <= box.width() && fm.ascent() + fm.descent() <= box.height()) {
            return f;
        }
    }
    return ui_font(px, weight);
}

void text_left(QPainter &p, const QRectF &box, const QString &text, const QFont &f,
               const QColor &colour) {
    p.setFont(f);
    p.setPen(colour);
    const QFontMetricsF fm(f);
    const qreal base = box.center().y() + (fm.ascent() - fm.descent()) / 2;
    p.drawText(QPointF(box.left(), base), text);
}

// Skarnova: a faceted diamond emblem, then the name in wide capitals with a thin tag line.
QImage logo_skarnova() {
    const int w = 273;
    const int h = 60;
    QImage img = blank(w, h);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF c(30, 30);
    QPolygonF diamond;
    diamond << QPointF(c.x(), 6) << QPointF(c.x() + 22, c.y()) << QPointF(c.x(), 54)
            << QPointF(c.x() - 22, c.y());
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xff, 0xff, 0xff));
    p.drawPolygon(diamond);
    // Facets.
    p.setBrush(QColor(0xc9, 0xbf, 0xf5));
    p.drawPolygon(QPolygonF() << QPointF(c.x(), 6) << QPointF(c.x() + 22, c.y()) << c);
    p.setBrush(QColor(0x8e, 0x7d, 0xe0));
    p.drawPolygon(QPolygonF() << c << QPointF(c.x() + 22, c.y()) << QPointF(c.x(), 54));
    p.setBrush(QColor(0x43, 0x37, 0x79));
    p.drawEllipse(c, 4, 4);

    const QString name = QStringLiteral("SKARNOVA");
    const QFont big = fitting_font(name, QSizeF(205, 30), QFont::Black, 2);
    text_left(p, QRectF(62, 4, 205, 34), name, big, Qt::white);
    QFont small = ui_font(10, QFont::Normal);
    small.setLetterSpacing(QFont::AbsoluteSpacing, 2.2);
    text_left(p, QRectF(63, 38, 205, 16), QStringLiteral("PHOTONICS"), small,
              QColor(0xd9, 0xd2, 0xff));
    return img;
}

// Quibrel: three light waves in a circle, then the name in lower case.
QImage logo_quibrel() {
    const int w = 215;
    const int h = 60;
    QImage img = blank(w, h);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF c(30, 30);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawEllipse(c, 25, 25);
    const QColor teal(0x3c, 0x91, 0x88);
    for (int i = 0; i < 3; ++i) {
        QPainterPath wave;
        const qreal y = 20 + i * 10;
        wave.moveTo(10, y);
        for (int x = 10; x <= 50; ++x) {
            wave.lineTo(x, y + 4 * qSin((x - 10) * 2 * M_PI / 20.0 + i));
        }
        p.setPen(QPen(teal, 3, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(Qt::NoBrush);
        p.drawPath(wave);
    }
    const QString name = QStringLiteral("quibrel");
    const QFont f = fitting_font(name, QSizeF(145, 44), QFont::Bold);
    text_left(p, QRectF(64, 4, 145, 48), name, f, Qt::white);
    return img;
}

// Veltrano: a beam arrow followed by the name; a low band for the flat header.
QImage logo_veltrano() {
    const int w = 273;
    const int h = 35;
    QImage img = blank(w, h);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    // Three converging beams into a point, like light through a lens.
    p.setPen(QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap));
    const QPointF focus(40, 17.5);
    p.drawLine(QPointF(4, 5), focus);
    p.drawLine(QPointF(4, 17.5), focus);
    p.drawLine(QPointF(4, 30), focus);
    p.setBrush(QColor(0xff, 0xd8, 0x3a));
    p.setPen(Qt::NoPen);
    p.drawEllipse(focus, 5, 5);

    const QString name = QStringLiteral("VELTRANO");
    QFont f = fitting_font(name, QSizeF(215, 30), QFont::Bold, 3);
    f.setItalic(true);
    text_left(p, QRectF(54, 1, 215, 33), name, f, Qt::white);
    return img;
}

// The generic build: a square emblem with a power symbol and "POWER" over "VERSION".
QImage logo_power_version() {
    const int w = 128;
    const int h = 95;
    QImage img = blank(w, h);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::white, 2));
    p.setBrush(QColor(255, 255, 255, 40));
    p.drawRoundedRect(QRectF(39, 3, 50, 50), 10, 10);
    power_symbol(p, QPointF(64, 30), 14, Qt::white, 4);
    const QFont top = fitting_font(QStringLiteral("POWER"), QSizeF(118, 20), QFont::Black, 2);
    p.setFont(top);
    p.setPen(Qt::white);
    centred_text(p, QPointF(64, 66), QStringLiteral("POWER"));
    QFont bottom = ui_font(11, QFont::Normal);
    bottom.setLetterSpacing(QFont::AbsoluteSpacing, 3);
    p.setFont(bottom);
    p.setPen(QColor(0xcf, 0xe0, 0xea));
    centred_text(p, QPointF(64, 86), QStringLiteral("VERSION"));
    return img;
}

// ---- The program's icon (menu entry and window) ---------------------------------------------------

// A blue tile with a laser diode on its left edge sending a red beam across it. Drawn on a
// 256-unit grid and scaled, so every size is the same picture; the beam's glow is left out below
// 32 pixels, where it would only blur the line.
QImage program_icon(int size) {
    QImage img = blank(size, size);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 256.0, size / 256.0);

    const QRectF tile(8, 8, 240, 240);
    QLinearGradient sky(tile.topLeft(), tile.bottomLeft());
    sky.setColorAt(0, QColor(0x2f, 0x36, 0xe0));
    sky.setColorAt(1, QColor(0x12, 0x16, 0x6e));
    p.setPen(QPen(QColor(0x0c, 0x0f, 0x4a), 4));
    p.setBrush(sky);
    p.drawRoundedRect(tile, 44, 44);

    // The beam: a glow, then the red line with a white-hot core.
    const qreal y = 150;
    if (size >= 32) {
        QLinearGradient glow(QPointF(0, y - 34), QPointF(0, y + 34));
        glow.setColorAt(0, QColor(255, 40, 40, 0));
        glow.setColorAt(0.5, QColor(255, 60, 60, 150));
        glow.setColorAt(1, QColor(255, 40, 40, 0));
        p.setPen(Qt::NoPen);
        p.setBrush(glow);
        p.drawRect(QRectF(100, y - 34, 144, 68));
    }
    p.setBrush(QColor(0xff, 0x2a, 0x2a));
    p.drawRect(QRectF(100, y - 13, 146, 26));
    p.setBrush(QColor(0xff, 0xe4, 0xd8));
    p.drawRect(QRectF(100, y - 5, 146, 10));

    // The diode: a metal can with its window facing the beam, and its two legs.
    QLinearGradient metal(QPointF(0, y - 44), QPointF(0, y + 44));
    metal.setColorAt(0, QColor(0xf2, 0xf4, 0xf7));
    metal.setColorAt(0.5, QColor(0xb4, 0xba, 0xc4));
    metal.setColorAt(1, QColor(0x7c, 0x84, 0x90));
    p.setPen(QPen(QColor(0x20, 0x24, 0x30), 5));
    p.setBrush(metal);
    p.drawRoundedRect(QRectF(36, y - 44, 68, 88), 14, 14);
    p.setBrush(QColor(0x20, 0x24, 0x30));
    p.drawRect(QRectF(96, y - 20, 16, 40));
    p.setPen(QPen(QColor(0xd8, 0xdc, 0xe2), 10, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(56, y + 48), QPointF(56, 226));
    p.drawLine(QPointF(84, y + 48), QPointF(84, 226));

    // Emission marks above the beam.
    p.setPen(QPen(QColor(0xff, 0xd2, 0x3c), 12, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(150, 92), QPointF(168, 52));
    p.drawLine(QPointF(190, 96), QPointF(222, 66));
    return img;
}

using drawer = std::function<QImage()>;

const std::map<QString, drawer> &drawings() {
    static const std::map<QString, drawer> all = {
        {"switch_btn_off_80x25.png", [] { return slide_switch(80, 25, false, look::normal); }},
        {"switch_btn_off_hover_80x25.png", [] { return slide_switch(80, 25, false, look::hover); }},
        {"switch_btn_on_108x25.png", [] { return slide_switch(108, 25, true, look::normal); }},
        {"switch_btn_on_hover_108x25.png", [] { return slide_switch(108, 25, true, look::hover); }},
        {"switch_btn_on_disabled_108x25.png",
         [] { return slide_switch(108, 25, true, look::disabled); }},
        {"switch_btn_off_disabled_108x25.png",
         [] { return slide_switch(108, 25, false, look::disabled); }},
        {"round_button_switch.png", [] { return round_switch(48, false, look::normal); }},
        {"round_button_switch_hover.png", [] { return round_switch(48, false, look::hover); }},
        {"round_button_switch_on.png", [] { return round_switch(48, true, look::normal); }},
        {"round_button_switch_on_hover.png", [] { return round_switch(48, true, look::hover); }},
        {"round_button_switch_on_disabled.png",
         [] { return round_switch(48, true, look::disabled); }},
        {"round_button_switch_disabled.png",
         [] { return round_switch(48, false, look::disabled); }},
        {"conf_icon.png", [] { return gear(32, true); }},
        {"conf_icon.ico", [] { return gear(32, true); }},
        {"conf_icon_disabled.png", [] { return gear(32, false); }},
        {"emission_on.png", [] { return emission(32, true); }},
        {"emission_off.png", [] { return emission(32, false); }},
        {"SkarN_logo.png", logo_skarnova},
        {"quibrel_logo_PNG.png", logo_quibrel},
        {"veltrano.png", logo_veltrano},
        {"power_version.png", logo_power_version},
        {"lumivox_16.png", [] { return program_icon(16); }},
        {"lumivox_22.png", [] { return program_icon(22); }},
        {"lumivox_24.png", [] { return program_icon(24); }},
        {"lumivox_32.png", [] { return program_icon(32); }},
        {"lumivox_48.png", [] { return program_icon(48); }},
        {"lumivox_64.png", [] { return program_icon(64); }},
        {"lumivox_128.png", [] { return program_icon(128); }},
        {"lumivox_256.png", [] { return program_icon(256); }},
    };
    return all;
}

}  // namespace

int main(int argc, char *argv[]) {
    // Text needs a font database, hence a GUI application (run with the offscreen platform).
    QGuiApplication app(argc, argv);
    QTextStream err(stderr);
    const QStringList args = app.arguments();
    if (args.size() < 3) {
        err << "usage: draw_interface <output directory> <file name>...\n";
        return 2;
    }
    const QDir out(args.at(1));
    if (!QDir().mkpath(out.path())) {
        err << "draw_interface: cannot create " << out.path() << "\n";
        return 1;
    }
    for (int i = 2; i < args.size(); ++i) {
        const QString &name = args.at(i);
        const auto it = drawings().find(name);
        if (it == drawings().end()) {
            err << "draw_interface: no drawing for " << name << "\n";
            return 1;
        }
        const QImage img = it->second();
        QImageWriter writer(out.filePath(name), name.endsWith(QLatin1String(".ico")) ? "ico" : "png");
        if (!writer.write(img)) {
            err << "draw_interface: cannot write " << name << ": " << writer.errorString() << "\n";
            return 1;
        }
    }
    return 0;
}
