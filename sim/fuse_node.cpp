// The FUSE device node of zovqmi-sim.
#define FUSE_USE_VERSION 35
#include <fuse.h>
#include <poll.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstring>
#include <deque>
#include <map>
#include <mutex>

#include "transports.h"

namespace zovsim {

namespace {

const char* const kNode = "cdc-wdm0";

// One open of the node: the frames waiting to be read, a pending poll, and
// whether the device vanished under it.
struct Open {
    std::deque<Bytes> frames;
    fuse_pollhandle* poll = nullptr;
    bool dead = false;
};

Modem* gModem = nullptr;
std::string gDevice;
std::mutex gMutex;
std::condition_variable gReady;
std::map<uint64_t, Open> gOpens;
uint64_t gNext = 1;
// Until when the node is absent after a vanish.
std::chrono::steady_clock::time_point gAbsentUntil;

bool absent() {
    std::lock_guard<std::mutex> lock(gMutex);
    return std::chrono::steady_clock::now() < gAbsentUntil;
}
bool isNode(const char* path) { return path[0] == '/' && std::strcmp(path + 1, kNode) == 0; }

void wakePoller(Open& o) {
    if (!o.poll) return;
    fuse_notify_poll(o.poll);
    fuse_pollhandle_destroy(o.poll);
    o.poll = nullptr;
}

// Queues frames for their opens and wakes their readers.  Lock held.
void queue(const std::vector<Frame>& frames) {
    for (const Frame& f : frames) {
        auto it = gOpens.find(uint64_t(f.conn));
        if (it == gOpens.end() || it->second.dead) continue;
        it->second.frames.push_back(f.bytes);
        wakePoller(it->second);
    }
    gReady.notify_all();
}

void* onInit(fuse_conn_info*, fuse_config* cfg) {
    cfg->direct_io = 1;
    cfg->kernel_cache = 0;
    // The node comes and goes: the kernel must ask each time.
    cfg->entry_timeout = 0;
    cfg->attr_timeout = 0;
    cfg->negative_timeout = 0;
    std::printf("device: %s\n", gDevice.c_str());
    std::fflush(stdout);
    return nullptr;
}

int onGetattr(const char* path, struct stat* st, fuse_file_info*) {
    std::memset(st, 0, sizeof *st);
    if (std::strcmp(path, "/") == 0) {
        st->st_mode = S_IFDIR | 0755;
        st->st_nlink = 2;
        return 0;
    }
    if (!isNode(path) || absent()) return -ENOENT;
    st->st_mode = S_IFREG | 0666;
    st->st_nlink = 1;
    return 0;
}

int onReaddir(const char* path, void* buf, fuse_fill_dir_t fill, off_t, fuse_file_info*, fuse_readdir_flags) {
    if (std::strcmp(path, "/") != 0) return -ENOENT;
    fill(buf, ".", nullptr, 0, fuse_fill_dir_flags(0));
    fill(buf, "..", nullptr, 0, fuse_fill_dir_flags(0));
    if (!absent()) fill(buf, kNode, nullptr, 0, fuse_fill_dir_flags(0));
    return 0;
}

int onOpen(const char* path, fuse_file_info* fi) {
    if (!isNode(path) || absent()) return -ENOENT;
    fi->direct_io = 1;
    fi->nonseekable = 1;
    std::lock_guard<std::mutex> lock(gMutex);
    fi->fh = gNext++;
    gOpens[fi->fh];
    return 0;
}

int onRelease(const char*, fuse_file_info* fi) {
    gModem->disconnect(int(fi->fh), false);
    std::lock_guard<std::mutex> lock(gMutex);
    auto it = gOpens.find(fi->fh);
    if (it != gOpens.end()) {
        if (it->second.poll) fuse_pollhandle_destroy(it->second.poll);
        gOpens.erase(it);
    }
    return 0;
}

// One frame per read; blocks until there is one (unless non-blocking).
int onRead(const char*, char* buf, size_t size, off_t, fuse_file_info* fi) {
    std::unique_lock<std::mutex> lock(gMutex);
    for (;;) {
        auto it = gOpens.find(fi->fh);
        if (it == gOpens.end()) return -EBADF;
        if (it->second.dead) return -EIO;
        if (!it->second.frames.empty()) {
            Bytes f = std::move(it->second.frames.front());
            it->second.frames.pop_front();
            size_t n = f.size() < size ? f.size() : size;
            std::memcpy(buf, f.data(), n);
            return int(n);
        }
        if (fi->flags & O_NONBLOCK) return -EAGAIN;
        if (fuse_interrupted()) return -EINTR;
        gReady.wait_for(lock, std::chrono::milliseconds(100));
    }
}

int onWrite(const char*, const char* buf, size_t size, off_t, fuse_file_info* fi) {
    {
        std::lock_guard<std::mutex> lock(gMutex);
        auto it = gOpens.find(fi->fh);
        if (it == gOpens.end() || it->second.dead) return -ENODEV;
    }
    std::vector<Frame> out = gModem->receive(int(fi->fh), reinterpret_cast<const uint8_t*>(buf), size);
    std::lock_guard<std::mutex> lock(gMutex);
    queue(out);
    return int(size);
}

int onPoll(const char*, fuse_file_info* fi, fuse_pollhandle* ph, unsigned* revents) {
    std::lock_guard<std::mutex> lock(gMutex);
    auto it = gOpens.find(fi->fh);
    if (it == gOpens.end()) {
        if (ph) fuse_pollhandle_destroy(ph);
        return -EBADF;
    }
    if (it->second.dead) {
        *revents = POLLERR | POLLHUP;
    } else {
        *revents = POLLOUT | POLLWRNORM;
        if (!it->second.frames.empty()) *revents |= POLLIN | POLLRDNORM;
    }
    if (ph) {
        if (it->second.poll) fuse_pollhandle_destroy(it->second.poll);
        it->second.poll = ph;
    }
    return 0;
}

int onTruncate(const char* path, off_t, fuse_file_info*) { return isNode(path) ? 0 : -ENOENT; }

class FuseDevice : public ServedDevice {
public:
    FuseDevice(Modem& modem, const std::string& dir, bool debug) : dir_(dir), debug_(debug) {
        gModem = &modem;
        gDevice = dir + "/" + kNode;
    }
    void deliver(const std::vector<Frame>& frames) override {
        std::lock_guard<std::mutex> lock(gMutex);
        queue(frames);
    }
    int opens() override {
        std::lock_guard<std::mutex> lock(gMutex);
        return int(gOpens.size());
    }
    std::string vanish(int ms) override {
        {
            std::lock_guard<std::mutex> lock(gMutex);
            gAbsentUntil = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
            for (auto& kv : gOpens) {
                kv.second.dead = true;
                kv.second.frames.clear();
                wakePoller(kv.second);
            }
            gReady.notify_all();
        }
        gModem->reboot();
        return "";
    }
    int serve() override;

private:
    std::string dir_;
    bool debug_;
};

}  // namespace

bool fuseAvailable() { return access("/dev/fuse", R_OK | W_OK) == 0; }

std::unique_ptr<ServedDevice> makeFuseDevice(Modem& modem, const std::string& dir, bool debug) {
    return std::unique_ptr<ServedDevice>(new FuseDevice(modem, dir, debug));
}

int FuseDevice::serve() {
    const std::string& dir = dir_;
    bool debug = debug_;
    mkdir(dir.c_str(), 0755);
    umount2(dir.c_str(), MNT_DETACH);  // a mount left behind by a killed run
    fuse_operations ops{};
    ops.init = onInit;
    ops.getattr = onGetattr;
    ops.readdir = onReaddir;
    ops.open = onOpen;
    ops.release = onRelease;
    ops.read = onRead;
    ops.write = onWrite;
    ops.poll = onPoll;
    ops.truncate = onTruncate;
    std::vector<std::string> args = {"zovqmi-sim", dir, "-f", "-o", "fsname=zovqmi-sim,subtype=zovqmi"};
    if (debug) args.push_back("-d");
    std::vector<char*> argv;
    for (std::string& a : args) argv.push_back(&a[0]);
    return fuse_main(int(argv.size()), argv.data(), &ops, nullptr);
}

}  // namespace zovsim
