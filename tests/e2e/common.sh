# What the end-to-end scripts share; sourced, with $work set to the script's scratch folder and
# logs=(...) naming the files in it that a failure prints.

# Exit 77 (skipped) with the reason, or fail where CI requires every real part.
skip() {
    if [ -n "${QUIVRA_REQUIRE_E2E:-}" ]; then
        echo "FAIL (required): $*" >&2
        exit 1
    fi
    echo "SKIP: $*"
    exit 77
}
fail() {
    echo "FAIL: $*" >&2
    for log in "${logs[@]}"; do
        [ -f "$work/$log" ] && { echo "--- $log"; tail -n 100 "$work/$log"; } >&2
    done
    exit 1
}
# Polls for a condition, at most $1 seconds.
within() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < deadline)) || return 1
        sleep 0.1
    done
}
# A home of its own in $work and a real OpenSSH server on 127.0.0.1:22 that takes its
# authorized_keys; the server's pid is in $work/sshd.pid, its log in $work/sshd.log.
start_sshd() {
    export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config XDG_DATA_HOME=$work/home/.local/share
    mkdir -p "$HOME/.ssh" /run/sshd
    chmod 700 "$HOME/.ssh" && touch "$HOME/.ssh/authorized_keys" && chmod 600 "$HOME/.ssh/authorized_keys"
    ssh-keygen -q -t ed25519 -N '' -f "$work/host_key"
    cat >"$work/sshd_config" <<CONFIG
Port 22
ListenAddress 127.0.0.1
HostKey $work/host_key
PidFile $work/sshd.pid
AuthorizedKeysFile $HOME/.ssh/authorized_keys
StrictModes no
UsePAM no
PasswordAuthentication no
KbdInteractiveAuthentication no
PermitRootLogin prohibit-password
CONFIG
    /usr/sbin/sshd -f "$work/sshd_config" -E "$work/sshd.log"
}
