/* The public header as a C99 program sees it, linked against the shared library. */
#include <zovqmi.h>

#include <stdio.h>

int main(void) {
    uint8_t buf[16];
    QmiResult result;
    uint8_t service = 0, client = 0;
    /* A GetClientID request for WDS and its answer. */
    int n = zovQMICTLGetClientIDReq(buf, (int)sizeof buf, ZOVQMI_SERVICE_WDS);
    static const uint8_t answer[] = {0x01, 0x01, 0x22, 0x00, 0x0C, 0x00, 0x02, 0x04, 0x00, 0x00,
                                     0x00, 0x00, 0x00, 0x01, 0x02, 0x00, 0x01, 0x07};
    int r = zovQMICTLGetClientIDResp(answer, (int)sizeof answer, &result, &service, &client);
    if (n != 10 || buf[2] != 0x22 || buf[9] != ZOVQMI_SERVICE_WDS || r != 12 || service != 1 || client != 7) {
        printf("unexpected: n=%d r=%d service=%u client=%u\n", n, r, service, client);
        return 1;
    }
    if (sizeof(QmiTlvRecord) != 1027 || sizeof(QmiResult) != 4 || sizeof(QmiQmuxHeader) != 6) return 1;
    return ZOVQMI_ERR_MALFORMED < 0 ? 0 : 1;
}
