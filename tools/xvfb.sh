# Sourced by the scripts that need an X display. ensure_display starts Xvfb on a
# free display when DISPLAY is not set, and stops it when the calling shell exits.
# The screen holds the largest Wine desktop the tests use (1536x1152, at 144 DPI).
ensure_display() {
    if [ -n "${DISPLAY:-}" ]; then
        return
    fi
    # Xvfb picks the free display itself and names it on the descriptor once it listens:
    # two runs starting together would otherwise both take the first number free.
    local named
    named=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp 3>"$named" >/dev/null 2>&1 &
    TARVEX_XVFB_PID=$!
    trap 'kill "$TARVEX_XVFB_PID" 2>/dev/null || true' EXIT
    local n=
    for _ in $(seq 100); do
        n=$(tr -dc '0-9' <"$named")
        [ -n "$n" ] && break
        sleep 0.1
    done
    rm -f "$named"
    export DISPLAY=":$n"
}
