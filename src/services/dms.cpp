// DMS, the device management service (service 2): device identity and
// state (reset, event reports, capabilities, identity strings, power state,
// operating mode, time, PRL version, band capability), then UIM PIN,
// personalisation control keys, user lock and service programming code.
//
// Identity strings arrive as the whole value of their item: the length output
// is required and receives the item length, the text output is optional (with
// null only the length is delivered).  PINs and keys travel as a length byte
// followed by that many bytes; a zero length never reads its pointer.
#include "msg/pattern.h"

using namespace zq;

namespace {
// Two u8 fields in a row (power state and battery level, retries counters).
auto pair8(uint8_t* a, uint8_t* b) {
    return [=](Dec& d) {
        d.put(a, d.u8(0));
        d.put(b, d.u8(1));
    };
}

// Three u8 fields in a row (PIN status with its two retries counters, CK status).
auto triple8(uint8_t* a, uint8_t* b, uint8_t* c) {
    return [=](Dec& d) {
        d.put(a, d.u8(0));
        d.put(b, d.u8(1));
        d.put(c, d.u8(2));
    };
}

// The capability item: two u32 and three u8 into the caller's record, then
// as many list bytes as the count says into the list buffer whose pointer
// the caller placed in the record (nothing more when it is null).
void deviceCapabilities(Dec& d, DMSDeviceCapabilities* caps) {
    Dec::Record out = d.record(caps);
    out.put32(offsetof(DMSDeviceCapabilities, capability1), d.le32(0));
    out.put32(offsetof(DMSDeviceCapabilities, capability2), d.le32(4));
    out.put8(offsetof(DMSDeviceCapabilities, capabilityByte1), d.u8(8));
    out.put8(offsetof(DMSDeviceCapabilities, capabilityByte2), d.u8(9));
    uint8_t n = d.u8(10);
    out.put8(offsetof(DMSDeviceCapabilities, listCount), n);
    d.copy(out.ptr(offsetof(DMSDeviceCapabilities, list)), 11, n);
}
// Item 0x10 of the four PIN responses: verify and unblock retries left.
int retriesLeft(const uint8_t* msg, int len, uint16_t id, uint8_t* verifyLeft, uint8_t* unblockLeft) {
    return get(msg, len, id, 0x10, all(verifyLeft, unblockLeft), pair8(verifyLeft, unblockLeft));
}

// A response whose item 0x01 is an identity string.
int textResp(const uint8_t* msg, int len, QmiResult* result, uint16_t id, uint16_t* length, void* data) {
    return resp(msg, len, result, id, all(length), text(length, data));
}
// The two-value PIN requests (UnblockPIN, ChangePIN): pin id, then two
// length-prefixed values, the second length byte right behind the first value.
int twoValueReq(uint8_t* buf, int bufsize, uint16_t id, uint8_t pinId, uint8_t firstLength, const uint8_t* first,
                uint8_t secondLength, const uint8_t* second) {
    return reqTlv(buf, bufsize, id, w8(pinId), w8(firstLength), wbytes(firstLength, first), w8(secondLength),
                  wbytes(secondLength, second));
}
}  // namespace

// ------------------------------------------------ device identity and state --

// Reset 0x0000
extern "C" int zovQMIDMSResetReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0000); }
extern "C" int zovQMIDMSResetResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0000);
}

// SetEventReport 0x0001 (item 0x13 is not offered)
extern "C" int zovQMIDMSSetEventReportReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0001); }
extern "C" int zovQMIDMSSetEventReportReqAddPowerStateReporting(uint8_t* buf, int bufsize, uint8_t mode) {
    return add(buf, bufsize, 0x10, w8(mode));
}
extern "C" int zovQMIDMSSetEventReportReqAddBatteryLevelReportLimits(uint8_t* buf, int bufsize, uint8_t lower,
                                                                    uint8_t upper) {
    return add(buf, bufsize, 0x11, w8(lower), w8(upper));
}
extern "C" int zovQMIDMSSetEventReportReqAddPINStateReporting(uint8_t* buf, int bufsize, uint8_t mode) {
    return add(buf, bufsize, 0x12, w8(mode));
}
extern "C" int zovQMIDMSSetEventReportReqAddOperatingModeReporting(uint8_t* buf, int bufsize, uint8_t mode) {
    return add(buf, bufsize, 0x14, w8(mode));
}
extern "C" int zovQMIDMSSetEventReportReqAddUIMStateReporting(uint8_t* buf, int bufsize, uint8_t mode) {
    return add(buf, bufsize, 0x15, w8(mode));
}
extern "C" int zovQMIDMSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0001);
}

// EventReport 0x0001 (indication)
extern "C" int zovQMIDMSEventReportIND(const uint8_t* msg, int len) { return ind(msg, len, 0x0001); }
extern "C" int zovQMIDMSEventReportINDGetPowerState(const uint8_t* msg, int len, uint8_t* powerState,
                                                   uint8_t* batteryLevel) {
    return get(msg, len, 0x0001, 0x10, all(powerState, batteryLevel), pair8(powerState, batteryLevel));
}
extern "C" int zovQMIDMSEventReportINDGetPIN1Status(const uint8_t* msg, int len, uint8_t* status, uint8_t* retries1,
                                                   uint8_t* retries2) {
    return get(msg, len, 0x0001, 0x11, all(status, retries1, retries2), triple8(status, retries1, retries2));
}
extern "C" int zovQMIDMSEventReportINDGetPIN2Status(const uint8_t* msg, int len, uint8_t* status, uint8_t* retries1,
                                                   uint8_t* retries2) {
    return get(msg, len, 0x0001, 0x12, all(status, retries1, retries2), triple8(status, retries1, retries2));
}
extern "C" int zovQMIDMSEventReportINDGetOperatingMode(const uint8_t* msg, int len, uint8_t* mode) {
    return get(msg, len, 0x0001, 0x14, all(mode), scalar(mode));
}
extern "C" int zovQMIDMSEventReportINDGetUIMState(const uint8_t* msg, int len, uint8_t* state) {
    return get(msg, len, 0x0001, 0x15, all(state), scalar(state));
}

// GetDeviceCap 0x0020
extern "C" int zovQMIDMSGetDeviceCapReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0020); }
extern "C" int zovQMIDMSGetDeviceCapResp(const uint8_t* msg, int len, QmiResult* result,
                                         DMSDeviceCapabilities* caps) {
    return resp(msg, len, result, 0x0020, all(caps), [=](Dec& d) { deviceCapabilities(d, caps); });
}

// GetDeviceMfr 0x0021
extern "C" int zovQMIDMSGetDeviceMfrReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0021); }
extern "C" int zovQMIDMSGetDeviceMfrResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                         void* data) {
    return textResp(msg, len, result, 0x0021, length, data);
}

// GetDeviceModelID 0x0022
extern "C" int zovQMIDMSGetDeviceModelIDReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0022); }
extern "C" int zovQMIDMSGetDeviceModelIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                             void* data) {
    return textResp(msg, len, result, 0x0022, length, data);
}

// GetDeviceRevID 0x0023
extern "C" int zovQMIDMSGetDeviceRevIDReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0023); }
extern "C" int zovQMIDMSGetDeviceRevIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                           void* data) {
    return textResp(msg, len, result, 0x0023, length, data);
}

// GetMSISDN 0x0024
extern "C" int zovQMIDMSGetMSISDNReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0024); }
extern "C" int zovQMIDMSGetMSISDNResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                      void* data) {
    return textResp(msg, len, result, 0x0024, length, data);
}
extern "C" int zovQMIDMSGetMSISDNRespGetMobileID(const uint8_t* msg, int len, uint16_t* length, void* data) {
    return get(msg, len, 0x0024, 0x10, all(length), text(length, data));
}

// GetDeviceSerialNumbers 0x0025 (every serial number is optional)
extern "C" int zovQMIDMSGetDeviceSerialNumbersReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0025); }
extern "C" int zovQMIDMSGetDeviceSerialNumbersResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0025);
}
extern "C" int zovQMIDMSGetDeviceSerialNumbersRespGetESN(const uint8_t* msg, int len, uint16_t* length, void* data) {
    return get(msg, len, 0x0025, 0x10, all(length), text(length, data));
}
extern "C" int zovQMIDMSGetDeviceSerialNumbersRespGetIMEI(const uint8_t* msg, int len, uint16_t* length,
                                                         void* data) {
    return get(msg, len, 0x0025, 0x11, all(length), text(length, data));
}
extern "C" int zovQMIDMSGetDeviceSerialNumbersRespGetMEID(const uint8_t* msg, int len, uint16_t* length,
                                                         void* data) {
    return get(msg, len, 0x0025, 0x12, all(length), text(length, data));
}

// GetPowerState 0x0026
extern "C" int zovQMIDMSGetPowerStateReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0026); }
extern "C" int zovQMIDMSGetPowerStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* powerState,
                                          uint8_t* batteryLevel) {
    return resp(msg, len, result, 0x0026, all(powerState, batteryLevel), pair8(powerState, batteryLevel));
}

// GetDeviceHardwareRev 0x002C
extern "C" int zovQMIDMSGetDeviceHardwareRevReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x002C); }
extern "C" int zovQMIDMSGetDeviceHardwareRevResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                                 void* data) {
    return textResp(msg, len, result, 0x002C, length, data);
}

// GetOperatingMode 0x002D
extern "C" int zovQMIDMSGetOperatingModeReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x002D); }
extern "C" int zovQMIDMSGetOperatingModeResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* mode) {
    return resp(msg, len, result, 0x002D, all(mode), scalar(mode));
}

// SetOperatingMode 0x002E
extern "C" int zovQMIDMSSetOperatingModeReq(uint8_t* buf, int bufsize, uint8_t mode) {
    return reqTlv(buf, bufsize, 0x002E, w8(mode));
}
extern "C" int zovQMIDMSSetOperatingModeResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x002E);
}

// GetTime 0x002F: item 0x01 is a 6-byte count handed over exactly as it
// stands on the wire, followed by a u16.
extern "C" int zovQMIDMSGetTimeReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x002F); }
extern "C" int zovQMIDMSGetTimeResp(const uint8_t* msg, int len, QmiResult* result, uint8_t timeCount[6],
                                    uint16_t* timeField2) {
    return resp(msg, len, result, 0x002F, all(timeCount, timeField2), [=](Dec& d) {
        d.copy(timeCount, 0, 6);
        d.put(timeField2, d.le16(6));
    });
}
extern "C" int zovQMIDMSGetTimeRespGetSystemTimeInMS(const uint8_t* msg, int len, uint64_t* ms) {
    return get(msg, len, 0x002F, 0x10, all(ms), scalar(ms));
}
extern "C" int zovQMIDMSGetTimeRespGetUserTimeInMS(const uint8_t* msg, int len, uint64_t* ms) {
    return get(msg, len, 0x002F, 0x11, all(ms), scalar(ms));
}

// GetPRLVer 0x0030
extern "C" int zovQMIDMSGetPRLVerReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0030); }
extern "C" int zovQMIDMSGetPRLVerResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* version) {
    return resp(msg, len, result, 0x0030, all(version), scalar(version));
}

// GetBandCapability 0x0045
extern "C" int zovQMIDMSGetBandCapabilityReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0045); }
extern "C" int zovQMIDMSGetBandCapabilityResp(const uint8_t* msg, int len, QmiResult* result, uint64_t* bands) {
    return resp(msg, len, result, 0x0045, all(bands), scalar(bands));
}

// SetTime 0x004B
extern "C" int zovQMIDMSSetTimeReq(uint8_t* buf, int bufsize, uint64_t time) {
    return reqTlv(buf, bufsize, 0x004B, w64(time));
}
extern "C" int zovQMIDMSSetTimeReqAddTimeReferenceType(uint8_t* buf, int bufsize, uint32_t type) {
    return add(buf, bufsize, 0x10, w32(type));
}
extern "C" int zovQMIDMSSetTimeResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x004B);
}

// ------------------------------------------ UIM PIN and personalisation --

// UIMSetPINProtection 0x0027
extern "C" int zovQMIDMSUIMSetPINProtectionReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t protection,
                                               uint8_t pinLength, const uint8_t* pin) {
    return reqTlv(buf, bufsize, 0x0027, w8(pinId), w8(protection), w8(pinLength), wbytes(pinLength, pin));
}
extern "C" int zovQMIDMSUIMSetPINProtectionResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0027);
}
extern "C" int zovQMIDMSUIMSetPINProtectionRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                              uint8_t* unblockLeft) {
    return retriesLeft(msg, len, 0x0027, verifyLeft, unblockLeft);
}

// UIMVerifyPIN 0x0028
extern "C" int zovQMIDMSUIMVerifyPINReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t pinLength,
                                        const uint8_t* pin) {
    return reqTlv(buf, bufsize, 0x0028, w8(pinId), w8(pinLength), wbytes(pinLength, pin));
}
extern "C" int zovQMIDMSUIMVerifyPINResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0028);
}
extern "C" int zovQMIDMSUIMVerifyPINRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                       uint8_t* unblockLeft) {
    return retriesLeft(msg, len, 0x0028, verifyLeft, unblockLeft);
}

// UIMUnblockPIN 0x0029
extern "C" int zovQMIDMSUIMUnblockPINReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t keyLength,
                                         const uint8_t* key, uint8_t newPinLength, const uint8_t* newPin) {
    return twoValueReq(buf, bufsize, 0x0029, pinId, keyLength, key, newPinLength, newPin);
}
extern "C" int zovQMIDMSUIMUnblockPINResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0029);
}
extern "C" int zovQMIDMSUIMUnblockPINRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                        uint8_t* unblockLeft) {
    return retriesLeft(msg, len, 0x0029, verifyLeft, unblockLeft);
}

// UIMChangePIN 0x002A
extern "C" int zovQMIDMSUIMChangePINReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t oldPinLength,
                                        const uint8_t* oldPin, uint8_t newPinLength, const uint8_t* newPin) {
    return twoValueReq(buf, bufsize, 0x002A, pinId, oldPinLength, oldPin, newPinLength, newPin);
}
extern "C" int zovQMIDMSUIMChangePINResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x002A);
}
extern "C" int zovQMIDMSUIMChangePINRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                       uint8_t* unblockLeft) {
    return retriesLeft(msg, len, 0x002A, verifyLeft, unblockLeft);
}

// UIMGetPINStatus 0x002B
extern "C" int zovQMIDMSUIMGetPINStatusReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x002B); }
extern "C" int zovQMIDMSUIMGetPINStatusResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x002B);
}
extern "C" int zovQMIDMSUIMGetPINStatusRespGetPIN1Status(const uint8_t* msg, int len, uint8_t* status,
                                                         uint8_t* verifyLeft, uint8_t* unblockLeft) {
    return get(msg, len, 0x002B, 0x11, all(status, verifyLeft, unblockLeft), triple8(status, verifyLeft, unblockLeft));
}
extern "C" int zovQMIDMSUIMGetPINStatusRespGetPIN2Status(const uint8_t* msg, int len, uint8_t* status,
                                                         uint8_t* verifyLeft, uint8_t* unblockLeft) {
    return get(msg, len, 0x002B, 0x12, all(status, verifyLeft, unblockLeft), triple8(status, verifyLeft, unblockLeft));
}

// GetUserLockState 0x0034
extern "C" int zovQMIDMSGetUserLockStateReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0034); }
extern "C" int zovQMIDMSGetUserLockStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* state) {
    return resp(msg, len, result, 0x0034, all(state), scalar(state));
}

// SetUserLockState 0x0035
extern "C" int zovQMIDMSSetUserLockStateReq(uint8_t* buf, int bufsize, uint8_t state, uint32_t lockCode) {
    return reqTlv(buf, bufsize, 0x0035, w8(state), w32(lockCode));
}
extern "C" int zovQMIDMSSetUserLockStateResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0035);
}

// SetUserLockCode 0x0036
extern "C" int zovQMIDMSSetUserLockCodeReq(uint8_t* buf, int bufsize, uint32_t oldCode, uint32_t newCode) {
    return reqTlv(buf, bufsize, 0x0036, w32(oldCode), w32(newCode));
}
extern "C" int zovQMIDMSSetUserLockCodeResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0036);
}

// ValidateServiceProgrammingCode 0x003B
extern "C" int zovQMIDMSValidateServiceProgrammingCodeReq(uint8_t* buf, int bufsize, const uint8_t code[6]) {
    return reqTlv(buf, bufsize, 0x003B, wrecord(code, 6));
}
extern "C" int zovQMIDMSValidateServiceProgrammingCodeResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x003B);
}

// UIMGetICCID 0x003C
extern "C" int zovQMIDMSUIMGetICCIDReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x003C); }
extern "C" int zovQMIDMSUIMGetICCIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                        void* data) {
    return textResp(msg, len, result, 0x003C, length, data);
}

// UIMGetCKStatus 0x0040
extern "C" int zovQMIDMSUIMGetCKStatusReq(uint8_t* buf, int bufsize, uint8_t facility) {
    return reqTlv(buf, bufsize, 0x0040, w8(facility));
}
extern "C" int zovQMIDMSUIMGetCKStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status,
                                           uint8_t* verifyLeft, uint8_t* unblockLeft) {
    return resp(msg, len, result, 0x0040, all(status, verifyLeft, unblockLeft),
                triple8(status, verifyLeft, unblockLeft));
}
extern "C" int zovQMIDMSUIMGetCKStatusRespGetOperationBlockingFacility(const uint8_t* msg, int len,
                                                                       uint8_t* blocking) {
    return get(msg, len, 0x0040, 0x10, all(blocking), scalar(blocking));
}

// UIMSetCKProtection 0x0041
extern "C" int zovQMIDMSUIMSetCKProtectionReq(uint8_t* buf, int bufsize, uint8_t facility, uint8_t state,
                                              uint8_t keyLength, const uint8_t* key) {
    return reqTlv(buf, bufsize, 0x0041, w8(facility), w8(state), w8(keyLength), wbytes(keyLength, key));
}
extern "C" int zovQMIDMSUIMSetCKProtectionResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0041);
}
extern "C" int zovQMIDMSUIMSetCKProtectionRespGetFacilityCKRetryStatus(const uint8_t* msg, int len,
                                                                       uint8_t* retriesLeft) {
    return get(msg, len, 0x0041, 0x10, all(retriesLeft), scalar(retriesLeft));
}

// UIMUnblockCK 0x0042
extern "C" int zovQMIDMSUIMUnblockCKReq(uint8_t* buf, int bufsize, uint8_t facility, uint8_t keyLength,
                                        const uint8_t* key) {
    int r = reqTlv(buf, bufsize, 0x0042, w8(facility), w8(keyLength), wbytes(keyLength, key));
    return r < 0 ? r : r + 1;  // deliberate: reports one byte more than the 12 + n it wrote
}
extern "C" int zovQMIDMSUIMUnblockCKResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0042);
}
extern "C" int zovQMIDMSUIMUnblockCKRespGetFacilityCKRetryStatus(const uint8_t* msg, int len,
                                                                 uint8_t* retriesLeft) {
    return get(msg, len, 0x0042, 0x10, all(retriesLeft), scalar(retriesLeft));
}

// UIMGetIMSI 0x0043
extern "C" int zovQMIDMSUIMGetIMSIReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0043); }
extern "C" int zovQMIDMSUIMGetIMSIResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                       void* data) {
    return textResp(msg, len, result, 0x0043, length, data);
}

// UIMGetState 0x0044
extern "C" int zovQMIDMSUIMGetStateReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0044); }
extern "C" int zovQMIDMSUIMGetStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* state) {
    return resp(msg, len, result, 0x0044, all(state), scalar(state));
}
