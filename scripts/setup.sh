#!/usr/bin/env bash
# Installs, from Debian's packages, what building and testing VOR2 needs.
# Installs nothing when everything is already there.
set -euo pipefail

PACKAGES=(cmake ninja-build ccache g++ qtbase5-dev googletest libgtest-dev
          libbenchmark-dev libabsl-dev libboost-dev xvfb xauth poppler-utils
          octave liboctave-dev xdotool)

missing=()
for p in "${PACKAGES[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "Installing: ${missing[*]}"
SUDO=""
[ "$(id -u)" -eq 0 ] || SUDO="sudo"
export DEBIAN_FRONTEND=noninteractive
if ! $SUDO apt-get install -y --no-install-recommends "${missing[@]}"; then
  $SUDO apt-get update
  $SUDO apt-get install -y --no-install-recommends "${missing[@]}"
fi
