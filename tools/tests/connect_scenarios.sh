#!/usr/bin/env bash
# Scenario tests of zovqmi-connect: the daemon against the simulated modem's
# device node (FUSE), its TUN interface and its control socket, in a private
# network namespace this script creates (root only; skipped with status 77
# otherwise).  Nothing touches the host's interfaces; the only traffic is
# ping to the simulated gateway inside the namespace.
#
# Usage: connect_scenarios.sh SIM CONNECT SIMCTL SCENARIO
#   SCENARIO: bringup-4 bringup-6 bringup-4+6 drop-call deregister stall
#             vanish reset wrong-pin sim-absent sigterm soak proxy
#   ZOVQMI_CLI             zovqmi-cli, for the proxy scenario
#   ZOVQMI_TARGET_WRAPPER  runs CONNECT and SIMCTL (e.g. "qemu-mipsel -L
#                          /usr/mipsel-linux-gnu" for a cross build)
#   ZOVQMI_SOAK_FAULTS     faults of the soak (default 300; at most 150 s)
set -u
SIM=$1 CONNECT=$2 SIMCTL=$3 SCENARIO=$4
read -r -a WRAP <<<"${ZOVQMI_TARGET_WRAPPER:-}"

if [ -z "${ZOVQMI_IN_NETNS:-}" ]; then
    [ "$(id -u)" = 0 ] || { echo "SKIP: a private network namespace needs root"; exit 77; }
    [ -c /dev/fuse ] || { echo "SKIP: /dev/fuse is not available"; exit 77; }
    [ -c /dev/net/tun ] || { echo "SKIP: /dev/net/tun is not available"; exit 77; }
    unshare -n true 2>/dev/null || { echo "SKIP: cannot create a network namespace"; exit 77; }
    for tool in ip ping; do
        command -v $tool >/dev/null || { echo "FAIL: $tool is needed (iproute2, iputils-ping)"; exit 1; }
    done
    ZOVQMI_IN_NETNS=1 exec unshare -n "$BASH" "$0" "$@"
fi

w=$(mktemp -d)
simpid=
dpid=
cleanup() {
    [ -n "$dpid" ] && kill -KILL "$dpid" 2>/dev/null
    [ -n "$simpid" ] && { kill -TERM "$simpid" 2>/dev/null; wait "$simpid" 2>/dev/null; }
    rm -rf "$w"
}
trap cleanup EXIT
ip link set lo up

now_ms() { echo $(($(date +%s%N) / 1000000)); }

fail() {
    echo "FAIL $SCENARIO: $*"
    echo "--- state file"; cat "$w/state.json" 2>/dev/null; echo
    echo "--- daemon log (last 40 lines)"; tail -40 "$w/daemon.log" 2>/dev/null
    echo "--- simulator status"; ctl status 2>/dev/null
    echo "--- simulator log (last 10 lines)"; tail -10 "$w/sim.log" 2>/dev/null
    exit 1
}

ctl() { "${WRAP[@]}" "$SIMCTL" "$w/ctl" "$@"; }

start_sim() {
    "$SIM" --fuse "$w/dev" --tun wwan0 --control "$w/ctl" "$@" >"$w/sim.log" 2>&1 &
    simpid=$!
    local i
    for i in $(seq 100); do
        if grep -q 'without FUSE\|/dev/fuse is not available' "$w/sim.log"; then
            echo "SKIP: the simulator has no FUSE device node here"
            exit 77
        fi
        grep -q '^device: ' "$w/sim.log" && [ -S "$w/ctl" ] && [ -e "$w/dev/cdc-wdm0" ] && return 0
        kill -0 "$simpid" 2>/dev/null || break
        sleep 0.1
    done
    cat "$w/sim.log"
    fail "the simulator did not start"
}

start_daemon() {
    "${WRAP[@]}" "$CONNECT" -d "$w/dev/cdc-wdm0" --apn internet --ifname wwan0 --state-file "$w/state.json" \
        --resolv "$w/resolv" "$@" >"$w/daemon.log" 2>&1 &
    dpid=$!
}

state() { sed -n 's/.*"state":"\([a-z-]*\)".*/\1/p' "$w/state.json" 2>/dev/null; }
reconnects() { sed -n 's/.*"reconnects":\([0-9]*\).*/\1/p' "$w/state.json" 2>/dev/null; }

# wait_state STATE SECONDS [other than]: until the state file says STATE
# (or, with "not", anything else).
wait_state() {
    local want=$1 secs=$2 neg=${3:-} until=$(($(now_ms) + $2 * 1000)) s
    while [ "$(now_ms)" -lt "$until" ]; do
        s=$(state)
        if [ -z "$neg" ] && [ "$s" = "$want" ]; then return 0; fi
        if [ -n "$neg" ] && [ -n "$s" ] && [ "$s" != "$want" ]; then return 0; fi
        kill -0 "$dpid" 2>/dev/null || fail "the daemon exited while waiting for ${neg:+not }$want"
        sleep 0.05
    done
    fail "not ${neg:+out of }$want within $secs s (state: $(state))"
}

# wait_reconnected BEFORE SECONDS: until the state file says connected with
# more reconnects than BEFORE.
wait_reconnected() {
    local until=$(($(now_ms) + $2 * 1000))
    until [ "$(state)" = connected ] && [ "$(reconnects)" -gt "$1" ]; do
        [ "$(now_ms)" -lt "$until" ] || fail "not connected again within $2 s"
        sleep 0.05
    done
}

# Pings the gateway of the first call (a few tries: the first packet may
# meet a link still coming up).
ping4() {
    local i
    for i in 1 2 3; do ping -n -q -c 1 -W 1 10.64.1.1 >/dev/null 2>&1 && return 0; sleep 0.2; done
    fail "ping 10.64.1.1 failed"
}
ping6() {
    local i
    for i in 1 2 3; do ping -6 -n -q -c 1 -W 1 2001:db8:64:1::1 >/dev/null 2>&1 && return 0; sleep 0.2; done
    fail "ping -6 2001:db8:64:1::1 failed"
}
global_addresses() { ip -o addr show dev wwan0 scope global | wc -l; }

# Client ids the modem has allocated, all services together.
client_ids() { ctl status | sed -n 's/.*"clients":{\([^}]*\)}.*/\1/p' | grep -o '[0-9]\+' | wc -l; }
active_calls() { ctl status | sed -n 's/.*"calls":\[\([^]]*\)\].*/\1/p' | grep -o '"handle"' | wc -l; }

# stop_daemon MAX_MS: SIGTERM, then the exit status must be 0 within MAX_MS.
stop_daemon() {
    local max=$1 t0 rc
    t0=$(now_ms)
    kill -TERM "$dpid"
    while kill -0 "$dpid" 2>/dev/null; do
        [ $(($(now_ms) - t0)) -le $((max + 2000)) ] || fail "still running $((max + 2000)) ms after SIGTERM"
        sleep 0.02
    done
    wait "$dpid"
    rc=$?
    local took=$(($(now_ms) - t0))
    dpid=
    echo "  stopped in $took ms (exit status $rc)"
    [ "$rc" = 0 ] || fail "exit status $rc after SIGTERM (want 0)"
    [ "$took" -le "$max" ] || fail "took $took ms to stop (at most $max)"
}

# A script that records each call: action, then the variables.
cat >"$w/hook" <<HOOK
#!/bin/sh
{ echo "action=\$1"; env | grep '^ZOVQMI_' | sort; } >>"$w/hook.log"
HOOK
chmod +x "$w/hook"

bringup() {
    local family=$1
    start_sim --no-pin
    local json=
    [ "$family" = 6 ] && json=--json   # events as JSON lines on standard output
    start_daemon --ip-family "$family" --probe-interval 1 --timeout 1 --script "$w/hook" $json
    wait_state connected 20
    if [ -n "$json" ]; then
        grep -q '^{"time":[0-9]*,"event":"state","state":"connected","message":"online"}$' "$w/daemon.log" ||
            fail "no JSON event for the state connected"
        ! grep -v '^{.*}$' "$w/daemon.log" | grep -q . || fail "a line of the JSON log is not an object"
    fi
    case $family in
        4) ping4; grep -q '"ipv4":{"address":"10.64.1.2","prefix":30' "$w/state.json" || fail "no IPv4 settings" ;;
        6) ping6; grep -q '"ipv6":{"address":"2001:db8:64:1::2","prefix":64' "$w/state.json" || fail "no IPv6 settings" ;;
        4+6) ping4; ping6 ;;
    esac
    case $family in
        4|4+6) ip -o -4 addr show dev wwan0 | grep -q ' 10.64.1.2/30 ' || fail "10.64.1.2/30 not on wwan0" ;;
    esac
    case $family in
        6|4+6) ip -o -6 addr show dev wwan0 | grep -q ' 2001:db8:64:1::2/64 ' || fail "2001:db8:64:1::2/64 not on wwan0" ;;
    esac
    ip route show default | grep -q . || ip -6 route show default | grep -q . || fail "no default route"
    grep -q '^nameserver ' "$w/resolv" || fail "no DNS servers in the resolver file"
    grep -q '^action=up$' "$w/hook.log" || fail "the script did not run with up"
    grep -q '^ZOVQMI_IFNAME=wwan0$' "$w/hook.log" || fail "the script had no ZOVQMI_IFNAME"
    grep -q '^ZOVQMI_APN=internet$' "$w/hook.log" || fail "the script had no ZOVQMI_APN"
    grep -q '^ZOVQMI_MTU=1500$' "$w/hook.log" || fail "the script had no ZOVQMI_MTU"
    if [ "$family" != 6 ]; then
        grep -q '^ZOVQMI_IPV4_ADDRESS=10.64.1.2$' "$w/hook.log" || fail "the script had no IPv4 address"
        grep -q '^ZOVQMI_IPV4_DNS=10.0.0.1 10.0.0.2$' "$w/hook.log" || fail "the script had no IPv4 DNS"
    fi
    stop_daemon 1000
    grep -q '^action=down$' "$w/hook.log" || fail "the script did not run with down"
    grep -q '^ZOVQMI_REASON=stopped$' "$w/hook.log" || fail "the script's down had no reason"
    [ "$(global_addresses)" = 0 ] || fail "addresses left on wwan0"
    [ ! -e "$w/resolv" ] || fail "the resolver file was left"
}

case $SCENARIO in
bringup-4|bringup-6|bringup-4+6)
    bringup "${SCENARIO#bringup-}"
    ;;

drop-call)
    start_sim --no-pin
    start_daemon --probe-interval 1 --timeout 1 --script "$w/hook"
    wait_state connected 20
    ping4
    before=$(reconnects)
    t0=$(now_ms)
    ctl drop-call >/dev/null || fail "drop-call refused"
    wait_reconnected "$before" 5
    echo "  connected again after $(($(now_ms) - t0)) ms"
    ping4
    grep -q '^ZOVQMI_REASON=call-dropped$' "$w/hook.log" || fail "the script's down did not say call-dropped"
    [ "$(grep -c '^action=up$' "$w/hook.log")" = 2 ] || fail "the script did not run up twice"
    ;;

sim-absent)
    start_sim --no-pin
    ctl sim remove >/dev/null || fail "sim remove refused"
    start_daemon --probe-interval 1 --timeout 1
    t0=$(now_ms)
    while kill -0 "$dpid" 2>/dev/null; do
        [ $(($(now_ms) - t0)) -lt 10000 ] || fail "still running 10 s without a SIM"
        sleep 0.05
    done
    wait "$dpid"
    rc=$?
    dpid=
    [ "$rc" = 3 ] || fail "exit status $rc without a SIM (want 3)"
    grep -q 'SIM absent' "$w/daemon.log" || fail "the log does not say the SIM is absent"
    ;;

deregister)
    start_sim --no-pin
    start_daemon --probe-interval 1 --timeout 1
    wait_state connected 20
    t0=$(now_ms)
    ctl deregister >/dev/null || fail "deregister refused"
    wait_state waiting-network 5
    [ "$(global_addresses)" = 0 ] || fail "the address stayed while deregistered"
    while [ $(($(now_ms) - t0)) -lt 10000 ]; do
        [ "$(state)" = waiting-network ] || fail "left waiting-network while deregistered ($(state))"
        sleep 0.2
    done
    ctl register >/dev/null || fail "register refused"
    wait_state connected 10
    ping4
    ;;

stall)
    start_sim --no-pin
    start_daemon --probe-interval 1 --timeout 1 --max-backoff 2
    wait_state connected 20
    pid=$dpid
    ctl stall >/dev/null || fail "stall refused"
    t0=$(now_ms)
    wait_state connected 8 not
    echo "  the probe noticed the stall after $(($(now_ms) - t0)) ms"
    while [ $(($(now_ms) - t0)) -lt 20000 ]; do
        [ "$(state)" != connected ] || fail "connected while the modem is stalled"
        kill -0 "$pid" 2>/dev/null || fail "the daemon exited during the stall"
        sleep 0.2
    done
    ctl unstall >/dev/null || fail "unstall refused"
    wait_state connected 15
    [ "$dpid" = "$pid" ] && kill -0 "$pid" || fail "the daemon was restarted"
    ping4
    n=$(client_ids)
    [ "$n" -le 3 ] || fail "$n client ids allocated after the recovery (at most 3)"
    ;;

vanish)
    start_sim --no-pin
    start_daemon --probe-interval 1 --timeout 1 --max-backoff 2
    wait_state connected 20
    ctl vanish 5000 >/dev/null || fail "vanish refused"
    t0=$(now_ms)
    wait_state connected 5 not
    wait_state connected 20
    echo "  connected again $(($(now_ms) - t0)) ms after the device vanished for 5000 ms"
    ping4
    ;;

reset)
    start_sim --no-pin
    start_daemon --probe-interval 1 --timeout 1 --max-backoff 2
    wait_state connected 20
    before=$(reconnects)
    ctl reset >/dev/null || fail "reset refused"
    wait_reconnected "$before" 10
    [ "$(client_ids)" = 3 ] || fail "$(client_ids) client ids after the reset (want 3: wds, dms, nas)"
    [ "$(active_calls)" = 1 ] || fail "no call after the reset"
    ping4
    ;;

wrong-pin)
    start_sim --pin 1234
    retries() { ctl status | sed -n 's/.*"pin1_retries":\([0-9]*\).*/\1/p'; }
    before=$(retries)
    start_daemon --pin 9999 --probe-interval 1 --timeout 1
    t0=$(now_ms)
    while kill -0 "$dpid" 2>/dev/null; do
        [ $(($(now_ms) - t0)) -lt 10000 ] || fail "still running 10 s after a wrong PIN"
        sleep 0.05
    done
    wait "$dpid"
    rc=$?
    dpid=
    [ "$rc" = 3 ] || fail "exit status $rc (want 3)"
    after=$(retries)
    [ "$after" = $((before - 1)) ] || fail "PIN attempts went from $before to $after (want exactly one attempt)"
    grep -q 'attempts left' "$w/daemon.log" || fail "the attempts left are not told"
    [ "$(client_ids)" = 0 ] || fail "client ids left after exit 3"
    ;;

sigterm)
    start_sim --no-pin
    # While connected.
    start_daemon --ip-family 4+6 --probe-interval 1 --timeout 2
    wait_state connected 20
    stop_daemon 2000
    [ "$(active_calls)" = 0 ] || fail "calls left after SIGTERM"
    [ "$(client_ids)" = 0 ] || fail "client ids left after SIGTERM"
    [ "$(global_addresses)" = 0 ] || fail "addresses left on wwan0 after SIGTERM"
    # While the modem is stalled: out within the timeout all the same.
    start_daemon --ip-family 4+6 --probe-interval 1 --timeout 2
    wait_state connected 20
    ctl stall >/dev/null || fail "stall refused"
    stop_daemon 2000
    [ "$(global_addresses)" = 0 ] || fail "addresses left on wwan0 after SIGTERM on a stalled modem"
    # A stalled modem heard nothing; the next start releases what it kept.
    ctl unstall >/dev/null
    start_daemon --ip-family 4+6 --probe-interval 1 --timeout 2
    wait_state connected 20
    stop_daemon 2000
    [ "$(active_calls)" = 0 ] || fail "calls left after the next run"
    [ "$(client_ids)" = 0 ] || fail "client ids left after the next run"
    # While the script hangs: out within the timeout too.
    printf '#!/bin/sh\n[ "$1" = up ] && exec sleep 30\nexit 0\n' >"$w/slow"
    chmod +x "$w/slow"
    start_daemon --probe-interval 1 --timeout 2 --script "$w/slow"
    until=$(($(now_ms) + 20000))
    until grep -q 'call up' "$w/daemon.log"; do
        [ "$(now_ms)" -lt "$until" ] || fail "no call within 20 s"
        sleep 0.05
    done
    sleep 0.2
    stop_daemon 2000
    [ "$(client_ids)" = 0 ] || fail "client ids left after SIGTERM during the script"
    ;;

soak)
    start_sim --no-pin
    start_daemon --ip-family 4+6 --probe-interval 0.5 --timeout 0.5 --max-backoff 1
    wait_state connected 20
    fds0=$(ls "/proc/$dpid/fd" | wc -l)
    faults=${ZOVQMI_SOAK_FAULTS:-300}
    t0=$(now_ms)
    done_faults=0
    dumps=0
    RANDOM=${ZOVQMI_SOAK_SEED:-17}
    while [ "$done_faults" -lt "$faults" ] && [ $(($(now_ms) - t0)) -lt 150000 ]; do
        case $((RANDOM % 5)) in
            0) ctl drop-call >/dev/null ;;
            1) ctl deregister >/dev/null; sleep 0.$((RANDOM % 4)); ctl register >/dev/null ;;
            2) ctl stall >/dev/null; sleep 0.$((1 + RANDOM % 9)); ctl unstall >/dev/null ;;
            3) ctl vanish $((100 + RANDOM % 400)) >/dev/null ;;
            4) ctl reset >/dev/null ;;
        esac
        done_faults=$((done_faults + 1))
        sleep 0.$((RANDOM % 3))
        kill -0 "$dpid" 2>/dev/null || fail "the daemon exited after $done_faults faults"
        n=$(client_ids)
        [ "$n" -le 4 ] || fail "$n client ids allocated after $done_faults faults (at most 4)"
        fds=$(ls "/proc/$dpid/fd" 2>/dev/null | wc -l)
        # (one more while the state file is being replaced)
        [ "$fds" -le $((fds0 + 1)) ] || fail "$fds open descriptors after $done_faults faults (started with $fds0)"
        # The watchdog: SIGUSR1 must be answered with a dump within 3 s
        # (between two requests at the latest: each waits 0.5 s at most).
        if [ $((done_faults % 10)) = 0 ]; then
            kill -USR1 "$dpid"
            dumps=$((dumps + 1))
            until=$(($(now_ms) + 3000))
            while [ "$(grep -c ': dump: ' "$w/daemon.log")" -lt "$dumps" ]; do
                [ "$(now_ms)" -lt "$until" ] || fail "no answer to SIGUSR1 within 3 s after $done_faults faults: hung"
                sleep 0.05
            done
        fi
    done
    ctl register >/dev/null
    ctl unstall >/dev/null
    echo "  $done_faults faults in $(($(now_ms) - t0)) ms"
    wait_state connected 30
    ping4
    ping6
    fds=$(ls "/proc/$dpid/fd" | wc -l)
    [ "$fds" = "$fds0" ] || fail "$fds open descriptors at the end (started with $fds0)"
    [ "$(client_ids)" = 4 ] || fail "$(client_ids) client ids at the end (want 4: two wds, dms, nas)"
    stop_daemon 1000
    ;;

proxy)
    # Programs beside the manager, through its proxy: five at once, each
    # with its own client ids and 51 requests in a row.
    [ -n "${ZOVQMI_CLI:-}" ] || fail "ZOVQMI_CLI must name zovqmi-cli"
    start_sim --no-pin
    start_daemon --probe-interval 1 --timeout 2 --proxy "$w/proxy.sock"
    wait_state connected 20
    grep -q "\"device\":\"$w/dev/cdc-wdm0\",\"proxy\":\"$w/proxy.sock\"" "$w/state.json" ||
        fail "the state file does not name the device and the proxy socket"
    [ "$(stat -c %a "$w/proxy.sock")" = 660 ] || fail "the proxy socket's mode is not 0660"
    clients() { ctl status | sed -n 's/.*"clients":{\([^}]*\)}.*/\1/p'; }
    manager=$(clients)
    args=()
    for i in $(seq 17); do args+=(--nas-get-signal-strength --nas-get-serving-system --dms-get-operating-mode); done
    pids=()
    for p in 1 2 3 4 5; do
        how=-d
        [ $((p % 2)) = 1 ] && how=-p   # a socket given with -d is found to be one
        "${WRAP[@]}" "$ZOVQMI_CLI" $how "$w/proxy.sock" --timeout 5000 "${args[@]}" >"$w/cli$p.out" 2>&1 &
        pids+=($!)
    done
    for p in 1 2 3 4 5; do
        wait "${pids[$((p - 1))]}" || fail "program $p failed: $(tail -3 "$w/cli$p.out")"
        # Every answer is its own request's: the value each request expects, 17 times.
        n=$(grep -c -- '-67 dBm' "$w/cli$p.out")
        [ "$n" = 17 ] || fail "program $p: $n signal strengths of -67 dBm (want 17)"
        n=$(grep -ci 'registered' "$w/cli$p.out")
        [ "$n" -ge 17 ] || fail "program $p: $n registration lines (want 17)"
        n=$(grep -c 'online' "$w/cli$p.out")
        [ "$n" = 17 ] || fail "program $p: $n operating modes online (want 17)"
    done
    [ "$(state)" = connected ] || fail "the manager left connected ($(state))"
    ! grep -qi 'timeout' "$w/daemon.log" || fail "the manager logged a timeout: $(grep -i timeout "$w/daemon.log" | head -1)"
    # The programs' client ids went back with their connections.
    until=$(($(now_ms) + 3000))
    while [ "$(clients)" != "$manager" ]; do
        [ "$(now_ms)" -lt "$until" ] || fail "client ids after the programs: $(clients) (manager's: $manager)"
        sleep 0.05
    done
    # The device itself is the manager's: the tool says where its proxy is.
    if out=$(ZOVQMI_RUN_DIR=$w "${WRAP[@]}" "$ZOVQMI_CLI" -d "$w/dev/cdc-wdm0" --nas-get-signal-strength 2>&1); then
        fail "the tool used the device the manager holds"
    fi
    echo "  $(grep -c -- "-67 dBm" "$w/cli1.out") signal answers in program 1; the held device: $out"
    echo "$out" | grep -qF -- "-p $w/proxy.sock" || fail "the tool's error does not name the proxy socket: $out"
    ping4
    stop_daemon 2000
    [ ! -e "$w/proxy.sock" ] || fail "the proxy socket was left behind"
    ;;

*)
    echo "unknown scenario $SCENARIO" >&2
    exit 2
    ;;
esac
echo "ok $SCENARIO"
