// The network interface that belongs to a QMI control device: the net
// interface under the same USB device as the control device's usbmisc (or
// usb) class node, found through sysfs.
#pragma once

#include <stddef.h>

namespace zovconnect {

// `sysfs` is the sysfs mount ("/sys"; tests pass a tree of their own).
// Returns 0 with the name in `out`, or -1 with one line of text in `err`.
int findInterface(const char* sysfs, const char* device, char* out, size_t outSize, char* err, size_t errSize);

}  // namespace zovconnect
