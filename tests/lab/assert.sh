# Sourced by the tests that are shell scripts: says what holds, and counts what does not.

failures=0

# holds WHAT COMMAND...: the command succeeds.
holds() {
    local what=$1
    shift
    if "$@" >/dev/null 2>&1; then
        echo "ok      $what"
    else
        echo "FAILED  $what: $*"
        failures=$((failures + 1))
    fi
}

# fails WHAT COMMAND...: the command does not succeed.
fails() { holds "$1" not "${@:2}"; }
not() { ! "$@"; }

# equal WHAT EXPECTED ACTUAL
equal() {
    if [[ $2 == "$3" ]]; then
        echo "ok      $1"
    else
        printf 'FAILED  %s:\n        expected %q\n        is       %q\n' "$1" "$2" "$3"
        failures=$((failures + 1))
    fi
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
