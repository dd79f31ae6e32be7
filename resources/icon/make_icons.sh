#!/usr/bin/env bash
# Makes the icon's bitmaps from its drawing, after a change of that. Needs librsvg2-bin and icnsutils.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

for size in 16 24 32 48 64 128 256; do
    rsvg-convert --width "$size" --height "$size" --output "tarnivel_$size.png" tarnivel.svg
done
png2icns tarnivel.icns tarnivel_{16,32,48,128,256}.png
