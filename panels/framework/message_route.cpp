#include "message_route.h"

#include <utility>

namespace {

QMessageBox::StandardButton modal_box(const message_request &request) {
    QMessageBox box(request.icon, request.title, request.text, request.buttons, request.parent);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

message_answerer &current_answerer() {
    static message_answerer answerer = modal_box;
    return answerer;
}

}  // namespace

QMessageBox::StandardButton ask_user(const message_request &request) {
    return current_answerer()(request);
}

message_answerer set_message_answerer(message_answerer answerer) {
    message_answerer previous = std::move(current_answerer());
    current_answerer() = answerer ? std::move(answerer) : message_answerer(modal_box);
    return previous;
}

bool confirm(QWidget *parent, const QString &title, const QString &text) {
    message_request request;
    request.icon = QMessageBox::Information;
    request.title = title;
    request.text = text;
    request.buttons = QMessageBox::Yes | QMessageBox::No;
    request.parent = parent;
    return ask_user(request) == QMessageBox::Yes;
}

void inform(QWidget *parent, const QString &title, const QString &text) {
    message_request request;
    request.icon = QMessageBox::Warning;
    request.title = title;
    request.text = text;
    request.buttons = QMessageBox::Ok;
    request.parent = parent;
    ask_user(request);
}
