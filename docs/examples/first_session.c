/* A first session with libzovqmi: obtain a WDS client id from CTL, ask for the
 * packet service status, and give the client id back.
 *
 *   cc first_session.c $(pkg-config --cflags --libs zovqmi) -o first_session
 *   ./first_session /dev/cdc-wdm0
 */
#include <stdio.h>
#include <zovqmi.h>

/* Reads frames until one of the wanted service and message id arrives
 * (indications of other messages may come in between). */
static int readAnswer(int fd, uint8_t* buf, int size, uint8_t service, uint16_t id) {
    for (int tries = 0; tries < 16; ++tries) {
        uint8_t gotService = 0, gotClient = 0;
        int n = zovQMIDeviceRead(fd, buf, size, &gotService, &gotClient);
        if (n < 0) return n;
        if (gotService != service) continue;
        /* The message id sits at offset 2 in a control message, 3 in a service message. */
        int at = service == ZOVQMI_SERVICE_CTL ? 2 : 3;
        if (n >= at + 2 && (buf[at] | buf[at + 1] << 8) == id) return n;
    }
    return ZOVQMI_ERR_NO_MESSAGE;
}

int main(int argc, char** argv) {
    if (argc != 2) {
        fprintf(stderr, "usage: %s DEVICE\n", argv[0]);
        return 2;
    }
    int fd = zovQMIDeviceOpen(argv[1]);
    if (fd < 0) {
        perror(argv[1]);
        return 1;
    }
    uint8_t buf[4096];
    QmiResult result;
    int status = 1;

    /* 1. A client id for WDS: CTL request, written as service 0, client 0. */
    int n = zovQMICTLGetClientIDReq(buf, sizeof buf, ZOVQMI_SERVICE_WDS);
    if (n < 0 || zovQMIDeviceWrite(fd, ZOVQMI_SERVICE_CTL, 0, buf, n) < 0) goto out;
    n = readAnswer(fd, buf, sizeof buf, ZOVQMI_SERVICE_CTL, 0x0022);
    uint8_t service = 0, wds = 0;
    if (n < 0 || zovQMICTLGetClientIDResp(buf, n, &result, &service, &wds) < 0 || result.result != 0) goto out;
    printf("WDS client id %u\n", wds);

    /* 2. A WDS request under that client id, and its answer. */
    n = zovQMIWDSGetPktSrvcStatusReq(buf, sizeof buf);
    if (n < 0 || zovQMIDeviceWrite(fd, ZOVQMI_SERVICE_WDS, wds, buf, n) < 0) goto out;
    n = readAnswer(fd, buf, sizeof buf, ZOVQMI_SERVICE_WDS, 0x0022);
    uint8_t connection = 0;
    if (n >= 0 && zovQMIWDSGetPktSrvcStatusResp(buf, n, &result, &connection) >= 0 && result.result == 0) {
        printf("packet service status %u (1 disconnected, 2 connected)\n", connection);
        status = 0;
    }

    /* 3. The client id goes back to the modem. */
    n = zovQMICTLReleaseClientIDReq(buf, sizeof buf, ZOVQMI_SERVICE_WDS, wds);
    if (n >= 0 && zovQMIDeviceWrite(fd, ZOVQMI_SERVICE_CTL, 0, buf, n) >= 0)
        readAnswer(fd, buf, sizeof buf, ZOVQMI_SERVICE_CTL, 0x0023);
out:
    zovQMIDeviceClose(fd);
    return status;
}
