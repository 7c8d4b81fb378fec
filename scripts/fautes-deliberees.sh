#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Deliberate faults, one at a time: applies each to the source tree, rebuilds
# the test program that should catch it, runs it, prints which tests fail
# (caught) or MISSED, then puts the file back. Run it before and after
# trimming or reshaping the tests: a fault caught before must stay caught.
# A fault whose code has moved says NOT APPLIED: mend its substitution.
#
#   bash scripts/fautes-deliberees.sh [SOURCE_TREE] [BUILD_DIR] [FAULT_IDS...]
# SOURCE_TREE defaults to this checkout, BUILD_DIR to SOURCE_TREE/build
# (configured with the tests, e.g. by scripts/tester.sh). FAULT_IDS (E01 W2...)
# limit the run. Results also go to BUILD_DIR/fautes.txt. About half an hour
# for the whole list on two cores. Commit first: the tree is edited meanwhile.
set -uo pipefail
racine=$(cd "${1:-$(dirname "$0")/..}" && pwd)
build=$(cd "${2:-$racine/build}" && pwd) || exit 2
shift 2 2>/dev/null || shift $#
choisis=("$@")

# id | target | file | perl substitution (applied with -0pi) | description
fautes=(
"E01|engine|src/computer/balayage_rapide.cpp+src/computer/ordi_joue_litteral.cpp|s/if \(f > meilleure\)/if (f >= meilleure)/; s/if \(somme > t\.MeilleureValeur\)/if (somme >= t.MeilleureValeur)/|sweep ties: > turned into >= in both sweeps"
"E02|engine|src/showdown/paiement.cpp|s/g\.Gain2\[s\] = 2;/g.Gain2[s] = 3;/|a full house on level 2 pays 3, not 2"
"E03|engine|src/showdown/paiement.cpp|s/g\.Gain1\[s\] = 4;/g.Gain1[s] = 3;/|four of a kind on level 1 pays 3, not 4 (off by one)"
"E04|engine|src/showdown/paiement.cpp|s/grille\[a\]\[b\] = static_cast<Case>\(-gain\[b\]\);/grille[a][b] = static_cast<Case>(-gain[a]);/|the loser pays at its own rate, not the winner's"
"E05|engine|src/showdown/paiement.cpp|s/t\.PaieNiveau1\[s\]\[adversaire\]/TMPX/; s/t\.PaieNiveau2\[s\]\[adversaire\]/t.PaieNiveau1[s][adversaire]/; s/TMPX/t.PaieNiveau2[s][adversaire]/|levels 1 and 2 swapped in the payment labels"
"E06|engine|src/valuation/decompte.cpp|s/PrendNiveau\(\*this, j, 5, Niveau2\)/PrendNiveau(*this, j, 0, Niveau2)/|level 2 valued from level 1's places at the showdown"
"E07|engine|src/showdown/grandes_mains.cpp|s/v\.ValeurJoueur2\[3\] > v\.ValeurJoueur1\[3\]/v.ValeurJoueur2[3] >= v.ValeurJoueur1[3]/|the human's equal levels 1 and 2 count as out of order"
"E08|engine|src/valuation/classement.cpp|s/\? rangs\[3\] : rangs\[4\]/? rangs[4] : rangs[4]/|the lowest straight (A 2 3 4 5) tops at the ace"
"E09|engine|src/valuation/classement.h|s/v > t\.BaseMain\[3\] && v < t\.BaseMain\[4\]/v > t.BaseMain[3] \&\& v <= t.BaseMain[4]/|all-straight bound: a level worth 500 counts as a straight"
"E10|engine|src/computer/ordi_joue.cpp|s/if \(paires == 6\)/if (paires >= 5)/|six pairs granted for five"
"E11|engine|src/computer/ordi_joue.cpp|s/if \(main\[11\] % 13 == main\[12\] % 13\)/if (false)/|cards 11 and 12 never counted as a pair"
"E12|engine|src/showdown/grandes_mains.cpp|s/(ValeurToutFlush\);)\n\s*t\.ToutQuinte\[s\] = false;/\$1/|TOUT FLUSH no longer clears TOUT QUINTE"
"E13|engine|src/showdown/totaux.cpp|s/if \(t\.ScoresRemisà0\)\n\s*continue;//|SCORES A 0 during the deal ignored: the deal is added to the scores"
"E14|engine|src/table/horloge.cpp|s/if \(TempsÉcoulé < std::numeric_limits<int16_t>::max\(\)\)/if (TempsÉcoulé <= std::numeric_limits<int16_t>::max())/|the clock wraps past its 16-bit ceiling"
"E15|engine|src/table/regles.cpp|s/PageRègles == 13 \?/PageRègles == 12 ?/|the rules stop one page short"
"E16|engine|src/core/donne.cpp|s/  ScoresRemisà0 = false;\n  ScoresÉcrits = false;/  ScoresÉcrits = false;/|Init keeps ScoresRemisà0 from the deal before"
"E17|engine|src/core/donne.cpp|s/  ÉcritTirage\(\);\n\}/}/|a deal is not written to Tirage"
"E18|engine|src/files/ecriture.cpp|s/fichier\.flush\(\) && RemplaçableOuAbsent/RemplaçableOuAbsent/|no flush before the commit of a data file"
"E19|engine|src/valuation/decompte.cpp|s/t\.Mode == 0 \? indice >= 3 : indice >= 4/t.Mode == 1 ? indice >= 3 : indice >= 4/|EXPERT and DEBUTANT swapped for which index holds the human's layout"
"E20|engine|src/showdown/paiement.cpp|s/if \(v3 >= base\[2\] && v3 < ValeurToutQuinte\)/if (v3 > base[2] \&\& v3 < ValeurToutQuinte)/|three of a kind worth exactly the base (three 2s) on level 3 pays 1, not 3"
"F01|engine|src/files/format.cpp|s/  if \(lecture\.tronqué\) \{\n    \/\/ The line the limit cuts/  if (false) {\n    \/\/ The line the limit cuts/|the line cut at the read limit is read with its digits missing"
"F02|engine|src/files/ecriture.cpp|s/return stat\(nom\.c_str\(\), &état\) == 0 \? S_ISREG\(état\.st_mode\) : errno == ENOENT;/return stat(nom.c_str(), &état) == 0 \\x7c\\x7c errno == ENOENT;/|the writer replaces a pipe or device at a data file's name"
"F03|engine|src/files/restes.cpp|s/    unlink\(chemin\.c_str\(\)\);/    (void)chemin;/|a leftover of a cut write is not cleaned"
"F04|engine|src/files/historique.cpp|s/champs\.size\(\) != 10 \x7c\x7c/champs.size() < 10 \\x7c\\x7c/|a history line with a field too many is accepted"
"F05|engine|src/files/restes.cpp|s/nom\.size\(\) != préfixe\.size\(\) \+ 6/nom.size() < préfixe.size() + 6/|a player's file with a longer suffix is taken for a leftover"
"F06|engine|src/files/ecriture.cpp|s/fichier\.setDirectWriteFallback\(enPlaceSiBesoin\);/fichier.setDirectWriteFallback(enPlaceSiBesoin \&\& false);/|a folder that takes no new file: the data file is not written in place, the write is lost"
"W1|window|src/platform/qt/fenetre/clavier.cpp|s/(Qt::Key_Q\)\)\n\s*break;\n)\s*return true;\n/\$1/|a key of the table acts while a panel (history, web page) is open"
"W1b|window|src/platform/qt/fenetre/clavier.cpp|s/if \(f\.NomsJoueursSS\.Visible \x7c\x7c Saisie\(\)\) \{/if (Saisie()) {/|the names panel form keys only while a text box has the keyboard"
"W2|window|src/platform/qt/fenetre/vue_controle.cpp|s/std::lround\(twips \* échelle \/ 15\.0\)/(twips * échelle \/ 15.0)/|twips to pixels truncated, not rounded"
"W3|window|src/platform/qt/fenetre/accessibilite.cpp|s/couleurs\[code \/ 13\]\)\)/couleurs[(code \/ 13) ^ 1]))/|a card's spoken name gives the suit next to its own (clubs and diamonds, hearts and spades swapped)"
"W4|window|src/platform/qt/fenetre/clavier.cpp|s/&f\.Rejoue,(\s*)&f\.Arrêt,/&f.Arrêt,\$1&f.Rejoue,/|Tab reaches STOP before REJOUER, against the menu's order"
"W5|window|src/platform/qt/bureau/langue.cpp|s/  ParleLangue\(suivante\);\n  Réglages\(\)->setValue\(Clé, LangueParlée\(\)\);/  ParleLangue(suivante);/|F12's language is not kept in the settings"
"W6|window|src/platform/qt/panneaux/panneau_historique.cpp|s/figures\.sièges\[s\];/figures.sièges[(s + 1) % 4];/|the history panel's rows are one seat off: each name shows the next seat's figures"
"W7|window|src/platform/qt/bureau/affichage.cpp|s/return \{int\(qint64\(place\.height\(\)\) \* voulue\.width\(\) \/ voulue\.height\(\)\), place\.height\(\)\};/return {qRound(double(place.height()) * voulue.width() \/ voulue.height()), place.height()};/|the screen fit rounds the width to the nearest pixel, which can overflow the free area"
"W8|window|src/platform/qt/jeux/jeux_de_cartes.cpp|s/if \(r != Z_STREAM_END \x7c\x7c abandon \x7c\x7c svg\.size\(\) > TailleMaximaleSvg\)/if (r != Z_STREAM_END \\x7c\\x7c abandon)/|a deck's SVG that unpacks past its bound is kept when its stream ends just past it"
"W9|window|src/platform/qt/fenetre/vue_controle.cpp|s/if \(c == '\"' \x7c\x7c c\.category\(\)/if (c.category()/|a names box accepts a double quote, which breaks the Noms file's line"
"W10|window|src/platform/qt/fenetre/clavier.cpp|s/objet->isWidgetType\(\) &&\n(\s*)static_cast<QWidget \*>\(objet\)->window\(\) == &fenêtre\)\n(\s*)for/objet == \&fenêtre)\n\$2for/|a key sent to a button behind an open panel (Espace on JOUER, Tab) acts behind it"
"W11|window|src/platform/qt/bureau/sortie.cpp|s/\{SIGTERM, SIGINT, SIGHUP\}/{SIGTERM, SIGINT}/|SIGHUP is not guarded: the display mode is not put back when the terminal goes"
"W12|window|src/platform/qt/fenetre/fond_etoile.cpp|s/return QPointF\(x \* échelle \/ 15\.0, y \* échelle \/ 15\.0\);/return QPointF(x \/ 15.0, y \/ 15.0);/|the stars are drawn at their designed places, not scaled with the table"
"W13|window|src/platform/qt/fenetre/fenetre_table.cpp|s/value\(\"fenetre\/geometrie\"\)/value(\"fenetre\/geometry\")/|the saved window size is read under another key than it is written: it is ignored"
"W14|window|src/platform/qt/panneaux/pages_web.cpp|s/\x7c\x7c adresse\.startsWith\(\"data:\"\);/\\x7c\\x7c adresse.startsWith(\"data:\") \\x7c\\x7c adresse.startsWith(\"file:\");/|the web views may open any local file, not only the game's logo"
"W15|window|src/platform/qt/bureau/dossier_donnees.cpp|s/  if \(QFileInfo\(personnel\)\.isDir\(\)\)\n    return choix;\n//|an existing player folder is taken for a first run and filled again"
"W16|window|src/platform/qt/jeux/jeux_de_cartes.cpp|s/\(svg\[j\] != '\"' && svg\[j\] != '\\\\''\)/(svg[j] != '\"')/|a deck's href between single quotes is not emptied: the renderer may read any file"
)

[[ -f "$build/CMakeCache.txt" ]] || { echo "No configured build in $build" >&2; exit 2; }
sortie="$build/fautes.txt"
: >"$sortie"
dit() { echo "$*" | tee -a "$sortie"; }

for ligne in "${fautes[@]}"; do
  IFS='|' read -r id cible fichiers substitution description <<<"$ligne"
  if ((${#choisis[@]})) && [[ " ${choisis[*]} " != *" $id "* ]]; then continue; fi
  IFS='+' read -r -a liste <<<"$fichiers"
  sauvegarde=$(mktemp -d)
  applique=0
  for f in "${liste[@]}"; do
    cp "$racine/$f" "$sauvegarde/$(basename "$f")"
    perl -0pi -e "$substitution" "$racine/$f"
    cmp -s "$racine/$f" "$sauvegarde/$(basename "$f")" || applique=1
  done
  if ((!applique)); then
    dit "$id NOT APPLIED (the code moved): $description"
  else
    if [[ $cible == engine ]]; then cible_cmake=troisniveaux-tests; else cible_cmake=troisniveaux-tests-fenetre; fi
    construites="${construites:-} $cible_cmake"
    if ! cmake --build "$build" --target "$cible_cmake" -j2 >"$build/faute-$id.log" 2>&1; then
      dit "$id caught by the compiler: $description"
    else
      # Line-buffered, so that a crash keeps what was already said.
      (cd "$build" && QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen} timeout 900 stdbuf -oL \
         "./$cible_cmake" --gtest_brief=1 >>"$build/faute-$id.log" 2>&1)
      statut=$?
      echecs=$(grep -E '^\[  FAILED  \] [^ ]+\.[^ ,]+' "$build/faute-$id.log" | awk '{print $4}' | sort -u | tr '\n' ' ')
      if [[ -z "$echecs" && $statut -ne 0 ]]; then
        echecs="(the test program ended with status $statut) "
      fi
      if [[ -n "$echecs" ]]; then
        dit "$id caught by: $echecs-- $description"
      else
        dit "$id MISSED -- $description"
      fi
    fi
  fi
  for f in "${liste[@]}"; do
    cp "$sauvegarde/$(basename "$f")" "$racine/$f"
  done
  rm -rf "$sauvegarde"
done
# Leaves the test programs built from the clean tree.
for cible_cmake in $(tr ' ' '\n' <<<"${construites:-}" | sort -u); do
  cmake --build "$build" --target "$cible_cmake" -j2 >/dev/null 2>&1
done
