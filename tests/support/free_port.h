// A loopback TCP port for a server a test or benchmark starts (a broker, say).
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

// A loopback port nobody listens on now; 0 when none could be had.
inline int free_port() {
    const int s = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    int port = 0;
    if (::bind(s, reinterpret_cast<sockaddr *>(&address), size) == 0 &&
        ::getsockname(s, reinterpret_cast<sockaddr *>(&address), &size) == 0) {
        port = ntohs(address.sin_port);
    }
    ::close(s);
    return port;
}
