#pragma once
#include <QString>
#include <chrono>
#include <thread>

// A slow network in front of a server on this machine: whoever connects to its port speaks with the server's
// socket, and every byte is so long under way, each way.
class SlowLink {
  public:
    SlowLink(const QString& serverSocket, std::chrono::microseconds eachWay);
    ~SlowLink();
    SlowLink(const SlowLink&) = delete;
    SlowLink& operator=(const SlowLink&) = delete;
    int port() const { return port_; }

  private:
    int port_ = 0;
    int listener_;
    std::jthread relay_;
};
