#!/usr/bin/env python3
"""Writes the parser table of the fuzz harness and the corpus tap from include/zovqmi.h.

Every export whose first two parameters are a received buffer and its length
(`const uint8_t* msg, int len`) is a parser.  For each one this script emits a
table line that calls it with every output at its full size (fuzz/parsers.inc),
a wrapper that records the messages the unit tests hand it (fuzz/corpus_tap.cpp)
and the list of wrapped names for the linker (fuzz/exports.cmake).

Output sizes follow the wire: a count of width N bounds the arrays after it
(255 entries for u8 counts, 65535 for u16 counts, 32-bit counts capped at what
a 4090-byte message can hold); a u8/u16 length bounds the data buffer after it
(255 / 65535 bytes).  A 16-bit count or length is further bounded by the
message itself: every entry or byte it counts is read from at least one byte
of the message, so no parser can fill more than the message's length
(o.upTo(65535) is the smaller of the two).  Records are allocated at their declared size and their
pointer fields are set by the harness (see prepare() in qmi_fuzz.cpp).  The
few byte outputs whose size is fixed by their message are listed in FIXED.

Usage: fuzz/gen_table.py [--check]   (--check: fail if the files are stale)
"""
import os
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
HEADER = os.path.join(ROOT, "include", "zovqmi.h")

# Largest number of 32-bit-counted entries one 4090-byte message can carry.
CAP32 = 1024
COUNT_MAX = {"uint8_t": "255", "uint16_t": "o.upTo(65535)", "uint32_t": str(CAP32)}

# Byte outputs of a fixed size (export name suffix or exact name -> parameter -> bytes).
FIXED = {
    "zovQMIWDSGetCurrentChannelRateResp": {"rates": 16},
    "zovQMIWDSProfileRespGetUMTSRequestedQoS": {"record": 33},
    "zovQMIWDSProfileRespGetUMTSMinimumQoS": {"record": 33},
    "zovQMIWDSProfileRespGetGPRSRequestedQoS": {"record": 20},
    "zovQMIWDSProfileRespGetGPRSMinimumQoS": {"record": 20},
    "zovQMIWDSProfileRespGetTFTFilterID1": {"record": 39},
    "zovQMIWDSProfileRespGetTFTFilterID2": {"record": 39},
    "zovQMIWDSProfileRespGetLTERequestedQoS": {"record": 17},
    "zovQMIWDSProfileRespGetPDPContextIPv6Address": {"address": 16},
    "zovQMIWDSProfileRespGetPrimaryIPv6DNSAddress": {"address": 16},
    "zovQMIWDSProfileRespGetSecondaryIPv6DNSAddress": {"address": 16},
    "zovQMIWDSGetRuntimeSettingsRespGetIPv6Address": {"address": 16},
    "zovQMIWDSGetRuntimeSettingsRespGetIPv6GatewayAddress": {"address": 16},
    "zovQMIWDSGetRuntimeSettingsRespGetPrimaryIPv6DNSAddress": {"address": 16},
    "zovQMIWDSGetRuntimeSettingsRespGetSecondaryIPv6DNSAddress": {"address": 16},
    "zovQMIDMSGetTimeResp": {"timeCount": 6},
    "zovQMIWMSGetSMSCAddressResp": {"type": 3},
    "zovQMIPBMGetPBCapabilitiesRespGetCapabilityBasicInformation": {"basic": 8},
    "zovQMIPBMGetPBCapabilitiesRespGetGroupCapability": {"capability": 2},
    "zovQMIPBMGetPBCapabilitiesRespGetAdditionalNumberCapability": {"capability": 3},
    "zovQMIPBMGetPBCapabilitiesRespGetEmailCapability": {"capability": 2},
}
# Arrays whose elements are wider than their C type (name -> parameter -> bytes per entry).
STRIDE = {
    "zovQMIWMSGetRoutesResp": {"routes": 4},
}
# Array elements whose counted bytes may run on past the element, as the wire
# says (element type -> bytes the last element can spill beyond its end): an
# emergency number holds 6 digits but its length byte may say 255.
SPILL = {
    "PBMEmergencyNumber": 255 - 6,
}
# The framing functions and the flow/filter codec are called through hand-written
# helpers of the same name in namespace `hand` (qmi_fuzz.cpp); the two codec
# builders take a record, not a message, and are not tapped.
BY_HAND = re.compile(r"^(zovQMIMSM|fn)")
HAND_ONLY = ["fnRequestAddFilterSpecification", "fnRequestAddFlowSpecification"]

SCALARS = ("uint8_t", "uint16_t", "uint32_t", "uint64_t")


def parse_header():
    text = open(HEADER).read()
    text = re.sub(r"/\*.*?\*/", "", text, flags=re.S)
    out = []
    for ret, name, params in re.findall(r"ZOVQMI_API\s+([\w\s\*]+?)\s*(\w+)\s*\(([^)]*)\);", text, re.S):
        ps = [" ".join(p.split()) for p in params.split(",")]
        if len(ps) < 2 or not re.match(r"const uint8_t\* \w+$", ps[0]) or not re.match(r"int \w+$", ps[1]):
            continue
        parsed = []
        for p in ps:
            m = re.match(r"(const )?([\w]+)\s*(\*?)\s*(\w+)(\[(\d+)\])?$", p)
            if not m:
                sys.exit("cannot read parameter %r of %s" % (p, name))
            const, typ, star, pname, arr, _n = m.groups()
            pointer = bool(star or arr)
            parsed.append((typ, pointer, pname, bool(const), p))
        out.append((" ".join(ret.split()), name, parsed))
    return out


def out_expr(name, params, i):
    """The harness expression that supplies parameter i of parser `name`."""
    typ, pointer, pname, _const, decl = params[i]
    if not pointer:
        # Scalar inputs (a message id, an item type) come from the input's argument word.
        return "static_cast<%s>(in.arg)" % typ
    fixed = FIXED.get(name, {}).get(pname)
    if fixed:
        return "o.bytes(%d)" % fixed
    names = [p[2] for p in params]
    # A data buffer bounded by the length output just before it.
    if i > 0 and names[i - 1] in ("length", "labelLength") and params[i - 1][1] and typ in ("uint8_t", "void"):
        n = COUNT_MAX[params[i - 1][0]]
        return "o.bytes(%s)" % n
    # Arrays after a count output.
    if "count" in names and i > names.index("count") and params[names.index("count")][1]:
        n = COUNT_MAX[params[names.index("count")][0]]
        stride = STRIDE.get(name, {}).get(pname)
        if stride:
            return "o.bytes(%s * %d)" % (n, stride)
        if typ in SPILL:
            return "o.bytes<%s>(%s * sizeof(%s) + %d)" % (typ, n, typ, SPILL[typ])
        return "o.arr<%s>(%s)" % (typ, n)
    if typ == "WMSRawMessage":
        return "o.bytes<WMSRawMessage>(sizeof(WMSRawMessage) + o.upTo(65535))"
    if typ in SCALARS or typ == "QmiResult":
        return "o.val<%s>()" % typ
    if typ in ("uint8_t", "void"):
        sys.exit("no size known for %s of %s: add it to FIXED" % (pname, name))
    return "o.rec<%s>()" % typ


def main():
    check = "--check" in sys.argv
    decls = parse_header() + [("int", n, None) for n in HAND_ONLY]
    decls.sort(key=lambda d: d[1])
    table = ["// Generated by fuzz/gen_table.py from include/zovqmi.h: do not edit.",
             "// One line per parser: its name and a call with every output at full size.", ""]
    tap = ["// Generated by fuzz/gen_table.py from include/zovqmi.h: do not edit.",
           "// Linked into the unit tests of a corpus build with -Wl,--wrap=<name> for every",
           "// parser: each call records its message (and its argument word) as a seed.",
           '#include "corpus_tap.h"', ""]
    for idx, (ret, name, params) in enumerate(decls):
        if BY_HAND.match(name):
            table.append("P(%s, hand::%s(in, o))" % (name, name))
        else:
            args = ", ".join(["in.msg", "in.len"] + [out_expr(name, params, i) for i in range(2, len(params))])
            table.append("P(%s, %s(%s))" % (name, name, args))
        # The codec's length is the item's own length field, which tests set
        # apart from the buffer on purpose: the tap cannot know how much to copy.
        if params is None or name.startswith("fn"):
            continue
        sig = ", ".join(p[4] for p in params)
        call = ", ".join(p[2] for p in params)
        scal = [p[2] for p in params[2:] if not p[1]]
        arg = "static_cast<uint16_t>(%s)" % scal[0] if scal else "0"
        tap.append('extern "C" %s __real_%s(%s);' % (ret, name, sig))
        tap.append('extern "C" %s __wrap_%s(%s) {' % (ret, name, sig))
        tap.append("    zovFuzzTap(%d, %s, %s, %s);" % (idx, params[0][2], params[1][2], arg))
        tap.append("    return __real_%s(%s);" % (name, call))
        tap.append("}")
    exports = ["# Generated by fuzz/gen_table.py: the parsers the corpus build wraps.",
               "set(ZOVQMI_FUZZ_PARSERS"] + ["    %s" % d[1] for d in decls if d[2] and not d[1].startswith("fn")] + [")"]
    files = {"parsers.inc": table, "corpus_tap.cpp": tap, "exports.cmake": exports}
    stale = []
    for fn, lines in files.items():
        path = os.path.join(ROOT, "fuzz", fn)
        body = "\n".join(lines) + "\n"
        old = open(path).read() if os.path.exists(path) else None
        if old != body:
            stale.append(fn)
            if not check:
                open(path, "w").write(body)
    if check and stale:
        sys.exit("fuzz tables are stale (run fuzz/gen_table.py): " + ", ".join(stale))
    print("%d parsers" % len(decls))


main()
