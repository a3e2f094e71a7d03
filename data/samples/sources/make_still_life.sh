#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Korvanta contributors
# SPDX-License-Identifier: MIT
# Renders ../pictures/still-life.jpg; give another number of paths a pixel for a quicker, grainier look.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
g++ -O3 -march=native -std=c++20 -fopenmp "$here/still_life/still_life.cpp" -o "$work/still_life"
"$work/still_life" 1600 1200 "${1:-128}" "$work/picture.ppm"
python3 - "$work/picture.ppm" "$here/../pictures/still-life.jpg" <<'PY'
import sys
from PIL import Image
Image.open(sys.argv[1]).save(sys.argv[2], quality=88, optimize=True, progressive=True)
PY
