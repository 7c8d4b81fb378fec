#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# The game on a real Wayland compositor (weston, headless), through Qt's own
# Wayland plugin and no X server: the window tests that open a table, deal,
# fit the window and quit run there, then the game itself starts and stands
# until it is asked to end. Skipped when weston is not installed.
# Usage: verifier-wayland.sh [BUILD]
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
construction=${1:-$racine/build}

if ! command -v weston >/dev/null; then
  echo "weston absent : vérification sous Wayland sautée"
  exit 0
fi

# The compositor's socket lives in a private folder, as a session has it.
dossier=$(mktemp -d)
chmod 700 "$dossier"
weston_pid=""
nettoie() {
  [[ -n "$weston_pid" ]] && kill "$weston_pid" 2>/dev/null && wait "$weston_pid" 2>/dev/null
  rm -rf "$dossier"
}
trap nettoie EXIT
export XDG_RUNTIME_DIR=$dossier
weston --backend=headless-backend.so --socket=tn-wayland --idle-time=0 \
  >"$dossier/weston.log" 2>&1 &
weston_pid=$!
for _ in $(seq 100); do
  [[ -S "$dossier/tn-wayland" ]] && break
  sleep 0.1
done
if [[ ! -S "$dossier/tn-wayland" ]]; then
  echo "weston n'a pas démarré :" >&2
  cat "$dossier/weston.log" >&2
  exit 1
fi

# No fallback: without the Wayland plugin Qt stops at once.
export WAYLAND_DISPLAY=tn-wayland QT_QPA_PLATFORM=wayland
unset DISPLAY
# Named in full and counted, so that a renamed test fails here rather than
# dropping silently out of the Wayland run.
essais=(Fenêtre.UneSessionAuComplet Fenêtre.UnBalayageRythméSArrêteOuFinitAussitôt
  Échelle.LaTableGrandiEnEntierAuMilieuDuNoir Échelle.LesClicsEtLesDessinsSuiventLaTaille
  Échelle.LaFenêtreRouvreÀLaTailleOùLeJoueurLAQuittéeSiElleTient Avis.SansModeÀRéglerAucunDialogue)
filtre=$(IFS=:; echo "${essais[*]}")
"$construction/troisniveaux-tests-fenetre" --gtest_brief=1 --gtest_filter="$filtre" | tee "$dossier/essais.log"
if ! grep -q "^\[  PASSED  \] ${#essais[@]} tests\." "$dossier/essais.log"; then
  echo "Wayland : ${#essais[@]} tests de fenêtre attendus, pas tous lancés ou réussis." >&2
  exit 1
fi

# The game as a player starts it, in a home of its own; SIGTERM ends the
# session the game's own way (status 128 + 15).
mkdir -p "$dossier/maison"
HOME=$dossier/maison "$construction/troisniveaux" 2>"$dossier/jeu.log" &
jeu=$!
sleep 4
if ! kill -TERM "$jeu" 2>/dev/null; then
  echo "le jeu s'est arrêté tout seul sous Wayland :" >&2
  cat "$dossier/jeu.log" >&2
  exit 1
fi
statut=0
wait "$jeu" || statut=$?
if [[ $statut -ne 143 ]] || grep -qi "wayland" "$dossier/jeu.log"; then
  echo "le jeu sous Wayland a fini avec le statut $statut :" >&2
  cat "$dossier/jeu.log" >&2
  exit 1
fi
echo "Wayland : le jeu démarre, distribue et se quitte sous weston."
