#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Installs the Debian packages that are missing, then configures and builds
# in build/ (or $1). Safe to run again: nothing up to date is redone. The
# package lists are scripts/paquets.txt, and the files named in
# $TN_PAQUETS_EN_PLUS (paths relative to scripts/) when set.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
construction=${1:-$racine/build}
shift || true

manquants=()
for liste in paquets.txt ${TN_PAQUETS_EN_PLUS:-}; do
  while read -r paquet; do
    [[ -z "$paquet" || "$paquet" == \#* ]] && continue
    if ! dpkg-query -W -f='${Status}' "$paquet" 2>/dev/null | grep -q "install ok installed"; then
      manquants+=("$paquet")
    fi
  done <"$racine/scripts/$liste"
done
if ((${#manquants[@]})); then
  sudo=""
  if [[ $(id -u) -ne 0 ]]; then
    if ! command -v sudo >/dev/null; then
      echo "Paquets manquants : ${manquants[*]}" >&2
      echo "Installez-les en root (apt-get install), ou lancez ce script en root." >&2
      exit 1
    fi
    sudo="sudo"
  fi
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${manquants[@]}"
fi

cmake -S "$racine" -B "$construction" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
cmake --build "$construction" --parallel 2
