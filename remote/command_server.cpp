#include "command_server.h"

#include "command_session.h"
#include "scpi_syntax.h"

#include <QTcpSocket>

#include <algorithm>

struct command_server::client {
    client(QTcpSocket *s, instrument &target) : socket(s), session(target) {}
    ~client() { socket->deleteLater(); }

    QTcpSocket *socket;
    command_session session;
    QByteArray pending;       // read, not yet run; never more than a line and its terminator
    bool discarding = false;  // inside a line that was too long, until its end
    bool waiting = false;     // its answers are not being taken: read on once they are
};

command_server::command_server(instrument &target, QObject *parent)
    : QObject(parent), target_(target) {
    connect(&server_, &QTcpServer::newConnection, this, &command_server::accept);
}

command_server::~command_server() {
    for (const auto &c : clients_) {
        c->socket->disconnect(this);
        c->socket->abort();
    }
}

bool command_server::listen(const listen_address &where, QString *error) {
    server_.setMaxPendingConnections(max_clients);
    if (!server_.listen(where.address, where.port)) {
        *error = server_.errorString();
        return false;
    }
    return true;
}

listen_address command_server::address() const {
    listen_address bound;
    bound.address = server_.serverAddress();
    bound.port = server_.serverPort();
    return bound;
}

void command_server::accept() {
    while (QTcpSocket *socket = server_.nextPendingConnection()) {
        if (clients() >= max_clients) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        socket->setParent(this);
        // Qt stops reading from the system once this much waits unread: a client that floods
        // is then held back by the connection itself.
        socket->setReadBufferSize(4 * max_line_bytes);
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        clients_.push_back(std::make_unique<client>(socket, target_));
        client *c = clients_.back().get();
        connect(socket, &QTcpSocket::readyRead, this, [this, c] { serve(c); });
        connect(socket, &QTcpSocket::bytesWritten, this, [this, c] {
            if (c->waiting) {
                serve(c);
            }
        });
        connect(socket, &QTcpSocket::disconnected, this, [this, c] { drop(c); });
        emit sig_clients_changed(clients());
    }
}

void command_server::serve(client *c) {
    QTcpSocket *socket = c->socket;
    c->waiting = false;
    while (true) {
        if (socket->bytesToWrite() >= max_unsent_bytes) {
            c->waiting = true;
            return;
        }
        const int end = c->pending.indexOf('\n');
        if (end < 0) {
            // A line still without its end that is already too long (a carriage return may yet
            // come before the line feed) is dropped from here to its end.
            if (c->pending.size() > max_line_bytes + 1) {
                if (!c->discarding) {
                    c->session.push_error(scpi::too_much_data,
                                          "a line holds at most 4096 bytes");
                }
                c->discarding = true;
                c->pending.clear();
            }
            if (socket->bytesAvailable() <= 0) {
                return;
            }
            c->pending += socket->read(max_line_bytes + 2 - c->pending.size());
            continue;
        }
        QByteArray line = c->pending.left(end);
        c->pending.remove(0, end + 1);
        if (c->discarding) {
            c->discarding = false;
            continue;
        }
        if (line.endsWith('\r')) {
            line.chop(1);
        }
        if (line.size() > max_line_bytes) {
            c->session.push_error(scpi::too_much_data, "a line holds at most 4096 bytes");
            continue;
        }
        const QByteArray answer = c->session.run(line);
        if (!answer.isEmpty()) {
            socket->write(answer);
        }
    }
}

void command_server::drop(client *c) {
    const auto it = std::find_if(clients_.begin(), clients_.end(),
                                 [c](const std::unique_ptr<client> &p) { return p.get() == c; });
    if (it == clients_.end()) {
        return;
    }
    c->socket->disconnect(this);
    clients_.erase(it);
    emit sig_clients_changed(clients());
}
