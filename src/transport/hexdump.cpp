// zovPrintHex: a diagnostic hex dump to standard output.
//
//   TX ( 20), 00010203 04050607 08090A0B 0C0D0E0F
//             10111213
//
// The prefix "label (len), " is followed by the bytes in groups of four,
// sixteen to a line; continuation lines are indented by the prefix's width.
#include <stdio.h>

#include "msg/pattern.h"

extern "C" int zovPrintHex(int ignored, const char* label, const uint8_t* data, int len) {
    (void)ignored;
    if (!label) label = "";
    if (!data && len > 0) return ZOVQMI_ERR_ARG;
    int r = printf("%s (%3d), ", label, len);
    const int indent = r > 0 ? r : 0;
    for (int i = 0; i < len; ++i) {
        r = printf("%02X", data[i]);
        const int k = i + 1;
        if (k % 16 == 0) {
            r = printf("\n");
            if (k < len) r = printf("%*s", indent, "");
        } else if (k % 4 == 0) {
            r = printf(" ");
        }
    }
    if (len % 16 != 0) r = printf("\n");
    return r;
}
