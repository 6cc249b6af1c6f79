// Short message PDUs as zovqmi-cli sends and reads them: SMS-SUBMIT built
// from UTF-8 text (GSM 7-bit default alphabet with its extension table, or
// UCS-2 when the text needs it, split into concatenated parts with a user
// data header when it is long), and SMS-DELIVER / SMS-SUBMIT decoded back to
// UTF-8 text with the sender, the time stamp and the concatenation reference.
//
// Runtime-free like the rest of the tool: fixed buffers, no heap.  Every PDU
// handed over in raw form carries the service centre address first (a zero
// length byte: the modem's configured centre).
#pragma once

#include <stdint.h>

namespace zovapp {

// A whole PDU: the service centre (at most 12 bytes with its length byte)
// and the largest TPDU (164 bytes).
constexpr int kPduMax = 176;
// Parts one --wms-send may be split into: 10 parts hold 1530 characters of
// the default alphabet or 670 of UCS-2, more than anyone types on a router.
constexpr int kMaxParts = 10;
// Digits of a phone number (the address field holds 20).
constexpr int kMaxDigits = 20;
// UTF-8 text of one part: 160 characters of at most 3 bytes each, or 70
// UCS-2 units of at most 3 bytes (4 per surrogate pair), plus a terminator.
constexpr int kPartText = 161 * 3;

enum PduCoding { kCodingGsm7 = 0, kCodingData8 = 1, kCodingUcs2 = 2 };

enum PduStatus {
    kPduOk = 0,
    kPduBadNumber = -1,     // not "+digits" or "digits" (1 to 20 of them)
    kPduBadText = -2,       // not valid UTF-8, or empty
    kPduTooLong = -3,       // more than kMaxParts parts
    kPduMalformed = -4,     // a PDU that does not parse
    kPduUnsupported = -5,   // a PDU type or coding this codec does not read
};

// The parts of one outgoing message.
struct SubmitParts {
    int count;
    int coding;       // kCodingGsm7 or kCodingUcs2
    int len[kMaxParts];
    uint8_t pdu[kMaxParts][kPduMax];
};

// Builds the SMS-SUBMIT PDUs for `text` (UTF-8) to `number`.  `reference`
// is the concatenation reference of a long message (any value; the parts
// share it).
int encodeSubmit(const char* number, const char* text, uint8_t reference, SubmitParts* out);

// A decoded SMS-DELIVER (received) or SMS-SUBMIT (stored outgoing) PDU.
struct DecodedSms {
    bool submit;
    char address[48];    // sender or recipient: "+digits", digits or alphanumeric text
    char centre[24];     // service centre address, "" when none
    bool hasTime;        // DELIVER: the service centre time stamp
    int year, month, day, hour, minute, second;
    int zoneMinutes;     // offset from UTC
    int coding;          // PduCoding
    bool concatenated;
    int reference, part, total;
    // The text as UTF-8 (8-bit data: its bytes in hex), NUL-terminated.
    char text[kPartText * 2];
    int textLen;
};

int decodePdu(const uint8_t* pdu, int len, DecodedSms* out);

// A word for a status ("not valid UTF-8").
const char* pduStatusText(int status);
// "gsm7", "8bit", "ucs2".
const char* codingName(int coding);

// Checks a phone number as encodeSubmit() accepts it.
bool validNumber(const char* number);

}  // namespace zovapp
