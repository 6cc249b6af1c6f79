#include "sysfs.h"

#include <dirent.h>
#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

namespace zovconnect {

namespace {

// The directory of `path` (its last component cut), in place.
void parent(char* path) {
    char* slash = strrchr(path, '/');
    if (slash && slash != path) *slash = 0;
}

// True when `name` is a network interface whose device lies under the USB
// device directory `usb` (its interfaces are usb/<bus>-<port>:<config>.<n>).
bool underDevice(const char* sysfs, const char* name, const char* usb) {
    char link[PATH_MAX], real[PATH_MAX];
    snprintf(link, sizeof link, "%s/class/net/%s/device", sysfs, name);
    if (!realpath(link, real)) return false;
    size_t n = strlen(usb);
    return strncmp(real, usb, n) == 0 && (real[n] == '/' || real[n] == 0);
}

}  // namespace

int findInterface(const char* sysfs, const char* device, char* out, size_t outSize, char* err, size_t errSize) {
    const char* base = strrchr(device, '/');
    base = base ? base + 1 : device;
    char link[PATH_MAX], usb[PATH_MAX];
    bool found = false;
    static const char* const kClasses[] = {"usbmisc", "usb"};
    for (const char* cls : kClasses) {
        snprintf(link, sizeof link, "%s/class/%s/%s/device", sysfs, cls, base);
        if (realpath(link, usb)) {
            found = true;
            break;
        }
    }
    if (!found) {
        snprintf(err, errSize, "no network interface found for %s: it is not a USB QMI device in sysfs (give --ifname)",
                 device);
        return -1;
    }
    // usb is the USB interface of the control device: a net interface on the
    // same USB interface first (a modem with several QMI functions has one
    // per function), else any under the same USB device (its parent).
    char netdir[PATH_MAX];
    snprintf(netdir, sizeof netdir, "%s/class/net", sysfs);
    char best[NAME_MAX + 1] = "";
    for (int pass = 0; pass < 2 && !best[0]; ++pass) {
        if (pass == 1) parent(usb);
        DIR* d = opendir(netdir);
        if (!d) {
            snprintf(err, errSize, "no network interface found for %s: cannot read %s (give --ifname)", device,
                     netdir);
            return -1;
        }
        while (dirent* e = readdir(d)) {
            if (e->d_name[0] == '.') continue;
            if (!underDevice(sysfs, e->d_name, usb)) continue;
            // Several: the first by name.
            if (!best[0] || strcmp(e->d_name, best) < 0) memcpy(best, e->d_name, strnlen(e->d_name, NAME_MAX) + 1);
        }
        closedir(d);
    }
    if (!best[0] || strlen(best) >= outSize) {
        snprintf(err, errSize, "no network interface found for %s under its USB device (give --ifname)", device);
        return -1;
    }
    snprintf(out, outSize, "%s", best);
    return 0;
}

}  // namespace zovconnect
