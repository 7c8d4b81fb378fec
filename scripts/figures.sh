#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Prints the game's figures as a table, each on its own virtual X screen
# (Xvfb, no window manager): time to the first painted frame, an idle
# table's CPU and wake-ups (context switches of all its threads) at
# 1024 x 768 and full screen 1920 x 1080 with the X server's share beside
# it, the same while the window is unmapped (what a window manager does to
# a minimised window or one on another workspace), memory before, during and
# after a tour of every installed deck, the deck switch times, the longest
# stretch without handling events during a paced sweep and from a hurry to
# GO. Drives the game through troisniveaux-mesures, built beside it and never
# installed. Takes the build folder to measure (default: build/).
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
dossier=$(cd "${1:-$racine/build}" && pwd)
[[ -x "$dossier/troisniveaux-mesures" ]] || { echo "$dossier : pas de troisniveaux-mesures construit" >&2; exit 1; }
copie=$(mktemp -d)
serveur=
trap '[[ -n $serveur ]] && kill "$serveur" 2>/dev/null; rm -rf "$copie"' EXIT
cp "$dossier/troisniveaux-mesures" "$racine/data/Noms" "$racine/data/Scores" "$copie/"
cp "$racine"/data/*.htm "$copie/" 2>/dev/null || true
export XDG_CONFIG_HOME=$copie/config

lance() { "$copie/troisniveaux-mesures" "$@"; }

# A virtual screen of size $1 of its own, in $DISPLAY; $serveur is its process.
ecran() {
  [[ -n $serveur ]] && { kill "$serveur" 2>/dev/null; wait "$serveur" 2>/dev/null || true; }
  rm -f "$copie/affichage"
  Xvfb -displayfd 3 -screen 0 "${1}x24" -nolisten tcp 3>"$copie/affichage" 2>/dev/null &
  serveur=$!
  for _ in $(seq 100); do [[ -s "$copie/affichage" ]] && break; sleep 0.05; done
  export DISPLAY=:$(head -1 "$copie/affichage")
}
# Time on a processor of all the threads of $1, in microseconds.
ticks() { awk '{t += $1} END {printf "%d", t / 1000}' /proc/"$1"/task/*/schedstat 2>/dev/null; }
commutations() {
  awk '/ctxt_switches/ {c += $2} END {print c}' /proc/"$1"/task/*/status 2>/dev/null
}
pourcent() { awk -v t="$1" -v s="$2" 'BEGIN {printf "%.2f", 100 * t / 1e6 / s}'; }

ligne() { printf '%-58s %s\n' "$1" "$2"; }

# First frame: median of five starts.
ecran 1024x768
premiers=()
for _ in 1 2 3 4 5; do
  premiers+=("$(lance --mesures --quitte-apres 1500 2>&1 | sed -n 's/^premier affichage : \([0-9]*\) ms/\1/p')")
done
ligne "premier affichage (médiane de 5)" "$(printf '%s\n' "${premiers[@]}" | sort -n | sed -n 3p) ms"

# An idle table for 10 s after 4 s to settle, then 10 s more unmapped.
repos() { # $1: screen size, $2: label, then options
  local taille=$1 quoi=$2 lanceur pid t0 c0 x0 t1 c1 x1 fenetre
  shift 2
  ecran "$taille"
  lance --quitte-apres 40000 "$@" >/dev/null 2>&1 &
  lanceur=$!
  sleep 4
  pid=$(pgrep -n -f "$copie/troisniveaux-mesures")
  t0=$(ticks $pid) c0=$(commutations $pid) x0=$(ticks $serveur)
  sleep 10
  t1=$(ticks $pid) c1=$(commutations $pid) x1=$(ticks $serveur)
  ligne "processeur au repos, $quoi" "$(pourcent $((t1 - t0)) 10) % d'un cœur (serveur X : $(pourcent $((x1 - x0)) 10) %)"
  ligne "réveils par seconde, $quoi" "$(((c1 - c0) / 10))"
  ligne "mémoire résidente, $quoi" "$(($(awk '/VmRSS/ {print $2}' /proc/$pid/status) / 1024)) Mo"
  fenetre=$(xdotool search --pid $pid --onlyvisible 2>/dev/null | head -1 || true)
  if [[ -n $fenetre ]]; then
    xdotool windowunmap "$fenetre"
    sleep 2
    t0=$(ticks $pid) c0=$(commutations $pid)
    sleep 10
    t1=$(ticks $pid) c1=$(commutations $pid)
    ligne "processeur, fenêtre retirée de l'écran, $quoi" "$(pourcent $((t1 - t0)) 10) % d'un cœur, $(((c1 - c0) / 10)) réveils/s"
  fi
  kill $pid 2>/dev/null || true
  wait $lanceur 2>/dev/null || true
}
repos 1024x768 "1024 × 768"
repos 1920x1080 "1920 × 1080" --plein-ecran

# A tour of every installed deck and back, at both sizes.
tour() { # $1: screen size, $2: label, then options
  local taille=$1 quoi=$2 sortie
  shift 2
  ecran "$taille"
  sortie=$(lance --mesure-jeux "$@" 2>&1 || true)
  if ! grep -q '^retour' <<<"$sortie"; then
    ligne "tour des jeux, $quoi" "aucun jeu installé"
    return
  fi
  ligne "mémoire avant / pic / après le tour des jeux, $quoi" "$(awk '
    /mémoire résidente/ {m = $(NF - 1) / 1024; if (m > pic) pic = m}
    /^jeu de TroisNiveaux/ {avant = m}
    /^retour/ {apres = m}
    END {printf "%.1f / %.1f / %.1f Mo", avant, pic, apres}' <<<"$sortie")"
  ligne "changement de jeu, le plus long, $quoi" "$(awk '/ en +[0-9]+ ms/ {
      for (i = 1; i < NF; i++) if ($i == "en") t = $(i + 1);
      if (t + 0 > max) {max = t + 0; nom = $1 " " $2}} END {print max " ms (" nom ")"}' <<<"$sortie")"
  ligne "changement vers Dondorf, $quoi" "$(awk '/^Dondorf/ {for (i = 1; i < NF; i++) if ($i == "en") print $(i + 1) " ms"}' <<<"$sortie")"
  ligne "attente maximale des événements pendant le tour, $quoi" "$(awk '/attente maximale/ {
      for (i = 1; i < NF; i++) if ($i == "maximale") {v = $(i + 3) + 0; if (v > max) max = v}} END {print max " ms"}' <<<"$sortie")"
}
tour 1024x768 "1024 × 768"
tour 1920x1080 "1920 × 1080" --plein-ecran

# A paced sweep of four seats: the longest wait for the event loop; and a
# deal hurried one second in: how long until GO shows.
ecran 1024x768
ligne "plus longue attente des événements, balayage" "$(lance --mesures --joue-auto --quitte-apres 12000 2>&1 |
  sed -n 's/^plus longue attente des événements : \(.*\)/\1/p')"
ligne "de la pression sur Entrée à GO" "$(lance --joue-auto --presse-apres 1000 --quitte-apres 9000 2>&1 |
  sed -n 's/^de la pression à GO : \(.*\)/\1/p')"
