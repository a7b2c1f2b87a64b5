#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs from Debian what the project is built and tested with. Does nothing where all of it is there.
set -euo pipefail

packages=(
  ca-certificates ccache clang clang-format clang-tidy cmake g++ git libbenchmark-dev libcli11-dev
  libclang-rt-14-dev libgmock-dev libgtest-dev librapidcheck-dev ninja-build nlohmann-json3-dev
  python3 python3-ezdxf qtbase5-dev zlib1g-dev
)

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed; then
    missing+=("$package")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
