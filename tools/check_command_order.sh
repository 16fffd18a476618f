#!/usr/bin/env bash
# Runs the README's two commands on fresh clones of the committed tree, in
# both orders, and prints how long each took. Both must pass in either
# order on one clone: they share build/.
#   tools/check_command_order.sh [work-dir]
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
work=${1:-$(mktemp -d)}
mkdir -p "$work"

timed() {
  local label=$1; shift
  local start end log
  log="$work/$(printf '%s' "$label" | tr -c 'A-Za-z0-9-' '_').log"
  start=$(date +%s)
  if ! "$@" >"$log" 2>&1; then
    echo "FAILED: $label (log: $log)"
    tail -n 30 "$log"
    return 1
  fi
  end=$(date +%s)
  printf '%-34s %5d s\n' "$label" $((end - start))
}

for order in viewer-first tests-first; do
  clone="$work/$order"
  rm -rf "$clone"
  git clone -q "$top" "$clone"
  if [ "$order" = viewer-first ]; then
    timed "$order: scripts/run-viewer" env -u DISPLAY "$clone/scripts/run-viewer"
    timed "$order: scripts/run-tests" "$clone/scripts/run-tests"
  else
    timed "$order: scripts/run-tests" "$clone/scripts/run-tests"
    timed "$order: scripts/run-viewer" env -u DISPLAY "$clone/scripts/run-viewer"
  fi
  test -s "$clone/floorplan_viewer.png"
  # The ordinary build still holds every test after both commands.
  (cd "$clone/build" && ctest -N --no-tests=error | tail -n 1)
done
