// NAS, the network access service (service 3): registration, serving system,
// signal strength, network scans, preferred and forbidden networks, system
// selection and device configuration.
//
// Every network list and PLMN is delivered into the one NASNetworkRecord
// type; each parser writes only the fields its item carries and leaves the
// others as the caller set them.  Arrays of records are walked with the
// record's own size as stride.
#include "msg/pattern.h"

using namespace zq;

namespace {
// Field offsets of NASNetworkRecord.
constexpr size_t kFirstCode = 0, kSecondCode = 2, kStatus = 6, kDescLength = 7, kDescription = 8;
constexpr size_t kNetwork = sizeof(NASNetworkRecord);

// A network with a description at value offset `off`: u16 first code, u16
// second code, the length byte n at `off + lengthOff`, then n description
// bytes.  Writes the codes and the description length into the record at
// `at`, and the description into the caller's buffer when it set one.
// Returns n.
uint8_t describedNetwork(Dec& d, Dec::Record& rec, size_t at, size_t off, size_t lengthOff) {
    rec.put16(at + kFirstCode, d.le16(off));
    rec.put16(at + kSecondCode, d.le16(off + 2));
    uint8_t n = d.u8(off + lengthOff);
    rec.put8(at + kDescLength, n);
    d.copy(rec.ptr(at + kDescription), off + lengthOff + 1, n);
    return n;
}

// The current or home network item: codes, description length, description.
auto plmn(NASNetworkRecord* network) {
    return [=](Dec& d) {
        Dec::Record rec = d.record(network);
        describedNetwork(d, rec, 0, 0, 4);
    };
}

// The serving system item 0x01: four state bytes, a counted byte list.
auto servingSystemItem(NASServingSystem* ss) {
    return [=](Dec& d) {
        Dec::Record rec = d.record(ss);
        rec.copy(0, 0, 4);
        uint8_t n = d.u8(4);
        rec.put8(4, n);
        d.copy(rec.ptr(5), 5, n);
    };
}

// A u16-counted list of `fields` u16 codes per network into fields 1..fields
// of consecutive records (preferred: 3, forbidden: 2).
auto networkList(uint16_t* count, NASNetworkRecord* list, size_t fields) {
    return [=](Dec& d) {
        uint16_t n = d.le16(0);
        d.put(count, n);
        if (!list) return;
        Dec::Record rec = d.record(list);
        for (uint16_t i = 0; i < n; ++i)
            for (size_t f = 0; f < fields; ++f) rec.put16(kNetwork * i + 2 * f, d.le16(2 + 2 * fields * i + 2 * f));
    };
}

// A counted list of {a, b} byte pairs split into two optional arrays; the
// count is a u8 or a u16 (T).
template <class T>
auto pairList(T* count, uint8_t* first, uint8_t* second) {
    return [=](Dec& d) {
        T n = sizeof(T) == 1 ? d.u8(0) : d.le16(0);
        d.put(count, n);
        for (T i = 0; i < n; ++i) {
            size_t at = sizeof(T) + 2u * i;
            if (first) d.put(first + i, d.u8(at));
            if (second) d.put(second + i, d.u8(at + 1));
        }
    };
}

// A u8-counted list of 5-byte RF band entries, copied as they are.
auto rfBandList(uint8_t* count, NASRFBandRecord* list) {
    return [=](Dec& d) {
        uint8_t n = d.u8(0);
        d.put(count, n);
        d.copy(list, 1, sizeof(NASRFBandRecord) * n);
    };
}

// The value size of a network list of `fields` u16 codes per network.  A
// count beyond what an item can hold maps to a size add() refuses, so the
// product cannot wrap on 32-bit hosts.
size_t networkListSize(uint32_t count, size_t fields) {
    return count > kMaxItemValue ? kMaxItemValue + 1 : 2 + 2 * fields * count;
}

// Network list item 0x10: u16 count, then `fields` u16 codes per record.
int addNetworkList(uint8_t* buf, int bufsize, uint32_t count, const NASNetworkRecord* list, size_t fields) {
    if (count != 0 && !list) return kErrArg;
    const uint8_t* base = reinterpret_cast<const uint8_t*>(list);
    return add(buf, bufsize, 0x10, w16(static_cast<uint16_t>(count)),
               wfn(networkListSize(count, fields) - 2, [=](uint8_t* p) {
                   for (uint32_t i = 0; i < count; ++i)
                       for (size_t f = 0; f < fields; ++f, p += 2) st16(p, ld16(base + kNetwork * i + 2 * f));
               }));
}
}  // namespace

// Reset 0x0000
extern "C" int zovQMINASResetReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0000); }
extern "C" int zovQMINASResetResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0000);
}

// Abort 0x0001
extern "C" int zovQMINASAbortReq(uint8_t* buf, int bufsize, uint16_t transactionId) {
    return reqTlv(buf, bufsize, 0x0001, w16(transactionId));
}
extern "C" int zovQMINASAbortResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0001);
}

// SetEventReport 0x0002
extern "C" int zovQMINASSetEventReportReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0002); }
extern "C" int zovQMINASSetEventReportReqAddSignalStrengthIndicator(uint8_t* buf, int bufsize, uint8_t report,
                                                                    uint8_t count, const uint8_t* thresholds) {
    return add(buf, bufsize, 0x10, w8(report), w8(count), wbytes(count, thresholds));
}
extern "C" int zovQMINASSetEventReportReqAddRFBandInformation(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x11, w8(report));
}
extern "C" int zovQMINASSetEventReportReqAddRegistrationRejectReasons(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x12, w8(report));
}
extern "C" int zovQMINASSetEventReportReqAddRSSIIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta) {
    return add(buf, bufsize, 0x13, w8(report), w8(delta));
}
extern "C" int zovQMINASSetEventReportReqAddECIOIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta) {
    return add(buf, bufsize, 0x14, w8(report), w8(delta));
}
extern "C" int zovQMINASSetEventReportReqAddIOIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta) {
    return add(buf, bufsize, 0x15, w8(report), w8(delta));
}
extern "C" int zovQMINASSetEventReportReqAddSINRIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta) {
    return add(buf, bufsize, 0x16, w8(report), w8(delta));
}
extern "C" int zovQMINASSetEventReportReqAddErrorRateIndicator(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x17, w8(report));
}
extern "C" int zovQMINASSetEventReportResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0002);
}

// EventReport 0x0002 (indication)
extern "C" int zovQMINASEventReportIND(const uint8_t* msg, int len) { return ind(msg, len, 0x0002); }
extern "C" int zovQMINASEventReportINDGetSignalStrength(const uint8_t* msg, int len, uint8_t* strength,
                                                        uint8_t* radioInterface) {
    return get(msg, len, 0x0002, 0x10, all(strength, radioInterface), [=](Dec& d) {
        d.put(strength, d.u8(0));
        d.put(radioInterface, d.u8(1));
    });
}
extern "C" int zovQMINASEventReportINDGetRFBandInformationList(const uint8_t* msg, int len, uint8_t* count,
                                                               NASRFBandRecord* list) {
    return get(msg, len, 0x0002, 0x11, all(count), rfBandList(count, list));
}
extern "C" int zovQMINASEventReportINDGetRegistrationRejectReason(const uint8_t* msg, int len, uint8_t* domain,
                                                                  uint16_t* cause) {
    return get(msg, len, 0x0002, 0x12, all(domain, cause), [=](Dec& d) {
        d.put(domain, d.u8(0));
        d.put(cause, d.le16(1));
    });
}
extern "C" int zovQMINASEventReportINDGetRSSI(const uint8_t* msg, int len, uint8_t* rssi, uint8_t* radioInterface) {
    return get(msg, len, 0x0002, 0x13, all(rssi, radioInterface), [=](Dec& d) {
        d.put(rssi, d.u8(0));
        d.put(radioInterface, d.u8(1));
    });
}
extern "C" int zovQMINASEventReportINDGetECIO(const uint8_t* msg, int len, uint8_t* ecio, uint8_t* radioInterface) {
    return get(msg, len, 0x0002, 0x14, all(ecio, radioInterface), [=](Dec& d) {
        d.put(ecio, d.u8(0));
        d.put(radioInterface, d.u8(1));
    });
}
extern "C" int zovQMINASEventReportINDGetIO(const uint8_t* msg, int len, uint32_t* io) {
    return get(msg, len, 0x0002, 0x15, all(io), scalar(io));
}
extern "C" int zovQMINASEventReportINDGetSINR(const uint8_t* msg, int len, uint8_t* sinr) {
    return get(msg, len, 0x0002, 0x16, all(sinr), scalar(sinr));
}
extern "C" int zovQMINASEventReportINDGetErrorRate(const uint8_t* msg, int len, uint16_t* errorRate,
                                                   uint8_t* radioInterface) {
    return get(msg, len, 0x0002, 0x17, all(errorRate, radioInterface), [=](Dec& d) {
        d.put(errorRate, d.le16(0));
        d.put(radioInterface, d.u8(2));
    });
}

// IndicationRegister 0x0003 (no item 0x11)
extern "C" int zovQMINASIndicationRegisterReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0003); }
extern "C" int zovQMINASIndicationRegisterReqAddSystemSelectionPreference(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x10, w8(report));
}
extern "C" int zovQMINASIndicationRegisterReqAddDDTMEvents(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x12, w8(report));
}
extern "C" int zovQMINASIndicationRegisterReqAddServingSystemEvents(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x13, w8(report));
}
extern "C" int zovQMINASIndicationRegisterResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0003);
}

// GetSignalStrength 0x0020
extern "C" int zovQMINASGetSignalStrengthReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0020); }
extern "C" int zovQMINASGetSignalStrengthReqAddRequestMask(uint8_t* buf, int bufsize, uint16_t mask) {
    return add(buf, bufsize, 0x10, w16(mask));
}
extern "C" int zovQMINASGetSignalStrengthResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* strength,
                                              uint8_t* radioInterface) {
    return resp(msg, len, result, 0x0020, all(strength, radioInterface), [=](Dec& d) {
        d.put(strength, d.u8(0));
        d.put(radioInterface, d.u8(1));
    });
}
extern "C" int zovQMINASGetSignalStrengthRespGetSignalStrengthList(const uint8_t* msg, int len, uint16_t* count,
                                                                   uint8_t* first, uint8_t* second) {
    return get(msg, len, 0x0020, 0x10, all(count), pairList(count, first, second));
}
extern "C" int zovQMINASGetSignalStrengthRespGetRSSIList(const uint8_t* msg, int len, uint16_t* count, uint8_t* first,
                                                         uint8_t* second) {
    return get(msg, len, 0x0020, 0x11, all(count), pairList(count, first, second));
}
extern "C" int zovQMINASGetSignalStrengthRespGetECIOList(const uint8_t* msg, int len, uint16_t* count, uint8_t* first,
                                                         uint8_t* second) {
    return get(msg, len, 0x0020, 0x12, all(count), pairList(count, first, second));
}
extern "C" int zovQMINASGetSignalStrengthRespGetIO(const uint8_t* msg, int len, uint32_t* io) {
    return get(msg, len, 0x0020, 0x13, all(io), scalar(io));
}
extern "C" int zovQMINASGetSignalStrengthRespGetSINR(const uint8_t* msg, int len, uint8_t* sinr) {
    return get(msg, len, 0x0020, 0x14, all(sinr), scalar(sinr));
}
// Item 0x15: u16 count, then {u16 error rate, u8 radio interface} per entry.
extern "C" int zovQMINASGetSignalStrengthRespGetErrorRateList(const uint8_t* msg, int len, uint16_t* count,
                                                              uint16_t* errorRates, uint8_t* radioInterfaces) {
    return get(msg, len, 0x0020, 0x15, all(count), [=](Dec& d) {
        uint16_t n = d.le16(0);
        d.put(count, n);
        for (uint16_t i = 0; i < n; ++i) {
            if (errorRates) d.put(errorRates + i, d.le16(2 + 3u * i));
            if (radioInterfaces) d.put(radioInterfaces + i, d.u8(2 + 3u * i + 2));
        }
    });
}

// PerformNetworkScan 0x0021
extern "C" int zovQMINASPerformNetworkScanReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0021); }
extern "C" int zovQMINASPerformNetworkScanResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0021);
}
// Item 0x10: u16 count, then per network {u16, u16, u8 status, u8 n, n
// description bytes}: the elements vary in length, the records do not.
extern "C" int zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(const uint8_t* msg, int len, uint16_t* count,
                                                                        NASNetworkRecord* list) {
    return get(msg, len, 0x0021, 0x10, all(count), [=](Dec& d) {
        uint16_t n = d.le16(0);
        d.put(count, n);
        if (!list) return;
        Dec::Record rec = d.record(list);
        size_t off = 2;
        for (uint16_t i = 0; i < n && !d.bad(); ++i) {
            rec.put8(kNetwork * i + kStatus, d.u8(off + 4));
            off += 6 + describedNetwork(d, rec, kNetwork * i, off, 5);
        }
    });
}

// InitiateNetworkRegister 0x0022
extern "C" int zovQMINASInitiateNetworkRegisterReq(uint8_t* buf, int bufsize, uint8_t action) {
    return reqTlv(buf, bufsize, 0x0022, w8(action));
}
extern "C" int zovQMINASInitiateNetworkRegisterReqAddManualNetworkRegisterInformation(
    uint8_t* buf, int bufsize, const NASManualNetworkRegister* info) {
    return add(buf, bufsize, 0x10, wrecord(info, sizeof *info));  // codes are little-endian in the record
}
extern "C" int zovQMINASInitiateNetworkRegisterResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0022);
}

// InitiateAttach 0x0023
extern "C" int zovQMINASInitiateAttachReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0023); }
extern "C" int zovQMINASInitiateAttachReqAddPSAttachAction(uint8_t* buf, int bufsize, uint8_t action) {
    return add(buf, bufsize, 0x10, w8(action));
}
extern "C" int zovQMINASInitiateAttachResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0023);
}

// GetServingSystem 0x0024 (response and indication)
extern "C" int zovQMINASGetServingSystemReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0024); }
extern "C" int zovQMINASGetServingSystemResp(const uint8_t* msg, int len, QmiResult* result,
                                             NASServingSystem* servingSystem) {
    return resp(msg, len, result, 0x0024, all(servingSystem), servingSystemItem(servingSystem));
}
extern "C" int zovQMINASGetServingSystemRespGetRoamingIndicatorValue(const uint8_t* msg, int len, uint8_t* value) {
    return get(msg, len, 0x0024, 0x10, all(value), scalar(value));
}
extern "C" int zovQMINASGetServingSystemRespGetDataServiceCapabilityList(const uint8_t* msg, int len, uint8_t* count,
                                                                         uint8_t* list) {
    return get(msg, len, 0x0024, 0x11, all(count), [=](Dec& d) {
        uint8_t n = d.u8(0);
        d.put(count, n);
        d.copy(list, 1, n);
    });
}
extern "C" int zovQMINASGetServingSystemRespGetCurrentPLMN(const uint8_t* msg, int len, NASNetworkRecord* network) {
    return get(msg, len, 0x0024, 0x12, all(network), plmn(network));
}
extern "C" int zovQMINASGetServingSystemRespGetCDMASystemID(const uint8_t* msg, int len, uint16_t* systemId,
                                                            uint16_t* networkId) {
    return get(msg, len, 0x0024, 0x13, all(systemId, networkId), [=](Dec& d) {
        d.put(systemId, d.le16(0));
        d.put(networkId, d.le16(2));
    });
}
extern "C" int zovQMINASGetServingSystemRespGetCDMABaseStationInformation(const uint8_t* msg, int len,
                                                                          uint16_t* baseId, uint32_t* latitude,
                                                                          uint32_t* longitude) {
    return get(msg, len, 0x0024, 0x14, all(baseId, latitude, longitude), [=](Dec& d) {
        d.put(baseId, d.le16(0));
        d.put(latitude, d.le32(2));
        d.put(longitude, d.le32(6));
    });
}
extern "C" int zovQMINASGetServingSystemRespGetRoamingIndicatorList(const uint8_t* msg, int len, uint8_t* count,
                                                                    uint8_t* first, uint8_t* second) {
    return get(msg, len, 0x0024, 0x15, all(count), pairList(count, first, second));
}
extern "C" int zovQMINASGetServingSystemRespGetDefaultRoamingIndicator(const uint8_t* msg, int len, uint8_t* value) {
    return get(msg, len, 0x0024, 0x16, all(value), scalar(value));
}
extern "C" int zovQMINASGetServingSystemRespGet3GPP2TimeZone(const uint8_t* msg, int len, uint8_t* leapSeconds,
                                                             uint8_t* localOffset, uint8_t* daylightSaving) {
    return get(msg, len, 0x0024, 0x17, all(leapSeconds, localOffset, daylightSaving), [=](Dec& d) {
        d.put(leapSeconds, d.u8(0));
        d.put(localOffset, d.u8(1));
        d.put(daylightSaving, d.u8(2));
    });
}
extern "C" int zovQMINASGetServingSystemRespGetCDMAPRevInUse(const uint8_t* msg, int len, uint8_t* pRev) {
    return get(msg, len, 0x0024, 0x18, all(pRev), scalar(pRev));
}
extern "C" int zovQMINASGetServingSystemIND(const uint8_t* msg, int len, NASServingSystem* servingSystem) {
    return ind(msg, len, 0x0024, all(servingSystem), servingSystemItem(servingSystem));
}

// GetHomeNetwork 0x0025
extern "C" int zovQMINASGetHomeNetworkReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0025); }
extern "C" int zovQMINASGetHomeNetworkResp(const uint8_t* msg, int len, QmiResult* result, NASNetworkRecord* network) {
    return resp(msg, len, result, 0x0025, all(network), plmn(network));
}
extern "C" int zovQMINASGetHomeNetworkRespGetHomeSystemID(const uint8_t* msg, int len, uint16_t* systemId,
                                                          uint16_t* networkId) {
    return get(msg, len, 0x0025, 0x10, all(systemId, networkId), [=](Dec& d) {
        d.put(systemId, d.le16(0));
        d.put(networkId, d.le16(2));
    });
}

// GetPreferredNetworks 0x0026: three codes per network
extern "C" int zovQMINASGetPreferredNetworksReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0026); }
extern "C" int zovQMINASGetPreferredNetworksResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0026);
}
extern "C" int zovQMINASGetPreferredNetworksRespGet3GPPPreferredNetworks(const uint8_t* msg, int len, uint16_t* count,
                                                                         NASNetworkRecord* list) {
    return get(msg, len, 0x0026, 0x10, all(count), networkList(count, list, 3));
}
extern "C" int zovQMINASGetPreferredNetworksRespGetStatic3GPPPreferredNetworks(const uint8_t* msg, int len,
                                                                               uint16_t* count,
                                                                               NASNetworkRecord* list) {
    return get(msg, len, 0x0026, 0x11, all(count), networkList(count, list, 3));
}

// SetPreferredNetworks 0x0027
extern "C" int zovQMINASSetPreferredNetworksReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0027); }
extern "C" int zovQMINASSetPreferredNetworksReqAdd3GPPPreferredNetworks(uint8_t* buf, int bufsize, uint32_t count,
                                                                        const NASNetworkRecord* list) {
    return addNetworkList(buf, bufsize, count, list, 3);
}
extern "C" int zovQMINASSetPreferredNetworksResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0027);
}

// GetForbiddenNetworks 0x0028: two codes per network
extern "C" int zovQMINASGetForbiddenNetworksReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0028); }
extern "C" int zovQMINASGetForbiddenNetworksResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0028);
}
extern "C" int zovQMINASGetForbiddenNetworksRespGet3GPPForbiddenNetworks(const uint8_t* msg, int len, uint16_t* count,
                                                                         NASNetworkRecord* list) {
    return get(msg, len, 0x0028, 0x10, all(count), networkList(count, list, 2));
}

// SetForbiddenNetworks 0x0029
extern "C" int zovQMINASSetForbiddenNetworksReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0029); }
extern "C" int zovQMINASSetForbiddenNetworksReqAdd3GPPForbiddenNetworks(uint8_t* buf, int bufsize, uint32_t count,
                                                                        const NASNetworkRecord* list) {
    return addNetworkList(buf, bufsize, count, list, 2);
}
extern "C" int zovQMINASSetForbiddenNetworksResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0029);
}

// GetACCOLC 0x002C
extern "C" int zovQMINASGetACCOLCReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x002C); }
extern "C" int zovQMINASGetACCOLCResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* accolc) {
    return resp(msg, len, result, 0x002C, all(accolc), scalar(accolc));
}

// SetACCOLC 0x002D: 6 code bytes, then the class
extern "C" int zovQMINASSetACCOLCReq(uint8_t* buf, int bufsize, const uint8_t* code, uint8_t accolc) {
    return reqTlv(buf, bufsize, 0x002D, wrecord(code, 6), w8(accolc));
}
extern "C" int zovQMINASSetACCOLCResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x002D);
}

// GetDeviceConfig 0x002F
extern "C" int zovQMINASGetDeviceConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x002F); }
extern "C" int zovQMINASGetDeviceConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x002F);
}
extern "C" int zovQMINASGetDeviceConfigRespGetSlotCycleIndex(const uint8_t* msg, int len, uint8_t* index) {
    return get(msg, len, 0x002F, 0x11, all(index), scalar(index));
}
extern "C" int zovQMINASGetDeviceConfigRespGetStationClassMark(const uint8_t* msg, int len, uint8_t* mark) {
    return get(msg, len, 0x002F, 0x12, all(mark), scalar(mark));
}
extern "C" int zovQMINASGetDeviceConfigRespGetRegistrationParameters(const uint8_t* msg, int len, uint8_t* first,
                                                                     uint8_t* second, uint8_t* third) {
    return get(msg, len, 0x002F, 0x13, all(first, second, third), [=](Dec& d) {
        d.put(first, d.u8(0));
        d.put(second, d.u8(1));
        d.put(third, d.u8(2));
    });
}
extern "C" int zovQMINASGetDeviceConfigRespGetForceHDRRevision(const uint8_t* msg, int len, uint8_t* revision) {
    return get(msg, len, 0x002F, 0x14, all(revision), scalar(revision));
}
extern "C" int zovQMINASGetDeviceConfigRespGetHDRSCPCustomConfig(const uint8_t* msg, int len, uint8_t* active,
                                                                 uint32_t* first, uint32_t* second, uint32_t* third) {
    return get(msg, len, 0x002F, 0x15, all(active, first, second, third), [=](Dec& d) {
        d.put(active, d.u8(0));
        d.put(first, d.le32(1));
        d.put(second, d.le32(5));
        d.put(third, d.le32(9));
    });
}
extern "C" int zovQMINASGetDeviceConfigRespGetRoamPreference(const uint8_t* msg, int len, uint8_t* preference) {
    return get(msg, len, 0x002F, 0x16, all(preference), scalar(preference));
}

// SetDeviceConfig 0x0030 (no items 0x11 to 0x13)
extern "C" int zovQMINASSetDeviceConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0030); }
extern "C" int zovQMINASSetDeviceConfigReqAddServiceProgrammingCode(uint8_t* buf, int bufsize, const uint8_t* code) {
    return add(buf, bufsize, 0x10, wrecord(code, 6));
}
extern "C" int zovQMINASSetDeviceConfigReqAddForceHDRRevision(uint8_t* buf, int bufsize, uint8_t revision) {
    return add(buf, bufsize, 0x14, w8(revision));
}
extern "C" int zovQMINASSetDeviceConfigReqAddHDRSCPCustomConfig(uint8_t* buf, int bufsize, uint8_t active,
                                                                uint32_t first, uint32_t second, uint32_t third) {
    return add(buf, bufsize, 0x15, w8(active), w32(first), w32(second), w32(third));
}
extern "C" int zovQMINASSetDeviceConfigReqAddRoamPreference(uint8_t* buf, int bufsize, uint8_t preference) {
    return add(buf, bufsize, 0x16, w8(preference));
}
extern "C" int zovQMINASSetDeviceConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0030);
}

// GetRFBandInfo 0x0031
extern "C" int zovQMINASGetRFBandInfoReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0031); }
extern "C" int zovQMINASGetRFBandInfoResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                          NASRFBandRecord* list) {
    return resp(msg, len, result, 0x0031, all(count), rfBandList(count, list));
}

// GetANAAAStatus 0x0032
extern "C" int zovQMINASGetANAAAStatusReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0032); }
extern "C" int zovQMINASGetANAAAStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status) {
    return resp(msg, len, result, 0x0032, all(status), scalar(status));
}

// SetSystemSelectionPreference 0x0033
extern "C" int zovQMINASSetSystemSelectionPreferenceReq(uint8_t* buf, int bufsize) {
    return req(buf, bufsize, 0x0033);
}
extern "C" int zovQMINASSetSystemSelectionPreferenceReqAddEmergencyMode(uint8_t* buf, int bufsize, uint8_t mode) {
    return add(buf, bufsize, 0x10, w8(mode));
}
extern "C" int zovQMINASSetSystemSelectionPreferenceReqAddModePreference(uint8_t* buf, int bufsize,
                                                                         uint16_t preference) {
    return add(buf, bufsize, 0x11, w16(preference));
}
extern "C" int zovQMINASSetSystemSelectionPreferenceReqAddBandPreference(uint8_t* buf, int bufsize,
                                                                         uint64_t preference) {
    return add(buf, bufsize, 0x12, w64(preference));
}
extern "C" int zovQMINASSetSystemSelectionPreferenceReqAddCDMAPRLPreference(uint8_t* buf, int bufsize,
                                                                            uint16_t preference) {
    return add(buf, bufsize, 0x13, w16(preference));
}
extern "C" int zovQMINASSetSystemSelectionPreferenceReqAddRoamingPreference(uint8_t* buf, int bufsize,
                                                                            uint16_t preference) {
    return add(buf, bufsize, 0x14, w16(preference));
}
extern "C" int zovQMINASSetSystemSelectionPreferenceResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0033);
}

// GetSystemSelectionPreference 0x0034; the SystemSelectionPreference
// indication shares the id and is read with the same getters.
extern "C" int zovQMINASGetSystemSelectionPreferenceReq(uint8_t* buf, int bufsize) {
    return req(buf, bufsize, 0x0034);
}
extern "C" int zovQMINASGetSystemSelectionPreferenceResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0034);
}
extern "C" int zovQMINASGetSystemSelectionPreferenceRespGetEmergencyMode(const uint8_t* msg, int len, uint8_t* mode) {
    return get(msg, len, 0x0034, 0x10, all(mode), scalar(mode));
}
extern "C" int zovQMINASGetSystemSelectionPreferenceRespGetModePreference(const uint8_t* msg, int len,
                                                                          uint16_t* preference) {
    return get(msg, len, 0x0034, 0x11, all(preference), scalar(preference));
}
extern "C" int zovQMINASGetSystemSelectionPreferenceRespGetBandPreference(const uint8_t* msg, int len,
                                                                          uint64_t* preference) {
    return get(msg, len, 0x0034, 0x12, all(preference), scalar(preference));
}
extern "C" int zovQMINASGetSystemSelectionPreferenceRespGetCDMAPRLPreference(const uint8_t* msg, int len,
                                                                             uint16_t* preference) {
    return get(msg, len, 0x0034, 0x13, all(preference), scalar(preference));
}
extern "C" int zovQMINASGetSystemSelectionPreferenceRespGetRoamingPreference(const uint8_t* msg, int len,
                                                                             uint16_t* preference) {
    return get(msg, len, 0x0034, 0x14, all(preference), scalar(preference));
}
extern "C" int zovQMINASSystemSelectionPreferenceIND(const uint8_t* msg, int len) { return ind(msg, len, 0x0034); }

// SetDDTMPreference: the request goes out as 0x0033 while its response is
// looked for as 0x0037; both ids are deliberate and kept.
extern "C" int zovQMINASSetDDTMPreferenceReq(uint8_t* buf, int bufsize, uint8_t first, uint16_t second, uint8_t third,
                                             uint8_t count, const uint16_t* list) {
    if (count != 0 && !list) return kErrArg;
    return reqTlv(buf, bufsize, 0x0033 /* deliberate */, w8(first), w16(second), w8(third), w8(count),
                  wfn(2u * count, [=](uint8_t* p) {
                      for (uint8_t i = 0; i < count; ++i) st16(p + 2 * i, list[i]);
                  }));
}
extern "C" int zovQMINASSetDDTMPreferenceResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0037 /* deliberate */);
}

// DDTM 0x0038 (indication): returns 0 on success, not the TLV-area length
// (deliberate).  The list pointer is not required; a non-zero count with a
// null list is refused with -1 and nothing written.
extern "C" int zovQMINASDDTMIND(const uint8_t* msg, int len, uint8_t* first, uint8_t* second, uint16_t* third,
                                uint8_t* count, uint16_t* list) {
    bool nullList = false;
    int r = ind(msg, len, 0x0038, all(first, second, third, count), [&](Dec& d) {
        uint8_t n = d.u8(4);
        if (n != 0 && !list) {
            nullList = true;
            d.fail();
            return;
        }
        d.put(first, d.u8(0));
        d.put(second, d.u8(1));
        d.put(third, d.le16(2));
        d.put(count, n);
        for (uint8_t i = 0; i < n; ++i) d.put(list + i, d.le16(5 + 2u * i));
    });
    if (nullList) return kErrArg;
    return r < 0 ? r : 0;
}
