#!/usr/bin/env python3
"""Writes the reproducers of past findings into fuzz/regressions (fuzz/run.sh
runs each once per service; they must pass).  Each is a fuzz input: the
parser's name hash, flags, argument word and message (see corpus_tap.h)."""
import os
import struct

HERE = os.path.dirname(os.path.abspath(__file__))


def fnv(name):
    h = 2166136261
    for c in name.encode():
        h = ((h ^ c) * 16777619) & 0xFFFFFFFF
    return h


def seed(parser, message, flags=0, arg=0):
    return struct.pack("<IBH", fnv(parser), flags, arg) + bytes(message)


CASES = {
    # A CTL message whose TLV area runs past the buffer: the info record was
    # written before the area was refused.
    "control-parse-malformed-area": seed("zovQMIMSMControlParse", [0x01, 0x42, 0x27, 0x00, 0x07, 0x00, 0x02, 0x04, 0x00]),
    # A second message whose area runs past the buffer: the first entry was
    # written before the walk failed.
    "message-parse-malformed-later-message": seed(
        "zovQMIMSMMessageParse", [0x02, 0x02, 0x01, 0x20, 0x00, 0x01, 0x00, 0xAA, 0x21, 0x00, 0x09, 0x00, 0xBB]),
    # A second item running past the area: the first record was written before
    # the walk failed.
    "tlv-list-malformed-later-item": seed("zovQMIMSMGetTLVList", [0x10, 0x02, 0x00, 0x01, 0x02, 0x11, 0x05, 0x00, 0x03]),
    # An item of length 0xFFFD: its 16-bit size is 0 and the counting walk
    # (null list) never advanced.
    "tlv-list-size-wraps-to-zero": seed("zovQMIMSMGetTLVList", [0x10, 0xFD, 0xFF, 0x01, 0x02, 0x03], flags=1),
}

os.makedirs(os.path.join(HERE, "regressions"), exist_ok=True)
for name, data in CASES.items():
    with open(os.path.join(HERE, "regressions", name), "wb") as f:
        f.write(data)
