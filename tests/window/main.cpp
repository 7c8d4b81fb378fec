// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The window tests need a display: without one they use Qt's offscreen
// platform. Test discovery runs without the test's environment, so it is set
// here.
#include <QApplication>
#include <cstdlib>
#include <gtest/gtest.h>

#include "platform/qt/panneaux/pages_web.h"

int main(int argc, char **argv) {
  if (!std::getenv("QT_QPA_PLATFORM") && !std::getenv("DISPLAY"))
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
  PrépareWebEngine();
  QApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
