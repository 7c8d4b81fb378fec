#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Checks the game as a distribution would ship it, from a build configured
# for /usr (default: build/): installs it under a temporary DESTDIR, checks
# the desktop entry and AppStream data, starts the installed game with an
# empty home (its data folder is made, a deal is played, Scores is written
# there, and a second start reads it back). The Debian package is checked by
# scripts/paquet-debian.sh.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
construction=$(cd "${1:-$racine/build}" && pwd)
id=$(sed -n 's/^TN_ID_APPLICATION:STRING=//p' "$construction/CMakeCache.txt")
prefixe=$(sed -n 's/^CMAKE_INSTALL_PREFIX:PATH=//p' "$construction/CMakeCache.txt")
binaires=$(sed -n 's/^CMAKE_INSTALL_BINDIR:PATH=//p' "$construction/CMakeCache.txt")
if [[ "$prefixe" != /usr ]]; then
  echo "$construction n'est pas configuré pour /usr (CMAKE_INSTALL_PREFIX=$prefixe)" >&2
  exit 1
fi

travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT
dest=$travail/racine
DESTDIR=$dest cmake --install "$construction" >/dev/null

echo "== fichiers installés"
for f in "usr/$binaires/troisniveaux" "usr/$binaires/troisniveaux-analyse" \
  usr/share/troisniveaux/Noms usr/share/troisniveaux/Scores usr/share/troisniveaux/pub0.htm \
  usr/share/troisniveaux/pub1.htm usr/share/troisniveaux/logomdc200.htm \
  "usr/share/applications/$id.desktop" "usr/share/metainfo/$id.metainfo.xml" \
  "usr/share/icons/hicolor/scalable/apps/$id.svg" "usr/share/icons/hicolor/48x48/apps/$id.png" \
  usr/share/man/man6/troisniveaux.6.gz usr/share/man/man6/troisniveaux-analyse.6.gz \
  usr/share/man/fr/man6/troisniveaux.6.gz usr/share/man/fr/man6/troisniveaux-analyse.6.gz \
  usr/share/troisniveaux/traductions/troisniveaux_en.qm; do
  [[ -f "$dest/$f" ]] || { echo "manquant : /$f" >&2; exit 1; }
done
desktop-file-validate "$dest/usr/share/applications/$id.desktop"
appstreamcli validate --no-net "$dest/usr/share/metainfo/$id.metainfo.xml"
jeu=$dest/usr/$binaires/troisniveaux
"$jeu" --version
# The installed translation is found from the installed program.
"$jeu" --langue en --help | grep -q '^Usage:' || { echo "la traduction anglaise installée est introuvable" >&2; exit 1; }
if "$jeu" --inconnue 2>/dev/null; then
  echo "une option inconnue est acceptée" >&2
  exit 1
else
  [[ $? -eq 2 ]] || { echo "une option inconnue ne sort pas avec le code 2" >&2; exit 1; }
fi

echo "== premier lancement, maison vide"
maison=$travail/maison
mkdir -p "$maison"
# The game is played and ended by troisniveaux-mesures, which the build
# leaves beside it and which finds the installed files as the game does.
cp "$construction/troisniveaux-mesures" "$(dirname "$jeu")/"
lance() {
  env -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u XDG_DATA_DIRS HOME="$maison" QT_QPA_PLATFORM=offscreen \
    timeout 300 "$(dirname "$jeu")/troisniveaux-mesures" --duree-balayage 0 "$@"
}
donnees=$maison/.local/share/troisniveaux
lance --capture "$travail/table.png"
for f in Noms Scores Tirage Temps2; do
  [[ -s "$donnees/$f" ]] || { echo "$donnees/$f absent après une donne" >&2; exit 1; }
done
[[ -s "$travail/table.png" ]]
[[ "$donnees/Scores" -nt "$donnees/Noms" ]] || { echo "Scores n'a pas été écrit" >&2; exit 1; }
cmp -s "$donnees/Noms" "$dest/usr/share/troisniveaux/Noms"
[[ ! -e "$dest/usr/share/troisniveaux/Tirage" ]] || { echo "écrit dans le dossier installé" >&2; exit 1; }

echo "== deuxième lancement : les scores du joueur restent"
cp "$donnees/Scores" "$travail/scores-avant"
printf '"Ana"\r\n"Bo"\r\n"Cy"\r\n"Moi"\r\n' >"$donnees/Noms"
lance --quitte-apres 500
cmp "$donnees/Scores" "$travail/scores-avant"
grep -q Moi "$donnees/Noms"
rm "$donnees/Scores"
if lance --quitte-apres 500 2>"$travail/erreur"; then
  echo "le jeu démarre sans Scores" >&2
  exit 1
fi
grep -q "Scores" "$travail/erreur"
[[ ! -e "$donnees/Scores" ]] || { echo "Scores remplacé en silence" >&2; exit 1; }

echo "== le jeu installé lui-même, arrêté comme par une fin de session"
cp "$travail/scores-avant" "$donnees/Scores"
env -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u XDG_DATA_DIRS HOME="$maison" QT_QPA_PLATFORM=offscreen \
  timeout --preserve-status -s TERM 3 "$jeu" && statut=0 || statut=$?
[[ $statut -eq 143 ]] || { echo "le jeu installé sort avec le code $statut au lieu de 143" >&2; exit 1; }

echo "installation vérifiée : $dest"
