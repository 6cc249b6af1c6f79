// The fuzz harness: one libFuzzer target over every parser of the library.
//
// The input's head (corpus_tap.h) names a parser of fuzz/parsers.inc; the
// rest is the received message, copied into a heap buffer of exactly its
// length so that AddressSanitizer reports any read at or past msg + len.
// Every output is a heap block of its full layout size followed by guard
// bytes (poisoned under AddressSanitizer) that must still hold their pattern
// after the call.  Pointer fields inside records point at blocks as large as
// the widest length the wire can give them.  What a 16-bit count or length
// can fill is bounded by the message as well (every entry or byte it counts
// is read from at least one byte of it), so those outputs are sized from the
// message's length (upTo), the guard bytes still right behind them.  A parser that reports
// ZOVQMI_ERR_MALFORMED must leave every output except the result record as
// it was.
//
// ZOVQMI_FUZZ_ONLY=<prefix> limits the parsers to those whose name starts
// with the prefix (e.g. zovQMIWDS, zovQMIMSM, fn): inputs naming another
// parser are mapped onto the selected ones.
#include "corpus_tap.h"

#include <zovqmi.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <type_traits>
#include <utility>
#include <vector>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <sanitizer/asan_interface.h>
#define FUZZ_POISON(p, n) ASAN_POISON_MEMORY_REGION(p, n)
#define FUZZ_UNPOISON(p, n) ASAN_UNPOISON_MEMORY_REGION(p, n)
#endif
#endif
#ifndef FUZZ_POISON
#define FUZZ_POISON(p, n) ((void)(p), (void)(n))
#define FUZZ_UNPOISON(p, n) ((void)(p), (void)(n))
#endif

namespace {

constexpr uint8_t kFill = 0xA5;
constexpr size_t kGuard = 64;

[[noreturn]] void fail(const char* parser, const char* what) {
    std::fprintf(stderr, "qmi_fuzz: %s: %s\n", parser, what);
    std::abort();
}

struct In {
    const uint8_t* msg;
    int len;
    uint16_t arg;
    uint8_t flags;
};

// The outputs of one call: heap blocks with guards, checked and freed at the end.
class Out {
public:
    Out(bool nullOptional, size_t messageLength) : nullOptional_(nullOptional), messageLength_(messageLength) {}
    Out(const Out&) = delete;
    Out& operator=(const Out&) = delete;
    ~Out() {
        for (Block& b : blocks_) {
            FUZZ_UNPOISON(b.p + b.n, kGuard);
            std::free(b.p);
        }
    }

    // A scalar or record output the caller always passes.
    template <class T>
    T* val() {
        return reinterpret_cast<T*>(remember(block(sizeof(T), result<T>())));
    }
    template <class T>
    T* rec() {
        T* p = reinterpret_cast<T*>(block(sizeof(T), false));
        prepare(p, 1);
        return reinterpret_cast<T*>(remember(p));
    }
    // An optional array of n entries (null when the input asks for nulls).
    template <class T>
    T* arr(size_t n) {
        if (nullOptional_) return nullptr;
        T* p = reinterpret_cast<T*>(block(n * sizeof(T), false));
        prepare(p, n);
        return reinterpret_cast<T*>(remember(p));
    }
    // An optional buffer of n bytes (a byte array, or a record sized for its data).
    template <class T = uint8_t>
    T* bytes(size_t n) {
        return nullOptional_ ? nullptr : reinterpret_cast<T*>(remember(block(n, false)));
    }
    // The entries or bytes of n that the message can fill: never more than its length.
    size_t upTo(size_t n) const { return n < messageLength_ ? n : messageLength_; }

    // The target of a pointer field inside a record (null when asked for nulls).
    uint8_t* target(size_t n) { return bytes(n); }

    // Copies every block as it stands now, to see later what the call wrote.
    void snapshot() {
        for (Block& b : blocks_) b.before.assign(b.p, b.p + b.n);
    }
    // Copies one block once it is ready for the call.
    uint8_t* remember(void* p) {
        for (Block& b : blocks_)
            if (b.p == p) b.before.assign(b.p, b.p + b.n);
        return static_cast<uint8_t*>(p);
    }
    void check(const char* parser, bool malformed) const {
        for (const Block& b : blocks_) {
            FUZZ_UNPOISON(b.p + b.n, kGuard);
            for (size_t i = 0; i < kGuard; ++i)
                if (b.p[b.n + i] != kFill) fail(parser, "wrote past the end of an output");
            FUZZ_POISON(b.p + b.n, kGuard);
            if (malformed && !b.result && std::memcmp(b.p, b.before.data(), b.n) != 0)
                fail(parser, "returned ZOVQMI_ERR_MALFORMED after writing an output");
        }
    }

private:
    struct Block {
        uint8_t* p;
        size_t n;
        bool result;  // a QmiResult: a response stores it before it reads item 0x01
        std::vector<uint8_t> before;
    };
    template <class T>
    static constexpr bool result() {
        return std::is_same<T, QmiResult>::value;
    }
    uint8_t* block(size_t n, bool isResult) {
        uint8_t* p = static_cast<uint8_t*>(std::malloc(n + kGuard));
        if (!p) std::abort();
        std::memset(p, kFill, n + kGuard);
        FUZZ_POISON(p + n, kGuard);
        blocks_.push_back(Block{p, n, isResult, {}});
        return p;
    }
    // Sets a native pointer field of a packed record.
    template <class R>
    static void setPtr(R* rec, size_t off, const void* target) {
        std::memcpy(reinterpret_cast<uint8_t*>(rec) + off, &target, sizeof target);
    }
    // Records without pointer fields need nothing.
    template <class T>
    void prepare(T*, size_t) {}
    // Every entry's pointer field points at one shared block of `size` bytes.
    template <class R>
    void share(R* recs, size_t n, size_t off, size_t size) {
        uint8_t* t = target(size);
        for (size_t i = 0; i < n; ++i) setPtr(recs + i, off, t);
    }
    void prepare(QmiMessageInfo* p, size_t) {
        // A 16-bit message count; each entry's TLV area is at most 65535 bytes
        // (and each entry takes at least a byte of the buffer).
        QmiMessageEntry* entries = arr<QmiMessageEntry>(upTo(65535));
        setPtr(p, offsetof(QmiMessageInfo, entries), entries);
    }
    void prepare(QmiMessageEntry* p, size_t n) { share(p, n, offsetof(QmiMessageEntry, value), upTo(65535)); }
    void prepare(DMSDeviceCapabilities* p, size_t n) { share(p, n, offsetof(DMSDeviceCapabilities, list), 255); }
    void prepare(NASServingSystem* p, size_t n) { share(p, n, offsetof(NASServingSystem, list), 255); }
    void prepare(NASNetworkRecord* p, size_t n) { share(p, n, offsetof(NASNetworkRecord, description), 255); }
    void prepare(WDSProfileListEntry* p, size_t n) { share(p, n, offsetof(WDSProfileListEntry, name), 255); }
    void prepare(WDSNameListEntry* p, size_t n) { share(p, n, offsetof(WDSNameListEntry, name), upTo(65535)); }
    void prepare(LengthPrefixedEntry* p, size_t n) { share(p, n, offsetof(LengthPrefixedEntry, data), 255); }
    void prepare(NetworkInitiatedPromptVX* p, size_t n) { share(p, n, offsetof(NetworkInitiatedPromptVX, data), 255); }
    void prepare(NetworkInitiatedPromptSUPL* p, size_t n) {
        share(p, n, offsetof(NetworkInitiatedPromptSUPL, block2), 255);
        share(p, n, offsetof(NetworkInitiatedPromptSUPL, block3), 255);
    }
    void prepare(NetworkInitiatedPromptUMTSCP* p, size_t n) {
        share(p, n, offsetof(NetworkInitiatedPromptUMTSCP, block1), 255);
        share(p, n, offsetof(NetworkInitiatedPromptUMTSCP, block3), 255);
        share(p, n, offsetof(NetworkInitiatedPromptUMTSCP, block4), 255);
    }
    void prepare(QoSSpec* p, size_t n) {
        // Flows and filters are indexed by their u8 counts, which wrap after
        // entry 255: 256 entries.
        for (size_t i = 0; i < n; ++i) {
            setPtr(p + i, offsetof(QoSSpec, flows), arr<FlowSpecification>(256));
            setPtr(p + i, offsetof(QoSSpec, filters), arr<FilterSpecification>(256));
        }
    }
    void prepare(QoSProfileList* p, size_t n) { share(p, n, offsetof(QoSProfileList, profiles), 255 * sizeof(uint16_t)); }

    bool nullOptional_;
    size_t messageLength_;
    std::vector<Block> blocks_;
};

// The framing functions and the flow/filter codec, which do not follow the
// parser pattern.
namespace hand {

// A returned pointer into the input must lie inside it, except for the
// deliberate match of id (type) 0 when nothing was visited (msg + 7, area + 3).
void inside(const In& in, const uint8_t* p, uint16_t wanted, const char* parser) {
    if (p && wanted != 0 && (p < in.msg || p > in.msg + in.len)) fail(parser, "returned a pointer outside the buffer");
}

int zovQMIMSMQMUXHeaderParse(const In& in, Out& o) {
    return ::zovQMIMSMQMUXHeaderParse(in.msg, in.len, o.rec<QmiQmuxHeader>());
}
int zovQMIMSMControlParse(const In& in, Out& o) {
    return ::zovQMIMSMControlParse(in.msg, in.len, o.rec<QmiMessageInfo>());
}
int zovQMIMSMMessageParse(const In& in, Out& o) {
    return ::zovQMIMSMMessageParse(in.msg, in.len, o.rec<QmiMessageInfo>());
}
int zovQMIMSMGetMessage(const In& in, Out& o) {
    const uint8_t* p = ::zovQMIMSMGetMessage(in.msg, in.len, in.arg, o.val<uint16_t>());
    inside(in, p, in.arg, "zovQMIMSMGetMessage");
    return p ? 0 : -1;
}
int zovQMIMSMGetTLV(const In& in, Out& o) {
    const uint8_t* p = ::zovQMIMSMGetTLV(in.msg, in.len, static_cast<uint8_t>(in.arg), o.val<uint16_t>());
    inside(in, p, static_cast<uint8_t>(in.arg), "zovQMIMSMGetTLV");
    return p ? 0 : -1;
}
int zovQMIMSMGetTLVList(const In& in, Out& o) {
    // Every item takes at least its 3-byte head of the buffer.
    return ::zovQMIMSMGetTLVList(in.msg, in.len, o.arr<QmiTlvRecord>(o.upTo(kFuzzMaxMessage) / 3 + 1));
}
int fnResponseParseFlowSpecification(const In& in, Out& o) {
    return ::fnResponseParseFlowSpecification(in.msg, in.len, o.rec<FlowSpecification>());
}
int fnResponseParseFilterSpecification(const In& in, Out& o) {
    return ::fnResponseParseFilterSpecification(in.msg, in.len, o.rec<FilterSpecification>());
}
// The builders take a record under construction and a flow or filter: both
// are filled from the input (the record first, then the flow or filter).
template <class Rec, class F>
int addSpec(const In& in, Out& o, F fn) {
    QmiTlvRecord* tlv = o.val<QmiTlvRecord>();
    Rec* element = o.val<Rec>();
    size_t n = static_cast<size_t>(in.len);
    size_t a = n < sizeof *tlv ? n : sizeof *tlv;
    std::memcpy(tlv, in.msg, a);
    size_t b = n - a < sizeof *element ? n - a : sizeof *element;
    std::memcpy(element, in.msg + a, b);
    o.snapshot();
    return fn(tlv, element);
}
int fnRequestAddFlowSpecification(const In& in, Out& o) {
    return addSpec<FlowSpecification>(in, o, ::fnRequestAddFlowSpecification);
}
int fnRequestAddFilterSpecification(const In& in, Out& o) {
    return addSpec<FilterSpecification>(in, o, ::fnRequestAddFilterSpecification);
}

}  // namespace hand

struct Entry {
    const char* name;
    int (*call)(const In& in, Out& o);
};

// One entry per parser; the lambda allocates the outputs, snapshots them and calls.
const Entry kTable[] = {
#define P(name, call) {#name, [](const In& in, [[maybe_unused]] Out& o) { return static_cast<int>(call); }},
#include "parsers.inc"
#undef P
};
constexpr size_t kCount = sizeof kTable / sizeof kTable[0];

// The parsers selected by ZOVQMI_FUZZ_ONLY (all of them by default), and
// every parser's name hash with its index, sorted by hash.
std::vector<uint16_t> selected;
std::vector<bool> isSelected(kCount);
std::vector<std::pair<uint32_t, uint16_t>> byHash;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    const char* only = std::getenv("ZOVQMI_FUZZ_ONLY");
    for (size_t i = 0; i < kCount; ++i)
        if (!only || std::strncmp(kTable[i].name, only, std::strlen(only)) == 0) {
            selected.push_back(uint16_t(i));
            isSelected[i] = true;
        }
    for (size_t i = 0; i < kCount; ++i) byHash.emplace_back(zovFuzzNameHash(kTable[i].name), uint16_t(i));
    std::sort(byHash.begin(), byHash.end());
    for (size_t i = 1; i < kCount; ++i)
        if (byHash[i].first == byHash[i - 1].first) {
            std::fprintf(stderr, "qmi_fuzz: %s and %s share a name hash\n", kTable[byHash[i].second].name,
                         kTable[byHash[i - 1].second].name);
            std::exit(2);
        }
    if (selected.empty()) {
        std::fprintf(stderr, "qmi_fuzz: no parser starts with %s\n", only);
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < kFuzzHead || size - kFuzzHead > kFuzzMaxMessage) return -1;
    uint32_t hash = data[0] | data[1] << 8 | data[2] << 16 | uint32_t(data[3]) << 24;
    auto it = std::lower_bound(byHash.begin(), byHash.end(), std::make_pair(hash, uint16_t(0)));
    size_t index = it != byHash.end() && it->first == hash ? it->second : hash % kCount;
    if (!isSelected[index]) index = selected[index % selected.size()];
    const Entry& e = kTable[index];
    size_t len = size - kFuzzHead;
    // Exactly the message's bytes on the heap: one byte further is a red zone.
    uint8_t* msg = static_cast<uint8_t*>(std::malloc(len ? len : 1));
    if (!msg) std::abort();
    if (len) std::memcpy(msg, data + kFuzzHead, len);
    In in{msg, static_cast<int>(len), static_cast<uint16_t>(data[5] | data[6] << 8), data[4]};
    {
        Out o(in.flags & kFuzzNullOptional, len);
        int r = e.call(in, o);
        o.check(e.name, r == ZOVQMI_ERR_MALFORMED);
    }
    std::free(msg);
    return 0;
}
