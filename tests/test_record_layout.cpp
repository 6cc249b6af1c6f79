// The public records have exactly the sizes and field offsets the library's
// documents state, on the 64-bit host and on the 32-bit target alike.  The
// records are byte-packed, so only the pointer members change size between
// the two: every size that contains a pointer is written with sizeof(void*).
#include <gtest/gtest.h>
#include <zovqmi.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace {

// ------------------------------------------------------------ QmiTlvRecord --
static_assert(sizeof(QmiTlvRecord) == 1027, "QmiTlvRecord is 1027 bytes");
static_assert(offsetof(QmiTlvRecord, type) == 0, "QmiTlvRecord.type");
static_assert(offsetof(QmiTlvRecord, length) == 1, "QmiTlvRecord.length");
static_assert(offsetof(QmiTlvRecord, value) == 3, "QmiTlvRecord.value");
static_assert(sizeof(QmiTlvRecord::value) == 1024, "QmiTlvRecord.value holds 1024 bytes");

// ----------------------------------------------------------- QmiQmuxHeader --
static_assert(sizeof(QmiQmuxHeader) == 6, "QmiQmuxHeader is 6 bytes");
static_assert(offsetof(QmiQmuxHeader, interfaceType) == 0, "QmiQmuxHeader.interfaceType");
static_assert(offsetof(QmiQmuxHeader, length) == 1, "QmiQmuxHeader.length");
static_assert(offsetof(QmiQmuxHeader, controlFlags) == 3, "QmiQmuxHeader.controlFlags");
static_assert(offsetof(QmiQmuxHeader, serviceType) == 4, "QmiQmuxHeader.serviceType");
static_assert(offsetof(QmiQmuxHeader, clientId) == 5, "QmiQmuxHeader.clientId");

// --------------------------------------------------------------- QmiResult --
static_assert(sizeof(QmiResult) == 4, "QmiResult is 4 bytes");
static_assert(offsetof(QmiResult, result) == 0, "QmiResult.result");
static_assert(offsetof(QmiResult, error) == 2, "QmiResult.error");

// --------------------------------------------------------- QmiMessageEntry --
// 8 bytes on the 32-bit target.
static_assert(sizeof(QmiMessageEntry) == 4 + sizeof(void*), "QmiMessageEntry is 4 + pointer");
static_assert(offsetof(QmiMessageEntry, messageId) == 0, "QmiMessageEntry.messageId");
static_assert(offsetof(QmiMessageEntry, length) == 2, "QmiMessageEntry.length");
static_assert(offsetof(QmiMessageEntry, value) == 4, "QmiMessageEntry.value");

// ---------------------------------------------------------- QmiMessageInfo --
// 9 bytes on the 32-bit target.
static_assert(sizeof(QmiMessageInfo) == 5 + sizeof(void*), "QmiMessageInfo is 5 + pointer");
static_assert(offsetof(QmiMessageInfo, controlFlags) == 0, "QmiMessageInfo.controlFlags");
static_assert(offsetof(QmiMessageInfo, transactionId) == 1, "QmiMessageInfo.transactionId");
static_assert(offsetof(QmiMessageInfo, messageCount) == 3, "QmiMessageInfo.messageCount");
static_assert(offsetof(QmiMessageInfo, entries) == 5, "QmiMessageInfo.entries");

// --------------------------------------------------------- CTLVersionEntry --
static_assert(sizeof(CTLVersionEntry) == 5, "CTLVersionEntry is 5 bytes");
static_assert(offsetof(CTLVersionEntry, serviceType) == 0, "CTLVersionEntry.serviceType");
static_assert(offsetof(CTLVersionEntry, majorVersion) == 1, "CTLVersionEntry.majorVersion");
static_assert(offsetof(CTLVersionEntry, minorVersion) == 3, "CTLVersionEntry.minorVersion");

// Records are byte-packed: arrays of them have no gaps either.
static_assert(sizeof(CTLVersionEntry[3]) == 15, "CTLVersionEntry arrays are packed");
static_assert(sizeof(QmiTlvRecord[2]) == 2054, "QmiTlvRecord arrays are packed");

// The pointer members are as wide as the platform's pointers: 4 bytes on the
// 32-bit target.
TEST(RecordLayout, PointerWidthOfThePlatform) {
    EXPECT_TRUE(sizeof(void*) == 4 || sizeof(void*) == 8);
    EXPECT_EQ(sizeof(QmiMessageEntry) - 4, sizeof(void*));
    EXPECT_EQ(sizeof(QmiMessageInfo) - 5, sizeof(void*));
#if defined(__mips__) && !defined(__mips64)
    EXPECT_EQ(sizeof(QmiMessageEntry), 8u);
    EXPECT_EQ(sizeof(QmiMessageInfo), 9u);
#endif
}

// Fields written through the record land at their stated byte positions and
// are read back intact, also when the record starts at an odd address (the
// packed members are unaligned; the compiler must access them byte-wise on
// strict-alignment targets).
//
// Each field is copied into a local before it is compared: EXPECT_EQ takes
// its operands by const reference, and GCC binds such a reference straight
// to a packed member, so the comparison would load a 16- or 32-bit value
// from an unaligned address, which MIPS refuses (SIGBUS under qemu-user).
// Tests of packed records must compare copies (or `+rec.field`).
TEST(RecordLayout, PackedFieldsAtOddAddressesRoundTrip) {
    alignas(8) unsigned char raw[1 + sizeof(QmiMessageInfo) + sizeof(CTLVersionEntry)];
    std::memset(raw, 0, sizeof raw);

    QmiMessageInfo* info = reinterpret_cast<QmiMessageInfo*>(raw + 1);
    QmiMessageEntry entry = {0x0022, 7, nullptr};
    info->controlFlags = 0x80;
    info->transactionId = 0x1234;
    info->messageCount = 0xBEEF;
    info->entries = &entry;
    EXPECT_EQ(raw[1], 0x80);
    uint16_t tx;
    std::memcpy(&tx, raw + 2, 2);
    EXPECT_EQ(tx, 0x1234);
    const uint16_t txField = info->transactionId;
    const uint16_t countField = info->messageCount;
    QmiMessageEntry* const entriesField = info->entries;
    EXPECT_EQ(txField, 0x1234);
    EXPECT_EQ(countField, 0xBEEF);
    EXPECT_EQ(entriesField, &entry);
    const uint16_t entryLength = entriesField->length;
    EXPECT_EQ(entryLength, 7);
    QmiMessageEntry* stored;
    std::memcpy(&stored, raw + 1 + 5, sizeof stored);
    EXPECT_EQ(stored, &entry);

    CTLVersionEntry* v = reinterpret_cast<CTLVersionEntry*>(raw + 1 + sizeof(QmiMessageInfo));
    v->serviceType = ZOVQMI_SERVICE_NAS;
    v->majorVersion = 0x0102;
    v->minorVersion = 0xA0B0;
    const uint8_t service = v->serviceType;
    const uint16_t major = v->majorVersion;
    EXPECT_EQ(service, ZOVQMI_SERVICE_NAS);
    EXPECT_EQ(major, 0x0102);
    EXPECT_EQ(+v->minorVersion, 0xA0B0);
    uint16_t minor;
    std::memcpy(&minor, reinterpret_cast<unsigned char*>(v) + 3, 2);
    EXPECT_EQ(minor, 0xA0B0);
}

}  // namespace
