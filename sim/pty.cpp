#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <termios.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

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

}  // namespace

int servePty(Modem& modem) {
    int master = posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) {
        std::perror("zovqmi-sim: pseudo-terminal");
        return 1;
    }
    const char* name = ptsname(master);
    // Hold the slave open in raw mode so that clients coming and going do not
    // hang the line up, and no byte is translated.
    int slave = open(name, O_RDWR | O_NOCTTY);
    termios tio;
    if (slave < 0 || tcgetattr(slave, &tio) != 0) {
        std::perror("zovqmi-sim: pseudo-terminal");
        return 1;
    }
    cfmakeraw(&tio);
    tcsetattr(slave, TCSANOW, &tio);
    std::printf("device: %s\n", name);
    std::fflush(stdout);

    signal(SIGINT, onSignal);
    signal(SIGTERM, onSignal);
    Bytes pending;
    uint8_t buf[4096];
    while (!gStop) {
        pollfd p{master, POLLIN, 0};
        if (poll(&p, 1, 200) <= 0) continue;
        ssize_t n = read(master, buf, sizeof buf);
        if (n <= 0) continue;
        pending.insert(pending.end(), buf, buf + n);
        for (const Bytes& f : takeFrames(pending)) {
            for (const Frame& out : modem.receive(1, f.data(), f.size())) {
                (void)!write(master, out.bytes.data(), out.bytes.size());
                // A terminal keeps no frame boundaries: give the reader time
                // to take each frame on its own.
                tcdrain(master);
                usleep(20000);
            }
        }
    }
    close(slave);
    close(master);
    return 0;
}

}  // namespace zovsim
