#include "platform/qt/pages_web.h"

// Placeholder: the panels stay black.
struct PagesWeb::Détail {};
PagesWeb::PagesWeb(QWidget *, QWidget *, QWidget *) : détail(nullptr) {}
PagesWeb::~PagesWeb() = default;
void PagesWeb::Navigue(VueWeb, const std::string &) {}
void PrépareWebEngine() {}
