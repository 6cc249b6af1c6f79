// WDS, the wireless data service (service 1): packet data calls, their
// statistics and indications, data profiles, runtime settings and call facts.
#include "msg/pattern.h"

using namespace zq;

namespace {

constexpr size_t kIPv6Size = 16;

// The data bearer record: technology u8, then two u32.
auto dataBearer(uint8_t* technology, uint32_t* first, uint32_t* second) {
    return [=](Dec& d) {
        d.put(technology, d.u8(0));
        d.put(first, d.le32(1));
        d.put(second, d.le32(5));
    };
}

// The verbose call end reason: reason type u16, reason u16.
auto verboseReason(uint16_t* type, uint16_t* reason) {
    return [=](Dec& d) {
        d.put(type, d.le16(0));
        d.put(reason, d.le16(2));
    };
}

// A profile identifier: profile type u8, profile index u8.
auto profileIdentifier(uint8_t* profileType, uint8_t* profileIndex) {
    return [=](Dec& d) {
        d.put(profileType, d.u8(0));
        d.put(profileIndex, d.u8(1));
    };
}

// An IPv6 address (16 bytes as they are) and the prefix length behind it.
auto ipv6WithPrefix(uint8_t* address, uint8_t* prefixLength) {
    return [=](Dec& d) {
        d.copy(address, 0, kIPv6Size);
        d.put(prefixLength, d.u8(kIPv6Size));
    };
}

// Profile items are read from GetProfileSettings (0x002B) and
// GetDefaultSettings (0x002C) responses; items 0x10 to 0x1E also from
// GetRuntimeSettings (0x002D), where the higher types carry other items.
enum ProfileIds { kSettingsOnly, kWithRuntime };

inline bool profileMessage(uint16_t messageId, ProfileIds ids) {
    return messageId == 0x002B || messageId == 0x002C || (ids == kWithRuntime && messageId == 0x002D);
}
template <class F, class = IfDecoder<F>>
int profileGet(const uint8_t* msg, int len, uint16_t messageId, ProfileIds ids, uint8_t type, bool outsOk, F&& f) {
    if (!msg || !outsOk || !profileMessage(messageId, ids)) return kErrArg;
    return get(msg, len, messageId, type, true, f);
}
// A plain-data shape: its helper checks the buffer.
template <class Shape>
int profileGet(const uint8_t* msg, int len, uint16_t messageId, ProfileIds ids, uint8_t type, bool outsOk, Shape s) {
    if (!outsOk || !profileMessage(messageId, ids)) return kErrArg;
    return get(msg, len, messageId, type, true, s);
}

// A list of names: count u8, then per name a u16 length and its bytes, into
// the caller's 6-byte records (length, buffer set by the caller or null).
auto nameList(uint8_t* count, WDSNameListEntry* list) {
    return [=](Dec& d) {
        uint8_t n = d.u8(0);
        d.put(count, n);
        if (!list) return;
        Dec::Record out = d.record(list);
        size_t w = 1;
        for (uint8_t i = 0; i < n; ++i) {
            const size_t r = i * sizeof(WDSNameListEntry);
            uint16_t length = d.le16(w);
            out.put16(r + offsetof(WDSNameListEntry, length), length);
            d.copy(out.ptr(r + offsetof(WDSNameListEntry, name)), w + 2, length);
            w += length + 2u;
        }
    };
}

}  // namespace

// ================================================== packet data call --

// Reset 0x0000
extern "C" int zovQMIWDSResetReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0000); }
extern "C" int zovQMIWDSResetResp(const uint8_t* msg, int len, QmiResult* result) {
    // Deliberate: the message walk takes a buffer of 7 bytes or less for
    // message 0x0000 with an empty TLV area, so such a buffer gives -3.
    return resp(msg, len, result, 0x0000);
}

// SetEventReport 0x0001 and the EventReport indication
extern "C" int zovQMIWDSSetEventReportReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0001); }
extern "C" int zovQMIWDSSetEventReportReqAddCurrentChannelRateIndicator(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x10, w8(report));
}
extern "C" int zovQMIWDSSetEventReportReqAddTransferStatisticsIndicator(uint8_t* buf, int bufsize, uint8_t period,
                                                                        uint32_t mask) {
    return add(buf, bufsize, 0x11, w8(period), w32(mask));
}
extern "C" int zovQMIWDSSetEventReportReqAddCurrentDataBearerTechnologyIndicatorDeprecated(uint8_t* buf, int bufsize,
                                                                                           uint8_t report) {
    return add(buf, bufsize, 0x12, w8(report));
}
extern "C" int zovQMIWDSSetEventReportReqAddDormancyStatusIndicator(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x13, w8(report));
}
extern "C" int zovQMIWDSSetEventReportReqAddCurrentDataBearerTechnologyIndicator(uint8_t* buf, int bufsize,
                                                                                 uint8_t report) {
    return add(buf, bufsize, 0x15, w8(report));
}
extern "C" int zovQMIWDSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0001);
}
extern "C" int zovQMIWDSEventReportIND(const uint8_t* msg, int len) { return ind(msg, len, 0x0001); }
extern "C" int zovQMIWDSEventReportINDGetTxPacketsOK(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0001, 0x10, all(count), scalar(count));
}
extern "C" int zovQMIWDSEventReportINDGetRxPacketsOK(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0001, 0x11, all(count), scalar(count));
}
extern "C" int zovQMIWDSEventReportINDGetTxPacketsErrors(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0001, 0x12, all(count), scalar(count));
}
extern "C" int zovQMIWDSEventReportINDGetRxPacketsErrors(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0001, 0x13, all(count), scalar(count));
}
extern "C" int zovQMIWDSEventReportINDGetTxOverflows(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0001, 0x14, all(count), scalar(count));
}
extern "C" int zovQMIWDSEventReportINDGetRxOverflows(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0001, 0x15, all(count), scalar(count));
}
extern "C" int zovQMIWDSEventReportINDGetChannelRate(const uint8_t* msg, int len, uint32_t* first, uint32_t* second) {
    return get(msg, len, 0x0001, 0x16, all(first, second), [=](Dec& d) {
        d.put(first, d.le32(0));
        d.put(second, d.le32(4));
    });
}
extern "C" int zovQMIWDSEventReportINDGetDataBearerTechnology(const uint8_t* msg, int len, uint8_t* technology) {
    return get(msg, len, 0x0001, 0x17, all(technology), scalar(technology));
}
extern "C" int zovQMIWDSEventReportINDGetDormancyStatus(const uint8_t* msg, int len, uint8_t* status) {
    return get(msg, len, 0x0001, 0x18, all(status), scalar(status));
}
extern "C" int zovQMIWDSEventReportINDGetTxBytesOK(const uint8_t* msg, int len, uint64_t* count) {
    return get(msg, len, 0x0001, 0x19, all(count), scalar(count));
}
extern "C" int zovQMIWDSEventReportINDGetRxBytesOK(const uint8_t* msg, int len, uint64_t* count) {
    return get(msg, len, 0x0001, 0x1A, all(count), scalar(count));
}
extern "C" int zovQMIWDSEventReportINDGetCurrentDataBearerTechnology(const uint8_t* msg, int len, uint8_t* technology,
                                                                     uint32_t* first, uint32_t* second) {
    return get(msg, len, 0x0001, 0x1D, all(technology, first, second), dataBearer(technology, first, second));
}

// Abort 0x0002
extern "C" int zovQMIWDSAbortReq(uint8_t* buf, int bufsize, uint16_t value) {
    return reqTlv(buf, bufsize, 0x0002, w16(value));
}
extern "C" int zovQMIWDSAbortResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0002);
}

// StartNetworkInterface 0x0020
extern "C" int zovQMIWDSStartNetworkInterfaceReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0020); }
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddPrimaryDNSAddressPreference(uint8_t* buf, int bufsize,
                                                                               uint32_t address) {
    return add(buf, bufsize, 0x10, w32(address));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddSecondaryDNSAddressPreference(uint8_t* buf, int bufsize,
                                                                                 uint32_t address) {
    return add(buf, bufsize, 0x11, w32(address));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddPrimaryNBNSAddressPreference(uint8_t* buf, int bufsize,
                                                                                uint32_t address) {
    return add(buf, bufsize, 0x12, w32(address));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddSecondaryNBNSAddressPreference(uint8_t* buf, int bufsize,
                                                                                  uint32_t address) {
    return add(buf, bufsize, 0x13, w32(address));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddContextAPNName(uint8_t* buf, int bufsize, uint16_t length,
                                                                  const uint8_t* data) {
    return add(buf, bufsize, 0x14, wbytes(length, data));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddIPAddressPreference(uint8_t* buf, int bufsize, uint32_t address) {
    return add(buf, bufsize, 0x15, w32(address));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddAuthenticationPreference(uint8_t* buf, int bufsize,
                                                                            uint8_t preference) {
    return add(buf, bufsize, 0x16, w8(preference));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddUsername(uint8_t* buf, int bufsize, uint16_t length,
                                                            const uint8_t* data) {
    return add(buf, bufsize, 0x17, wbytes(length, data));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddPassword(uint8_t* buf, int bufsize, uint16_t length,
                                                            const uint8_t* data) {
    return add(buf, bufsize, 0x18, wbytes(length, data));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddIPFamilyPreference(uint8_t* buf, int bufsize, uint8_t family) {
    return add(buf, bufsize, 0x19, w8(family));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddTechnologyPreference(uint8_t* buf, int bufsize,
                                                                        uint8_t preference) {
    return add(buf, bufsize, 0x30, w8(preference));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAdd3GPPConfiguredProfileIdentifier(uint8_t* buf, int bufsize,
                                                                                   uint8_t profileIndex) {
    return add(buf, bufsize, 0x31, w8(profileIndex));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAdd3GPP2ConfiguredProfileIdentifier(uint8_t* buf, int bufsize,
                                                                                    uint8_t profileIndex) {
    return add(buf, bufsize, 0x32, w8(profileIndex));
}
// (Item 0x33 has no builder.)
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddExtendedTechnologyPreference(uint8_t* buf, int bufsize,
                                                                                uint16_t preference) {
    return add(buf, bufsize, 0x34, w16(preference));
}
extern "C" int zovQMIWDSStartNetworkInterfaceReqAddCallTypeIdentifier(uint8_t* buf, int bufsize, uint8_t callType) {
    return add(buf, bufsize, 0x35, w8(callType));
}
extern "C" int zovQMIWDSStartNetworkInterfaceResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* handle) {
    return resp(msg, len, result, 0x0020, all(handle), scalar(handle));
}
extern "C" int zovQMIWDSStartNetworkInterfaceRespGetCallEndReason(const uint8_t* msg, int len, uint16_t* reason) {
    return get(msg, len, 0x0020, 0x10, all(reason), scalar(reason));
}
extern "C" int zovQMIWDSStartNetworkInterfaceRespGetVerboseCallEndReason(const uint8_t* msg, int len,
                                                                         uint16_t* type, uint16_t* reason) {
    return get(msg, len, 0x0020, 0x11, all(type, reason), verboseReason(type, reason));
}

// StopNetworkInterface 0x0021
extern "C" int zovQMIWDSStopNetworkInterfaceReq(uint8_t* buf, int bufsize, uint32_t handle) {
    return reqTlv(buf, bufsize, 0x0021, w32(handle));
}
extern "C" int zovQMIWDSStopNetworkInterfaceResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0021);
}

// GetPktSrvcStatus 0x0022 and the PktSrvcStatus indication
extern "C" int zovQMIWDSGetPktSrvcStatusReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0022); }
extern "C" int zovQMIWDSGetPktSrvcStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status) {
    return resp(msg, len, result, 0x0022, all(status), scalar(status));
}
extern "C" int zovQMIWDSPktSrvcStatusIND(const uint8_t* msg, int len, uint8_t* status, uint8_t* second) {
    return ind(msg, len, 0x0022, all(status, second), [=](Dec& d) {
        d.put(status, d.u8(0));
        d.put(second, d.u8(1));
    });
}
extern "C" int zovQMIWDSPktSrvcStatusINDGetCallEndReason(const uint8_t* msg, int len, uint16_t* reason) {
    return get(msg, len, 0x0022, 0x10, all(reason), scalar(reason));
}
extern "C" int zovQMIWDSPktSrvcStatusINDGetVerboseCallEndReason(const uint8_t* msg, int len, uint16_t* type,
                                                                uint16_t* reason) {
    return get(msg, len, 0x0022, 0x11, all(type, reason), verboseReason(type, reason));
}
extern "C" int zovQMIWDSPktSrvcStatusINDGetIPFamily(const uint8_t* msg, int len, uint8_t* family) {
    return get(msg, len, 0x0022, 0x12, all(family), scalar(family));
}

// GetCurrentChannelRate 0x0023: item 0x01 is the 16-byte channel rate record.
extern "C" int zovQMIWDSGetCurrentChannelRateReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0023); }
extern "C" int zovQMIWDSGetCurrentChannelRateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* rates) {
    return resp(msg, len, result, 0x0023, all(rates), raw(rates, sizeof(WDSChannelRate)));
}

// GetPktStatistics 0x0024
extern "C" int zovQMIWDSGetPktStatisticsReq(uint8_t* buf, int bufsize, uint32_t mask) {
    return reqTlv(buf, bufsize, 0x0024, w32(mask));
}
extern "C" int zovQMIWDSGetPktStatisticsResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0024);
}
extern "C" int zovQMIWDSGetPktStatisticsRespGetTxPacketsOK(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0024, 0x10, all(count), scalar(count));
}
extern "C" int zovQMIWDSGetPktStatisticsRespGetRxPacketsOK(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0024, 0x11, all(count), scalar(count));
}
extern "C" int zovQMIWDSGetPktStatisticsRespGetTxPacketsErrors(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0024, 0x12, all(count), scalar(count));
}
extern "C" int zovQMIWDSGetPktStatisticsRespGetRxPacketsErrors(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0024, 0x13, all(count), scalar(count));
}
extern "C" int zovQMIWDSGetPktStatisticsRespGetTxOverflows(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0024, 0x14, all(count), scalar(count));
}
extern "C" int zovQMIWDSGetPktStatisticsRespGetRxOverflows(const uint8_t* msg, int len, uint32_t* count) {
    return get(msg, len, 0x0024, 0x15, all(count), scalar(count));
}
extern "C" int zovQMIWDSGetPktStatisticsRespGetTxBytesOK(const uint8_t* msg, int len, uint64_t* count) {
    return get(msg, len, 0x0024, 0x19, all(count), scalar(count));
}
extern "C" int zovQMIWDSGetPktStatisticsRespGetRxBytesOK(const uint8_t* msg, int len, uint64_t* count) {
    return get(msg, len, 0x0024, 0x1A, all(count), scalar(count));
}

// GoDormant 0x0025
extern "C" int zovQMIWDSGoDormantReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0025); }
extern "C" int zovQMIWDSGoDormantResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0025);
}

// GoActive 0x0026
extern "C" int zovQMIWDSGoActiveReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0026); }
extern "C" int zovQMIWDSGoActiveResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0026);
}

// ===================================================== data profiles --

// CreateProfile 0x0027
extern "C" int zovQMIWDSCreateProfileReq(uint8_t* buf, int bufsize, uint8_t profileType) {
    return reqTlv(buf, bufsize, 0x0027, w8(profileType));
}
extern "C" int zovQMIWDSCreateProfileResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* profileType,
                                          uint8_t* profileIndex) {
    return resp(msg, len, result, 0x0027, all(profileType, profileIndex),
                profileIdentifier(profileType, profileIndex));
}

// ModifyProfileSettings 0x0028
extern "C" int zovQMIWDSModifyProfileSettingsReq(uint8_t* buf, int bufsize, uint8_t profileType,
                                                 uint8_t profileIndex) {
    return reqTlv(buf, bufsize, 0x0028, w8(profileType), w8(profileIndex));
}
extern "C" int zovQMIWDSModifyProfileSettingsResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0028);
}

// DeleteProfile 0x0029
extern "C" int zovQMIWDSDeleteProfileReq(uint8_t* buf, int bufsize, uint8_t profileType, uint8_t profileIndex) {
    return reqTlv(buf, bufsize, 0x0029, w8(profileType), w8(profileIndex));
}
extern "C" int zovQMIWDSDeleteProfileResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0029);
}

// GetProfileList 0x002A: item 0x01 is a count, then per profile its type,
// index, name length and name, decoded into the caller's entries.
extern "C" int zovQMIWDSGetProfileListReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x002A); }
extern "C" int zovQMIWDSGetProfileListResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                           WDSProfileListEntry* list) {
    return resp(msg, len, result, 0x002A, all(count), [=](Dec& d) {
        uint8_t n = d.u8(0);
        d.put(count, n);
        if (!list) return;
        Dec::Record out = d.record(list);
        size_t w = 1;
        for (uint8_t i = 0; i < n; ++i) {
            const size_t r = i * sizeof(WDSProfileListEntry);
            uint8_t nameLength = d.u8(w + 2);
            out.put8(r + offsetof(WDSProfileListEntry, profileType), d.u8(w));
            out.put8(r + offsetof(WDSProfileListEntry, profileIndex), d.u8(w + 1));
            out.put8(r + offsetof(WDSProfileListEntry, nameLength), nameLength);
            d.copy(out.ptr(r + offsetof(WDSProfileListEntry, name)), w + 3, nameLength);
            w += nameLength + 3u;
        }
    });
}

// GetProfileSettings 0x002B (items through the profile item parsers)
extern "C" int zovQMIWDSGetProfileSettingsReq(uint8_t* buf, int bufsize, uint8_t profileType, uint8_t profileIndex) {
    return reqTlv(buf, bufsize, 0x002B, w8(profileType), w8(profileIndex));
}
extern "C" int zovQMIWDSGetProfileSettingsResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x002B);
}

// GetDefaultSettings 0x002C (items through the profile item parsers)
extern "C" int zovQMIWDSGetDefaultSettingsReq(uint8_t* buf, int bufsize, uint8_t profileType) {
    return reqTlv(buf, bufsize, 0x002C, w8(profileType));
}
extern "C" int zovQMIWDSGetDefaultSettingsResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x002C);
}

// Profile items, one builder and one parser per item type.  The builders
// append to CreateProfile and ModifyProfileSettings requests; the parsers take
// the id of the response they read (0x002B, 0x002C, and for types 0x10 to
// 0x1E also 0x002D) and refuse any other id with -1.

// ProfileName 0x10
extern "C" int zovQMIWDSProfileReqAddProfileName(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data) {
    return add(buf, bufsize, 0x10, wbytes(length, data));
}
extern "C" int zovQMIWDSProfileRespGetProfileName(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                                  uint8_t* data) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x10, all(length), text(length, data));
}

// PDPType 0x11
extern "C" int zovQMIWDSProfileReqAddPDPType(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x11, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetPDPType(const uint8_t* msg, int len, uint16_t messageId, uint8_t* value) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x11, all(value), scalar(value));
}

// PDPHeaderCompression 0x12
extern "C" int zovQMIWDSProfileReqAddPDPHeaderCompression(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x12, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetPDPHeaderCompression(const uint8_t* msg, int len, uint16_t messageId,
                                                           uint8_t* value) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x12, all(value), scalar(value));
}

// PDPDataCompression 0x13
extern "C" int zovQMIWDSProfileReqAddPDPDataCompression(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x13, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetPDPDataCompression(const uint8_t* msg, int len, uint16_t messageId,
                                                         uint8_t* value) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x13, all(value), scalar(value));
}

// APNName 0x14
extern "C" int zovQMIWDSProfileReqAddAPNName(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data) {
    // Only buf is checked on this item's account; a non-zero length with null
    // data is refused like every other string item.
    return add(buf, bufsize, 0x14, wbytes(length, data));
}
extern "C" int zovQMIWDSProfileRespGetAPNName(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                              uint8_t* data) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x14, all(length), text(length, data));
}

// PrimaryDNSIPv4AddressPreference 0x15
extern "C" int zovQMIWDSProfileReqAddPrimaryDNSIPv4AddressPreference(uint8_t* buf, int bufsize, uint32_t value) {
    return add(buf, bufsize, 0x15, w32(value));
}
extern "C" int zovQMIWDSProfileRespGetPrimaryDNSIPv4AddressPreference(const uint8_t* msg, int len,
                                                                      uint16_t messageId, uint32_t* value) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x15, all(value), scalar(value));
}

// SecondaryDNSIPv4AddressPreference 0x16
extern "C" int zovQMIWDSProfileReqAddSecondaryDNSIPv4AddressPreference(uint8_t* buf, int bufsize, uint32_t value) {
    return add(buf, bufsize, 0x16, w32(value));
}
extern "C" int zovQMIWDSProfileRespGetSecondaryDNSIPv4AddressPreference(const uint8_t* msg, int len,
                                                                        uint16_t messageId, uint32_t* value) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x16, all(value), scalar(value));
}

// UMTSRequestedQoS 0x17
extern "C" int zovQMIWDSProfileReqAddUMTSRequestedQoS(uint8_t* buf, int bufsize, const uint8_t* record) {
    return add(buf, bufsize, 0x17, wrecord(record, sizeof(WDSUMTSQoS)));
}
extern "C" int zovQMIWDSProfileRespGetUMTSRequestedQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* record) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x17, all(record), raw(record, sizeof(WDSUMTSQoS)));
}

// UMTSMinimumQoS 0x18
extern "C" int zovQMIWDSProfileReqAddUMTSMinimumQoS(uint8_t* buf, int bufsize, const uint8_t* record) {
    return add(buf, bufsize, 0x18, wrecord(record, sizeof(WDSUMTSQoS)));
}
extern "C" int zovQMIWDSProfileRespGetUMTSMinimumQoS(const uint8_t* msg, int len, uint16_t messageId, uint8_t* record) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x18, all(record), raw(record, sizeof(WDSUMTSQoS)));
}

// GPRSRequestedQoS 0x19
extern "C" int zovQMIWDSProfileReqAddGPRSRequestedQoS(uint8_t* buf, int bufsize, const uint8_t* record) {
    return add(buf, bufsize, 0x19, wrecord(record, sizeof(WDSGPRSQoS)));
}
extern "C" int zovQMIWDSProfileRespGetGPRSRequestedQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* record) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x19, all(record), raw(record, sizeof(WDSGPRSQoS)));
}

// GPRSMinimumQoS 0x1A
extern "C" int zovQMIWDSProfileReqAddGPRSMinimumQoS(uint8_t* buf, int bufsize, const uint8_t* record) {
    return add(buf, bufsize, 0x1A, wrecord(record, sizeof(WDSGPRSQoS)));
}
extern "C" int zovQMIWDSProfileRespGetGPRSMinimumQoS(const uint8_t* msg, int len, uint16_t messageId, uint8_t* record) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x1A, all(record), raw(record, sizeof(WDSGPRSQoS)));
}

// Username 0x1B
extern "C" int zovQMIWDSProfileReqAddUsername(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data) {
    return add(buf, bufsize, 0x1B, wbytes(length, data));
}
extern "C" int zovQMIWDSProfileRespGetUsername(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                               uint8_t* data) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x1B, all(length), text(length, data));
}

// Password 0x1C
extern "C" int zovQMIWDSProfileReqAddPassword(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data) {
    return add(buf, bufsize, 0x1C, wbytes(length, data));
}
extern "C" int zovQMIWDSProfileRespGetPassword(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                               uint8_t* data) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x1C, all(length), text(length, data));
}

// AuthenticationPreference 0x1D
extern "C" int zovQMIWDSProfileReqAddAuthenticationPreference(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x1D, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetAuthenticationPreference(const uint8_t* msg, int len, uint16_t messageId,
                                                               uint8_t* value) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x1D, all(value), scalar(value));
}

// IPv4AddressPreference 0x1E
extern "C" int zovQMIWDSProfileReqAddIPv4AddressPreference(uint8_t* buf, int bufsize, uint32_t value) {
    return add(buf, bufsize, 0x1E, w32(value));
}
extern "C" int zovQMIWDSProfileRespGetIPv4AddressPreference(const uint8_t* msg, int len, uint16_t messageId,
                                                            uint32_t* value) {
    return profileGet(msg, len, messageId, kWithRuntime, 0x1E, all(value), scalar(value));
}

// PCSCFAddressUsingPCOFlag 0x1F
extern "C" int zovQMIWDSProfileReqAddPCSCFAddressUsingPCOFlag(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x1F, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetPCSCFAddressUsingPCOFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                               uint8_t* value) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x1F, all(value), scalar(value));
}

// PDPAccessControlFlag 0x20
extern "C" int zovQMIWDSProfileReqAddPDPAccessControlFlag(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x20, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetPDPAccessControlFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                           uint8_t* value) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x20, all(value), scalar(value));
}

// PCSCFAddressUsingDHCPFlag 0x21
extern "C" int zovQMIWDSProfileReqAddPCSCFAddressUsingDHCPFlag(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x21, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetPCSCFAddressUsingDHCPFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                                uint8_t* value) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x21, all(value), scalar(value));
}

// IMCNFlag 0x22
extern "C" int zovQMIWDSProfileReqAddIMCNFlag(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x22, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetIMCNFlag(const uint8_t* msg, int len, uint16_t messageId, uint8_t* value) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x22, all(value), scalar(value));
}

// TFTFilterID1 0x23
extern "C" int zovQMIWDSProfileReqAddTFTFilterID1(uint8_t* buf, int bufsize, const uint8_t* record) {
    return add(buf, bufsize, 0x23, wrecord(record, sizeof(WDSTFTFilter)));
}
extern "C" int zovQMIWDSProfileRespGetTFTFilterID1(const uint8_t* msg, int len, uint16_t messageId, uint8_t* record) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x23, all(record), raw(record, sizeof(WDSTFTFilter)));
}

// TFTFilterID2 0x24
extern "C" int zovQMIWDSProfileReqAddTFTFilterID2(uint8_t* buf, int bufsize, const uint8_t* record) {
    return add(buf, bufsize, 0x24, wrecord(record, sizeof(WDSTFTFilter)));
}
extern "C" int zovQMIWDSProfileRespGetTFTFilterID2(const uint8_t* msg, int len, uint16_t messageId, uint8_t* record) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x24, all(record), raw(record, sizeof(WDSTFTFilter)));
}

// PDPContextNumber 0x25
extern "C" int zovQMIWDSProfileReqAddPDPContextNumber(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x25, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetPDPContextNumber(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* value) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x25, all(value), scalar(value));
}

// PDPContextSecondaryFlag 0x26
extern "C" int zovQMIWDSProfileReqAddPDPContextSecondaryFlag(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x26, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetPDPContextSecondaryFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                              uint8_t* value) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x26, all(value), scalar(value));
}

// PDPContextPrimaryID 0x27
extern "C" int zovQMIWDSProfileReqAddPDPContextPrimaryID(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x27, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetPDPContextPrimaryID(const uint8_t* msg, int len, uint16_t messageId,
                                                          uint8_t* value) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x27, all(value), scalar(value));
}

// PDPContextIPv6Address 0x28
extern "C" int zovQMIWDSProfileReqAddPDPContextIPv6Address(uint8_t* buf, int bufsize, const uint8_t* address) {
    return add(buf, bufsize, 0x28, wrecord(address, kIPv6Size));
}
extern "C" int zovQMIWDSProfileRespGetPDPContextIPv6Address(const uint8_t* msg, int len, uint16_t messageId,
                                                            uint8_t* address) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x28, all(address), raw(address, kIPv6Size));
}

// PrimaryIPv6DNSAddress 0x2B
extern "C" int zovQMIWDSProfileReqAddPrimaryIPv6DNSAddress(uint8_t* buf, int bufsize, const uint8_t* address) {
    return add(buf, bufsize, 0x2B, wrecord(address, kIPv6Size));
}
extern "C" int zovQMIWDSProfileRespGetPrimaryIPv6DNSAddress(const uint8_t* msg, int len, uint16_t messageId,
                                                            uint8_t* address) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x2B, all(address), raw(address, kIPv6Size));
}

// SecondaryIPv6DNSAddress 0x2C
extern "C" int zovQMIWDSProfileReqAddSecondaryIPv6DNSAddress(uint8_t* buf, int bufsize, const uint8_t* address) {
    return add(buf, bufsize, 0x2C, wrecord(address, kIPv6Size));
}
extern "C" int zovQMIWDSProfileRespGetSecondaryIPv6DNSAddress(const uint8_t* msg, int len, uint16_t messageId,
                                                              uint8_t* address) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x2C, all(address), raw(address, kIPv6Size));
}

// IPv4AddressAlloc 0x2D
extern "C" int zovQMIWDSProfileReqAddIPv4AddressAlloc(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x2D, w8(value));
}
extern "C" int zovQMIWDSProfileRespGetIPv4AddressAlloc(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* value) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x2D, all(value), scalar(value));
}

// LTERequestedQoS 0x2E
extern "C" int zovQMIWDSProfileReqAddLTERequestedQoS(uint8_t* buf, int bufsize, const uint8_t* record) {
    return add(buf, bufsize, 0x2E, wrecord(record, sizeof(WDSLTEQoS)));
}
extern "C" int zovQMIWDSProfileRespGetLTERequestedQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                      uint8_t* record) {
    return profileGet(msg, len, messageId, kSettingsOnly, 0x2E, all(record), raw(record, sizeof(WDSLTEQoS)));
}


// ============================================ runtime settings and call --

// GetRuntimeSettings 0x002D (types 0x10 to 0x1E through the profile item parsers)
extern "C" int zovQMIWDSGetRuntimeSettingsReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x002D); }
extern "C" int zovQMIWDSGetRuntimeSettingsReqAddRequestedSettings(uint8_t* buf, int bufsize, uint32_t mask) {
    return add(buf, bufsize, 0x10, w32(mask));
}
extern "C" int zovQMIWDSGetRuntimeSettingsResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x002D);
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetProfileIdentifier(const uint8_t* msg, int len, uint8_t* profileType,
                                                                   uint8_t* profileIndex) {
    return get(msg, len, 0x002D, 0x1F, all(profileType, profileIndex), profileIdentifier(profileType, profileIndex));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetIPv4GatewayAddress(const uint8_t* msg, int len, uint32_t* address) {
    return get(msg, len, 0x002D, 0x20, all(address), scalar(address));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetIPv4SubnetMask(const uint8_t* msg, int len, uint32_t* mask) {
    return get(msg, len, 0x002D, 0x21, all(mask), scalar(mask));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetPCSCFAddressUsingPCOFlag(const uint8_t* msg, int len,
                                                                          uint8_t* flag) {
    return get(msg, len, 0x002D, 0x22, all(flag), scalar(flag));
}
// Item 0x23: count u8, then count IPv4 addresses into the caller's u32 array.
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetPCSCFIPv4ServerAddressList(const uint8_t* msg, int len,
                                                                            uint8_t* count, uint32_t* list) {
    return get(msg, len, 0x002D, 0x23, all(count), [=](Dec& d) {
        uint8_t n = d.u8(0);
        d.put(count, n);
        if (!list) return;
        for (uint8_t i = 0; i < n; ++i) d.put(list + i, d.le32(1 + 4u * i));
    });
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetPCSCFFQDNList(const uint8_t* msg, int len, uint8_t* count,
                                                               WDSNameListEntry* list) {
    return get(msg, len, 0x002D, 0x24, all(count), nameList(count, list));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetIPv6Address(const uint8_t* msg, int len, uint8_t* address,
                                                             uint8_t* prefixLength) {
    return get(msg, len, 0x002D, 0x25, all(address, prefixLength), ipv6WithPrefix(address, prefixLength));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetIPv6GatewayAddress(const uint8_t* msg, int len, uint8_t* address,
                                                                    uint8_t* prefixLength) {
    return get(msg, len, 0x002D, 0x26, all(address, prefixLength), ipv6WithPrefix(address, prefixLength));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetPrimaryIPv6DNSAddress(const uint8_t* msg, int len,
                                                                       uint8_t* address) {
    return get(msg, len, 0x002D, 0x27, all(address), raw(address, kIPv6Size));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetSecondaryIPv6DNSAddress(const uint8_t* msg, int len,
                                                                         uint8_t* address) {
    return get(msg, len, 0x002D, 0x28, all(address), raw(address, kIPv6Size));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetMTU(const uint8_t* msg, int len, uint32_t* mtu) {
    return get(msg, len, 0x002D, 0x29, all(mtu), scalar(mtu));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetDomainNameList(const uint8_t* msg, int len, uint8_t* count,
                                                                WDSNameListEntry* list) {
    return get(msg, len, 0x002D, 0x2A, all(count), nameList(count, list));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetIPfamily(const uint8_t* msg, int len, uint8_t* family) {
    return get(msg, len, 0x002D, 0x2B, all(family), scalar(family));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetIMCNFlag(const uint8_t* msg, int len, uint8_t* flag) {
    return get(msg, len, 0x002D, 0x2C, all(flag), scalar(flag));
}
extern "C" int zovQMIWDSGetRuntimeSettingsRespGetTechnologyName(const uint8_t* msg, int len, uint16_t* name) {
    return get(msg, len, 0x002D, 0x2D, all(name), scalar(name));
}

// SetMIPMode 0x002E
extern "C" int zovQMIWDSSetMIPModeReq(uint8_t* buf, int bufsize, uint8_t mode) {
    return reqTlv(buf, bufsize, 0x002E, w8(mode));
}
extern "C" int zovQMIWDSSetMIPModeResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x002E);
}

// GetMIPMode 0x002F
extern "C" int zovQMIWDSGetMIPModeReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x002F); }
extern "C" int zovQMIWDSGetMIPModeResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* mode) {
    return resp(msg, len, result, 0x002F, all(mode), scalar(mode));
}

// GetDormancyStatus 0x0030
extern "C" int zovQMIWDSGetDormancyStatusReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0030); }
extern "C" int zovQMIWDSGetDormancyStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status) {
    return resp(msg, len, result, 0x0030, all(status), scalar(status));
}

// GetCallDuration 0x0035
extern "C" int zovQMIWDSGetCallDurationReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0035); }
extern "C" int zovQMIWDSGetCallDurationResp(const uint8_t* msg, int len, QmiResult* result, uint64_t* duration) {
    return resp(msg, len, result, 0x0035, all(duration), scalar(duration));
}
extern "C" int zovQMIWDSGetCallDurationRespGetLastCallDuration(const uint8_t* msg, int len, uint64_t* duration) {
    return get(msg, len, 0x0035, 0x10, all(duration), scalar(duration));
}
extern "C" int zovQMIWDSGetCallDurationRespGetActiveDuration(const uint8_t* msg, int len, uint64_t* duration) {
    return get(msg, len, 0x0035, 0x11, all(duration), scalar(duration));
}
extern "C" int zovQMIWDSGetCallDurationRespGetLastCallActiveDuration(const uint8_t* msg, int len,
                                                                     uint64_t* duration) {
    return get(msg, len, 0x0035, 0x12, all(duration), scalar(duration));
}

// GetCurrentDataBearerTechnology 0x0044: item 0x01 is the data bearer record.
extern "C" int zovQMIWDSGetCurrentDataBearerTechnologyReq(uint8_t* buf, int bufsize) {
    return req(buf, bufsize, 0x0044);
}
extern "C" int zovQMIWDSGetCurrentDataBearerTechnologyResp(const uint8_t* msg, int len, QmiResult* result,
                                                           uint8_t* technology, uint32_t* first, uint32_t* second) {
    return resp(msg, len, result, 0x0044, all(technology, first, second), dataBearer(technology, first, second));
}

// GetDefaultProfileNum 0x0049
extern "C" int zovQMIWDSGetDefaultProfileNumReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second) {
    return reqTlv(buf, bufsize, 0x0049, w8(first), w8(second));
}
extern "C" int zovQMIWDSGetDefaultProfileNumResp(const uint8_t* msg, int len, QmiResult* result,
                                                 uint8_t* profileNumber) {
    return resp(msg, len, result, 0x0049, all(profileNumber), scalar(profileNumber));
}

// SetDefaultProfileNum 0x004A
extern "C" int zovQMIWDSSetDefaultProfileNumReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second,
                                                uint8_t profileNumber) {
    return reqTlv(buf, bufsize, 0x004A, w8(first), w8(second), w8(profileNumber));
}
extern "C" int zovQMIWDSSetDefaultProfileNumResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x004A);
}

// SetClientIPFamilyPref 0x004D
extern "C" int zovQMIWDSSetClientIPFamilyPrefReq(uint8_t* buf, int bufsize, uint8_t ipFamily) {
    return reqTlv(buf, bufsize, 0x004D, w8(ipFamily));
}
extern "C" int zovQMIWDSSetClientIPFamilyPrefResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x004D);
}
