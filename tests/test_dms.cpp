// DMS, the device management service.
#include <cstddef>

#include "testutil.h"

using namespace t;

// The capability record holds a native pointer: 15 bytes on the 32-bit target.
static_assert(sizeof(DMSDeviceCapabilities) == 11 + sizeof(void*), "capability record size");
static_assert(offsetof(DMSDeviceCapabilities, capability1) == 0, "capability1 offset");
static_assert(offsetof(DMSDeviceCapabilities, capability2) == 4, "capability2 offset");
static_assert(offsetof(DMSDeviceCapabilities, capabilityByte1) == 8, "capabilityByte1 offset");
static_assert(offsetof(DMSDeviceCapabilities, capabilityByte2) == 9, "capabilityByte2 offset");
static_assert(offsetof(DMSDeviceCapabilities, listCount) == 10, "listCount offset");
static_assert(offsetof(DMSDeviceCapabilities, list) == 11, "list offset");

namespace {

int size(const Bytes& b) { return int(b.size()); }

// ------------------------------------------------------------- requests --

TEST(DmsRequests, ResetNeedsSevenBytesAndWritesTheHeader) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIDMSResetReq(buf.data(), 6), -1);
    EXPECT_EQ(buf, buffer(16));
    EXPECT_EQ(zovQMIDMSResetReq(buf.data(), 7), 7);
    EXPECT_EQ(head(buf, 8), cat({{0x00}, lastTx(), {0x00, 0x00, 0x00, 0x00, 0xEE}}));
}

struct HeaderOnly {
    const char* name;
    int (*build)(uint8_t*, int);
    uint16_t id;
};

TEST(DmsRequests, EveryHeaderOnlyRequestWritesSevenBytes) {
    const HeaderOnly requests[] = {
        {"Reset", zovQMIDMSResetReq, 0x0000},
        {"SetEventReport", zovQMIDMSSetEventReportReq, 0x0001},
        {"GetDeviceCap", zovQMIDMSGetDeviceCapReq, 0x0020},
        {"GetDeviceMfr", zovQMIDMSGetDeviceMfrReq, 0x0021},
        {"GetDeviceModelID", zovQMIDMSGetDeviceModelIDReq, 0x0022},
        {"GetDeviceRevID", zovQMIDMSGetDeviceRevIDReq, 0x0023},
        {"GetMSISDN", zovQMIDMSGetMSISDNReq, 0x0024},
        {"GetDeviceSerialNumbers", zovQMIDMSGetDeviceSerialNumbersReq, 0x0025},
        {"GetPowerState", zovQMIDMSGetPowerStateReq, 0x0026},
        {"UIMGetPINStatus", zovQMIDMSUIMGetPINStatusReq, 0x002B},
        {"GetDeviceHardwareRev", zovQMIDMSGetDeviceHardwareRevReq, 0x002C},
        {"GetOperatingMode", zovQMIDMSGetOperatingModeReq, 0x002D},
        {"GetTime", zovQMIDMSGetTimeReq, 0x002F},
        {"GetPRLVer", zovQMIDMSGetPRLVerReq, 0x0030},
        {"GetUserLockState", zovQMIDMSGetUserLockStateReq, 0x0034},
        {"UIMGetICCID", zovQMIDMSUIMGetICCIDReq, 0x003C},
        {"UIMGetIMSI", zovQMIDMSUIMGetIMSIReq, 0x0043},
        {"UIMGetState", zovQMIDMSUIMGetStateReq, 0x0044},
        {"GetBandCapability", zovQMIDMSGetBandCapabilityReq, 0x0045},
    };
    for (const HeaderOnly& r : requests) {
        SCOPED_TRACE(r.name);
        Bytes buf = buffer(16);
        EXPECT_EQ(r.build(buf.data(), 6), -1);
        EXPECT_EQ(buf, buffer(16));
        EXPECT_EQ(r.build(nullptr, 7), -1);
        EXPECT_EQ(r.build(buf.data(), 7), 7);
        EXPECT_EQ(head(buf, 8), cat({reqHeader(r.id, 0), {0xEE}}));
    }
}

struct FixedRequest {
    const char* name;
    int (*build)(uint8_t*, int);
    Bytes value;  // of item 0x01
    uint16_t id;
};

int setOperatingMode(uint8_t* b, int n) { return zovQMIDMSSetOperatingModeReq(b, n, 0x05); }
int setTime(uint8_t* b, int n) { return zovQMIDMSSetTimeReq(b, n, 0x0102030405060708ull); }
int setUserLockState(uint8_t* b, int n) { return zovQMIDMSSetUserLockStateReq(b, n, 0x01, 0xA1B2C3D4); }
int setUserLockCode(uint8_t* b, int n) { return zovQMIDMSSetUserLockCodeReq(b, n, 0x11223344, 0x55667788); }
const uint8_t kCode[6] = {'1', '2', '3', '4', '5', '6'};
int validateCode(uint8_t* b, int n) { return zovQMIDMSValidateServiceProgrammingCodeReq(b, n, kCode); }
int getCKStatus(uint8_t* b, int n) { return zovQMIDMSUIMGetCKStatusReq(b, n, 0x03); }

TEST(DmsRequests, EveryFixedRequestWritesItsItemAndRefusesOneByteLess) {
    const FixedRequest requests[] = {
        {"SetOperatingMode", setOperatingMode, {0x05}, 0x002E},
        {"SetTime", setTime, le64(0x0102030405060708ull), 0x004B},
        {"SetUserLockState", setUserLockState, cat({{0x01}, le32(0xA1B2C3D4)}), 0x0035},
        {"SetUserLockCode", setUserLockCode, cat({le32(0x11223344), le32(0x55667788)}), 0x0036},
        {"ValidateServiceProgrammingCode", validateCode, str("123456"), 0x003B},
        {"UIMGetCKStatus", getCKStatus, {0x03}, 0x0040},
    };
    for (const FixedRequest& r : requests) {
        SCOPED_TRACE(r.name);
        int total = 10 + size(r.value);
        Bytes buf = buffer(32);
        EXPECT_EQ(r.build(buf.data(), total - 1), -1);
        EXPECT_EQ(buf, buffer(32));
        EXPECT_EQ(r.build(nullptr, total), -1);
        EXPECT_EQ(r.build(buf.data(), total), total);
        EXPECT_EQ(head(buf, size_t(total) + 1),
                  cat({reqHeader(r.id, uint16_t(3 + r.value.size())), tlv(0x01, r.value), {0xEE}}));
    }
}

TEST(DmsRequests, SetOperatingModeNeedsElevenBytes) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIDMSSetOperatingModeReq(buf.data(), 10, 0x04), -1);
    EXPECT_EQ(buf, buffer(16));
    EXPECT_EQ(zovQMIDMSSetOperatingModeReq(buf.data(), 11, 0x04), 11);
    EXPECT_EQ(head(buf, 12), cat({reqHeader(0x002E, 4), {0x01, 0x01, 0x00, 0x04, 0xEE}}));
}

TEST(DmsRequests, SetTimeWritesLowWordFirst) {
    Bytes buf = buffer(20);
    EXPECT_EQ(zovQMIDMSSetTimeReq(buf.data(), 18, (uint64_t(1) << 32) | 2), 18);
    EXPECT_EQ(head(buf, 19), cat({reqHeader(0x004B, 11), {0x01, 0x08, 0x00},
                                  {0x02, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00}, {0xEE}}));
}

TEST(DmsRequests, SetTimeAddsTheReferenceType) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIDMSSetTimeReq(buf.data(), 32, 7), 18);
    EXPECT_EQ(zovQMIDMSSetTimeReqAddTimeReferenceType(buf.data(), 32, 0x01020304), 25);
    EXPECT_EQ(head(buf, 26), cat({reqHeader(0x004B, 18), tlv(0x01, le64(7)), tlv(0x10, le32(0x01020304)), {0xEE}}));
    EXPECT_EQ(zovQMIDMSSetTimeReqAddTimeReferenceType(buf.data(), 31, 1), -2);
    EXPECT_EQ(zovQMIDMSSetTimeReqAddTimeReferenceType(nullptr, 32, 1), -1);
}

TEST(DmsRequests, SetEventReportItemsAppendInCallOrder) {
    Bytes buf = buffer(48);
    ASSERT_EQ(zovQMIDMSSetEventReportReq(buf.data(), 48), 7);
    EXPECT_EQ(zovQMIDMSSetEventReportReqAddPowerStateReporting(buf.data(), 48, 0x01), 11);
    EXPECT_EQ(zovQMIDMSSetEventReportReqAddBatteryLevelReportLimits(buf.data(), 48, 0x0A, 0x5A), 16);
    EXPECT_EQ(zovQMIDMSSetEventReportReqAddPINStateReporting(buf.data(), 48, 0x02), 20);
    EXPECT_EQ(zovQMIDMSSetEventReportReqAddOperatingModeReporting(buf.data(), 48, 0x03), 24);
    EXPECT_EQ(zovQMIDMSSetEventReportReqAddUIMStateReporting(buf.data(), 48, 0x04), 28);
    EXPECT_EQ(head(buf, 29), cat({reqHeader(0x0001, 21), tlv(0x10, {0x01}), tlv(0x11, {0x0A, 0x5A}),
                                  tlv(0x12, {0x02}), tlv(0x14, {0x03}), tlv(0x15, {0x04}), {0xEE}}));
}

TEST(DmsRequests, SetEventReportItemsRefuseNullBufferAndNoRoom) {
    using Add1 = int (*)(uint8_t*, int, uint8_t);
    const Add1 adds[] = {zovQMIDMSSetEventReportReqAddPowerStateReporting,
                         zovQMIDMSSetEventReportReqAddPINStateReporting,
                         zovQMIDMSSetEventReportReqAddOperatingModeReporting,
                         zovQMIDMSSetEventReportReqAddUIMStateReporting};
    Bytes buf = buffer(16);
    ASSERT_EQ(zovQMIDMSSetEventReportReq(buf.data(), 16), 7);
    const Bytes before = buf;
    for (Add1 a : adds) {
        EXPECT_EQ(a(nullptr, 16, 1), -1);
        EXPECT_EQ(a(buf.data(), 10, 1), -2);
    }
    EXPECT_EQ(zovQMIDMSSetEventReportReqAddBatteryLevelReportLimits(nullptr, 16, 1, 2), -1);
    EXPECT_EQ(zovQMIDMSSetEventReportReqAddBatteryLevelReportLimits(buf.data(), 11, 1, 2), -2);
    EXPECT_EQ(buf, before);
    // Exactly the room needed is enough.
    EXPECT_EQ(zovQMIDMSSetEventReportReqAddBatteryLevelReportLimits(buf.data(), 12, 1, 2), 12);
}

// ------------------------------------------------- PIN and key requests --

const Bytes kPin = {'1', '2', '3', '4'};
const Bytes kKey8 = {'8', '7', '6', '5', '4', '3', '2', '1'};

TEST(DmsPinRequests, VerifyPINWritesIdLengthAndPin) {
    Bytes buf = buffer(24);
    EXPECT_EQ(zovQMIDMSUIMVerifyPINReq(buf.data(), 15, 1, 4, kPin.data()), -1);
    EXPECT_EQ(buf, buffer(24));
    EXPECT_EQ(zovQMIDMSUIMVerifyPINReq(buf.data(), 16, 1, 4, kPin.data()), 16);
    EXPECT_EQ(head(buf, 17), cat({reqHeader(0x0028, 9), {0x01, 0x06, 0x00, 0x01, 0x04}, kPin, {0xEE}}));
    EXPECT_EQ(zovQMIDMSUIMVerifyPINReq(nullptr, 16, 1, 4, kPin.data()), -1);
    EXPECT_EQ(zovQMIDMSUIMVerifyPINReq(buf.data(), 16, 1, 4, nullptr), -1);
}

TEST(DmsPinRequests, SetPINProtectionWithEmptyNullPinWritesThirteenBytes) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIDMSUIMSetPINProtectionReq(buf.data(), 13, 2, 1, 0, nullptr), 13);
    EXPECT_EQ(head(buf, 14), cat({reqHeader(0x0027, 6), tlv(0x01, {0x02, 0x01, 0x00}), {0xEE}}));
}

TEST(DmsPinRequests, SetPINProtectionWritesIdSettingLengthAndPin) {
    Bytes buf = buffer(24);
    EXPECT_EQ(zovQMIDMSUIMSetPINProtectionReq(buf.data(), 16, 1, 1, 4, kPin.data()), -1);
    EXPECT_EQ(buf, buffer(24));
    EXPECT_EQ(zovQMIDMSUIMSetPINProtectionReq(buf.data(), 3, 1, 1, 4, nullptr), -1);
    EXPECT_EQ(zovQMIDMSUIMSetPINProtectionReq(buf.data(), 17, 1, 1, 4, nullptr), -1);
    EXPECT_EQ(zovQMIDMSUIMSetPINProtectionReq(nullptr, 17, 1, 1, 4, kPin.data()), -1);
    EXPECT_EQ(buf, buffer(24));
    EXPECT_EQ(zovQMIDMSUIMSetPINProtectionReq(buf.data(), 17, 1, 0, 4, kPin.data()), 17);
    EXPECT_EQ(head(buf, 18), cat({reqHeader(0x0027, 10), tlv(0x01, cat({{0x01, 0x00, 0x04}, kPin})), {0xEE}}));
}

TEST(DmsPinRequests, UnblockPINPutsTheNewPinLengthRightBehindTheKey) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIDMSUIMUnblockPINReq(buf.data(), 24, 1, 8, kKey8.data(), 4, kPin.data()), -1);
    EXPECT_EQ(buf, buffer(32));
    EXPECT_EQ(zovQMIDMSUIMUnblockPINReq(buf.data(), 25, 1, 8, kKey8.data(), 4, kPin.data()), 25);
    EXPECT_EQ(buf[20], 0x04);
    EXPECT_EQ(head(buf, 26), cat({reqHeader(0x0029, 18), tlv(0x01, cat({{0x01, 0x08}, kKey8, {0x04}, kPin})), {0xEE}}));
    EXPECT_EQ(zovQMIDMSUIMUnblockPINReq(buf.data(), 25, 1, 8, nullptr, 4, kPin.data()), -1);
    EXPECT_EQ(zovQMIDMSUIMUnblockPINReq(buf.data(), 25, 1, 8, kKey8.data(), 4, nullptr), -1);
    EXPECT_EQ(zovQMIDMSUIMUnblockPINReq(nullptr, 25, 1, 8, kKey8.data(), 4, kPin.data()), -1);
}

TEST(DmsPinRequests, ChangePINWritesOldThenNewPin) {
    Bytes buf = buffer(32);
    const Bytes newPin = {'9', '8', '7', '6', '5'};
    EXPECT_EQ(zovQMIDMSUIMChangePINReq(buf.data(), 21, 2, 4, kPin.data(), 5, newPin.data()), -1);
    EXPECT_EQ(buf, buffer(32));
    EXPECT_EQ(zovQMIDMSUIMChangePINReq(buf.data(), 22, 2, 4, kPin.data(), 5, newPin.data()), 22);
    EXPECT_EQ(head(buf, 23),
              cat({reqHeader(0x002A, 15), tlv(0x01, cat({{0x02, 0x04}, kPin, {0x05}, newPin})), {0xEE}}));
    EXPECT_EQ(zovQMIDMSUIMChangePINReq(buf.data(), 22, 2, 4, nullptr, 5, newPin.data()), -1);
    EXPECT_EQ(zovQMIDMSUIMChangePINReq(buf.data(), 22, 2, 4, kPin.data(), 5, nullptr), -1);
    EXPECT_EQ(zovQMIDMSUIMChangePINReq(nullptr, 22, 2, 4, kPin.data(), 5, newPin.data()), -1);
}

TEST(DmsPinRequests, TwoValueRequestsWithBothLengthsZeroReadNoPointer) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIDMSUIMChangePINReq(buf.data(), 13, 1, 0, nullptr, 0, nullptr), 13);
    EXPECT_EQ(head(buf, 14), cat({reqHeader(0x002A, 6), tlv(0x01, {0x01, 0x00, 0x00}), {0xEE}}));
    EXPECT_EQ(zovQMIDMSUIMUnblockPINReq(buf.data(), 13, 1, 0, nullptr, 0, nullptr), 13);
    EXPECT_EQ(head(buf, 14), cat({reqHeader(0x0029, 6), tlv(0x01, {0x01, 0x00, 0x00}), {0xEE}}));
}

TEST(DmsPinRequests, LengthArgumentsAreTakenAsTheirLowEightBits) {
    Bytes buf = buffer(24);
    int length = 0x104;  // a caller's wider length: only its low byte, 4, is used
    EXPECT_EQ(zovQMIDMSUIMVerifyPINReq(buf.data(), 16, 1, uint8_t(length), kPin.data()), 16);
    EXPECT_EQ(head(buf, 17), cat({reqHeader(0x0028, 9), tlv(0x01, cat({{0x01, 0x04}, kPin})), {0xEE}}));
}

TEST(DmsPinRequests, SetCKProtectionWritesFacilityStateLengthAndKey) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIDMSUIMSetCKProtectionReq(buf.data(), 20, 3, 0, 8, kKey8.data()), -1);
    EXPECT_EQ(buf, buffer(32));
    EXPECT_EQ(zovQMIDMSUIMSetCKProtectionReq(buf.data(), 21, 3, 0, 8, nullptr), -1);
    EXPECT_EQ(zovQMIDMSUIMSetCKProtectionReq(nullptr, 21, 3, 0, 8, kKey8.data()), -1);
    EXPECT_EQ(zovQMIDMSUIMSetCKProtectionReq(buf.data(), 21, 3, 0, 8, kKey8.data()), 21);
    EXPECT_EQ(head(buf, 22), cat({reqHeader(0x0041, 14), tlv(0x01, cat({{0x03, 0x00, 0x08}, kKey8})), {0xEE}}));
    EXPECT_EQ(zovQMIDMSUIMSetCKProtectionReq(buf.data(), 13, 3, 1, 0, nullptr), 13);
}

TEST(DmsPinRequests, UnblockCKReturnsOneByteMoreThanItWrites) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIDMSUIMUnblockCKReq(buf.data(), 19, 3, 8, kKey8.data()), -1);
    EXPECT_EQ(buf, buffer(32));
    // 20 bytes are enough: it writes 12 + 8 and reports 13 + 8.
    EXPECT_EQ(zovQMIDMSUIMUnblockCKReq(buf.data(), 20, 3, 8, kKey8.data()), 21);
    EXPECT_EQ(head(buf, 21), cat({reqHeader(0x0042, 13), tlv(0x01, cat({{0x03, 0x08}, kKey8})), {0xEE}}));
    EXPECT_EQ(zovQMIDMSUIMUnblockCKReq(buf.data(), 12, 3, 0, nullptr), 13);
    EXPECT_EQ(zovQMIDMSUIMUnblockCKReq(buf.data(), 20, 3, 8, nullptr), -1);
    EXPECT_EQ(zovQMIDMSUIMUnblockCKReq(nullptr, 20, 3, 8, kKey8.data()), -1);
}

TEST(DmsPinRequests, ValidateServiceProgrammingCodeRefusesNullCodeWhateverTheSize) {
    Bytes buf = buffer(32);
    for (int n : {0, 15, 16, 32}) EXPECT_EQ(zovQMIDMSValidateServiceProgrammingCodeReq(buf.data(), n, nullptr), -1);
    EXPECT_EQ(buf, buffer(32));
}

// ------------------------------------------------------------ responses --

using ResultOnly = int (*)(const uint8_t*, int, QmiResult*);

TEST(DmsResponses, ResultOnlyResponsesReturnTheAreaLengthAndNeverMinusFour) {
    struct Case {
        uint16_t id;
        ResultOnly parse;
    } cases[] = {
        {0x0000, zovQMIDMSResetResp},
        {0x0001, zovQMIDMSSetEventReportResp},
        {0x0025, zovQMIDMSGetDeviceSerialNumbersResp},
        {0x0027, zovQMIDMSUIMSetPINProtectionResp},
        {0x0028, zovQMIDMSUIMVerifyPINResp},
        {0x0029, zovQMIDMSUIMUnblockPINResp},
        {0x002A, zovQMIDMSUIMChangePINResp},
        {0x002B, zovQMIDMSUIMGetPINStatusResp},
        {0x002E, zovQMIDMSSetOperatingModeResp},
        {0x0035, zovQMIDMSSetUserLockStateResp},
        {0x0036, zovQMIDMSSetUserLockCodeResp},
        {0x003B, zovQMIDMSValidateServiceProgrammingCodeResp},
        {0x0041, zovQMIDMSUIMSetCKProtectionResp},
        {0x0042, zovQMIDMSUIMUnblockCKResp},
        {0x004B, zovQMIDMSSetTimeResp},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.id);
        Bytes msg = svcMessage(c.id, {result(1, 0x0C), tlv(0x10, {0x03})});
        QmiResult r;
        EXPECT_EQ(c.parse(msg.data(), size(msg), &r), 11);
        EXPECT_EQ(res(r), (Res{1, 0x0C}));
        EXPECT_EQ(c.parse(msg.data(), size(msg), nullptr), -1);
        EXPECT_EQ(c.parse(nullptr, size(msg), &r), -1);
        Bytes other = svcMessage(uint16_t(c.id + 0x100), {result()});
        EXPECT_EQ(c.parse(other.data(), size(other), &r), -2);
        QmiResult untouched = untouchedResult();
        Bytes none = svcMessage(c.id, {tlv(0x10, {0x03})});
        EXPECT_EQ(c.parse(none.data(), size(none), &untouched), -3);
        EXPECT_EQ(res(untouched), res(untouchedResult()));
    }
}

using TextResp = int (*)(const uint8_t*, int, QmiResult*, uint16_t*, void*);

struct TextCase {
    const char* name;
    TextResp parse;
    uint16_t id;
};

const TextCase kTextResponses[] = {
    {"GetDeviceMfr", zovQMIDMSGetDeviceMfrResp, 0x0021},
    {"GetDeviceModelID", zovQMIDMSGetDeviceModelIDResp, 0x0022},
    {"GetDeviceRevID", zovQMIDMSGetDeviceRevIDResp, 0x0023},
    {"GetMSISDN", zovQMIDMSGetMSISDNResp, 0x0024},
    {"GetDeviceHardwareRev", zovQMIDMSGetDeviceHardwareRevResp, 0x002C},
    {"UIMGetICCID", zovQMIDMSUIMGetICCIDResp, 0x003C},
    {"UIMGetIMSI", zovQMIDMSUIMGetIMSIResp, 0x0043},
};

TEST(DmsResponses, TextResponsesDeliverLengthAndCopyTheTextUnterminated) {
    for (const TextCase& c : kTextResponses) {
        SCOPED_TRACE(c.name);
        Bytes msg = svcMessage(c.id, {result(), tlv(0x01, str("ABCDE"))});
        QmiResult r;
        uint16_t length = 0;
        Bytes text(8, 0xEE);
        EXPECT_EQ(c.parse(msg.data(), size(msg), &r, &length, text.data()), 15);
        EXPECT_EQ(length, 5);
        EXPECT_EQ(text, cat({str("ABCDE"), {0xEE, 0xEE, 0xEE}}));
        // Without a text buffer only the length is delivered.
        length = 0;
        EXPECT_EQ(c.parse(msg.data(), size(msg), &r, &length, nullptr), 15);
        EXPECT_EQ(length, 5);
        EXPECT_EQ(c.parse(msg.data(), size(msg), &r, nullptr, text.data()), -1);
        EXPECT_EQ(c.parse(msg.data(), size(msg), nullptr, &length, text.data()), -1);
        EXPECT_EQ(c.parse(nullptr, size(msg), &r, &length, text.data()), -1);
    }
}

TEST(DmsResponses, TextResponseOfLengthZeroSucceedsAndCopiesNothing) {
    for (const TextCase& c : kTextResponses) {
        SCOPED_TRACE(c.name);
        Bytes msg = svcMessage(c.id, {result(), tlv(0x01, {})});
        QmiResult r;
        uint16_t length = 0xEEEE;
        Bytes text(4, 0xEE);
        EXPECT_EQ(c.parse(msg.data(), size(msg), &r, &length, text.data()), 10);
        EXPECT_EQ(length, 0);
        EXPECT_EQ(text, Bytes(4, 0xEE));
    }
}

TEST(DmsResponses, TextResponsesMissingItemsGiveMinusTwoThreeAndFour) {
    for (const TextCase& c : kTextResponses) {
        SCOPED_TRACE(c.name);
        QmiResult r = untouchedResult();
        uint16_t length = 0xEEEE;
        Bytes other = svcMessage(uint16_t(c.id + 0x100), {result(), tlv(0x01, str("A"))});
        EXPECT_EQ(c.parse(other.data(), size(other), &r, &length, nullptr), -2);
        Bytes noResult = svcMessage(c.id, {tlv(0x01, str("A"))});
        EXPECT_EQ(c.parse(noResult.data(), size(noResult), &r, &length, nullptr), -3);
        EXPECT_EQ(res(r), res(untouchedResult()));
        Bytes noText = svcMessage(c.id, {result(1, 0x10)});
        EXPECT_EQ(c.parse(noText.data(), size(noText), &r, &length, nullptr), -4);
        EXPECT_EQ(res(r), (Res{1, 0x10}));
        EXPECT_EQ(length, 0xEEEE);
    }
}

TEST(DmsResponses, FailureResultStillReturnsTheAreaLength) {
    Bytes msg = svcMessage(0x0021, {result(1, 0x03), tlv(0x01, str("M"))});
    QmiResult r;
    uint16_t length = 0;
    EXPECT_EQ(zovQMIDMSGetDeviceMfrResp(msg.data(), size(msg), &r, &length, nullptr), 11);
    EXPECT_EQ(res(r), (Res{1, 0x03}));
}

using TextGet = int (*)(const uint8_t*, int, uint16_t*, void*);

TEST(DmsResponses, MobileIDIsAnOptionalText) {
    Bytes msg = svcMessage(0x0024, {result(), tlv(0x01, str("1555")), tlv(0x10, str("MIN12"))});
    uint16_t length = 0;
    Bytes text(6, 0xEE);
    EXPECT_EQ(zovQMIDMSGetMSISDNRespGetMobileID(msg.data(), size(msg), &length, text.data()), 5);
    EXPECT_EQ(length, 5);
    EXPECT_EQ(text, cat({str("MIN12"), {0xEE}}));
    EXPECT_EQ(zovQMIDMSGetMSISDNRespGetMobileID(msg.data(), size(msg), nullptr, text.data()), -1);
    EXPECT_EQ(zovQMIDMSGetMSISDNRespGetMobileID(nullptr, size(msg), &length, text.data()), -1);
    Bytes bare = svcMessage(0x0024, {result(), tlv(0x01, str("1555"))});
    EXPECT_EQ(zovQMIDMSGetMSISDNRespGetMobileID(bare.data(), size(bare), &length, nullptr), -3);
    Bytes other = svcMessage(0x0025, {result(), tlv(0x10, str("MIN12"))});
    EXPECT_EQ(zovQMIDMSGetMSISDNRespGetMobileID(other.data(), size(other), &length, nullptr), -2);
}

TEST(DmsResponses, SerialNumbersEachComeFromTheirOwnItem) {
    Bytes msg = svcMessage(0x0025, {result(), tlv(0x10, str("ESN1")), tlv(0x11, str("IMEI12")), tlv(0x12, str("M"))});
    struct {
        TextGet get;
        Bytes expected;
    } cases[] = {{zovQMIDMSGetDeviceSerialNumbersRespGetESN, str("ESN1")},
                 {zovQMIDMSGetDeviceSerialNumbersRespGetIMEI, str("IMEI12")},
                 {zovQMIDMSGetDeviceSerialNumbersRespGetMEID, str("M")}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.expected.begin(), c.expected.end()));
        uint16_t length = 0;
        Bytes text(8, 0xEE);
        EXPECT_EQ(c.get(msg.data(), size(msg), &length, text.data()), size(c.expected));
        EXPECT_EQ(length, c.expected.size());
        EXPECT_EQ(head(text, c.expected.size() + 1), cat({c.expected, {0xEE}}));
        EXPECT_EQ(c.get(msg.data(), size(msg), nullptr, text.data()), -1);
        EXPECT_EQ(c.get(nullptr, size(msg), &length, text.data()), -1);
        Bytes other = svcMessage(0x0024, {result(), tlv(0x10, str("X")), tlv(0x11, str("X")), tlv(0x12, str("X"))});
        EXPECT_EQ(c.get(other.data(), size(other), &length, nullptr), -2);
    }
}

TEST(DmsResponses, SerialNumbersWithOnlyImeiFindNoEsnOrMeid) {
    Bytes msg = svcMessage(0x0025, {result(), tlv(0x11, str("356938035643809"))});
    QmiResult r;
    EXPECT_EQ(zovQMIDMSGetDeviceSerialNumbersResp(msg.data(), size(msg), &r), 25);
    uint16_t length = 0;
    EXPECT_EQ(zovQMIDMSGetDeviceSerialNumbersRespGetIMEI(msg.data(), size(msg), &length, nullptr), 15);
    EXPECT_EQ(length, 15);
    length = 0xEEEE;
    EXPECT_EQ(zovQMIDMSGetDeviceSerialNumbersRespGetESN(msg.data(), size(msg), &length, nullptr), -3);
    EXPECT_EQ(zovQMIDMSGetDeviceSerialNumbersRespGetMEID(msg.data(), size(msg), &length, nullptr), -3);
    EXPECT_EQ(length, 0xEEEE);
}

// ---------------------------------------------------- device capability --

Bytes capValue(uint8_t count, const Bytes& list) {
    return cat({le32(0x11223344), le32(0x55667788), {0x02, 0x03, count}, list});
}

DMSDeviceCapabilities guardedCaps(uint8_t* list) {
    DMSDeviceCapabilities caps;
    std::memset(&caps, 0xEE, sizeof caps);
    caps.list = list;
    return caps;
}

TEST(DmsDeviceCap, NullListPointerFillsTheFieldsAndCopiesNothing) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, capValue(3, {0x04, 0x05, 0x08}))});
    QmiResult r;
    DMSDeviceCapabilities caps = guardedCaps(nullptr);
    EXPECT_EQ(zovQMIDMSGetDeviceCapResp(msg.data(), size(msg), &r, &caps), 7 + 3 + 14);
    EXPECT_EQ(rd32(&caps.capability1), 0x11223344u);
    EXPECT_EQ(rd32(&caps.capability2), 0x55667788u);
    EXPECT_EQ(caps.capabilityByte1, 0x02);
    EXPECT_EQ(caps.capabilityByte2, 0x03);
    EXPECT_EQ(caps.listCount, 3);
    EXPECT_TRUE(caps.list == nullptr);
}

TEST(DmsDeviceCap, ListPointerSetByTheCallerReceivesCountBytes) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, capValue(3, {0x04, 0x05, 0x08, 0x09}))});
    QmiResult r;
    Bytes list(5, 0xEE);
    DMSDeviceCapabilities caps = guardedCaps(list.data());
    EXPECT_EQ(zovQMIDMSGetDeviceCapResp(msg.data(), size(msg), &r, &caps), 7 + 3 + 15);
    EXPECT_EQ(caps.listCount, 3);
    EXPECT_TRUE(caps.list == list.data());
    EXPECT_EQ(list, Bytes({0x04, 0x05, 0x08, 0xEE, 0xEE}));
    EXPECT_EQ(rd32(&caps.capability2), 0x55667788u);
}

TEST(DmsDeviceCap, ListCountIsNotComparedWithTheItemLength) {
    // The count says 4 but the item holds 2 list bytes: the copy runs on into
    // the next item, which is still inside the received buffer.
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, capValue(4, {0x04, 0x05})), tlv(0x10, {})});
    QmiResult r;
    Bytes list(5, 0xEE);
    DMSDeviceCapabilities caps = guardedCaps(list.data());
    EXPECT_EQ(zovQMIDMSGetDeviceCapResp(msg.data(), size(msg), &r, &caps), size(msg) - 7);
    EXPECT_EQ(list, Bytes({0x04, 0x05, 0x10, 0x00, 0xEE}));
}

TEST(DmsDeviceCap, ListCountRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, capValue(9, {0x04, 0x05}))});
    QmiResult r;
    Bytes list(10, 0xEE);
    DMSDeviceCapabilities caps = guardedCaps(list.data());
    EXPECT_EQ(zovQMIDMSGetDeviceCapResp(msg.data(), size(msg), &r, &caps), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(list, Bytes(10, 0xEE));
    EXPECT_EQ(caps.listCount, 0xEE);
    EXPECT_EQ(rd32(&caps.capability1), 0xEEEEEEEEu);
    // With a null list the count alone is read, and that is inside the buffer.
    caps = guardedCaps(nullptr);
    EXPECT_EQ(zovQMIDMSGetDeviceCapResp(msg.data(), size(msg), &r, &caps), 23);
    EXPECT_EQ(caps.listCount, 9);
}

TEST(DmsDeviceCap, FieldsCutShortByTheBufferAreMalformed) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, cat({le32(1), le32(2), {0x01}}))});
    QmiResult r;
    DMSDeviceCapabilities caps = guardedCaps(nullptr);
    EXPECT_EQ(zovQMIDMSGetDeviceCapResp(msg.data(), size(msg), &r, &caps), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(rd32(&caps.capability1), 0xEEEEEEEEu);
    EXPECT_EQ(caps.capabilityByte1, 0xEE);
}

TEST(DmsDeviceCap, RequiresTheRecordAndTheCapabilityItem) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, capValue(0, {}))});
    QmiResult r;
    DMSDeviceCapabilities caps = guardedCaps(nullptr);
    EXPECT_EQ(zovQMIDMSGetDeviceCapResp(msg.data(), size(msg), &r, nullptr), -1);
    EXPECT_EQ(zovQMIDMSGetDeviceCapResp(msg.data(), size(msg), nullptr, &caps), -1);
    Bytes none = svcMessage(0x0020, {result(1, 2)});
    EXPECT_EQ(zovQMIDMSGetDeviceCapResp(none.data(), size(none), &r, &caps), -4);
    EXPECT_EQ(res(r), (Res{1, 2}));
    EXPECT_EQ(caps.listCount, 0xEE);
}

// --------------------------------------------------- scalar responses --

TEST(DmsResponses, GetPowerStateYieldsStateAndBatteryLevel) {
    Bytes msg = svcMessage(0x0026, {result(), tlv(0x01, {0x01, 0x4B})});
    QmiResult r;
    uint8_t state = 0, level = 0;
    EXPECT_EQ(zovQMIDMSGetPowerStateResp(msg.data(), size(msg), &r, &state, &level), 12);
    EXPECT_EQ(state, 0x01);
    EXPECT_EQ(level, 0x4B);
    EXPECT_EQ(zovQMIDMSGetPowerStateResp(msg.data(), size(msg), &r, nullptr, &level), -1);
    EXPECT_EQ(zovQMIDMSGetPowerStateResp(msg.data(), size(msg), &r, &state, nullptr), -1);
    Bytes none = svcMessage(0x0026, {result()});
    EXPECT_EQ(zovQMIDMSGetPowerStateResp(none.data(), size(none), &r, &state, &level), -4);
}

using U8Resp = int (*)(const uint8_t*, int, QmiResult*, uint8_t*);

TEST(DmsResponses, SingleByteResponsesYieldTheirByte) {
    struct {
        const char* name;
        U8Resp parse;
        uint16_t id;
    } cases[] = {{"GetOperatingMode", zovQMIDMSGetOperatingModeResp, 0x002D},
                 {"GetUserLockState", zovQMIDMSGetUserLockStateResp, 0x0034},
                 {"UIMGetState", zovQMIDMSUIMGetStateResp, 0x0044}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Bytes msg = svcMessage(c.id, {result(), tlv(0x01, {0x06})});
        QmiResult r;
        uint8_t v = 0;
        EXPECT_EQ(c.parse(msg.data(), size(msg), &r, &v), 11);
        EXPECT_EQ(v, 0x06);
        EXPECT_EQ(c.parse(msg.data(), size(msg), &r, nullptr), -1);
        Bytes other = svcMessage(uint16_t(c.id + 1), {result(), tlv(0x01, {0x06})});
        EXPECT_EQ(c.parse(other.data(), size(other), &r, &v), -2);
        Bytes none = svcMessage(c.id, {result()});
        v = 0xEE;
        EXPECT_EQ(c.parse(none.data(), size(none), &r, &v), -4);
        EXPECT_EQ(v, 0xEE);
    }
}

TEST(DmsResponses, GetTimeCopiesTheSixTimeBytesRawAndDecodesTheSecondField) {
    Bytes time = {0x01, 0x02, 0x03, 0x04, 0x05, 0x06};
    Bytes msg = svcMessage(0x002F, {result(), tlv(0x01, cat({time, le16(0x0A0B)}))});
    QmiResult r;
    Bytes out(7, 0xEE);
    uint16_t second = 0;
    EXPECT_EQ(zovQMIDMSGetTimeResp(msg.data(), size(msg), &r, out.data(), &second), 18);
    EXPECT_EQ(out, cat({time, {0xEE}}));
    EXPECT_EQ(second, 0x0A0B);
    EXPECT_EQ(zovQMIDMSGetTimeResp(msg.data(), size(msg), &r, nullptr, &second), -1);
    EXPECT_EQ(zovQMIDMSGetTimeResp(msg.data(), size(msg), &r, out.data(), nullptr), -1);
    Bytes none = svcMessage(0x002F, {result()});
    EXPECT_EQ(zovQMIDMSGetTimeResp(none.data(), size(none), &r, out.data(), &second), -4);
}

TEST(DmsResponses, GetTimeSecondFieldCutShortByTheBufferIsMalformed) {
    Bytes msg = svcMessage(0x002F, {result(), tlv(0x01, {0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07})});
    QmiResult r;
    Bytes out(6, 0xEE);
    uint16_t second = 0xEEEE;
    EXPECT_EQ(zovQMIDMSGetTimeResp(msg.data(), size(msg), &r, out.data(), &second), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(out, Bytes(6, 0xEE));
    EXPECT_EQ(second, 0xEEEE);
}

TEST(DmsResponses, GetTimeMillisecondItemsAreNativeSixtyFourBitValues) {
    Bytes msg = svcMessage(0x002F, {result(), tlv(0x01, Bytes(8, 0)), tlv(0x10, le64(0x0000017F12345678ull)),
                                    tlv(0x11, le64(0x8000000100000002ull))});
    uint64_t system = 0, user = 0;
    EXPECT_EQ(zovQMIDMSGetTimeRespGetSystemTimeInMS(msg.data(), size(msg), &system), 8);
    EXPECT_EQ(system, 0x0000017F12345678ull);
    EXPECT_EQ(zovQMIDMSGetTimeRespGetUserTimeInMS(msg.data(), size(msg), &user), 8);
    EXPECT_EQ(user, 0x8000000100000002ull);
    EXPECT_EQ(zovQMIDMSGetTimeRespGetSystemTimeInMS(msg.data(), size(msg), nullptr), -1);
    EXPECT_EQ(zovQMIDMSGetTimeRespGetUserTimeInMS(nullptr, size(msg), &user), -1);
    Bytes bare = svcMessage(0x002F, {result(), tlv(0x01, Bytes(8, 0))});
    EXPECT_EQ(zovQMIDMSGetTimeRespGetSystemTimeInMS(bare.data(), size(bare), &system), -3);
    EXPECT_EQ(zovQMIDMSGetTimeRespGetUserTimeInMS(bare.data(), size(bare), &user), -3);
    Bytes other = svcMessage(0x0030, {result(), tlv(0x10, le64(1)), tlv(0x11, le64(1))});
    EXPECT_EQ(zovQMIDMSGetTimeRespGetSystemTimeInMS(other.data(), size(other), &system), -2);
    EXPECT_EQ(zovQMIDMSGetTimeRespGetUserTimeInMS(other.data(), size(other), &user), -2);
}

TEST(DmsResponses, SixtyFourBitItemCutShortIsMalformed) {
    Bytes msg = svcMessage(0x002F, {result(), tlv(0x10, le32(5))});
    uint64_t system = 0xEE;
    EXPECT_EQ(zovQMIDMSGetTimeRespGetSystemTimeInMS(msg.data(), size(msg), &system), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(system, 0xEEu);
}

TEST(DmsResponses, GetPRLVerYieldsTheVersion) {
    Bytes msg = svcMessage(0x0030, {result(), tlv(0x01, le16(0x0203))});
    QmiResult r;
    uint16_t version = 0;
    EXPECT_EQ(zovQMIDMSGetPRLVerResp(msg.data(), size(msg), &r, &version), 12);
    EXPECT_EQ(version, 0x0203);
    EXPECT_EQ(zovQMIDMSGetPRLVerResp(msg.data(), size(msg), &r, nullptr), -1);
    Bytes none = svcMessage(0x0030, {result()});
    EXPECT_EQ(zovQMIDMSGetPRLVerResp(none.data(), size(none), &r, &version), -4);
}

TEST(DmsResponses, GetBandCapabilityReadsLowWordFirst) {
    Bytes msg = svcMessage(0x0045, {result(), tlv(0x01, cat({le32(0x00000002), le32(0x00000001)}))});
    QmiResult r;
    uint64_t bands = 0;
    EXPECT_EQ(zovQMIDMSGetBandCapabilityResp(msg.data(), size(msg), &r, &bands), 18);
    EXPECT_EQ(bands, 0x0000000100000002ull);
    EXPECT_EQ(zovQMIDMSGetBandCapabilityResp(msg.data(), size(msg), &r, nullptr), -1);
    Bytes none = svcMessage(0x0045, {result()});
    EXPECT_EQ(zovQMIDMSGetBandCapabilityResp(none.data(), size(none), &r, &bands), -4);
}

TEST(DmsResponses, MissingResultLeavesTheResultRecordAsItWas) {
    Bytes msg = svcMessage(0x0045, {tlv(0x01, le64(1))});
    QmiResult r = untouchedResult();
    uint64_t bands = 0xEE;
    EXPECT_EQ(zovQMIDMSGetBandCapabilityResp(msg.data(), size(msg), &r, &bands), -3);
    EXPECT_EQ(res(r), res(untouchedResult()));
    EXPECT_EQ(bands, 0xEEu);
}

// ------------------------------------------------ PIN and key responses --

using Retries = int (*)(const uint8_t*, int, uint8_t*, uint8_t*);

TEST(DmsPinResponses, RetriesLeftComeFromItem0x10OfEachPinMessage) {
    struct {
        const char* name;
        Retries get;
        uint16_t id;
    } cases[] = {{"UIMSetPINProtection", zovQMIDMSUIMSetPINProtectionRespGetRetriesLeft, 0x0027},
                 {"UIMVerifyPIN", zovQMIDMSUIMVerifyPINRespGetRetriesLeft, 0x0028},
                 {"UIMUnblockPIN", zovQMIDMSUIMUnblockPINRespGetRetriesLeft, 0x0029},
                 {"UIMChangePIN", zovQMIDMSUIMChangePINRespGetRetriesLeft, 0x002A}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Bytes msg = svcMessage(c.id, {result(1, 0x0C), tlv(0x10, {0x02, 0x09})});
        uint8_t verify = 0, unblock = 0;
        EXPECT_EQ(c.get(msg.data(), size(msg), &verify, &unblock), 2);
        EXPECT_EQ(verify, 2);
        EXPECT_EQ(unblock, 9);
        EXPECT_EQ(c.get(msg.data(), size(msg), nullptr, &unblock), -1);
        EXPECT_EQ(c.get(msg.data(), size(msg), &verify, nullptr), -1);
        EXPECT_EQ(c.get(nullptr, size(msg), &verify, &unblock), -1);
        Bytes other = svcMessage(uint16_t(c.id + 0x10), {result(), tlv(0x10, {0x02, 0x09})});
        EXPECT_EQ(c.get(other.data(), size(other), &verify, &unblock), -2);
        Bytes bare = svcMessage(c.id, {result()});
        EXPECT_EQ(c.get(bare.data(), size(bare), &verify, &unblock), -3);
    }
}

using Status3 = int (*)(const uint8_t*, int, uint8_t*, uint8_t*, uint8_t*);

TEST(DmsPinResponses, PinStatusItemsYieldStatusAndBothCounters) {
    Bytes msg = svcMessage(0x002B, {result(), tlv(0x11, {0x02, 0x03, 0x0A}), tlv(0x12, {0x04, 0x01, 0x05})});
    QmiResult r;
    EXPECT_EQ(zovQMIDMSUIMGetPINStatusResp(msg.data(), size(msg), &r), 19);
    struct {
        Status3 get;
        Bytes expected;
    } cases[] = {{zovQMIDMSUIMGetPINStatusRespGetPIN1Status, {0x02, 0x03, 0x0A}},
                 {zovQMIDMSUIMGetPINStatusRespGetPIN2Status, {0x04, 0x01, 0x05}}};
    for (const auto& c : cases) {
        uint8_t s = 0, v = 0, u = 0;
        EXPECT_EQ(c.get(msg.data(), size(msg), &s, &v, &u), 3);
        EXPECT_EQ(Bytes({s, v, u}), c.expected);
        EXPECT_EQ(c.get(msg.data(), size(msg), nullptr, &v, &u), -1);
        EXPECT_EQ(c.get(msg.data(), size(msg), &s, nullptr, &u), -1);
        EXPECT_EQ(c.get(msg.data(), size(msg), &s, &v, nullptr), -1);
        Bytes bare = svcMessage(0x002B, {result()});
        EXPECT_EQ(c.get(bare.data(), size(bare), &s, &v, &u), -3);
        Bytes other = svcMessage(0x0001, {tlv(0x11, {1, 2, 3}), tlv(0x12, {1, 2, 3})});
        EXPECT_EQ(c.get(other.data(), size(other), &s, &v, &u), -2);
    }
}

TEST(DmsPinResponses, GetCKStatusRequiresAllThreeOutputs) {
    Bytes msg = svcMessage(0x0040, {result(), tlv(0x01, {0x01, 0x05, 0x0A}), tlv(0x10, {0x01})});
    QmiResult r;
    uint8_t s = 0, v = 0, u = 0;
    EXPECT_EQ(zovQMIDMSUIMGetCKStatusResp(msg.data(), size(msg), &r, &s, &v, &u), 17);
    EXPECT_EQ(Bytes({s, v, u}), Bytes({0x01, 0x05, 0x0A}));
    EXPECT_EQ(zovQMIDMSUIMGetCKStatusResp(msg.data(), size(msg), &r, &s, &v, nullptr), -1);
    EXPECT_EQ(zovQMIDMSUIMGetCKStatusResp(msg.data(), size(msg), &r, &s, nullptr, &u), -1);
    EXPECT_EQ(zovQMIDMSUIMGetCKStatusResp(msg.data(), size(msg), &r, nullptr, &v, &u), -1);
    Bytes none = svcMessage(0x0040, {result()});
    EXPECT_EQ(zovQMIDMSUIMGetCKStatusResp(none.data(), size(none), &r, &s, &v, &u), -4);
}

TEST(DmsPinResponses, SingleByteCKItemsComeFromItem0x10) {
    using Get1 = int (*)(const uint8_t*, int, uint8_t*);
    struct {
        const char* name;
        Get1 get;
        uint16_t id;
    } cases[] = {{"OperationBlockingFacility", zovQMIDMSUIMGetCKStatusRespGetOperationBlockingFacility, 0x0040},
                 {"SetCKProtection retries", zovQMIDMSUIMSetCKProtectionRespGetFacilityCKRetryStatus, 0x0041},
                 {"UnblockCK retries", zovQMIDMSUIMUnblockCKRespGetFacilityCKRetryStatus, 0x0042}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Bytes msg = svcMessage(c.id, {result(), tlv(0x10, {0x07})});
        uint8_t v = 0;
        EXPECT_EQ(c.get(msg.data(), size(msg), &v), 1);
        EXPECT_EQ(v, 7);
        EXPECT_EQ(c.get(msg.data(), size(msg), nullptr), -1);
        Bytes bare = svcMessage(c.id, {result()});
        EXPECT_EQ(c.get(bare.data(), size(bare), &v), -3);
        Bytes other = svcMessage(uint16_t(c.id + 0x10), {result(), tlv(0x10, {0x07})});
        EXPECT_EQ(c.get(other.data(), size(other), &v), -2);
    }
}

// ----------------------------------------------------------- indications --

Bytes eventReport(std::initializer_list<Bytes> items) { return svcMessage(0x0001, items, 0, 0x04); }

TEST(DmsIndications, EventReportConfirmsTheIdAndReadsNoItem) {
    Bytes msg = eventReport({tlv(0x10, {0x01, 0x32})});
    EXPECT_EQ(zovQMIDMSEventReportIND(msg.data(), size(msg)), 5);
    // A message whose head ends exactly at the buffer's end is not visited.
    Bytes empty = eventReport({});
    EXPECT_EQ(zovQMIDMSEventReportIND(empty.data(), size(empty)), -2);
    Bytes other = svcMessage(0x0002, {}, 0, 0x04);
    EXPECT_EQ(zovQMIDMSEventReportIND(other.data(), size(other)), -2);
    EXPECT_EQ(zovQMIDMSEventReportIND(nullptr, size(msg)), -1);
}

TEST(DmsIndications, EventReportItemsAreFetchedOneByOne) {
    Bytes msg = eventReport({tlv(0x10, {0x01, 0x32}), tlv(0x11, {0x02, 0x03, 0x0A}), tlv(0x12, {0x05, 0x00, 0x01}),
                             tlv(0x14, {0x04}), tlv(0x15, {0x02})});
    uint8_t a = 0, b = 0, c = 0;
    EXPECT_EQ(zovQMIDMSEventReportINDGetPowerState(msg.data(), size(msg), &a, &b), 2);
    EXPECT_EQ(Bytes({a, b}), Bytes({0x01, 0x32}));
    EXPECT_EQ(zovQMIDMSEventReportINDGetPIN1Status(msg.data(), size(msg), &a, &b, &c), 3);
    EXPECT_EQ(Bytes({a, b, c}), Bytes({0x02, 0x03, 0x0A}));
    EXPECT_EQ(zovQMIDMSEventReportINDGetPIN2Status(msg.data(), size(msg), &a, &b, &c), 3);
    EXPECT_EQ(Bytes({a, b, c}), Bytes({0x05, 0x00, 0x01}));
    EXPECT_EQ(zovQMIDMSEventReportINDGetOperatingMode(msg.data(), size(msg), &a), 1);
    EXPECT_EQ(a, 0x04);
    EXPECT_EQ(zovQMIDMSEventReportINDGetUIMState(msg.data(), size(msg), &a), 1);
    EXPECT_EQ(a, 0x02);
}

TEST(DmsIndications, EventReportGettersReturnMinusThreeForAbsentItems) {
    Bytes msg = eventReport({tlv(0x13, {0x01, 0x02, 0x03})});
    uint8_t a = 0xEE, b = 0xEE, c = 0xEE;
    EXPECT_EQ(zovQMIDMSEventReportINDGetPowerState(msg.data(), size(msg), &a, &b), -3);
    EXPECT_EQ(zovQMIDMSEventReportINDGetPIN1Status(msg.data(), size(msg), &a, &b, &c), -3);
    EXPECT_EQ(zovQMIDMSEventReportINDGetPIN2Status(msg.data(), size(msg), &a, &b, &c), -3);
    EXPECT_EQ(zovQMIDMSEventReportINDGetOperatingMode(msg.data(), size(msg), &a), -3);
    EXPECT_EQ(zovQMIDMSEventReportINDGetUIMState(msg.data(), size(msg), &a), -3);
    EXPECT_EQ(Bytes({a, b, c}), Bytes({0xEE, 0xEE, 0xEE}));
    Bytes other = svcMessage(0x0002, {tlv(0x10, {1, 2}), tlv(0x14, {1})});
    EXPECT_EQ(zovQMIDMSEventReportINDGetPowerState(other.data(), size(other), &a, &b), -2);
    EXPECT_EQ(zovQMIDMSEventReportINDGetOperatingMode(other.data(), size(other), &a), -2);
}

TEST(DmsIndications, PIN1StatusWithAnyOutputNullIsRefused) {
    Bytes msg = eventReport({tlv(0x11, {0x02, 0x03, 0x0A}), tlv(0x12, {0x02, 0x03, 0x0A})});
    uint8_t a = 0, b = 0, c = 0;
    EXPECT_EQ(zovQMIDMSEventReportINDGetPIN1Status(msg.data(), size(msg), nullptr, &b, &c), -1);
    EXPECT_EQ(zovQMIDMSEventReportINDGetPIN1Status(msg.data(), size(msg), &a, nullptr, &c), -1);
    EXPECT_EQ(zovQMIDMSEventReportINDGetPIN1Status(msg.data(), size(msg), &a, &b, nullptr), -1);
    EXPECT_EQ(zovQMIDMSEventReportINDGetPIN2Status(msg.data(), size(msg), &a, &b, nullptr), -1);
    EXPECT_EQ(zovQMIDMSEventReportINDGetPowerState(msg.data(), size(msg), &a, nullptr), -1);
    EXPECT_EQ(zovQMIDMSEventReportINDGetOperatingMode(msg.data(), size(msg), nullptr), -1);
    EXPECT_EQ(zovQMIDMSEventReportINDGetUIMState(msg.data(), size(msg), nullptr), -1);
    EXPECT_EQ(zovQMIDMSEventReportINDGetPIN1Status(nullptr, size(msg), &a, &b, &c), -1);
}

TEST(DmsIndications, PinStatusCutShortByTheBufferIsMalformed) {
    Bytes msg = eventReport({tlv(0x11, {0x02, 0x03, 0x0A})});
    uint8_t a = 0xEE, b = 0xEE, c = 0xEE;
    EXPECT_EQ(zovQMIDMSEventReportINDGetPIN1Status(msg.data(), size(msg) - 1, &a, &b, &c), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(Bytes({a, b, c}), Bytes({0xEE, 0xEE, 0xEE}));
}

}  // namespace
