// DMS of the simulated modem: identity, state, time and the UIM PIN.
#include "state.h"

namespace zovsim {

namespace {

const char* const kManufacturer = "Zov Simulated Modems";
const char* const kModel = "ZQ-SIM 100";
const char* const kRevision = "ZQSIM.01.00.03";
const char* const kHardware = "1.0";
const char* const kMsisdn = "+15550100200";
const char* const kEsn = "80A1B2C3";
const char* const kImei = "356938035643809";
const char* const kMeid = "A1000012345678";
const char* const kIccid = "8944500102198304826";
const char* const kImsi = "001010123456789";

constexpr uint32_t kRegPower = kDmsRegPower, kRegPin = kDmsRegPin, kRegMode = kDmsRegMode, kRegUim = kDmsRegUim;

Pin& pinById(State& st, uint8_t id) {
    if (id == 1) return st.pin1;
    if (id == 2) return st.pin2;
    throw Fail{kErrInvalidPinId};
}

Tlv retries(const Pin& p) { return {0x10, W().u8(p.left).u8(p.pukLeft)}; }

void pinChanged(State& st) {
    st.indicateRegistered(ZOVQMI_SERVICE_DMS, kRegPin, 0x0001,
                          {{0x11, W().u8(st.pin1.status()).u8(st.pin1.left).u8(st.pin1.pukLeft)}});
}

// Checks a PIN: a wrong one costs a retry (and blocks at zero), a right one
// restores the retries.  Throws the failure with the retries left.
struct PinFail {
    Reply reply;
};
void checkPin(State& st, Pin& p, const std::string& code) {
    if (p.pukLeft == 0) throw PinFail{fail(kErrPinPermanentlyBlocked, {retries(p)})};
    if (p.left == 0) throw PinFail{fail(kErrPinBlocked, {retries(p)})};
    if (code != p.code) {
        --p.left;
        p.verified = false;
        pinChanged(st);
        throw PinFail{fail(p.left == 0 ? kErrPinBlocked : kErrIncorrectPin, {retries(p)})};
    }
    p.left = 3;
}

Reply pinRequest(State& st, const Req& r) {
    if (!st.simPresent) return fail(kErrDeviceNotReady);
    Val v = r.need(0x01);
    Pin& p = pinById(st, v.u8(0));
    try {
        switch (r.id) {
        case 0x0027: {  // UIMSetPINProtection: pin id, enable, pin
            uint8_t enable = v.u8(1);
            checkPin(st, p, v.str(3, v.u8(2)));
            if (bool(enable) == p.enabled) return fail(kErrNoEffect, {retries(p)});
            p.enabled = enable != 0;
            p.verified = true;
            break;
        }
        case 0x0028:  // UIMVerifyPIN: pin id, pin
            checkPin(st, p, v.str(2, v.u8(1)));
            p.verified = true;
            break;
        case 0x0029: {  // UIMUnblockPIN: pin id, unblock key, new pin
            uint8_t klen = v.u8(1);
            std::string key = v.str(2, klen);
            std::string pin = v.str(3 + klen, v.u8(2 + klen));
            if (p.pukLeft == 0) return fail(kErrPinPermanentlyBlocked, {retries(p)});
            if (key != p.puk) {
                --p.pukLeft;
                pinChanged(st);
                return fail(p.pukLeft == 0 ? kErrPinPermanentlyBlocked : kErrIncorrectPin, {retries(p)});
            }
            if (pin.size() < 4 || pin.size() > 8) return fail(kErrInvalidArgument, {retries(p)});
            p.code = pin;
            p.left = 3;
            p.pukLeft = 10;
            p.verified = true;
            break;
        }
        case 0x002A: {  // UIMChangePIN: pin id, old pin, new pin
            uint8_t olen = v.u8(1);
            std::string old = v.str(2, olen);
            std::string pin = v.str(3 + olen, v.u8(2 + olen));
            checkPin(st, p, old);
            if (pin.size() < 4 || pin.size() > 8) return fail(kErrInvalidArgument, {retries(p)});
            p.code = pin;
            p.verified = true;
            break;
        }
        }
    } catch (PinFail& f) {
        return f.reply;
    }
    pinChanged(st);
    return ok({retries(p)});
}

}  // namespace

uint8_t uimState(const State& st) { return st.simPresent ? 0x00 : 0x02; }

void simChanged(State& st) {
    st.indicateRegistered(ZOVQMI_SERVICE_DMS, kRegUim, 0x0001, {{0x15, W().u8(uimState(st))}});
    if (st.simPresent) pinChanged(st);
}

Reply handleDms(State& st, const Req& r) {
    Client& me = *st.client(ZOVQMI_SERVICE_DMS, r.client);
    switch (r.id) {
    case 0x0000:  // Reset: this client's registrations are dropped
        me.reg.erase(ZOVQMI_SERVICE_DMS);
        return ok();
    case 0x0001: {  // SetEventReport
        uint32_t reg = 0;
        Val v;
        if (r.has(0x10, &v) && v.u8(0)) reg |= kRegPower;
        if (r.has(0x12, &v) && v.u8(0)) reg |= kRegPin;
        if (r.has(0x14, &v) && v.u8(0)) reg |= kRegMode;
        if (r.has(0x15, &v) && v.u8(0)) reg |= kRegUim;
        me.reg[ZOVQMI_SERVICE_DMS] = reg;
        return ok();
    }
    case 0x0020:  // GetDeviceCap: rates, data service (CS and PS), SIM supported, radios (UMTS, LTE)
        return ok({{0x01, W().u32(50000000).u32(150000000).u8(3).u8(2).u8(2).u8(5).u8(8)}});
    case 0x0021: return ok({{0x01, W().str(kManufacturer)}});
    case 0x0022: return ok({{0x01, W().str(kModel)}});
    case 0x0023: return ok({{0x01, W().str(kRevision)}});
    case 0x0024:  // GetMSISDN: needs the SIM
        if (!st.simReady()) return fail(kErrDeviceNotReady);
        return ok({{0x01, W().str(kMsisdn)}, {0x10, W().str(kImsi)}});
    case 0x0025: return ok({{0x10, W().str(kEsn)}, {0x11, W().str(kImei)}, {0x12, W().str(kMeid)}});
    case 0x0026: return ok({{0x01, W().u8(0x00).u8(100)}});  // external power, battery full
    case 0x002C: return ok({{0x01, W().str(kHardware)}});
    case 0x002D: return ok({{0x01, W().u8(st.operatingMode)}});
    case 0x002E: {  // SetOperatingMode: 0 online .. 7, and 4 (reset) comes back online
        uint8_t mode = r.need(0x01).u8(0);
        if (mode > 7) return fail(kErrInvalidArgument);
        if (mode == st.operatingMode) return ok();
        st.operatingMode = mode == 4 ? 0 : mode;
        st.indicateRegistered(ZOVQMI_SERVICE_DMS, kRegMode, 0x0001, {{0x14, W().u8(st.operatingMode)}});
        servingSystemChanged(st);
        if (!st.online()) endCalls(st, kEndNoService, 1, 3);
        return ok();
    }
    case 0x002F: {  // GetTime: 1.25 ms units since 1980-01-06 in 6 bytes, source 1
        uint64_t ms = st.nowMs();
        uint64_t gps = ms > 315964800000ull ? ms - 315964800000ull : 0;
        uint64_t count = gps * 4 / 5;
        W t;
        for (int i = 0; i < 6; ++i) t.u8(uint32_t(count >> (8 * i)));
        return ok({{0x01, t.u16(1)}, {0x10, W().u64(ms)}, {0x11, W().u64(ms)}});
    }
    case 0x0030: return ok({{0x01, W().u16(1)}});  // GetPRLVer
    case 0x0045: return ok({{0x01, W().u64(0x00000000000C0180ull)}});  // GetBandCapability
    case 0x004B: {  // SetTime: the user time in ms
        uint64_t ms = r.need(0x01).u64(0);
        st.timeOffsetMs = int64_t(ms) - int64_t(st.nowMs() - st.timeOffsetMs);
        return ok();
    }
    case 0x0027: case 0x0028: case 0x0029: case 0x002A:
        return pinRequest(st, r);
    case 0x002B:  // UIMGetPINStatus: only with a SIM in the slot
        if (!st.simPresent) return fail(kErrDeviceNotReady);
        return ok({{0x11, W().u8(st.pin1.status()).u8(st.pin1.left).u8(st.pin1.pukLeft)},
                   {0x12, W().u8(st.pin2.status()).u8(st.pin2.left).u8(st.pin2.pukLeft)}});
    case 0x0034: return ok({{0x01, W().u8(st.userLock)}});
    case 0x0035: {  // SetUserLockState: state, lock code
        Val v = r.need(0x01);
        if (v.u32(1) != st.userLockCode) return fail(kErrIncorrectPin);
        st.userLock = v.u8(0);
        return ok();
    }
    case 0x0036: {  // SetUserLockCode: old code, new code
        Val v = r.need(0x01);
        if (v.u32(0) != st.userLockCode) return fail(kErrIncorrectPin);
        st.userLockCode = v.u32(4);
        return ok();
    }
    case 0x003B:  // ValidateServiceProgrammingCode: "000000"
        return r.need(0x01).str(0, 6) == "000000" ? ok() : fail(kErrIncorrectPin);
    case 0x003C:  // UIMGetICCID
        if (!st.simPresent) return fail(kErrDeviceNotReady);
        return ok({{0x01, W().str(kIccid)}});
    case 0x0040:  // UIMGetCKStatus: every facility is deactivated
        r.need(0x01).u8(0);
        return ok({{0x01, W().u8(0).u8(3).u8(10)}});
    case 0x0043:
        if (!st.simReady()) return fail(kErrDeviceNotReady);
        return ok({{0x01, W().str(kImsi)}});
    case 0x0044: return ok({{0x01, W().u8(uimState(st))}});  // UIMGetState: initialised or absent
    default:
        return fail(kErrInvalidQmiCommand);
    }
}

}  // namespace zovsim
