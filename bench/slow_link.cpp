#include "bench/slow_link.h"

#include <QByteArray>

#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <list>
#include <vector>

namespace {
using Clock = std::chrono::steady_clock;

struct Packet {
    Clock::time_point due;
    QByteArray bytes;
};

// One direction of a connection.
struct Way {
    int from, to;
    std::deque<Packet> underWay;
    bool ended = false;
};

void require(bool done) {
    if (done) return;
    std::perror("slow link");
    std::abort();
}

int connectedTo(const QByteArray& socketPath) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, socketPath.constData(), sizeof address.sun_path - 1);
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    require(connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0);
    return server;
}

int listening(int& port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* const place = reinterpret_cast<sockaddr*>(&address);
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    require(bind(listener, place, length) == 0 && listen(listener, 8) == 0);
    require(getsockname(listener, place, &length) == 0);
    port = ntohs(address.sin_port);
    return listener;
}

class Relay {
  public:
    Relay(int listener, const QByteArray& serverSocket, std::chrono::microseconds eachWay)
        : listener_(listener), serverSocket_(serverSocket), eachWay_(eachWay) {}

    void run(const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            wait();
            for (Way& way : ways_) deliver(way);
        }
    }

  private:
    // Until something comes or is due, or a moment has gone by.
    void wait() {
        std::vector<pollfd> polled{{listener_, POLLIN, 0}};
        std::vector<Way*> readable;
        auto wake = Clock::now() + std::chrono::milliseconds(50);
        for (Way& way : ways_) {
            if (!way.underWay.empty()) wake = std::min(wake, way.underWay.front().due);
            if (way.ended) continue;
            polled.push_back({way.from, POLLIN, 0});
            readable.push_back(&way);
        }
        const auto left =
            std::max(std::chrono::nanoseconds(0), std::chrono::nanoseconds(wake - Clock::now()));
        const timespec timeout{0, static_cast<long>(left.count())};
        if (ppoll(polled.data(), polled.size(), &timeout, nullptr) <= 0) return;
        for (size_t at = 0; at < readable.size(); ++at)
            if (polled[at + 1].revents != 0) take(*readable[at]);
        if (polled.front().revents != 0) accept();
    }
    void accept() {
        const int client = ::accept(listener_, nullptr, nullptr);
        const int server = connectedTo(serverSocket_);
        const int now = 1;
        setsockopt(client, IPPROTO_TCP, TCP_NODELAY, &now, sizeof now);
        ways_.push_back({client, server, {}});
        ways_.push_back({server, client, {}});
    }
    void take(Way& way) {
        QByteArray bytes(65536, Qt::Uninitialized);
        const ssize_t length = recv(way.from, bytes.data(), static_cast<size_t>(bytes.size()), 0);
        way.ended = length <= 0;
        bytes.resize(std::max<ssize_t>(length, 0));
        way.underWay.push_back({Clock::now() + eachWay_, bytes});
    }
    // An empty packet is the end.
    static void deliver(Way& way) {
        for (; !way.underWay.empty() && way.underWay.front().due <= Clock::now(); way.underWay.pop_front()) {
            const QByteArray& bytes = way.underWay.front().bytes;
            if (bytes.isEmpty()) shutdown(way.to, SHUT_WR);
            for (qsizetype sent = 0; sent < bytes.size();) {
                const ssize_t length = send(way.to, bytes.constData() + sent,
                                            static_cast<size_t>(bytes.size() - sent), MSG_NOSIGNAL);
                if (length <= 0) break;
                sent += length;
            }
        }
    }

    int listener_;
    QByteArray serverSocket_;
    std::chrono::microseconds eachWay_;
    std::list<Way> ways_;
};
}  // namespace

SlowLink::SlowLink(const QString& serverSocket, std::chrono::microseconds eachWay)
    : listener_(listening(port_)),
      relay_([listener = listener_, path = serverSocket.toUtf8(), eachWay](const std::stop_token& stop) {
          Relay(listener, path, eachWay).run(stop);
      }) {}

SlowLink::~SlowLink() {
    relay_.request_stop();
    relay_.join();
    close(listener_);
}
