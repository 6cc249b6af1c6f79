// CTL, the control service (service 0): client ids, versions, data format,
// instance id, synchronisation and power-save reporting.
//
// CTL messages carry the 6-byte control header with a one-byte transaction
// id; their parsers read the id and TLV-area length from that header instead
// of walking the buffer.
#include "msg/pattern.h"

using namespace zq;

namespace {
constexpr Header C = kControl;

// A version list: count byte at `off`, then count 5-byte entries (service
// type, major, minor) decoded into the caller's 5-byte records.
void versionList(Dec& d, size_t off, uint8_t* count, CTLVersionEntry* list) {
    uint8_t n = d.u8(off);
    d.put(count, n);
    if (!list) return;
    Dec::Record out = d.record(list);
    for (uint8_t i = 0; i < n; ++i) {
        size_t w = off + 1 + 5u * i;
        out.put8(5u * i, d.u8(w));
        out.put16(5u * i + 1, d.le16(w + 1));
        out.put16(5u * i + 3, d.le16(w + 3));
    }
}

// The client id pair of GetClientID, ReleaseClientID and the two indications.
auto clientIdPair(uint8_t* serviceType, uint8_t* clientId) {
    return [=](Dec& d) {
        d.put(serviceType, d.u8(0));
        d.put(clientId, d.u8(1));
    };
}
}  // namespace

// SetInstanceID 0x0020
extern "C" int zovQMICTLSetInstanceIDReq(uint8_t* buf, int bufsize, uint8_t instanceId) {
    return reqTlv<C>(buf, bufsize, 0x0020, w8(instanceId));
}
extern "C" int zovQMICTLSetInstanceIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* assignedId) {
    return resp<C>(msg, len, result, 0x0020, all(assignedId), scalar(assignedId));
}

// GetVersionInfo 0x0021
extern "C" int zovQMICTLGetVersionInfoReq(uint8_t* buf, int bufsize) { return req<C>(buf, bufsize, 0x0021); }
extern "C" int zovQMICTLGetVersionInfoResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                           CTLVersionEntry* list) {
    return resp<C>(msg, len, result, 0x0021, all(count), [=](Dec& d) { versionList(d, 0, count, list); });
}
// Item 0x10: label length, label, then a version list behind the label.
extern "C" int zovQMICTLGetVersionInfoRespGetAddendumVersionList(const uint8_t* msg, int len, uint8_t* labelLength,
                                                                 uint8_t* label, uint8_t* count,
                                                                 CTLVersionEntry* list) {
    return get<C>(msg, len, 0x0021, 0x10, all(labelLength, count), [=](Dec& d) {
        uint8_t n = d.u8(0);
        d.put(labelLength, n);
        d.copy(label, 1, n);
        versionList(d, 1u + n, count, list);
    });
}

// GetClientID 0x0022
extern "C" int zovQMICTLGetClientIDReq(uint8_t* buf, int bufsize, uint8_t serviceType) {
    return reqTlv<C>(buf, bufsize, 0x0022, w8(serviceType));
}
extern "C" int zovQMICTLGetClientIDResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* serviceType,
                                        uint8_t* clientId) {
    return resp<C>(msg, len, result, 0x0022, all(serviceType, clientId), clientIdPair(serviceType, clientId));
}

// ReleaseClientID 0x0023
extern "C" int zovQMICTLReleaseClientIDReq(uint8_t* buf, int bufsize, uint8_t serviceType, uint8_t clientId) {
    return reqTlv<C>(buf, bufsize, 0x0023, w8(serviceType), w8(clientId));
}
extern "C" int zovQMICTLReleaseClientIDResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* serviceType,
                                            uint8_t* clientId) {
    return resp<C>(msg, len, result, 0x0023, all(serviceType, clientId), clientIdPair(serviceType, clientId));
}

// RevokeClientID 0x0024 and InvalidClientID 0x0025 (indications)
extern "C" int zovQMICTLRevokeClientIDIND(const uint8_t* msg, int len, uint8_t* serviceType, uint8_t* clientId) {
    return ind<C>(msg, len, 0x0024, all(serviceType, clientId), clientIdPair(serviceType, clientId));
}
extern "C" int zovQMICTLInvalidClientIDIND(const uint8_t* msg, int len, uint8_t* serviceType, uint8_t* clientId) {
    return ind<C>(msg, len, 0x0025, all(serviceType, clientId), clientIdPair(serviceType, clientId));
}

// SetDataFormat 0x0026
extern "C" int zovQMICTLSetDataFormatReq(uint8_t* buf, int bufsize, uint8_t dataFormat) {
    return reqTlv<C>(buf, bufsize, 0x0026, w8(dataFormat));
}
extern "C" int zovQMICTLSetDataFormatReqAddUnderlyingLinkLayerProtocol(uint8_t* buf, int bufsize, uint16_t protocol) {
    return add<C>(buf, bufsize, 0x10, w16(protocol));
}
extern "C" int zovQMICTLSetDataFormatResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp<C>(msg, len, result, 0x0026);
}
extern "C" int zovQMICTLSetDataFormatRespGetUnderlyingLinkLayerProtocol(const uint8_t* msg, int len,
                                                                        uint16_t* protocol) {
    return get<C>(msg, len, 0x0026, 0x10, all(protocol), scalar(protocol));
}

// Sync 0x0027 (request and indication)
extern "C" int zovQMICTLSyncReq(uint8_t* buf, int bufsize) { return req<C>(buf, bufsize, 0x0027); }
extern "C" int zovQMICTLSyncResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp<C>(msg, len, result, 0x0027);
}
extern "C" int zovQMICTLSyncIND(const uint8_t* msg, int len) { return ind<C>(msg, len, 0x0027); }

// RegPwrSaveMode 0x0028 and the PwrSaveMode indication
extern "C" int zovQMICTLRegPwrSaveModeReq(uint8_t* buf, int bufsize, uint8_t value) {
    return reqTlv<C>(buf, bufsize, 0x0028, w8(value));
}
extern "C" int zovQMICTLRegPwrSaveModeResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp<C>(msg, len, result, 0x0028);
}
extern "C" int zovQMICTLPwrSaveModeIND(const uint8_t* msg, int len) { return ind<C>(msg, len, 0x0028); }
extern "C" int zovQMICTLPwrSaveModeINDGetPowerSaveStateReport(const uint8_t* msg, int len, uint32_t* first,
                                                              uint32_t* second) {
    return get<C>(msg, len, 0x0028, 0x10, all(first, second), [=](Dec& d) {
        d.put(first, d.le32(0));
        d.put(second, d.le32(4));
    });
}

// ConfigPwrSaveSettings 0x0029
extern "C" int zovQMICTLConfigPwrSaveSettingsReq(uint8_t* buf, int bufsize, uint32_t powerSaveState,
                                                 uint8_t serviceType) {
    return reqTlv<C>(buf, bufsize, 0x0029, w32(powerSaveState), w8(serviceType));
}
extern "C" int zovQMICTLConfigPwrSaveSettingsReqAddPermittedIndicationSet(uint8_t* buf, int bufsize, uint16_t length,
                                                                          const uint8_t* data) {
    return add<C>(buf, bufsize, 0x11, wbytes(length, data));
}
extern "C" int zovQMICTLConfigPwrSaveSettingsResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp<C>(msg, len, result, 0x0029);
}

// SetPwrSaveMode 0x002A
extern "C" int zovQMICTLSetPwrSaveModeReq(uint8_t* buf, int bufsize, uint32_t powerSaveMode) {
    return reqTlv<C>(buf, bufsize, 0x002A, w32(powerSaveMode));
}
extern "C" int zovQMICTLSetPwrSaveModeResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp<C>(msg, len, result, 0x002A);
}

// GetPwrSaveMode 0x002B
extern "C" int zovQMICTLGetPwrSaveModeReq(uint8_t* buf, int bufsize) { return req<C>(buf, bufsize, 0x002B); }
extern "C" int zovQMICTLGetPwrSaveModeResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* powerSaveMode) {
    return resp<C>(msg, len, result, 0x002B, all(powerSaveMode), scalar(powerSaveMode));
}
