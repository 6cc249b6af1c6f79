// PBM, the phonebook manager service (service 12): capabilities, reading,
// writing, deleting and searching records, groups, emergency numbers and the
// phonebook state indications.
//
// Most requests start their item 0x01 with the phonebook selector (a byte and
// a 16-bit word).  Records, capabilities, emergency numbers and groups are
// delivered into large caller records of fixed layout (PBMRecordSet,
// PBMAllCapabilities, PBMEmergencyNumberSets, PBMGroupsData).  Counts and
// lengths from the wire are used as they stand, even where they overrun one
// slot of such a record into the next; a write that would pass the record's
// last byte is refused instead (ZOVQMI_ERR_MALFORMED, nothing written).
#include <stddef.h>

#include "msg/pattern.h"

using namespace zq;

namespace {

// ------------------------------------------------------- record layouts --

// PBMRecordSet
constexpr size_t kSetCount = offsetof(PBMRecordSet, recordCount);
constexpr size_t kSetIds = offsetof(PBMRecordSet, recordId);
constexpr size_t kSetNumberCount = offsetof(PBMRecordSet, numberCount);
constexpr size_t kSetGroupIdCount = offsetof(PBMRecordSet, groupIdCount);
constexpr size_t kSetGroupIds = offsetof(PBMRecordSet, groupIds);
constexpr size_t kSetEmailCount = offsetof(PBMRecordSet, emailCount);
constexpr size_t kSetHidden = offsetof(PBMRecordSet, hidden);
constexpr size_t kTrailing = offsetof(PBMNumberSlot, trailingAttribute);

constexpr size_t numberSlot(size_t i, size_t j) {
    return offsetof(PBMRecordSet, numbers) + (4 * i + j) * sizeof(PBMNumberSlot);
}
constexpr size_t nameSlot(size_t i) { return offsetof(PBMRecordSet, name) + i * sizeof(PBMTextSlot); }
constexpr size_t emailSlot(size_t i, size_t j) {
    return offsetof(PBMRecordSet, emails) + (2 * i + j) * sizeof(PBMTextSlot);
}

// PBMAllCapabilities
constexpr size_t kCapKey = offsetof(PBMAllCapabilities, key);
constexpr size_t kCapBasicCount = offsetof(PBMAllCapabilities, basicCount);
constexpr size_t kCapBasic = offsetof(PBMAllCapabilities, basic);
constexpr size_t kCapBasicSet = sizeof(static_cast<PBMAllCapabilities*>(nullptr)->basic[0]);

// PBMEmergencyNumberSets
constexpr size_t kEmKey = offsetof(PBMEmergencyNumberSets, key);
constexpr size_t kEmNumberCount = offsetof(PBMEmergencyNumberSets, numberCount);
constexpr size_t emergencyNumber(size_t i, size_t j) {
    return offsetof(PBMEmergencyNumberSets, numbers) + (256 * i + j) * sizeof(PBMEmergencyNumber);
}

// PBMGroupsData
constexpr size_t kGroupKey = offsetof(PBMGroupsData, key);
constexpr size_t kGroupCount = offsetof(PBMGroupsData, groupCount);
constexpr size_t groupId(size_t i, size_t j) { return offsetof(PBMGroupsData, groupId) + 40 * i + j; }
constexpr size_t groupName(size_t i, size_t j) {
    return offsetof(PBMGroupsData, name) + (40 * i + j) * sizeof(PBMTextSlot);
}

// ------------------------------------------------------------- wire walks --

// A wire text (length byte, then its bytes) into the text slot at `slot`;
// returns the wire offset behind it.
uint16_t textInto(Dec& d, Dec::Record& r, size_t slot, uint16_t off) {
    uint8_t n = d.u8(off);
    r.copy(slot, off, 1u + n);
    return static_cast<uint16_t>(off + 1 + n);
}

// A wire number (two attributes, length, number bytes) into the number slot
// at `slot`; returns the wire offset behind it.
uint16_t numberInto(Dec& d, Dec::Record& r, size_t slot, uint16_t off) {
    uint8_t n = d.u8(off + 2);
    r.copy(slot, off, 3u + n);
    return static_cast<uint16_t>(off + 3 + n);
}

// Item 0x01 of the record-read indication: the leading word, the selector and
// the record count into set bytes 0-5, then per record its id, its primary
// number (number count 1) and its name.
auto recordRead(PBMRecordSet* set) {
    return [=](Dec& d) {
        Dec::Record r = d.record(set, sizeof *set);
        r.copy(0, 0, 6);
        uint8_t n = d.u8(5);
        uint16_t off = 6;
        for (uint8_t i = 0; i < n; ++i) {
            r.copy(kSetIds + 2u * i, off, 2);
            r.put8(kSetNumberCount + i, 1);
            off = numberInto(d, r, numberSlot(i, 0), static_cast<uint16_t>(off + 2));
            off = textInto(d, r, nameSlot(i), off);
        }
    };
}

// The optional arrays of the record-read indication: the record count into
// set byte 5 (shared with item 0x01), then per record its id (into the shared
// id array) and the entry, which `entry(d, r, i, off)` stores and steps over.
template <class F>
auto recordArray(PBMRecordSet* set, F entry) {
    return [=](Dec& d) {
        Dec::Record r = d.record(set, sizeof *set);
        uint8_t n = d.u8(0);
        r.put8(kSetCount, n);
        uint16_t off = 1;
        for (uint8_t i = 0; i < n; ++i) {
            r.copy(kSetIds + 2u * i, off, 2);
            off = entry(d, r, i, static_cast<uint16_t>(off + 2));
        }
    };
}

uint16_t secondName(Dec& d, Dec::Record& r, uint8_t i, uint16_t off) { return textInto(d, r, nameSlot(i), off); }

// Replaces the record's numbers from slot 0 (the primary number) on.
uint16_t additionalNumbers(Dec& d, Dec::Record& r, uint8_t i, uint16_t off) {
    uint8_t m = d.u8(off);
    r.put8(kSetNumberCount + i, m);
    off = static_cast<uint16_t>(off + 1);
    for (uint8_t j = 0; j < m; ++j) {
        off = numberInto(d, r, numberSlot(i, j), off);
        r.copy(numberSlot(i, j) + kTrailing, off, 1);
        off = static_cast<uint16_t>(off + 1);
    }
    return off;
}

uint16_t groupIds(Dec& d, Dec::Record& r, uint8_t i, uint16_t off) {
    uint8_t m = d.u8(off);
    r.put8(kSetGroupIdCount + i, m);
    r.copy(kSetGroupIds + 10u * i, off + 1u, m);
    return static_cast<uint16_t>(off + 1 + m);
}

uint16_t emails(Dec& d, Dec::Record& r, uint8_t i, uint16_t off) {
    uint8_t m = d.u8(off);
    r.put8(kSetEmailCount + i, m);
    off = static_cast<uint16_t>(off + 1);
    for (uint8_t j = 0; j < m; ++j) off = textInto(d, r, emailSlot(i, j), off);
    return off;
}

uint16_t hidden(Dec&, Dec::Record& r, uint8_t i, uint16_t off) {
    r.copy(kSetHidden + i, off, 1);
    return static_cast<uint16_t>(off + 1);
}

// Keyed sets (basic capabilities, emergency number sets, groups): a set count
// into record byte 0, then per set i its key byte (to keyAt + i) and an inner
// count m (to countAt + i), followed by the set's elements, which
// `inner(d, r, i, m, off)` stores and steps over.  The running offset is 16 bits.
template <class F>
void keyedSets(Dec& d, Dec::Record& r, size_t keyAt, size_t countAt, F inner) {
    uint8_t n = d.u8(0);
    r.put8(0, n);
    uint16_t off = 1;
    for (uint8_t i = 0; i < n; ++i) {
        uint8_t m = d.u8(off + 1);
        r.copy(keyAt + i, off, 1);
        r.put8(countAt + i, m);
        off = inner(d, r, i, m, static_cast<uint16_t>(off + 2));
    }
}

// The basic-capability array: per phonebook m entries of 8 bytes.
auto basicCapabilities(PBMAllCapabilities* caps) {
    return [=](Dec& d) {
        Dec::Record r = d.record(caps, sizeof *caps);
        keyedSets(d, r, kCapKey, kCapBasicCount, [](Dec&, Dec::Record& r, uint8_t i, uint8_t m, uint16_t off) {
            r.copy(kCapBasic + kCapBasicSet * i, off, 8u * m);
            return static_cast<uint16_t>(off + 8 * m);
        });
    };
}

// The other capability arrays: count, then fixed entries of a key byte and
// `width` capability bytes, stored at `field` + width * i.
auto capabilityArray(PBMAllCapabilities* caps, size_t field, size_t width) {
    return [=](Dec& d) {
        Dec::Record r = d.record(caps, sizeof *caps);
        uint8_t n = d.u8(0);
        r.put8(0, n);
        for (uint8_t i = 0; i < n; ++i) {
            size_t off = 1 + (width + 1) * i;
            r.copy(kCapKey + i, off, 1);
            r.copy(field + width * i, off + 1, width);
        }
    };
}

// A flat emergency list: count, then per number its length and bytes into
// element bytes 1 onward (byte 0 is left alone).
auto flatList(uint8_t* count, PBMEmergencyNumber* numbers) {
    return [=](Dec& d) {
        uint8_t n = d.u8(0);
        d.put(count, n);
        if (!numbers) return;
        Dec::Record r = d.record(numbers);
        uint8_t off = 1;  // deliberate: an 8-bit running offset, it wraps after 255 value bytes
        for (uint8_t i = 0; i < n; ++i) {
            size_t e = sizeof(PBMEmergencyNumber) * i;
            uint8_t len = d.u8(off);
            r.put8(e + 1, len);
            off = static_cast<uint8_t>(off + 1);
            r.copy(e + 2, off, len);
            off = static_cast<uint8_t>(off + len);
        }
    };
}

// Emergency number sets (card or network): per number its attribute, length
// and bytes.
auto numberSets(PBMEmergencyNumberSets* sets) {
    return [=](Dec& d) {
        Dec::Record r = d.record(sets, sizeof *sets);
        keyedSets(d, r, kEmKey, kEmNumberCount, [](Dec& d, Dec::Record& r, uint8_t i, uint8_t m, uint16_t off) {
            for (uint8_t j = 0; j < m; ++j) {
                uint8_t len = d.u8(off + 1);
                r.copy(emergencyNumber(i, j), off, 2u + len);
                off = static_cast<uint16_t>(off + 2 + len);
            }
            return off;
        });
    };
}

// Groups: per group its id and name.
auto groupsData(PBMGroupsData* groups) {
    return [=](Dec& d) {
        Dec::Record r = d.record(groups, sizeof *groups);
        keyedSets(d, r, kGroupKey, kGroupCount, [](Dec& d, Dec::Record& r, uint8_t i, uint8_t m, uint16_t off) {
            for (uint8_t j = 0; j < m; ++j) {
                r.copy(groupId(i, j), off, 1);
                off = textInto(d, r, groupName(i, j), static_cast<uint16_t>(off + 1));
            }
            return off;
        });
    };
}

// A u8, a u16 and a u8 (refresh indication, phonebook state).
auto byteWordByte(uint8_t* a, uint16_t* b, uint8_t* c) {
    return [=](Dec& d) {
        d.put(a, d.u8(0));
        d.put(b, d.le16(1));
        d.put(c, d.u8(3));
    };
}

// Two bytes (group identifier, hidden record status).
auto twoBytes(uint8_t* a, uint8_t* b) {
    return [=](Dec& d) {
        d.put(a, d.u8(0));
        d.put(b, d.u8(1));
    };
}

// The size of `count` consecutive wire entries read from caller slots of
// `stride` bytes, each `extra` bytes plus the length byte at `lengthAt`.
size_t slotsSize(const uint8_t* slots, uint8_t count, size_t stride, size_t lengthAt, size_t extra) {
    size_t n = 0;
    for (uint8_t k = 0; k < count; ++k) n += extra + slots[stride * k + lengthAt];
    return n;
}

}  // namespace

// IndicationRegister 0x0001
extern "C" int zovQMIPBMIndicationRegisterReq(uint8_t* buf, int bufsize, uint32_t mask) {
    return reqTlv(buf, bufsize, 0x0001, w32(mask));
}
extern "C" int zovQMIPBMIndicationRegisterResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0001);
}
extern "C" int zovQMIPBMIndicationRegisterRespGetEventRegistrationMask(const uint8_t* msg, int len, uint32_t* mask) {
    return get(msg, len, 0x0001, 0x10, all(mask), scalar(mask));
}

// GetPBCapabilities 0x0002
extern "C" int zovQMIPBMGetPBCapabilitiesReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord) {
    return reqTlv(buf, bufsize, 0x0002, w8(selectorByte), w16(selectorWord));
}
extern "C" int zovQMIPBMGetPBCapabilitiesResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0002);
}
extern "C" int zovQMIPBMGetPBCapabilitiesRespGetCapabilityBasicInformation(const uint8_t* msg, int len,
                                                                          uint8_t* first, uint8_t* basic) {
    return get(msg, len, 0x0002, 0x10, all(first, basic), [=](Dec& d) {
        d.put(first, d.u8(0));
        d.copy(basic, 1, 8);
    });
}
extern "C" int zovQMIPBMGetPBCapabilitiesRespGetGroupCapability(const uint8_t* msg, int len, uint8_t* capability) {
    return get(msg, len, 0x0002, 0x11, all(capability), raw(capability, 2));
}
extern "C" int zovQMIPBMGetPBCapabilitiesRespGetAdditionalNumberCapability(const uint8_t* msg, int len,
                                                                          uint8_t* capability) {
    return get(msg, len, 0x0002, 0x12, all(capability), raw(capability, 3));
}
extern "C" int zovQMIPBMGetPBCapabilitiesRespGetEmailCapability(const uint8_t* msg, int len, uint8_t* capability) {
    return get(msg, len, 0x0002, 0x13, all(capability), raw(capability, 2));
}
extern "C" int zovQMIPBMGetPBCapabilitiesRespGetSecondNameCapability(const uint8_t* msg, int len,
                                                                    uint8_t* capability) {
    return get(msg, len, 0x0002, 0x14, all(capability), scalar(capability));
}
extern "C" int zovQMIPBMGetPBCapabilitiesRespGetHiddenRecordsCapability(const uint8_t* msg, int len,
                                                                       uint8_t* capability) {
    return get(msg, len, 0x0002, 0x15, all(capability), scalar(capability));
}

// GetAllPBCapabilities 0x0003
extern "C" int zovQMIPBMGetAllPBCapabilitiesReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0003); }
extern "C" int zovQMIPBMGetAllPBCapabilitiesResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0003);
}
extern "C" int zovQMIPBMGetAllPBCapabilitiesRespGetCapabilityBasicInformationArray(const uint8_t* msg, int len,
                                                                                  PBMAllCapabilities* caps) {
    return get(msg, len, 0x0003, 0x10, all(caps), basicCapabilities(caps));
}
extern "C" int zovQMIPBMGetAllPBCapabilitiesRespGetGroupCapabilityArray(const uint8_t* msg, int len,
                                                                       PBMAllCapabilities* caps) {
    return get(msg, len, 0x0003, 0x11, all(caps), capabilityArray(caps, offsetof(PBMAllCapabilities, group), 2));
}
extern "C" int zovQMIPBMGetAllPBCapabilitiesRespGetAdditionalNumberCapabilityArray(const uint8_t* msg, int len,
                                                                                  PBMAllCapabilities* caps) {
    return get(msg, len, 0x0003, 0x12, all(caps),
               capabilityArray(caps, offsetof(PBMAllCapabilities, additionalNumber), 3));
}
extern "C" int zovQMIPBMGetAllPBCapabilitiesRespGetEmailCapabilityArray(const uint8_t* msg, int len,
                                                                       PBMAllCapabilities* caps) {
    return get(msg, len, 0x0003, 0x13, all(caps), capabilityArray(caps, offsetof(PBMAllCapabilities, email), 2));
}
extern "C" int zovQMIPBMGetAllPBCapabilitiesRespGetSecondNameCapabilityArray(const uint8_t* msg, int len,
                                                                            PBMAllCapabilities* caps) {
    return get(msg, len, 0x0003, 0x14, all(caps),
               capabilityArray(caps, offsetof(PBMAllCapabilities, secondName), 1));
}
extern "C" int zovQMIPBMGetAllPBCapabilitiesRespGetHiddenRecordsCapabilityArray(const uint8_t* msg, int len,
                                                                               PBMAllCapabilities* caps) {
    return get(msg, len, 0x0003, 0x15, all(caps),
               capabilityArray(caps, offsetof(PBMAllCapabilities, hiddenRecords), 1));
}

// ReadRecords 0x0004
extern "C" int zovQMIPBMReadRecordsReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord,
                                       uint16_t startId, uint16_t endId) {
    return reqTlv(buf, bufsize, 0x0004, w8(selectorByte), w16(selectorWord), w16(startId), w16(endId));
}
extern "C" int zovQMIPBMReadRecordsResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0004);
}
extern "C" int zovQMIPBMReadRecordsRespGetNumberOfRecords(const uint8_t* msg, int len, uint16_t* count) {
    return get(msg, len, 0x0004, 0x10, all(count), scalar(count));
}

// RecordRead 0x0004 (indication); its optional arrays share the set's count
// and record-id slots with item 0x01 on purpose.
extern "C" int zovQMIPBMRecordReadIND(const uint8_t* msg, int len, PBMRecordSet* set) {
    return ind(msg, len, 0x0004, all(set), recordRead(set));
}
extern "C" int zovQMIPBMRecordReadINDGetArrayofSecondNameInformation(const uint8_t* msg, int len, PBMRecordSet* set) {
    return get(msg, len, 0x0004, 0x10, all(set), recordArray(set, secondName));
}
extern "C" int zovQMIPBMRecordReadINDGetArrayofAdditionalNumberInformation(const uint8_t* msg, int len,
                                                                          PBMRecordSet* set) {
    return get(msg, len, 0x0004, 0x11, all(set), recordArray(set, additionalNumbers));
}
extern "C" int zovQMIPBMRecordReadINDGetArrayofGroupIDInformation(const uint8_t* msg, int len, PBMRecordSet* set) {
    return get(msg, len, 0x0004, 0x12, all(set), recordArray(set, groupIds));
}
extern "C" int zovQMIPBMRecordReadINDGetArrayofEmailInformation(const uint8_t* msg, int len, PBMRecordSet* set) {
    return get(msg, len, 0x0004, 0x13, all(set), recordArray(set, emails));
}
extern "C" int zovQMIPBMRecordReadINDGetArrayofHiddenInformation(const uint8_t* msg, int len, PBMRecordSet* set) {
    return get(msg, len, 0x0004, 0x14, all(set), recordArray(set, hidden));
}

// WriteRecord 0x0005: item 0x01 is record 0 of the set: selector, record id,
// primary number (attributes, length, bytes) and name (length, bytes).
extern "C" int zovQMIPBMWriteRecordReq(uint8_t* buf, int bufsize, const PBMRecordSet* set) {
    if (!set) return kErrArg;
    const PBMNumberSlot& number = set->numbers[0][0];
    const PBMTextSlot& name = set->name[0];
    return reqTlv(buf, bufsize, 0x0005, w8(set->selectorByte), wbytes(2, set->selectorWord),
                  wbytes(2, set->recordId[0]), wbytes(3, &number), wbytes(number.length, number.number),
                  wbytes(1u + name.length, &name));
}
// textSlot: one 243-byte text slot, sent as its length byte and text.
extern "C" int zovQMIPBMWriteRecordReqAddSecondNameInformation(uint8_t* buf, int bufsize, const uint8_t* textSlot) {
    if (!textSlot) return kErrArg;
    return add(buf, bufsize, 0x10, wbytes(1u + textSlot[0], textSlot));
}
// numberSlots: `count` 44-byte number slots, each sent as its attributes,
// length, number bytes and trailing attribute.
extern "C" int zovQMIPBMWriteRecordReqAddAdditionalNumberInformation(uint8_t* buf, int bufsize, uint8_t count,
                                                                    const uint8_t* numberSlots) {
    if (count && !numberSlots) return kErrArg;
    const size_t stride = sizeof(PBMNumberSlot);
    size_t n = slotsSize(numberSlots, count, stride, offsetof(PBMNumberSlot, length), 4);
    return add(buf, bufsize, 0x11, w8(count), wfn(n, [=](uint8_t* p) {
                   for (uint8_t k = 0; k < count; ++k) {
                       const uint8_t* slot = numberSlots + stride * k;
                       size_t head = 3u + slot[offsetof(PBMNumberSlot, length)];
                       copyBytes(p, slot, head);
                       p[head] = slot[kTrailing];
                       p += head + 1;
                   }
               }));
}
extern "C" int zovQMIPBMWriteRecordReqAddGroupIDInformation(uint8_t* buf, int bufsize, uint8_t count,
                                                           const uint8_t* ids) {
    return add(buf, bufsize, 0x12, w8(count), wbytes(count, ids));
}
// textSlots: `count` consecutive 243-byte text slots, each sent as its length byte and text.
extern "C" int zovQMIPBMWriteRecordReqAddEmailInformation(uint8_t* buf, int bufsize, uint8_t count,
                                                         const uint8_t* textSlots) {
    if (count && !textSlots) return kErrArg;
    const size_t stride = sizeof(PBMTextSlot);
    size_t n = slotsSize(textSlots, count, stride, 0, 1);
    return add(buf, bufsize, 0x13, w8(count), wfn(n, [=](uint8_t* p) {
                   for (uint8_t k = 0; k < count; ++k) {
                       const uint8_t* slot = textSlots + stride * k;
                       copyBytes(p, slot, 1u + slot[0]);
                       p += 1u + slot[0];
                   }
               }));
}
extern "C" int zovQMIPBMWriteRecordReqAddHiddenInformation(uint8_t* buf, int bufsize, uint8_t hidden) {
    return add(buf, bufsize, 0x14, w8(hidden));
}
extern "C" int zovQMIPBMWriteRecordResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0005);
}
extern "C" int zovQMIPBMWriteRecordRespGetRecordInfo(const uint8_t* msg, int len, uint16_t* recordInfo) {
    return get(msg, len, 0x0005, 0x10, all(recordInfo), scalar(recordInfo));
}

// DeleteRecord 0x0006
extern "C" int zovQMIPBMDeleteRecordReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord,
                                        uint16_t recordId) {
    return reqTlv(buf, bufsize, 0x0006, w8(selectorByte), w16(selectorWord), w16(recordId));
}
extern "C" int zovQMIPBMDeleteRecordResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0006);
}
extern "C" int zovQMIPBMDeleteRecordRespGetRecordID(const uint8_t* msg, int len, uint16_t* recordId) {
    return get(msg, len, 0x0006, 0x10, all(recordId), scalar(recordId));
}

// DeleteAllPBRecords 0x0007
extern "C" int zovQMIPBMDeleteAllPBRecordsReq(uint8_t* buf, int bufsize, uint8_t selectorByte,
                                              uint16_t selectorWord) {
    return reqTlv(buf, bufsize, 0x0007, w8(selectorByte), w16(selectorWord));
}
extern "C" int zovQMIPBMDeleteAllPBRecordsResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0007);
}

// SearchRecords 0x0008
extern "C" int zovQMIPBMSearchRecordsReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord) {
    return reqTlv(buf, bufsize, 0x0008, w8(selectorByte), w16(selectorWord));
}
extern "C" int zovQMIPBMSearchRecordsReqAddNumberInformation(uint8_t* buf, int bufsize, uint8_t length,
                                                            const void* bytes) {
    return add(buf, bufsize, 0x10, w8(length), wbytes(length, bytes));
}
extern "C" int zovQMIPBMSearchRecordsReqAddNameInformation(uint8_t* buf, int bufsize, uint8_t length,
                                                          const void* bytes) {
    return add(buf, bufsize, 0x11, w8(length), wbytes(length, bytes));
}
extern "C" int zovQMIPBMSearchRecordsResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0008);
}
// Item 0x10: a 16-bit count, then that many 16-bit record ids (native outputs).
extern "C" int zovQMIPBMSearchRecordsRespGetRecordIDsList(const uint8_t* msg, int len, uint16_t* count,
                                                         uint16_t* ids) {
    return get(msg, len, 0x0008, 0x10, all(count), [=](Dec& d) {
        uint16_t n = d.le16(0);
        d.put(count, n);
        if (!ids) return;
        for (uint16_t i = 0; i < n; ++i) d.put(&ids[i], d.le16(2u + 2u * i));
    });
}

// RecordUpdate 0x0009 (indication)
extern "C" int zovQMIPBMRecordUpdateIND(const uint8_t* msg, int len, uint8_t* first, uint16_t* second,
                                        uint8_t* third, uint16_t* fourth) {
    return ind(msg, len, 0x0009, all(first, second, third, fourth), [=](Dec& d) {
        d.put(first, d.u8(0));
        d.put(second, d.le16(1));
        d.put(third, d.u8(3));
        d.put(fourth, d.le16(4));
    });
}

// Refresh 0x000A (indication)
extern "C" int zovQMIPBMRefreshIND(const uint8_t* msg, int len, uint8_t* first, uint16_t* second, uint8_t* third) {
    return ind(msg, len, 0x000A, all(first, second, third), byteWordByte(first, second, third));
}

// PBReady 0x000B (indication)
extern "C" int zovQMIPBMPBReadyIND(const uint8_t* msg, int len, uint8_t* selectorByte, uint16_t* selectorWord) {
    return ind(msg, len, 0x000B, all(selectorByte, selectorWord), [=](Dec& d) {
        d.put(selectorByte, d.u8(0));
        d.put(selectorWord, d.le16(1));
    });
}

// EmergencyList 0x000C (indication)
extern "C" int zovQMIPBMEmergencyListIND(const uint8_t* msg, int len, uint8_t* count, PBMEmergencyNumber* numbers) {
    return ind(msg, len, 0x000C, all(count), flatList(count, numbers));
}
extern "C" int zovQMIPBMEmergencyListINDGetNVEmergencyNumbers(const uint8_t* msg, int len, uint8_t* count,
                                                             PBMEmergencyNumber* numbers) {
    return get(msg, len, 0x000C, 0x10, all(count), flatList(count, numbers));
}
extern "C" int zovQMIPBMEmergencyListINDGetCardEmergencyNumbers(const uint8_t* msg, int len,
                                                               PBMEmergencyNumberSets* sets) {
    return get(msg, len, 0x000C, 0x11, all(sets), numberSets(sets));
}
extern "C" int zovQMIPBMEmergencyListINDGetNetworkEmergencyNumbers(const uint8_t* msg, int len,
                                                                  PBMEmergencyNumberSets* sets) {
    return get(msg, len, 0x000C, 0x12, all(sets), numberSets(sets));
}

// AllPBInitDone 0x000D (indication): count, then 3-byte entries (key byte, word).
extern "C" int zovQMIPBMAllPBInitDoneIND(const uint8_t* msg, int len, uint8_t* count, uint8_t* keys,
                                         uint16_t* words) {
    return ind(msg, len, 0x000D, all(count), [=](Dec& d) {
        uint8_t n = d.u8(0);
        d.put(count, n);
        for (uint8_t i = 0; i < n; ++i) {
            if (keys) d.put(&keys[i], d.u8(1u + 3u * i));
            if (words) d.put(&words[i], d.le16(2u + 3u * i));
        }
    });
}

// GetEmergencyList 0x000E
extern "C" int zovQMIPBMGetEmergencyListReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x000E); }
extern "C" int zovQMIPBMGetEmergencyListResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x000E);
}
extern "C" int zovQMIPBMGetEmergencyListRespGetHardCodedEmergencyNumbers(const uint8_t* msg, int len, uint8_t* count,
                                                                        PBMEmergencyNumber* numbers) {
    return get(msg, len, 0x000E, 0x10, all(count), flatList(count, numbers));
}
extern "C" int zovQMIPBMGetEmergencyListRespGetNVEmergencyNumbers(const uint8_t* msg, int len, uint8_t* count,
                                                                 PBMEmergencyNumber* numbers) {
    return get(msg, len, 0x000E, 0x11, all(count), flatList(count, numbers));
}
extern "C" int zovQMIPBMGetEmergencyListRespGetCardEmergencyNumbers(const uint8_t* msg, int len,
                                                                   PBMEmergencyNumberSets* sets) {
    return get(msg, len, 0x000E, 0x12, all(sets), numberSets(sets));
}
extern "C" int zovQMIPBMGetEmergencyListRespGetNetworkEmergencyNumbers(const uint8_t* msg, int len,
                                                                      PBMEmergencyNumberSets* sets) {
    return get(msg, len, 0x000E, 0x13, all(sets), numberSets(sets));
}

// GetAllGroups 0x000F
extern "C" int zovQMIPBMGetAllGroupsReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x000F); }
extern "C" int zovQMIPBMGetAllGroupsResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x000F);
}
extern "C" int zovQMIPBMGetAllGroupsRespGetGroupsData(const uint8_t* msg, int len, PBMGroupsData* groups) {
    return get(msg, len, 0x000F, 0x10, all(groups), groupsData(groups));
}

// SetGroupInfo 0x0010: three bytes, then the text slot's length byte and text.
extern "C" int zovQMIPBMSetGroupInfoReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second, uint8_t third,
                                        const uint8_t* textSlot) {
    if (!textSlot) return kErrArg;
    return reqTlv(buf, bufsize, 0x0010, w8(first), w8(second), w8(third), wbytes(1u + textSlot[0], textSlot));
}
extern "C" int zovQMIPBMSetGroupInfoResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0010);
}
extern "C" int zovQMIPBMSetGroupInfoRespGetGroupIdentifier(const uint8_t* msg, int len, uint8_t* first,
                                                          uint8_t* second) {
    return get(msg, len, 0x0010, 0x10, all(first, second), twoBytes(first, second));
}

// GetPBState 0x0011
extern "C" int zovQMIPBMGetPBStateReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord) {
    return reqTlv(buf, bufsize, 0x0011, w8(selectorByte), w16(selectorWord));
}
extern "C" int zovQMIPBMGetPBStateResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0011);
}
extern "C" int zovQMIPBMGetPBStateRespGetPhonebookState(const uint8_t* msg, int len, uint8_t* first,
                                                       uint16_t* second, uint8_t* third) {
    return get(msg, len, 0x0011, 0x10, all(first, second, third), byteWordByte(first, second, third));
}

// ReadAllHiddenRecords 0x0012
extern "C" int zovQMIPBMReadAllHiddenRecordsReq(uint8_t* buf, int bufsize, uint8_t value) {
    return reqTlv(buf, bufsize, 0x0012, w8(value));
}
extern "C" int zovQMIPBMReadAllHiddenRecordsResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0012);
}
extern "C" int zovQMIPBMReadAllHiddenRecordsRespGetNumberofRecords(const uint8_t* msg, int len, uint16_t* count) {
    return get(msg, len, 0x0012, 0x10, all(count), scalar(count));
}

// HiddenRecordStatus 0x0013 (indication)
extern "C" int zovQMIPBMHiddenRecordStatusIND(const uint8_t* msg, int len, uint8_t* first, uint8_t* second) {
    return ind(msg, len, 0x0013, all(first, second), twoBytes(first, second));
}
