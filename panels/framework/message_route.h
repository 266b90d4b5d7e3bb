#pragma once

#include <QMessageBox>
#include <QString>

#include <functional>

class QWidget;

// Every confirmation and warning box that a panel shows goes through ask_user(). The program
// answers it with a modal QMessageBox; tests install an answerer of their own, so that they can
// answer Yes or No, see every title and text, and fail on a box they did not expect.
struct message_request {
    QMessageBox::Icon icon = QMessageBox::Information;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QWidget *parent = nullptr;
};

using message_answerer = std::function<QMessageBox::StandardButton(const message_request &)>;

// Shows the box and returns the button chosen.
QMessageBox::StandardButton ask_user(const message_request &request);

// Replaces the answerer and returns the previous one; an empty function restores the modal box.
message_answerer set_message_answerer(message_answerer answerer);

// A Yes/No question with the information icon; true only for Yes.
bool confirm(QWidget *parent, const QString &title, const QString &text);

// A box with the warning icon and one OK button.
void inform(QWidget *parent, const QString &title, const QString &text);
