// The modem operations of zovqmi-cli and the demo, each one exchange (or a
// few) over a Session, with the answers decoded into plain values.  Every
// function throws zovapp::Error (Timeout, QmiError) on failure.
#pragma once

#include <string>
#include <vector>

#include "session.h"

namespace zovapp {

struct Identity {
    std::string manufacturer, model, revision, hardware, imei, esn, meid;
};
Identity dmsIdentity(Session& s);
// MSISDN (needs the SIM).
std::string dmsMsisdn(Session& s);

uint8_t dmsOperatingMode(Session& s);
void dmsSetOperatingMode(Session& s, uint8_t mode);
const char* operatingModeName(uint8_t mode);
int operatingModeByName(const std::string& name);  // -1 when unknown

struct PinRetries {
    int verifyLeft = -1, unblockLeft = -1;
};
// Verifies PIN1.  On a wrong PIN throws QmiError whose text carries the
// retries left; `retries` is filled either way when the modem reports them.
void uimVerifyPin(Session& s, const std::string& pin, PinRetries* retries);

struct Signal {
    int dbm;
    uint8_t radio;
};
Signal nasSignal(Session& s);
const char* radioName(uint8_t radio);

struct Network {
    uint16_t mcc = 0, mnc = 0;
    uint8_t status = 0;
    std::string description;
};
struct Serving {
    uint8_t registration, csAttach, psAttach, networkType;
    std::vector<uint8_t> radios;
    bool hasPlmn = false;
    Network plmn;
    int roaming = -1;
};
Serving nasServing(Session& s);
const char* registrationName(uint8_t state);
std::vector<Network> nasScan(Session& s);

struct StartArgs {
    std::string apn, user, password;
    int auth = -1;      // -1 not given; 0 none, 1 PAP, 2 CHAP, 3 both
    int profile = -1;   // 3GPP profile index, -1 for the default
};
// Starts a call; returns the packet data handle.  A failure carries the
// call end reason in its text.
uint32_t wdsStart(Session& s, const StartArgs& a);
void wdsStop(Session& s, uint32_t handle);
// The connection status of the next packet service indication (1 down, 2 up).
uint8_t wdsAwaitStatus(Session& s, uint16_t* endReason = nullptr);

struct Runtime {
    std::string profileName, apn, user;
    uint32_t ipv4 = 0, gateway = 0, mask = 0, dns1 = 0, dns2 = 0, mtu = 0;
    int profileIndex = -1;
};
Runtime wdsRuntime(Session& s);
std::string ipv4(uint32_t address);

struct ProfileInfo {
    uint8_t type, index;
    std::string name, apn;
};
std::vector<ProfileInfo> wdsProfiles(Session& s);
uint8_t wdsCreateProfile(Session& s, const std::string& name, const std::string& apn);

struct SmsEntry {
    uint32_t index;
    uint8_t tag;
};
const char* tagName(uint8_t tag);
int storeByName(const std::string& name);  // uim 0, nv 1; -1 when unknown
std::vector<SmsEntry> wmsList(Session& s, uint8_t store);
struct Sms {
    uint8_t tag = 0, format = 0;
    std::vector<uint8_t> pdu;
};
Sms wmsRead(Session& s, uint8_t store, uint32_t index);
uint32_t wmsWrite(Session& s, uint8_t store, const std::vector<uint8_t>& pdu);
// An SMS-SUBMIT PDU with 7-bit text, and the text of a 7-bit DELIVER or
// SUBMIT PDU ("" when it is not one).
std::vector<uint8_t> submitPdu(const std::string& to, const std::string& text);
std::string pduText(const std::vector<uint8_t>& pdu, std::string* address = nullptr);

struct PbEntry {
    uint16_t id;
    std::string number, name;
};
std::vector<PbEntry> pbmRead(Session& s, uint16_t phonebook, uint16_t first, uint16_t last);

struct Fix {
    std::vector<std::string> nmea;
    bool hasPosition = false;
    double latitude = 0, longitude = 0;
    int altitude = 0;
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    int sessionStatus = -1;
};
Fix pdsSingleFix(Session& s);

std::string hexBytes(const std::vector<uint8_t>& b);

}  // namespace zovapp
