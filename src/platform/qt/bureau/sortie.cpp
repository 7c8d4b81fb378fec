// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/bureau/sortie.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

#include "core/table_state.h"
#include "platform/qt/bureau/affichage.h"

namespace {

int tube[2] = {-1, -1};

// All a signal handler may safely do: note the signal in a pipe that the
// event loop watches. A second one of the same kind acts at once, should the
// loop never come round.
void NoteLeSignal(int signal) {
  const int errnoAvant = errno;
  const char octet = static_cast<char>(signal);
  if (write(tube[1], &octet, 1) < 0) {
    // The pipe is full: a signal is waiting there already.
  }
  struct sigaction défaut {};
  défaut.sa_handler = SIG_DFL;
  sigaction(signal, &défaut, nullptr);
  errno = errnoAvant;
}

} // namespace

void GardeLesSorties(TroisNiveaux &table) {
  if (tube[0] >= 0 || pipe2(tube, O_NONBLOCK | O_CLOEXEC) != 0)
    return;
  auto *guetteur = new QSocketNotifier(tube[0], QSocketNotifier::Read, qApp);
  QObject::connect(guetteur, &QSocketNotifier::activated, guetteur, [&table] {
    char octet = 0;
    int signal = 0;
    while (read(tube[0], &octet, 1) == 1)
      signal = octet;
    if (signal == 0)
      return;
    table.Fin_MouseUp();
    QCoreApplication::exit(128 + signal);
  });

  struct sigaction action {};
  action.sa_handler = NoteLeSignal;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  for (int signal : {SIGTERM, SIGINT, SIGHUP}) {
    // A signal ignored from the start (nohup) stays ignored.
    struct sigaction avant {};
    if (sigaction(signal, nullptr, &avant) == 0 && avant.sa_handler != SIG_IGN)
      sigaction(signal, &action, nullptr);
  }

  // The desktop session is ending: the screen goes back now, whether or not
  // the session manager lets the program reach its end.
  QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, guetteur,
                   [&table](QSessionManager &) { table.RestaureRésolution(); });
  QObject::connect(qApp, &QCoreApplication::aboutToQuit, guetteur,
                   [&table] { table.RestaureRésolution(); });
  // An exit from inside the toolkit (the X connection lost) runs no handler
  // of the game; the screen's own first mode is put back then.
  std::atexit(RemetLeModeDeDépart);
}
