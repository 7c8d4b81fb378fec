# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Copies each default data file into DEST unless a file of that name is there.
foreach(nom Noms Scores)
  if(NOT EXISTS "${DEST}/${nom}")
    file(COPY "${SOURCE}/${nom}" DESTINATION "${DEST}")
  endif()
endforeach()
