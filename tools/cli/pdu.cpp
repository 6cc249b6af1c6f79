#include "pdu.h"

#include <string.h>

namespace zovapp {

namespace {

// The GSM default alphabet: septet value to Unicode.  0x1B is the escape to
// the extension table.
constexpr uint16_t kGsm7[128] = {
    0x0040, 0x00A3, 0x0024, 0x00A5, 0x00E8, 0x00E9, 0x00F9, 0x00EC,  // @ £ $ ¥ è é ù ì
    0x00F2, 0x00C7, 0x000A, 0x00D8, 0x00F8, 0x000D, 0x00C5, 0x00E5,  // ò Ç LF Ø ø CR Å å
    0x0394, 0x005F, 0x03A6, 0x0393, 0x039B, 0x03A9, 0x03A0, 0x03A8,  // Δ _ Φ Γ Λ Ω Π Ψ
    0x03A3, 0x0398, 0x039E, 0x00A0, 0x00C6, 0x00E6, 0x00DF, 0x00C9,  // Σ Θ Ξ ESC Æ æ ß É
    0x0020, 0x0021, 0x0022, 0x0023, 0x00A4, 0x0025, 0x0026, 0x0027,  //   ! " # ¤ % & '
    0x0028, 0x0029, 0x002A, 0x002B, 0x002C, 0x002D, 0x002E, 0x002F,
    0x0030, 0x0031, 0x0032, 0x0033, 0x0034, 0x0035, 0x0036, 0x0037,
    0x0038, 0x0039, 0x003A, 0x003B, 0x003C, 0x003D, 0x003E, 0x003F,
    0x00A1, 0x0041, 0x0042, 0x0043, 0x0044, 0x0045, 0x0046, 0x0047,  // ¡ A..
    0x0048, 0x0049, 0x004A, 0x004B, 0x004C, 0x004D, 0x004E, 0x004F,
    0x0050, 0x0051, 0x0052, 0x0053, 0x0054, 0x0055, 0x0056, 0x0057,
    0x0058, 0x0059, 0x005A, 0x00C4, 0x00D6, 0x00D1, 0x00DC, 0x00A7,  // ..Z Ä Ö Ñ Ü §
    0x00BF, 0x0061, 0x0062, 0x0063, 0x0064, 0x0065, 0x0066, 0x0067,  // ¿ a..
    0x0068, 0x0069, 0x006A, 0x006B, 0x006C, 0x006D, 0x006E, 0x006F,
    0x0070, 0x0071, 0x0072, 0x0073, 0x0074, 0x0075, 0x0076, 0x0077,
    0x0078, 0x0079, 0x007A, 0x00E4, 0x00F6, 0x00F1, 0x00FC, 0x00E0,  // ..z ä ö ñ ü à
};
constexpr uint8_t kEscape = 0x1B;

// The extension table: the septet after the escape, and its character.
struct Extension {
    uint8_t septet;
    uint16_t ch;
};
constexpr Extension kGsm7Extension[] = {
    {0x0A, 0x000C}, {0x14, 0x005E}, {0x28, 0x007B}, {0x29, 0x007D}, {0x2F, 0x005C},
    {0x3C, 0x005B}, {0x3D, 0x007E}, {0x3E, 0x005D}, {0x40, 0x007C}, {0x65, 0x20AC},
};

// Septets of one part: 160 alone, 153 after a concatenation header (6
// octets, padded to 7 septets).  UCS-2 units: 70 alone, 67 with the header.
constexpr int kSeptetsSingle = 160, kSeptetsPart = 153;
constexpr int kUnitsSingle = 70, kUnitsPart = 67;
// The concatenation header: length 5, element 0x00 (8-bit reference) of 3 bytes.
constexpr int kUdhLen = 6;
// Code points of one message text.
constexpr int kMaxChars = kMaxParts * kSeptetsPart;

// The default-alphabet septets of `ch`: 1 (a basic character), 2 (escape
// and extension) or 0 when the alphabet lacks it.
int gsm7Of(uint32_t ch, uint8_t* out) {
    if (ch == 0x00A0) return 0;  // the escape slot is no character
    for (int i = 0; i < 128; ++i)
        if (kGsm7[i] == ch) {
            out[0] = uint8_t(i);
            return 1;
        }
    for (const Extension& e : kGsm7Extension)
        if (e.ch == ch) {
            out[0] = kEscape;
            out[1] = e.septet;
            return 2;
        }
    return 0;
}

// Decodes UTF-8 into code points; false when it is not valid UTF-8 (or
// longer than `cap` characters: *n is then cap + 1).
bool fromUtf8(const char* s, uint32_t* cps, int cap, int* n) {
    const uint8_t* p = reinterpret_cast<const uint8_t*>(s);
    *n = 0;
    while (*p) {
        uint32_t c = *p++;
        int more = 0;
        uint32_t min = 0;
        if (c < 0x80) {
        } else if ((c & 0xE0) == 0xC0) {
            c &= 0x1F, more = 1, min = 0x80;
        } else if ((c & 0xF0) == 0xE0) {
            c &= 0x0F, more = 2, min = 0x800;
        } else if ((c & 0xF8) == 0xF0) {
            c &= 0x07, more = 3, min = 0x10000;
        } else {
            return false;
        }
        for (int i = 0; i < more; ++i) {
            if ((*p & 0xC0) != 0x80) return false;
            c = c << 6 | (*p++ & 0x3F);
        }
        if (c < min || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return false;
        if (*n == cap) {
            *n = cap + 1;
            return true;
        }
        cps[(*n)++] = c;
    }
    return true;
}

// Appends `c` as UTF-8 when it fits (room for a terminator is kept).
void putUtf8(char* out, int cap, int* len, uint32_t c) {
    char b[4];
    int n;
    if (c < 0x80) {
        b[0] = char(c), n = 1;
    } else if (c < 0x800) {
        b[0] = char(0xC0 | c >> 6), b[1] = char(0x80 | (c & 0x3F)), n = 2;
    } else if (c < 0x10000) {
        b[0] = char(0xE0 | c >> 12), b[1] = char(0x80 | (c >> 6 & 0x3F)), b[2] = char(0x80 | (c & 0x3F)), n = 3;
    } else {
        b[0] = char(0xF0 | c >> 18), b[1] = char(0x80 | (c >> 12 & 0x3F)), b[2] = char(0x80 | (c >> 6 & 0x3F));
        b[3] = char(0x80 | (c & 0x3F)), n = 4;
    }
    if (*len + n >= cap) return;
    memcpy(out + *len, b, size_t(n));
    *len += n;
    out[*len] = 0;
}

// Septet k of a 7-bit user data field stands at bit 7k.
void putSeptet(uint8_t* ud, int k, uint8_t v) {
    int bit = 7 * k, byte = bit / 8, shift = bit % 8;
    ud[byte] = uint8_t(ud[byte] | v << shift);
    if (shift > 1) ud[byte + 1] = uint8_t(ud[byte + 1] | v >> (8 - shift));
}

uint8_t getSeptet(const uint8_t* ud, int k) {
    int bit = 7 * k, byte = bit / 8, shift = bit % 8;
    int v = ud[byte] >> shift;
    if (shift > 1) v |= ud[byte + 1] << (8 - shift);
    return uint8_t(v & 0x7F);
}

// Writes the address field of `number` ("+digits" or "digits"); returns its
// length in bytes.
int putAddress(uint8_t* out, const char* number) {
    bool international = number[0] == '+';
    const char* d = number + (international ? 1 : 0);
    int digits = int(strlen(d));
    out[0] = uint8_t(digits);
    out[1] = international ? 0x91 : 0x81;
    int n = 2;
    for (int i = 0; i < digits; i += 2) {
        uint8_t lo = uint8_t(d[i] - '0'), hi = i + 1 < digits ? uint8_t(d[i + 1] - '0') : 0x0F;
        out[n++] = uint8_t(hi << 4 | lo);
    }
    return n;
}

// Builds one part from `cps[from, to)`.
int buildPart(const char* number, const uint32_t* cps, int from, int to, bool ucs2, bool concat, uint8_t ref,
              int part, int total, uint8_t* out) {
    int n = 0;
    out[n++] = 0x00;                            // the modem's service centre
    out[n++] = uint8_t(0x01 | (concat ? 0x40 : 0));  // SMS-SUBMIT, user data header present
    out[n++] = 0x00;                            // message reference: the modem's
    n += putAddress(out + n, number);
    out[n++] = 0x00;                            // protocol identifier
    out[n++] = ucs2 ? 0x08 : 0x00;              // data coding scheme
    int udlAt = n++;
    uint8_t* ud = out + n;
    memset(ud, 0, size_t(kPduMax - n));
    int octets = 0;
    if (concat) {
        const uint8_t udh[kUdhLen] = {0x05, 0x00, 0x03, ref, uint8_t(total), uint8_t(part)};
        memcpy(ud, udh, kUdhLen);
        octets = kUdhLen;
    }
    if (ucs2) {
        for (int i = from; i < to; ++i) {
            uint32_t c = cps[i];
            if (c >= 0x10000) {
                c -= 0x10000;
                uint16_t hi = uint16_t(0xD800 | c >> 10), lo = uint16_t(0xDC00 | (c & 0x3FF));
                ud[octets++] = uint8_t(hi >> 8), ud[octets++] = uint8_t(hi);
                ud[octets++] = uint8_t(lo >> 8), ud[octets++] = uint8_t(lo);
            } else {
                ud[octets++] = uint8_t(c >> 8), ud[octets++] = uint8_t(c);
            }
        }
        out[udlAt] = uint8_t(octets);
        return n + octets;
    }
    int septet = (octets * 8 + 6) / 7;  // after the header and its fill bits
    for (int i = from; i < to; ++i) {
        uint8_t s[2];
        int k = gsm7Of(cps[i], s);
        for (int j = 0; j < k; ++j) putSeptet(ud, septet++, s[j]);
    }
    out[udlAt] = uint8_t(septet);
    return n + (septet * 7 + 7) / 8;
}

// Reads a BCD or alphanumeric address of `digits` semi-octets and type
// `toa` from `p` (length checked by the caller) into `out`.
void getAddress(const uint8_t* p, int digits, uint8_t toa, char* out, int cap) {
    int len = 0;
    out[0] = 0;
    if ((toa & 0x70) == 0x50) {  // alphanumeric, in the default alphabet
        int septets = digits * 4 / 7;
        for (int k = 0; k < septets; ++k) putUtf8(out, cap, &len, kGsm7[getSeptet(p, k)]);
        return;
    }
    if ((toa & 0x70) == 0x10 && len + 1 < cap) out[len++] = '+', out[len] = 0;
    static const char kDigits[] = "0123456789*#abc";
    for (int i = 0; i < digits && len + 1 < cap; ++i) {
        int v = i % 2 ? p[i / 2] >> 4 : p[i / 2] & 0x0F;
        if (v == 0x0F) break;
        out[len++] = kDigits[v];
        out[len] = 0;
    }
}

int bcd(uint8_t b) { return (b & 0x0F) * 10 + (b >> 4); }

}  // namespace

bool validNumber(const char* number) {
    if (!number) return false;
    const char* d = number + (number[0] == '+' ? 1 : 0);
    int n = 0;
    for (; d[n]; ++n)
        if (d[n] < '0' || d[n] > '9') return false;
    return n >= 1 && n <= kMaxDigits;
}

int encodeSubmit(const char* number, const char* text, uint8_t reference, SubmitParts* out) {
    if (!validNumber(number)) return kPduBadNumber;
    static uint32_t cps[kMaxChars + 1];
    int n = 0;
    if (!text || !fromUtf8(text, cps, kMaxChars, &n) || n == 0) return n > kMaxChars ? kPduTooLong : kPduBadText;
    if (n > kMaxChars) return kPduTooLong;

    // The default alphabet when every character is in it.
    bool ucs2 = false;
    int septets = 0, units = 0;
    for (int i = 0; i < n; ++i) {
        uint8_t s[2];
        int k = gsm7Of(cps[i], s);
        if (k == 0) ucs2 = true;
        septets += k;
        units += cps[i] >= 0x10000 ? 2 : 1;
    }
    out->coding = ucs2 ? kCodingUcs2 : kCodingGsm7;
    if (ucs2 ? units <= kUnitsSingle : septets <= kSeptetsSingle) {
        out->count = 1;
        out->len[0] = buildPart(number, cps, 0, n, ucs2, false, 0, 1, 1, out->pdu[0]);
        return kPduOk;
    }
    // Split at character boundaries: an escape pair or a surrogate pair stays whole.
    int bounds[kMaxParts + 1];
    int parts = 0, used = 0;
    int cap = ucs2 ? kUnitsPart : kSeptetsPart;
    bounds[0] = 0;
    for (int i = 0; i < n; ++i) {
        uint8_t s[2];
        int w = ucs2 ? (cps[i] >= 0x10000 ? 2 : 1) : gsm7Of(cps[i], s);
        if (used + w > cap) {
            if (++parts == kMaxParts) return kPduTooLong;
            bounds[parts] = i;
            used = 0;
        }
        used += w;
    }
    bounds[++parts] = n;
    out->count = parts;
    for (int p = 0; p < parts; ++p)
        out->len[p] = buildPart(number, cps, bounds[p], bounds[p + 1], ucs2, true, reference, p + 1, parts,
                                out->pdu[p]);
    return kPduOk;
}

int decodePdu(const uint8_t* pdu, int len, DecodedSms* out) {
    memset(out, 0, sizeof *out);
    int i = 0;
    auto need = [&](int n) { return n >= 0 && i + n <= len; };
    // Service centre: a length byte, then the type and the digits.
    if (!need(1)) return kPduMalformed;
    int sca = pdu[i++];
    if (!need(sca)) return kPduMalformed;
    if (sca > 1) getAddress(pdu + i + 1, (sca - 1) * 2, pdu[i], out->centre, sizeof out->centre);
    i += sca;
    if (!need(1)) return kPduMalformed;
    uint8_t first = pdu[i++];
    int type = first & 0x03;
    if (type != 0 && type != 1) return kPduUnsupported;  // DELIVER or SUBMIT only
    out->submit = type == 1;
    if (out->submit) {
        if (!need(1)) return kPduMalformed;
        ++i;  // message reference
    }
    if (!need(2)) return kPduMalformed;
    int digits = pdu[i], toa = pdu[i + 1];
    i += 2;
    if (digits > 2 * 20 || !need((digits + 1) / 2)) return kPduMalformed;
    getAddress(pdu + i, digits, uint8_t(toa), out->address, sizeof out->address);
    i += (digits + 1) / 2;
    if (!need(2)) return kPduMalformed;
    uint8_t dcs = pdu[i + 1];
    i += 2;  // protocol identifier, data coding scheme
    if (out->submit) {
        int vpf = first >> 3 & 0x03;
        int vp = vpf == 2 ? 1 : vpf == 0 ? 0 : 7;
        if (!need(vp)) return kPduMalformed;
        i += vp;
    } else {
        if (!need(7)) return kPduMalformed;
        const uint8_t* t = pdu + i;
        out->hasTime = true;
        out->year = 2000 + bcd(t[0]);
        out->month = bcd(t[1]);
        out->day = bcd(t[2]);
        out->hour = bcd(t[3]);
        out->minute = bcd(t[4]);
        out->second = bcd(t[5]);
        int quarters = (t[6] & 0x07) * 10 + (t[6] >> 4);
        out->zoneMinutes = (t[6] & 0x08 ? -quarters : quarters) * 15;
        i += 7;
    }
    // The alphabet of the data coding scheme.
    int group = dcs >> 4;
    if (group <= 3) {
        if (dcs & 0x20) return kPduUnsupported;  // compressed
        int a = dcs >> 2 & 0x03;
        out->coding = a == 1 ? kCodingData8 : a == 2 ? kCodingUcs2 : kCodingGsm7;
    } else if (group == 0xC || group == 0xD) {
        out->coding = kCodingGsm7;
    } else if (group == 0xE) {
        out->coding = kCodingUcs2;
    } else if (group == 0xF) {
        out->coding = dcs & 0x04 ? kCodingData8 : kCodingGsm7;
    } else {
        return kPduUnsupported;
    }
    if (!need(1)) return kPduMalformed;
    int udl = pdu[i++];
    bool seven = out->coding == kCodingGsm7;
    if (seven ? udl > 160 : udl > 140) return kPduMalformed;
    int octets = seven ? (udl * 7 + 7) / 8 : udl;
    if (!need(octets)) return kPduMalformed;
    const uint8_t* ud = pdu + i;
    int start = 0;  // first octet (8-bit, UCS-2) or septet (7-bit) of the text
    if (first & 0x40) {
        if (octets < 1 || ud[0] + 1 > octets) return kPduMalformed;
        int udhl = ud[0];
        for (int k = 1; k + 1 < udhl + 1;) {
            int iei = ud[k], iel = ud[k + 1];
            if (k + 2 + iel > udhl + 1) return kPduMalformed;
            const uint8_t* e = ud + k + 2;
            if (iei == 0x00 && iel == 3) {
                out->concatenated = true;
                out->reference = e[0], out->total = e[1], out->part = e[2];
            } else if (iei == 0x08 && iel == 4) {
                out->concatenated = true;
                out->reference = e[0] << 8 | e[1], out->total = e[2], out->part = e[3];
            }
            k += 2 + iel;
        }
        start = seven ? ((udhl + 1) * 8 + 6) / 7 : udhl + 1;
        if (start > udl) return kPduMalformed;
    }
    int cap = int(sizeof out->text);
    if (seven) {
        for (int k = start; k < udl; ++k) {
            uint8_t s = getSeptet(ud, k);
            uint32_t c = kGsm7[s];
            if (s == kEscape) {
                c = 0x0020;
                if (k + 1 < udl) {
                    uint8_t x = getSeptet(ud, ++k);
                    c = kGsm7[x];
                    for (const Extension& e : kGsm7Extension)
                        if (e.septet == x) c = e.ch;
                }
            }
            putUtf8(out->text, cap, &out->textLen, c);
        }
    } else if (out->coding == kCodingUcs2) {
        for (int k = start; k + 1 < udl; k += 2) {
            uint32_t c = uint32_t(ud[k] << 8 | ud[k + 1]);
            if (c >= 0xD800 && c < 0xDC00 && k + 3 < udl) {
                uint32_t lo = uint32_t(ud[k + 2] << 8 | ud[k + 3]);
                if (lo >= 0xDC00 && lo < 0xE000) {
                    c = 0x10000 + ((c - 0xD800) << 10) + (lo - 0xDC00);
                    k += 2;
                }
            }
            if (c >= 0xD800 && c < 0xE000) c = 0xFFFD;
            putUtf8(out->text, cap, &out->textLen, c);
        }
    } else {
        static const char kHex[] = "0123456789ABCDEF";
        for (int k = start; k < udl && out->textLen + 2 < cap; ++k) {
            out->text[out->textLen++] = kHex[ud[k] >> 4];
            out->text[out->textLen++] = kHex[ud[k] & 15];
        }
        out->text[out->textLen] = 0;
    }
    return kPduOk;
}

const char* pduStatusText(int status) {
    switch (status) {
    case kPduOk: return "ok";
    case kPduBadNumber: return "not a phone number (+ and 1 to 20 digits)";
    case kPduBadText: return "empty or not valid UTF-8";
    case kPduTooLong: return "too long (more than 10 parts)";
    case kPduMalformed: return "malformed PDU";
    default: return "PDU type or coding not supported";
    }
}

const char* codingName(int coding) {
    return coding == kCodingUcs2 ? "ucs2" : coding == kCodingData8 ? "8bit" : "gsm7";
}

}  // namespace zovapp
