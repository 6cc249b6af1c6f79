// PDS, the position determination service: GPS service state, position
// sessions and the event report; engine configuration and the injection of
// time, position, WiFi, XTRA and file data.
//
// Records that mirror the wire keep their integers as little-endian bytes, so
// they are copied as they are; 64-bit values travel as raw bits.
#include <stddef.h>

#include "msg/pattern.h"

using namespace zq;

namespace {

// ------------------------------------------------------- prompt layouts --
//
// A network-initiated prompt is a run of segments, in record order:
//   kFixed    n bytes, the same in the record and on the wire;
//   kInline   a length byte at `off` followed in the record by its block
//             (at most 255 bytes, so it always fits);
//   kPointer  a length byte at `off` and a caller pointer at `ptr`.
// On the wire each length byte is followed directly by that many bytes.
enum SegKind : uint8_t { kFixed, kInline, kPointer };
struct Seg {
    SegKind kind;
    size_t off;
    size_t n;    // kFixed: byte count
    size_t ptr;  // kPointer: offset of the pointer field
};

constexpr Seg fixedSeg(size_t off, size_t n) { return {kFixed, off, n, 0}; }
constexpr Seg inlineSeg(size_t off) { return {kInline, off, 0, 0}; }
constexpr Seg pointerSeg(size_t off, size_t ptr) { return {kPointer, off, 0, ptr}; }

#define PDS_OFF(T, f) offsetof(T, f)
using VX = NetworkInitiatedPromptVX;
using SUPL = NetworkInitiatedPromptSUPL;
using UMTS = NetworkInitiatedPromptUMTSCP;

constexpr Seg kVX[] = {
    fixedSeg(0, PDS_OFF(VX, dataLength)),
    pointerSeg(PDS_OFF(VX, dataLength), PDS_OFF(VX, data)),
};
constexpr Seg kSUPL[] = {
    fixedSeg(0, PDS_OFF(SUPL, length1)),
    inlineSeg(PDS_OFF(SUPL, length1)),
    fixedSeg(PDS_OFF(SUPL, hash), 2),
    pointerSeg(PDS_OFF(SUPL, length2), PDS_OFF(SUPL, block2)),
    fixedSeg(PDS_OFF(SUPL, clientNameEncoding), 1),
    pointerSeg(PDS_OFF(SUPL, length3), PDS_OFF(SUPL, block3)),
    fixedSeg(PDS_OFF(SUPL, qosHorizontalAccuracy), 4),
};
constexpr Seg kUMTS[] = {
    fixedSeg(0, PDS_OFF(UMTS, length1)),
    pointerSeg(PDS_OFF(UMTS, length1), PDS_OFF(UMTS, block1)),
    inlineSeg(PDS_OFF(UMTS, length2)),
    fixedSeg(PDS_OFF(UMTS, locationType), 2),
    pointerSeg(PDS_OFF(UMTS, length3), PDS_OFF(UMTS, block3)),
    fixedSeg(PDS_OFF(UMTS, requesterIdEncoding), 1),
    pointerSeg(PDS_OFF(UMTS, length4), PDS_OFF(UMTS, block4)),
    fixedSeg(PDS_OFF(UMTS, codewordEncoding), 1),
};
#undef PDS_OFF

// Writes a prompt record as item `type`.  Every pointer block with a non-zero
// length must have its pointer set: a null one is refused with -1, so that no
// block is ever read through a null pointer.
template <size_t N>
int addPrompt(uint8_t* buf, int bufsize, uint8_t type, const void* record, const Seg (&segs)[N]) {
    if (!buf || !record) return kErrArg;
    const uint8_t* rec = static_cast<const uint8_t*>(record);
    size_t n = 0;
    for (const Seg& s : segs) {
        if (s.kind == kFixed) {
            n += s.n;
            continue;
        }
        n += 1u + rec[s.off];
        if (s.kind == kPointer && rec[s.off] != 0 && !ldPtr(rec + s.ptr)) return kErrArg;
    }
    return add(buf, bufsize, type, wfn(n, [rec, &segs](uint8_t* p) {
                   for (const Seg& s : segs) {
                       if (s.kind == kFixed) {
                           copyBytes(p, rec + s.off, s.n);
                           p += s.n;
                           continue;
                       }
                       const uint8_t len = rec[s.off];
                       *p++ = len;
                       if (len) copyBytes(p, s.kind == kInline ? rec + s.off + 1 : ldPtr(rec + s.ptr), len);
                       p += len;
                   }
               }));
}

// Reads a prompt value into the caller's record: each length byte is stored,
// its block copied inline or through the record's pointer (when that is set),
// and the wire offset always advances by the length.
template <class R, size_t N>
auto readPrompt(R* prompt, const Seg (&segs)[N]) {
    return [prompt, &segs](Dec& d) {
        Dec::Record out = d.record(prompt, sizeof(R));
        size_t o = 0;
        for (const Seg& s : segs) {
            if (s.kind == kFixed) {
                out.copy(s.off, o, s.n);
                o += s.n;
                continue;
            }
            const uint8_t len = d.u8(o);
            out.put8(s.off, len);
            if (s.kind == kInline)
                out.copy(s.off + 1, o + 1, len);
            else
                d.copy(out.ptr(s.ptr), o + 1, len);
            o += 1u + len;
        }
    };
}

// An assistance-data request list: `count` at value offset `at`, then count
// entries of a length byte and that many bytes, into LengthPrefixedEntry
// records (the bytes go through each record's pointer when it is set).
void entryList(Dec& d, size_t at, uint8_t* count, LengthPrefixedEntry* entries) {
    const uint8_t n = d.u8(at);
    d.put(count, n);
    if (!entries) return;
    Dec::Record out = d.record(entries);
    size_t o = at + 1;
    for (uint8_t i = 0; i < n; ++i) {
        const size_t e = i * sizeof(LengthPrefixedEntry);
        const uint8_t len = d.u8(o);
        out.put16(e + offsetof(LengthPrefixedEntry, length), len);
        d.copy(out.ptr(e + offsetof(LengthPrefixedEntry, data)), o + 1, len);
        o += 1u + len;
    }
}

// A length byte followed by that many bytes: the byte into *length, the bytes
// into data when it is set.
auto counted(uint8_t* length, void* data) {
    return [=](Dec& d) {
        const uint8_t n = d.u8(0);
        d.put(length, n);
        d.copy(data, 1, n);
    };
}

}  // namespace

// ====================================================== service and sessions

// Reset 0x00
extern "C" int zovQMIPDSResetReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x00); }
extern "C" int zovQMIPDSResetResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x00);
}

// SetEventReport 0x01.  The subscription items skip 0x11 and are numbered one
// lower than the items of the EventReport indication they enable.
extern "C" int zovQMIPDSSetEventReportReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x01); }
extern "C" int zovQMIPDSSetEventReportReqAddPositionDataNMEA(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x10, w8(report));
}
extern "C" int zovQMIPDSSetEventReportReqAddParsedPositionData(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x12, w8(report));
}
extern "C" int zovQMIPDSSetEventReportReqAddExternalXTRADataRequest(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x13, w8(report));
}
extern "C" int zovQMIPDSSetEventReportReqAddExternalTimeInjectionRequest(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x14, w8(report));
}
extern "C" int zovQMIPDSSetEventReportReqAddExternalWiFiPositionRequest(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x15, w8(report));
}
extern "C" int zovQMIPDSSetEventReportReqAddSatelliteInformation(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x16, w8(report));
}
extern "C" int zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptVX(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x17, w8(report));
}
extern "C" int zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptSUPL(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x18, w8(report));
}
extern "C" int zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptUMTSCP(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x19, w8(report));
}
extern "C" int zovQMIPDSSetEventReportReqAddPDSCommEvents(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x1A, w8(report));
}
extern "C" int zovQMIPDSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x01);
}

// EventReport 0x01 (indication)
extern "C" int zovQMIPDSEventReportIND(const uint8_t* msg, int len) { return ind(msg, len, 0x01); }
extern "C" int zovQMIPDSEventReportINDGetPositionDataNMEA(const uint8_t* msg, int len, uint16_t* length, void* data) {
    return get(msg, len, 0x01, 0x10, all(length), text(length, data));
}
extern "C" int zovQMIPDSEventReportINDGetPositionSessionStatus(const uint8_t* msg, int len, uint8_t* status) {
    return get(msg, len, 0x01, 0x12, all(status), scalar(status));
}
extern "C" int zovQMIPDSEventReportINDGetParsedPositionData(const uint8_t* msg, int len, ParsedPositionData* data) {
    return get(msg, len, 0x01, 0x13, all(data), raw(data, sizeof *data));
}
extern "C" int zovQMIPDSEventReportINDGetExternalXTRADatabaseRequest(const uint8_t* msg, int len, uint16_t* maxFileSize,
                                                                     uint8_t* count, LengthPrefixedEntry* entries) {
    return get(msg, len, 0x01, 0x14, all(maxFileSize, count), [=](Dec& d) {
        d.put(maxFileSize, d.le16(0));
        entryList(d, 2, count, entries);
    });
}
extern "C" int zovQMIPDSEventReportINDGetExternalTimeInjectionRequest(const uint8_t* msg, int len,
                                                                      uint32_t* delayThreshold, uint8_t* count,
                                                                      LengthPrefixedEntry* entries) {
    return get(msg, len, 0x01, 0x15, all(delayThreshold, count), [=](Dec& d) {
        d.put(delayThreshold, d.le32(0));
        entryList(d, 4, count, entries);
    });
}
extern "C" int zovQMIPDSEventReportINDGetExternalWiFiPositionRequest(const uint8_t* msg, int len, uint8_t* request,
                                                                     uint16_t* interval) {
    return get(msg, len, 0x01, 0x16, all(request, interval), [=](Dec& d) {
        d.put(request, d.u8(0));
        d.put(interval, d.le16(1));
    });
}
// Value: u32, u8, count, then count 18-byte entries laid out as the records.
extern "C" int zovQMIPDSEventReportINDGetSatelliteInformation(const uint8_t* msg, int len, uint32_t* validMask,
                                                              uint8_t* iono, uint8_t* count,
                                                              SatelliteInformationEntry* entries) {
    return get(msg, len, 0x01, 0x17, all(validMask, iono, count), [=](Dec& d) {
        d.put(validMask, d.le32(0));
        d.put(iono, d.u8(4));
        const uint8_t n = d.u8(5);
        d.put(count, n);
        d.copy(entries, 6, n * sizeof(SatelliteInformationEntry));
    });
}
extern "C" int zovQMIPDSEventReportINDGetNetworkInitiatedPromptVX(const uint8_t* msg, int len,
                                                                  NetworkInitiatedPromptVX* prompt) {
    return get(msg, len, 0x01, 0x18, all(prompt), readPrompt(prompt, kVX));
}
extern "C" int zovQMIPDSEventReportINDGetNetworkInitiatedPromptSUPL(const uint8_t* msg, int len,
                                                                    NetworkInitiatedPromptSUPL* prompt) {
    return get(msg, len, 0x01, 0x19, all(prompt), readPrompt(prompt, kSUPL));
}
extern "C" int zovQMIPDSEventReportINDGetNetworkInitiatedPromptUMTSCP(const uint8_t* msg, int len,
                                                                      NetworkInitiatedPromptUMTSCP* prompt) {
    return get(msg, len, 0x01, 0x1A, all(prompt), readPrompt(prompt, kUMTS));
}
extern "C" int zovQMIPDSEventReportINDGetPDSCommEvents(const uint8_t* msg, int len, uint8_t* type, uint8_t* state) {
    return get(msg, len, 0x01, 0x1B, all(type, state), [=](Dec& d) {
        d.put(type, d.u8(0));
        d.put(state, d.u8(1));
    });
}
extern "C" int zovQMIPDSEventReportINDGetPositionSource(const uint8_t* msg, int len, uint32_t* source) {
    return get(msg, len, 0x01, 0x1C, all(source), scalar(source));
}

// GetGPSServiceState 0x20 and the GPSServiceState indication
namespace {
auto serviceState(uint8_t* enabled, uint8_t* trackingState) {
    return [=](Dec& d) {
        d.put(enabled, d.u8(0));
        d.put(trackingState, d.u8(1));
    };
}
}  // namespace
extern "C" int zovQMIPDSGetGPSServiceStateReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x20); }
extern "C" int zovQMIPDSGetGPSServiceStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* enabled,
                                               uint8_t* trackingState) {
    return resp(msg, len, result, 0x20, all(enabled, trackingState), serviceState(enabled, trackingState));
}
extern "C" int zovQMIPDSGPSServiceStateIND(const uint8_t* msg, int len, uint8_t* enabled, uint8_t* trackingState) {
    return ind(msg, len, 0x20, all(enabled, trackingState), serviceState(enabled, trackingState));
}

// SetGPSServiceState 0x21
extern "C" int zovQMIPDSSetGPSServiceStateReq(uint8_t* buf, int bufsize, uint8_t state) {
    return reqTlv(buf, bufsize, 0x21, w8(state));
}
extern "C" int zovQMIPDSSetGPSServiceStateResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x21);
}

// GetDefaultTrackingSession 0x29
extern "C" int zovQMIPDSGetDefaultTrackingSessionReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x29); }
extern "C" int zovQMIPDSGetDefaultTrackingSessionResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* mode,
                                                      uint8_t* timeout, uint32_t* interval, uint32_t* accuracy) {
    return resp(msg, len, result, 0x29, all(mode, timeout, interval, accuracy), [=](Dec& d) {
        d.put(mode, d.u8(0));
        d.put(timeout, d.u8(1));
        d.put(interval, d.le32(2));
        d.put(accuracy, d.le32(6));
    });
}

// SetDefaultTrackingSession 0x2A
extern "C" int zovQMIPDSSetDefaultTrackingSessionReq(uint8_t* buf, int bufsize, uint8_t mode, uint8_t timeout,
                                                     uint32_t interval, uint32_t accuracy) {
    return reqTlv(buf, bufsize, 0x2A, w8(mode), w8(timeout), w32(interval), w32(accuracy));
}
extern "C" int zovQMIPDSSetDefaultTrackingSessionResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x2A);
}

// GetAutoTrackingState 0x30
extern "C" int zovQMIPDSGetAutoTrackingStateReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x30); }
extern "C" int zovQMIPDSGetAutoTrackingStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* state) {
    return resp(msg, len, result, 0x30, all(state), scalar(state));
}

// SetAutoTrackingState 0x31
extern "C" int zovQMIPDSSetAutoTrackingStateReq(uint8_t* buf, int bufsize, uint8_t state) {
    return reqTlv(buf, bufsize, 0x31, w8(state));
}
extern "C" int zovQMIPDSSetAutoTrackingStateResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x31);
}

// DetermineSinglePosition 0x35
extern "C" int zovQMIPDSDetermineSinglePositionReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x35); }
extern "C" int zovQMIPDSDetermineSinglePositionReqAddSinglePositionMode(uint8_t* buf, int bufsize, uint8_t mode) {
    return add(buf, bufsize, 0x10, w8(mode));
}
extern "C" int zovQMIPDSDetermineSinglePositionReqAddSinglePositionTimeout(uint8_t* buf, int bufsize, uint8_t timeout) {
    return add(buf, bufsize, 0x11, w8(timeout));
}
extern "C" int zovQMIPDSDetermineSinglePositionReqAddSinglePositionAccuracy(uint8_t* buf, int bufsize,
                                                                            uint32_t accuracy) {
    return add(buf, bufsize, 0x12, w32(accuracy));
}
extern "C" int zovQMIPDSDetermineSinglePositionResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x35);
}

// SendNIResponse 0x3C
extern "C" int zovQMIPDSSendNIResponseReq(uint8_t* buf, int bufsize, uint8_t action) {
    return reqTlv(buf, bufsize, 0x3C, w8(action));
}
extern "C" int zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptVX(uint8_t* buf, int bufsize,
                                                                     const NetworkInitiatedPromptVX* prompt) {
    return addPrompt(buf, bufsize, 0x10, prompt, kVX);
}
extern "C" int zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptSUPL(uint8_t* buf, int bufsize,
                                                                       const NetworkInitiatedPromptSUPL* prompt) {
    return addPrompt(buf, bufsize, 0x11, prompt, kSUPL);
}
extern "C" int zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptUMTSCP(uint8_t* buf, int bufsize,
                                                                         const NetworkInitiatedPromptUMTSCP* prompt) {
    // Deliberately item 0x11, the same type as the SUPL answer.
    return addPrompt(buf, bufsize, 0x11, prompt, kUMTS);
}
extern "C" int zovQMIPDSSendNIResponseResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x3C);
}

// CancelSinglePosition 0x43
extern "C" int zovQMIPDSCancelSinglePositionReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x43); }
extern "C" int zovQMIPDSCancelSinglePositionResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x43);
}

// GetGPSStateInfo 0x44
extern "C" int zovQMIPDSGetGPSStateInfoReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x44); }
extern "C" int zovQMIPDSGetGPSStateInfoResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x44);
}
extern "C" int zovQMIPDSGetGPSStateInfoRespGetGPSStateInformation(const uint8_t* msg, int len,
                                                                  GPSStateInformation* info) {
    return get(msg, len, 0x44, 0x10, all(info), raw(info, sizeof *info));
}

// ================================================= configuration and injection

// GetNMEAConfig 0x26
extern "C" int zovQMIPDSGetNMEAConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x26); }
extern "C" int zovQMIPDSGetNMEAConfigResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* sentenceMask,
                                          uint8_t* port, uint8_t* reporting) {
    return resp(msg, len, result, 0x26, all(sentenceMask, port, reporting), [=](Dec& d) {
        d.put(sentenceMask, d.u8(0));
        d.put(port, d.u8(1));
        d.put(reporting, d.u8(2));
    });
}

// SetNMEAConfig 0x27
extern "C" int zovQMIPDSSetNMEAConfigReq(uint8_t* buf, int bufsize, uint8_t sentenceMask, uint8_t port,
                                         uint8_t reporting) {
    return reqTlv(buf, bufsize, 0x27, w8(sentenceMask), w8(port), w8(reporting));
}
extern "C" int zovQMIPDSSetNMEAConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x27);
}

// InjectRelativeTimeRef 0x28
extern "C" int zovQMIPDSInjectRelativeTimeRefReq(uint8_t* buf, int bufsize, uint64_t systemTime,
                                                 uint16_t discontinuities) {
    return reqTlv(buf, bufsize, 0x28, w64(systemTime), w16(discontinuities));
}
extern "C" int zovQMIPDSInjectRelativeTimeRefResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x28);
}

// GetXTRAParameters 0x2B
extern "C" int zovQMIPDSGetXTRAParametersReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x2B); }
extern "C" int zovQMIPDSGetXTRAParametersResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x2B);
}
extern "C" int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseAutodownload(const uint8_t* msg, int len, uint8_t* enabled,
                                                                         uint16_t* interval) {
    return get(msg, len, 0x2B, 0x10, all(enabled, interval), [=](Dec& d) {
        d.put(enabled, d.u8(0));
        d.put(interval, d.le16(1));
    });
}
extern "C" int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadMediumConfiguration(const uint8_t* msg, int len,
                                                                                        uint8_t* length, void* data) {
    return get(msg, len, 0x2B, 0x11, all(length), counted(length, data));
}
extern "C" int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadNetworkConfiguration(const uint8_t* msg, int len,
                                                                                         uint8_t* network) {
    return get(msg, len, 0x2B, 0x12, all(network), scalar(network));
}
extern "C" int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseValidity(const uint8_t* msg, int len, uint16_t* startWeek,
                                                                     uint16_t* startMinutes, uint16_t* validHours) {
    return get(msg, len, 0x2B, 0x13, all(startWeek, startMinutes, validHours), [=](Dec& d) {
        d.put(startWeek, d.le16(0));
        d.put(startMinutes, d.le16(2));
        d.put(validHours, d.le16(4));
    });
}
extern "C" int zovQMIPDSGetXTRAParametersRespGetEmbeddedXTRAClientState(const uint8_t* msg, int len,
                                                                        uint8_t* dataClient, uint8_t* timeClient) {
    return get(msg, len, 0x2B, 0x14, all(dataClient, timeClient), [=](Dec& d) {
        d.put(dataClient, d.u8(0));
        d.put(timeClient, d.u8(1));
    });
}

// SetXTRAParameters 0x2C
extern "C" int zovQMIPDSSetXTRAParametersReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x2C); }
extern "C" int zovQMIPDSSetXTRAParametersReqAddXTRADatabaseAutodownload(uint8_t* buf, int bufsize, uint8_t enabled,
                                                                        uint16_t interval) {
    return add(buf, bufsize, 0x10, w8(enabled), w16(interval));
}
extern "C" int zovQMIPDSSetXTRAParametersReqAddXTRADatabaseDownloadConfiguration(uint8_t* buf, int bufsize,
                                                                                 uint8_t length, const void* data) {
    return add(buf, bufsize, 0x11, w8(length), wbytes(length, data));
}
extern "C" int zovQMIPDSSetXTRAParametersReqAddXTRADatabaseNetworkConfiguration(uint8_t* buf, int bufsize,
                                                                                uint8_t network) {
    return add(buf, bufsize, 0x12, w8(network));
}
extern "C" int zovQMIPDSSetXTRAParametersReqAddEmbeddedXTRAClientState(uint8_t* buf, int bufsize, uint8_t dataClient,
                                                                       uint8_t timeClient) {
    return add(buf, bufsize, 0x14, w8(dataClient), w8(timeClient));
}
extern "C" int zovQMIPDSSetXTRAParametersResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x2C);
}

// ForceXTRADownload 0x2D
extern "C" int zovQMIPDSForceXTRADownloadReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x2D); }
extern "C" int zovQMIPDSForceXTRADownloadResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x2D);
}

// GetAGPSConfig 0x2E
extern "C" int zovQMIPDSGetAGPSConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x2E); }
extern "C" int zovQMIPDSGetAGPSConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x2E);
}
extern "C" int zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerIPv4(const uint8_t* msg, int len, uint32_t* address,
                                                                   uint32_t* port) {
    return get(msg, len, 0x2E, 0x10, all(address, port), [=](Dec& d) {
        d.put(address, d.le32(0));
        d.put(port, d.le32(4));
    });
}
extern "C" int zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerURL(const uint8_t* msg, int len, uint8_t* length,
                                                                  void* data) {
    return get(msg, len, 0x2E, 0x11, all(length), counted(length, data));
}

// SetAGPSConfig 0x2F
extern "C" int zovQMIPDSSetAGPSConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x2F); }
extern "C" int zovQMIPDSSetAGPSConfigReqAddAGPSLocationServer(uint8_t* buf, int bufsize, uint32_t address,
                                                              uint32_t port) {
    return add(buf, bufsize, 0x10, w32(address), w32(port));
}
extern "C" int zovQMIPDSSetAGPSConfigReqAddAGPSLocationServerURL(uint8_t* buf, int bufsize, uint8_t length,
                                                                 const void* data) {
    return add(buf, bufsize, 0x11, w8(length), wbytes(length, data));
}
extern "C" int zovQMIPDSSetAGPSConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x2F);
}

// GetCOMPortConfig 0x32
extern "C" int zovQMIPDSGetCOMPortConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x32); }
extern "C" int zovQMIPDSGetCOMPortConfigResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* port) {
    return resp(msg, len, result, 0x32, all(port), scalar(port));
}

// SetCOMPortConfig 0x33
extern "C" int zovQMIPDSSetCOMPortConfigReq(uint8_t* buf, int bufsize, uint8_t port) {
    return reqTlv(buf, bufsize, 0x33, w8(port));
}
extern "C" int zovQMIPDSSetCOMPortConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x33);
}

// ResetGPSServiceData 0x34
extern "C" int zovQMIPDSResetGPSServiceDataReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x34); }
extern "C" int zovQMIPDSResetGPSServiceDataReqAddGPSServiceData(uint8_t* buf, int bufsize, uint32_t mask) {
    return add(buf, bufsize, 0x10, w32(mask));
}
extern "C" int zovQMIPDSResetGPSServiceDataReqAddGPSServiceCellDBData(uint8_t* buf, int bufsize, uint32_t mask) {
    return add(buf, bufsize, 0x11, w32(mask));
}
extern "C" int zovQMIPDSResetGPSServiceDataResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x34);
}

// GetGPSServiceVersion 0x36
extern "C" int zovQMIPDSGetGPSServiceVersionReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x36); }
extern "C" int zovQMIPDSGetGPSServiceVersionResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* major,
                                                 uint8_t* minor) {
    return resp(msg, len, result, 0x36, all(major, minor), [=](Dec& d) {
        d.put(major, d.u8(0));
        d.put(minor, d.u8(1));
    });
}

// InjectXTRAData 0x37: item 0x01 is u8, u16, the data length as u16, the data.
extern "C" int zovQMIPDSInjectXTRADataReq(uint8_t* buf, int bufsize, uint8_t sequence, uint16_t totalLength,
                                          uint16_t length, const void* data) {
    return reqTlv(buf, bufsize, 0x37, w8(sequence), w16(totalLength), w16(length), wbytes(length, data));
}
extern "C" int zovQMIPDSInjectXTRADataResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x37);
}

// InjectPositionData 0x38
extern "C" int zovQMIPDSInjectPositionDataReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x38); }
extern "C" int zovQMIPDSInjectPositionDataReqAddTimestamp(uint8_t* buf, int bufsize, uint64_t timestamp) {
    return add(buf, bufsize, 0x10, w64(timestamp));
}
extern "C" int zovQMIPDSInjectPositionDataReqAddLatitude(uint8_t* buf, int bufsize, uint64_t latitude) {
    return add(buf, bufsize, 0x11, w64(latitude));
}
extern "C" int zovQMIPDSInjectPositionDataReqAddLongitude(uint8_t* buf, int bufsize, uint64_t longitude) {
    return add(buf, bufsize, 0x12, w64(longitude));
}
extern "C" int zovQMIPDSInjectPositionDataReqAddAltitudeFromEllipsoid(uint8_t* buf, int bufsize, uint32_t altitude) {
    return add(buf, bufsize, 0x13, w32(altitude));
}
extern "C" int zovQMIPDSInjectPositionDataReqAddAltitudeFromSeaLevel(uint8_t* buf, int bufsize, uint32_t altitude) {
    return add(buf, bufsize, 0x14, w32(altitude));
}
extern "C" int zovQMIPDSInjectPositionDataReqAddHorizontalUncertaintyCircular(uint8_t* buf, int bufsize,
                                                                              uint32_t uncertainty) {
    return add(buf, bufsize, 0x15, w32(uncertainty));
}
extern "C" int zovQMIPDSInjectPositionDataReqAddVerticalUncertainty(uint8_t* buf, int bufsize, uint32_t uncertainty) {
    return add(buf, bufsize, 0x16, w32(uncertainty));
}
extern "C" int zovQMIPDSInjectPositionDataReqAddHorizontalConfidence(uint8_t* buf, int bufsize, uint8_t confidence) {
    return add(buf, bufsize, 0x17, w8(confidence));
}
extern "C" int zovQMIPDSInjectPositionDataReqAddVerticalConfidence(uint8_t* buf, int bufsize, uint8_t confidence) {
    return add(buf, bufsize, 0x18, w8(confidence));
}
extern "C" int zovQMIPDSInjectPositionDataReqAddPositionSource(uint8_t* buf, int bufsize, uint8_t source) {
    return add(buf, bufsize, 0x19, w8(source));
}
extern "C" int zovQMIPDSInjectPositionDataReqAddTimeType(uint8_t* buf, int bufsize, uint8_t timeType) {
    return add(buf, bufsize, 0x1A, w8(timeType));
}
extern "C" int zovQMIPDSInjectPositionDataResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x38);
}

// InjectWiFiPositionData 0x39
extern "C" int zovQMIPDSInjectWiFiPositionDataReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x39); }
extern "C" int zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionTime(uint8_t* buf, int bufsize, uint32_t time) {
    return add(buf, bufsize, 0x10, w32(time));
}
extern "C" int zovQMIPDSInjectWiFiPositionDataReqAddWiFiPosition(uint8_t* buf, int bufsize, uint32_t latitude,
                                                                 uint32_t longitude, uint16_t uncertainty,
                                                                 uint8_t confidence, uint8_t reliability) {
    return add(buf, bufsize, 0x11, w32(latitude), w32(longitude), w16(uncertainty), w8(confidence), w8(reliability));
}
// Count, then the caller's 13-byte entries as they are (they mirror the wire).
extern "C" int zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionAPInformation(uint8_t* buf, int bufsize, uint8_t count,
                                                                              const WiFiAccessPointEntry* entries) {
    return add(buf, bufsize, 0x12, w8(count), wbytes(count * sizeof(WiFiAccessPointEntry), entries));
}
extern "C" int zovQMIPDSInjectWiFiPositionDataResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x39);
}

// GetSBASConfig 0x3A
extern "C" int zovQMIPDSGetSBASConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x3A); }
extern "C" int zovQMIPDSGetSBASConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x3A);
}
extern "C" int zovQMIPDSGetSBASConfigRespGetSBASConfiguration(const uint8_t* msg, int len, uint8_t* config) {
    return get(msg, len, 0x3A, 0x10, all(config), scalar(config));
}

// SetSBASConfig 0x3B
extern "C" int zovQMIPDSSetSBASConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x3B); }
extern "C" int zovQMIPDSSetSBASConfigReqAddSBASConfiguration(uint8_t* buf, int bufsize, uint8_t config) {
    return add(buf, bufsize, 0x10, w8(config));
}
extern "C" int zovQMIPDSSetSBASConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x3B);
}

// InjectAbsTimeRef 0x3D
extern "C" int zovQMIPDSInjectAbsTimeRefReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x3D); }
extern "C" int zovQMIPDSInjectAbsTimeRefReqAddAbsoluteTimeInjection(uint8_t* buf, int bufsize, uint64_t time,
                                                                    uint32_t uncertainty, uint8_t timeBase,
                                                                    uint8_t forceAccept) {
    // Deliberately appended as item 0x01 behind a header written with no items.
    return add(buf, bufsize, 0x01, w64(time), w32(uncertainty), w8(timeBase), w8(forceAccept));
}
extern "C" int zovQMIPDSInjectAbsTimeRefResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x3D);
}

// InjectEFSData 0x3E: item 0x01 is the name length, the name, a byte, the data
// length as u32, two bytes, the data.
extern "C" int zovQMIPDSInjectEFSDataReq(uint8_t* buf, int bufsize, const EFSFileRecord* file) {
    if (!file) return kErrArg;
    const uint8_t* f = reinterpret_cast<const uint8_t*>(file);
    const uint32_t dataLength = ld32(f + offsetof(EFSFileRecord, dataLength));
    // The total is 18 + name + data, compared in 64 bits so that a huge data
    // length cannot wrap below bufsize.
    if (uint64_t{18} + file->nameLength + dataLength > static_cast<uint64_t>(bufsize < 0 ? 0 : bufsize)) return kErrArg;
    return reqTlv(buf, bufsize, 0x3E, w8(file->nameLength),
                  wbytes(file->nameLength, ldPtr(f + offsetof(EFSFileRecord, name))), w8(file->fileOperation),
                  w32(dataLength), w8(file->partNumber), w8(file->totalParts),
                  wbytes(dataLength, ldPtr(f + offsetof(EFSFileRecord, data))));
}
extern "C" int zovQMIPDSInjectEFSDataResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x3E);
}

// GetDPOConfig 0x3F
extern "C" int zovQMIPDSGetDPOConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x3F); }
extern "C" int zovQMIPDSGetDPOConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x3F);
}
extern "C" int zovQMIPDSGetDPOConfigRespGetDPOConfiguration(const uint8_t* msg, int len, uint8_t* config) {
    return get(msg, len, 0x3F, 0x10, all(config), scalar(config));
}

// SetDPOConfig 0x40
extern "C" int zovQMIPDSSetDPOConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x40); }
extern "C" int zovQMIPDSSetDPOConfigReqAddDPOConfiguration(uint8_t* buf, int bufsize, uint8_t config) {
    return add(buf, bufsize, 0x10, w8(config));
}
extern "C" int zovQMIPDSSetDPOConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x40);
}

// GetODPConfig 0x41
extern "C" int zovQMIPDSGetODPConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x41); }
extern "C" int zovQMIPDSGetODPConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x41);
}
extern "C" int zovQMIPDSGetODPConfigRespGetODPConfiguration(const uint8_t* msg, int len, uint8_t* config) {
    return get(msg, len, 0x41, 0x10, all(config), scalar(config));
}

// SetODPConfig 0x42
extern "C" int zovQMIPDSSetODPConfigReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x42); }
extern "C" int zovQMIPDSSetODPConfigReqAddODPConfiguration(uint8_t* buf, int bufsize, uint8_t config) {
    return add(buf, bufsize, 0x10, w8(config));
}
extern "C" int zovQMIPDSSetODPConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x42);
}
