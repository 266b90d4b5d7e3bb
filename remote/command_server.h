#pragma once

#include "listen_address.h"

#include <QObject>
#include <QString>
#include <QTcpServer>

#include <memory>
#include <vector>

class instrument;

// The command server's sockets: accepts clients, cuts what each sends into lines, runs each line
// in the client's own command_session and writes the answers back. It lives in the GUI thread with
// the panels; a line costs a few microseconds there.
//
// What comes from a client is hostile until read: a line longer than max_line_bytes is dropped
// whole (-223 in that client's error queue), a line with bytes that are not printable ASCII is
// not run (-101), a client beyond max_clients is closed at once, and a client that stops taking
// its answers is read no further until it does (the system's own buffers then hold it back). A
// client that goes away mid-line takes its unfinished line with it: nothing of it is run. Nothing
// a client does touches the other clients or the polling.
class command_server : public QObject {
    Q_OBJECT
public:
    static constexpr int max_clients = 8;
    static constexpr int max_line_bytes = 4096;
    // Answers written but not yet taken by a client beyond which its next lines wait.
    static constexpr qint64 max_unsent_bytes = 64 * 1024;

    explicit command_server(instrument &target, QObject *parent = nullptr);
    ~command_server() override;

    // False, with the reason in `error`, when the address cannot be bound.
    bool listen(const listen_address &where, QString *error);
    // The address bound (with the port chosen when 0 was asked for).
    listen_address address() const;
    int clients() const { return static_cast<int>(clients_.size()); }

signals:
    void sig_clients_changed(int count);

private:
    struct client;

    void accept();
    void serve(client *c);
    void drop(client *c);

    instrument &target_;
    QTcpServer server_;
    std::vector<std::unique_ptr<client>> clients_;
};
