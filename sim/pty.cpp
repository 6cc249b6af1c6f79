#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <poll.h>
#include <signal.h>
#include <termios.h>
#include <unistd.h>

#include <atomic>
#include <cctype>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>

#include "transports.h"

namespace zovsim {

namespace {

volatile sig_atomic_t gStop = 0;
void onSignal(int) { gStop = 1; }

// Takes the whole frames off the front of `in`, resynchronising on the
// interface-type byte when what stands there cannot be a frame.
std::vector<Bytes> takeFrames(Bytes& in) {
    std::vector<Bytes> frames;
    size_t pos = 0;
    while (pos < in.size()) {
        if (in[pos] != 0x01) { ++pos; continue; }
        if (in.size() - pos < 3) break;
        size_t total = size_t(in[pos + 1] | in[pos + 2] << 8) + 1;
        if (total < 12 || total > 4096) { ++pos; continue; }
        if (in.size() - pos < total) break;
        frames.emplace_back(in.begin() + long(pos), in.begin() + long(pos + total));
        pos += total;
    }
    in.erase(in.begin(), in.begin() + long(pos));
    return frames;
}

class PtyDevice : public ServedDevice {
public:
    PtyDevice(Modem& modem, const std::string& link) : modem_(modem), link_(link) {}

    void deliver(const std::vector<Frame>& frames) override {
        std::lock_guard<std::mutex> lock(mutex_);
        send(frames);
    }

    // Descriptors of other processes open on the slave (from /proc).
    int opens() override {
        std::string slave;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            slave = slaveName_;
        }
        if (slave.empty()) return 0;
        int n = 0;
        std::string self = std::to_string(getpid());
        DIR* proc = opendir("/proc");
        if (!proc) return 0;
        while (dirent* p = readdir(proc)) {
            if (!std::isdigit(static_cast<unsigned char>(p->d_name[0])) || self == p->d_name) continue;
            std::string fdDir = std::string("/proc/") + p->d_name + "/fd";
            DIR* fds = opendir(fdDir.c_str());
            if (!fds) continue;
            while (dirent* f = readdir(fds)) {
                char target[PATH_MAX];
                ssize_t len = readlink((fdDir + "/" + f->d_name).c_str(), target, sizeof target - 1);
                if (len > 0 && slave == std::string(target, size_t(len))) ++n;
            }
            closedir(fds);
        }
        closedir(proc);
        return n;
    }

    std::string vanish(int ms) override {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            vanishMs_ = ms;
        }
        vanishing_ = true;
        return "";
    }

    int serve() override {
        signal(SIGINT, onSignal);
        signal(SIGTERM, onSignal);
        if (!open()) return 1;
        Bytes pending;
        uint8_t buf[4096];
        while (!gStop) {
            if (vanishing_) {
                hangUp();
                pending.clear();
                int ms;
                {
                    std::lock_guard<std::mutex> lock(mutex_);
                    ms = vanishMs_;
                }
                auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
                while (!gStop && std::chrono::steady_clock::now() < until) usleep(10000);
                modem_.reboot();
                vanishing_ = false;
                if (!open()) return 1;
                continue;
            }
            pollfd p{master_, POLLIN, 0};
            if (poll(&p, 1, 100) <= 0) continue;
            ssize_t n = read(master_, buf, sizeof buf);
            if (n <= 0) continue;
            pending.insert(pending.end(), buf, buf + n);
            for (const Bytes& f : takeFrames(pending)) {
                std::vector<Frame> out = modem_.receive(1, f.data(), f.size());
                std::lock_guard<std::mutex> lock(mutex_);
                send(out);
            }
        }
        hangUp();
        return 0;
    }

private:
    bool open() {
        int master = posix_openpt(O_RDWR | O_NOCTTY);
        if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) {
            std::perror("zovqmi-sim: pseudo-terminal");
            return false;
        }
        std::string name = ptsname(master);
        // Hold the slave open in raw mode so that clients coming and going do
        // not hang the line up, and no byte is translated.
        int slave = ::open(name.c_str(), O_RDWR | O_NOCTTY);
        termios tio;
        if (slave < 0 || tcgetattr(slave, &tio) != 0) {
            std::perror("zovqmi-sim: pseudo-terminal");
            return false;
        }
        cfmakeraw(&tio);
        tcsetattr(slave, TCSANOW, &tio);
        {
            std::lock_guard<std::mutex> lock(mutex_);
            master_ = master;
            slave_ = slave;
            slaveName_ = name;
        }
        if (!link_.empty()) {
            std::string tmp = link_ + ".new";
            unlink(tmp.c_str());
            if (symlink(name.c_str(), tmp.c_str()) != 0 || rename(tmp.c_str(), link_.c_str()) != 0)
                std::perror("zovqmi-sim: link");
        }
        std::printf("device: %s\n", name.c_str());
        std::fflush(stdout);
        return true;
    }

    void hangUp() {
        std::lock_guard<std::mutex> lock(mutex_);
        if (!link_.empty()) unlink(link_.c_str());
        if (slave_ >= 0) close(slave_);
        if (master_ >= 0) close(master_);
        master_ = slave_ = -1;
        slaveName_.clear();
    }

    // Lock held.
    void send(const std::vector<Frame>& frames) {
        for (const Frame& out : frames) {
            if (master_ < 0) return;
            (void)!write(master_, out.bytes.data(), out.bytes.size());
            // A terminal keeps no frame boundaries: give the reader time to
            // take each frame on its own.
            tcdrain(master_);
            usleep(20000);
        }
    }

    Modem& modem_;
    std::string link_;
    std::mutex mutex_;
    int master_ = -1, slave_ = -1;
    std::string slaveName_;
    std::atomic<bool> vanishing_{false};
    int vanishMs_ = 0;
};

}  // namespace

std::unique_ptr<ServedDevice> makePtyDevice(Modem& modem, const std::string& link) {
    return std::unique_ptr<ServedDevice>(new PtyDevice(modem, link));
}

}  // namespace zovsim
