#!/usr/bin/env bash
# Prints the game's figures on a virtual X screen: time to the first painted
# frame, CPU use of an idle table with the stars running (at the designed size
# and full screen), the longest stretch without handling events during a paced
# sweep, the time from a hurry to GO, and resident memory of the game and of
# all its processes. Takes the build folders to measure (default: build/, and
# build-web/, the Qt WebEngine variant, when it exists); uses its own copy of
# the data files.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)

mesure() { # $1: the build folder
  local dossier copie
  dossier=$1
  copie=$(mktemp -d)
  cp "$dossier/troisniveaux" "$racine/data/Noms" "$racine/data/Scores" "$copie/"
  cp "$racine"/data/*.htm "$copie/" 2>/dev/null || true
  # TN_MESURES turns on the game's own probes (a 5 ms timer among them): only
  # the runs that print them get it, so the idle figure is the game's own.

  # Start-up: median of five starts.
  local premiers=()
  for _ in 1 2 3 4 5; do
    premiers+=("$(TN_MESURES=1 TN_QUITTE_APRES=1500 xvfb-run -a "$copie/troisniveaux" 2>&1 |
      sed -n 's/^premier affichage : \([0-9]*\) ms/\1/p')")
  done
  echo "  premier affichage (médiane de 5) : $(printf '%s\n' "${premiers[@]}" | sort -n | sed -n 3p) ms"

  # Idle table: CPU and memory of the game and of its child processes, at
  # the designed size, then full screen on a 1920 x 1080 screen.
  repos() { # $1: screen size, $2: what is measured, then extra variables
    local ecran=$1 quoi=$2
    shift 2
    env "$@" TN_QUITTE_APRES=16000 XDG_CONFIG_HOME="$copie/config" \
      xvfb-run -a -s "-screen 0 ${ecran}x24" "$copie/troisniveaux" >/dev/null 2>&1 &
    sleep 4
    local pid
    pid=$(pgrep -n -f "$copie/troisniveaux")
    arbre() { echo "$pid"; pgrep -P "$pid" || true; for e in $(pgrep -P "$pid" || true); do pgrep -P "$e" || true; done; }
    temps() { local t=0; for p in $(arbre); do [[ -r /proc/$p/stat ]] && t=$((t + $(awk '{print $14 + $15}' /proc/$p/stat))); done; echo $t; }
    local avant apres memoire=0 memoireTotale=0
    avant=$(temps)
    sleep 10
    apres=$(temps)
    memoire=$(awk '/VmRSS/ {print $2}' /proc/$pid/status)
    for p in $(arbre); do
      [[ -r /proc/$p/status ]] && memoireTotale=$((memoireTotale + $(awk '/VmRSS/ {print $2}' /proc/$p/status)))
    done
    echo "  processeur, table au repos pendant 10 s, $quoi : $(awk -v t=$((apres - avant)) -v hz="$(getconf CLK_TCK)" 'BEGIN {printf "%.1f", 100 * t / hz / 10}') % d'un cœur"
    echo "  mémoire résidente, $quoi : $((memoire / 1024)) Mo (jeu), $((memoireTotale / 1024)) Mo (avec ses processus)"
    wait || true
  }
  repos 1024x768 "1024 × 768"
  repos 1920x1080 "plein écran 1920 × 1080" TN_PLEIN_ECRAN=1

  # A paced sweep of four seats: the longest wait for the event loop.
  TN_MESURES=1 TN_JOUE_AUTO=1 TN_QUITTE_APRES=12000 xvfb-run -a "$copie/troisniveaux" 2>&1 |
    sed -n 's/^plus longue attente des événements : \(.*\)/  plus longue attente des événements pendant un balayage : \1/p'

  # A paced deal hurried one second in (Entrée or a click on the bar): how
  # long until GO shows.
  TN_JOUE_AUTO=1 TN_PRESSE_APRES=1000 TN_QUITTE_APRES=9000 xvfb-run -a "$copie/troisniveaux" 2>&1 |
    sed -n 's/^de la pression à GO : \(.*\)/  de la pression sur Entrée à GO : \1/p'
  rm -rf "$copie"
}

dossiers=("$@")
if [[ ${#dossiers[@]} -eq 0 ]]; then
  dossiers=("$racine/build")
  [[ -x "$racine/build-web/troisniveaux" ]] && dossiers+=("$racine/build-web")
fi
for dossier in "${dossiers[@]}"; do
  dossier=$(cd "$dossier" && pwd)
  if [[ ! -x "$dossier/troisniveaux" ]]; then
    echo "$dossier : pas de jeu construit" >&2
    exit 1
  fi
  echo "$dossier :"
  mesure "$dossier"
done
