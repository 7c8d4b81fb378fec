// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// A temporary folder standing for the program's folder, with the default
// names and scores in it, removed at the end.

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <random>
#include <string>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

class DossierEssai {
public:
  DossierEssai() {
    std::random_device hasard;
    chemin = std::filesystem::temp_directory_path() /
             ("troisniveaux-essai-" + std::to_string(hasard()) + std::to_string(hasard()));
    std::filesystem::create_directories(chemin);
    Écrit("Noms", "\"MicroProc\"\r\n\"GigaOctets\"\r\n\"M\xE9gaBytes\"\r\n\"Bibi\"\r\n");
    Écrit("Scores", "0\r\n0\r\n0\r\n0\r\n");
  }
  ~DossierEssai() {
    std::error_code e;
    std::filesystem::current_path(std::filesystem::temp_directory_path(), e);
    std::filesystem::remove_all(chemin, e);
  }
  DossierEssai(const DossierEssai &) = delete;
  DossierEssai &operator=(const DossierEssai &) = delete;

  void Écrit(const std::string &nom, const std::string &octets) const {
    std::ofstream(chemin / nom, std::ios::binary) << octets;
  }
  std::string Lit(const std::string &nom) const {
    std::ifstream f(chemin / nom, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
  }
  bool Existe(const std::string &nom) const { return std::filesystem::exists(chemin / nom); }
  std::string Chemin() const { return chemin.string(); }

private:
  std::filesystem::path chemin;
};

// Runs `écriture` in a child that the system kills at its first rename, as
// a crash at the worst moment of a write would; true when it died there.
// Qt names a temporary file with six random letters; six lowercase ones are
// kept at start as a player's own copy (one leftover in 64), so a test that
// counts what the start clears must allow for them.
inline bool GardéCommeCopie(const std::string &nom) {
  const std::size_t point = nom.rfind('.');
  return point != std::string::npos && nom.size() - point == 7 &&
         std::all_of(nom.begin() + point + 1, nom.end(),
                     [](char c) { return c >= 'a' && c <= 'z'; });
}

inline bool TuéAuRenommage(const std::function<void()> &écriture) {
  const pid_t enfant = fork();
  if (enfant == 0) {
    sock_filter filtre[] = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
                            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_rename, 2, 0),
                            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_renameat, 1, 0),
                            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_renameat2, 0, 1),
                            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_KILL_PROCESS),
                            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    sock_fprog programme{static_cast<unsigned short>(std::size(filtre)), filtre};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &programme) != 0)
      _exit(2);
    écriture();
    _exit(0);
  }
  int statut = 0;
  return enfant > 0 && waitpid(enfant, &statut, 0) == enfant && WIFSIGNALED(statut) &&
         WTERMSIG(statut) == SIGSYS;
}
