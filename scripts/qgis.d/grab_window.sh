#!/usr/bin/env bash
# grab_window.sh PICTURE: waits until the window of QGIS stands still, and writes what the display shows.
set -eu
picture=$1
before=
for _ in $(seq 60); do
    sleep 1
    window=$(xdotool search --onlyvisible --name 'QGIS$' 2>/dev/null | head -n 1)
    [ -n "$window" ] || continue
    xdotool windowmove "$window" 0 0 windowsize "$window" 1180 700
    import -window "$window" now.png
    now=$(identify -format '%#' now.png)
    # The map is drawn after the window: two equal pictures that aren't of one colour.
    if [ "$now" = "$before" ] && [ "$(identify -format '%k' now.png)" -gt 500 ]; then
        convert now.png -define png:compression-level=9 "$picture"
        exit 0
    fi
    before=$now
done
echo "QGIS showed no window that stands still" >&2
exit 1
