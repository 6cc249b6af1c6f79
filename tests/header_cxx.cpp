// The public header as a C++ program sees it, linked against the shared library.
#include <zovqmi.h>

#include <cstdio>

static_assert(sizeof(QmiTlvRecord) == 1027, "QmiTlvRecord is 1027 bytes");
static_assert(sizeof(QmiResult) == 4, "QmiResult is 4 bytes");
static_assert(sizeof(QmiQmuxHeader) == 6, "QmiQmuxHeader is 6 bytes");
static_assert(sizeof(CTLVersionEntry) == 5, "version entries are 5 bytes");
static_assert(sizeof(QmiMessageEntry) == 4 + sizeof(void*), "message entries are ids, length and a pointer");

int main() {
    uint8_t buf[8];
    int n = zovQMICTLSyncReq(buf, sizeof buf);
    if (n != 6 || buf[2] != 0x27) {
        std::printf("unexpected: n=%d\n", n);
        return 1;
    }
    return 0;
}
