#pragma once

#include <QString>

class QWidget;

// The look every panel shares: switch images, indicator bars, the white panel frame, the header
// button. Panels apply these to their widgets by role, so the images and colours live in one place.
namespace panel_style {

// Emission switch in the panel body (80×25 off, 108×25 on images).
QString body_switch();
// Round emission switch in the header, usable while the body is collapsed.
QString header_switch();
// Indicator bar: grey border, green chunk, grey chunk while disabled.
QString indicator();
// The panel's frame: white gradient with a grey border.
QString panel_frame();
// Set-point spin boxes.
QString setpoint();
// Header button: left-aligned text, red on hover.
QString header_button();
// The configuration dialog's group box.
QString dialog_group();

}  // namespace panel_style
