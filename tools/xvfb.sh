# Sourced by the scripts that need an X display. ensure_display starts Xvfb on a
# free display when DISPLAY is not set, and stops it when the calling shell exits.
# The screen holds the largest Wine desktop the tests use (1536x1152, at 144 DPI).
ensure_display() {
    if [ -n "${DISPLAY:-}" ]; then
        return
    fi
    local n=90
    while [ -e "/tmp/.X$n-lock" ] || [ -e "/tmp/.X11-unix/X$n" ]; do
        n=$((n + 1))
    done
    Xvfb ":$n" -screen 0 1600x1200x24 -nolisten tcp >/dev/null 2>&1 &
    TARVEX_XVFB_PID=$!
    trap 'kill "$TARVEX_XVFB_PID" 2>/dev/null || true' EXIT
    for _ in $(seq 100); do
        [ -e "/tmp/.X11-unix/X$n" ] && break
        sleep 0.1
    done
    export DISPLAY=":$n"
}
