#!/usr/bin/env bash
# End to end: every action of zovqmi-cli against the simulated modem, its
# text and JSON output and its exit statuses.  The simulator runs on this
# machine (its FUSE device node, or its pseudo-terminal when /dev/fuse
# cannot be used); the tool may run under an emulator (cross builds).
#
#   e2e_cli.sh SIM CLI-COMMAND...   e.g. e2e_cli.sh zovqmi-sim qemu-mipsel -L /usr/mipsel-linux-gnu zovqmi-cli
#
# Exit 77 (skipped) when the simulator is missing.
set -u
SIM=$1
shift
CLI=("$@")
[ -x "$SIM" ] || { echo "skip: no simulator at $SIM"; exit 77; }
RUN=("${CLI[@]}")
. "$(dirname "$0")/../../tests/e2e_lib.sh"

# The transport: the device node when FUSE works (and ZOVQMI_E2E_PTY is not
# set), else the pseudo-terminal.
transport() {
    if [ -z "${ZOVQMI_E2E_PTY:-}" ] && [ -r /dev/fuse ] && [ -w /dev/fuse ]; then
        start "$1" --fuse "$work/$1" "${@:2}"
    else
        start "$1" --pty "${@:2}"
    fi
}

# --- checked before any device is opened --------------------------------------
expect "usage: no action" 2 "no action given" -- -d /dev/null
expect "usage: no device" 2 "no device given" -- --dms-get-ids
expect "usage: unknown option" 2 "unknown option --frobnicate" -- -d /dev/null --frobnicate
expect "usage: bad PIN" 2 "bad PIN 12x4 \(4 to 8 digits\)" -- -d /nonexistent --uim-verify-pin 12x4
expect "usage: bad store" 2 "unknown message store sd" -- -d /nonexistent --wms-read sd 1
expect "usage: bad network mode" 2 "unknown network mode 5g" -- -d /nonexistent --nas-set-network-modes lte,5g
expect "usage: bad ip family" 2 "bad --ip-family 5" -- -d /nonexistent --ip-family 5 --wds-start-network x
expect "usage: bad raw item" 2 "odd number of hex digits" -- -d /nonexistent --send-raw dms:0x20:0x10=0
expect "usage: missing argument" 2 "--uim-change-pin needs OLD NEW" -- -d /nonexistent --uim-change-pin 1234
expect "help lists the new actions" 0 "--wms-send NUMBER TEXT" -- --help
expect "cannot open" 1 "cannot open /nonexistent" -- -d /nonexistent --dms-get-ids
expect "end of file on the device" 1 "error: device closed" -- -d /dev/null --dms-get-ids

transport main || { echo "FAIL: the simulator did not start"; exit 1; }
d=$device

# --- device ----------------------------------------------------------------------
expect "ids" 0 "IMEI: 356938035643809" -- -d "$d" --dms-get-ids
expect "ids as JSON" 0 '"imei":"356938035643809"' -- -d "$d" --json --dms-get-ids
expect "frame dump" 0 "TX \( *[0-9]+\), 00" -- -d "$d" --hex --dms-get-operating-mode
expect "capabilities" 0 "radios: umts lte" -- -d "$d" --dms-get-capabilities
expect "capabilities as JSON" 0 '"sim":"supported","radios":\["umts","lte"\]' -- -d "$d" --json --dms-get-capabilities
expect "power state" 0 "battery level \(%\): 100" -- -d "$d" --dms-get-power-state
expect "power state as JSON" 0 '"power_state":\{"flags":0,"battery_level":100\}' -- -d "$d" --json --dms-get-power-state
expect "time" 0 "time: 20[0-9]{2}-[0-9]{2}-[0-9]{2} [0-9:]{8} UTC" -- -d "$d" --dms-get-time
expect "time as JSON" 0 '"source":1,"system_time_ms":[0-9]+' -- -d "$d" --json --dms-get-time
expect "operating mode" 0 "operating mode: low-power" -- \
    -d "$d" --dms-set-operating-mode low-power --dms-get-operating-mode
expect "operating mode as JSON" 0 '"set_operating_mode":"online","operating_mode":\{"mode":0,"name":"online"\}' -- \
    -d "$d" --json --dms-set-operating-mode online --dms-get-operating-mode
expect "DMS reset" 0 "DMS service reset" -- -d "$d" --dms-reset
expect "DMS reset as JSON" 0 '"dms_reset":"done"' -- -d "$d" --json --dms-reset

# --- SIM -------------------------------------------------------------------------
expect "PIN status" 0 "PIN1: enabled-not-verified \(3 retries left, 10 unblock retries left\)" -- \
    -d "$d" --uim-get-pin-status
expect "PIN status as JSON" 0 '"pin1":\{"status":"enabled-not-verified","retries_left":3,"unblock_retries_left":10\}' -- \
    -d "$d" --json --uim-get-pin-status
expect "MSISDN needs the PIN" 4 "MSISDN: QMI error 52 .*DeviceNotReady" -- -d "$d" --dms-get-msisdn
expect "wrong PIN" 4 "verify PIN \(2 retries left, 10 unblock retries left\): QMI error 12 .*IncorrectPin" -- \
    -d "$d" --uim-verify-pin 9999
expect "right PIN" 0 "PIN verified \(3 retries left" -- -d "$d" --uim-verify-pin 1234
expect "MSISDN" 0 "MSISDN: \+15550100200" -- -d "$d" --dms-get-msisdn
expect "MSISDN as JSON" 0 '"msisdn":"\+15550100200"' -- -d "$d" --json --dms-get-msisdn
expect "ICCID" 0 "ICCID: 8944500102198304826" -- -d "$d" --uim-get-iccid
expect "IMSI as JSON" 0 '"imsi":"001010123456789"' -- -d "$d" --json --uim-get-imsi
expect "change PIN" 0 "PIN changed" -- -d "$d" --uim-change-pin 1234 4321
expect "new PIN verifies" 0 '"verify_pin":\{"verified":true,"retries_left":3' -- -d "$d" --json --uim-verify-pin 4321
expect "change PIN with a wrong one" 4 "change PIN \(2 retries left.*IncorrectPin" -- -d "$d" --uim-change-pin 1111 2222
expect "wrong PIN again" 4 "1 retries left.*IncorrectPin" -- -d "$d" --uim-verify-pin 0000
expect "PIN blocks" 4 "0 retries left.*PinBlocked" -- -d "$d" --uim-verify-pin 0000
expect "blocked PIN status" 0 "PIN1: blocked \(0 retries left, 10 unblock retries left\)" -- -d "$d" --uim-get-pin-status
expect "wrong PUK" 4 "unblock PIN \(0 retries left, 9 unblock retries left\).*IncorrectPin" -- \
    -d "$d" --uim-unblock-pin 87654321 1234
expect "unblock PIN" 0 '"unblock_pin":\{"unblocked":true,"retries_left":3,"unblock_retries_left":10\}' -- \
    -d "$d" --json --uim-unblock-pin 12345678 1234
expect "PIN protection off" 0 "PIN protection disabled" -- -d "$d" --uim-set-pin-protection off 1234
expect "PIN disabled" 0 "PIN1: disabled" -- -d "$d" --uim-get-pin-status
expect "PIN protection on as JSON" 0 '"pin_protection":\{"enabled":true' -- \
    -d "$d" --json --uim-set-pin-protection on 1234 --uim-verify-pin 1234

# --- network -----------------------------------------------------------------------
expect "signal" 0 "signal strength: -67 dBm \(lte\)" -- -d "$d" --nas-get-signal-strength
expect "serving system" 0 "network: 1-1 ZovNet" -- -d "$d" --nas-get-serving-system
expect "home network" 0 "home network: 001-01 ZovNet" -- -d "$d" --nas-get-home-network
expect "home network as JSON" 0 '"home_network":\{"mcc":1,"mnc":1,"name":"ZovNet"\}' -- \
    -d "$d" --json --nas-get-home-network
expect "scan as JSON" 0 '"name":"Simtel"' -- -d "$d" --json --nas-network-scan
expect "scan" 0 "001-03  status 0x12  Forbidden Mobile" -- -d "$d" --nas-network-scan
expect "RF bands" 0 "radio: lte, band class 122, channel 1300" -- -d "$d" --nas-get-rf-band-info
expect "RF bands as JSON" 0 '"rf_bands":\[\{"radio":"lte","band_class":122,"channel":1300\}\]' -- \
    -d "$d" --json --nas-get-rf-band-info
expect "system selection" 0 "network modes: gsm umts lte" -- -d "$d" --nas-get-system-selection
expect "network modes" 0 "network modes: lte$" -- -d "$d" --nas-set-network-modes lte --nas-get-system-selection
expect "network modes as JSON" 0 '"network_modes":\["gsm","umts"\],"system_selection":\{"modes":\["gsm","umts"\]' -- \
    -d "$d" --json --nas-set-network-modes umts,gsm --nas-get-system-selection
expect "network modes auto" 0 "network modes set: cdma-1x cdma-evdo gsm umts lte td-scdma" -- \
    -d "$d" --nas-set-network-modes auto
expect "register automatically" 0 "registration requested: automatic" -- -d "$d" --nas-register auto
expect "register manually as JSON" 0 '"registered":"001-01"' -- -d "$d" --json --nas-register 001-01/lte
expect "register on a network out of reach" 4 "NoNetworkFound" -- -d "$d" --nas-register 001-02
expect "detach" 0 "PS attached: no" -- -d "$d" --nas-detach --nas-get-serving-system
expect "attach as JSON" 0 '"ps":"attach requested","serving_system":\{[^}]*"ps_attached":true' -- \
    -d "$d" --json --nas-attach --nas-get-serving-system

# --- data ----------------------------------------------------------------------------
expect "wrong credentials" 4 "call end reason 1014, verbose 6/29.*CallFailed" -- \
    -d "$d" --user zov --password nope --auth chap --wds-start-network secure.example
expect "packet status without a call" 0 "connection status: disconnected" -- -d "$d" --wds-get-packet-status
out=$("${CLI[@]}" -d "$d" --keep-client-ids --ip-family 4 --wds-start-network internet 2>&1)
handle=$(sed -n 's/^packet data handle: //p' <<<"$out")
wds=$(sed -n 's/^kept wds client id: //p' <<<"$out")
checks=$((checks + 1))
if [ -n "$handle" ] && [ -n "$wds" ]; then
    echo "ok   start network"
    expect "packet status" 0 "connection status: connected" -- -d "$d" --client-id "wds:$wds" --wds-get-packet-status
    expect "packet status as JSON" 0 '"packet_status":"connected"' -- \
        -d "$d" --json --client-id "wds:$wds" --wds-get-packet-status
    expect "statistics" 0 "TX packets: [0-9]+" -- -d "$d" --client-id "wds:$wds" --wds-get-statistics
    expect "statistics as JSON" 0 '"tx_bytes":[0-9]+,"rx_bytes":[0-9]+' -- \
        -d "$d" --json --client-id "wds:$wds" --wds-get-statistics
    expect "call duration" 0 "call duration: 0:00:[0-9]{2}\.[0-9]{3}" -- \
        -d "$d" --client-id "wds:$wds" --wds-get-call-duration
    expect "call duration as JSON" 0 '"call_duration":\{"duration_ms":[0-9]+' -- \
        -d "$d" --json --client-id "wds:$wds" --wds-get-call-duration
    expect "runtime settings" 0 "APN: internet" -- -d "$d" --client-id "wds:$wds" --wds-get-runtime-settings
    expect "runtime settings as JSON" 0 '"ipv4":"10.64.1.2","gateway":"10.64.1.1"' -- \
        -d "$d" --json --client-id "wds:$wds" --wds-get-runtime-settings
    expect "stop network" 0 "network stopped" -- -d "$d" --client-id "wds:$wds" --wds-stop-network "$handle"
    expect "stop again" 4 "InvalidHandle" -- -d "$d" --client-id "wds:$wds" --wds-stop-network "$handle"
    expect "release the kept client id" 0 "kept wds client id: $wds" -- \
        -d "$d" --client-id "wds:$wds" --keep-client-ids --wds-get-packet-status
else
    echo "FAIL start network: $out"
    fails=$((fails + 1))
fi
expect "IPv6 call" 0 '"runtime_settings":\{[^}]*"ipv6":"2001:db8:[0-9a-f:]*/64"' -- \
    -d "$d" --json --ip-family 6 --wds-start-network internet --wds-get-runtime-settings
expect "IPv6 call in text" 0 "IPv6 address: 2001:db8:[0-9a-f:]*/64" -- \
    -d "$d" --ip-family 6 --wds-start-network internet --wds-get-runtime-settings
expect "client id" 0 "pds client id: [0-9]+" -- -d "$d" --get-client-id pds
expect "unknown service" 4 "QMI error 31" -- -d "$d" --get-client-id 0x42
expect "profiles" 0 "1: internet \(APN internet\)" -- -d "$d" --wds-list-profiles
expect "create profile" 0 "profile created: 2" -- \
    -d "$d" --profile-name work --apn work.example --pdp-type ipv4 --auth pap --user u --password p --wds-create-profile
expect "modify profile" 0 "2: work \(APN work2.example\)" -- \
    -d "$d" --apn work2.example --wds-modify-profile 2 --wds-list-profiles
expect "profiles as JSON" 0 '\{"index":2,"type":0,"name":"work","apn":"work2.example"\}' -- -d "$d" --json --wds-list-profiles
expect "default profile" 0 "default profile: 2" -- -d "$d" --wds-set-default-profile 2
expect "default profile as JSON" 0 '"default_profile":1' -- -d "$d" --json --wds-set-default-profile 1
expect "delete profile" 0 '"deleted_profile":2' -- -d "$d" --json --wds-delete-profile 2
expect "delete a missing profile" 4 "InvalidProfile" -- -d "$d" --wds-delete-profile 2
expect "data format" 0 "data format: raw-ip" -- -d "$d" --ctl-set-data-format raw-ip
expect "data format as JSON" 0 '"data_format":"802.3"' -- -d "$d" --json --ctl-set-data-format 802.3

# --- messages ------------------------------------------------------------------------------
expect "SMSC" 0 "SMSC: \+15550100999" -- -d "$d" --wms-get-smsc
expect "set SMSC" 0 '"smsc_set":"\+4915550100","smsc":\{"address":"\+4915550100","type":"145"\}' -- \
    -d "$d" --json --wms-set-smsc +4915550100 --wms-get-smsc
expect "send" 0 "message sent \(gsm7, 1 part, message id [0-9]+\)" -- -d "$d" --wms-send +15550100300 "Price: 5€ [ok]"
expect "send UCS-2" 0 '"sent":\{"encoding":"ucs2","message_ids":\[[0-9]+\]\}' -- \
    -d "$d" --json --wms-send 15550100300 "Привет, мир"
long=$(printf 'Router at the tower reports: %.0s' $(seq 12) | cut -c1-330)
expect "send in three parts" 0 '"message_ids":\[[0-9]+,[0-9]+,[0-9]+\]' -- -d "$d" --json --wms-send +15550100300 "$long"
expect "message list" 0 "messages: 5" -- -d "$d" --wms-list nv
expect "read a message" 0 "from: \+15550100300" -- -d "$d" --wms-read nv 0
expect "read a message as JSON" 0 '"text":"Delivered"' -- -d "$d" --json --wms-read nv 1
# A received message in UCS-2, part 1 of 2, stored through a raw write.
pdu=07914477000910324408815155100000084220923295850A1405000307020100470072007500DF006500200021
len=$(printf '%04X' $(( ${#pdu} / 2 )))
raw="01 06 ${len:2:2} ${len:0:2} $pdu"
out=$("${CLI[@]}" -d "$d" --send-raw "wms:0x21:0x01=${raw// /}" 2>&1)
index=$(sed -n 's/^item 0x01 (4 bytes): \(..\).*/\1/p' <<<"$out")
checks=$((checks + 1))
if [ -n "$index" ]; then
    echo "ok   raw write"
    expect "read a UCS-2 part" 0 "text: Gruße !" -- -d "$d" --wms-read nv $((16#$index))
    expect "read a UCS-2 part as JSON" 0 '"concatenation":\{"reference":7,"part":1,"parts":2\},"text":"Gruße !"' -- \
        -d "$d" --json --wms-read nv $((16#$index))
else
    echo "FAIL raw write: $out"
    fails=$((fails + 1))
fi
expect "delete a message" 0 "message 0 deleted" -- -d "$d" --wms-delete nv 0
expect "read a deleted message" 4 "InvalidIndex" -- -d "$d" --wms-read nv 0
expect "delete as JSON" 0 '"deleted_message":1' -- -d "$d" --json --wms-delete nv 1

# --- phonebook ---------------------------------------------------------------------------------
expect "phonebook" 0 "2: Bob Example <5550100002>" -- -d "$d" --pbm-read 1-5
expect "phonebook as JSON" 0 '\{"id":1,"name":"Alice Example","number":"\+15550100001"\}' -- -d "$d" --json --pbm-read all
expect "write a record" 0 "record written: 4" -- -d "$d" --pbm-write 0 "Carol Example" +15550100004
expect "search" 0 "4: Carol Example <\+15550100004>" -- -d "$d" --pbm-search carol
expect "search as JSON" 0 '"found":\[\{"id":4,"name":"Carol Example","number":"\+15550100004"\}\]' -- \
    -d "$d" --json --pbm-search carol
expect "delete a record" 0 '"deleted_record":4' -- -d "$d" --json --pbm-delete 4
expect "delete a missing record" 4 "NoEntry" -- -d "$d" --pbm-delete 4
expect "search finds nothing" 0 "records found: 0" -- -d "$d" --pbm-search carol

# --- GPS -------------------------------------------------------------------------------------
expect "single fix" 0 "position: 52.520008, 13.404954" -- -d "$d" --pds-single-fix
expect "tracking for three fixes" 0 "tracking stopped after 3 fixes" -- -d "$d" --pds-start-tracking --count 3
expect "tracking as JSON" 0 '"tracking":\{"nmea":\["\$GPGGA,[^"]*","\$GPRMC,[^"]*"\],"fixes":1\}' -- \
    -d "$d" --json --pds-start-tracking --count 1
# Without --count tracking runs until interrupted.
"${CLI[@]}" -d "$d" --pds-start-tracking >"$work/track.out" 2>&1 &
tracker=$!
for _ in $(seq 100); do grep -q "GPRMC" "$work/track.out" 2>/dev/null && break; sleep 0.05; done
sleep 0.3
kill -INT $tracker
wait $tracker
rc=$?
checks=$((checks + 1))
if [ $rc -eq 0 ] && grep -q "tracking stopped after 5 fixes (interrupted)" "$work/track.out"; then
    echo "ok   tracking until interrupted"
else
    echo "FAIL tracking until interrupted: status $rc"
    sed 's/^/    /' "$work/track.out"
    fails=$((fails + 1))
fi
expect "stop tracking" 0 "tracking stopped" -- -d "$d" --pds-stop-tracking

# --- raw -------------------------------------------------------------------------------------------
expect "raw request" 0 "item 0x01 \(10 bytes\): 5A512D53494D20313030" -- -d "$d" --send-raw dms:0x0022
expect "raw request as JSON" 0 '\{"type":2,"value":"00000000"\},\{"type":1,"value":"5A512D53494D20313030"\}' -- \
    -d "$d" --json --send-raw dms:0x22
expect "raw request with items" 4 "raw request 0x0022: QMI error 13 .*NoNetworkFound" -- \
    -d "$d" --send-raw nas:0x22:0x01=02,0x10=0100020008
expect "raw control request" 0 "item 0x10 \(8 bytes\): 067A6F7673696D00" -- -d "$d" --send-raw ctl:0x21
expect "raw unknown request" 4 "QMI error 71 .*InvalidQmiCommand" -- -d "$d" --send-raw dms:0x5555

# --- faults ---------------------------------------------------------------------------------------
if transport silent --silent 2:0x0021; then
    expect "timeout" 3 "timeout: no answer to dms message 0x0021 within 300 ms" -- -d "$device" --timeout 300 --dms-get-ids
else
    echo "FAIL second simulator did not start"
    fails=$((fails + 1))
fi
# The device disappearing under a waiting tool (a USB disconnect), through
# the simulator's control socket (spoken to with perl, when there is one).
if command -v perl >/dev/null && perl -MIO::Socket::UNIX -e 1 2>/dev/null &&
    [ -z "${ZOVQMI_E2E_PTY:-}" ] && [ -r /dev/fuse ] && transport gone --control "$work/gone.ctl"; then
    "${CLI[@]}" -d "$device" --pds-start-tracking >"$work/gone.out" 2>&1 &
    tracker=$!
    for _ in $(seq 100); do grep -q "GPRMC" "$work/gone.out" 2>/dev/null && break; sleep 0.05; done
    perl -MIO::Socket::UNIX -e '$s = IO::Socket::UNIX->new(Peer => $ARGV[0]) or exit 1;
        print $s "vanish 3000\n"; exit(<$s> =~ /^ok/ ? 0 : 1)' "$work/gone.ctl"
    wait $tracker
    rc=$?
    checks=$((checks + 1))
    if [ $rc -eq 1 ] && grep -qE "error: device gone: (Input/output error|No such device)" "$work/gone.out"; then
        echo "ok   device gone while waiting"
    else
        echo "FAIL device gone while waiting: status $rc"
        sed 's/^/    /' "$work/gone.out"
        fails=$((fails + 1))
    fi
else
    echo "skip device gone while waiting: no FUSE node or no perl"
fi

echo "$((checks - fails)) of $checks checks passed"
[ "$fails" -eq 0 ] || exit 1
exit 0
