#!/usr/bin/env bash
# Reruns the accuracy comparison: writes the reference places with astronomy-engine (the
# version pinned in package-lock.json), builds the comparer and prints its table.
#   tools/accuracy/run.sh [build directory]     (default: build/release)
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
bash "$root/tools/setup"
build=${1:-$root/build/release}
(cd "$here" && npm ci --no-audit --no-fund --silent)
mkdir -p "$build"
node "$here/reference.js" "$build/accuracy_reference.txt"
cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build" -j2 --target accuracy >/dev/null
"$build/tools/accuracy/accuracy" "$build/accuracy_reference.txt"
