#!/usr/bin/env bash
# End to end: the demo and zovqmi-cli against the simulated modem, through
# its device node (FUSE) and its pseudo-terminal.  FUSE cases are skipped
# (exit 77) when /dev/fuse cannot be used.
#   e2e.sh SIM CLI DEMO
set -u
SIM=$1 CLI=$2 DEMO=$3
RUN=()
. "$(dirname "$0")/../../tests/e2e_lib.sh"

expect "demo in-process" 0 "connection down, call end reason 2" -- "$DEMO"
expect "cli without device" 1 "cannot open /nonexistent" -- "$CLI" -d /nonexistent --dms-get-ids
expect "cli usage" 2 "no action given" -- "$CLI" -d /dev/null

# The pseudo-terminal: requests are reassembled from what the line delivers.
if start pty --pty; then
    expect "cli on pty" 0 "IMEI: 356938035643809" -- "$CLI" -d "$device" --dms-get-ids
else
    echo "FAIL pty mode did not start"; fails=$((fails + 1))
fi

fuse_ok=0
if [ -r /dev/fuse ] && [ -w /dev/fuse ] && start fuse --fuse "$work/node"; then
    fuse_ok=1
    d=$device
    expect "demo on the device node" 0 "\[14\] close" -- "$DEMO" --device "$d"
    expect "demo with frame dumps" 0 "TX \( *[0-9]+\), 00" -- "$DEMO" --device "$d" --hex
    expect "cli ids as JSON" 0 '"imei": ?"356938035643809"' -- "$CLI" -d "$d" --json --dms-get-ids
    expect "cli wrong PIN" 4 "QMI error 12 .*IncorrectPin" -- "$CLI" -d "$d" --uim-verify-pin 9999
    expect "cli right PIN" 0 "PIN verified \(3 retries left" -- "$CLI" -d "$d" --uim-verify-pin 1234
    expect "cli unknown request" 4 "QMI error 71 .*InvalidQmiCommand" -- "$CLI" -d "$d" --send-raw dms:0x5555
    expect "cli unknown service" 4 "QMI error 31" -- "$CLI" -d "$d" --get-client-id 0x42
    expect "cli serving system" 0 "network: 1-1 ZovNet" -- "$CLI" -d "$d" --nas-get-serving-system
    expect "cli scan as JSON" 0 '"name": ?"Simtel"' -- "$CLI" -d "$d" --json --nas-network-scan
    expect "cli wrong credentials" 4 "call end reason 1014, verbose 6/29.*CallFailed" -- \
        "$CLI" -d "$d" --user zov --password nope --auth chap --wds-start-network secure.example
    out=$("$CLI" -d "$d" --keep-client-ids --wds-start-network internet 2>&1)
    handle=$(sed -n 's/^packet data handle: //p' <<<"$out")
    wds=$(sed -n 's/^kept wds client id: //p' <<<"$out")
    if [ -n "$handle" ] && [ -n "$wds" ]; then
        expect "cli runtime settings" 0 "APN: internet" -- "$CLI" -d "$d" --client-id "wds:$wds" --wds-get-runtime-settings
        expect "cli stop network" 0 "network stopped" -- "$CLI" -d "$d" --client-id "wds:$wds" --wds-stop-network "$handle"
        expect "cli stop again" 4 "InvalidHandle" -- "$CLI" -d "$d" --client-id "wds:$wds" --wds-stop-network "$handle"
    else
        echo "FAIL cli start network: $out"; fails=$((fails + 1))
    fi
    expect "cli phonebook" 0 "2: Bob Example <5550100002>" -- "$CLI" -d "$d" --pbm-read 1-5
    expect "cli GPS fix" 0 "position: 52.520008, 13.404954" -- "$CLI" -d "$d" --pds-single-fix
    expect "cli message store" 0 "messages: " -- "$CLI" -d "$d" --wms-list nv
    expect "cli missing message" 4 "InvalidIndex" -- "$CLI" -d "$d" --wms-read nv 99
    expect "cli operating mode" 0 "operating mode: low-power" -- \
        "$CLI" -d "$d" --dms-set-operating-mode low-power --dms-get-operating-mode
    if start silent --fuse "$work/silent" --silent 2:0x0021; then
        expect "cli timeout" 3 "timeout: no answer to dms message 0x0021 within 300 ms" -- \
            "$CLI" -d "$device" --timeout 300 --dms-get-ids
    else
        echo "FAIL second simulator did not start"; fails=$((fails + 1))
    fi
else
    echo "skip FUSE cases: /dev/fuse is not usable here"
fi

[ "$fails" -eq 0 ] || { echo "$fails failed"; exit 1; }
[ "$fuse_ok" -eq 1 ] || exit 77
exit 0
