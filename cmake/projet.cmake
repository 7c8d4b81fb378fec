# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Who and where the project is: read by the desktop entry, the AppStream data
# and the programs; debian/control, debian/copyright and debian/upstream/metadata
# repeat these values (scripts/paquet-debian.sh checks they agree).
set(TN_ID_APPLICATION "io.github.troisniveaux.TroisNiveaux" CACHE STRING "Reverse-DNS application id")
set(TN_ADRESSE_PROJET "https://github.com/troisniveaux/troisniveaux" CACHE STRING "The project's home page")
set(TN_ADRESSE_BOGUES "https://github.com/troisniveaux/troisniveaux/issues" CACHE STRING "Where bugs are reported")
set(TN_ADRESSE_AIDE "https://github.com/troisniveaux/troisniveaux#readme" CACHE STRING "The player's documentation")
set(TN_MAINTENEUR "TroisNiveaux developers <troisniveaux@framalistes.org>" CACHE STRING "Package maintainer")
set(TN_DATE_VERSION "2026-11-23")
