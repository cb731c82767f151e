#!/usr/bin/env bash
# Installs the Debian packages the build needs, only those that are missing:
# the toolchain and libraries, Qt 6 for the desktop program, Xvfb to show it
# without a screen, dpkg-dev for the Debian package's dependencies, and
# pybind11 with NumPy and pytest for the Python module.
set -euo pipefail

packages=(build-essential clang cmake libgtest-dev libgmock-dev libbenchmark-dev libcli11-dev nlohmann-json3-dev ccache
  qt6-base-dev qt6-multimedia-dev qt6-svg-dev xvfb xauth dpkg-dev
  python3-dev pybind11-dev python3-numpy python3-pytest)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
echo "Installing: ${missing[*]}" >&2
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}" >/dev/null
