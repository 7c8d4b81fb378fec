// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <QtGlobal>

#include "core/table_state.h"

namespace {
// The rules book, one string a page, its lines ended by CR. Some pages stop
// in the middle of a sentence that goes on over the page. Each page is
// translated whole where it is shown.
const char *const Pages[14] = {
    // Page 1
    QT_TRANSLATE_NOOP(
        "Regles",
        "ORIGINES :\r"
        "Un ami Vietnamien m'a présenté un jeu en me disant : Les Asiatiques ne jouent qu'à ça !\r"
        "Les origines et le véritable nom de ce jeu lui étant inconnus, il a décidé de le nommer : "
        "Trois Niveaux. Le Trois Niveaux se pratique, comme au tarot ou au bridge, autour d'une "
        "table de 4 "),
    // Page 2
    QT_TRANSLATE_NOOP("Regles", "joueurs. Les tours de jeu rapides en font un jeu très agréable et "
                                "idéal pour jouer la tournée ou quelques menus écus...\r"
                                "\r"
                                "REGLES :\r"
                                "Chaque joueur reçoit 13 cartes et doit établir 3 mains, 1 main "
                                "par niveau, en tenant compte de la seule règle suivante :"),
    // Page 3
    QT_TRANSLATE_NOOP(
        "Regles",
        "Le niveau 1 (5 cartes) doit être plus fort que le niveau 2 (5 cartes)et ce dernier plus "
        "fort que le niveau 3 (3 cartes) selon les valeurs hiérarchiques du poker traditionnel.\r"
        "   Valeurs décroissantes :\r"
        "     QF (Quinte Flush)\r"
        "     Carré\r"
        "     Full\r"),
    // Page 4
    QT_TRANSLATE_NOOP("Regles", "     Flush\r"
                                "     Quinte\r"
                                "     Brelan\r"
                                "     2 Paires\r"
                                "     1 Paire\r"
                                "     Rien\r"
                                "Exemples :\r"
                                "- Niveau 2 : 1 Paire et niveau 3 : 1 Paire => La paire du niveau "
                                "2 doit être supérieure à celle au niveau 3."),
    // Page 5
    QT_TRANSLATE_NOOP("Regles",
                      "- Niveau 2 : Rien et Niveau 3 : Rien =>  La carte la plus forte du niveau 2 "
                      "doit être supérieure à la carte la plus forte du Niveau 3, si elles ont la "
                      "même valeur, la 2ème carte est pris en compte et, éventuellement la 3ème.\r"
                      "- Niveau 1 : Flush et Niveau 2 : Flush => La carte la plus forte du niveau "
                      "2 doit être supérieure à la carte \r"),
    // Page 6
    QT_TRANSLATE_NOOP("Regles",
                      "la plus forte du niveau 3, si elles ont la même valeur, la 2ème carte est "
                      "pris en compte et, éventuellement la 3ème, la 4ème et la 5ème.\r"
                      "Si le joueur n'observe pas cette règle, ses 3 mains sont nulles.\r"
                      "\r"
                      "Chacun des 3 niveaux est ensuite comparé aux 3 niveaux des \r"),
    // Page 7
    QT_TRANSLATE_NOOP("Regles", "adversaires.\r"
                                "Un niveau gagnant génère des points positifs, un niveau perdant, "
                                "des points négatifs selon le barême suivant :\r"
                                "NIVEAU 1 :\r"
                                "QF         : 5 Points\r"
                                "Carré   : 4 Points\r"
                                "Autres : 1 Point\r"
                                "NIVEAU 2 :\r"),
    // Page 8
    QT_TRANSLATE_NOOP("Regles", "QF          : 10 Points\r"
                                "Carré    : 4 Points\r"
                                "Full        : 2 Points\r"
                                "Autres : 1 Point\r"
                                "NIVEAU 3 :\r"
                                "Brelan  : 3 Points\r"
                                "Autres : 1 Point\r"
                                "\r"
                                "Il existe 4 associations particulières de mains.\r"),
    // Page 9
    QT_TRANSLATE_NOOP("Regles",
                      "Elles sont gagnantes sur toutes les autres mains ; les voici, ci-après,  "
                      "classées par ordre décroissant de valeur :\r"
                      "- MEGA QUINTE (2, 3, 4, 5, 6, 7, 8, 9, 10, V, D, R et A) =>  5 Points par "
                      "niveau et sur chaque adversaire, soit 45 Points au total.\r"
                      "- 6 PAIRES (6 Paires et 1 carte quelconque) => 2 Points par niveau\r"),
    // Page 10
    QT_TRANSLATE_NOOP("Regles", "et sur chaque adversaire, soit 18 Points au total.\r"
                                "- TOUT FLUSH (Flush sur les 3 niveaux) =>  2 Points par niveau et "
                                "sur chaque adversaire, soit 18 Points au total.\r"
                                "- TOUT QUINTE (Quinte sur les 3 niveaux) =>  2 Points par niveau "
                                "et sur chaque adversaire, soit 18 Points au total.\r"),
    // Page 11
    QT_TRANSLATE_NOOP(
        "Regles",
        "Ne vous y trompez pas, les règles sont simples mais le jeu n'est pas facile. Les "
        "nombreuses possibilités générées et les choix tactiques créeront rapidement des écarts. "
        "Attention, l'ordinateur qui gère vos 3 adversaires, joue très bien.\r"
        "\r"
        "2 Modes de jeu sont à votre \r"),
    // Page 12
    QT_TRANSLATE_NOOP(
        "Regles",
        "disposition :\r"
        "- DEBUTANT :\r"
        "Vous disposez d'un délai de réflexion supplémentaire car l'ordinateur calcule vos 3 "
        "Niveaux et vous propose sa solution, sur votre demande, à la fin de la donne.\r"
        "TOUT FLUSH et TOUT QUINTE sont reconnus pour vous à la fin de la \r"),
    // Page 13
    QT_TRANSLATE_NOOP("Regles",
                      "donne.\r"
                      "- EXPERT :\r"
                      "Temps de réflextion restreint.\r"
                      "TOUT FLUSH et TOUT QUINTE ne sont pas reconnus. Vous devez donc les jouez.\r"
                      "\r"
                      "MEGA QUINTE et 6 PAIRES :\r"
                      "Pour des raisons de commodités d'affichage, sont reconnus de "),
    // Page 14
    QT_TRANSLATE_NOOP(
        "Regles",
        "manière automatique à la fin de la donne, et ce, en mode DEBUTANT et en mode EXPERT."),
};
} // namespace

void TroisNiveaux::ComposeTextesRègles() {
  for (int n = 0; n < 14; ++n)
    TextesRègles[n] = Pages[n];
}

void TroisNiveaux::VoirRègles_Click(int index) {
  auto &f = Fenêtre;
  if (index == 0) {
    PageRègles = 0;
    f.AfficheRègles.Caption = TextesRègles[0];
    f.TextCombien.Caption = " 1/14";
    f.TextScroll[0].MousePointer = SensInterdit;
    f.TextScroll[1].MousePointer = FlècheHaut;
    f.RèglesText.Visible = true;
    f.VoirRègles[1].Visible = true;
    f.VoirRègles[0].Visible = false;
  } else {
    f.RèglesText.Visible = false;
    f.VoirRègles[0].Visible = true;
    f.VoirRègles[1].Visible = false;
  }
}

// The hands' pointers are what stops the pages at either end.
void TroisNiveaux::TextScroll_Click(int index) {
  auto &f = Fenêtre;
  if (index < 0 || index > 1 || f.TextScroll[index].MousePointer == SensInterdit)
    return;
  if (index == 0)
    --PageRègles;
  else
    ++PageRègles;
  f.TextCombien.Caption = " " + std::to_string(PageRègles + 1) + "/14";
  f.AfficheRègles.Caption = TextesRègles[PageRègles];
  f.TextScroll[0].MousePointer = PageRègles == 0 ? SensInterdit : FlècheHaut;
  f.TextScroll[1].MousePointer = PageRègles == 13 ? SensInterdit : FlècheHaut;
}
