#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Checks that every tracked C++ source keeps to the project's .clang-format;
# prints the files that do not and fails. To mend them:
#   git ls-files '*.cpp' '*.h' | xargs clang-format -i
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
cd "$racine"
mal_formes=()
while IFS= read -r -d '' fichier; do
  clang-format --dry-run -Werror "$fichier" >/dev/null 2>&1 || mal_formes+=("$fichier")
done < <(git ls-files -z '*.cpp' '*.h')
if ((${#mal_formes[@]})); then
  echo "Fichiers à reformater avec clang-format (${#mal_formes[@]}) :" >&2
  printf '  %s\n' "${mal_formes[@]}" >&2
  exit 1
fi
