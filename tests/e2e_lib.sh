# Shared by the end-to-end scripts (sourced): a work directory, the
# simulators they start, and the check they make of each command.
#   SIM    the zovqmi-sim to start
#   RUN    (array, may be empty) what every checked command is run with,
#          e.g. a tool under an emulator
work=$(mktemp -d)
pids=()
fails=0
checks=0
cleanup() {
    for p in "${pids[@]}"; do kill "$p" 2>/dev/null; wait "$p" 2>/dev/null; done
    rm -rf "$work"
}
trap cleanup EXIT

# expect NAME STATUS PATTERN -- ARGS...: "${RUN[@]}" ARGS exits with STATUS
# and its output (stdout and stderr) matches the extended regular expression
# PATTERN.
expect() {
    local name=$1 status=$2 pattern=$3
    shift 4
    local out rc
    out=$("${RUN[@]}" "$@" 2>&1)
    rc=$?
    checks=$((checks + 1))
    if [ "$rc" -ne "$status" ] || ! grep -qE -- "$pattern" <<<"$out"; then
        echo "FAIL $name: status $rc (want $status), output:"
        sed 's/^/    /' <<<"$out"
        fails=$((fails + 1))
    else
        echo "ok   $name"
    fi
}

# start NAME ARGS...: starts zovqmi-sim and sets $device to the path it prints.
start() {
    local log=$work/$1.log
    shift
    "$SIM" "$@" >"$log" 2>&1 &
    pids+=($!)
    for _ in $(seq 200); do
        device=$(sed -n 's/^device: //p' "$log")
        [ -n "$device" ] && [ -e "$device" ] && return 0
        kill -0 "${pids[-1]}" 2>/dev/null || break
        sleep 0.05
    done
    cat "$log"
    return 1
}
