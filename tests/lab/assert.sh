# Sourced by the tests that are shell scripts: says what holds, and counts what does not.

failures=0

# verdict STATUS WHAT DETAILS
verdict() {
    [[ $1 != 0 ]] || { echo "ok      $2" && return; }
    echo "FAILED  $2:$3"
    failures=$((failures + 1))
}

# holds WHAT COMMAND...: the command succeeds; fails: it does not.
holds() {
    "${@:2}" >/dev/null 2>&1
    verdict $? "$1" " ${*:2}"
}
fails() { holds "$1" not "${@:2}"; }
not() { ! "$@"; }

# equal WHAT EXPECTED ACTUAL
equal() {
    [[ $2 == "$3" ]]
    verdict $? "$1" "$(printf '\n        expected %q\n        is       %q' "$2" "$3")"
}

# wait_for COMMAND...: until the command succeeds, at most twenty seconds.
wait_for() {
    local deadline=$((SECONDS + 20))
    until "$@" >/dev/null 2>&1 || [[ $SECONDS -ge $deadline ]]; do sleep 0.05; done
}

# eventually WHAT COMMAND...: the command succeeds within twenty seconds.
eventually() {
    wait_for "${@:2}"
    holds "$@"
}

# run COMMAND...: keeps the command's exit status, output and error in $status, $out and $err.
run() {
    local errors
    errors=$(mktemp)
    status=0
    out=$("$@" 2>"$errors") || status=$?
    err=$(<"$errors")
    rm "$errors"
}

# ends WHAT STATUS ERROR COMMAND...: the command ends with that status and exactly that message.
ends() {
    run "${@:4}"
    equal "$1" "$2 $3" "$status $err"
}

# The last lines of a test: what went wrong decides its exit status.
finish() {
    echo "$failures failed"
    [[ $failures == 0 ]]
}
