#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#
# Checks the Debian package as a distribution would take it, from a clean
# clone of the committed tree (in build-deb/, or $1):
# - every file carries a licence line (licensecheck), but those that
#   debian/copyright says cannot;
# - debian/ says what cmake/projet.cmake and CMakeLists.txt say;
# - dpkg-buildpackage -us -uc builds the source and binary packages, the
#   engine tests run, and the binaries land in /usr/games with their symbols
#   in the -dbgsym package;
# - lintian --pedantic shows no tag left (each one is fixed or overridden with
#   its reason), blhc finds Debian's build flags on every compile and link line;
# - autopkgtest runs debian/tests on this machine (null runner: the package is
#   installed here, then removed if it was not installed before);
# - a second build in another folder, later, with another time zone and
#   umask and without ccache, gives the same .deb files bit for bit.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
travail=${1:-$racine/build-deb}
echec() {
  echo "$*" >&2
  exit 1
}

echo "== lignes de licence"
# Every tracked file names its licence, but LICENSE itself and the files that
# debian/copyright lists apart as unable to carry a licence line.
mapfile -t apart < <(awk '/^Files:/ { liste = 1; sub(/^Files:/, "") }
  /^[A-Z][A-Za-z-]*:/ && !/^Files:/ { liste = 0 }
  liste { for (i = 1; i <= NF; i++) if ($i != "*") print $i }' "$racine/debian/copyright")
sans=()
while IFS=$'\t' read -r fichier licence; do
  [[ "$licence" == UNKNOWN && "$fichier" != LICENSE ]] || continue
  for motif in "${apart[@]}"; do
    # shellcheck disable=SC2053 # the pattern is a glob on purpose
    [[ "$fichier" == $motif ]] && continue 2
  done
  sans+=("$fichier")
done < <(cd "$racine" && git ls-files -z | xargs -0 licensecheck --machine --check '.')
if ((${#sans[@]})); then
  echo "${#sans[@]} fichiers sans ligne SPDX-License-Identifier en tête (ou à déclarer dans" >&2
  echo "debian/copyright s'ils ne peuvent pas en porter) :" >&2
  printf '  %s\n' "${sans[@]}" >&2
  exit 1
fi

echo "== debian/ et CMake disent la même chose"
cache() { sed -n "s/^set($1 \"\\(.*\\)\" CACHE.*/\\1/p" "$racine/cmake/projet.cmake"; }
champ() { sed -n "s/^$1: //p" "$racine/debian/control" | head -n 1; }
[[ "$(champ Maintainer)" == "$(cache TN_MAINTENEUR)" ]] || echec "Maintainer diffère de TN_MAINTENEUR"
[[ "$(champ Homepage)" == "$(cache TN_ADRESSE_PROJET)" ]] || echec "Homepage diffère de TN_ADRESSE_PROJET"
grep -q "^Bug-Database: $(cache TN_ADRESSE_BOGUES)$" "$racine/debian/upstream/metadata" ||
  echec "Bug-Database diffère de TN_ADRESSE_BOGUES"
version=$(sed -n 's/^project(TroisNiveaux VERSION \([^ ]*\) .*/\1/p' "$racine/CMakeLists.txt")
[[ "$(dpkg-parsechangelog -l "$racine/debian/changelog" -S Version)" == "$version" ]] ||
  echec "debian/changelog n'est pas à la version $version"
jour=$(date -u -d "$(dpkg-parsechangelog -l "$racine/debian/changelog" -S Date)" +%F)
grep -q "set(TN_DATE_VERSION \"$jour\")" "$racine/cmake/projet.cmake" ||
  echec "TN_DATE_VERSION n'est pas la date de debian/changelog ($jour)"

# Each build starts from a clone: what is not committed is not packaged.
[[ -z "$(git -C "$racine" status --porcelain --untracked-files=no)" ]] ||
  echo "Attention : des changements non validés ne sont pas dans le paquet." >&2
construit() { # folder, then dpkg-buildpackage's options
  local dossier=$1
  shift
  rm -rf "$(dirname "$dossier")"
  mkdir -p "$(dirname "$dossier")"
  git clone -q "$racine" "$dossier"
  if ! (cd "$dossier" && dpkg-buildpackage -us -uc "$@") >"$dossier.journal" 2>&1; then
    tail -n 40 "$dossier.journal" >&2
    echec "dpkg-buildpackage a échoué : $dossier.journal"
  fi
}
# dh gives the build its own HOME: ccache is told where its cache lies. No
# base folder, which would put relative paths in the debug information.
if command -v ccache >/dev/null; then
  CCACHE_DIR=${CCACHE_DIR:-$(ccache -k cache_dir)}
  export CCACHE_DIR
  unset CCACHE_BASEDIR
fi

echo "== dpkg-buildpackage"
premier=$travail/1/troisniveaux
construit "$premier"
cd "$travail/1"
contenu=$(dpkg-deb -c troisniveaux_"$version"_*.deb)
for f in usr/games/troisniveaux usr/games/troisniveaux-analyse usr/share/troisniveaux/Noms \
  usr/share/man/man6/troisniveaux.6.gz usr/share/doc/troisniveaux/copyright; do
  grep -q " \./$f$" <<<"$contenu" || echec "le paquet n'a pas /$f"
done
# Each program's symbols are found by its build id, as a debugger looks them up.
rm -rf contenu && dpkg-deb -x troisniveaux_"$version"_*.deb contenu
symboles=$(dpkg-deb -c troisniveaux-dbgsym_"$version"_*.deb)
for programme in contenu/usr/games/*; do
  id=$(readelf -n "$programme" | awk '/Build ID/ { print $3 }')
  if [[ -z "$id" ]] || ! grep -q "/\.build-id/${id:0:2}/${id:2}\.debug$" <<<"$symboles"; then
    echec "troisniveaux-dbgsym n'a pas les symboles de $(basename "$programme")"
  fi
done
grep -q 'tests passed' "$premier.journal" || echec "les tests n'ont pas tourné pendant la construction"

echo "== lintian, blhc"
lintian --pedantic --display-info --fail-on error,warning,info,pedantic \
  troisniveaux_"$version"_*.changes
blhc --debian --all "$premier.journal"

echo "== autopkgtest"
deja=$(dpkg-query -W -f='${Status}' troisniveaux 2>/dev/null || true)
autopkgtest troisniveaux_"$version"_*.deb troisniveaux_"$version".dsc -- null >autopkgtest.journal 2>&1 ||
  {
    tail -n 40 autopkgtest.journal >&2
    echec "autopkgtest a échoué : $travail/1/autopkgtest.journal"
  }
sed -n '/@ summary$/,$p' autopkgtest.journal | grep -E '^[a-z-]+ +PASS'
if [[ "$deja" != *"install ok installed"* ]]; then
  DEBIAN_FRONTEND=noninteractive apt-get remove -y -qq troisniveaux >/dev/null
fi

echo "== reproductible"
# Another folder name and depth, another moment, time zone and umask, and no
# ccache, so that a cached object cannot hide a difference.
second=$travail/2/autre-dossier/troisniveaux-bis
(umask 0002 && TZ=Pacific/Kiritimati CCACHE_DISABLE=1 DEB_BUILD_OPTIONS=nocheck \
  construit "$second" -b -Pnocheck)
for deb in troisniveaux_"$version"_*.deb troisniveaux-dbgsym_"$version"_*.deb; do
  if ! cmp -s "$deb" "$(dirname "$second")/$deb"; then
    if command -v diffoscope >/dev/null; then
      diffoscope "$deb" "$(dirname "$second")/$deb" | head -n 60 >&2 || true
    fi
    echec "$deb diffère d'une construction à l'autre"
  fi
  sha256sum "$deb"
done
echo "paquet vérifié : $travail/1"
