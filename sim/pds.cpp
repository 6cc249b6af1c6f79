// PDS of the simulated modem: GPS service state, single position fixes and
// tracking.
//
// A fix is computed at once: after the response to DetermineSinglePosition
// the requesting client gets event reports with an NMEA GGA and RMC sentence,
// then one with the session status and the parsed position.  A client that
// subscribed through SetEventReport gets only what it subscribed to; one that
// never subscribed gets everything.  Turning automatic tracking on delivers
// five such fixes at once.
#include <cmath>
#include <cstdio>
#include <ctime>

#include "state.h"

namespace zovsim {

namespace {

enum : uint32_t { kRegNmea = 1, kRegParsed = 2 };

constexpr double kLatitude = 52.520008, kLongitude = 13.404954, kAltitude = 34.0;

std::string withChecksum(const std::string& body) {
    uint8_t sum = 0;
    for (char c : body) sum ^= uint8_t(c);
    char tail[16];
    std::snprintf(tail, sizeof tail, "*%02X\r\n", unsigned(sum));
    return "$" + body + tail;
}

std::string coord(double v, bool lat) {
    double a = std::fabs(v);
    int deg = int(a);
    double min = (a - deg) * 60.0;
    char buf[32];
    if (lat)
        std::snprintf(buf, sizeof buf, "%02d%07.4f,%c", deg, min, v >= 0 ? 'N' : 'S');
    else
        std::snprintf(buf, sizeof buf, "%03d%07.4f,%c", deg, min, v >= 0 ? 'E' : 'W');
    return buf;
}

uint64_t bitsOf(double d) {
    uint64_t b;
    std::memcpy(&b, &d, sizeof b);
    return b;
}

// The parsed position record: valid mask, UTC date and time, the UTC time
// stamp in ms, latitude and longitude (doubles), altitudes in metres, speeds
// and uncertainties, confidence, dilutions of precision (tenths) and the
// position source (1, GPS).
Bytes parsedPosition(const std::tm& t, uint64_t ms) {
    W w;
    w.u32(0x0000FFFF).u16(uint32_t(t.tm_year + 1900)).u8(uint32_t(t.tm_mon + 1)).u8(uint32_t(t.tm_wday));
    w.u8(uint32_t(t.tm_mday)).u8(uint32_t(t.tm_hour)).u8(uint32_t(t.tm_min)).u8(uint32_t(t.tm_sec));
    w.u16(uint32_t(ms % 1000)).u8(18).u64(ms).u32(10);
    w.u64(bitsOf(kLatitude)).u64(bitsOf(kLongitude)).u32(73).u32(uint32_t(kAltitude));
    w.u32(0).u32(0).u32(0);                      // speeds and heading
    for (int i = 0; i < 7; ++i) w.u32(5);        // uncertainties
    w.u8(68).u32(12).u32(9).u32(8).u8(1);
    return w;
}

// Fixes one start of tracking delivers (the simulation has no clock of its own).
constexpr int kTrackingBurst = 5;

// Queues the event reports of one fix at `ms` for `client`: an NMEA GGA and
// RMC sentence, then the session status with the parsed position, as far as
// the client subscribed (everything when it never did).
void queueFix(State& st, const Client& me, uint8_t client, uint64_t ms) {
    std::time_t secs = std::time_t(ms / 1000);
    std::tm t;
    gmtime_r(&secs, &t);
    char hms[48], date[48];
    std::snprintf(hms, sizeof hms, "%02d%02d%02d.%02d", t.tm_hour, t.tm_min, t.tm_sec, int(ms % 1000 / 10));
    std::snprintf(date, sizeof date, "%02d%02d%02d", t.tm_mday, t.tm_mon + 1, t.tm_year % 100);
    std::string gga = withChecksum(std::string("GPGGA,") + hms + "," + coord(kLatitude, true) + "," +
                                   coord(kLongitude, false) + ",1,08,0.9,34.0,M,39.2,M,,");
    std::string rmc = withChecksum(std::string("GPRMC,") + hms + ",A," + coord(kLatitude, true) + "," +
                                   coord(kLongitude, false) + ",0.0,0.0," + date + ",,,A");
    auto reg = me.reg.find(ZOVQMI_SERVICE_PDS);
    uint32_t want = reg == me.reg.end() ? (kRegNmea | kRegParsed) : reg->second;
    if (want & kRegNmea) {
        st.indicate(ZOVQMI_SERVICE_PDS, client, 0x0001, {{0x10, W().str(gga)}});
        st.indicate(ZOVQMI_SERVICE_PDS, client, 0x0001, {{0x10, W().str(rmc)}});
    }
    if (want & kRegParsed)
        st.indicate(ZOVQMI_SERVICE_PDS, client, 0x0001,
                    {{0x12, W().u8(0)}, {0x13, parsedPosition(t, ms)}, {0x1C, W().u32(1)}});
}

}  // namespace

Reply handlePds(State& st, const Req& r) {
    Client& me = *st.client(ZOVQMI_SERVICE_PDS, r.client);
    switch (r.id) {
    case 0x0000:  // Reset
        me.reg.erase(ZOVQMI_SERVICE_PDS);
        return ok();
    case 0x0001: {  // SetEventReport: NMEA (0x10) and parsed position (0x12)
        Val v;
        uint32_t& reg = me.reg[ZOVQMI_SERVICE_PDS];
        if (r.has(0x10, &v)) reg = v.u8(0) ? reg | kRegNmea : reg & ~kRegNmea;
        if (r.has(0x12, &v)) reg = v.u8(0) ? reg | kRegParsed : reg & ~kRegParsed;
        return ok();
    }
    case 0x0020:  // GetGPSServiceState: enabled, tracking state
        return ok({{0x01, W().u8(st.gpsEnabled).u8(st.autoTracking ? 1 : 0)}});
    case 0x0021: {  // SetGPSServiceState
        uint8_t state = r.need(0x01).u8(0);
        if (state > 1) return fail(kErrInvalidArgument);
        if (state == st.gpsEnabled) return fail(kErrNoEffect);
        st.gpsEnabled = state;
        st.indicate(ZOVQMI_SERVICE_PDS, r.client, 0x0020, {{0x01, W().u8(state).u8(0)}});
        return ok();
    }
    case 0x0029:  // GetDefaultTrackingSession
        return ok({{0x01, st.trackingSession}});
    case 0x002A:  // SetDefaultTrackingSession
        st.trackingSession = r.need(0x01).bytes(0, 10);
        return ok();
    case 0x0030: return ok({{0x01, W().u8(st.autoTracking)}});
    case 0x0031: {  // SetAutoTrackingState: tracking on delivers a burst of fixes, a second apart
        uint8_t on = r.need(0x01).u8(0);
        if (on && !st.gpsEnabled) return fail(kErrDeviceNotReady);
        bool starts = on && !st.autoTracking;
        st.autoTracking = on;
        if (starts) {
            uint64_t ms = st.nowMs();
            for (int i = 0; i < kTrackingBurst; ++i) queueFix(st, me, r.client, ms + 1000u * unsigned(i));
        }
        return ok();
    }
    case 0x0035: {  // DetermineSinglePosition
        if (!st.gpsEnabled) return fail(kErrDeviceNotReady);
        queueFix(st, me, r.client, st.nowMs());
        return ok();
    }
    case 0x0043:  // CancelSinglePosition: a fix never stays pending
        return fail(kErrNoEffect);
    case 0x0044: {  // GetGPSStateInfo
        W w;
        w.u8(1).u32(0x1F).u64(bitsOf(kLatitude)).u64(bitsOf(kLongitude));
        for (int i = 0; i < 4; ++i) w.u32(0);
        w.u16(0).u32(0).u8(1);
        for (int i = 0; i < 12; ++i) w.u32(0);
        w.u16(0).u16(0).u16(0);
        return ok({{0x10, w}});
    }
    default:
        return fail(kErrInvalidQmiCommand);
    }
}

}  // namespace zovsim
