#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Prints how many Debian packages, and how many megabytes once installed,
# the package lists given (default: scripts/paquets.txt, what the play
# command installs) bring onto a minimal Debian 12 system. The minimal
# system is the required packages and apt, with their dependencies, taken
# from this machine's own dpkg records; apt then simulates the install with
# --no-install-recommends, as scripts/preparer.sh does. Needs apt's lists
# (apt-get update) but installs nothing.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
listes=("$@")
[[ ${#listes[@]} -eq 0 ]] && listes=("$racine/scripts/paquets.txt")

etat=$(mktemp)
trap 'rm -f "$etat"' EXIT
base=$(awk -v RS= '/\nPriority: required/ || /^Package: apt\n/ {print $2}' /var/lib/dpkg/status)
# shellcheck disable=SC2086
fermeture=$(apt-cache depends --recurse --no-recommends --no-suggests --no-conflicts --no-breaks \
  --no-replaces --no-enhances $base 2>/dev/null | grep -v '^[ <]' | sort -u)
minimal=$(comm -12 <(echo "$fermeture") <(dpkg-query -W -f='${Package}\n' | sort -u))
awk -v RS= -v ORS='\n\n' -v liste="$(echo $minimal)" '
  BEGIN { n = split(liste, a, " "); for (i = 1; i <= n; i++) garde[a[i]] = 1 }
  { split($0, l, "\n"); sub(/^Package: /, "", l[1]); if (l[1] in garde) print }' \
  /var/lib/dpkg/status >"$etat"

paquets=()
for liste in "${listes[@]}"; do
  while read -r p; do
    [[ -z "$p" || "$p" == \#* ]] && continue
    paquets+=("$p")
  done <"$liste"
done
mapfile -t installes < <(apt-get -s -o Dir::State::status="$etat" \
  -o APT::Install-Recommends=false install "${paquets[@]}" 2>/dev/null |
  sed -n 's/^Inst \([^ ]*\) .*(\([^ ]*\) .*/\1=\2/p')
kio=$(apt-cache show "${installes[@]}" 2>/dev/null |
  awk '/^Package:/ { p = $2 } /^Installed-Size:/ && !(p in vu) { vu[p] = 1; t += $2 } END { print t + 0 }')
echo "système minimal : $(grep -c '^Package:' "$etat") paquets"
echo "${#installes[@]} paquets à installer, $((kio / 1024)) Mo une fois installés"
if [[ -n "${TN_DETAIL:-}" ]]; then printf '%s\n' "${installes[@]}"; fi
