// The layout of a fuzz input and the corpus tap.
//
// A fuzz input is a 7-byte head and the message: the parser's name hash
// (LE32, zovFuzzNameHash; other values pick a parser by their remainder), a
// flags byte (bit 0: pass null for every optional array and data buffer), an
// argument word (LE16: the message id or item type of the parsers that take
// one) and the received message itself.  Naming the parser by a hash keeps
// seeds and reproducers valid when parsers are added to the table.
//
// In a corpus build every parser the unit tests call is wrapped
// (fuzz/corpus_tap.cpp), and each call writes its input as a seed file when
// ZOVQMI_CORPUS_DIR names a directory.
#pragma once

#include <zovqmi.h>

#include <stdint.h>

enum {
    kFuzzHead = 7,        // name hash (4), flags (1), argument (2)
    kFuzzMaxMessage = 4090, // the largest message a 4096-byte frame carries
    kFuzzNullOptional = 1 // flags bit 0
};

// FNV-1a of a parser's name.
inline uint32_t zovFuzzNameHash(const char* name) {
    uint32_t h = 2166136261u;
    while (*name) h = (h ^ static_cast<uint8_t>(*name++)) * 16777619u;
    return h;
}

// Records (parser index, argument word, message) as one seed file in
// $ZOVQMI_CORPUS_DIR, named after the parser and the content's hash.
void zovFuzzTap(unsigned index, const uint8_t* msg, int len, uint16_t arg);
