#include "control.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <map>
#include <sstream>

namespace zovsim {

namespace {

// A whole decimal (or 0x hex) number within [lo, hi].
bool number(const std::string& s, long lo, long hi, long* out) {
    if (s.empty()) return false;
    errno = 0;
    char* end = nullptr;
    long v = std::strtol(s.c_str(), &end, 0);
    if (errno || *end || v < lo || v > hi) return false;
    *out = v;
    return true;
}

bool hexBytes(const std::string& s, Bytes* out) {
    if (s.empty() || s.size() % 2) return false;
    for (size_t i = 0; i < s.size(); i += 2) {
        long v = 0;
        if (!std::isxdigit(static_cast<unsigned char>(s[i])) || !std::isxdigit(static_cast<unsigned char>(s[i + 1])) ||
            !number("0x" + s.substr(i, 2), 0, 255, &v))
            return false;
        out->push_back(uint8_t(v));
    }
    return true;
}

constexpr long kMaxVanishMs = 600000;

}  // namespace

std::string Controller::execute(const std::string& line) {
    std::istringstream in(line);
    std::vector<std::string> w;
    for (std::string word; in >> word;) w.push_back(word);
    if (w.empty()) return "error: empty command";
    const std::string& cmd = w[0];
    size_t args = w.size() - 1;
    auto noArgs = [&]() { return args == 0; };
    auto tooMany = [&]() { return "error: " + cmd + " takes no argument"; };

    if (cmd == "drop-call") {
        long reason = -1;
        if (args > 1 || (args == 1 && !number(w[1], 0, 0xFFFF, &reason)))
            return "error: drop-call takes an optional call end reason 0..65535";
        device_.deliver(modem_.dropCalls(int(reason)));
        return "ok";
    }
    if (cmd == "deregister" || cmd == "register") {
        if (!noArgs()) return tooMany();
        device_.deliver(modem_.setNetwork(cmd == "register"));
        return "ok";
    }
    if (cmd == "signal") {
        long dbm = 0;
        if (args != 1 || !number(w[1], -150, 0, &dbm)) return "error: signal takes a level in dBm, -150..0";
        device_.deliver(modem_.setSignal(int(dbm)));
        return "ok";
    }
    if (cmd == "stall" || cmd == "unstall") {
        if (!noArgs()) return tooMany();
        modem_.setStalled(cmd == "stall");
        return "ok";
    }
    if (cmd == "vanish") {
        long ms = 0;
        if (args != 1 || !number(w[1], 0, kMaxVanishMs, &ms))
            return "error: vanish takes a time in milliseconds, 0.." + std::to_string(kMaxVanishMs);
        std::string why = device_.vanish(int(ms));
        return why.empty() ? "ok" : "error: " + why;
    }
    if (cmd == "reset") {
        if (!noArgs()) return tooMany();
        device_.deliver(modem_.reset());
        return "ok";
    }
    if (cmd == "sim") {
        if (args != 1 || (w[1] != "remove" && w[1] != "insert")) return "error: sim takes remove or insert";
        device_.deliver(modem_.setSim(w[1] == "insert"));
        return "ok";
    }
    if (cmd == "deliver-sms") {
        Bytes pdu;
        if (args != 1 || !hexBytes(w[1], &pdu)) return "error: deliver-sms takes the PDU in hex";
        device_.deliver(modem_.deliverSms(pdu));
        return "ok";
    }
    if (cmd == "status") {
        if (!noArgs()) return tooMany();
        return modem_.status(device_.opens());
    }
    return "error: unknown command " + cmd;
}

ControlServer::~ControlServer() { stop(); }

std::string ControlServer::start(const std::string& path) {
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof addr.sun_path) return "control socket path too long: " + path;
    std::memcpy(addr.sun_path, path.c_str(), path.size() + 1);
    struct stat sb;
    if (lstat(path.c_str(), &sb) == 0 && S_ISSOCK(sb.st_mode)) unlink(path.c_str());
    listen_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (listen_ < 0 || bind(listen_, reinterpret_cast<sockaddr*>(&addr), sizeof addr) != 0 || listen(listen_, 8) != 0) {
        std::string why = path + ": " + std::strerror(errno);
        if (listen_ >= 0) close(listen_);
        listen_ = -1;
        return why;
    }
    if (pipe(wake_) != 0) {
        close(listen_);
        listen_ = -1;
        return std::string("pipe: ") + std::strerror(errno);
    }
    path_ = path;
    thread_ = std::thread([this] { run(); });
    return "";
}

void ControlServer::stop() {
    if (!thread_.joinable()) return;
    (void)!write(wake_[1], "x", 1);
    thread_.join();
    close(listen_);
    close(wake_[0]);
    close(wake_[1]);
    listen_ = wake_[0] = wake_[1] = -1;
    unlink(path_.c_str());
}

void ControlServer::run() {
    // Each controller's bytes that do not yet make a whole line.
    std::map<int, std::string> conns;
    constexpr size_t kMaxLine = 4096;
    for (;;) {
        std::vector<pollfd> pfds = {{wake_[0], POLLIN, 0}, {listen_, POLLIN, 0}};
        for (auto& kv : conns) pfds.push_back({kv.first, POLLIN, 0});
        if (poll(pfds.data(), pfds.size(), -1) < 0) {
            if (errno == EINTR) continue;
            break;
        }
        if (pfds[0].revents) break;
        if (pfds[1].revents & POLLIN) {
            int fd = accept4(listen_, nullptr, nullptr, SOCK_CLOEXEC);
            if (fd >= 0) conns[fd];
        }
        for (size_t i = 2; i < pfds.size(); ++i) {
            if (!pfds[i].revents) continue;
            int fd = pfds[i].fd;
            char buf[1024];
            ssize_t n = read(fd, buf, sizeof buf);
            std::string& pending = conns[fd];
            if (n > 0) pending.append(buf, size_t(n));
            size_t nl;
            while ((nl = pending.find('\n')) != std::string::npos) {
                std::string line = pending.substr(0, nl);
                pending.erase(0, nl + 1);
                if (!line.empty() && line.back() == '\r') line.pop_back();
                std::string answer = controller_.execute(line) + "\n";
                (void)!send(fd, answer.data(), answer.size(), MSG_NOSIGNAL);
            }
            if (n == 0 && !pending.empty()) {  // a last command without its newline
                std::string answer = controller_.execute(pending) + "\n";
                (void)!send(fd, answer.data(), answer.size(), MSG_NOSIGNAL);
            }
            if (n <= 0 || pending.size() > kMaxLine) {
                close(fd);
                conns.erase(fd);
            }
        }
    }
    for (auto& kv : conns) close(kv.first);
}

}  // namespace zovsim
