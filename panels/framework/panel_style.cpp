#include "panel_style.h"

namespace panel_style {

namespace {

// A QPushButton style sheet with one border image per state. Later rules win among rules of equal
// weight, so the disabled images come last.
QString switch_sheet(const char *off, const char *off_hover, const char *on, const char *on_hover,
                     const char *on_disabled, const char *off_disabled) {
    return QStringLiteral(
               "QPushButton {\n    border-image: url(:/interface/%1);\n}\n"
               "QPushButton:hover {\n    border-image: url(:/interface/%2);\n}\n"
               "QPushButton:checked {\n    border-image: url(:/interface/%3);\n}\n"
               "QPushButton:hover:checked {\n    border-image: url(:/interface/%4);\n}\n"
               "QPushButton:disabled {\n    border-image: url(:/interface/%6);\n}\n"
               "QPushButton:checked:disabled {\n    border-image: url(:/interface/%5);\n}\n")
        .arg(QLatin1String(off), QLatin1String(off_hover), QLatin1String(on),
             QLatin1String(on_hover), QLatin1String(on_disabled), QLatin1String(off_disabled));
}

}  // namespace

QString body_switch() {
    return switch_sheet("switch_btn_off_80x25.png", "switch_btn_off_hover_80x25.png",
                        "switch_btn_on_108x25.png", "switch_btn_on_hover_108x25.png",
                        "switch_btn_on_disabled_108x25.png", "switch_btn_off_disabled_108x25.png");
}

QString header_switch() {
    return switch_sheet("round_button_switch.png", "round_button_switch_hover.png",
                        "round_button_switch_on.png", "round_button_switch_on_hover.png",
                        "round_button_switch_on_disabled.png", "round_button_switch_disabled.png");
}

QString indicator() {
    return QStringLiteral(
        "QProgressBar {\n    border: 1px solid grey;\n}\n\n"
        "QProgressBar::chunk {\n\tbackground-color: rgb(0, 160, 18);\n}\n\n"
        "QProgressBar::chunk:disabled {\n\tbackground-color: rgb(150, 150, 150);\n}");
}

QString panel_frame() {
    return QStringLiteral(
        "QGroupBox {background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
        "stop: 0 #ffffff, stop: 1 #FFFFFF); border: 1px solid gray;}");
}

QString setpoint() {
    return QStringLiteral("background: rgb(255,255,255)");
}

QString header_button() {
    return QStringLiteral(
        "QPushButton {text-align: left; border: none; padding: 2px 4px;}\n"
        "QPushButton:hover {color: red;}");
}

QString dialog_group() {
    return QStringLiteral(
        "QGroupBox {background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,stop: 0 #ffffff, "
        "stop: 1 #FFFFFF);border: 1px solid gray;margin-top: 1ex;}");
}

}  // namespace panel_style
